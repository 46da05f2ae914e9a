#include "StrokeReference.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <sstream>

namespace TQFoundation::Testing {
namespace {

Point between(Point a, Point b, double share)
{
    return {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share};
}

// The part of a curve up to a value of its parameter (De Casteljau).
CubicCurve startOfCurve(Point start, const CubicCurve &curve, double parameter)
{
    const Point a = between(start, curve.control1, parameter);
    const Point b = between(curve.control1, curve.control2, parameter);
    const Point c = between(curve.control2, curve.end, parameter);
    const Point ab = between(a, b, parameter);
    const Point bc = between(b, c, parameter);
    return {a, ab, between(ab, bc, parameter)};
}

constexpr int steps = 4000; // line segments that approximate a curve

std::vector<double> arcLengths(Point start, const CubicCurve &curve)
{
    std::vector<double> sums{0};
    Point former = start;
    for (int step = 1; step <= steps; ++step) {
        const Point place = startOfCurve(start, curve, static_cast<double>(step) / steps).end;
        sums.push_back(sums.back() + std::hypot(place.x - former.x, place.y - former.y));
        former = place;
    }
    return sums;
}

// Replaces the closing segment by a curve.
Path withoutClosing(const Path &path)
{
    Path open{path.start, path.curves, false};
    const Point end = path.curves.empty() ? path.start : path.curves.back().end;
    if (path.isClosed && end != path.start)
        open.curves.push_back({between(end, path.start, 1.0 / 3), between(end, path.start, 2.0 / 3), path.start});
    return open;
}

// The part of the path up to a share of its arc length. Open, unless it is the whole path.
Path startOf(const Path &path, double strokeEnd)
{
    if (strokeEnd >= 1)
        return path;
    const Path whole = withoutClosing(path);
    std::vector<std::vector<double>> measured;
    double total = 0;
    Point place = whole.start;
    for (const CubicCurve &curve : whole.curves) {
        measured.push_back(arcLengths(place, curve));
        total += measured.back().back();
        place = curve.end;
    }
    double left = total * strokeEnd;
    Path part{whole.start, {}, false};
    place = whole.start;
    for (std::size_t index = 0; index < whole.curves.size(); ++index) {
        const std::vector<double> &sums = measured[index];
        if (left < sums.back()) {
            std::size_t step = 1;
            while (sums[step] < left)
                ++step;
            const double share = (left - sums[step - 1]) / (sums[step] - sums[step - 1]);
            part.curves.push_back(
                startOfCurve(place, whole.curves[index], (static_cast<double>(step - 1) + share) / steps));
            return part;
        }
        left -= sums.back();
        part.curves.push_back(whole.curves[index]);
        place = whole.curves[index].end;
    }
    return part;
}

// Appends the places at which a stroke that is two points wide bends with a radius of less than its width.
void addNarrowBends(Point start, const CubicCurve &curve, std::vector<Point> &places)
{
    Point former = start;
    Point formerStep;
    for (int step = 1; step <= steps; ++step) {
        const Point place = startOfCurve(start, curve, static_cast<double>(step) / steps).end;
        const Point run{place.x - former.x, place.y - former.y};
        const double turn = std::abs(
            std::atan2(formerStep.x * run.y - formerStep.y * run.x, formerStep.x * run.x + formerStep.y * run.y));
        if (std::hypot(run.x, run.y) < 2 * turn)
            places.push_back(former);
        former = place;
        formerStep = run;
    }
}

struct Places
{
    std::vector<Point> corners; // ends of the curves and of the stroke
    std::vector<Point> bends; // with a radius of less than two points

    static bool areNear(const std::vector<Point> &places, Point place, double distance)
    {
        return std::ranges::any_of(
            places, [&](Point other) { return std::hypot(other.x - place.x, other.y - place.y) < distance; });
    }
};

Places placesOf(const Path &path, double strokeEnd)
{
    Places places{{path.start}, {}};
    Point place = path.start;
    for (const CubicCurve &curve : path.curves) {
        addNarrowBends(place, curve, places.bends);
        place = curve.end;
        places.corners.push_back(place);
    }
    const Path part = startOf(path, strokeEnd);
    places.corners.push_back(part.curves.empty() ? part.start : part.curves.back().end);
    return places;
}

// Coverage of one pixel, drawn sixteen times as large because Cairo's own steps are coarse.
double enlarged(const Path &path, double strokeEnd, double scale, int x, int y)
{
    const auto moved = [&](Point place) { return Point{place.x - x / scale, place.y - y / scale}; };
    Path around{moved(path.start), {}, path.isClosed};
    for (const CubicCurve &curve : path.curves)
        around.curves.push_back({moved(curve.control1), moved(curve.control2), moved(curve.end)});
    const Coverage large = cairoStroke(around, 2, strokeEnd, 16 * scale, 16, 16);
    return std::accumulate(large.pixels.begin(), large.pixels.end(), 0.0) / static_cast<double>(large.pixels.size());
}

} // namespace

Path randomPath(std::mt19937_64 &random)
{
    const auto within = [&](double from, double to) {
        return std::uniform_real_distribution<double>(from, to)(random);
    };
    // Quarters in path order: top right, bottom right, bottom left, top left.
    const auto inQuarter = [&](int quarter) {
        const bool isRight = quarter < 2;
        const bool isTop = quarter == 0 || quarter == 3;
        return Point{isRight ? within(195, 390) : within(0, 195), isTop ? within(0, 422) : within(422, 844)};
    };
    Path path{inQuarter(0), {}, true};
    for (const int quarter : {1, 2, 3})
        path.curves.push_back({inQuarter(quarter), inQuarter(quarter), inQuarter(quarter)});
    path.curves.push_back({inQuarter(0), inQuarter(0), path.start});
    return path;
}

Coverage cairoStroke(const Path &path, double lineWidth, double strokeEnd, double scale, int width, int height)
{
    cairo_surface_t *surface = cairo_image_surface_create(CAIRO_FORMAT_A8, width, height);
    cairo_t *context = cairo_create(surface);
    cairo_scale(context, scale, scale);
    cairo_set_tolerance(context, 0.01);
    cairo_set_antialias(context, CAIRO_ANTIALIAS_BEST);
    cairo_set_line_width(context, lineWidth);
    cairo_set_line_join(context, CAIRO_LINE_JOIN_MITER);
    cairo_set_miter_limit(context, 10);
    cairo_set_line_cap(context, CAIRO_LINE_CAP_BUTT);
    const Path part = startOf(path, strokeEnd);
    cairo_move_to(context, part.start.x, part.start.y);
    for (const CubicCurve &curve : part.curves) {
        cairo_curve_to(context, curve.control1.x, curve.control1.y, curve.control2.x, curve.control2.y, curve.end.x,
                       curve.end.y);
    }
    if (part.isClosed)
        cairo_close_path(context);
    cairo_stroke(context);
    cairo_surface_flush(surface);
    Coverage coverage{width, height, {}};
    const unsigned char *bits = cairo_image_surface_get_data(surface);
    const int stride = cairo_image_surface_get_stride(surface);
    for (int y = 0; y < height; ++y)
        coverage.pixels.insert(coverage.pixels.end(), bits + y * stride, bits + y * stride + width);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
    return coverage;
}

std::string differences(const Path &path, double strokeEnd, double scale, int width, int height, const Darkness &shown)
{
    constexpr double alpha = 0.2;
    const Places places = placesOf(path, strokeEnd);
    const Coverage reference = cairoStroke(path, 2, strokeEnd, scale, width, height);
    std::ostringstream found;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double darkness = shown(x, y);
            if (std::abs(darkness - alpha * reference.at(x, y)) <= 8)
                continue;
            const Point place{(x + 0.5) / scale, (y + 0.5) / scale};
            const bool isAtCorner = Places::areNear(places.corners, place, 3);
            const bool isAtBend = Places::areNear(places.bends, place, 3);
            const double expected = alpha * enlarged(path, strokeEnd, scale, x, y);
            if (std::abs(darkness - expected) > (isAtCorner || isAtBend ? 20 : 8) && !(isAtCorner && isAtBend))
                found << x << ',' << y << " is " << darkness << " instead of " << expected << "; ";
        }
    }
    return found.str();
}

} // namespace TQFoundation::Testing
