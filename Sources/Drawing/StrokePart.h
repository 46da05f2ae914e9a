#pragma once

#include "Path.h"

#include <array>

namespace TQFoundation {

/// The signed distance from a straight line: \a x times a place's x plus \a y times its y plus \a offset.
struct HalfPlane
{
    double x = 0;
    double y = 0;
    double offset = 0;

    /// Positive on the inner side.
    double at(Point place) const { return x * place.x + y * place.y + offset; }
};

/// A rectangle whose sides are parallel to the axes.
struct Bounds
{
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    /// Whether they overlap or touch.
    bool intersects(const Bounds &other) const
    {
        return left <= other.right && other.left <= right && top <= other.bottom && other.top <= bottom;
    }

    /// With \a margin on each side.
    Bounds grownBy(double margin) const { return {left - margin, top - margin, right + margin, bottom + margin}; }
};

/// A convex piece of a stroked line: a segment of the line itself, or the filling of the outer side of a corner.
///
/// Of a segment, the edge from corner 0 to corner 1 is one side of the line, that from 1 to 2 its far end, that from 2
/// to 3 the other side and that from 3 to 0 its near end. A join starts at the corner of the line and has the edges
/// that it shares with the two segments first and last; one with three corners repeats its last.
struct StrokePart
{
    std::array<Point, 4> corners;
    /// Whether the line continues beyond the edge from corner k to the next, so that no outline is there.
    std::array<bool, 4> seams{};
    double from = 0; ///< Arc length at which the part begins, in points.
    double to = 0; ///< Arc length at which it ends; equal to `from` for a join.
    bool isBend = false; ///< Of a join: whether it lies within a curve. It then stands for the disc around its corner.

    /// Whether it fills a corner.
    bool isJoin() const { return from == to; }
    /// The middle of the near end.
    Point start() const { return {(corners[0].x + corners[3].x) / 2, (corners[0].y + corners[3].y) / 2}; }
    /// The middle of the far end.
    Point end() const { return {(corners[1].x + corners[2].x) / 2, (corners[1].y + corners[2].y) / 2}; }

    /// The smallest bounds of all corners.
    Bounds bounds() const;
};

/// The inner sides of the edges of \a part, as distances in the unit of its corners. An edge without length has
/// everything inside.
std::array<HalfPlane, 4> edges(const StrokePart &part);

/// The arc length at a place of \a part, which is not a join.
HalfPlane lengthAlong(const StrokePart &part);

/// Whether some place of \a box may lie inside \a edge; never false if one does.
bool reaches(const HalfPlane &edge, const Bounds &box);

} // namespace TQFoundation
