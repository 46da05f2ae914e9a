// The wandering line over arbitrary screens and draws, against its formulas in arithmetic that is wide enough for all
// of them. Where those leave 64 bits or divide by zero the process would stop, so such inputs are passed over.

#include "DriftPath.h"
#include "Require.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <limits>
#include <optional>

using namespace TQFoundation;
using Fuzzing::require;

namespace {

__extension__ using Wide = __int128;

struct Stops
{};

/// One draw: what was asked for and what was answered.
struct Draw
{
    char source; ///< p, n, P, N for the four long-lived ones, f for a fresh one
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

/// Answers of the random source: taken from the input the first time, and the same when they are asked for again.
struct Answers
{
    std::vector<std::int64_t> values;

    std::int64_t at(std::size_t index, const IntegerRange &range) const
    {
        const std::int64_t wanted = index < values.size() ? values[index] : 0;
        const Wide count = Wide(range.highest) - range.lowest + 1;
        if (count <= 0)
            throw Stops();
        return static_cast<std::int64_t>(range.lowest + ((Wide(wanted) % count) + count) % count);
    }
};

struct Line
{
    std::vector<Point> points;
    std::vector<Point> controls;
    std::vector<Draw> draws;
};

/// The formulas as they are written down.
class Worked
{
public:
    Worked(const DriftScreen &screen, std::uint32_t first, const Answers &answers)
        : m_screen(screen),
          m_answers(answers)
    {
        w2 = integer(screen.width * 0.5);
        h2 = integer(screen.height * 0.5);
        wi = integer(screen.width);
        hi = integer(screen.height);
        for (std::uint32_t slot = first; slot < first + 4; ++slot)
            line.points.push_back(transit(slot % 4));
        for (const std::size_t end : {1U, 1U, 2U, 2U, 3U, 3U, 0U, 0U})
            line.controls.push_back(control(line.points[end]));
    }

    Line line;

private:
    std::int64_t draw(char source)
    {
        switch (source) {
        case 'p':
            return draw(source, {w2, wi});
        case 'n':
            return draw(source, {0, w2});
        case 'P':
            return draw(source, {0, h2});
        default:
            return draw(source, {h2, hi});
        }
    }

    std::int64_t draw(char source, IntegerRange range)
    {
        if (range.lowest > range.highest)
            throw Stops();
        const std::int64_t value = m_answers.at(line.draws.size(), range);
        line.draws.push_back({source, range, value});
        return value;
    }

    Point transit(std::uint32_t slot)
    {
        const bool isRight = slot < 2;
        const std::int64_t x = draw(isRight ? 'p' : 'n');
        const std::int64_t rise = scaled(isRight ? narrow(Wide(x) - w2) : x, h2, w2);
        const bool isTop = slot == 0 || slot == 3;
        return {double(x), double(narrow(isTop ? Wide(h2) - rise : Wide(h2) + rise))};
    }

    Point control(Point end)
    {
        const double halfW = m_screen.width * 0.5;
        const double halfH = m_screen.height * 0.5;
        const auto around = [&](std::int64_t middle, std::int64_t reach) {
            return draw('f', {narrow(Wide(middle) - reach), narrow(Wide(middle) + reach)});
        };
        if (end.x > halfW && end.y < halfH) {
            const std::int64_t y = draw('P');
            return {double(around(w2, scaled(y, w2, h2))), double(y)};
        }
        if (end.x > halfW && end.y > halfH) {
            const std::int64_t x = draw('p');
            return {double(x), double(around(h2, scaled(narrow(Wide(x) - w2), h2, w2)))};
        }
        if (end.x < halfW && end.y > halfH) {
            const std::int64_t y = draw('N');
            return {double(around(w2, scaled(y, w2, h2))), double(y)};
        }
        if (end.x < halfW && end.y < halfH) {
            const std::int64_t x = draw('n');
            return {double(x), double(around(h2, scaled(x, h2, w2)))};
        }
        return {};
    }

    DriftScreen m_screen;
    const Answers &m_answers;
    std::int64_t w2 = 0;
    std::int64_t h2 = 0;
    std::int64_t wi = 0;
    std::int64_t hi = 0;
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
    Answers answers;
    while (data.remaining_bytes() > 0 && answers.values.size() < 24)
        answers.values.push_back(data.ConsumeIntegral<std::int64_t>());

    std::optional<Line> expected;
    try {
        expected = Worked(screen, first, answers).line;
    } catch (const Stops &) {
        return 0;
    }

    const DriftRanges ranges = driftRanges(screen);
    std::vector<Draw> draws;
    const auto draw = [&](char source, const IntegerRange &range) {
        const std::int64_t value = answers.at(draws.size(), range);
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
    require(draws == expected->draws);
    require(path.start == points[0] && path.isClosed && path.curves.size() == 4);
    for (std::size_t curve = 0; curve < 4; ++curve) {
        const CubicCurve wanted{expected->controls[2 * curve], expected->controls[2 * curve + 1],
                                points[(curve + 1) % 4]};
        require(path.curves[curve] == wanted);
    }
    return 0;
}
