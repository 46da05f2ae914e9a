#include "StrokePart.h"

#include "PointMath.h"

#include <algorithm>

namespace TQFoundation {

Bounds StrokePart::bounds() const
{
    const auto [left, right] = std::ranges::minmax(corners, {}, &Point::x);
    const auto [top, bottom] = std::ranges::minmax(corners, {}, &Point::y);
    return {left.x, top.y, right.x, bottom.y};
}

std::array<HalfPlane, 4> edges(const StrokePart &part)
{
    constexpr double everywhere = 1e7;
    const auto &corners = part.corners;
    const double area = cross(corners[2] - corners[0], corners[3] - corners[1]);
    std::array<HalfPlane, 4> planes;
    for (std::size_t k = 0; k < 4; ++k) {
        const Point side = corners[(k + 1) % 4] - corners[k];
        const double size = (area < 0 ? -1 : 1) * norm(side);
        if (size == 0) {
            planes[k] = {0, 0, everywhere};
            continue;
        }
        const Point inwards = (1 / size) * perpendicular(side);
        planes[k] = {inwards.x, inwards.y, -dot(inwards, corners[k])};
    }
    return planes;
}

HalfPlane lengthAlong(const StrokePart &part)
{
    const Point start = part.start();
    const Point run = part.end() - start;
    const Point slope = ((part.to - part.from) / dot(run, run)) * run;
    return {slope.x, slope.y, part.from - dot(slope, start)};
}

bool reaches(const HalfPlane &edge, const Bounds &box)
{
    const double halfWidth = (box.right - box.left) / 2;
    const double halfHeight = (box.bottom - box.top) / 2;
    return edge.at({box.left + halfWidth, box.top + halfHeight}) + std::abs(edge.x) * halfWidth
        + std::abs(edge.y) * halfHeight
        >= 0;
}

} // namespace TQFoundation
