#pragma once

#include "ShapeLayer.h"

#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace TQFoundation::Testing {

/// Returns a random closed path of four curves, each ending in another quarter of a screen of 390 by 844 points, like
/// those of the background.
Path randomPath(std::mt19937_64 &random);

/// Number of random paths that a test compares pixel by pixel: 100 at scale 1, and as many pixels at any other scale.
inline int pathsAt(double scale)
{
    return static_cast<int>(100 / (scale * scale));
}

/// An image of one byte per pixel.
struct Coverage
{
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels; ///< Covered share of each pixel from 0 to 255, row by row.

    std::uint8_t at(int x, int y) const
    {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
    }
};

/// Returns the coverage of a stroke drawn by Cairo: the first \a strokeEnd (0 to 1) of the length of \a path, with \a
/// scale pixels per point.
Coverage cairoStroke(const Path &path, double lineWidth, double strokeEnd, double scale, int width, int height);

/// Darkness of a pixel, from 0 for white to 255 for black.
using Darkness = std::function<double(int x, int y)>;

/// Compares an image of \a path, two points wide and black with an opacity of 0.2 on white, with Cairo's. Returns the
/// pixels that differ by more than 8 of 255, or by more than 20 near a line end, a corner or a bend with a radius of
/// less than two points; empty if no pixel does. Pixels near a line end inside such a bend are ignored, because
/// libraries differ in the coverage of its inner side.
std::string differences(const Path &path, double strokeEnd, double scale, int width, int height, const Darkness &shown);

} // namespace TQFoundation::Testing
