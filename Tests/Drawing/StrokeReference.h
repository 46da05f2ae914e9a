#pragma once

#include "ShapeLayer.h"

#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace TQFoundation::Testing {

/// A closed line of four curves, each in a quarter of a screen of 390 by 844 points, as the background draws them.
Path randomPath(std::mt19937_64 &random);

/// A picture of one byte a pixel.
struct Coverage
{
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels; ///< From 0 for none to 255 for all, row by row.

    std::uint8_t at(int x, int y) const
    {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
    }
};

/// What a stroke of \a path covers, drawn by Cairo: the share \a strokeEnd of its length, the pixels \a scale to a
/// point.
Coverage cairoStroke(const Path &path, double lineWidth, double strokeEnd, double scale, int width, int height);

/// How dark a pixel of a picture is, from 0 for white to 255 for black.
using Darkness = std::function<double(int x, int y)>;

/// Compares a picture of \a path, two points wide and black with an opacity of 0.2 on white, with that of Cairo. Names
/// the pixels that are off by more than 8 of 255, or 20 beside an end of the line, a corner or a bend whose radius is
/// less than two points; empty if there are none. Where the line ends within such a bend, libraries disagree about what
/// its inner side covers, and nothing is compared.
std::string differences(const Path &path, double strokeEnd, double scale, int width, int height, const Darkness &shown);

} // namespace TQFoundation::Testing
