#pragma once

namespace TQFoundation {

/// Numbers that the coverage code shares with the shaders.
///
/// The samples of a pixel are a lattice in which all columns and all rows differ. Of all such lattices, this one
/// measures half planes at any angle with the least error.
namespace StrokeConstants {
#include "Shaders/StrokeConstants.glsl"
} // namespace StrokeConstants

/// Pixels by which neighbouring parts of a stroke overlap, so that no sample falls between them.
inline constexpr double seamOverlap = 0.05;

} // namespace TQFoundation
