#include "StrokeGeometry.h"

#include "StrokeReference.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

namespace TQFoundation {
namespace {

Path line(std::vector<Point> places, bool isClosed = false)
{
    Path path{places.front(), {}, isClosed};
    for (std::size_t k = 1; k < places.size(); ++k)
        path.curves.push_back({places[k - 1], places[k], places[k]});
    return path;
}

long joins(const StrokeGeometry &stroke)
{
    return std::ranges::count_if(stroke.parts, &StrokePart::isJoin);
}

long bends(const StrokeGeometry &stroke)
{
    return std::ranges::count_if(stroke.parts, &StrokePart::isBend);
}

bool covers(const StrokeGeometry &stroke, Point place)
{
    return std::ranges::any_of(stroke.parts, [&](const StrokePart &part) {
        return std::ranges::all_of(edges(part), [&](const HalfPlane &edge) { return edge.at(place) >= 0; });
    });
}

TEST(StrokeGeometry, StraightLineIsOnePart)
{
    const StrokeGeometry stroke = strokeGeometry(line({{10, 20}, {40, 20}}), 2);
    ASSERT_EQ(stroke.parts.size(), 1U);
    EXPECT_DOUBLE_EQ(stroke.length, 30);
    EXPECT_EQ(stroke.parts[0].from, 0);
    EXPECT_EQ(stroke.parts[0].to, 30);
    EXPECT_TRUE(covers(stroke, {10.01, 19.01}));
    EXPECT_TRUE(covers(stroke, {39.99, 20.99}));
    EXPECT_FALSE(covers(stroke, {9.99, 20})) << "butt ends";
    EXPECT_FALSE(covers(stroke, {20, 21.01}));
}

TEST(StrokeGeometry, RightAngleGetsMitreJoin)
{
    const StrokeGeometry stroke = strokeGeometry(line({{0, 0}, {20, 0}, {20, 20}}), 2);
    EXPECT_EQ(joins(stroke), 1);
    EXPECT_EQ(bends(stroke), 0) << "a corner, not a bend";
    EXPECT_TRUE(covers(stroke, {20.99, -0.99}));
    EXPECT_FALSE(covers(stroke, {21.01, -0.99}));
}

TEST(StrokeGeometry, HairpinIsRoundAllAround)
{
    const StrokeGeometry stroke = strokeGeometry({{0, 0}, {{{100, 0}, {100, 0.4}, {0, 0.4}}}, false}, 20);
    EXPECT_EQ(bends(stroke), joins(stroke));
    constexpr Point tip{75, 0.2};
    for (int degrees = -88; degrees <= 88; degrees += 2) {
        const double angle = degrees * std::numbers::pi / 180;
        const auto rim = [&](double radius) {
            return Point{tip.x + radius * std::cos(angle), tip.y + radius * std::sin(angle)};
        };
        EXPECT_TRUE(covers(stroke, rim(9.8))) << degrees;
        EXPECT_FALSE(covers(stroke, rim(10.2))) << degrees;
    }
}

TEST(StrokeGeometry, MitreLimitIsTenWidths)
{
    // A mitre is as long as the width divided by the sine of half the angle between the lines.
    const double limit = 2 * std::asin(0.1);
    for (const double angle : {limit * 1.01, limit * 0.99}) {
        const Point end{20 - 20 * std::cos(angle), 20 * std::sin(angle)};
        const StrokeGeometry stroke = strokeGeometry(line({{0, 0}, {20, 0}, end}), 2);
        const Point tip{20 + 9.5 * std::cos(angle / 2), -9.5 * std::sin(angle / 2)};
        EXPECT_EQ(covers(stroke, tip), angle > limit);
        EXPECT_TRUE(covers(stroke, {20 + 0.09 * std::cos(angle / 2), -0.09 * std::sin(angle / 2)})) << "bevel join";
        const auto join = std::ranges::find_if(stroke.parts, &StrokePart::isJoin);
        EXPECT_EQ(join->corners[0].x, 20) << "starts at the corner";
        EXPECT_EQ(join->corners[0].y, 0) << "starts at the corner";
    }
}

TEST(StrokeGeometry, ClosedPathHasJoinAtItsStart)
{
    const std::vector<Point> square{{0, 0}, {20, 0}, {20, 20}, {0, 20}, {0, 0}};
    EXPECT_EQ(joins(strokeGeometry(line(square), 2)), 3);
    const StrokeGeometry closed = strokeGeometry(line(square, true), 2);
    EXPECT_EQ(joins(closed), 4);
    EXPECT_TRUE(closed.parts.back().isJoin());
    EXPECT_EQ(closed.parts.back().from, closed.length) << "the join is the last part";
    EXPECT_TRUE(covers(closed, {-0.99, -0.99}));
    EXPECT_EQ(joins(strokeGeometry(line({{0, 0}, {20, 0}}, true), 2)), 2) << "there and back";
}

TEST(StrokeGeometry, ClosingAddsMissingSegment)
{
    const StrokeGeometry stroke = strokeGeometry(line({{0, 0}, {30, 0}, {30, 40}}, true), 2);
    EXPECT_DOUBLE_EQ(stroke.length, 30 + 40 + 50);
    EXPECT_TRUE(covers(stroke, {15, 20}));
}

TEST(StrokeGeometry, PartsAreContiguousAlongThePath)
{
    std::mt19937_64 random(1);
    for (int round = 0; round < 100; ++round) {
        const StrokeGeometry stroke = strokeGeometry(Testing::randomPath(random), 2);
        double place = 0;
        for (const StrokePart &part : stroke.parts) {
            EXPECT_EQ(part.from, place);
            EXPECT_GE(part.to, part.from);
            place = part.to;
        }
        EXPECT_EQ(place, stroke.length);
    }
}

TEST(StrokeGeometry, LengthIncreasesAlongEachPart)
{
    std::mt19937_64 random(3);
    for (const StrokePart &part : strokeGeometry(Testing::randomPath(random), 2).parts) {
        if (part.isJoin())
            continue;
        const HalfPlane along = lengthAlong(part);
        const auto middle = [](Point a, Point b) { return Point{(a.x + b.x) / 2, (a.y + b.y) / 2}; };
        const Point start = middle(part.corners[0], part.corners[3]);
        const Point end = middle(part.corners[1], part.corners[2]);
        EXPECT_NEAR(along.at(start), part.from, 1e-9);
        EXPECT_NEAR(along.at(end), part.to, 1e-9);
        EXPECT_NEAR(along.at({start.x - (end.y - start.y), start.y + (end.x - start.x)}), part.from, 1e-9)
            << "constant across the stroke";
    }
}

TEST(StrokeGeometry, LengthIsArcLengthOfTheCurve)
{
    // Approximates a quarter of a circle.
    constexpr double bend = 0.5522847498;
    const StrokeGeometry stroke =
        strokeGeometry({{100, 0}, {CubicCurve{{100, 100 * bend}, {100 * bend, 100}, {0, 100}}}}, 2);
    EXPECT_NEAR(stroke.length, 50 * std::numbers::pi, 0.05);
    // Also at the end of each part.
    for (const StrokePart &part : stroke.parts) {
        const Point end = part.end();
        EXPECT_NEAR(part.to, 100 * std::atan2(end.y, end.x), 0.05);
    }
}

TEST(StrokeGeometry, CuspGetsRoundJoin)
{
    // The curve runs straight to (50, 37.5) and back.
    const StrokeGeometry stroke = strokeGeometry({{50, 0}, {CubicCurve{{50, 50}, {50, 50}, {50, 0}}}}, 2);
    EXPECT_NEAR(stroke.length, 75, 0.01);
    EXPECT_TRUE(covers(stroke, {50, 38.4}));
    EXPECT_FALSE(covers(stroke, {50, 38.6}));
    EXPECT_FALSE(covers(stroke, {50.9, 38.3}));
}

TEST(StrokeGeometry, PathWithoutLengthHasNoParts)
{
    const Point place{10, 10};
    for (const Path &path :
         {Path{}, Path{place, {}, true}, Path{place, {{place, place, place}, {place, place, place}}, true}}) {
        const StrokeGeometry stroke = strokeGeometry(path, 2);
        EXPECT_TRUE(stroke.parts.empty());
        EXPECT_EQ(stroke.length, 0);
    }
}

TEST(StrokeGeometry, BoundsHoldAllOfItsLineAndNothingElse)
{
    const auto sides = [](const Path &path) {
        const Bounds all = strokeGeometry(path, 2).bounds();
        return std::array{all.left, all.top, all.right, all.bottom};
    };
    EXPECT_EQ(sides(line({{10, 20}, {40, 20}})), (std::array{10.0, 19.0, 40.0, 21.0}));
    EXPECT_EQ(sides(line({{50, 90}, {50, 60}, {80, 60}})), (std::array{49.0, 59.0, 80.0, 90.0})) << "a line of its own";
    EXPECT_EQ(sides(Path{}), (std::array{0.0, 0.0, 0.0, 0.0}));
}

TEST(StrokeGeometry, ZeroLengthCurveIsIgnored)
{
    Path path = line({{0, 0}, {20, 0}, {20, 20}}, true);
    const StrokeGeometry plain = strokeGeometry(path, 2);
    path.curves.insert(path.curves.begin() + 1, CubicCurve{{20, 0}, {20, 0}, {20, 0}});
    const StrokeGeometry withIt = strokeGeometry(path, 2);
    ASSERT_EQ(withIt.parts.size(), plain.parts.size());
    for (std::size_t k = 0; k < plain.parts.size(); ++k)
        EXPECT_EQ(withIt.parts[k].corners, plain.parts[k].corners);
}

TEST(StrokeGeometry, RoundingErrorIsNoDirection)
{
    // A control point at the start of its curve, but for the rounding of its coordinates.
    const Path path{{0, 0}, {{{10, 0}, {20, 0}, {30, 0}}, {{30, 1e-12}, {50, 0}, {60, 0}}}, false};
    EXPECT_EQ(joins(strokeGeometry(path, 2)), 0);
}

TEST(StrokeGeometry, NonFiniteOrHugeNumbersGiveNoParts)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double bad : {nan, infinity, -infinity, 1e8, -1e300}) {
        for (int place = 0; place < 8; ++place) {
            std::array<double, 8> numbers{1, 2, 3, 40, 50, 60, 70, 8};
            numbers[static_cast<std::size_t>(place)] = bad;
            const auto &[a, b, c, d, e, f, g, h] = numbers;
            EXPECT_TRUE(strokeGeometry({{a, b}, {CubicCurve{{c, d}, {e, f}, {g, h}}}, true}, 2).parts.empty());
        }
        EXPECT_TRUE(strokeGeometry(line({{0, 0}, {20, 0}}), bad).parts.empty());
    }
    EXPECT_TRUE(strokeGeometry(line({{0, 0}, {20, 0}}), 0).parts.empty());
    EXPECT_TRUE(strokeGeometry(line({{0, 0}, {20, 0}}), -1).parts.empty());
}

// Curves of all magnitudes, many of them degenerate.
TEST(StrokeGeometry, AnyPathGivesFiniteAndBoundedParts)
{
    std::mt19937_64 random(2);
    const std::array sizes{0.0, 1e-300, 1e-9, 1e-3, 1.0, 390.0, 1e6};
    for (int round = 0; round < 3000; ++round) {
        const auto number = [&] {
            return sizes[random() % sizes.size()] * std::uniform_int_distribution<int>(-2, 2)(random);
        };
        const auto place = [&] { return Point{number(), number()}; };
        Path path{place(), {}, random() % 2 == 0};
        for (auto count = random() % 5; count > 0; --count)
            path.curves.push_back({place(), place(), place()});
        const StrokeGeometry stroke = strokeGeometry(path, 2);
        EXPECT_TRUE(std::isfinite(stroke.length));
        EXPECT_LE(stroke.parts.size(), 200'000U);
        for (const StrokePart &part : stroke.parts) {
            for (const HalfPlane &edge : edges(part))
                ASSERT_TRUE(std::isfinite(edge.x) && std::isfinite(edge.y) && std::isfinite(edge.offset));
            // The middle of a part is inside its edges.
            const Point middle{(part.corners[0].x + part.corners[1].x + part.corners[2].x) / 3,
                               (part.corners[0].y + part.corners[1].y + part.corners[2].y) / 3};
            for (const HalfPlane &edge : edges(part))
                ASSERT_GE(edge.at(middle), -1e-6 - 1e-9 * stroke.length);
        }
    }
}

} // namespace
} // namespace TQFoundation
