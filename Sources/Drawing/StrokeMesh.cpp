#include "StrokeMesh.h"

#include "ConvexPolygon.h"
#include "MeshPart.h"
#include "PointMath.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <iterator>
#include <span>
#include <utility>

namespace TQFoundation {
namespace {

constexpr double tileSize = 8; // points
constexpr double largestSquare = 2;
constexpr double smallestSquare = 0.5;
constexpr double bendLength = 4; // points of arc length within which parts count as drawn at once
constexpr int farthest = 4096; // tiles from the origin
constexpr float outside = -256; // points, a distance to every place of the mesh
constexpr float never = 1e9F; // points, more than any arc length

using PartIndices = std::span<const std::uint32_t>;

class Mesher
{
public:
    Mesher(const StrokeGeometry &stroke, double scale) : m_reach(0.5 / scale), m_isClipped(stroke.parts.size())
    {
        m_parts.reserve(stroke.parts.size());
        for (const StrokePart &part : stroke.parts)
            m_parts.emplace_back(part, m_reach);
    }

    StrokeMesh mesh()
    {
        // About the size for a line that crosses itself a few times.
        m_mesh.band.reserve(6 * m_parts.size());
        m_mesh.bandIndices.reserve(6 * m_parts.size());
        const std::vector<Tile> tiles = makeTiles();
        for (const Tile &tile : tiles) {
            if (tile.needsSquares) {
                for (const std::uint32_t part : partsOf(tile))
                    m_isClipped[part] = true;
            }
        }
        clipNeighbors();
        for (std::uint32_t part = 0; part < m_parts.size(); ++part) {
            if (!m_parts[part].part().isJoin() && !m_isClipped[part])
                addBand(part, band(part));
        }
        for (const Tile &tile : tiles) {
            if (tile.needsSquares)
                addSquares(partsOf(tile), tile.box);
            else
                addClippedBands(partsOf(tile), tile.box);
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

    struct Tile
    {
        Bounds box;
        std::size_t first; // index of its parts in m_tileParts
        std::size_t count;
        bool needsSquares = false;
    };

    static Bounds square(double left, double top, double size) { return {left, top, left + size, top + size}; }

    static Bounds boxOf(std::uint32_t tile)
    {
        return square((static_cast<int>(tile & 0xffff) - farthest) * tileSize,
                      (static_cast<int>(tile >> 16) - farthest) * tileSize, tileSize);
    }

    PartIndices partsOf(const Tile &tile) const { return PartIndices(m_tileParts).subspan(tile.first, tile.count); }

    // The tiles that some part touches, each with those parts in order.
    std::vector<Tile> makeTiles()
    {
        std::vector<Tile> tiles;
        const std::vector<Entry> entries = tileEntries();
        m_tileParts.reserve(entries.size());
        for (std::size_t k = 0; k < entries.size(); ++k) {
            if (k == 0 || entries[k].tile != entries[k - 1].tile)
                tiles.push_back({boxOf(entries[k].tile), k, 0});
            m_tileParts.push_back(entries[k].part);
            ++tiles.back().count;
        }
        for (Tile &tile : tiles)
            tile.needsSquares = !isBand(partsOf(tile), tile.box);
        return tiles;
    }

    std::vector<Entry> tileEntries() const
    {
        std::vector<Entry> entries;
        const auto tile = [](double place) {
            return static_cast<int>(std::floor(std::clamp(place / tileSize, -1.0 * farthest, farthest - 1.0)));
        };
        for (std::uint32_t index = 0; index < m_parts.size(); ++index) {
            const MeshPart &part = m_parts[index];
            // Successive discs have the same corner.
            if (part.isDisc() && index > 0 && m_parts[index - 1].isDisc())
                continue;
            for (int y = tile(part.bounds().top); y <= tile(part.bounds().bottom); ++y) {
                for (int x = tile(part.bounds().left); x <= tile(part.bounds().right); ++x) {
                    const auto key = static_cast<std::uint32_t>((y + farthest) << 16 | (x + farthest));
                    if (part.touches(boxOf(key)))
                        entries.push_back({key, index});
                }
            }
        }
        std::ranges::sort(entries);
        return entries;
    }

    // Whether the parts are successive segments of the line that neither begin nor end in the box nor return to it.
    bool isBand(PartIndices indices, const Bounds &box) const
    {
        double turning = 0;
        for (std::size_t k = 0; k < indices.size(); ++k) {
            const MeshPart &part = m_parts[indices[k]];
            const auto &corners = part.part().corners;
            if (part.part().isJoin() || (!part.startsSmoothly() && isNear(corners[0], corners[3], box))
                || (!part.endsSmoothly() && isNear(corners[1], corners[2], box)))
                return false;
            if (k == 0)
                continue;
            if (indices[k] != indices[k - 1] + 1 || !part.startsSmoothly())
                return false;
            const HalfPlane &before = m_parts[indices[k - 1]].edge(0);
            turning += std::abs(before.x * part.edge(0).y - before.y * part.edge(0).x);
        }
        return turning < 1;
    }

    bool isNear(Point a, Point b, const Bounds &box) const
    {
        const Bounds edge{std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
        return edge.intersects(box.grownBy(2 * m_reach));
    }

    // A tile's border that divides the edge between two segments must divide both: otherwise pixels along the edge
    // could be painted twice or never.
    void clipNeighbors()
    {
        const auto isShared = [&](std::uint32_t part) {
            const ConvexPolygon polygon = band(part);
            const auto tile = [](double place) { return std::floor(place / tileSize); };
            const Point a = polygon.corners()[0];
            const Point b = polygon.corners()[3];
            return m_parts[part].startsSmoothly() && (tile(a.x) != tile(b.x) || tile(a.y) != tile(b.y));
        };
        for (std::uint32_t part = 1; part < m_parts.size(); ++part) {
            if (m_isClipped[part - 1] && !m_isClipped[part] && isShared(part))
                m_isClipped[part] = true;
        }
        for (auto part = static_cast<std::uint32_t>(m_parts.size()); part-- > 1;) {
            if (m_isClipped[part] && !m_isClipped[part - 1] && isShared(part))
                m_isClipped[part - 1] = true;
        }
    }

    // A segment, wider by half a pixel on both sides.
    ConvexPolygon band(std::uint32_t part) const
    {
        const auto &corners = m_parts[part].part().corners;
        const auto outwards = [this](Point corner, Point opposite) {
            const Point across = corner - opposite;
            return corner + (m_reach / norm(across)) * across;
        };
        ConvexPolygon polygon;
        polygon.add(outwards(corners[0], corners[3]));
        polygon.add(outwards(corners[1], corners[2]));
        polygon.add(outwards(corners[2], corners[1]));
        polygon.add(outwards(corners[3], corners[0]));
        return polygon;
    }

    void addClippedBands(PartIndices parts, const Bounds &box)
    {
        for (const std::uint32_t part : parts) {
            if (m_isClipped[part])
                addBand(part, band(part).cut(box));
        }
    }

    void addBand(std::uint32_t index, const ConvexPolygon &polygon)
    {
        const auto corners = polygon.corners();
        if (corners.size() < 3)
            return;
        const MeshPart &part = m_parts[index];
        addFan(m_mesh.bandIndices, m_mesh.band.size(), corners.size());
        for (const Point corner : corners) {
            m_mesh.band.push_back({static_cast<float>(corner.x), static_cast<float>(corner.y),
                                   static_cast<float>(part.edge(0).at(corner)),
                                   static_cast<float>(part.edge(2).at(corner)),
                                   static_cast<float>(part.length(corner))});
        }
    }

    static void addFan(std::vector<std::uint32_t> &indices, std::size_t first, std::size_t corners)
    {
        for (std::size_t k = 2; k < corners; ++k) {
            for (const std::size_t index : {first, first + k - 1, first + k})
                indices.push_back(static_cast<std::uint32_t>(index));
        }
    }

    void addSquares(PartIndices candidates, const Bounds &box)
    {
        std::vector<std::uint32_t> parts;
        parts.reserve(candidates.size());
        std::ranges::copy_if(candidates, std::back_inserter(parts),
                             [&](std::uint32_t part) { return m_parts[part].touches(box); });
        if (parts.empty())
            return;
        if (isBand(parts, box)) {
            addClippedBands(parts, box);
            return;
        }
        const double size = box.right - box.left;
        if (size > largestSquare || (parts.size() > StrokeMesh::mostParts && size > smallestSquare)) {
            for (const double top : {box.top, box.top + size / 2}) {
                for (const double left : {box.left, box.left + size / 2})
                    addSquares(parts, square(left, top, size / 2));
            }
            return;
        }
        addSquare(parts.size() > StrokeMesh::mostParts ? mostImportant(parts, box) : parts, box);
    }

    // A bit for each of 64 places in the box and the pixels around it that lie in the part.
    std::uint64_t placesWithin(std::uint32_t part, const Bounds &box) const
    {
        std::uint64_t places = 0;
        const Bounds seen = box.grownBy(m_reach);
        const double step = (seen.right - seen.left) / 7;
        for (int k = 0; k < 64; ++k) {
            const int row = k / 8;
            const Point place{seen.left + step * (k % 8), seen.top + step * row};
            places |= std::uint64_t{m_parts[part].contains(place)} << k;
        }
        return places;
    }

    // Greedy choice of as many parts as a square holds: at each step the part that covers most places not covered yet
    // by parts drawn at the same time. Parts drawn at another time do not count, because they may not be there yet.
    std::vector<std::uint32_t> mostImportant(PartIndices parts, const Bounds &box) const
    {
        struct Candidate
        {
            std::uint32_t part;
            std::size_t bend;
            std::uint64_t places;
        };
        std::vector<Candidate> candidates;
        std::vector<std::uint64_t> covered(1); // by the chosen parts of each bend
        for (std::size_t k = 0; k < parts.size(); ++k) {
            if (k > 0 && m_parts[parts[k]].part().from > m_parts[parts[k - 1]].part().to + bendLength)
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

    void addSquare(PartIndices parts, const Bounds &box)
    {
        addFan(m_mesh.squareIndices, m_mesh.squares.size(), 4);
        for (const Point corner : {Point{box.left, box.top}, Point{box.right, box.top}, Point{box.right, box.bottom},
                                   Point{box.left, box.bottom}}) {
            StrokeMesh::SquareVertex vertex{static_cast<float>(corner.x), static_cast<float>(corner.y), {}, {}};
            vertex.length.fill(never);
            for (auto &distances : vertex.within)
                distances.fill(outside);
            for (std::size_t k = 0; k < std::min(parts.size(), StrokeMesh::mostParts); ++k) {
                vertex.within[k] = m_parts[parts[k]].distances(corner);
                vertex.length[k] = static_cast<float>(m_parts[parts[k]].length(corner));
            }
            m_mesh.squares.push_back(vertex);
        }
    }

    double m_reach; // points from the middle of a pixel to its sides
    std::vector<MeshPart> m_parts;
    std::vector<bool> m_isClipped; // whether a part's band is cut into tiles
    std::vector<std::uint32_t> m_tileParts;
    StrokeMesh m_mesh;
};

} // namespace

StrokeMesh strokeMesh(const StrokeGeometry &stroke, double scale)
{
    return Mesher(stroke, scale).mesh();
}

} // namespace TQFoundation
