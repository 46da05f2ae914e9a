#include "StrokeGeometry.h"

#include "Flattener.h"
#include "PointMath.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

namespace TQFoundation {
namespace {

using Segment = Flattener::Segment;

constexpr double miterLimit = 10; // the length of a mitre in widths of the line
constexpr double largest = 1e7; // points

// Written so that NaN fails too.
bool isUsable(Point place)
{
    return std::abs(place.x) <= largest && std::abs(place.y) <= largest;
}

class Stroker
{
public:
    Stroker(std::span<Segment> segments, double lineWidth) : m_segments(segments), m_half(lineWidth / 2) {}

    StrokeGeometry stroke(bool isClosed)
    {
        for (Segment &segment : m_segments)
            straightenWhereFolded(segment);
        for (std::size_t index = 0; index < m_segments.size(); ++index) {
            const bool goesOn = index > 0 && isSmooth(m_segments[index - 1], m_segments[index]);
            if (goesOn)
                m_segments[index].startNormal = m_segments[index - 1].endNormal;
            else if (index > 0)
                addJoin(m_segments[index - 1], m_segments[index]);
            addSegment(m_segments[index], goesOn);
        }
        if (isClosed && m_segments.size() > 1 && !isSmooth(m_segments.back(), m_segments.front()))
            addJoin(m_segments.back(), m_segments.front());
        return std::move(m_geometry);
    }

private:
    // If the line is wider than the bend, its inner side would run backwards. Such a segment is cut off straight at
    // both ends, and the turn between them is filled like a corner. The reach includes half an antialiased pixel.
    void straightenWhereFolded(Segment &segment) const
    {
        const double reach = m_half + 0.5;
        const Point chord = segment.end - segment.start;
        const double size = norm(chord);
        const double turning = std::abs(dot(segment.endNormal - segment.startNormal, chord)) / size;
        if (size - reach * turning < 0.1 * size)
            segment.startNormal = segment.endNormal = perpendicular((1 / size) * chord);
    }

    static bool areEqual(Point one, Point other) { return dot(one, other) > 1 - 1e-6; }

    static bool isSmooth(const Segment &before, const Segment &after)
    {
        return areEqual(before.endNormal, after.startNormal)
            && (!after.startsCurve || areEqual(before.arrival, after.departure));
    }

    void addSegment(const Segment &segment, bool goesOn)
    {
        if (goesOn)
            m_geometry.parts.back().seams[1] = true;
        const Point atStart = m_half * segment.startNormal;
        const Point atEnd = m_half * segment.endNormal;
        const double from = m_geometry.length;
        m_geometry.length += segment.length;
        m_geometry.parts.push_back(
            {{segment.start + atStart, segment.end + atEnd, segment.end - atEnd, segment.start - atStart},
             {false, false, false, goesOn},
             from,
             m_geometry.length});
    }

    void addJoin(const Segment &before, const Segment &after)
    {
        if (!after.startsCurve) {
            addRound(before.end, before.endNormal, after.startNormal, true);
            return;
        }
        addRound(before.end, before.endNormal, before.arrival, false);
        addMiter(before.end, before.arrival, after.departure);
        addRound(before.end, after.departure, after.startNormal, false);
    }

    void addMiter(Point corner, Point before, Point after)
    {
        if (areEqual(before, after))
            return;
        const double turn = std::atan2(cross(before, after), dot(before, after));
        const Point outwards = (turn > 0 ? -m_half : m_half) * before;
        const Point first = corner + outwards;
        const Point last = corner + rotated(outwards, turn);
        const double slimness = std::cos(turn / 2);
        if (slimness * miterLimit >= 1)
            addPart(corner, first, corner + (1 / slimness) * rotated(outwards, turn / 2), last);
        else
            addPart(corner, first, last, last);
    }

    void addRound(Point corner, Point before, Point after, bool isBend)
    {
        if (areEqual(before, after))
            return;
        const double turn = std::atan2(cross(before, after), dot(before, after));
        const Point outwards = (turn > 0 ? -m_half : m_half) * before;
        const double widest = 2 * std::acos(1 - std::min(strokeTolerance / m_half, 0.5));
        const int pairs = std::max(1, static_cast<int>(std::ceil(std::abs(turn) / (2 * widest))));
        for (int pair = 0; pair < pairs; ++pair) {
            const auto rim = [&](double share) { return corner + rotated(outwards, (pair + share) / pairs * turn); };
            addPart(corner, rim(0), rim(0.5), rim(1), isBend);
        }
    }

    void addPart(Point corner, Point first, Point second, Point third, bool isBend = false)
    {
        m_geometry.parts.push_back(
            {{corner, first, second, third}, {true, false, false, true}, m_geometry.length, m_geometry.length, isBend});
    }

    std::span<Segment> m_segments;
    double m_half;
    StrokeGeometry m_geometry;
};

} // namespace

Bounds StrokeGeometry::bounds() const
{
    if (parts.empty())
        return {};
    Bounds all = parts.front().bounds();
    for (const StrokePart &part : parts) {
        const Bounds one = part.bounds();
        all = {std::min(all.left, one.left), std::min(all.top, one.top), std::max(all.right, one.right),
               std::max(all.bottom, one.bottom)};
    }
    return all;
}

StrokeGeometry strokeGeometry(const Path &path, double lineWidth)
{
    const bool isUsableCurve = std::ranges::all_of(path.curves, [](const CubicCurve &curve) {
        return isUsable(curve.control1) && isUsable(curve.control2) && isUsable(curve.end);
    });
    if (!(lineWidth > 0 && lineWidth <= largest) || !isUsable(path.start) || !isUsableCurve)
        return {};
    Flattener flattener;
    Point place = path.start;
    for (const CubicCurve &curve : path.curves) {
        flattener.add({place, curve.control1, curve.control2, curve.end});
        place = curve.end;
    }
    if (path.isClosed)
        flattener.addLine(place, path.start);
    return Stroker(flattener.segments, lineWidth).stroke(path.isClosed);
}

} // namespace TQFoundation
