#include "DriftPath.h"

#include "Precondition.h"

#include <limits>

namespace TQFoundation {
namespace {

constexpr std::int64_t minimum = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t maximum = std::numeric_limits<std::int64_t>::max();

// Checked arithmetic: a result that does not fit 64 bits stops the process.

constexpr std::int64_t checkedAdd(std::int64_t a, std::int64_t b)
{
    precondition(b >= 0 ? a <= maximum - b : a >= minimum - b);
    return a + b;
}

constexpr std::int64_t checkedSubtract(std::int64_t a, std::int64_t b)
{
    precondition(b >= 0 ? a >= minimum + b : a <= maximum + b);
    return a - b;
}

constexpr std::int64_t checkedDivide(std::int64_t a, std::int64_t b)
{
    precondition(b != 0 && !(a == minimum && b == -1));
    return a / b;
}

constexpr std::int64_t checkedMultiply(std::int64_t a, std::int64_t b)
{
    const auto wrapped = static_cast<std::int64_t>(static_cast<std::uint64_t>(a) * static_cast<std::uint64_t>(b));
    precondition(b == 0 || checkedDivide(wrapped, b) == a);
    return wrapped;
}

static_assert(checkedMultiply(minimum, 1) == minimum && checkedMultiply(-1, maximum) == -maximum
              && checkedMultiply(minimum, 0) == 0);

std::int64_t scaled(std::int64_t value, std::int64_t numerator, std::int64_t denominator)
{
    return checkedDivide(checkedMultiply(value, numerator), denominator);
}

std::int64_t truncated(double value)
{
    constexpr double limit = 0x1p63;
    precondition(value >= -limit && value < limit);
    return static_cast<std::int64_t>(value);
}

Point point(std::int64_t x, std::int64_t y)
{
    return {static_cast<double>(x), static_cast<double>(y)};
}

struct Halves
{
    explicit Halves(const DriftScreen &screen)
        : width(truncated(screen.width * 0.5)),
          height(truncated(screen.height * 0.5))
    {}

    std::int64_t width;
    std::int64_t height;
};

enum class Slot { topRight, bottomRight, bottomLeft, topLeft };

Point transitPoint(Slot slot, const Halves &half, const RandomSource &random)
{
    const bool isRight = slot == Slot::topRight || slot == Slot::bottomRight;
    const std::int64_t x = isRight ? random.positiveX() : random.negativeX();
    const std::int64_t along = isRight ? checkedSubtract(x, half.width) : x;
    const std::int64_t rise = scaled(along, half.height, half.width);
    const bool isTop = slot == Slot::topRight || slot == Slot::topLeft;
    return point(x, isTop ? checkedSubtract(half.height, rise) : checkedAdd(half.height, rise));
}

std::int64_t drawAround(std::int64_t middle, std::int64_t reach, const RandomSource &random)
{
    const std::int64_t lowest = checkedSubtract(middle, reach);
    return random.fresh(lowest, checkedAdd(middle, reach))();
}

} // namespace

DriftRanges driftRanges(const DriftScreen &screen)
{
    const Halves half(screen);
    return {{half.width, truncated(screen.width)},
            {0, half.width},
            {0, half.height},
            {half.height, truncated(screen.height)}};
}

std::vector<Point> getTransitPoints(const DriftScreen &screen, const RandomSource &random)
{
    const Halves half(screen);
    std::vector<Point> points(4);
    const std::size_t first = random.chooser();
    if (first < points.size()) {
        for (std::size_t index = 0; index < points.size(); ++index)
            points[index] = transitPoint(static_cast<Slot>((first + index) % points.size()), half, random);
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
    const bool isRight = end.x > middleX;
    const bool isTop = end.y < middleY;
    // No comparison holds for NaN.
    if (!(isRight || end.x < middleX) || !(isTop || end.y > middleY))
        return {};
    // The shapes differ from quarter to quarter on purpose.
    if (isRight && !isTop) {
        const std::int64_t x = random.positiveX();
        const std::int64_t reach = scaled(checkedSubtract(x, half.width), half.height, half.width);
        return point(x, drawAround(half.height, reach, random));
    }
    if (!isRight && isTop) {
        const std::int64_t x = random.negativeX();
        const std::int64_t reach = scaled(x, half.height, half.width);
        return point(x, drawAround(half.height, reach, random));
    }
    const std::int64_t y = isTop ? random.positiveY() : random.negativeY();
    const std::int64_t reach = scaled(y, half.width, half.height);
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
        // Braced initialisers are evaluated from left to right, which fixes the order of the draws.
        path.curves.push_back({control(), control(), transitPoints[end]});
    }
    return path;
}

} // namespace TQFoundation
