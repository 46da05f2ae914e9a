#pragma once

#include "StrokePart.h"

#include <vector>

namespace TQFoundation {

/// The area that a stroke covers: all of its parts, in the order in which the line runs. Parts overlap at crossings of
/// the line and within sharp bends.
struct StrokeGeometry
{
    std::vector<StrokePart> parts;
    double length = 0; ///< Arc length of the whole line, in points.

    /// The smallest bounds of all parts; empty without parts.
    Bounds bounds() const;
};

/// The stroke of \a path with a line of \a lineWidth points, with mitred joins up to ten times the width and butt ends.
///
/// Within a curve, bends that are narrower than the line are filled as by a round pen. A closed path has a join at its
/// start, which belongs to the very end of the line. Empty, with length 0, for a path without length, for a width that
/// is not more than 0, and if a number is not finite or beyond ten million. Any thread.
StrokeGeometry strokeGeometry(const Path &path, double lineWidth);

} // namespace TQFoundation
