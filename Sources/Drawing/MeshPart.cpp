#include "MeshPart.h"

#include "PointMath.h"
#include "StrokeConstants.h"

#include <algorithm>

namespace TQFoundation {

MeshPart::MeshPart(const StrokePart &part, double reach)
    : m_part(part),
      m_reach(reach),
      m_edges(edges(part)),
      m_length(part.isJoin() ? HalfPlane{0, 0, part.from} : lengthAlong(part)),
      m_bounds(part.bounds())
{
    if (isDisc()) {
        m_radius = norm(part.corners[1] - middle());
        m_bounds = Bounds{middle().x, middle().y, middle().x, middle().y}.grownBy(m_radius);
    }
    m_bounds = m_bounds.grownBy(reach);
}

bool MeshPart::touches(const Bounds &box) const
{
    if (!m_bounds.intersects(box))
        return false;
    const Bounds seen = box.grownBy(m_reach);
    return isDisc() || std::ranges::all_of(m_edges, [&](const HalfPlane &edge) { return reaches(edge, seen); });
}

bool MeshPart::contains(Point place) const
{
    if (isDisc()) {
        const Point offset = place - middle();
        return dot(offset, offset) <= m_radius * m_radius;
    }
    return std::ranges::all_of(m_edges, [&](const HalfPlane &edge) { return edge.at(place) >= 0; });
}

std::array<float, 4> MeshPart::distances(Point place) const
{
    constexpr double farAway = 256; // points, beyond which distances make no difference
    static_assert(farAway < StrokeConstants::discMarker);
    if (isDisc()) {
        const Point offset = place - middle();
        return {static_cast<float>(offset.x), static_cast<float>(offset.y), 0,
                static_cast<float>(m_radius + StrokeConstants::discMarker)};
    }
    const double seam = 2 * m_reach * seamOverlap;
    std::array<float, 4> distances{};
    for (std::size_t k = 0; k < 4; ++k)
        distances[k] = static_cast<float>(std::min(m_edges[k].at(place) + (m_part.seams[k] ? seam : 0), farAway));
    return distances;
}

} // namespace TQFoundation
