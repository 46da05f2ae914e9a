#pragma once

#include "StrokePart.h"

#include <array>
#include <span>

namespace TQFoundation {

/// A convex polygon of at most eight corners, which is what four cuts leave of a quadrilateral. A plain value.
class ConvexPolygon
{
public:
    /// Appends a corner; the ninth and later ones are dropped.
    void add(Point corner)
    {
        if (m_count < m_corners.size())
            m_corners[m_count++] = corner;
    }

    /// In the order in which they were added.
    std::span<const Point> corners() const { return std::span(m_corners).first(m_count); }

    /// The part of it inside \a box; without corners if they do not overlap.
    ConvexPolygon cut(const Bounds &box) const
    {
        return cut(&Point::x, box.left, true)
            .cut(&Point::x, box.right, false)
            .cut(&Point::y, box.top, true)
            .cut(&Point::y, box.bottom, false);
    }

private:
    // Sutherland and Hodgman, "Reentrant polygon clipping", 1974.
    ConvexPolygon cut(double Point::*axis, double place, bool keepsGreater) const
    {
        ConvexPolygon kept;
        for (std::size_t k = 0; k < m_count; ++k) {
            const Point a = m_corners[k];
            const Point b = m_corners[(k + 1) % m_count];
            const bool hasA = keepsGreater ? a.*axis >= place : a.*axis <= place;
            const bool hasB = keepsGreater ? b.*axis >= place : b.*axis <= place;
            if (hasA)
                kept.add(a);
            if (hasA != hasB) {
                // In the same direction for both neighbours of an edge, so that they get the same point.
                const bool isOrdered = a.*axis < b.*axis;
                const Point from = isOrdered ? a : b;
                const Point to = isOrdered ? b : a;
                const double share = (place - from.*axis) / (to.*axis - from.*axis);
                Point at{from.x + share * (to.x - from.x), from.y + share * (to.y - from.y)};
                at.*axis = place;
                kept.add(at);
            }
        }
        return kept;
    }

    std::array<Point, 8> m_corners;
    std::size_t m_count = 0;
};

} // namespace TQFoundation
