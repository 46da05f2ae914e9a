#include "Flattener.h"

#include "PointMath.h"

#include <algorithm>
#include <span>

namespace TQFoundation {
namespace {

constexpr double tiny = 0.02; // points
constexpr double leastCosine = 0.77; // of the angle by which one segment may turn
constexpr int deepest = 16; // subdivisions of a curve

std::optional<Point> direction(std::span<const Point> offsets)
{
    for (const Point offset : offsets) {
        if (const double size = norm(offset); size > 1e-9)
            return (1 / size) * offset;
    }
    return std::nullopt;
}

} // namespace

/// Measures of one curve.
struct Flattener::Shape
{
    explicit Shape(const Cubic &curve)
        : chord(curve[3] - curve[0]),
          size(norm(chord)),
          around(norm(curve[1] - curve[0]) + norm(curve[2] - curve[1]) + norm(curve[3] - curve[2])),
          // Gravesen, "Adaptive subdivision and the length and energy of Bézier curves", 1997.
          arc((2 * size + 2 * around) / 4),
          startDirection(direction(std::array{curve[1] - curve[0], curve[2] - curve[0], chord})),
          endDirection(direction(std::array{curve[3] - curve[2], curve[3] - curve[1], chord}))
    {
        const Point a = curve[1] - curve[0];
        const Point b = curve[2] - curve[0];
        isStraight = startDirection && endDirection && size > 0 && dot(*startDirection, *endDirection) >= leastCosine
            && dot(a, chord) >= 0 && dot(b, chord) <= size * size
            && dot(a, chord) <= dot(b, chord)
            // The distance of a curve from its chord is at most this share of that of its control points.
            && 0.75 * std::max(std::abs(cross(a, chord)), std::abs(cross(b, chord))) <= strokeTolerance * size;
    }

    Point chord;
    double size;
    double around; // length of the control polygon
    double arc;
    std::optional<Point> startDirection;
    std::optional<Point> endDirection;
    bool isStraight = false;
};

void Flattener::add(const Cubic &curve)
{
    beginCurve();
    add(curve, 0);
}

void Flattener::addLine(Point start, Point end)
{
    beginCurve();
    add({start, start + (1.0 / 3) * (end - start), end - (1.0 / 3) * (end - start), end}, deepest);
}

void Flattener::beginCurve()
{
    m_startsCurve = true;
    m_departure.reset();
}

void Flattener::add(const Cubic &curve, int depth)
{
    const Shape shape(curve);
    const bool isSplit = !shape.isStraight && depth < deepest;
    if (shape.around < tiny || (!isSplit && shape.size < tiny / 4)) {
        skip(shape);
    } else if (isSplit) {
        const Point ab = midpoint(curve[0], curve[1]);
        const Point bc = midpoint(curve[1], curve[2]);
        const Point cd = midpoint(curve[2], curve[3]);
        const Point abc = midpoint(ab, bc);
        const Point bcd = midpoint(bc, cd);
        const Point half = midpoint(abc, bcd);
        add({curve[0], ab, abc, half}, depth + 1);
        add({half, bcd, cd, curve[3]}, depth + 1);
    } else {
        append(curve, shape);
    }
}

void Flattener::append(const Cubic &curve, const Shape &shape)
{
    const Point normal = perpendicular((1 / shape.size) * shape.chord);
    Segment segment{curve[0], curve[3], normal, normal, m_skipped + shape.arc, m_startsCurve, normal, normal};
    if (shape.startDirection && shape.endDirection) {
        segment.departure = m_departure.value_or(perpendicular(*shape.startDirection));
        segment.arrival = perpendicular(*shape.endDirection);
    }
    if (shape.isStraight) {
        segment.startNormal = perpendicular(*shape.startDirection);
        segment.endNormal = perpendicular(*shape.endDirection);
    }
    segments.push_back(segment);
    m_skipped = 0;
    m_startsCurve = false;
    m_departure.reset();
}

// The direction of a piece too short to draw still decides the corners at its ends.
void Flattener::skip(const Shape &shape)
{
    m_skipped += shape.arc;
    if (!shape.startDirection || !shape.endDirection)
        return;
    if (m_startsCurve && !m_departure)
        m_departure = perpendicular(*shape.startDirection);
    if (!segments.empty())
        segments.back().arrival = perpendicular(*shape.endDirection);
}

} // namespace TQFoundation
