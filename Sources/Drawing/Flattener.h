#pragma once

#include "Path.h"

#include <array>
#include <optional>
#include <vector>

namespace TQFoundation {

/// Flattening tolerance: largest distance between curve and polyline, in points. Invisible at up to three pixels per
/// point.
inline constexpr double strokeTolerance = 0.02;

/// Turns cubic curves into a polyline that keeps the normals of the curves. One thread at a time.
class Flattener
{
public:
    /// A segment of the polyline. All normals have length 1 and point to the left of the direction of travel.
    struct Segment
    {
        Point start;
        Point end;
        Point startNormal; ///< Along it the stroke is cut off at the start.
        Point endNormal; ///< And at the end.
        double length = 0; ///< Arc length of the curve that it stands for.
        bool startsCurve = false; ///< Whether it is the first one of a curve of the path.
        Point departure; ///< The normal of the curve itself at the start.
        Point arrival; ///< And at the end.
    };

    /// The polyline so far, in the order of travel. Pieces too short to have a direction are left out; their length
    /// counts with the next segment.
    std::vector<Segment> segments;

    /// Appends the cubic curve with these control points.
    void add(const std::array<Point, 4> &curve);

    /// Appends a straight line.
    void addLine(Point start, Point end);

private:
    using Cubic = std::array<Point, 4>;
    struct Shape;

    void beginCurve();
    void add(const Cubic &curve, int depth);
    void append(const Cubic &curve, const Shape &shape);
    void skip(const Shape &shape);

    double m_skipped = 0; // arc length left out since the last segment
    bool m_startsCurve = true;
    std::optional<Point> m_departure; // of what was left out at the start of a curve
};

} // namespace TQFoundation
