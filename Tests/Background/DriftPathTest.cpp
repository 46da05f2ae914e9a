#include "DriftPath.h"

#include "DeathTest.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <deque>
#include <limits>
#include <random>
#include <string>

namespace TQFoundation {
namespace {

using Testing::trapSignal;

constexpr DriftScreen phone{390, 844};
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr std::int64_t minimum = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t maximum = std::numeric_limits<std::int64_t>::max();

/// Random source that returns prepared draws, 0 after the last one, and records which sources were asked.
class Script
{
public:
    explicit Script(std::deque<std::int64_t> draws, std::uint32_t choice = 0)
        : source{[this, choice] { return log.emplace_back("chooser"), choice; },
                 [this] { return next("positiveX"); },
                 [this] { return next("negativeX"); },
                 [this] { return next("positiveY"); },
                 [this] { return next("negativeY"); },
                 [this](std::int64_t lowest, std::int64_t highest) -> IntegerSource {
                     return
                         [this, name = std::to_string(lowest) + ".." + std::to_string(highest)] { return next(name); };
                 }},
          m_draws(std::move(draws))
    {}
    Script(const Script &) = delete;
    Script &operator=(const Script &) = delete;
    ~Script() = default;

    std::vector<std::string> log;
    const RandomSource source;

private:
    std::int64_t next(const std::string &name)
    {
        log.push_back(name);
        if (m_draws.empty())
            return 0;
        const std::int64_t draw = m_draws.front();
        m_draws.pop_front();
        return draw;
    }

    std::deque<std::int64_t> m_draws;
};

using Log = std::vector<std::string>;

struct ControlPoint
{
    Point point;
    Log log; // the sources that were drawn from
};

ControlPoint control(const Point &end, const DriftScreen &screen, std::deque<std::int64_t> draws)
{
    Script script(std::move(draws));
    const Point point = getControlPoint(0, {end}, screen, script.source);
    return {point, script.log};
}

// The ranges.

TEST(DriftRanges, AreScreenHalvesSharingTheMiddle)
{
    EXPECT_EQ(driftRanges(phone), (DriftRanges{{195, 390}, {0, 195}, {0, 422}, {422, 844}}));
}

TEST(DriftRanges, TruncateEachHalfAndSideSeparately)
{
    EXPECT_EQ(driftRanges({375, 667}), (DriftRanges{{187, 375}, {0, 187}, {0, 333}, {333, 667}}));
    EXPECT_EQ(driftRanges({411.9, 3.98}), (DriftRanges{{205, 411}, {0, 205}, {0, 1}, {1, 3}}));
    EXPECT_EQ(driftRanges({-3.9, 1.5}), (DriftRanges{{-1, -3}, {0, -1}, {0, 0}, {0, 1}})) << "towards zero";
}

TEST(DriftRanges, CoverAllOfSigned64Bits)
{
    const double largest = 9223372036854774784.0; // the double just below 2^63
    EXPECT_EQ(driftRanges({largest, 2}).positiveX.highest, 9223372036854774784);
    EXPECT_EQ(driftRanges({-0x1p63, 2}).positiveX.highest, minimum);
}

TEST(DriftRangesDeathTest, NonFiniteOrHugeScreenStopsProcess)
{
    for (const double side :
         {std::numeric_limits<double>::quiet_NaN(), infinity, -infinity, 0x1p63, -0x1.0000000000001p63}) {
        EXPECT_EXIT(driftRanges({side, 844}), testing::KilledBySignal(trapSignal), "");
        EXPECT_EXIT(driftRanges({390, side}), testing::KilledBySignal(trapSignal), "");
    }
}

// The four points.

TEST(TransitPoints, MatchTheWorkedExample)
{
    const Script script({300, 250, 100, 50});
    const std::vector<Point> points{{300, 195}, {250, 541}, {100, 638}, {50, 314}};
    EXPECT_EQ(getTransitPoints(phone, script.source), points);
}

TEST(TransitPoints, AreDrawnInSlotOrderAfterOneChoice)
{
    const std::array<Log, 4> orders{Log{"chooser", "positiveX", "positiveX", "negativeX", "negativeX"},
                                    Log{"chooser", "positiveX", "negativeX", "negativeX", "positiveX"},
                                    Log{"chooser", "negativeX", "negativeX", "positiveX", "positiveX"},
                                    Log{"chooser", "negativeX", "positiveX", "positiveX", "negativeX"}};
    for (std::uint32_t choice = 0; choice < orders.size(); ++choice) {
        Script script({200, 201, 202, 203}, choice);
        static_cast<void>(getTransitPoints(phone, script.source));
        EXPECT_EQ(script.log, orders.at(choice));
    }
}

TEST(TransitPoints, AreRotationsOfOneCycleForEveryChoice)
{
    const std::array<std::int64_t, 4> draws{300, 250, 100, 50};
    std::vector<Point> cycle = getTransitPoints(phone, Script({300, 250, 100, 50}).source);
    for (std::uint32_t choice = 0; choice < 4; ++choice) {
        std::deque<std::int64_t> rotated(draws.begin(), draws.end());
        std::rotate(rotated.begin(), rotated.begin() + choice, rotated.end());
        EXPECT_EQ(getTransitPoints(phone, Script(rotated, choice).source), cycle);
        std::rotate(cycle.begin(), cycle.begin() + 1, cycle.end());
    }
}

TEST(TransitPoints, RunClockwiseOnTheScreen)
{
    std::mt19937_64 engine(1);
    std::uniform_int_distribution<std::int64_t> right(196, 390);
    std::uniform_int_distribution<std::int64_t> left(1, 195);
    for (int round = 0; round < 1000; ++round) {
        const Script script({right(engine), right(engine), left(engine), left(engine)});
        const std::vector<Point> points = getTransitPoints(phone, script.source);
        double doubledArea = 0;
        for (std::size_t index = 0; index < 4; ++index) {
            const Point &from = points[index];
            const Point &to = points[(index + 1) % 4];
            doubledArea += from.x * to.y - to.x * from.y;
        }
        ASSERT_GT(doubledArea, 0) << "y grows downwards";
    }
}

TEST(TransitPoints, LieOnRightDiagonalsAndLeftDiamond)
{
    EXPECT_EQ(getTransitPoints(phone, Script({195, 195, 0, 0}).source),
              (std::vector<Point>{{195, 422}, {195, 422}, {0, 422}, {0, 422}}));
    EXPECT_EQ(getTransitPoints(phone, Script({390, 390, 195, 195}).source),
              (std::vector<Point>{{390, 0}, {390, 844}, {195, 844}, {195, 0}}));
}

TEST(TransitPoints, MultiplyBeforeDividingAndTruncateTowardsZero)
{
    // 1 * 422 / 195 is 2; -1 * 422 / 195 is -2, not -3.
    EXPECT_EQ(getTransitPoints(phone, Script({196, 194, 1, -1}).source),
              (std::vector<Point>{{196, 420}, {194, 420}, {1, 424}, {-1, 424}}));
}

TEST(TransitPoints, AreZeroWithoutDrawsForInvalidChoice)
{
    for (const std::uint32_t choice : {4U, 5U, std::numeric_limits<std::uint32_t>::max()}) {
        Script script({300, 250, 100, 50}, choice);
        EXPECT_EQ(getTransitPoints(phone, script.source), std::vector<Point>(4));
        EXPECT_EQ(script.log, Log{"chooser"});
    }
}

TEST(TransitPointsDeathTest, ScreenNarrowerThanTwoPointsStopsTheProcess)
{
    EXPECT_EXIT(getTransitPoints({1.9, 844}, Script({}).source), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(getTransitPoints({0, 0}, Script({}).source), testing::KilledBySignal(trapSignal), "");
}

TEST(TransitPointsDeathTest, NonFiniteScreenStopsTheProcess)
{
    EXPECT_EXIT(getTransitPoints({390, infinity}, Script({}).source), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(getTransitPoints({std::numeric_limits<double>::quiet_NaN(), 844}, Script({}).source),
                testing::KilledBySignal(trapSignal), "");
}

TEST(TransitPointsDeathTest, AnyOverflowStopsTheProcess)
{
    // One case each: subtracting the middle, multiplying, dividing, and the last addition and subtraction.
    EXPECT_EXIT(getTransitPoints(phone, Script({minimum}).source), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(getTransitPoints(phone, Script({maximum}).source), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(getTransitPoints({-2, 2}, Script({0, 0, minimum, 0}).source), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(getTransitPoints({2, 2}, Script({0, 0, maximum, 0}).source), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(getTransitPoints({2, 2}, Script({0, 0, 0, minimum}).source), testing::KilledBySignal(trapSignal), "");
}

// Which step stops the process is known from the neighbouring draw, which all steps accept.

TEST(TransitPoints, AcceptResultsAtBothEndsOf64Bits)
{
    const auto y = [](const DriftScreen &screen, std::size_t index, std::int64_t draw) {
        std::deque<std::int64_t> draws(4, static_cast<std::int64_t>(screen.width / 2));
        draws.at(index) = draw;
        return getTransitPoints(screen, Script(draws).source).at(index).y;
    };
    EXPECT_EQ(y({390, 2}, 0, minimum + 195), static_cast<double>(1 - minimum / 195)) << "subtracting the middle";
    EXPECT_EQ(y({2, 2}, 3, minimum + 2), 0x1p63) << "subtracting from the middle";
    EXPECT_EQ(y({2, -2}, 3, minimum + 1), -0x1p63) << "subtracting from the middle";
    EXPECT_EQ(y({2, 2}, 2, maximum - 1), 0x1p63) << "adding to the middle";
    EXPECT_EQ(y({2, -2}, 2, maximum), -0x1p63) << "adding to the middle";
}

TEST(TransitPointsDeathTest, OneStepBeyondEitherEndStopsTheProcess)
{
    const auto draw = [](const DriftScreen &screen, std::size_t index, std::int64_t value) {
        std::deque<std::int64_t> draws(4, static_cast<std::int64_t>(screen.width / 2));
        draws.at(index) = value;
        static_cast<void>(getTransitPoints(screen, Script(draws).source));
    };
    // Subtracting the middle, subtracting from it, adding to it.
    EXPECT_EXIT(draw({390, 2}, 0, minimum + 194), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(draw({2, 2}, 3, minimum + 1), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(draw({2, -14}, 3, -(maximum / 7)), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(draw({2, 2}, 2, maximum), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(draw({2, -4}, 2, std::int64_t{1} << 62), testing::KilledBySignal(trapSignal), "");
}

// Control points.

TEST(ControlPoint, UpperRightMatchesTheWorkedExample)
{
    const auto [point, log] = control({300, 195}, phone, {100, 200});
    EXPECT_EQ(log, (Log{"positiveY", "149..241"}));
    EXPECT_EQ(point, (Point{200, 100}));
}

TEST(ControlPoint, LowerRightMatchesTheWorkedExample)
{
    const auto [point, log] = control({250, 541}, phone, {300, 200});
    EXPECT_EQ(log, (Log{"positiveX", "195..649"}));
    EXPECT_EQ(point, (Point{300, 200}));
}

TEST(ControlPoint, LowerLeftMatchesTheWorkedExample)
{
    const auto [point, log] = control({100, 638}, phone, {700, -100});
    EXPECT_EQ(log, (Log{"negativeY", "-128..518"}));
    EXPECT_EQ(point, (Point{-100, 700}));
}

TEST(ControlPoint, UpperLeftMatchesTheWorkedExample)
{
    const auto [point, log] = control({50, 314}, phone, {150, 98});
    EXPECT_EQ(log, (Log{"negativeX", "98..746"}));
    EXPECT_EQ(point, (Point{150, 98}));
}

TEST(ControlPoint, LowerLeftMayLieOffScreen)
{
    EXPECT_EQ(control({100, 638}, phone, {844}).log, (Log{"negativeY", "-195..585"}));
}

TEST(ControlPoint, OtherQuartersDrawFromTrianglesOnScreen)
{
    EXPECT_EQ(control({300, 195}, phone, {0}).log, (Log{"positiveY", "195..195"}));
    EXPECT_EQ(control({300, 195}, phone, {422}).log, (Log{"positiveY", "0..390"}));
    EXPECT_EQ(control({250, 541}, phone, {195}).log, (Log{"positiveX", "422..422"}));
    EXPECT_EQ(control({250, 541}, phone, {390}).log, (Log{"positiveX", "0..844"}));
    EXPECT_EQ(control({50, 314}, phone, {0}).log, (Log{"negativeX", "422..422"}));
    EXPECT_EQ(control({50, 314}, phone, {195}).log, (Log{"negativeX", "0..844"}));
}

TEST(ControlPoint, IsZeroOnCentreRowOrColumn)
{
    for (const Point &end : {Point{195, 100}, Point{195, 700}, Point{100, 422}, Point{300, 422}, Point{195, 422}}) {
        const auto [point, log] = control(end, phone, {100, 100});
        EXPECT_EQ(point, Point());
        EXPECT_EQ(log, Log());
    }
}

TEST(ControlPoint, IsZeroWithoutDrawsForNaN)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    for (const Point &end : {Point{nan, 100}, Point{nan, 700}, Point{100, nan}, Point{300, nan}, Point{nan, nan}}) {
        const auto [point, log] = control(end, phone, {100, 100});
        EXPECT_EQ(point, Point());
        EXPECT_EQ(log, Log());
    }
}

TEST(ControlPoint, IsZeroForPointAtMiddleOfScreen)
{
    const std::vector<Point> points = getTransitPoints(phone, Script({195, 195, 100, 50}).source);
    for (const std::int64_t index : {0, 1})
        EXPECT_EQ(getControlPoint(index, points, phone, Script({9, 9}).source), Point());
}

TEST(ControlPoint, IsZeroForPointAtLeftEdge)
{
    const std::vector<Point> points = getTransitPoints(phone, Script({300, 250, 0, 0}).source);
    for (const std::int64_t index : {2, 3})
        EXPECT_EQ(getControlPoint(index, points, phone, Script({9, 9}).source), Point());
}

TEST(ControlPoint, RightPointLeftOfMiddleCountsAsLeft)
{
    constexpr DriftScreen odd{375, 667};
    const std::vector<Point> points = getTransitPoints(odd, Script({187, 187, 100, 50}).source);
    ASSERT_EQ(points[0], (Point{187, 333})) << "just left of 187.5 and just above 333.5";
    EXPECT_EQ(control(points[0], odd, {10, 0}).log.front(), "negativeX");
    EXPECT_EQ(control({187, 400}, odd, {400, 0}).log.front(), "negativeY");
}

TEST(ControlPointDeathTest, IndexOutOfRangeStopsTheProcess)
{
    const Script script({100, 100});
    const std::vector<Point> points{{300, 195}, {250, 541}, {100, 638}, {50, 314}};
    for (const std::int64_t index : {minimum, std::int64_t{-1}, std::int64_t{4}, maximum})
        EXPECT_EXIT(getControlPoint(index, points, phone, script.source), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(getControlPoint(0, {}, phone, script.source), testing::KilledBySignal(trapSignal), "");
}

TEST(ControlPointDeathTest, ZeroHalfOfScreenStopsTheProcess)
{
    // One end point in each quarter.
    constexpr DriftScreen flat{390, 1.9};
    constexpr DriftScreen narrow{1.9, 844};
    EXPECT_EXIT(control({300, 0}, flat, {100}), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(control({100, 1}, flat, {100}), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(control({1, 500}, narrow, {100}), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(control({0, 100}, narrow, {100}), testing::KilledBySignal(trapSignal), "");
}

TEST(ControlPointDeathTest, AnyOverflowStopsTheProcess)
{
    for (const std::int64_t draw : {minimum, maximum}) {
        for (const Point &end : {Point{300, 195}, Point{250, 541}, Point{100, 638}, Point{50, 314}})
            EXPECT_EXIT(control(end, phone, {draw}), testing::KilledBySignal(trapSignal), "");
    }
    // The product fits, adding the middle overflows.
    EXPECT_EXIT(control({3, 0}, {4, 2}, {maximum / 2}), testing::KilledBySignal(trapSignal), "");
}

// The line.

TEST(DriftPath, DrawsRandomNumbersInFixedOrder)
{
    Script script({300, 250, 100, 50});
    const std::vector<Point> points = getTransitPoints(phone, script.source);
    static_cast<void>(driftPath(points, phone, script.source));
    const std::array<std::string, 13> sources{"chooser",   "positiveX", "positiveX", "negativeX", "negativeX",
                                              "positiveX", "positiveX", "negativeY", "negativeY", "negativeX",
                                              "negativeX", "positiveY", "positiveY"};
    Log longLived;
    for (std::size_t index = 0; index < script.log.size(); ++index) {
        // After the four points, every second draw is from a fresh source.
        const bool isFresh = index >= 5 && index % 2 == 0;
        EXPECT_EQ(script.log[index].find("..") != std::string::npos, isFresh) << script.log[index];
        if (!isFresh)
            longLived.push_back(script.log[index]);
    }
    EXPECT_EQ(longLived, Log(sources.begin(), sources.end()));
}

TEST(DriftPath, PassesThroughPointsWithDrawnControlPoints)
{
    const std::vector<Point> points{{300, 195}, {250, 541}, {100, 638}, {50, 314}};
    const Script script({300, 200, 310, 210, 700, -100, 710, -90, 150, 98, 160, 99, 100, 200, 110, 210});
    const Path path = driftPath(points, phone, script.source);
    EXPECT_EQ(path,
              (Path{{300, 195},
                    {{{300, 200}, {310, 210}, {250, 541}},
                     {{-100, 700}, {-90, 710}, {100, 638}},
                     {{150, 98}, {160, 99}, {50, 314}},
                     {{200, 100}, {210, 110}, {300, 195}}},
                    true}));
}

TEST(DriftPath, XSourcesContinueFromLineToLine)
{
    std::int64_t right = 200;
    std::int64_t left = 50;
    const auto constant = [](std::int64_t number) { return [number] { return number; }; };
    const RandomSource source{
        [] { return 0U; },      [&] { return right++; },
        [&] { return left++; }, constant(100),
        constant(700),          [&](std::int64_t lowest, std::int64_t) { return constant(lowest); }};
    for (std::int64_t line = 0; line < 3; ++line) {
        const std::vector<Point> points = getTransitPoints(phone, source);
        const Path path = driftPath(points, phone, source);
        const double firstRight = 200 + 4 * static_cast<double>(line);
        const double firstLeft = 50 + 4 * static_cast<double>(line);
        EXPECT_EQ(points[0].x, firstRight);
        EXPECT_EQ(points[1].x, firstRight + 1);
        EXPECT_EQ(path.curves[0].control1.x, firstRight + 2);
        EXPECT_EQ(path.curves[0].control2.x, firstRight + 3);
        EXPECT_EQ(points[2].x, firstLeft);
        EXPECT_EQ(points[3].x, firstLeft + 1);
        EXPECT_EQ(path.curves[2].control1.x, firstLeft + 2);
        EXPECT_EQ(path.curves[2].control2.x, firstLeft + 3);
    }
}

TEST(DriftPathDeathTest, FewerThanFourPointsStopTheProcess)
{
    EXPECT_EXIT(driftPath({{300, 195}, {250, 541}, {100, 638}}, phone, Script({}).source),
                testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(driftPath({}, phone, Script({}).source), testing::KilledBySignal(trapSignal), "");
}

// The same formulas in arithmetic that cannot overflow.
TEST(DriftPath, MatchesWiderArithmeticOnAnyScreen)
{
    __extension__ using Wide = __int128;
    std::mt19937_64 engine(5);
    std::uniform_real_distribution<double> exponents(0.31, 9);
    for (int round = 0; round < 20'000; ++round) {
        const DriftScreen screen{std::pow(10, exponents(engine)), std::pow(10, exponents(engine))};
        const DriftRanges ranges = driftRanges(screen);
        const Wide halfWidth = ranges.negativeX.highest;
        const Wide halfHeight = ranges.positiveY.highest;
        const auto drawn = [&](const IntegerRange &range) {
            return std::uniform_int_distribution<std::int64_t>(range.lowest, range.highest)(engine);
        };
        const std::int64_t topRight = drawn(ranges.positiveX);
        const std::int64_t bottomRight = drawn(ranges.positiveX);
        const std::int64_t bottomLeft = drawn(ranges.negativeX);
        const std::int64_t topLeft = drawn(ranges.negativeX);
        const Script script({topRight, bottomRight, bottomLeft, topLeft});
        const std::vector<Point> points = getTransitPoints(screen, script.source);
        const auto expect = [&](std::size_t index, Wide y) { ASSERT_EQ(points[index].y, static_cast<double>(y)); };
        expect(0, halfHeight - (topRight - halfWidth) * halfHeight / halfWidth);
        expect(1, halfHeight + (bottomRight - halfWidth) * halfHeight / halfWidth);
        expect(2, halfHeight + bottomLeft * halfHeight / halfWidth);
        expect(3, halfHeight - topLeft * halfHeight / halfWidth);

        const std::int64_t y = drawn(ranges.negativeY);
        const auto reach = static_cast<std::int64_t>(y * halfWidth / halfHeight);
        const auto middle = static_cast<std::int64_t>(halfWidth);
        ASSERT_EQ(control({0, screen.height}, screen, {y}).log.back(),
                  std::to_string(middle - reach) + ".." + std::to_string(middle + reach));
    }
}

} // namespace
} // namespace TQFoundation
