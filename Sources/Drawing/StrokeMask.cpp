#include "StrokeMask.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <optional>
#include <span>

namespace TQFoundation {
namespace {

constexpr int farthest = 16384; // pixels from the origin

/// The samples' offsets from the middle of a pixel.
constexpr auto sampleOffsets = [] {
    struct Offset
    {
        float x;
        float y;
    };
    std::array<Offset, StrokeMask::samples> offsets{};
    for (int k = 0; k < StrokeMask::samples; ++k) {
        const auto share = [](int step) { return (static_cast<float>(step) + 0.5F) / StrokeMask::samples - 0.5F; };
        offsets[static_cast<std::size_t>(k)] = {share(k),
                                                share(k * StrokeConstants::latticeStep % StrokeMask::samples)};
    }
    return offsets;
}();

/// The samples of a pixel that lie inside an edge, by the distance of the pixel's middle.
class EdgeTable
{
public:
    void setEdge(const HalfPlane &edge)
    {
        m_x = static_cast<float>(edge.x);
        m_y = static_cast<float>(edge.y);
        m_within.fill(0);
        for (std::size_t k = 0; k < sampleOffsets.size(); ++k) {
            const float inner = m_x * sampleOffsets[k].x + m_y * sampleOffsets[k].y;
            const auto step = static_cast<int>((reach - inner) * steps + 1);
            m_within[static_cast<std::size_t>(std::clamp(step, 1, size - 1))] |= std::uint64_t{1} << k;
        }
        for (std::size_t step = 1; step < m_within.size(); ++step)
            m_within[step] |= m_within[step - 1];
    }

    float x() const { return m_x; }
    float y() const { return m_y; }

    std::uint64_t within(float distance) const
    {
        const float step = std::clamp((distance + reach) * steps + 0.5F, 0.0F, static_cast<float>(size - 1));
        return m_within[static_cast<std::size_t>(step)];
    }

private:
    static constexpr float reach = 0.7072F; // pixels from the middle of a pixel to its corner
    static constexpr float steps = 64; // of a distance of one pixel
    static constexpr int size = 93;

    float m_x = 0;
    float m_y = 0;
    std::array<std::uint64_t, size> m_within;
};

int tileOf(double pixel, double tilePixels)
{
    return static_cast<int>(std::floor(pixel / tilePixels));
}

} // namespace

/// The area that one part adds: the inside of all its edges, between two arc lengths.
class StrokeMask::Shape
{
public:
    Shape(const StrokePart &part, double from, double to)
    {
        const auto planes = edges(part);
        for (std::size_t k = 0; k < planes.size(); ++k)
            addEdge(planes[k], part.seams[k] ? seamOverlap : 0);
        if (!part.isJoin()) {
            const HalfPlane along = lengthAlong(part);
            const double slope = std::sqrt(along.x * along.x + along.y * along.y);
            if (to < part.to)
                addEdge({-along.x / slope, -along.y / slope, (to - along.offset) / slope}, 0);
            if (from > part.from)
                addEdge({along.x / slope, along.y / slope, (along.offset - from) / slope}, seamOverlap);
        }
        const Bounds all = part.bounds().grownBy(0.5);
        m_bounds = {std::max(all.left, -1.0 * farthest), std::max(all.top, -1.0 * farthest),
                    std::min(all.right, 1.0 * farthest), std::min(all.bottom, 1.0 * farthest)};
    }

    const Bounds &bounds() const { return m_bounds; }
    bool isEmpty() const { return m_bounds.left >= m_bounds.right || m_bounds.top >= m_bounds.bottom; }

    bool mayTouch(int left, int top, int width, int height) const
    {
        const Bounds box{1.0 * left, 1.0 * top, 1.0 * left + width, 1.0 * top + height};
        return std::ranges::all_of(std::span(m_edges).first(m_count),
                                   [&](const Edge &edge) { return reaches(edge.plane, box); });
    }

    // Calls cover(index, samples) for each pixel that it touches in the block at left and top.
    template <typename Cover>
    void fill(int left, int top, Cover cover) const
    {
        const int firstRow = std::max(0, static_cast<int>(std::floor(m_bounds.top)) - top);
        const int lastRow = std::min(side - 1, static_cast<int>(std::floor(m_bounds.bottom)) - top);
        std::array<float, mostEdges> distances;
        const Point first{left + 0.5, top + firstRow + 0.5};
        for (std::size_t k = 0; k < m_count; ++k)
            distances[k] = static_cast<float>(m_edges[k].plane.at(first));
        for (int row = firstRow; row <= lastRow; ++row) {
            float firstColumn = 0;
            float lastColumn = side - 1;
            for (std::size_t k = 0; k < m_count; ++k) {
                const EdgeTable &table = m_edges[k].table;
                const float margin = distances[k] + (std::abs(table.x()) + std::abs(table.y())) / 2;
                if (table.x() > 1e-6F)
                    firstColumn = std::max(firstColumn, -margin / table.x());
                else if (table.x() < -1e-6F)
                    lastColumn = std::min(lastColumn, -margin / table.x());
                else if (margin < 0)
                    lastColumn = -1;
            }
            for (int column = static_cast<int>(std::ceil(firstColumn)); static_cast<float>(column) <= lastColumn;
                 ++column) {
                std::uint64_t covered = ~std::uint64_t{0};
                for (std::size_t k = 0; k < m_count; ++k) {
                    const EdgeTable &table = m_edges[k].table;
                    covered &= table.within(distances[k] + table.x() * static_cast<float>(column));
                }
                if (covered)
                    cover(static_cast<std::size_t>(row) * side + static_cast<std::size_t>(column), covered);
            }
            for (std::size_t k = 0; k < m_count; ++k)
                distances[k] += m_edges[k].table.y();
        }
    }

private:
    static constexpr std::size_t mostEdges = 6;

    struct Edge
    {
        HalfPlane plane;
        EdgeTable table;
    };

    void addEdge(HalfPlane plane, double wider)
    {
        if (plane.x == 0 && plane.y == 0)
            return;
        plane.offset += wider;
        Edge &edge = m_edges[m_count++];
        edge.plane = plane;
        edge.table.setEdge(plane);
    }

    std::array<Edge, mostEdges> m_edges;
    std::size_t m_count = 0;
    Bounds m_bounds;
};

void StrokeMask::drawUpTo(double length)
{
    if (!(length > m_drawn))
        return;
    for (; m_next < m_stroke.parts.size(); ++m_next) {
        const StrokePart &part = m_stroke.parts[m_next];
        if (part.from >= length && !(part.isJoin() && length >= m_stroke.length))
            break;
        add(part, length);
        if (part.to > length)
            break;
    }
    m_drawn = length;
}

void StrokeMask::add(const StrokePart &part, double to)
{
    const Shape shape(part, m_drawn, to);
    if (shape.isEmpty())
        return;
    const Bounds &bounds = shape.bounds();
    const double tilePixels = tilePoints * m_scale;
    for (int y = tileOf(bounds.top, tilePixels); y <= tileOf(bounds.bottom + 1, tilePixels); ++y) {
        for (int x = tileOf(bounds.left, tilePixels); x <= tileOf(bounds.right + 1, tilePixels); ++x) {
            const int width = firstPixel(x + 1) - firstPixel(x);
            const int height = firstPixel(y + 1) - firstPixel(y);
            if (shape.mayTouch(firstPixel(x), firstPixel(y), width, height))
                addToTile(shape, x, y, width, height);
        }
    }
}

void StrokeMask::addToTile(const Shape &shape, int x, int y, int width, int height)
{
    const int left = firstPixel(x);
    const int top = firstPixel(y);
    const auto block = [](double place, int first, int last) {
        return std::clamp(static_cast<int>(std::floor(place)) - first, 0, last) / side;
    };
    const Bounds &bounds = shape.bounds();
    for (int row = block(bounds.top, top, height - 1); row <= block(bounds.bottom, top, height - 1); ++row) {
        for (int column = block(bounds.left, left, width - 1); column <= block(bounds.right, left, width - 1);
             ++column) {
            const int blockLeft = left + column * side;
            const int blockTop = top + row * side;
            if (!shape.mayTouch(blockLeft, blockTop, side, side))
                continue;
            std::optional<std::size_t> touched;
            shape.fill(blockLeft, blockTop, [&](std::size_t pixel, std::uint64_t covered) {
                if (!touched)
                    touched = blockAt(tileAt(x, y), column, row);
                std::uint64_t &all = m_samples[*touched][pixel];
                all |= covered;
                m_counts[*touched][pixel] = static_cast<std::uint8_t>(std::popcount(all));
            });
        }
    }
}

StrokeMask::Tile &StrokeMask::tileAt(int x, int y)
{
    const std::uint64_t key = std::uint64_t{static_cast<std::uint32_t>(y)} << 32 | static_cast<std::uint32_t>(x);
    Tile &tile = m_tiles[key];
    tile.isChanged = true;
    if (tile.blocks.empty()) {
        tile.x = x;
        tile.y = y;
        tile.left = firstPixel(x);
        tile.top = firstPixel(y);
        tile.width = firstPixel(x + 1) - tile.left;
        tile.height = firstPixel(y + 1) - tile.top;
        const int columns = (tile.width + side - 1) / side;
        const int rows = (tile.height + side - 1) / side;
        tile.blocks.assign(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), -1);
    }
    return tile;
}

std::size_t StrokeMask::blockAt(Tile &tile, int column, int row)
{
    const int columns = (tile.width + side - 1) / side;
    std::int32_t &index = tile.blocks[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns)
                                      + static_cast<std::size_t>(column)];
    if (index < 0) {
        index = static_cast<std::int32_t>(m_samples.size());
        m_samples.emplace_back();
        m_counts.emplace_back();
    }
    return static_cast<std::size_t>(index);
}

int StrokeMask::firstPixel(int tile) const
{
    return static_cast<int>(std::lround(tile * tilePoints * m_scale));
}

void StrokeMask::paint(const Tile &tile, const Colors &colors, std::uint32_t *pixels, std::ptrdiff_t stride) const
{
    const std::int32_t *index = tile.blocks.data();
    for (int top = 0; top < tile.height; top += side) {
        for (int left = 0; left < tile.width; left += side, ++index) {
            if (*index < 0)
                continue;
            const std::uint8_t *counts = m_counts[static_cast<std::size_t>(*index)].data();
            const int width = std::min(side, tile.width - left);
            const int height = std::min(side, tile.height - top);
            for (int y = 0; y < height; ++y, counts += side) {
                std::uint32_t *row = pixels + (top + y) * stride + left;
                const auto paintRow = [&](int end) {
                    for (int x = 0; x < end; ++x)
                        row[x] = colors[counts[x]];
                };
                // Compilers unroll the loop with the constant end, which most rows take.
                if (width == side)
                    paintRow(side);
                else
                    paintRow(width);
            }
        }
    }
}

} // namespace TQFoundation
