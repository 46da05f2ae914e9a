#pragma once

#include "Path.h"

#include <cmath>

namespace TQFoundation {

/// @{ Points as vectors of the plane, x to the right and y downwards.
inline Point operator+(Point a, Point b)
{
    return {a.x + b.x, a.y + b.y};
}

inline Point operator-(Point a, Point b)
{
    return {a.x - b.x, a.y - b.y};
}

inline Point operator*(double factor, Point a)
{
    return {factor * a.x, factor * a.y};
}
/// @}

/// The dot product.
inline double dot(Point a, Point b)
{
    return a.x * b.x + a.y * b.y;
}

/// The z component of the cross product: more than 0 if \a b is clockwise of \a a on a screen.
inline double cross(Point a, Point b)
{
    return a.x * b.y - a.y * b.x;
}

/// The Euclidean norm.
inline double norm(Point a)
{
    return std::sqrt(dot(a, a));
}

/// \a a rotated by a quarter turn, clockwise on a screen.
inline Point perpendicular(Point a)
{
    return {-a.y, a.x};
}

/// \a a rotated by \a angle in radians, clockwise on a screen.
inline Point rotated(Point a, double angle)
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return {c * a.x - s * a.y, s * a.x + c * a.y};
}

/// The midpoint of a segment.
inline Point midpoint(Point a, Point b)
{
    return 0.5 * (a + b);
}

} // namespace TQFoundation
