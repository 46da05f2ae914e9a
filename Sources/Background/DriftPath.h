#pragma once

#include "Path.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace TQFoundation {

// Geometry of one line of the animated background: a closed curve through four random points around the centre of the
// screen. Coordinates are whole points, computed in checked signed 64-bit arithmetic. Overflow, division by zero and a
// screen size that is not finite stop the process. In the names of the random sources, y points up. Any thread.

/// Size of the screen that the line is laid out for, in points.
struct DriftScreen
{
    double width = 0;
    double height = 0;

    friend constexpr bool operator==(const DriftScreen &, const DriftScreen &) = default;
};

/// The integers from `lowest` to `highest`, both included.
struct IntegerRange
{
    std::int64_t lowest = 0;
    std::int64_t highest = 0;

    friend constexpr bool operator==(const IntegerRange &, const IntegerRange &) = default;
};

/// The ranges of the long-lived random sources: halves of the screen, which share the middle.
struct DriftRanges
{
    IntegerRange positiveX; ///< Right half.
    IntegerRange negativeX; ///< Left half.
    IntegerRange positiveY; ///< Upper half, where the screen's y is small.
    IntegerRange negativeY; ///< Lower half.

    friend constexpr bool operator==(const DriftRanges &, const DriftRanges &) = default;
};

/// The ranges for \a screen. Each half and each side is truncated towards zero by itself.
DriftRanges driftRanges(const DriftScreen &screen);

/// Returns the next random integer.
using IntegerSource = std::function<std::int64_t()>;

/// The random numbers that a line is made of. Each function is called once per draw.
struct RandomSource
{
    std::function<std::uint32_t()> chooser; ///< Uniform from 0 to 3: the slot that the cycle of points starts with.
    IntegerSource positiveX; ///< Draws from the range of the same name, as do the next three.
    IntegerSource negativeX;
    IntegerSource positiveY;
    IntegerSource negativeY;

    /// Makes a source over an inclusive range. It is used for one draw and dropped.
    std::function<IntegerSource(std::int64_t lowest, std::int64_t highest)> fresh;
};

/// Returns the four points that a line passes through, clockwise on the screen: top right, bottom right, bottom left,
/// top left, rotated so that the slot named by the chooser comes first. They are drawn in that order.
///
/// Points on the right lie on the diagonals from the centre to the corners. Points on the left lie on the lines that
/// join the midpoints of the screen's edges. If the chooser returns more than 3, all four points are (0, 0) and nothing
/// else is drawn.
std::vector<Point> getTransitPoints(const DriftScreen &screen, const RandomSource &random);

/// Returns a control point for the curve that ends at \a transitPoints[\a index], from a triangle or trapezium that
/// belongs to the quarter of the screen in which that point lies. In the lower left it may lie off the screen.
///
/// Draws once from a long-lived source and once from a fresh one. If the end point lies exactly on the centre row or
/// column, or a coordinate is NaN, the result is (0, 0) and nothing is drawn. An index outside the points stops the
/// process.
Point getControlPoint(std::int64_t index, const std::vector<Point> &transitPoints, const DriftScreen &screen,
                      const RandomSource &random);

/// Returns the closed line through the four \a transitPoints. The control points are drawn in the order of the curves,
/// two per curve, both for the point at which the curve ends. Fewer than four points stop the process.
Path driftPath(const std::vector<Point> &transitPoints, const DriftScreen &screen, const RandomSource &random);

} // namespace TQFoundation
