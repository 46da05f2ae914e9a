#pragma once

#include "StrokePart.h"

#include <array>

namespace TQFoundation {

/// A part of a stroke with the half planes that decide which pixels see it. Refers to the part, which outlives it.
///
/// A pixel sees what is up to `reach` points from its middle along x or y. A bend counts as the disc around its corner.
class MeshPart
{
public:
    MeshPart(const StrokePart &part, double reach);

    /// The part itself.
    const StrokePart &part() const { return m_part; }
    /// Bounds of the part and of the pixels that see it.
    const Bounds &bounds() const { return m_bounds; }
    /// Whether it is a disc, one of many that share a corner.
    bool isDisc() const { return m_part.isBend; }
    /// Whether the line continues without a corner before the part.
    bool startsSmoothly() const { return m_part.seams[3]; }
    /// Whether the line continues without a corner after the part.
    bool endsSmoothly() const { return m_part.seams[1]; }
    /// The inner side of the edge from corner \a k to the next.
    const HalfPlane &edge(std::size_t k) const { return m_edges[k]; }
    /// The arc length at \a place, in points.
    double length(Point place) const { return m_length.at(place); }

    /// Whether pixels of \a box may see it; never false if one does.
    bool touches(const Bounds &box) const;
    /// Whether \a place lies inside.
    bool contains(Point place) const;
    /// The four numbers that a mesh vertex at \a place holds for it: distances to the edges, or a disc.
    std::array<float, 4> distances(Point place) const;

private:
    Point middle() const { return m_part.corners[0]; } // of a disc

    const StrokePart &m_part;
    double m_reach;
    std::array<HalfPlane, 4> m_edges;
    HalfPlane m_length;
    double m_radius = 0;
    Bounds m_bounds;
};

} // namespace TQFoundation
