#pragma once

#include "StrokeGeometry.h"

#include <array>
#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

namespace TQFoundation {

/// Which share of each pixel a stroke covers while it is drawn from its start to its end, kept only where it does.
///
/// A pixel has 64 samples, one bit each. What is covered already stays as it is, so that crossings and overlaps count
/// once. Pixels are kept in tiles of 16 points, which lie on whole points. A plain value.
class StrokeMask
{
public:
    static constexpr int tilePoints = 16;
    static constexpr int samples = 64;

    /// The colour of a pixel for each number of its samples that are covered.
    using Colors = std::array<std::uint32_t, samples + 1>;

    /// A square of pixels that the stroke touches. Stays where it is in memory as long as the mask does.
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

    /// Of nothing.
    StrokeMask() = default;

    /// Of a stroke whose corners are in pixels, of which there are \a scale to a point, more than 0. None of it is
    /// drawn yet. What is farther than 16384 pixels from the origin is left out.
    StrokeMask(StrokeGeometry stroke, double scale) : m_stroke(std::move(stroke)), m_scale(scale) {}

    /// Pixels per point.
    double scale() const { return m_scale; }

    /// Draws on until \a length of the line is drawn; the join of its ends comes with the whole of it. Nothing happens
    /// where as much is drawn already.
    void drawUpTo(double length);

    /// How much of the line is drawn.
    double drawnLength() const { return m_drawn; }

    /// The tiles that the stroke touches so far, by their place.
    const std::unordered_map<std::uint64_t, Tile> &tiles() const { return m_tiles; }
    std::unordered_map<std::uint64_t, Tile> &tiles() { return m_tiles; }

    /// Writes the tile's pixels where it is covered, and some beside those. The first pixel is that of the tile; \a
    /// stride is the number of pixels in a row of the picture.
    void paint(const Tile &tile, const Colors &colors, std::uint32_t *pixels, std::ptrdiff_t stride) const;

private:
    static constexpr int side = 8; // pixels of a block
    static constexpr std::size_t blockPixels = std::size_t{side} * side;
    class Shape;

    void add(const StrokePart &part, double to);
    Tile &tileAt(int x, int y);
    std::size_t blockAt(Tile &tile, int column, int row);
    int firstPixel(int tile) const;

    StrokeGeometry m_stroke;
    double m_scale = 1;
    std::size_t m_next = 0; // the first part that is not wholly drawn
    double m_drawn = 0;
    std::unordered_map<std::uint64_t, Tile> m_tiles;
    std::vector<std::array<std::uint64_t, blockPixels>> m_samples; // of each block; a bit for each that is covered
    std::vector<std::array<std::uint8_t, blockPixels>> m_counts; // how many of them are, which is what is painted
};

} // namespace TQFoundation
