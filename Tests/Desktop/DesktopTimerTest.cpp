#include "DesktopTimer.h"

#include <QtCore/qcoreapplication.h>
#include <QtTest/qtest.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace TQFoundation {
namespace {

/// The clock of a platform.
QElapsedTimer startedClock()
{
    QElapsedTimer clock;
    clock.start();
    return clock;
}

std::shared_ptr<DesktopTimer> makeTimer(double interval, std::function<void()> tick)
{
    return std::make_shared<DesktopTimer>(startedClock(), interval, std::move(tick));
}

TEST(DesktopTimer, FiresAtOnceAndTicksOnceScheduled)
{
    int ticks = 0;
    const auto timer = makeTimer(0.05, [&] { ++ticks; });
    timer->fire();
    EXPECT_EQ(ticks, 1);
    timer->schedule();
    EXPECT_EQ(ticks, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 3; }));
    timer->invalidate();
}

TEST(DesktopTimer, IsKeptAliveUntilInvalidated)
{
    const auto held = std::make_shared<int>(0);
    auto timer = makeTimer(0.01, [held] { ++*held; });
    timer->schedule();
    const std::weak_ptr<RepeatingTimer> weak = timer;
    timer.reset();
    ASSERT_TRUE(QTest::qWaitFor([&] { return *held >= 2; }));
    ASSERT_FALSE(weak.expired());
    weak.lock()->invalidate();
    EXPECT_TRUE(weak.expired());
    EXPECT_EQ(held.use_count(), 1);
}

TEST(DesktopTimer, MayBeInvalidatedInItsTick)
{
    int ticks = 0;
    std::weak_ptr<RepeatingTimer> weak;
    {
        const auto timer = makeTimer(0.001, [&] {
            ++ticks;
            weak.lock()->invalidate();
        });
        weak = timer;
        timer->schedule();
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return weak.expired(); }));
    EXPECT_EQ(ticks, 1);
}

TEST(DesktopTimer, NeverTicksAfterInvalidation)
{
    int ticks = 0;
    const auto timer = makeTimer(0.001, [&] { ++ticks; });
    timer->invalidate();
    timer->fire();
    timer->schedule();
    EXPECT_FALSE(QTest::qWaitFor([&] { return ticks > 0; }, 20));
}

TEST(DesktopTimer, TicksOnceAfterStallAndKeepsItsGrid)
{
    const QElapsedTimer clock = startedClock();
    const auto now = [&clock] { return static_cast<double>(clock.nsecsElapsed()) * 1e-9; };
    std::vector<double> moments;
    const double made = now();
    const auto timer = std::make_shared<DesktopTimer>(clock, 0.1, [&] { moments.push_back(now() - made); });
    timer->schedule();
    while (now() - made < 0.25) {} // blocks the event loop
    ASSERT_TRUE(QTest::qWaitFor([&] { return moments.size() >= 2; }));
    timer->invalidate();
    EXPECT_GE(moments[0], 0.25);
    EXPECT_LT(moments[0], 0.3);
    EXPECT_GE(moments[1], 0.3) << "the tick after a stall comes at the next whole multiple";
}

TEST(DesktopTimer, IsInvalidatedWithTheApplication)
{
    EXPECT_EXIT(
        {
            auto held = std::make_shared<int>(0);
            makeTimer(10, [held] {})->schedule();
            QCoreApplication::instance()->~QCoreApplication();
            std::_Exit(held.use_count() == 1 ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace TQFoundation
