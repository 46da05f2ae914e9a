#include "DriftPath.h"

#include "Precondition.h"

#include <array>
#include <limits>

namespace TQFoundation {
namespace {

constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t greatest = std::numeric_limits<std::int64_t>::max();

// Signed 64-bit arithmetic in which what does not fit stops the process.

constexpr std::int64_t sum(std::int64_t a, std::int64_t b)
{
    precondition(b >= 0 ? a <= greatest - b : a >= least - b);
    return a + b;
}

constexpr std::int64_t difference(std::int64_t a, std::int64_t b)
{
    precondition(b >= 0 ? a >= least + b : a <= greatest + b);
    return a - b;
}

constexpr std::int64_t quotient(std::int64_t a, std::int64_t b)
{
    precondition(b != 0 && !(a == least && b == -1));
    return a / b;
}

constexpr std::int64_t product(std::int64_t a, std::int64_t b)
{
    const auto wrapped = static_cast<std::int64_t>(static_cast<std::uint64_t>(a) * static_cast<std::uint64_t>(b));
    precondition(b == 0 || quotient(wrapped, b) == a);
    return wrapped;
}

static_assert(product(least, 1) == least && product(-1, greatest) == -greatest && product(least, 0) == 0);

// Truncates towards zero.
std::int64_t integer(double value)
{
    constexpr double beyond = 0x1p63;
    precondition(value >= -beyond && value < beyond);
    return static_cast<std::int64_t>(value);
}

Point point(std::int64_t x, std::int64_t y)
{
    return {static_cast<double>(x), static_cast<double>(y)};
}

struct Halves
{
    explicit Halves(const DriftScreen &screen)
        : width(integer(screen.width * 0.5)),
          height(integer(screen.height * 0.5))
    {}

    std::int64_t width;
    std::int64_t height;
};

enum class Slot { topRight, bottomRight, bottomLeft, topLeft };

Point transitPoint(Slot slot, const Halves &half, const RandomSource &random)
{
    const bool onTheRight = slot == Slot::topRight || slot == Slot::bottomRight;
    const std::int64_t x = onTheRight ? random.positiveX() : random.negativeX();
    const std::int64_t along = onTheRight ? difference(x, half.width) : x;
    const std::int64_t rise = quotient(product(along, half.height), half.width);
    const bool atTheTop = slot == Slot::topRight || slot == Slot::topLeft;
    return point(x, atTheTop ? difference(half.height, rise) : sum(half.height, rise));
}

// One draw from the middle, as far as the reach in both directions.
std::int64_t drawAround(std::int64_t middle, std::int64_t reach, const RandomSource &random)
{
    const std::int64_t lowest = difference(middle, reach);
    return random.fresh(lowest, sum(middle, reach))();
}

} // namespace

DriftRanges driftRanges(const DriftScreen &screen)
{
    const Halves half(screen);
    return {
        {half.width, integer(screen.width)}, {0, half.width}, {0, half.height}, {half.height, integer(screen.height)}};
}

std::vector<Point> getTransitPoints(const DriftScreen &screen, const RandomSource &random)
{
    using enum Slot;
    constexpr std::array<Slot, 4> cycle{topRight, bottomRight, bottomLeft, topLeft};
    const Halves half(screen);
    std::vector<Point> points(cycle.size());
    const std::size_t first = random.chooser();
    if (first < cycle.size()) {
        for (std::size_t index = 0; index < cycle.size(); ++index)
            points[index] = transitPoint(cycle.at((first + index) % cycle.size()), half, random);
    }
    return points;
}

Point getControlPoint(std::int64_t index, const std::vector<Point> &transitPoints, const DriftScreen &screen,
                      const RandomSource &random)
{
    precondition(index >= 0 && index < static_cast<std::int64_t>(transitPoints.size()));
    const Point end = transitPoints[static_cast<std::size_t>(index)];
    const double middleX = screen.width * 0.5;
    const double middleY = screen.height * 0.5;
    const Halves half(screen);
    if (end.x == middleX || end.y == middleY)
        return {};
    const bool onTheRight = end.x > middleX;
    const bool atTheTop = end.y < middleY;
    // Each quarter has a shape of its own; they are not meant to mirror each other.
    if (onTheRight && !atTheTop) {
        const std::int64_t x = random.positiveX();
        const std::int64_t reach = quotient(product(difference(x, half.width), half.height), half.width);
        return point(x, drawAround(half.height, reach, random));
    }
    if (!onTheRight && atTheTop) {
        const std::int64_t x = random.negativeX();
        const std::int64_t reach = quotient(product(x, half.height), half.width);
        return point(x, drawAround(half.height, reach, random));
    }
    const std::int64_t y = atTheTop ? random.positiveY() : random.negativeY();
    const std::int64_t reach = quotient(product(y, half.width), half.height);
    return point(drawAround(half.width, reach, random), y);
}

Path driftPath(const std::vector<Point> &transitPoints, const DriftScreen &screen, const RandomSource &random)
{
    precondition(!transitPoints.empty());
    Path path{transitPoints[0], {}, true};
    for (const std::size_t end : {1U, 2U, 3U, 0U}) {
        const auto control = [&] {
            return getControlPoint(static_cast<std::int64_t>(end), transitPoints, screen, random);
        };
        // Braces keep the order of the draws.
        path.curves.push_back({control(), control(), transitPoints[end]});
    }
    return path;
}

} // namespace TQFoundation
