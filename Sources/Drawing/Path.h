#pragma once

#include <vector>

namespace TQFoundation {

/// A place on the screen, in points.
struct Point
{
    double x = 0;
    double y = 0;

    friend constexpr bool operator==(const Point &, const Point &) = default;
};

/// A cubic Bézier segment that starts where the one before it ends.
struct CubicCurve
{
    Point control1;
    Point control2;
    Point end;

    friend constexpr bool operator==(const CubicCurve &, const CubicCurve &) = default;
};

/// A line of successive curves. A closed path has a straight last segment back to its start, of length 0 if the last
/// curve ends there, and a join at its start.
struct Path
{
    Point start;
    std::vector<CubicCurve> curves;
    bool isClosed = false;

    friend bool operator==(const Path &, const Path &) = default;
};

} // namespace TQFoundation
