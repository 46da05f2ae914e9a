#include "TickGrid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace TQFoundation {
namespace {

TEST(TickGrid, FirstTickIsOneIntervalAfterStart)
{
    EXPECT_DOUBLE_EQ(nextTick(5, 10, 5), 15);
    EXPECT_DOUBLE_EQ(nextTick(5, 10, 14.999), 15);
}

TEST(TickGrid, NextTickFollowsCurrentOne)
{
    EXPECT_DOUBLE_EQ(nextTick(5, 10, 15), 25);
}

TEST(TickGrid, DropsMissedTicks)
{
    EXPECT_DOUBLE_EQ(nextTick(5, 10, 47), 55);
}

TEST(TickGrid, FirstTickIsNextBeforeStart)
{
    EXPECT_DOUBLE_EQ(nextTick(5, 10, -100), 15);
}

TEST(TickGrid, FindsTickAheadIfDivisionRoundsUp)
{
    const double now = 14.4;
    const double next = nextTick(4.8, 1.6, now); // 4.8 + 6 * 1.6 is the next larger number
    EXPECT_GT(next, now);
    EXPECT_NEAR(next, now, 1e-9);
}

TEST(TickGrid, NeverFindsTickTwice)
{
    for (const double interval : {0.1, 0.2, 0.3, 0.7, 1.1}) {
        double now = 0;
        for (int tick = 1; tick <= 10'000; ++tick) {
            now = nextTick(0, interval, now);
            ASSERT_NEAR(now, tick * interval, interval / 2);
        }
    }
}

TEST(TickGrid, SkipsPassedTickIfDivisionRoundsDown)
{
    const double start = 423610.96957169066;
    const double now = 423611.26957169065; // as close to the first tick as doubles can be
    EXPECT_GT(nextTick(start, 0.3, now), now);
    EXPECT_NEAR(nextTick(start, 0.3, now), start + 0.6, 1e-6);
}

TEST(TickGrid, IsMultipleOfIntervalAndAtMostOneAhead)
{
    std::mt19937_64 engine(1);
    std::uniform_real_distribution<double> starts(0, 1e6);
    std::uniform_real_distribution<double> intervals(1e-3, 100);
    for (int round = 0; round < 100'000; ++round) {
        const double start = starts(engine);
        const double interval = intervals(engine);
        const double now = start + intervals(engine) * 50;
        const double next = nextTick(start, interval, now);
        const double count = (next - start) / interval;
        ASSERT_GT(next, now);
        ASSERT_LE(next, now + interval * (1 + 1e-6));
        ASSERT_NEAR(count, std::round(count), 1e-6);
    }
}

} // namespace
} // namespace TQFoundation
