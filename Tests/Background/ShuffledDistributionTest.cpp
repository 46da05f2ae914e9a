#include "ShuffledDistribution.h"

#include "ChiSquare.h"
#include "DeathTest.h"

#include <cmath>
#include <map>
#include <set>
#include <vector>

namespace TQFoundation {
namespace {

using Testing::isUniform;

constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t greatest = std::numeric_limits<std::int64_t>::max();

// Index of the bin, of equally large bins, that a draw falls in.
std::size_t bin(std::int64_t draw, std::int64_t lowest, std::int64_t highest, std::size_t bins)
{
    const long double size = static_cast<long double>(highest) - static_cast<long double>(lowest) + 1;
    const long double above = static_cast<long double>(draw) - static_cast<long double>(lowest);
    return std::min(bins - 1, static_cast<std::size_t>(above * static_cast<long double>(bins) / size));
}

struct Case
{
    std::int64_t lowest;
    std::int64_t highest;
    std::size_t bins;
};

constexpr Case cases[] = {
    {5, 6, 2},       {-1, 1, 3},         {0, 7, 8},       {1, 9, 9},         {-50, 49, 100},       {0, 195, 196},
    {195, 390, 196}, {0, 6'000'000, 97}, {least, -2, 64}, {0, greatest, 64}, {least, greatest, 64}};

TEST(ShuffledDistribution, EachDrawIsUniformByItself)
{
    for (const auto &[lowest, highest, bins] : cases) {
        // The first five draws of many independent sequences.
        std::vector<std::vector<int>> counts(5, std::vector<int>(bins));
        for (std::uint64_t seed = 0; seed < 40'000; ++seed) {
            ShuffledDistribution distribution(lowest, highest, seed);
            for (auto &count : counts)
                ++count[bin(distribution.nextInt(), lowest, highest, bins)];
        }
        for (const auto &count : counts)
            EXPECT_TRUE(isUniform(count)) << lowest << ".." << highest;
    }
}

TEST(ShuffledDistribution, OneLongSequenceIsUniform)
{
    for (const auto &[lowest, highest, bins] : cases) {
        ShuffledDistribution distribution(lowest, highest, 7);
        std::vector<int> counts(bins);
        for (int draw = 0; draw < 400'000; ++draw)
            ++counts[bin(distribution.nextInt(), lowest, highest, bins)];
        EXPECT_TRUE(isUniform(counts)) << lowest << ".." << highest;
    }
}

TEST(ShuffledDistribution, StaysInRangeAndReachesBothEnds)
{
    for (const auto &[lowest, highest, bins] :
         {Case{-3, 4, 8}, Case{195, 390, 196}, Case{greatest - 9, greatest, 10}, Case{least, least + 9, 10}}) {
        ShuffledDistribution distribution(lowest, highest, 3);
        std::set<std::int64_t> seen;
        for (int draw = 0; draw < 20'000; ++draw)
            seen.insert(distribution.nextInt());
        EXPECT_EQ(*seen.begin(), lowest);
        EXPECT_EQ(*seen.rbegin(), highest);
        EXPECT_EQ(seen.size(), bins);
    }
}

// Share of the draws that lie within an eighth of the range of the previous one. For independent draws that is about a
// quarter, less at the ends of the range.
double clustering(std::int64_t lowest, std::int64_t highest, bool isShuffled)
{
    constexpr int draws = 200'000;
    ShuffledDistribution distribution(lowest, highest, 11);
    const long double eighth = (static_cast<long double>(highest) - static_cast<long double>(lowest)) / 8;
    int near = 0;
    std::int64_t previous = distribution.nextInt();
    for (int draw = 0; draw < draws; ++draw) {
        const std::int64_t next = isShuffled
            ? distribution.nextInt()
            : ShuffledDistribution(lowest, highest, static_cast<std::uint64_t>(draw)).nextInt();
        if (std::abs(static_cast<long double>(next) - static_cast<long double>(previous)) <= eighth)
            ++near;
        previous = next;
    }
    return near / static_cast<double>(draws);
}

TEST(ShuffledDistribution, SimilarSuccessiveValuesAreUnlikely)
{
    for (const auto &[lowest, highest] :
         {std::pair<std::int64_t, std::int64_t>{0, 195}, {-500'000, 500'000}, {least, greatest}}) {
        EXPECT_NEAR(clustering(lowest, highest, false), 0.234, 0.01) << "without shuffling";
        EXPECT_NEAR(clustering(lowest, highest, true), 0.234 * 0.25, 0.01);
    }
}

TEST(ShuffledDistribution, RunsOfThreeSimilarValuesAreRare)
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

TEST(ShuffledDistribution, RepetitionIsUnlikelyInSmallRanges)
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
        const double chance = 1 / static_cast<double>(highest + 1);
        EXPECT_LT(repeats / static_cast<double>(draws), 0.6 * chance) << highest;
    }
}

TEST(ShuffledDistribution, AnyValueCanFollowAnyOther)
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

TEST(ShuffledDistribution, RangeOfOneValueDrawsThatValue)
{
    for (const std::int64_t value : {least, std::int64_t{-1}, std::int64_t{0}, greatest}) {
        ShuffledDistribution distribution(value, value);
        for (int draw = 0; draw < 100; ++draw)
            EXPECT_EQ(distribution.nextInt(), value);
    }
}

TEST(ShuffledDistribution, SameSeedAndCopiesGiveSameDraws)
{
    ShuffledDistribution one(0, 1000, 42);
    ShuffledDistribution other(0, 1000, 42);
    for (int draw = 0; draw < 100; ++draw)
        ASSERT_EQ(one.nextInt(), other.nextInt());
    ShuffledDistribution copy = one;
    for (int draw = 0; draw < 100; ++draw)
        ASSERT_EQ(copy.nextInt(), one.nextInt());
}

TEST(ShuffledDistribution, UnseededDistributionsDiffer)
{
    std::set<std::int64_t> firsts;
    for (int made = 0; made < 1000; ++made)
        firsts.insert(ShuffledDistribution(least, greatest).nextInt());
    EXPECT_EQ(firsts.size(), 1000U);
}

TEST(ShuffledDistribution, FirstDrawsOfUnseededDistributionsAreUniform)
{
    std::vector<int> counts(4);
    for (int made = 0; made < 100'000; ++made)
        ++counts[static_cast<std::size_t>(ShuffledDistribution(0, 3).nextInt())];
    EXPECT_TRUE(isUniform(counts));
}

TEST(ShuffledDistributionDeathTest, LowestAboveHighestStopsTheProcess)
{
    EXPECT_EXIT(ShuffledDistribution(1, 0), testing::KilledBySignal(Testing::trapSignal), "");
    EXPECT_EXIT(ShuffledDistribution(greatest, least), testing::KilledBySignal(Testing::trapSignal), "");
}

TEST(SplitMix64, MatchesThePublishedSequence)
{
    // The first outputs of the published algorithm for the seed 1234567.
    SplitMix64 engine(1234567);
    EXPECT_EQ(engine(), 6457827717110365317U);
    EXPECT_EQ(engine(), 3203168211198807973U);
    EXPECT_EQ(engine(), 9817491932198370423U);
}

TEST(SplitMix64, DrawsFromAllOf64Bits)
{
    EXPECT_EQ(SplitMix64::min(), 0U);
    EXPECT_EQ(SplitMix64::max(), ~std::uint64_t{0});
}

} // namespace
} // namespace TQFoundation
