#include "KeyboardFocus.h"
#include "Languages.h"
#include "Layout.h"
#include "RecordingPlatform.h"
#include "Scenes.h"
#include "ScreenReader.h"
#include "TouchScreen.h"

#include <TQFoundation/TQApp.h>

#include <QtGui/qguiapplication.h>
#include <QtQml/qqmlapplicationengine.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>
#include <QtTest/qsignalspy.h>
#include <QtTest/qtest.h>

#include <gtest/gtest.h>

namespace TQFoundation {
namespace {

using Testing::Layout;
using Testing::ScreenReader;

// Loads the example's QML files into the test process, with the recording platform beneath them.
class Screens : public testing::Test
{
protected:
    Screens()
    {
        platform->storefront = QStringLiteral("CHN");
        platform->infoDictionary = {{QStringLiteral("CFBundleDisplayName"), QStringLiteral("Grove")},
                                    {QStringLiteral("CFBundleShortVersionString"), QStringLiteral("2.3.1")},
                                    {QStringLiteral("CFBundleVersion"), QStringLiteral("57")}};
    }

    void open(TQApp app, double points = 9)
    {
        QFont font = QGuiApplication::font();
        font.setPointSizeF(points);
        QGuiApplication::setFont(font);
        engine = std::make_unique<QQmlApplicationEngine>();
        engine->setInitialProperties({{QStringLiteral("app"), QVariant::fromValue(app)},
                                      {QStringLiteral("iconSource"), QUrl()},
                                      {QStringLiteral("width"), 390},
                                      {QStringLiteral("height"), 844},
                                      {QStringLiteral("animated"), false}});
        engine->load(QUrl(QStringLiteral("qrc:/Grove/Main.qml")));
        window = qobject_cast<QQuickWindow *>(engine->rootObjects().value(0));
        ASSERT_TRUE(window);
        ASSERT_TRUE(Testing::showWithFocus(*window));
        platform->scenes = Testing::keyScene(window);
    }

    void press(Qt::Key key)
    {
        QTest::keyClick(static_cast<QWindow *>(window), key);
        QCoreApplication::processEvents();
    }

    std::string screen() const { return window->property("screenName").toString().toStdString(); }
    QQuickItem *focused() const { return window->activeFocusItem(); }

    static std::string nameOf(QQuickItem *item)
    {
        return ScreenReader::describes(item)->text(QAccessible::Name).toStdString();
    }

    Testing::InstalledRecordingPlatform platform;
    std::unique_ptr<QQmlApplicationEngine> engine;
    QQuickWindow *window = nullptr;
};

class ScreensIn : public Screens, public testing::WithParamInterface<const char *>
{
protected:
    ScreensIn() { Testing::useLanguage(GetParam()); }

    void expectNoFlawsInAnyWindow()
    {
        const QSize sizes[] = {{320, 568}, {1280, 800}, {390, 844}, {240, 240}, {820, 1180}};
        for (const QSize size : sizes) {
            window->resize(size);
            QCoreApplication::processEvents();
            window->grabWindow();
            EXPECT_EQ(Layout::flawsOf(window->contentItem()), QStringList()) << screen() << ' ' << size.width();
        }
    }
};

TEST_P(ScreensIn, FitEveryWindowSizeAndTextSize)
{
    for (const double points : {9.0, 18.0}) {
        open(TQApp::larch, points);
        expectNoFlawsInAnyWindow();
        press(Qt::Key_Return);
        ASSERT_EQ(screen(), "more");
        expectNoFlawsInAnyWindow();
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, ScreensIn, testing::Values("en", "de", "zh-Hans", "ar"),
                         [](const auto &language) { return std::string(language.param).substr(0, 2); });

TEST_F(Screens, TabReachesRowsInOrderAndScrollsToThem)
{
    const ScreenReader reader;
    open(TQApp::larch, 18);
    window->resize(320, 568);
    press(Qt::Key_Tab);
    EXPECT_TRUE(focused()->property("visualFocus").toBool()) << "the home screen's only button has no focus frame";
    press(Qt::Key_Space);
    ASSERT_EQ(screen(), "more");
    window->grabWindow();
    EXPECT_EQ(nameOf(focused()), "Privacy Policy");
    EXPECT_TRUE(focused()->property("visualFocus").toBool());

    const char *const stops[] = {"Contact",
                                 "Rate on the App Store",
                                 "ICP-2099000001-1A",
                                 "Browse My Personal Website",
                                 "More Apps I Developed",
                                 "More Apps I Developed",
                                 "Back",
                                 "Dark Appearance",
                                 "Privacy Policy"};
    for (const char *stop : stops) {
        press(Qt::Key_Tab);
        EXPECT_EQ(nameOf(focused()), stop);
        EXPECT_TRUE(focused()->property("visualFocus").toBool() || focused()->inherits("QQuickFlickable"));
        EXPECT_TRUE(Layout::isInSight(focused())) << stop << " is scrolled out of view";
    }
    press(Qt::Key_Backtab);
    EXPECT_EQ(nameOf(focused()), "Dark Appearance");
    press(Qt::Key_Backtab);
    EXPECT_EQ(nameOf(focused()), "Back");
    press(Qt::Key_Return);
    EXPECT_EQ(screen(), "home");
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    EXPECT_EQ(screen(), "home");
}

TEST_F(Screens, RowsActivateOnReturnAndSpace)
{
    open(TQApp::alder);
    press(Qt::Key_Return);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
        platform->calls.clear();
        for (int row = 0; row < 9; ++row) {
            if (!focused()->inherits("QQuickFlickable") && row < 7)
                press(key);
            press(Qt::Key_Tab);
        }
        const QStringList opened = platform->calls.filter(QStringLiteral("openUrl("));
        EXPECT_EQ(opened.size(), 5) << opened.join(u' ').toStdString();
        EXPECT_TRUE(platform->calls.contains(QStringLiteral("canSendMail()")));
    }
}

TEST_F(Screens, SwitchChoosesTheOtherAppearance)
{
    open(TQApp::larch);
    QSignalSpy chosen(window, SIGNAL(appearanceChosen(bool)));
    window->setProperty("screenName", QStringLiteral("more"));
    platform->currentAppearance = Appearance::light;
    appearanceChanged();
    press(Qt::Key_Backtab);
    ASSERT_EQ(nameOf(focused()), "Dark Appearance");
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        press(key);
        const bool isDark = chosen.value(chosen.size() - 1).value(0).toBool();
        EXPECT_EQ(isDark, key == Qt::Key_Space);
        platform->currentAppearance = isDark ? Appearance::dark : Appearance::light;
        appearanceChanged();
    }
    EXPECT_EQ(chosen.size(), 2);
}

TEST_F(Screens, AreUsableByTouchAlone)
{
    const Testing::TouchScreen touch;
    for (const int width : {320, 360, 430}) {
        open(TQApp::larch, 18);
        window->resize(width, 568);
        touch.tap(focused());
        ASSERT_EQ(screen(), "more");
        window->grabWindow();
        QQuickItem *const first = focused();
        EXPECT_EQ(nameOf(first), "Privacy Policy");
        platform->calls.clear();
        touch.drag(window, {width / 2, 500}, {width / 2, 300});
        EXPECT_LT(first->mapToScene({}).y(), 0) << "scrolled";
        EXPECT_EQ(platform->calls, QStringList()) << "no row is pressed by scrolling";
        touch.drag(window, {width / 2, 300}, {width / 2, 550});
        touch.tap(first);
        EXPECT_EQ(platform->calls.filter(QStringLiteral("openUrl(")).size(), 1);
    }
}

TEST_F(Screens, ScreenReaderFindsAndPressesEveryPart)
{
    const ScreenReader reader;
    open(TQApp::larch);
    EXPECT_EQ(reader.tree(window), R"(Window 'Grove'
 LayeredPane '' focused
  Heading 'Grove'
  StaticText 'Version 2.3.1(57)' focusable read only
  Button 'More' focusable focused)");
    reader.press(focused());
    ASSERT_EQ(screen(), "more");
    EXPECT_EQ(reader.tree(window), R"(Window 'Grove'
 LayeredPane '' focused
  Button 'Back' focusable
  Heading 'More'
  CheckBox 'Dark Appearance' focusable
  Button 'Privacy Policy' focusable focused
  Button 'Contact' focusable
  Button 'Rate on the App Store' focusable
  Button 'ICP-2099000001-1A' focusable
  Button 'Browse My Personal Website' focusable
  Button 'More Apps I Developed' focusable
  Button 'More Apps I Developed' focusable
   Graphic 'Juniper'
   Graphic 'Hazel'
   Graphic 'Ginkgo'
   Graphic 'Fir'
   Graphic 'Elm'
   Graphic 'Dogwood'
   Graphic 'Cedar'
   Graphic 'Birch'
   Graphic 'Alder'
  StaticText 'Version 2.3.1(57)' focusable read only)");
    reader.press(focused());
    EXPECT_EQ(platform->calls.filter(QStringLiteral("openUrl(")).size(), 1);
}

} // namespace
} // namespace TQFoundation
