#pragma once

#include "Layer.h"

#include <cstdint>
#include <random>
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

/// The corners of \a path where its curves join, and the place where the share \a strokeEnd of its length ends.
std::vector<Point> cornersAndEnd(const Path &path, double strokeEnd);

/// The part of \a path that has the share \a strokeEnd of its length; an open line unless that is all.
Path startOf(const Path &path, double strokeEnd);

} // namespace TQFoundation::Testing
