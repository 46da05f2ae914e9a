#include "AnimationViewFixture.h"
#include "CountedWindow.h"
#include "DeathTest.h"
#include "DriftPath.h"
#include "QmlWindow.h"
#include <TQFoundation/Environment.h>

#include <QtCore/qmetaobject.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <set>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace TQFoundation {
namespace {

using Testing::InstalledRecordingPlatform;
using Testing::trapSignal;
using AnimationViewLifetimeTest = Testing::BackgroundTest;

// When it asks for frames.

/// Counts how often it is asked what to draw.
class CountedView : public AnimationView
{
public:
    int drawn = 0;

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override
    {
        ++drawn;
        return AnimationView::updatePaintNode(node, data);
    }
};

TEST_F(AnimationViewLifetimeTest, UpdatesOnlyAtTicks)
{
    QQuickWindow window;
    CountedView view;
    view.setParentItem(window.contentItem());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    view.createTimer();
    window.grabWindow();
    EXPECT_GT(view.drawn, 0);
    for (int tick = 0; tick < 3; ++tick) {
        const int before = view.drawn;
        view.setColor(Rgba{1, 0, 0});
        platform->advance(9);
        window.grabWindow();
        EXPECT_EQ(view.drawn, before);
        platform->advance(1);
        window.grabWindow();
        EXPECT_EQ(view.drawn, before + 1);
    }
}

TEST_F(AnimationViewLifetimeTest, RequestsNoFramesWhileInvisible)
{
    Testing::CountedWindow window;
    QQuickItem page;
    page.setParentItem(window.contentItem());
    CountedView view;
    view.setParentItem(&page);
    view.createTimer();
    window.grabWindow();
    EXPECT_GT(view.drawn, 0);
    page.setVisible(false);
    window.grabWindow();
    EXPECT_TRUE(window.rests());
    const int frames = window.frames;
    const int before = view.drawn;
    platform->advance(30);
    EXPECT_TRUE(window.rests());
    EXPECT_EQ(window.frames, frames);
    EXPECT_EQ(view.drawn, before);
    page.setVisible(true);
    window.grabWindow();
    EXPECT_EQ(view.drawn, before + 1);
}

// Who holds it.

TEST_F(AnimationViewLifetimeTest, IsDestroyedWithItsLastHolderIfNeverStarted)
{
    auto view = AnimationView::initWithFrame({});
    const std::weak_ptr<AnimationView> watched = view;
    view.reset();
    EXPECT_TRUE(watched.expired());
    EXPECT_FALSE(platform->calls.contains(QStringLiteral("timer.invalidate()")));
}

TEST_F(AnimationViewLifetimeTest, IsHeldByItsTimer)
{
    const std::weak_ptr<AnimationView> view = ticking();
    ASSERT_FALSE(view.expired());
    const ShapeLayer before = line(*view.lock());
    platform->advance(10);
    ASSERT_FALSE(view.expired());
    EXPECT_NE(line(*view.lock()), before) << "and it ticks without a window";
}

TEST_F(AnimationViewLifetimeTest, KeepsTickingWithoutAWindow)
{
    const std::weak_ptr<AnimationView> watched = ticking();
    {
        QQuickWindow window;
        watched.lock()->setParentItem(window.contentItem());
        platform->advance(10);
        watched.lock()->setParentItem(nullptr);
        const ShapeLayer before = line(*watched.lock());
        platform->advance(10);
        EXPECT_NE(line(*watched.lock()), before);
        watched.lock()->setParentItem(window.contentItem());
    }
    ASSERT_FALSE(watched.expired());
    EXPECT_FALSE(watched.lock()->window());
    const ShapeLayer before = line(*watched.lock());
    platform->advance(10);
    EXPECT_NE(line(*watched.lock()), before);
}

TEST_F(AnimationViewLifetimeTest, IsDestroyedWhenItsTimerIsInvalidated)
{
    const std::weak_ptr<AnimationView> view = ticking();
    platform->calls.clear();
    invalidateTimer();
    EXPECT_TRUE(view.expired());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(platform->calls.count(QStringLiteral("timer.invalidate()")), 2) << "once more by its teardown";
    EXPECT_TRUE(platform->timers.front().expired());
    platform->advance(100);
}

TEST_F(AnimationViewLifetimeTest, StaysStillAfterItsTimerIsInvalidated)
{
    auto view = ticking();
    const std::weak_ptr<AnimationView> watched = view;
    const ShapeLayer last = line(*view);
    invalidateTimer();
    platform->advance(100);
    EXPECT_EQ(line(*view), last);
    view->createTimer();
    EXPECT_EQ(platform->timers.size(), 1U) << "its timer is set all the same";
    view.reset();
    EXPECT_TRUE(watched.expired());
}

TEST_F(AnimationViewLifetimeTest, CanBeInvalidatedDuringTheFirstTick)
{
    auto view = AnimationView::initWithFrame({});
    const std::weak_ptr<AnimationView> watched = view;
    QQuickItem child(view.get());
    child.setParent(nullptr);
    QObject::connect(&child, &QQuickItem::parentChanged, &child, [&] { invalidateTimer(); });
    AnimationView *raw = view.get();
    QObject::connect(&child, &QQuickItem::parentChanged, &child, [&] { view.reset(); });
    raw->createTimer();
    EXPECT_TRUE(watched.expired()) << "and createTimer() came to its end all the same";
    platform->advance(100);
}

TEST_F(AnimationViewLifetimeTest, InvalidatesItsTimerIfNoSharedPointerHoldsIt)
{
    {
        AnimationView view;
        view.createTimer();
        EXPECT_TRUE(view.shapeLayer());
        platform->advance(10);
    }
    EXPECT_EQ(platform->calls.last(), QStringLiteral("timer.invalidate()"));
    platform->advance(100);
}

TEST_F(AnimationViewLifetimeTest, ManyTickIndependently)
{
    std::vector<std::shared_ptr<AnimationView>> views;
    for (int count = 0; count < 20; ++count) {
        views.push_back(ticking());
        platform->advance(0.25);
    }
    platform->advance(100);
    for (std::size_t index = 0; index < views.size(); ++index)
        EXPECT_EQ(line(*views[index]).animations().front().beginTime, 100 + 0.25 * static_cast<double>(index));
}

// Fatal preconditions.

TEST_F(AnimationViewLifetimeTest, CanBeMadeWithoutAScreen)
{
    platform->bounds = {0, 0};
    EXPECT_FALSE(AnimationView::initWithFrame({})->shapeLayer());
}

using AnimationViewDeathTest = Testing::BackgroundTest;

TEST_F(AnimationViewDeathTest, StopsOnAScreenUnderTwoPoints)
{
    for (const QSizeF &bounds : {QSizeF(0, 0), QSizeF(1.9, 844), QSizeF(390, 1.9)}) {
        // A point in the very middle of its range divides by nothing, so several ticks it is.
        const auto tickAFewTimes = [&] {
            platform->bounds = bounds;
            const auto view = ticking();
            platform->advance(100);
        };
        EXPECT_EXIT(tickAFewTimes(), testing::KilledBySignal(trapSignal), "");
    }
}

TEST_F(AnimationViewDeathTest, StopsOnAScreenThatIsNotFiniteOrNegative)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const QSizeF &bounds : {QSizeF(std::numeric_limits<double>::quiet_NaN(), 844), QSizeF(390, infinity),
                                 QSizeF(-390, 844), QSizeF(390, -844), QSizeF(1e19, 844)}) {
        EXPECT_EXIT((platform->bounds = bounds, AnimationView::initWithFrame({})), testing::KilledBySignal(trapSignal),
                    "");
    }
}

// So that no render thread draws a background while the process ends.
TEST_F(AnimationViewDeathTest, HidesWindowsAtExit)
{
    const auto exitWithAWindow = [] {
        auto *const window = new QQuickWindow;
        new AnimationView(window->contentItem());
        window->show();
        QObject::connect(window, &QWindow::visibleChanged, window, [] { std::fputs("hidden", stderr); });
        std::exit(0);
    };
    EXPECT_EXIT(exitWithAWindow(), testing::ExitedWithCode(0), "^hidden$");
}

TEST_F(AnimationViewDeathTest, StopsOnOverflow)
{
    EXPECT_EXIT((platform->bounds = QSizeF(1e18, 1e18), ticking()), testing::KilledBySignal(trapSignal), "");
}

// A hundred and sixteen days of ticks.

#ifdef __GLIBC__
TEST_F(AnimationViewLifetimeTest, KeepsGridAndMemoryOverAMillionTicks)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    constexpr int ticks = 50'000;
#else
    constexpr int ticks = 1'000'000;
#endif
    constexpr int warmUp = 1000;
    platform->records = false;
    QQuickWindow window;
    window.show();
    const auto view = ticking(Rgba{1, 0, 0});
    view->setParentItem(window.contentItem());
    std::size_t usedBefore = 0;
    for (int tick = 1; tick <= ticks; ++tick) {
        platform->advance(10);
        ASSERT_EQ(view->shapeLayer()->animations().front().beginTime, 10.0 * tick);
        ASSERT_EQ(view->shapeLayer()->animations().size(), 3U);
        if (tick == warmUp)
            usedBefore = mallinfo2().uordblks;
    }
    EXPECT_NEAR(static_cast<double>(mallinfo2().uordblks), static_cast<double>(usedBefore), 4096);
    EXPECT_EQ(platform->timers.size(), 1U);
}
#endif

TEST(AnimationViewAlone, OutlivesThePlatformThatMadeItsTimer)
{
    std::shared_ptr<AnimationView> view;
    {
        const InstalledRecordingPlatform platform;
        view = AnimationView::initWithFrame({});
        view->createTimer();
    }
    const QPointer<AnimationView> observed = view.get();
    view.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(observed);
}

} // namespace
} // namespace TQFoundation
