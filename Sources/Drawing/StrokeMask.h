#pragma once

#include "StrokeConstants.h"
#include "StrokeGeometry.h"

#include <array>
#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

namespace TQFoundation {

/// Coverage mask of a stroke that is drawn from its start to its end, for backends without shaders.
///
/// A pixel has 64 samples, one bit each. A covered sample stays covered, so that crossings and overlaps count once.
/// Memory is used only for pixels that the stroke touches, in tiles of 16 points aligned to whole points. A plain
/// value.
class StrokeMask
{
public:
    static constexpr int tilePoints = 16;
    static constexpr int samples = StrokeConstants::samples;

    /// The colour of a pixel by the number of its covered samples.
    using Colors = std::array<std::uint32_t, samples + 1>;

    /// A square of pixels that the stroke touches. Its address stays valid as long as the mask exists.
    struct Tile
    {
        int x = 0; ///< Column among the tiles; tile (0, 0) starts at the origin.
        int y = 0; ///< Row among the tiles.
        int left = 0; ///< The first pixel of a row, counted from the origin.
        int top = 0; ///< The first row of pixels.
        int width = 0; ///< Pixels.
        int height = 0; ///< Pixels.
        bool isChanged = false; ///< Whether a sample was added since the caller set it to false.
        std::vector<std::int32_t> blocks; ///< Indices of its blocks of pixels, row by row; -1 for an empty one.
    };

    /// An empty mask.
    StrokeMask() = default;

    /// A mask of which nothing is drawn yet. The corners of \a stroke are in pixels, with \a scale pixels per point,
    /// more than 0. Parts farther than 16384 pixels from the origin are left out.
    StrokeMask(StrokeGeometry stroke, double scale) : m_stroke(std::move(stroke)), m_scale(scale) {}

    /// Pixels per point.
    double scale() const { return m_scale; }

    /// Draws the line up to the arc length \a length; a closed line's last join is drawn at its full length. Does
    /// nothing if that much is drawn already.
    void drawUpTo(double length);

    /// Arc length that is drawn, in points.
    double drawnLength() const { return m_drawn; }

    /// The tiles that are touched so far, by a key of column and row.
    const std::unordered_map<std::uint64_t, Tile> &tiles() const { return m_tiles; }
    std::unordered_map<std::uint64_t, Tile> &tiles() { return m_tiles; }

    /// Writes the colours of the tile's blocks that are touched into \a pixels, which begins with the tile's first
    /// pixel and has \a stride pixels per row. Other pixels are left as they are.
    void paint(const Tile &tile, const Colors &colors, std::uint32_t *pixels, std::ptrdiff_t stride) const;

private:
    static constexpr int side = 8; // pixels of a block
    static constexpr std::size_t blockPixels = std::size_t{side} * side;
    class Shape;

    void add(const StrokePart &part, double to);
    void addToTile(const Shape &shape, int x, int y, int width, int height);
    Tile &tileAt(int x, int y);
    std::size_t blockAt(Tile &tile, int column, int row);
    int firstPixel(int tile) const;

    StrokeGeometry m_stroke;
    double m_scale = 1;
    std::size_t m_next = 0; // index of the first part that is not wholly drawn
    double m_drawn = 0;
    std::unordered_map<std::uint64_t, Tile> m_tiles;
    std::vector<std::array<std::uint64_t, blockPixels>> m_samples; // of each block, one bit a sample
    std::vector<std::array<std::uint8_t, blockPixels>> m_counts; // covered samples per pixel
};

} // namespace TQFoundation
