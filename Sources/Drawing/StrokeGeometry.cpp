#include "StrokeGeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <span>

namespace TQFoundation {
namespace {

constexpr double miterLimit = 10; // the length of a mitre in widths of the line
constexpr double largest = 1e7; // points
constexpr double tiny = 0.02; // points, what is shorter has no direction to speak of
constexpr double sharpest = 0.77; // the cosine of how far one stretch may turn
constexpr int deepest = 16; // halvings of a curve

Point operator+(Point a, Point b)
{
    return {a.x + b.x, a.y + b.y};
}

Point operator-(Point a, Point b)
{
    return {a.x - b.x, a.y - b.y};
}

Point operator*(double factor, Point a)
{
    return {factor * a.x, factor * a.y};
}

double dot(Point a, Point b)
{
    return a.x * b.x + a.y * b.y;
}

double cross(Point a, Point b)
{
    return a.x * b.y - a.y * b.x;
}

double length(Point a)
{
    return std::sqrt(dot(a, a));
}

Point turnedLeft(Point a)
{
    return {-a.y, a.x};
}

Point turned(Point a, double angle)
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return {c * a.x - s * a.y, s * a.x + c * a.y};
}

Point middle(Point a, Point b)
{
    return 0.5 * (a + b);
}

bool isUsable(Point place)
{
    // Written so that what is no number fails too.
    return std::abs(place.x) <= largest && std::abs(place.y) <= largest;
}

/// A stretch of the line that is as good as straight.
struct Stretch
{
    Point start;
    Point end;
    Point startNormal; ///< Of length 1, to the left of where the line goes; it is cut off along it.
    Point endNormal;
    double length = 0;
    bool startsCurve = false; ///< Whether it is the first one of a curve of the path.
    Point departure; ///< The normal of the curve itself where the stretch starts.
    Point arrival; ///< And where it ends.
};

using Cubic = std::array<Point, 4>;

// Where the first of the offsets points that is long enough to point anywhere.
std::optional<Point> direction(std::span<const Point> offsets)
{
    for (const Point offset : offsets) {
        if (const double size = length(offset); size > 1e-9)
            return (1 / size) * offset;
    }
    return std::nullopt;
}

class Flattener
{
public:
    std::vector<Stretch> stretches;

    void add(const Cubic &curve)
    {
        m_startsCurve = true;
        m_departure.reset();
        add(curve, 0);
    }

    void addLine(Point start, Point end)
    {
        m_startsCurve = true;
        m_departure.reset();
        add({start, start + (1.0 / 3) * (end - start), end - (1.0 / 3) * (end - start), end}, deepest);
    }

private:
    void add(const Cubic &curve, int depth)
    {
        const Point a = curve[1] - curve[0];
        const Point b = curve[2] - curve[0];
        const Point chord = curve[3] - curve[0];
        const double size = length(chord);
        const double around = length(a) + length(curve[2] - curve[1]) + length(curve[3] - curve[2]);
        // Gravesen, "Adaptive subdivision and the length and energy of Bézier curves", 1997.
        const double arc = (2 * size + 2 * around) / 4;
        const std::array fromStart{a, b, chord};
        const std::array toEnd{curve[3] - curve[2], curve[3] - curve[1], chord};
        const std::optional<Point> startDirection = direction(fromStart);
        const std::optional<Point> endDirection = direction(toEnd);
        if (around < tiny) {
            skip(arc, startDirection, endDirection);
            return;
        }
        const double along = size * size;
        const bool isStraight = startDirection && endDirection && size > 0
            && dot(*startDirection, *endDirection) >= sharpest && dot(a, chord) >= 0 && dot(b, chord) <= along
            && dot(a, chord) <= dot(b, chord)
            // No point of the curve is farther from the chord than this share of its control points' distances.
            && 0.75 * std::max(std::abs(cross(a, chord)), std::abs(cross(b, chord))) <= strokeTolerance * size;
        if (!isStraight && depth < deepest) {
            const Point ab = middle(curve[0], curve[1]);
            const Point bc = middle(curve[1], curve[2]);
            const Point cd = middle(curve[2], curve[3]);
            const Point abc = middle(ab, bc);
            const Point bcd = middle(bc, cd);
            const Point half = middle(abc, bcd);
            add({curve[0], ab, abc, half}, depth + 1);
            add({half, bcd, cd, curve[3]}, depth + 1);
            return;
        }
        if (size < tiny / 4) {
            skip(arc, startDirection, endDirection);
            return;
        }
        const Point normal = turnedLeft((1 / size) * chord);
        Stretch stretch{curve[0], curve[3], normal, normal, m_skipped + arc, m_startsCurve, normal, normal};
        if (startDirection && endDirection) {
            stretch.departure = m_departure.value_or(turnedLeft(*startDirection));
            stretch.arrival = turnedLeft(*endDirection);
        }
        if (isStraight) {
            stretch.startNormal = turnedLeft(*startDirection);
            stretch.endNormal = turnedLeft(*endDirection);
        }
        stretches.push_back(stretch);
        m_skipped = 0;
        m_startsCurve = false;
        m_departure.reset();
    }

    // Where the line goes at its corners matters even when it does not get far that way.
    void skip(double arc, const std::optional<Point> &startDirection, const std::optional<Point> &endDirection)
    {
        m_skipped += arc;
        if (!startDirection || !endDirection)
            return;
        if (m_startsCurve && !m_departure)
            m_departure = turnedLeft(*startDirection);
        if (!stretches.empty())
            stretches.back().arrival = turnedLeft(*endDirection);
    }

    double m_skipped = 0; // the length of what was too short to count since the last stretch
    bool m_startsCurve = true;
    std::optional<Point> m_departure; // of what was too short at the start of a curve
};

class Stroker
{
public:
    Stroker(std::span<Stretch> stretches, double lineWidth) : m_stretches(stretches), m_half(lineWidth / 2) {}

    StrokeGeometry stroke(bool isClosed)
    {
        for (Stretch &stretch : m_stretches)
            straightenWhereFolded(stretch);
        for (std::size_t index = 0; index < m_stretches.size(); ++index) {
            const bool goesOn = index > 0 && isSmooth(m_stretches[index - 1], m_stretches[index]);
            if (goesOn)
                m_stretches[index].startNormal = m_stretches[index - 1].endNormal;
            else if (index > 0)
                addJoin(m_stretches[index - 1], m_stretches[index]);
            addStretch(m_stretches[index], goesOn);
        }
        if (isClosed && m_stretches.size() > 1 && !isSmooth(m_stretches.back(), m_stretches.front()))
            addJoin(m_stretches.back(), m_stretches.front());
        return std::move(m_geometry);
    }

private:
    // Where the line is wider than the bend, its inner side would run backwards. Such a stretch is cut off straight at
    // both ends, and what turns between them is filled like a corner. The reach is that of an antialiased edge.
    void straightenWhereFolded(Stretch &stretch) const
    {
        const double reach = m_half + 0.5;
        const Point chord = stretch.end - stretch.start;
        const double size = TQFoundation::length(chord);
        const double turning = std::abs(dot(stretch.endNormal - stretch.startNormal, chord)) / size;
        if (size - reach * turning < 0.1 * size)
            stretch.startNormal = stretch.endNormal = turnedLeft((1 / size) * chord);
    }

    static bool areEqual(Point one, Point other) { return dot(one, other) > 1 - 1e-6; }

    static bool isSmooth(const Stretch &before, const Stretch &after)
    {
        return areEqual(before.endNormal, after.startNormal)
            && (!after.startsCurve || areEqual(before.arrival, after.departure));
    }

    void addStretch(const Stretch &stretch, bool goesOn)
    {
        if (goesOn)
            m_geometry.parts.back().seams[1] = true;
        const Point atStart = m_half * stretch.startNormal;
        const Point atEnd = m_half * stretch.endNormal;
        const double from = m_geometry.length;
        m_geometry.length += stretch.length;
        m_geometry.parts.push_back(
            {{stretch.start + atStart, stretch.end + atEnd, stretch.end - atEnd, stretch.start - atStart},
             {false, false, false, goesOn},
             from,
             m_geometry.length});
    }

    void addJoin(const Stretch &before, const Stretch &after)
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
        const Point last = corner + turned(outwards, turn);
        const double slimness = std::cos(turn / 2);
        if (slimness * miterLimit >= 1)
            addPart(corner, first, corner + (1 / slimness) * turned(outwards, turn / 2), last);
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
            const auto rim = [&](double share) { return corner + turned(outwards, (pair + share) / pairs * turn); };
            addPart(corner, rim(0), rim(0.5), rim(1), isBend);
        }
    }

    void addPart(Point corner, Point first, Point second, Point third, bool isBend = false)
    {
        m_geometry.parts.push_back(
            {{corner, first, second, third}, {true, false, false, true}, m_geometry.length, m_geometry.length, isBend});
    }

    std::span<Stretch> m_stretches;
    double m_half;
    StrokeGeometry m_geometry;
};

} // namespace

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
        flattener.add(Cubic{place, curve.control1, curve.control2, curve.end});
        place = curve.end;
    }
    if (path.isClosed)
        flattener.addLine(place, path.start);
    return Stroker(flattener.stretches, lineWidth).stroke(path.isClosed);
}

std::array<HalfPlane, 4> edges(const StrokePart &part)
{
    const auto &corners = part.corners;
    const double area = cross(corners[2] - corners[0], corners[3] - corners[1]);
    std::array<HalfPlane, 4> planes;
    for (std::size_t k = 0; k < 4; ++k) {
        const Point side = corners[(k + 1) % 4] - corners[k];
        const double size = (area < 0 ? -1 : 1) * length(side);
        if (size == 0) {
            planes[k] = {0, 0, largest};
            continue;
        }
        const Point inwards = (1 / size) * turnedLeft(side);
        planes[k] = {inwards.x, inwards.y, -dot(inwards, corners[k])};
    }
    return planes;
}

HalfPlane lengthAlong(const StrokePart &part)
{
    const Point start = part.start();
    const Point run = part.end() - start;
    const Point slope = ((part.to - part.from) / dot(run, run)) * run;
    return {slope.x, slope.y, part.from - dot(slope, start)};
}

} // namespace TQFoundation
