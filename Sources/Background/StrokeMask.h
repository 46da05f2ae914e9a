#pragma once

#include "StrokeGeometry.h"

#include <array>
#include <cstdint>
#include <limits>
#include <unordered_map>
#include <vector>

namespace TQFoundation {

/// Which share of each pixel a stroke covers, kept only where it does. It can only grow.
///
/// A pixel has 64 samples, one bit each, so that parts may be added in any order, twice or over one another: what is
/// covered already stays as it is. Pixels are kept in tiles of 16 points, which lie on whole points.
class StrokeMask
{
public:
    static constexpr int tilePoints = 16;
    static constexpr int samples = 64;

    /// The colour of a pixel for each number of its samples that are covered.
    using Colors = std::array<std::uint32_t, samples + 1>;

    /// A square of pixels that the stroke touches. Stays where it is in memory until the mask is cleared.
    struct Tile
    {
        int x = 0; ///< Its place among the tiles; the one at (0, 0) starts at the origin.
        int y = 0;
        int left = 0; ///< The first pixel.
        int top = 0;
        int width = 0; ///< In pixels.
        int height = 0;
        bool isChanged = false; ///< Whether anything was added since the caller set it to false.
        std::vector<std::int32_t> blocks; ///< Where its blocks of pixels are kept, row by row; -1 for an empty one.
    };

    /// For a screen with \a scale pixels per point, more than 0.
    explicit StrokeMask(double scale) : m_scale(scale) {}

    /// Adds what of \a part, whose corners are in pixels, lies between two lengths along the line. A join is added
    /// whole. What is farther than 16384 pixels from the origin is left out.
    ///
    void add(const StrokePart &part, double from = 0, double to = std::numeric_limits<double>::infinity());

    /// The tiles that the stroke touches so far, by their place.
    const std::unordered_map<std::uint64_t, Tile> &tiles() const { return m_tiles; }
    std::unordered_map<std::uint64_t, Tile> &tiles() { return m_tiles; }

    /// Writes the tile's pixels where it is covered, and some beside those. The first pixel is that of the tile; \a
    /// stride is the number of pixels in a row of the picture.
    void paint(const Tile &tile, const Colors &colors, std::uint32_t *pixels, std::ptrdiff_t stride) const;

    /// Forgets everything but the scale.
    void clear();

private:
    static constexpr int side = 8; // pixels of a block
    using Block = std::array<std::uint64_t, side * side>;
    class Shape;

    Tile &tileAt(int x, int y);
    Block &blockAt(Tile &tile, int column, int row);
    int firstPixel(int tile) const;

    double m_scale;
    std::unordered_map<std::uint64_t, Tile> m_tiles;
    std::vector<Block> m_blocks;
};

} // namespace TQFoundation
