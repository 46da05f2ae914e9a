#include "StrokeMesh.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>

namespace TQFoundation {
namespace {

constexpr double reach = 0.5; // points that the pixels of an edge may lie beyond it
constexpr double overlap = 0.02; // points by which neighbours reach into each other, so that no sample falls between
constexpr double tileSize = 8; // points
constexpr double largestSquare = 2;
constexpr double smallestSquare = 0.25;
constexpr double bendLength = 4; // points of the line within which parts count as drawn at once
constexpr int farthest = 4096; // tiles from the origin
constexpr double never = 1e4; // a distance from nothing

struct Box
{
    double left;
    double top;
    double size;

    double right() const { return left + size; }
    double bottom() const { return top + size; }
};

// A convex polygon of few corners.
class Polygon
{
public:
    void add(Point corner)
    {
        if (m_count < m_corners.size())
            m_corners[m_count++] = corner;
    }

    std::span<const Point> corners() const { return std::span(m_corners).first(m_count); }

    // What of it is on the side of a line that runs along an axis.
    Polygon cut(double Point::*axis, double place, bool keepsGreater) const
    {
        Polygon kept;
        for (std::size_t k = 0; k < m_count; ++k) {
            const Point a = m_corners[k];
            const Point b = m_corners[(k + 1) % m_count];
            const bool hasA = keepsGreater ? a.*axis >= place : a.*axis <= place;
            const bool hasB = keepsGreater ? b.*axis >= place : b.*axis <= place;
            if (hasA)
                kept.add(a);
            if (hasA != hasB) {
                // From the same end whichever way round the edge is, so that neighbours agree.
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

    Polygon cut(const Box &box) const
    {
        return cut(&Point::x, box.left, true)
            .cut(&Point::x, box.right(), false)
            .cut(&Point::y, box.top, true)
            .cut(&Point::y, box.bottom(), false);
    }

private:
    std::array<Point, 8> m_corners;
    std::size_t m_count = 0;
};

/// A part, made ready for asking where it lies.
struct Placed
{
    std::array<HalfPlane, 4> within; ///< Its edges, each farther out by as much as a pixel may reach beyond it.
    HalfPlane length;
    double left;
    double top;
    double right;
    double bottom;
    bool isJoin;
    bool startsSmoothly;
    bool endsSmoothly;

    explicit Placed(const StrokePart &part)
        : within(edges(part)),
          length(part.isJoin() ? HalfPlane{0, 0, part.from} : lengthAlong(part)),
          isJoin(part.isJoin()),
          startsSmoothly(part.seams[3]),
          endsSmoothly(part.seams[1])
    {
        const auto [minX, maxX] = std::ranges::minmax(part.corners, {}, &Point::x);
        const auto [minY, maxY] = std::ranges::minmax(part.corners, {}, &Point::y);
        left = minX.x - reach;
        right = maxX.x + reach;
        top = minY.y - reach;
        bottom = maxY.y + reach;
    }

    // Whether pixels of the box may see it; never no where they do.
    bool touches(const Box &box) const
    {
        if (left > box.right() || right < box.left || top > box.bottom() || bottom < box.top)
            return false;
        const Point middle{box.left + box.size / 2, box.top + box.size / 2};
        return std::ranges::all_of(within, [&](const HalfPlane &edge) {
            return edge.at(middle) + (std::abs(edge.x) + std::abs(edge.y)) * (box.size / 2 + reach) >= 0;
        });
    }
};

class Mesher
{
public:
    explicit Mesher(const StrokeGeometry &stroke) : m_parts(stroke.parts), m_isCut(stroke.parts.size())
    {
        m_placed.reserve(m_parts.size());
        for (const StrokePart &part : m_parts)
            m_placed.emplace_back(part);
    }

    StrokeMesh mesh()
    {
        fillTiles();
        std::vector<std::span<const Entry>> groups;
        std::vector<bool> isBusy;
        for (auto first = m_entries.begin(); first != m_entries.end();) {
            const auto last =
                std::find_if(first, m_entries.end(), [&](const Entry &entry) { return entry.tile != first->tile; });
            groups.emplace_back(first, last);
            std::vector<std::uint32_t> parts = partsOf(groups.back());
            isBusy.push_back(!isBand(parts, boxOf(first->tile)));
            if (isBusy.back()) {
                for (const std::uint32_t part : parts)
                    m_isCut[part] = true;
            }
            first = last;
        }
        for (std::uint32_t part = 0; part < m_parts.size(); ++part) {
            if (!m_placed[part].isJoin && !m_isCut[part])
                addBand(part, band(part));
        }
        for (std::size_t k = 0; k < groups.size(); ++k) {
            const Box box = boxOf(groups[k].front().tile);
            const std::vector<std::uint32_t> parts = partsOf(groups[k]);
            if (isBusy[k])
                addSquares(parts, box);
            else
                addBands(parts, box);
        }
        return std::move(m_mesh);
    }

private:
    struct Entry
    {
        std::uint32_t tile;
        std::uint32_t part;

        friend auto operator<=>(const Entry &, const Entry &) = default;
    };

    static Box boxOf(std::uint32_t tile)
    {
        return {(static_cast<int>(tile & 0xffff) - farthest) * tileSize,
                (static_cast<int>(tile >> 16) - farthest) * tileSize, tileSize};
    }

    static std::vector<std::uint32_t> partsOf(std::span<const Entry> entries)
    {
        std::vector<std::uint32_t> parts;
        for (const Entry &entry : entries)
            parts.push_back(entry.part);
        return parts;
    }

    // Which parts each tile has.
    void fillTiles()
    {
        const auto tile = [](double place) {
            return static_cast<int>(std::floor(std::clamp(place / tileSize, -1.0 * farthest, farthest - 1.0)));
        };
        for (std::uint32_t part = 0; part < m_placed.size(); ++part) {
            const Placed &placed = m_placed[part];
            for (int y = tile(placed.top); y <= tile(placed.bottom); ++y) {
                for (int x = tile(placed.left); x <= tile(placed.right); ++x) {
                    const auto key = static_cast<std::uint32_t>((y + farthest) << 16 | (x + farthest));
                    if (placed.touches(boxOf(key)))
                        m_entries.push_back({key, part});
                }
            }
        }
        std::ranges::sort(m_entries);
    }

    // Whether the parts are one stretch of the line after the other, which neither begin or end in the box nor come
    // back to where they were.
    bool isBand(std::span<const std::uint32_t> parts, const Box &box) const
    {
        double turning = 0;
        for (std::size_t k = 0; k < parts.size(); ++k) {
            const Placed &placed = m_placed[parts[k]];
            const StrokePart &part = m_parts[parts[k]];
            if (placed.isJoin || (!placed.startsSmoothly && isNear(part.corners[0], part.corners[3], box))
                || (!placed.endsSmoothly && isNear(part.corners[1], part.corners[2], box)))
                return false;
            if (k == 0)
                continue;
            if (parts[k] != parts[k - 1] + 1 || !placed.startsSmoothly)
                return false;
            const HalfPlane &before = m_placed[parts[k - 1]].within[0];
            turning += std::acos(std::clamp(before.x * placed.within[0].x + before.y * placed.within[0].y, -1.0, 1.0));
        }
        return turning < std::numbers::pi / 2;
    }

    static bool isNear(Point a, Point b, const Box &box)
    {
        return std::max(a.x, b.x) + 2 * reach >= box.left && std::min(a.x, b.x) - 2 * reach <= box.right()
            && std::max(a.y, b.y) + 2 * reach >= box.top && std::min(a.y, b.y) - 2 * reach <= box.bottom();
    }

    // A stretch with the pixels of both its sides.
    Polygon band(std::uint32_t part) const
    {
        const auto &corners = m_parts[part].corners;
        const auto outwards = [](Point corner, Point opposite) {
            const double width = std::hypot(corner.x - opposite.x, corner.y - opposite.y);
            return Point{corner.x + (corner.x - opposite.x) * reach / width,
                         corner.y + (corner.y - opposite.y) * reach / width};
        };
        Polygon polygon;
        polygon.add(outwards(corners[0], corners[3]));
        polygon.add(outwards(corners[1], corners[2]));
        polygon.add(outwards(corners[2], corners[1]));
        polygon.add(outwards(corners[3], corners[0]));
        return polygon;
    }

    void addBands(std::span<const std::uint32_t> parts, const Box &box)
    {
        for (const std::uint32_t part : parts) {
            if (m_isCut[part])
                addBand(part, band(part).cut(box));
        }
    }

    void addBand(std::uint32_t part, const Polygon &polygon)
    {
        const auto corners = polygon.corners();
        if (corners.size() < 3)
            return;
        const Placed &placed = m_placed[part];
        addFan(m_mesh.bandIndices, m_mesh.band.size(), corners.size());
        for (const Point corner : corners) {
            m_mesh.band.push_back({static_cast<float>(corner.x), static_cast<float>(corner.y),
                                   static_cast<float>(placed.within[0].at(corner)),
                                   static_cast<float>(placed.within[2].at(corner)),
                                   static_cast<float>(placed.length.at(corner))});
        }
    }

    static void addFan(std::vector<std::uint32_t> &indices, std::size_t first, std::size_t corners)
    {
        for (std::size_t k = 2; k < corners; ++k) {
            for (const std::size_t index : {first, first + k - 1, first + k})
                indices.push_back(static_cast<std::uint32_t>(index));
        }
    }

    void addSquares(std::span<const std::uint32_t> candidates, const Box &box)
    {
        std::vector<std::uint32_t> parts;
        std::ranges::copy_if(candidates, std::back_inserter(parts),
                             [&](std::uint32_t part) { return m_placed[part].touches(box); });
        if (parts.empty())
            return;
        if (isBand(parts, box)) {
            addBands(parts, box);
            return;
        }
        if (box.size > largestSquare || (parts.size() > StrokeMesh::mostParts && box.size > smallestSquare)) {
            const double half = box.size / 2;
            for (const double top : {box.top, box.top + half}) {
                for (const double left : {box.left, box.left + half})
                    addSquares(parts, {left, top, half});
            }
            return;
        }
        addSquare(mostImportant(std::move(parts), box), box);
    }

    // At most as many parts as a square knows, in no order: of each time that the line comes by, the one that is
    // deepest in the box, and then the deepest of the others.
    std::vector<std::uint32_t> mostImportant(std::vector<std::uint32_t> parts, const Box &box) const
    {
        if (parts.size() <= StrokeMesh::mostParts)
            return parts;
        const Point middle{box.left + box.size / 2, box.top + box.size / 2};
        const auto depth = [&](std::uint32_t part) {
            double least = never;
            for (const HalfPlane &edge : m_placed[part].within)
                least = std::min(least, edge.at(middle));
            return least;
        };
        auto chosen = parts.begin();
        for (auto first = parts.begin(); first != parts.end();) {
            const auto last = std::find_if(first + 1, parts.end(), [&](std::uint32_t part) {
                return m_parts[part].from > m_parts[*first].to + bendLength;
            });
            std::iter_swap(chosen++, std::ranges::max_element(first, last, {}, depth));
            first = last;
        }
        std::ranges::sort(chosen, parts.end(), std::ranges::greater(), depth);
        parts.resize(StrokeMesh::mostParts);
        return parts;
    }

    void addSquare(std::span<const std::uint32_t> parts, const Box &box)
    {
        addFan(m_mesh.squareIndices, m_mesh.squares.size(), 4);
        for (const Point corner : {Point{box.left, box.top}, Point{box.right(), box.top},
                                   Point{box.right(), box.bottom()}, Point{box.left, box.bottom()}}) {
            StrokeMesh::SquareVertex vertex{static_cast<float>(corner.x), static_cast<float>(corner.y), {}, {}};
            for (auto &within : vertex.within)
                within.fill(static_cast<float>(-never));
            for (std::size_t k = 0; k < std::min(parts.size(), StrokeMesh::mostParts); ++k) {
                const Placed &placed = m_placed[parts[k]];
                for (std::size_t edge = 0; edge < 4; ++edge) {
                    const double wider = m_parts[parts[k]].seams[edge] ? overlap : 0;
                    vertex.within[k][edge] =
                        static_cast<float>(std::min(placed.within[edge].at(corner) + wider, never));
                }
                vertex.length[k] = static_cast<float>(placed.length.at(corner));
            }
            m_mesh.squares.push_back(vertex);
        }
    }

    std::span<const StrokePart> m_parts;
    std::vector<Placed> m_placed;
    std::vector<bool> m_isCut;
    std::vector<Entry> m_entries;
    StrokeMesh m_mesh;
};

} // namespace

StrokeMesh strokeMesh(const StrokeGeometry &stroke)
{
    return Mesher(stroke).mesh();
}

} // namespace TQFoundation
