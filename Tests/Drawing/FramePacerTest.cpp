#include "FramePacer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace TQFoundation {
namespace {

/// A display in simulated time, and a window that draws a line on it.
struct Display
{
    double refreshRate = 60; ///< Hertz.
    double reportedRate = 60; ///< The rate that the pacer gets.
    bool blocks = true; ///< Whether a swap waits for the next refresh.
    double hostRate = 0; ///< Frames a second in which the host changes something; 0 for never.
    double renderTime = 0.0005; ///< Seconds for each frame.
};

struct Result
{
    double framesPerSecond = 0;
    double longestHold = 0; ///< Seconds.
    int missedRefreshes = 0; ///< Of a blocking display: refreshes without a frame.
};

/// Ten seconds of drawing after one second of warming up.
Result draw(const Display &display, bool layerAnimates = true)
{
    FramePacer pacer;
    pacer.setRefreshRate(display.reportedRate);
    Result result;
    constexpr double start = 1;
    constexpr double end = 11;
    double now = 0;
    double hostNext = display.hostRate > 0 ? 0 : 1e9;
    double refresh = -1;
    int frames = 0;
    bool asks = false;
    while (now < end) {
        // Without a request of the layer, the window waits for the host or for the layer's timer.
        if (!asks && hostNext > now)
            now = std::min(hostNext, layerAnimates ? now + 1.5 * pacer.interval() : end);
        const bool isSynchronized = hostNext <= now;
        const bool isRequested = layerAnimates && (asks || !isSynchronized);
        if (!asks && !isSynchronized)
            pacer.resume(now);
        if (isSynchronized)
            hostNext = std::max(hostNext + 1 / display.hostRate, now);
        now += display.renderTime;
        if (display.blocks) {
            const double next = std::floor(now * display.refreshRate + 1 + 1e-9);
            if (refresh >= 0 && now > start)
                result.missedRefreshes += static_cast<int>(next - refresh) - 1;
            refresh = next;
            now = next / display.refreshRate;
        }
        frames += now > start && now <= end;
        asks = layerAnimates && !pacer.yieldsToHost(now);
        const double held = pacer.holdBack({now, isRequested, isSynchronized});
        if (asks) {
            now += held;
            if (now > start)
                result.longestHold = std::max(result.longestHold, held);
        }
    }
    result.framesPerSecond = frames / (end - start);
    return result;
}

TEST(FramePacer, NeverHoldsBackADisplayThatBlocks)
{
    for (const double rate : {60.0, 90.0, 120.0, 144.0}) {
        for (const double renderTime : {0.0005, 0.004, 0.9 / rate}) {
            const Result result = draw({.refreshRate = rate, .reportedRate = rate, .renderTime = renderTime});
            EXPECT_NEAR(result.framesPerSecond, rate, 0.2) << rate;
            EXPECT_EQ(result.longestHold, 0) << rate;
            EXPECT_EQ(result.missedRefreshes, 0) << rate;
        }
    }
}

TEST(FramePacer, DrawsAtTheReportedRateWithoutVsync)
{
    for (const double rate : {60.0, 90.0, 120.0, 144.0}) {
        for (const double renderTime : {0.0001, 0.002, 0.004}) {
            const Result result = draw({.reportedRate = rate, .blocks = false, .renderTime = renderTime});
            EXPECT_NEAR(result.framesPerSecond, rate, 1) << rate << ", " << renderTime;
        }
    }
}

TEST(FramePacer, SlowsNoHostThatDrawsWithoutVsync)
{
    for (const double hostRate : {30.0, 60.0, 120.0, 2000.0}) {
        const Result result = draw({.blocks = false, .hostRate = hostRate, .renderTime = 0.0004});
        EXPECT_EQ(result.longestHold, 0) << hostRate;
        EXPECT_GE(result.framesPerSecond, hostRate * 0.95) << hostRate;
        EXPECT_LE(result.framesPerSecond, std::max(hostRate * 1.05, 75.0)) << hostRate;
    }
}

TEST(FramePacer, SlowsNoHostOfAMisreportedDisplay)
{
    for (const double rate : {90.0, 120.0, 144.0}) {
        const Result result = draw({.refreshRate = rate, .hostRate = rate});
        EXPECT_EQ(result.longestHold, 0) << rate;
        EXPECT_NEAR(result.framesPerSecond, rate, 0.5) << rate;
        EXPECT_EQ(result.missedRefreshes, 0) << rate;
    }
}

TEST(FramePacer, DrawsNoSlowerThanAMisreportedRate)
{
    for (const double rate : {120.0, 144.0}) {
        const Result result = draw({.refreshRate = rate});
        EXPECT_GE(result.framesPerSecond, 45) << rate;
        EXPECT_LE(result.framesPerSecond, rate) << rate;
    }
    // A display slower than it reports blocks every frame.
    const Result slow = draw({.refreshRate = 60, .reportedRate = 120});
    EXPECT_EQ(slow.longestHold, 0);
    EXPECT_NEAR(slow.framesPerSecond, 60, 0.2);
}

TEST(FramePacer, SlowsNothingForALayerThatNeedsNoFrame)
{
    const Result result = draw({.blocks = false, .hostRate = 2000, .renderTime = 0.0004}, false);
    EXPECT_EQ(result.longestHold, 0);
    EXPECT_GE(result.framesPerSecond, 1900);
}

TEST(FramePacer, ToleratesThreeEarlyFrames)
{
    FramePacer pacer;
    double now = 100;
    EXPECT_EQ(pacer.holdBack({now, false, true}), 0);
    for (int frame = 0; frame < 3; ++frame)
        EXPECT_EQ(pacer.holdBack({now += 0.001, true, false}), 0);
    EXPECT_NEAR(pacer.holdBack({now += 0.001, true, false}), 1.0 / 60 - 0.001, 1e-9);
    // The time held back does not make the next frame late.
    now += 1.0 / 60 - 0.001;
    EXPECT_NEAR(pacer.holdBack({now += 0.001, true, false}), 1.0 / 60 - 0.001, 1e-9);
    now += 1.0 / 60 - 0.001;
    EXPECT_EQ(pacer.holdBack({now += 0.013, true, false}), 0) << "more than three quarters of the interval";
}

TEST(FramePacer, ASingleChangeOfTheHostIsNoAnimation)
{
    FramePacer pacer;
    double now = 100;
    for (int frame = 0; frame < 5; ++frame)
        pacer.holdBack({now += 0.001, true, frame == 4});
    EXPECT_FALSE(pacer.yieldsToHost(now));
    EXPECT_GT(pacer.holdBack({now += 0.001, true, false}), 0);
    pacer.holdBack({now += 0.1, true, true});
    for (int frame = 0; frame < 4; ++frame)
        EXPECT_EQ(pacer.holdBack({now += 0.001, true, false}), 0);
    EXPECT_TRUE(pacer.yieldsToHost(now));
    EXPECT_FALSE(pacer.yieldsToHost(now + 0.26));
}

TEST(FramePacer, ClampsTheRefreshRate)
{
    FramePacer pacer;
    for (const auto &[rate, interval] : {std::pair{0.0, 1.0}, {-60.0, 1.0}, {1e9, 0.001}, {50.0, 0.02}}) {
        pacer.setRefreshRate(rate);
        EXPECT_EQ(pacer.interval(), interval) << rate;
    }
}

} // namespace
} // namespace TQFoundation
