#pragma once

#include "StrokeGeometry.h"

#include <array>
#include <cstdint>
#include <vector>

namespace TQFoundation {

/// A stroke as triangles of which no two overlap, so that a translucent line is nowhere darker than elsewhere.
///
/// Most of the line is a band: each pixel of it belongs to one stretch, and how much of it is covered follows from its
/// distances to both sides. Where the line crosses itself, turns sharply or ends, small squares take the place of the
/// band. Each knows the parts that may reach its pixels, and a pixel counts its samples that lie in any of them. The
/// joins of a narrow bend count as discs, of which few cover what would take many of them.
///
/// Triangles reach half a pixel beyond the line. Not all of those that share an edge share its corners too, so that an
/// item that is turned may lose a pixel here and there.
struct StrokeMesh
{
    struct BandVertex
    {
        float x;
        float y;
        float left; ///< The distance to one side of the line; less than 0 is outside. In points, like all distances.
        float right; ///< And to the other.
        float length; ///< The length of the line here.
    };

    /// How many parts a square knows. Squares where more parts meet are split until so many are left, or until they are
    /// as small as a pixel may be; there those that matter least are left out.
    static constexpr std::size_t mostParts = 6;

    /// A disc has the way from its middle, along x and y, in place of its first two distances, and its radius and this
    /// in place of the last one, which is never so large otherwise.
    static constexpr float disc = 512;

    struct SquareVertex
    {
        float x;
        float y;
        std::array<float, mostParts> length; ///< The length of the line within each part; far too much for no part.
        std::array<std::array<float, 4>, mostParts> within; ///< The distances to the edges of each part, or a disc.
    };

    std::vector<BandVertex> band;
    std::vector<std::uint32_t> bandIndices;
    std::vector<SquareVertex> squares;
    std::vector<std::uint32_t> squareIndices;
};

/// The triangles of \a stroke for a screen with \a scale pixels per point, more than 0. What is farther than 32768
/// points from the origin may be left out.
StrokeMesh strokeMesh(const StrokeGeometry &stroke, double scale);

} // namespace TQFoundation
