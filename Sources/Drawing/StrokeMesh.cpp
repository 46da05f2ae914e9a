#include "StrokeMesh.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <iterator>
#include <span>

namespace TQFoundation {
namespace {

constexpr double overlap = 0.02; // points by which neighbours reach into each other, so that no sample falls between
constexpr double tileSize = 8; // points
constexpr double largestSquare = 2;
constexpr double smallestSquare = 0.5;
constexpr double bendLength = 4; // points of the line within which parts count as drawn at once
constexpr int farthest = 4096; // tiles from the origin
constexpr double farAway = 256; // points, beyond which distances make no difference
constexpr double never = 1e9; // points, a length that no line has

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
class Placed
{
public:
    // Pixels see what is up to \a reach points from their middle along x or y.
    Placed(const StrokePart &part, double reach)
        : m_part(part),
          m_reach(reach),
          m_edges(edges(part)),
          m_length(part.isJoin() ? HalfPlane{0, 0, part.from} : lengthAlong(part))
    {
        if (isDisc()) {
            const Point rim = part.corners[1];
            m_radius = std::hypot(rim.x - middle().x, rim.y - middle().y);
        }
        const auto [minX, maxX] = std::ranges::minmax(part.corners, {}, &Point::x);
        const auto [minY, maxY] = std::ranges::minmax(part.corners, {}, &Point::y);
        left = (isDisc() ? middle().x - m_radius : minX.x) - reach;
        right = (isDisc() ? middle().x + m_radius : maxX.x) + reach;
        top = (isDisc() ? middle().y - m_radius : minY.y) - reach;
        bottom = (isDisc() ? middle().y + m_radius : maxY.y) + reach;
    }

    // Around it and the pixels that see it.
    double left;
    double top;
    double right;
    double bottom;

    const StrokePart &part() const { return m_part; }
    bool isDisc() const { return m_part.isBend; }
    bool startsSmoothly() const { return m_part.seams[3]; }
    bool endsSmoothly() const { return m_part.seams[1]; }
    Point middle() const { return m_part.corners[0]; } // of a disc
    const HalfPlane &edge(std::size_t k) const { return m_edges[k]; }
    double length(Point place) const { return m_length.at(place); }

    // Whether pixels of the box may see it; never no where they do.
    bool touches(const Box &box) const
    {
        if (left > box.right() || right < box.left || top > box.bottom() || bottom < box.top)
            return false;
        if (isDisc())
            return true;
        const Point center{box.left + box.size / 2, box.top + box.size / 2};
        return std::ranges::all_of(m_edges, [&](const HalfPlane &edge) {
            return edge.at(center) + (std::abs(edge.x) + std::abs(edge.y)) * (box.size / 2 + m_reach) >= 0;
        });
    }

    bool contains(Point place) const
    {
        if (isDisc()) {
            const double x = place.x - middle().x;
            const double y = place.y - middle().y;
            return x * x + y * y <= m_radius * m_radius;
        }
        return std::ranges::all_of(m_edges, [&](const HalfPlane &edge) { return edge.at(place) >= 0; });
    }

    // What a vertex of a square says about it.
    std::array<float, 4> within(Point place) const
    {
        if (isDisc()) {
            return {static_cast<float>(place.x - middle().x), static_cast<float>(place.y - middle().y), 0,
                    static_cast<float>(m_radius) + StrokeMesh::disc};
        }
        std::array<float, 4> distances{};
        for (std::size_t k = 0; k < 4; ++k) {
            const double distance = m_edges[k].at(place) + (m_part.seams[k] ? overlap : 0);
            distances[k] = static_cast<float>(std::min(distance, farAway));
        }
        return distances;
    }

private:
    const StrokePart &m_part;
    double m_reach;
    std::array<HalfPlane, 4> m_edges;
    HalfPlane m_length;
    double m_radius = 0;
};

class Mesher
{
public:
    Mesher(const StrokeGeometry &stroke, double scale)
        : m_parts(stroke.parts),
          m_reach(0.5 / scale),
          m_isCut(stroke.parts.size())
    {
        m_placed.reserve(m_parts.size());
        for (const StrokePart &part : m_parts)
            m_placed.emplace_back(part, m_reach);
    }

    StrokeMesh mesh()
    {
        // About what a line takes that crosses itself a few times.
        m_mesh.band.reserve(6 * m_parts.size());
        m_mesh.bandIndices.reserve(6 * m_parts.size());
        fillTiles();
        const auto tiles = groups();
        for (const Tile &tile : tiles) {
            if (tile.isBusy) {
                for (const std::uint32_t part : partsOf(tile))
                    m_isCut[part] = true;
            }
        }
        cutNeighbors();
        for (std::uint32_t part = 0; part < m_parts.size(); ++part) {
            if (!m_parts[part].isJoin() && !m_isCut[part])
                addBand(part, band(part));
        }
        for (const Tile &tile : tiles) {
            if (tile.isBusy)
                addSquares(partsOf(tile), tile.box);
            else
                addBands(partsOf(tile), tile.box);
        }
        return std::move(m_mesh);
    }

private:
    struct Entry
    {
        std::uint32_t tile;
        std::uint32_t part;

        friend auto operator<=>(const Entry &, const Entry &) = default; // NOLINT(modernize-use-nullptr)
    };

    static Box boxOf(std::uint32_t tile)
    {
        return {(static_cast<int>(tile & 0xffff) - farthest) * tileSize,
                (static_cast<int>(tile >> 16) - farthest) * tileSize, tileSize};
    }

    struct Tile
    {
        Box box;
        std::size_t first; // of its parts in m_tileParts
        std::size_t count;
        bool isBusy = false;
    };

    std::span<const std::uint32_t> partsOf(const Tile &tile) const
    {
        return std::span(m_tileParts).subspan(tile.first, tile.count);
    }

    std::vector<Tile> groups()
    {
        std::vector<Tile> tiles;
        m_tileParts.reserve(m_entries.size());
        for (std::size_t k = 0; k < m_entries.size(); ++k) {
            if (k == 0 || m_entries[k].tile != m_entries[k - 1].tile)
                tiles.push_back({boxOf(m_entries[k].tile), k, 0});
            m_tileParts.push_back(m_entries[k].part);
            ++tiles.back().count;
        }
        for (Tile &tile : tiles)
            tile.isBusy = !isBand(partsOf(tile), tile.box);
        return tiles;
    }

    // Which parts each tile has.
    void fillTiles()
    {
        const auto tile = [](double place) {
            return static_cast<int>(std::floor(std::clamp(place / tileSize, -1.0 * farthest, farthest - 1.0)));
        };
        for (std::uint32_t part = 0; part < m_placed.size(); ++part) {
            const Placed &placed = m_placed[part];
            if (placed.isDisc() && part > 0 && m_placed[part - 1].isDisc())
                continue; // the same disc once more
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
            if (placed.part().isJoin() || (!placed.startsSmoothly() && isNear(part.corners[0], part.corners[3], box))
                || (!placed.endsSmoothly() && isNear(part.corners[1], part.corners[2], box)))
                return false;
            if (k == 0)
                continue;
            if (parts[k] != parts[k - 1] + 1 || !placed.startsSmoothly())
                return false;
            const HalfPlane &before = m_placed[parts[k - 1]].edge(0);
            turning += std::abs(before.x * placed.edge(0).y - before.y * placed.edge(0).x);
        }
        return turning < 1;
    }

    bool isNear(Point a, Point b, const Box &box) const
    {
        return std::max(a.x, b.x) + 2 * m_reach >= box.left && std::min(a.x, b.x) - 2 * m_reach <= box.right()
            && std::max(a.y, b.y) + 2 * m_reach >= box.top && std::min(a.y, b.y) - 2 * m_reach <= box.bottom();
    }

    // Where a cut divides the edge between two stretches, it has to divide both of them, or pixels along the edge could
    // be painted twice or never.
    void cutNeighbors()
    {
        const auto isShared = [&](std::uint32_t part) {
            const Polygon polygon = band(part);
            const auto tile = [](double place) { return std::floor(place / tileSize); };
            const Point a = polygon.corners()[0];
            const Point b = polygon.corners()[3];
            return m_placed[part].startsSmoothly() && (tile(a.x) != tile(b.x) || tile(a.y) != tile(b.y));
        };
        for (std::uint32_t part = 1; part < m_parts.size(); ++part) {
            if (m_isCut[part - 1] && !m_isCut[part] && isShared(part))
                m_isCut[part] = true;
        }
        for (auto part = static_cast<std::uint32_t>(m_parts.size()); part-- > 1;) {
            if (m_isCut[part] && !m_isCut[part - 1] && isShared(part))
                m_isCut[part - 1] = true;
        }
    }

    // A stretch with the pixels of both its sides.
    Polygon band(std::uint32_t part) const
    {
        const auto &corners = m_parts[part].corners;
        const auto outwards = [this](Point corner, Point opposite) {
            const Point across{corner.x - opposite.x, corner.y - opposite.y};
            const double share = m_reach / std::sqrt(across.x * across.x + across.y * across.y);
            return Point{corner.x + share * across.x, corner.y + share * across.y};
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
                                   static_cast<float>(placed.edge(0).at(corner)),
                                   static_cast<float>(placed.edge(2).at(corner)),
                                   static_cast<float>(placed.length(corner))});
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
        parts.reserve(candidates.size());
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
        if (parts.size() > StrokeMesh::mostParts)
            parts = mostImportant(parts, box);
        addSquare(parts, box);
    }

    // Which of 64 places of the box and of the pixels around it lie in a part.
    std::uint64_t placesWithin(std::uint32_t part, const Box &box) const
    {
        std::uint64_t places = 0;
        const double step = (box.size + 2 * m_reach) / 7;
        for (int k = 0; k < 64; ++k) {
            const int row = k / 8;
            const Point place{box.left - m_reach + step * (k % 8), box.top - m_reach + step * row};
            places |= std::uint64_t{m_placed[part].contains(place)} << k;
        }
        return places;
    }

    // As many parts as a square knows: one after the other that which covers most places that no other covers of those
    // that are drawn with it. What comes by at another time does not count, because it may not be drawn yet.
    std::vector<std::uint32_t> mostImportant(std::span<const std::uint32_t> parts, const Box &box) const
    {
        struct Candidate
        {
            std::uint32_t part;
            std::size_t bend;
            std::uint64_t places;
        };
        std::vector<Candidate> candidates;
        std::vector<std::uint64_t> covered(1); // by what was chosen of each bend
        for (std::size_t k = 0; k < parts.size(); ++k) {
            if (k > 0 && m_parts[parts[k]].from > m_parts[parts[k - 1]].to + bendLength)
                covered.push_back(0);
            candidates.push_back({parts[k], covered.size() - 1, placesWithin(parts[k], box)});
        }
        std::vector<std::uint32_t> chosen;
        while (chosen.size() < StrokeMesh::mostParts) {
            const auto gain = [&](const Candidate &candidate) {
                return std::popcount(candidate.places & ~covered[candidate.bend]);
            };
            const auto best = std::ranges::max_element(candidates, {}, gain);
            if (gain(*best) == 0)
                break;
            covered[best->bend] |= best->places;
            chosen.push_back(best->part);
        }
        return chosen;
    }

    void addSquare(std::span<const std::uint32_t> parts, const Box &box)
    {
        addFan(m_mesh.squareIndices, m_mesh.squares.size(), 4);
        for (const Point corner : {Point{box.left, box.top}, Point{box.right(), box.top},
                                   Point{box.right(), box.bottom()}, Point{box.left, box.bottom()}}) {
            StrokeMesh::SquareVertex vertex{static_cast<float>(corner.x), static_cast<float>(corner.y), {}, {}};
            vertex.length.fill(static_cast<float>(never));
            for (auto &within : vertex.within)
                within.fill(static_cast<float>(-farAway));
            for (std::size_t k = 0; k < std::min(parts.size(), StrokeMesh::mostParts); ++k) {
                const Placed &placed = m_placed[parts[k]];
                vertex.within[k] = placed.within(corner);
                vertex.length[k] = static_cast<float>(placed.length(corner));
            }
            m_mesh.squares.push_back(vertex);
        }
    }

    std::span<const StrokePart> m_parts;
    double m_reach; // points from the middle of a pixel to its sides
    std::vector<Placed> m_placed;
    std::vector<bool> m_isCut;
    std::vector<Entry> m_entries;
    std::vector<std::uint32_t> m_tileParts;
    StrokeMesh m_mesh;
};

} // namespace

StrokeMesh strokeMesh(const StrokeGeometry &stroke, double scale)
{
    return Mesher(stroke, scale).mesh();
}

} // namespace TQFoundation
