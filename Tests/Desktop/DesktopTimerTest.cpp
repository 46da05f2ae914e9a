#include "DesktopTimer.h"

#include <QtCore/qelapsedtimer.h>
#include <QtCore/qeventloop.h>
#include <QtCore/qtimer.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qwindow.h>
#include <QtTest/qtest.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace TQFoundation {
namespace {

double now()
{
    static const QElapsedTimer clock = [] {
        QElapsedTimer started;
        started.start();
        return started;
    }();
    return static_cast<double>(clock.nsecsElapsed()) * 1e-9;
}

std::shared_ptr<DesktopTimer> makeTimer(double interval, std::function<void()> tick)
{
    return std::make_shared<DesktopTimer>(now, interval, std::move(tick));
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

// The hand-driven clock is a hundredth of a second before the second tick when the timer is scheduled. A grid that
// began there would tick 1000 s later.
TEST(DesktopTimer, CountsGridFromMakingNotFromScheduling)
{
    double time = 5;
    std::vector<double> ticks;
    const auto timer = std::make_shared<DesktopTimer>([&] { return time; }, 1000,
                                                      [&] {
                                                          ticks.push_back(time);
                                                          time += 1000;
                                                      });
    time += 1999.99;
    timer->schedule();
    EXPECT_TRUE(ticks.empty());
    time += 0.01;
    EXPECT_TRUE(QTest::qWaitFor([&] { return !ticks.empty(); }));
    timer->invalidate();
    EXPECT_EQ(ticks, std::vector<double>{2005});
}

// A tick even a millisecond early would be followed by another one at the right time.
TEST(DesktopTimer, NeverTicksEarly)
{
    QEventLoop loop;
    bool isTime = false;
    QTimer::singleShot(1999, Qt::PreciseTimer, &loop, [&] { isTime = true; });
    const auto timer = makeTimer(2, [&] {
        EXPECT_TRUE(isTime);
        loop.quit();
    });
    timer->schedule();
    loop.exec();
    timer->invalidate();
}

/// Calls \a begin and runs an event loop inside an event handler until a timer that was scheduled before has ticked
/// three times, or for 5 s. The ticks inside that loop.
int ticksInNestedLoop(const std::function<void()> &begin)
{
    int ticks = 0;
    bool isOver = false;
    QEventLoop nested;
    const auto timer = makeTimer(0.01, [&] {
        if (nested.isRunning() && ++ticks == 3)
            nested.quit();
    });
    timer->schedule();
    QTimer::singleShot(0, &nested, [&] {
        begin();
        QTimer::singleShot(5'000, &nested, &QEventLoop::quit);
        nested.exec();
        isOver = true;
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return isOver; }, 10'000));
    timer->invalidate();
    return ticks;
}

TEST(DesktopTimer, TicksInNestedEventLoop)
{
    EXPECT_EQ(ticksInNestedLoop([] {}), 3);
}

TEST(DesktopTimer, TicksWhileModalWindowIsShown)
{
    QWindow window;
    window.setModality(Qt::ApplicationModal);
    EXPECT_EQ(ticksInNestedLoop([&] { window.show(); }), 3);
    EXPECT_EQ(QGuiApplication::modalWindow(), &window);
}

TEST(DesktopTimer, DoesNotTickInsideItsTick)
{
    int ticks = 0;
    const auto timer = makeTimer(0.01, [&] {
        const int before = ++ticks;
        QTest::qWait(50); // five intervals, in an event loop of the tick's own
        EXPECT_EQ(ticks, before);
    });
    timer->schedule();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 2; }));
    timer->invalidate();
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
