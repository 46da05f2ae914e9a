#pragma once

#include <cstdint>
#include <limits>
#include <optional>

namespace TQFoundation {

/// A small random engine of 64 bits, for the distributions of the standard library. SplitMix64: Steele, Lea and Flood,
/// "Fast Splittable Pseudorandom Number Generators", OOPSLA 2014.
class SplitMix64
{
public:
    using result_type = std::uint64_t;

    explicit constexpr SplitMix64(std::uint64_t seed) noexcept : m_state(seed) {}

    static constexpr result_type min() noexcept { return 0; }
    static constexpr result_type max() noexcept { return std::numeric_limits<result_type>::max(); }

    constexpr result_type operator()() noexcept { return mixed(m_state += step); }

    static constexpr std::uint64_t step = 0x9e3779b97f4a7c15;

    /// What is drawn in the state \a state: a one-to-one map.
    static constexpr std::uint64_t mixed(std::uint64_t state) noexcept
    {
        state = (state ^ (state >> 30)) * 0xbf58476d1ce4e5b9;
        state = (state ^ (state >> 27)) * 0x94d049bb133111eb;
        return state ^ (state >> 31);
    }

private:
    std::uint64_t m_state;
};

/// Draws integers of an inclusive range, each as often as any other, in an order that keeps neighbours apart: a draw
/// that comes near the one before it is made once more. Similar values in a row are thus unlikely, though none is ever
/// ruled out.
///
/// Near is within an eighth of the range, counted around its ends. How far one draw lies from the one before, around
/// the ends, is then independent of where that one was, which is why every single draw is exactly uniform. Time and
/// memory do not depend on the range. A plain value: a copy goes on as the original would. One thread at a time.
class ShuffledDistribution
{
public:
    /// Over the integers from \a lowestValue to \a highestValue, in an order that no one knows. A lowest value above
    /// the highest stops the process. Any thread.
    ShuffledDistribution(std::int64_t lowestValue, std::int64_t highestValue);

    /// The same in an order that depends on \a seed alone (and on the standard library).
    ShuffledDistribution(std::int64_t lowestValue, std::int64_t highestValue, std::uint64_t seed);

    std::int64_t nextInt();

private:
    bool isNear(std::uint64_t one, std::uint64_t other) const noexcept;

    // Draws are kept as what they are above the lowest value.
    std::int64_t m_lowestValue;
    std::uint64_t m_highest;
    std::optional<std::uint64_t> m_previous;
    SplitMix64 m_engine;
};

} // namespace TQFoundation
