#include "ChiSquare.h"
#include "RecordingPlatform.h"
#include "ShapeLayer.h"

#include <TQFoundation/AnimationView.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <map>
#include <vector>

namespace TQFoundation {
namespace {

using Testing::isUniform;

// The screen of the recording platform, halved.
constexpr int halfWidth = 195;
constexpr int halfHeight = 422;

enum Source { positiveX, negativeX, positiveY, negativeY };
constexpr std::array<int, 4> spans{195, 195, 422, 422};

struct FreshDraw
{
    int reach; // the range is the middle of the screen plus or minus this
    int offset; // from the lowest value of the range
};

/// The random draws that a line was made of, recovered from its points.
struct Draws
{
    int firstSlot = 0; // clockwise from the top right
    std::array<std::vector<int>, 4> bySource;
    std::array<std::vector<FreshDraw>, 4> freshBySlot;
};

// -1 if the point lies in no slot.
int slotOf(const Point &point)
{
    const double rise = std::trunc((point.x >= halfWidth ? point.x - halfWidth : point.x) * halfHeight / halfWidth);
    if (std::abs(point.y - halfHeight) != rise)
        return -1;
    const bool isTop = point.y < halfHeight;
    return point.x > halfWidth ? (isTop ? 0 : 1) : (isTop ? 3 : 2);
}

void addControlPoint(Draws &draws, int slot, const Point &control)
{
    const auto x = static_cast<int>(control.x);
    const auto y = static_cast<int>(control.y);
    const bool isDrawnAlongX = slot == 1 || slot == 3;
    const std::array sources{positiveY, positiveX, negativeY, negativeX};
    draws.bySource.at(sources.at(static_cast<std::size_t>(slot))).push_back(isDrawnAlongX ? x : y);
    const int along = slot == 1 ? x - halfWidth : slot == 3 ? x : y;
    const int reach = isDrawnAlongX ? along * halfHeight / halfWidth : along * halfWidth / halfHeight;
    const int lowest = (isDrawnAlongX ? halfHeight : halfWidth) - reach;
    draws.freshBySlot.at(static_cast<std::size_t>(slot)).push_back({reach, (isDrawnAlongX ? y : x) - lowest});
}

// Nothing if a point lies on the centre row or column, because it has no control points then.
std::optional<Draws> drawsOf(const Path &path)
{
    std::vector<Point> points{path.start};
    for (std::size_t index = 0; index < 3; ++index)
        points.push_back(path.curves.at(index).end);
    Draws draws;
    draws.firstSlot = slotOf(points[0]);
    for (const Point &point : points) {
        if (point.x == halfWidth || point.y == halfHeight)
            return std::nullopt;
        draws.bySource.at(slotOf(point) < 2 ? positiveX : negativeX).push_back(static_cast<int>(point.x));
    }
    for (const CubicCurve &curve : path.curves) {
        addControlPoint(draws, slotOf(curve.end), curve.control1);
        addControlPoint(draws, slotOf(curve.end), curve.control2);
    }
    return draws;
}

/// The lines of one view over many ticks.
class AnimationViewDraws : public testing::Test
{
protected:
    static constexpr int ticks = 20'000;

    AnimationViewDraws()
    {
        platform->records = false;
        const auto view = AnimationView::initWithFrame({});
        view->createTimer();
        for (int tick = 0; tick < ticks; ++tick, platform->advance(10))
            lines.push_back(drawsOf(view->shapeLayer()->path));
        platform->timers.front().lock()->invalidate();
    }

    Testing::InstalledRecordingPlatform platform;
    std::vector<std::optional<Draws>> lines;
};

// A source draws close to its previous value in a sixteenth of the cases. If it were made anew at each tick, the first
// draw of a tick would lie close to the last one of the previous tick in a quarter of the cases.
TEST_F(AnimationViewDraws, SourcesKeepTheirStateBetweenTicks)
{
    for (const Source source : {positiveX, negativeX, positiveY, negativeY}) {
        const int span = spans.at(source);
        int pairs = 0;
        int closePairs = 0;
        for (std::size_t line = 1; line < lines.size(); ++line) {
            if (!lines[line - 1] || !lines[line])
                continue;
            const int distance =
                std::abs(lines[line]->bySource.at(source).front() - lines[line - 1]->bySource.at(source).back());
            ++pairs;
            closePairs += std::min(distance, span - distance + 1) <= span / 8 ? 1 : 0;
        }
        EXPECT_GT(pairs, ticks * 9 / 10);
        EXPECT_NEAR(closePairs / static_cast<double>(pairs), 1.0 / 16, 0.02) << "source " << source;
    }
}

TEST_F(AnimationViewDraws, EachSlotIsFirstEquallyOften)
{
    std::vector<int> counts(4);
    for (const auto &line : lines) {
        if (!line)
            continue;
        ASSERT_GE(line->firstSlot, 0);
        ++counts.at(static_cast<std::size_t>(line->firstSlot));
    }
    EXPECT_TRUE(isUniform(counts)) << testing::PrintToString(counts);
}

TEST_F(AnimationViewDraws, FreshDrawsCoverTheirInclusiveRange)
{
    for (std::size_t slot = 0; slot < 4; ++slot) {
        double expectedEnds = 0;
        int lowestDraws = 0;
        int highestDraws = 0;
        for (const auto &line : lines) {
            if (!line)
                continue;
            for (const auto &[reach, offset] : line->freshBySlot.at(slot)) {
                ASSERT_TRUE(offset >= 0 && offset <= 2 * reach) << offset << " of " << 2 * reach;
                expectedEnds += 1.0 / (2 * reach + 1);
                lowestDraws += offset == 0 ? 1 : 0;
                highestDraws += offset == 2 * reach ? 1 : 0;
            }
        }
        // Six standard deviations.
        EXPECT_NEAR(lowestDraws, expectedEnds, 6 * std::sqrt(expectedEnds)) << "slot " << slot;
        EXPECT_NEAR(highestDraws, expectedEnds, 6 * std::sqrt(expectedEnds)) << "slot " << slot;
    }
}

TEST_F(AnimationViewDraws, FreshDrawsAreUniform)
{
    std::map<int, std::vector<int>> countsByReach;
    for (const auto &line : lines) {
        if (!line)
            continue;
        for (const auto &draws : line->freshBySlot) {
            for (const auto &[reach, offset] : draws) {
                auto &counts = countsByReach[reach];
                counts.resize(static_cast<std::size_t>(2 * reach + 1));
                ++counts.at(static_cast<std::size_t>(offset));
            }
        }
    }
    for (int reach = 1; reach <= 8; ++reach)
        EXPECT_TRUE(isUniform(countsByReach[reach])) << reach << ' ' << testing::PrintToString(countsByReach[reach]);
}

} // namespace
} // namespace TQFoundation
