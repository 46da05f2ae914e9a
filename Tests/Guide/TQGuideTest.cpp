#include "GuideHost.h"
#include "QmlWindow.h"

#include <TQFoundation/TQApp.h>

#include <QtQuick/qquickitem.h>

namespace TQFoundation {
namespace {

using Testing::keyScene;
using Testing::QmlWindow;

// A host written in QML.
constexpr char host[] = R"(
Item {
    id: root
    property int completions: 0
    property int changes: 0
    readonly property bool asked: guide.shouldShowGuide()
    readonly property TQGuide guide: guide
    readonly property int pages: guide.descriptions.length
    readonly property var tint: guide.tintColor
    function start() { guide.showGuide(); }
    function startHere() { guide.showGuide(null, root); }
    width: 300; height: 300
    TQGuide {
        id: guide
        tintColor: TQApp.birch.tintColor
        descriptions: ["One", "Two"]
        onCompleted: ++root.completions
        onTintColorChanged: ++root.changes
        onDescriptionsChanged: ++root.changes
    }
}
)";

class TQGuide : public testing::Test
{
protected:
    static TQGuideView *guideIn(const QQuickItem *item)
    {
        for (QQuickItem *child : item->childItems()) {
            if (auto *guide = qobject_cast<TQGuideView *>(child))
                return guide;
        }
        return nullptr;
    }

    Testing::InstalledRecordingPlatform platform;
    Testing::AnimationClock clock;
    std::unique_ptr<QmlWindow> app = std::make_unique<QmlWindow>(host);
};

TEST_F(TQGuide, ShowsGuideFromQml)
{
    EXPECT_EQ(app->item->property("asked"), QVariant(true));
    platform->scenes = keyScene(&app->window);
    QMetaObject::invokeMethod(app->item, "start");
    TQGuideView *guide = guideIn(app->window.contentItem());
    ASSERT_TRUE(guide);
    EXPECT_EQ(guide->guideLabel()->property("text"), QVariant(QStringLiteral("One")));
    EXPECT_EQ(guide->backgroundColor(), TQApp(TQApp::Case::birch).tintColor());
    clock.pass(600);
    guide->nextGuide();
    clock.pass(800);
    EXPECT_EQ(guide->guideLabel()->property("text"), QVariant(QStringLiteral("Two")));
    EXPECT_EQ(app->item->property("completions"), QVariant(0));
    guide->nextGuide();
    EXPECT_EQ(app->item->property("completions"), QVariant(1));
    clock.pass(600);
    EXPECT_FALSE(guideIn(app->window.contentItem()));
    EXPECT_FALSE(TQGuideView::shouldShowGuide());
}

TEST_F(TQGuide, EmitsChangesOnlyForNewValues)
{
    auto *guide = app->item->property("guide").value<QObject *>();
    const QStringList descriptions{QStringLiteral("One"), QStringLiteral("Two")};
    const QVariant tint = QVariant::fromValue(TQApp(TQApp::birch).tintColor());
    EXPECT_EQ(guide->property("descriptions"), QVariant(descriptions));
    EXPECT_EQ(guide->property("tintColor"), tint);
    app->item->setProperty("changes", 0);
    guide->setProperty("descriptions", descriptions);
    guide->setProperty("tintColor", tint);
    EXPECT_EQ(app->item->property("changes"), QVariant(0));
    guide->setProperty("descriptions", QStringList());
    guide->setProperty("tintColor", QVariant::fromValue(Color::label()));
    EXPECT_EQ(app->item->property("changes"), QVariant(2));
    EXPECT_EQ(app->item->property("pages"), QVariant(0)) << "bindings follow";
    EXPECT_EQ(app->item->property("tint"), QVariant::fromValue(Color::label()));
}

TEST_F(TQGuide, PassesFallbacksOn)
{
    QMetaObject::invokeMethod(app->item, "startHere");
    EXPECT_TRUE(guideIn(app->item));
}

TEST_F(TQGuide, KeepsOverlayFromGarbageCollector)
{
    platform->scenes = keyScene(&app->window);
    QMetaObject::invokeMethod(app->item, "start");
    const QPointer<TQGuideView> guide = guideIn(app->window.contentItem());
    app->engine.collectGarbage();
    clock.pass(600);
    app->engine.collectGarbage();
    EXPECT_TRUE(guide);
}

TEST_F(TQGuide, LeavesOverlayAfterItsOwnDestruction)
{
    platform->scenes = keyScene(&app->window);
    QMetaObject::invokeMethod(app->item, "start");
    const QPointer<TQGuideView> guide = guideIn(app->window.contentItem());
    clock.pass(600);
    app->object.reset();
    guide->nextGuide();
    clock.pass(800);
    guide->nextGuide();
    clock.pass(600);
    EXPECT_FALSE(guideIn(app->window.contentItem()));
    EXPECT_FALSE(TQGuideView::shouldShowGuide());
}

TEST_F(TQGuide, OverlayIsDestroyedWithHostEngine)
{
    platform->scenes = keyScene(&app->window);
    QMetaObject::invokeMethod(app->item, "start");
    const QPointer<TQGuideView> guide = guideIn(app->window.contentItem());
    clock.pass(600);
    guide->nextGuide();
    clock.pass(100);
    platform->scenes = {};
    app.reset();
    clock.pass(700);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(guide);
}

} // namespace
} // namespace TQFoundation
