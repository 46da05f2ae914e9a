#pragma once

#include "StrokeConstants.h"
#include "StrokeGeometry.h"

#include <array>
#include <cstdint>
#include <vector>

namespace TQFoundation {

/// Triangle mesh of a stroke, for the GPU. No two triangles overlap, so that a translucent line is nowhere darker than
/// elsewhere.
///
/// Most of the line is a band: each of its pixels belongs to one segment, and its coverage follows from its signed
/// distances to both sides. Small squares replace the band at crossings, sharp turns and ends. Each square knows the
/// parts that may reach its pixels, and a pixel counts its samples that lie in any of them. Joins of a narrow bend are
/// discs, because a few discs cover what would take many joins.
///
/// Triangles reach half a pixel beyond the line. Some edges are shared without sharing their corners, so that a rotated
/// item may lose single pixels.
struct StrokeMesh
{
    /// A corner of the band. Distances are in points.
    struct BandVertex
    {
        float x;
        float y;
        float left; ///< Signed distance to one side of the line, less than 0 outside.
        float right; ///< Signed distance to the other side.
        float length; ///< Arc length.
    };

    /// How many parts a square knows. Squares with more parts are split down to the size of a pixel. There, the least
    /// important parts are left out.
    static constexpr std::size_t mostParts = 6;

    /// A corner of a square.
    struct SquareVertex
    {
        float x;
        float y;
        std::array<float, mostParts> length; ///< Arc length within each part; more than any line has for no part.
        /// Of each part the signed distances to its four edges. A disc has the offset from its centre in the first two,
        /// and its radius plus StrokeConstants::discMarker in the last.
        std::array<std::array<float, 4>, mostParts> within;
    };

    std::vector<BandVertex> band;
    std::vector<std::uint32_t> bandIndices; ///< Three for each triangle.
    std::vector<SquareVertex> squares;
    std::vector<std::uint32_t> squareIndices; ///< Three for each triangle.
};

/// The mesh of \a stroke for a screen with \a scale pixels per point, more than 0. Parts farther than 32768 points from
/// the origin may be left out. Any thread.
StrokeMesh strokeMesh(const StrokeGeometry &stroke, double scale);

} // namespace TQFoundation
