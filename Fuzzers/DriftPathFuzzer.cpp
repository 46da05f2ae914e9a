// Compares the drift path of arbitrary screens and draws with the same formulas in 128-bit arithmetic. Inputs for which
// the library stops the process (overflow, division by zero) are skipped.

#include "DriftPath.h"
#include "Require.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <limits>
#include <optional>

using namespace TQFoundation;
using Fuzzing::require;

namespace {

__extension__ using Wide = __int128;

/// Thrown if the library would stop the process.
struct Stops
{};

/// One draw of a random integer.
struct Draw
{
    char source; ///< p, n, P, N for positiveX, negativeX, positiveY, negativeY; f for a fresh source
    IntegerRange range;
    std::int64_t value;

    bool operator==(const Draw &) const = default;
};

std::int64_t narrow(Wide value)
{
    if (value < std::numeric_limits<std::int64_t>::min() || value > std::numeric_limits<std::int64_t>::max())
        throw Stops();
    return static_cast<std::int64_t>(value);
}

std::int64_t integer(double value)
{
    if (!std::isfinite(value) || value < -0x1p63 || value >= 0x1p63)
        throw Stops();
    return static_cast<std::int64_t>(value);
}

std::int64_t scaled(std::int64_t value, std::int64_t by, std::int64_t over)
{
    const std::int64_t product = narrow(Wide(value) * by);
    if (over == 0)
        throw Stops();
    return narrow(Wide(product) / over);
}

/// Values of all draws in their order, from the fuzzer's input.
struct Values
{
    std::vector<std::int64_t> list;

    /// Maps the value of draw \a index into \a range.
    std::int64_t at(std::size_t index, const IntegerRange &range) const
    {
        const std::int64_t value = index < list.size() ? list[index] : 0;
        const Wide count = Wide(range.highest) - range.lowest + 1;
        if (count <= 0)
            throw Stops();
        return static_cast<std::int64_t>(range.lowest + ((Wide(value) % count) + count) % count);
    }
};

struct Line
{
    std::vector<Point> points;
    std::vector<Point> controls;
    std::vector<Draw> draws;
};

/// The expected line, computed by the documented formulas.
class Expected
{
public:
    Expected(const DriftScreen &screen, std::uint32_t first, Point anyEnd, const Values &values)
        : m_screen(screen),
          m_values(values)
    {
        halfWidth = integer(screen.width * 0.5);
        halfHeight = integer(screen.height * 0.5);
        width = integer(screen.width);
        height = integer(screen.height);
        for (std::uint32_t slot = first; slot < first + 4; ++slot)
            line.points.push_back(transit(slot % 4));
        for (const std::size_t end : {1U, 1U, 2U, 2U, 3U, 3U, 0U, 0U})
            line.controls.push_back(control(line.points[end]));
        line.controls.push_back(control(anyEnd));
    }

    Line line;

private:
    std::int64_t draw(char source)
    {
        switch (source) {
        case 'p':
            return draw(source, {halfWidth, width});
        case 'n':
            return draw(source, {0, halfWidth});
        case 'P':
            return draw(source, {0, halfHeight});
        default:
            return draw(source, {halfHeight, height});
        }
    }

    std::int64_t draw(char source, IntegerRange range)
    {
        if (range.lowest > range.highest)
            throw Stops();
        const std::int64_t value = m_values.at(line.draws.size(), range);
        line.draws.push_back({source, range, value});
        return value;
    }

    Point transit(std::uint32_t slot)
    {
        const bool isRight = slot < 2;
        const std::int64_t x = draw(isRight ? 'p' : 'n');
        const std::int64_t rise = scaled(isRight ? narrow(Wide(x) - halfWidth) : x, halfHeight, halfWidth);
        const bool isTop = slot == 0 || slot == 3;
        return {double(x), double(narrow(isTop ? Wide(halfHeight) - rise : Wide(halfHeight) + rise))};
    }

    Point control(Point end)
    {
        const double middleX = m_screen.width * 0.5;
        const double middleY = m_screen.height * 0.5;
        const auto around = [&](std::int64_t middle, std::int64_t reach) {
            return draw('f', {narrow(Wide(middle) - reach), narrow(Wide(middle) + reach)});
        };
        if (end.x > middleX && end.y < middleY) {
            const std::int64_t y = draw('P');
            return {double(around(halfWidth, scaled(y, halfWidth, halfHeight))), double(y)};
        }
        if (end.x > middleX && end.y > middleY) {
            const std::int64_t x = draw('p');
            return {double(x), double(around(halfHeight, scaled(narrow(Wide(x) - halfWidth), halfHeight, halfWidth)))};
        }
        if (end.x < middleX && end.y > middleY) {
            const std::int64_t y = draw('N');
            return {double(around(halfWidth, scaled(y, halfWidth, halfHeight))), double(y)};
        }
        if (end.x < middleX && end.y < middleY) {
            const std::int64_t x = draw('n');
            return {double(x), double(around(halfHeight, scaled(x, halfHeight, halfWidth)))};
        }
        return {};
    }

    DriftScreen m_screen;
    const Values &m_values;
    std::int64_t halfWidth = 0;
    std::int64_t halfHeight = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;
};

double side(FuzzedDataProvider &data)
{
    switch (data.ConsumeIntegralInRange(0, 3)) {
    case 0:
        return data.ConsumeIntegralInRange(0, 4096);
    case 1:
        return data.ConsumeIntegralInRange(0, 1 << 16) / 8.0;
    case 2:
        return std::ldexp(data.ConsumeFloatingPointInRange(0.5, 1.0), data.ConsumeIntegralInRange(-4, 70));
    default:
        return data.ConsumeFloatingPoint<double>();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const DriftScreen screen{side(data), side(data)};
    const auto first = data.ConsumeIntegralInRange<std::uint32_t>(0, 3);
    Values values;
    while (data.remaining_bytes() > 0 && values.list.size() < 24)
        values.list.push_back(data.ConsumeIntegral<std::int64_t>());

    Point anyEnd; // also infinite and NaN, which no line has
    if (values.list.size() > 1)
        anyEnd = {std::bit_cast<double>(values.list[0]), std::bit_cast<double>(values.list[1])};

    std::optional<Line> expected;
    try {
        expected = Expected(screen, first, anyEnd, values).line;
    } catch (const Stops &) {
        return 0;
    }

    const DriftRanges ranges = driftRanges(screen);
    std::vector<Draw> draws;
    const auto draw = [&](char source, const IntegerRange &range) {
        const std::int64_t value = values.at(draws.size(), range);
        draws.push_back({source, range, value});
        return value;
    };
    const RandomSource random{[&] { return first; },
                              [&] { return draw('p', ranges.positiveX); },
                              [&] { return draw('n', ranges.negativeX); },
                              [&] { return draw('P', ranges.positiveY); },
                              [&] { return draw('N', ranges.negativeY); },
                              [&](std::int64_t lowest, std::int64_t highest) -> IntegerSource {
                                  return [&draw, lowest, highest] { return draw('f', {lowest, highest}); };
                              }};
    const std::vector<Point> points = getTransitPoints(screen, random);
    require(points == expected->points);
    const Path path = driftPath(points, screen, random);
    const Point control = getControlPoint(0, {anyEnd}, screen, random);
    require(control == expected->controls.back());
    require(draws == expected->draws);
    require(path.start == points[0] && path.isClosed && path.curves.size() == 4);
    for (std::size_t curve = 0; curve < 4; ++curve) {
        const CubicCurve expectedCurve{expected->controls[2 * curve], expected->controls[2 * curve + 1],
                                       points[(curve + 1) % 4]};
        require(path.curves[curve] == expectedCurve);
    }
    return 0;
}
