#include "RecordingPlatform.h"

#include <TQFoundation/DesktopPlatform.h>

#include <QtCore/qthread.h>
#include <QtTest/qtest.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace TQFoundation {
namespace {

/// Lets real time pass.
struct Desktop
{
    DesktopPlatform platform;

    static void run(double seconds) { QTest::qWait(static_cast<int>(seconds * 1000)); }
    static void stall(double seconds) { QThread::usleep(static_cast<unsigned long>(seconds * 1e6)); }
};

/// Drives time by hand.
struct Recording
{
    Testing::RecordingPlatform platform;

    void run(double seconds) { platform.advance(seconds); }
    void stall(double seconds) { platform.stall(seconds); }
};

/// The contract of RepeatingTimer, which every platform keeps.
template <typename Driver>
class RepeatingTimerContract : public testing::Test
{
protected:
    void make(double interval)
    {
        start = driver.platform.mediaTime();
        timer = driver.platform.makeTimer(interval, [this] { ticks.push_back(elapsed()); });
    }

    void TearDown() override { timer->invalidate(); }

    double elapsed() const { return driver.platform.mediaTime() - start; }

    Driver driver;
    double start = 0;
    std::shared_ptr<RepeatingTimer> timer;
    std::vector<double> ticks; ///< Seconds from the making to each tick.
};

using Drivers = testing::Types<Desktop, Recording>;
TYPED_TEST_SUITE(RepeatingTimerContract, Drivers);

/// The smallest delay of a tick behind the multiple of \a interval before it. Real ticks may be late, but not all.
double smallestDelay(const std::vector<double> &ticks, double interval)
{
    double delay = interval;
    for (const double tick : ticks)
        delay = std::min(delay, tick - std::floor(tick / interval + 1e-9) * interval);
    return delay;
}

TYPED_TEST(RepeatingTimerContract, CountsGridFromMakingNotFromScheduling)
{
    this->make(0.2);
    this->driver.run(0.25);
    this->timer->schedule();
    EXPECT_TRUE(this->ticks.empty()) << "the tick before scheduling is dropped";
    this->driver.run(1);
    ASSERT_FALSE(this->ticks.empty());
    EXPECT_GE(this->ticks.front(), 0.4 - 1e-9);
    EXPECT_LT(smallestDelay(this->ticks, 0.2), 0.04) << "a grid from scheduling would be 0.05 s later";
}

TYPED_TEST(RepeatingTimerContract, RunsMissedTicksOnceAndKeepsGrid)
{
    this->make(0.2);
    this->timer->schedule();
    this->driver.stall(0.65);
    this->driver.run(1);
    ASSERT_GE(this->ticks.size(), 2);
    EXPECT_GE(this->ticks[0], 0.65 - 1e-9);
    EXPECT_GE(this->ticks[1], 0.8 - 1e-9);
    EXPECT_LT(smallestDelay({this->ticks.begin() + 1, this->ticks.end()}, 0.2), 0.1);
}

TYPED_TEST(RepeatingTimerContract, FiresWithoutShiftingGrid)
{
    this->make(0.2);
    this->timer->schedule();
    this->driver.run(0.1);
    this->timer->fire();
    EXPECT_EQ(this->ticks.size(), 1);
    this->driver.run(1);
    EXPECT_GE(this->ticks.at(1), 0.2 - 1e-9);
    EXPECT_LT(smallestDelay({this->ticks.begin() + 1, this->ticks.end()}, 0.2), 0.08);
}

TYPED_TEST(RepeatingTimerContract, StaysSilentAfterInvalidation)
{
    this->make(0.05);
    this->timer->schedule();
    this->timer->invalidate();
    this->timer->fire();
    this->timer->schedule();
    this->driver.run(0.2);
    EXPECT_TRUE(this->ticks.empty());
}

// The same numbers as above, exactly.
TEST(RecordingPlatform, TicksOnGridOfItsMaking)
{
    Recording recording;
    std::vector<double> ticks;
    const auto timer = recording.platform.makeTimer(0.2, [&] { ticks.push_back(recording.platform.mediaTime()); });
    recording.run(0.25);
    timer->schedule();
    recording.run(0.4);
    ASSERT_EQ(ticks.size(), 2);
    EXPECT_DOUBLE_EQ(ticks[0], 0.4);
    EXPECT_DOUBLE_EQ(ticks[1], 0.6);
}

// Divisions of such moments by the interval may be rounded to the multiple before.
TEST(RecordingPlatform, TicksOnceAtEachMultiple)
{
    for (const double interval : {0.1, 0.2, 0.3, 0.7, 1.1}) {
        Recording recording;
        int ticks = 0;
        const auto timer = recording.platform.makeTimer(interval, [&] { ++ticks; });
        timer->schedule();
        recording.run(interval * 1000.5);
        EXPECT_EQ(ticks, 1000) << interval;
    }
}

} // namespace
} // namespace TQFoundation
