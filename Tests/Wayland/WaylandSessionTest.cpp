#include "CountedWindow.h"
#include "MailHost.h"

#include <TQFoundation/AnimationView.h>
#include <TQFoundation/TQGuideView.h>

#include <QtCore/qprocess.h>
#include <QtCore/qscopeguard.h>
#include <QtGui/qscreen.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>

#include <csignal>

namespace TQFoundation {
namespace {

/// A window that covers the whole output of the session that tools/in-weston starts, so that its place is known there.
class WaylandSession : public Testing::MailHost
{
protected:
    void SetUp() override
    {
        if (QGuiApplication::platformName() != u"wayland")
            GTEST_SKIP() << "run it with tools/in-weston";
        window->showFullScreen();
        ASSERT_TRUE(comes([this] { return window->size() == window->screen()->size(); }));
        ASSERT_TRUE(comes([this] { return window->isActive(); }));
        platform->scenes = desktop.connectedScenes();
    }

    // Moves the real pointer to the middle of the item and clicks.
    void clickReally(const QQuickItem *item)
    {
        ASSERT_TRUE(item);
        const QPointF middle = item->mapToScene(item->boundingRect().center()) * window->effectiveDevicePixelRatio();
        xdotool({QStringLiteral("mousemove"), QString::number(qRound(middle.x())), QString::number(qRound(middle.y())),
                 QStringLiteral("click"), QStringLiteral("1")});
    }

    static void xdotool(const QStringList &arguments)
    {
        EXPECT_EQ(QProcess::execute(QStringLiteral("xdotool"), arguments), 0);
    }

    // Processes events and advances animations until \a condition is true. False after 20 s.
    template <typename Condition>
    bool comesInTime(const Condition &condition)
    {
        return comes([&] {
            clock.pass(50);
            return condition();
        });
    }
};

TEST(WaylandScreen, IsKnownBeforeTheFirstWindow)
{
    const DesktopPlatform platform;
    const QSizeF pixels = platform.screenBounds() * platform.screenScale();
    EXPECT_NEAR(pixels.width(), 1280, platform.screenScale());
    EXPECT_NEAR(pixels.height(), 2560, platform.screenScale());
}

TEST(WaylandScreen, BackgroundMovesToTheSecondOutput)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    if (screens.size() < 2)
        GTEST_SKIP() << "needs two outputs";
    const Testing::InstalledRecordingPlatform platform;
    const auto view = AnimationView::initWithFrame({});
    Testing::CountedWindow window;
    view->setParentItem(window.contentItem());
    view->createTimer();
    for (QScreen *screen : {screens[0], screens[1], screens[0], screens[1]}) {
        window.hide();
        window.setScreen(screen);
        window.showFullScreen();
        EXPECT_TRUE(QTest::qWaitFor([&] { return window.isExposed() && window.size() == screen->size(); }));
        EXPECT_TRUE(window.moves());
        EXPECT_NEAR(window.grabWindow().width(), window.width() * window.effectiveDevicePixelRatio(), 1);
    }
}

TEST_F(WaylandSession, ClicksAdvanceTheGuide)
{
    const auto guide =
        TQGuideView::initFromNib(Color::systemBlue(), {QStringLiteral("One"), QStringLiteral("Two")}, {});
    guide->showGuide();
    clock.pass(1000);
    clickReally(guide->nextButton());
    EXPECT_TRUE(comesInTime([&] { return guide->guideLabel()->property("text").toString() == u"Two"; }));
    clock.pass(1000);
    clickReally(guide->nextButton());
    EXPECT_TRUE(comesInTime([&] { return !guide->parentItem(); }));
}

TEST_F(WaylandSession, ClicksAndKeysReachTheRow)
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import TQFoundation\nTQAppView { focus: true; app: TQApp.hazel; width: 200 }", {});
    const std::unique_ptr<QObject> object(component.create());
    auto *const row = qobject_cast<QQuickItem *>(object.get());
    ASSERT_TRUE(row);
    row->setParentItem(window->contentItem());
    const auto opened = [this] { return platform->calls.filter(QStringLiteral("openUrl(")).size(); };
    xdotool({QStringLiteral("key"), QStringLiteral("Right")});
    EXPECT_TRUE(comesInTime([&] { return row->property("contentX").toDouble() > 0; }));
    xdotool({QStringLiteral("key"), QStringLiteral("Return")});
    EXPECT_TRUE(comesInTime([&] { return opened() == 1; }));
    clickReally(row);
    EXPECT_TRUE(comesInTime([&] { return opened() == 2; }));
}

TEST_F(WaylandSession, ClicksAndKeysReachTheSheet)
{
    compose();
    xdotool({QStringLiteral("type"), QStringLiteral("hello")});
    EXPECT_TRUE(comesInTime([&] { return document()->toPlainText() == u"hello"; }));
    clickReally(button("Cancel"));
    ASSERT_TRUE(comesInTime([&] { return button("Discard"); }));
    clock.pass(1000);
    clickReally(button("Discard"));
    EXPECT_TRUE(comesInTime([&] { return !isShown(); }));
    EXPECT_EQ(root->results, QList{ViewController::MailComposeResult::cancelled});
}

// A compositor sends no frame callbacks to a window that is covered; here it stops altogether.
TEST_F(WaylandSession, BackgroundContinuesAfterAPauseOfTheCompositor)
{
    const int compositor = qEnvironmentVariableIntValue("TQ_COMPOSITOR");
    ASSERT_GT(compositor, 1);
    Testing::CountedWindow counted;
    const auto view = AnimationView::initWithFrame({});
    view->setParentItem(counted.contentItem());
    view->createTimer();
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(counted.moves());
        ASSERT_EQ(kill(compositor, SIGSTOP), 0);
        const auto resume = qScopeGuard([&] { kill(compositor, SIGCONT); });
        EXPECT_TRUE(counted.rests());
    }
    EXPECT_TRUE(counted.moves());
}

} // namespace
} // namespace TQFoundation
