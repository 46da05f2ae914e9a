#include "ShapeLayer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace TQFoundation {
namespace {

using KeyPath = BasicAnimation::KeyPath;

// A layer with the animations of the background: fade in, stroke, and fade out.
ShapeLayer line(double now)
{
    ShapeLayer layer;
    layer.addAnimation({.keyPath = KeyPath::opacity, .fromValue = 0, .toValue = 1, .duration = 1}, now);
    layer.addAnimation({.keyPath = KeyPath::strokeEnd, .fromValue = 0, .toValue = 1, .duration = 9}, now);
    layer.addAnimation(
        {.keyPath = KeyPath::opacity, .fromValue = 1, .toValue = 0, .duration = 1, .beginTime = now + 9.2}, now);
    return layer;
}

struct Moment
{
    double time;
    double opacity;
    double strokeEnd;
};

constexpr double instant = 1e-9;

constexpr Moment timeline[] = {
    {-instant, 1, 1},
    {0, 0, 0},
    {instant, 0, 0},
    {0.5, 0.5, 0.5 / 9},
    {1 - instant, 1, 1 / 9.0},
    {1, 1, 1 / 9.0},
    {1 + instant, 1, 1 / 9.0},
    {4.5, 1, 0.5},
    {9 - instant, 1, 1},
    {9, 1, 1},
    {9 + instant, 1, 1},
    {9.1, 1, 1},
    {9.2 - instant, 1, 1},
    {9.2, 1, 1},
    {9.2 + instant, 1, 1},
    {9.7, 0.5, 1},
    {10 - instant, 0.2, 1},
    {10, 0.2, 1},
    {10.1, 0.1, 1},
    {10.2 - 2 * instant, 0, 1},
    {10.2 + instant, 1, 1},
    {20, 1, 1},
};

TEST(ShapeLayer, PresentsTimelineOfBackgroundLine)
{
    for (const double start : {0.0, 7.25, 86'400.125}) {
        const ShapeLayer layer = line(start);
        for (const auto &[time, opacity, strokeEnd] : timeline) {
            const Presentation presented = layer.presentation(start + time);
            EXPECT_NEAR(presented.opacity, opacity, 1e-8) << time << " after " << start;
            EXPECT_NEAR(presented.strokeEnd, strokeEnd, 1e-8) << time << " after " << start;
        }
    }
}

TEST(ShapeLayer, AnimationBeginsExactlyAtItsBeginTime)
{
    EXPECT_EQ(line(0).presentation(0), (Presentation{0, 0}));
    EXPECT_EQ(line(0).presentation(std::nextafter(0, -1)), (Presentation{1, 1}));
}

TEST(ShapeLayer, AnimationEndsExactlyAfterItsDuration)
{
    ShapeLayer layer;
    layer.addAnimation({.keyPath = KeyPath::opacity, .fromValue = 0, .toValue = 0.5, .duration = 2}, 1);
    EXPECT_LT(layer.presentation(std::nextafter(3, 0)).opacity, 0.5 + 1e-9);
    EXPECT_EQ(layer.presentation(3).opacity, 1) << "the model value again";
}

TEST(ShapeLayer, AnimationBeginsWhenAddedByDefault)
{
    const ShapeLayer layer = line(5);
    ASSERT_EQ(layer.animations().size(), 3U);
    EXPECT_EQ(layer.animations()[0].beginTime, 5.0);
    EXPECT_EQ(layer.animations()[1].beginTime, 5.0);
    EXPECT_EQ(layer.animations()[2].beginTime, 5 + 9.2);
}

TEST(ShapeLayer, AnimationWithoutKeyReplacesNone)
{
    ShapeLayer layer;
    layer.addAnimation({.toValue = 0.25, .duration = 1}, 0);
    layer.addAnimation({.toValue = 0.5, .duration = 1}, 0);
    EXPECT_EQ(layer.animations().size(), 2U);
}

TEST(ShapeLayer, LastAddedAnimationOfAPropertyWins)
{
    ShapeLayer layer;
    layer.addAnimation({.fromValue = 0.25, .toValue = 0.25, .duration = 4}, 0);
    layer.addAnimation({.fromValue = 0.5, .toValue = 0.5, .duration = 1}, 0);
    EXPECT_EQ(layer.presentation(0.5).opacity, 0.5);
    EXPECT_EQ(layer.presentation(2).opacity, 0.25) << "the earlier one, after the last one ended";
}

TEST(ShapeLayer, AnimationReplacesTheOneWithSameKey)
{
    ShapeLayer layer;
    layer.addAnimation({.toValue = 1, .duration = 4, .key = "fade"}, 0);
    layer.addAnimation({.toValue = 1, .duration = 4, .key = "other"}, 0);
    layer.addAnimation({.toValue = 0.5, .duration = 4, .key = "fade"}, 1);
    ASSERT_EQ(layer.animations().size(), 2U);
    EXPECT_EQ(layer.animations()[0].key, "other");
    EXPECT_EQ(layer.animations()[1].beginTime, 1.0);
}

TEST(ShapeLayer, PresentsModelWithoutAnimations)
{
    ShapeLayer layer;
    layer.model = {0.25, 0.75};
    EXPECT_EQ(layer.presentation(3), layer.model);
    EXPECT_FALSE(layer.isAnimating(3));
}

TEST(ShapeLayer, IsAnimatingUntilTheLastEnd)
{
    const ShapeLayer layer = line(0);
    for (const double time : {-1.0, 0.0, 0.5, 8.999, 9.0, 9.1, 9.2, 10.19})
        EXPECT_TRUE(layer.isAnimating(time)) << time;
    for (const double time : {10.2, 10.3, 1e9})
        EXPECT_FALSE(layer.isAnimating(time)) << time;
}

// A frame that is drawn when isAnimating() is false stays valid.
TEST(ShapeLayer, PresentsModelOnceNothingAnimates)
{
    std::mt19937_64 engine(4);
    std::uniform_real_distribution<double> starts(0, 1e7);
    std::uniform_real_distribution<double> durations(1e-3, 10);
    std::uniform_real_distribution<double> shares(0, 1);
    for (int round = 0; round < 100'000; ++round) {
        const double start = starts(engine);
        const double duration = durations(engine);
        ShapeLayer layer;
        layer.addAnimation({.toValue = 0.5, .duration = duration}, start);
        // Just before, at and just after the end, where rounding matters.
        const double end = start + duration;
        const double now = round % 3 == 0 ? end : std::nextafter(end, round % 3 == 1 ? 0.0 : 1e9);
        if (layer.isAnimating(now)) {
            ASSERT_LE(layer.presentation(now).opacity, 0.5);
        } else {
            ASSERT_EQ(layer.presentation(now), layer.model);
            ASSERT_EQ(layer.presentation(now + shares(engine)), layer.model);
        }
    }
}

TEST(ShapeLayer, IsAWholeOpaqueLineOfOnePoint)
{
    const ShapeLayer layer;
    EXPECT_EQ(layer.lineWidth, 1);
    EXPECT_EQ(layer.presentation(0), (Presentation{.opacity = 1, .strokeEnd = 1}));
    EXPECT_FALSE(layer.isAnimating(0));
}

TEST(ShapeLayer, CopiesAreIndependentValues)
{
    const ShapeLayer layer = line(1);
    ShapeLayer copy = layer;
    EXPECT_EQ(copy, layer);
    copy.addAnimation({.duration = 1}, 2);
    EXPECT_NE(copy, layer);
}

} // namespace
} // namespace TQFoundation
