#pragma once

#include "Path.h"

#include <array>
#include <vector>

namespace TQFoundation {

/// A convex piece of a stroked line: a stretch of the line itself, or what fills the outer side of a corner.
///
/// Of a stretch, the edge from corner 0 to corner 1 is one side of the line, that from 1 to 2 its far end, that from 2
/// to 3 the other side and that from 3 to 0 its near end. A join starts at the corner of the line and has the edges
/// that it shares with the two stretches first and last; one with three corners repeats its last.
struct StrokePart
{
    std::array<Point, 4> corners;
    /// Whether the line goes on beyond the edge from corner k to the next, so that no outline is there.
    std::array<bool, 4> seams{};
    double from = 0; ///< The length of the line up to where the part begins, in points.
    double to = 0; ///< The length up to where it ends. A join has none: it belongs to the place of its corner.
    bool isBend = false; ///< Of a join, whether it lies within a curve, which covers all around its corner as well.

    bool isJoin() const { return from == to; }
    Point start() const { return {(corners[0].x + corners[3].x) / 2, (corners[0].y + corners[3].y) / 2}; }
    Point end() const { return {(corners[1].x + corners[2].x) / 2, (corners[1].y + corners[2].y) / 2}; }
};

/// What a stroke covers: all of its parts, in the order in which the line runs. Parts overlap where the line crosses
/// itself and within sharp bends.
struct StrokeGeometry
{
    std::vector<StrokePart> parts;
    double length = 0; ///< Of the whole line, in points.
};

/// How far a part may lie from the curve that it stands for, in points. A third of it shows at three pixels per point.
inline constexpr double strokeTolerance = 0.02;

/// The stroke of \a path with a line of \a lineWidth points, with mitred joins up to ten times the width and butt ends.
///
/// Within a curve, bends that are narrower than the line are filled as by a round pen. A closed path has a join where
/// its ends meet, and it belongs to the very end of the line. Nothing, with length 0, for a path without length, for a
/// width that is not more than 0, and where a number is not finite or beyond ten million.
StrokeGeometry strokeGeometry(const Path &path, double lineWidth);

/// The signed distance from a straight line: \a x times a place's x plus \a y times its y plus \a offset.
struct HalfPlane
{
    double x = 0;
    double y = 0;
    double offset = 0;

    double at(Point place) const { return x * place.x + y * place.y + offset; }
};

/// How far a place lies within each edge of \a part; less than 0 is outside. An edge without length has everything
/// within.
std::array<HalfPlane, 4> edges(const StrokePart &part);

/// The length of the line at a place of \a part, which is no join.
HalfPlane lengthAlong(const StrokePart &part);

} // namespace TQFoundation
