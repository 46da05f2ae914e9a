#include "RecordingPlatform.h"

#include <TQFoundation/AppearanceObserver.h>

#include <QtCore/qcoreapplication.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qpalette.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace TQFoundation {
namespace {

QPalette palette(Qt::GlobalColor ground, Qt::GlobalColor text, Qt::GlobalColor others = Qt::gray)
{
    QPalette made;
    for (int role = 0; role < QPalette::NColorRoles; ++role)
        made.setColor(static_cast<QPalette::ColorRole>(role), others);
    made.setColor(QPalette::Window, ground);
    made.setColor(QPalette::WindowText, text);
    return made;
}

/// A host that paints an app's colour, under a platform whose appearance the test sets.
class AppearanceInQml : public testing::Test
{
protected:
    ~AppearanceInQml() override { QGuiApplication::setPalette(m_former); }

    void SetUp() override
    {
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick; import TQFoundation\n"
                          "QtObject {\n"
                          "    property bool isDark: TQAppearance.isDark\n"
                          "    property color tint: TQApp.hazel.tintColor.resolved(TQAppearance.isDark)\n"
                          "    property int changes\n"
                          "    onIsDarkChanged: ++changes\n"
                          "}",
                          {});
        host.reset(component.create());
        ASSERT_TRUE(host) << qPrintable(component.errorString());
    }

    bool isDark() const { return host->property("isDark").toBool(); }

    Testing::InstalledRecordingPlatform recording;
    std::unique_ptr<QObject> host;

private:
    const QPalette m_former = QGuiApplication::palette();
    QQmlEngine m_engine;
};

TEST_F(AppearanceInQml, FollowsThePaletteIfThePlatformNamesNone)
{
    for (const Qt::GlobalColor others : {Qt::black, Qt::white}) {
        QGuiApplication::setPalette(palette(Qt::black, Qt::white, others));
        EXPECT_TRUE(isDark());
        QGuiApplication::setPalette(palette(Qt::white, Qt::black, others));
        EXPECT_FALSE(isDark());
    }
}

TEST_F(AppearanceInQml, PrefersThePlatformToThePalette)
{
    QGuiApplication::setPalette(palette(Qt::white, Qt::black));
    recording->currentAppearance = Appearance::dark;
    appearanceChanged();
    EXPECT_TRUE(isDark());
    QGuiApplication::setPalette(palette(Qt::black, Qt::white));
    recording->currentAppearance = Appearance::light;
    appearanceChanged();
    EXPECT_FALSE(isDark());
    recording->currentAppearance.reset();
    appearanceChanged();
    EXPECT_TRUE(isDark());
}

TEST_F(AppearanceInQml, RecolorsWhatIsBoundToIt)
{
    recording->currentAppearance = Appearance::light;
    appearanceChanged();
    const QVariant light = host->property("tint");
    recording->currentAppearance = Appearance::dark;
    appearanceChanged();
    EXPECT_NE(host->property("tint"), light);
}

TEST_F(AppearanceInQml, TellsOnlyOfRealChanges)
{
    recording->currentAppearance = Appearance::dark;
    appearanceChanged();
    const int changes = host->property("changes").toInt();
    appearanceChanged();
    QGuiApplication::setPalette(palette(Qt::white, Qt::black));
    EXPECT_EQ(host->property("changes").toInt(), changes);
}

TEST_F(AppearanceInQml, IsObservedInCpp)
{
    recording->currentAppearance = Appearance::light;
    AppearanceObserver observer;
    std::vector<bool> seen;
    QObject::connect(&observer, &AppearanceObserver::isDarkChanged, [&] { seen.push_back(observer.isDark()); });
    recording->currentAppearance = Appearance::dark;
    appearanceChanged();
    QGuiApplication::setPalette(palette(Qt::white, Qt::black));
    recording->currentAppearance.reset();
    appearanceChanged();
    QGuiApplication::setPalette(palette(Qt::black, Qt::white));
    EXPECT_EQ(seen, (std::vector{true, false, true}));
    EXPECT_EQ(AppearanceObserver::current(), Appearance::dark);
}

} // namespace
} // namespace TQFoundation
