#include "ShuffledDistribution.h"

#include "DeathTest.h"

#include <cmath>
#include <map>
#include <set>
#include <vector>

namespace TQFoundation {
namespace {

constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t greatest = std::numeric_limits<std::int64_t>::max();

// Whether the counts are as even as those of a uniform source, by Pearson's chi-square: within five standard deviations
// of its mean, which a uniform source leaves less than once in a million runs.
bool areEven(const std::vector<int> &counts)
{
    double total = 0;
    for (const int count : counts)
        total += count;
    const double expected = total / static_cast<double>(counts.size());
    double chiSquare = 0;
    for (const int count : counts)
        chiSquare += (count - expected) * (count - expected) / expected;
    const double freedom = static_cast<double>(counts.size()) - 1;
    return chiSquare < freedom + 5 * std::sqrt(2 * freedom) + 5;
}

// In which of equally large parts of a range a draw falls.
std::size_t part(std::int64_t draw, std::int64_t lowest, std::int64_t highest, std::size_t parts)
{
    const long double size = static_cast<long double>(highest) - static_cast<long double>(lowest) + 1;
    const long double above = static_cast<long double>(draw) - static_cast<long double>(lowest);
    return std::min(parts - 1, static_cast<std::size_t>(above * static_cast<long double>(parts) / size));
}

struct Case
{
    std::int64_t lowest;
    std::int64_t highest;
    std::size_t parts;
};

constexpr Case cases[] = {
    {5, 6, 2},       {-1, 1, 3},         {0, 7, 8},       {1, 9, 9},         {-50, 49, 100},       {0, 195, 196},
    {195, 390, 196}, {0, 6'000'000, 97}, {least, -2, 64}, {0, greatest, 64}, {least, greatest, 64}};

TEST(ShuffledDistribution, EveryDrawOfAnyRunIsUniformByItself)
{
    for (const auto &[lowest, highest, parts] : cases) {
        // The same draw of many runs that know nothing of each other.
        std::vector<std::vector<int>> counts(5, std::vector<int>(parts));
        for (std::uint64_t seed = 0; seed < 40'000; ++seed) {
            ShuffledDistribution distribution(lowest, highest, seed);
            for (auto &count : counts)
                ++count[part(distribution.nextInt(), lowest, highest, parts)];
        }
        for (const auto &count : counts)
            EXPECT_TRUE(areEven(count)) << lowest << ".." << highest;
    }
}

TEST(ShuffledDistribution, IsUniformOverOneLongRun)
{
    for (const auto &[lowest, highest, parts] : cases) {
        ShuffledDistribution distribution(lowest, highest, 7);
        std::vector<int> counts(parts);
        for (int draw = 0; draw < 400'000; ++draw)
            ++counts[part(distribution.nextInt(), lowest, highest, parts)];
        EXPECT_TRUE(areEven(counts)) << lowest << ".." << highest;
    }
}

TEST(ShuffledDistribution, StaysInItsRangeAndReachesBothEnds)
{
    for (const auto &[lowest, highest, parts] :
         {Case{-3, 4, 8}, Case{195, 390, 196}, Case{greatest - 9, greatest, 10}, Case{least, least + 9, 10}}) {
        ShuffledDistribution distribution(lowest, highest, 3);
        std::set<std::int64_t> seen;
        for (int draw = 0; draw < 20'000; ++draw)
            seen.insert(distribution.nextInt());
        EXPECT_EQ(*seen.begin(), lowest);
        EXPECT_EQ(*seen.rbegin(), highest);
        EXPECT_EQ(seen.size(), parts);
    }
}

// How often a draw lies within an eighth of the range of the one before it: about a quarter of the time where draws do
// not know of each other, less at the ends of the range.
double clustering(std::int64_t lowest, std::int64_t highest, bool shuffled)
{
    constexpr int draws = 200'000;
    ShuffledDistribution distribution(lowest, highest, 11);
    const long double eighth = (static_cast<long double>(highest) - static_cast<long double>(lowest)) / 8;
    int near = 0;
    std::int64_t previous = distribution.nextInt();
    for (int draw = 0; draw < draws; ++draw) {
        const std::int64_t next = shuffled
            ? distribution.nextInt()
            : ShuffledDistribution(lowest, highest, static_cast<std::uint64_t>(draw)).nextInt();
        if (std::abs(static_cast<long double>(next) - static_cast<long double>(previous)) <= eighth)
            ++near;
        previous = next;
    }
    return near / static_cast<double>(draws);
}

TEST(ShuffledDistribution, SimilarValuesInARowAreUnlikely)
{
    for (const auto &[lowest, highest] :
         {std::pair<std::int64_t, std::int64_t>{0, 195}, {-500'000, 500'000}, {least, greatest}}) {
        EXPECT_NEAR(clustering(lowest, highest, false), 0.234, 0.01) << "without shuffling";
        EXPECT_NEAR(clustering(lowest, highest, true), 0.234 * 0.25, 0.01);
    }
}

TEST(ShuffledDistribution, ARunOfThreeSimilarValuesIsRare)
{
    ShuffledDistribution distribution(0, 999, 2);
    int runs = 0;
    int length = 1;
    std::int64_t previous = distribution.nextInt();
    constexpr int draws = 400'000;
    for (int draw = 0; draw < draws; ++draw) {
        const std::int64_t next = distribution.nextInt();
        length = std::abs(next - previous) <= 125 ? length + 1 : 1;
        runs += length == 3;
        previous = next;
    }
    EXPECT_LT(runs, draws / 200) << "without shuffling about one draw in 20 would end such a run";
}

TEST(ShuffledDistribution, TheSameValueTwiceIsUnlikelyInSmallRangesToo)
{
    for (const std::int64_t highest : {1, 2, 5, 9}) {
        ShuffledDistribution distribution(0, highest, 6);
        int repeats = 0;
        std::int64_t previous = distribution.nextInt();
        constexpr int draws = 100'000;
        for (int draw = 0; draw < draws; ++draw) {
            const std::int64_t next = distribution.nextInt();
            repeats += next == previous;
            previous = next;
        }
        const double byChance = 1 / static_cast<double>(highest + 1);
        EXPECT_LT(repeats / static_cast<double>(draws), 0.6 * byChance) << highest;
    }
}

TEST(ShuffledDistribution, NoValueIsRuledOutAfterAnother)
{
    ShuffledDistribution distribution(0, 15, 9);
    std::set<std::pair<std::int64_t, std::int64_t>> pairs;
    std::int64_t previous = distribution.nextInt();
    for (int draw = 0; draw < 50'000; ++draw) {
        const std::int64_t next = distribution.nextInt();
        pairs.insert({previous, next});
        previous = next;
    }
    EXPECT_EQ(pairs.size(), 16U * 16U);
}

TEST(ShuffledDistribution, OfASingleValueDrawsThat)
{
    for (const std::int64_t value : {least, std::int64_t{-1}, std::int64_t{0}, greatest}) {
        ShuffledDistribution distribution(value, value);
        for (int draw = 0; draw < 100; ++draw)
            EXPECT_EQ(distribution.nextInt(), value);
    }
}

TEST(ShuffledDistribution, GivesTheSameDrawsForTheSameSeedAndACopyGoesOnAlike)
{
    ShuffledDistribution one(0, 1000, 42);
    ShuffledDistribution other(0, 1000, 42);
    for (int draw = 0; draw < 100; ++draw)
        ASSERT_EQ(one.nextInt(), other.nextInt());
    ShuffledDistribution copy = one;
    for (int draw = 0; draw < 100; ++draw)
        ASSERT_EQ(copy.nextInt(), one.nextInt());
}

TEST(ShuffledDistribution, WithoutASeedEachGoesItsOwnWay)
{
    std::set<std::int64_t> firsts;
    for (int made = 0; made < 1000; ++made)
        firsts.insert(ShuffledDistribution(least, greatest).nextInt());
    EXPECT_EQ(firsts.size(), 1000U);
}

TEST(ShuffledDistribution, OneDrawOfEachOfManyWithoutASeedIsUniform)
{
    std::vector<int> counts(4);
    for (int made = 0; made < 100'000; ++made)
        ++counts[static_cast<std::size_t>(ShuffledDistribution(0, 3).nextInt())];
    EXPECT_TRUE(areEven(counts));
}

TEST(ShuffledDistributionDeathTest, ALowestValueAboveTheHighestStopsTheProcess)
{
    EXPECT_EXIT(ShuffledDistribution(1, 0), testing::KilledBySignal(Testing::trapSignal), "");
    EXPECT_EXIT(ShuffledDistribution(greatest, least), testing::KilledBySignal(Testing::trapSignal), "");
}

TEST(SplitMix64, GivesThePublishedSequence)
{
    // The first outputs for the seed 1234567, as the algorithm's reference implementation gives them.
    SplitMix64 engine(1234567);
    EXPECT_EQ(engine(), 6457827717110365317U);
    EXPECT_EQ(engine(), 3203168211198807973U);
    EXPECT_EQ(engine(), 9817491932198370423U);
}

TEST(SplitMix64, DrawsFromAllNumbersOf64Bits)
{
    EXPECT_EQ(SplitMix64::min(), 0U);
    EXPECT_EQ(SplitMix64::max(), ~std::uint64_t{0});
}

} // namespace
} // namespace TQFoundation
