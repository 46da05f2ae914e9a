#pragma once

#include "Path.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace TQFoundation {

// The line that wanders over the screen: four points on a cycle around its centre, joined by curves. All of it counts
// in whole points with 64-bit integers. A size that is not finite, a half of a side that is 0 when it is divided by,
// and any overflow stop the process.
//
// In the names of the sources x and y grow to the right and upwards, so that negative y is the lower half of the
// screen.

/// The screen that the line wanders over, in points.
struct DriftScreen
{
    double width = 0;
    double height = 0;

    friend constexpr bool operator==(const DriftScreen &, const DriftScreen &) = default;
};

/// All integers from `lowest` to `highest`, both included.
struct IntegerRange
{
    std::int64_t lowest = 0;
    std::int64_t highest = 0;

    friend constexpr bool operator==(const IntegerRange &, const IntegerRange &) = default;
};

/// What each of the long-lived sources draws from: the halves of the screen, which share the middle.
struct DriftRanges
{
    IntegerRange positiveX; ///< The right half.
    IntegerRange negativeX; ///< The left half.
    IntegerRange positiveY; ///< The upper half, where y is small.
    IntegerRange negativeY; ///< The lower half.

    friend constexpr bool operator==(const DriftRanges &, const DriftRanges &) = default;
};

/// The ranges for \a screen. Halves and sides are truncated towards zero, each for itself.
DriftRanges driftRanges(const DriftScreen &screen);

/// Draws the next integer of a source.
using IntegerSource = std::function<std::int64_t()>;

/// Where the random integers come from. Each function is called once for each draw.
struct RandomSource
{
    std::function<std::uint32_t()> chooser; ///< 0 to 3, all equally likely: where the cycle begins.
    IntegerSource positiveX; ///< Over the range of that name, as are the next three.
    IntegerSource negativeX;
    IntegerSource positiveY;
    IntegerSource negativeY;

    /// Makes a source over an inclusive range, for a single draw.
    std::function<IntegerSource(std::int64_t lowest, std::int64_t highest)> fresh;
};

/// Four points that a line passes through, clockwise as seen: top right, bottom right, bottom left, top left, starting
/// with the one that the chooser names, and drawn in that order. Those on the right lie on the diagonals from the
/// centre to the corners, those on the left on the lines that join the middles of the sides. (0, 0) four times, and
/// nothing drawn, where the chooser leaves its range.
std::vector<Point> getTransitPoints(const DriftScreen &screen, const RandomSource &random);

/// A control point for the curve that ends at \a transitPoints[\a index], from a triangle or trapezium that belongs to
/// that point's quarter of the screen; below left it may lie off the screen. One draw from a long-lived source and one
/// from a fresh one. For a point that is exactly on the centre row or column it is (0, 0), and nothing is drawn. An
/// index outside the points stops the process.
Point getControlPoint(std::int64_t index, const std::vector<Point> &transitPoints, const DriftScreen &screen,
                      const RandomSource &random);

/// The closed line through the four \a transitPoints and back to the first. The control points are drawn in the order
/// of the curves, two for each, both for the point where the curve ends. Fewer than four points stop the process.
Path driftPath(const std::vector<Point> &transitPoints, const DriftScreen &screen, const RandomSource &random);

} // namespace TQFoundation
