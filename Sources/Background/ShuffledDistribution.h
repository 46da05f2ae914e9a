#pragma once

#include <cstdint>
#include <limits>
#include <optional>

namespace TQFoundation {

/// A 64-bit pseudorandom number generator for the distributions of the standard library: SplitMix64 by Steele, Lea and
/// Flood, "Fast Splittable Pseudorandom Number Generators", OOPSLA 2014. Not suitable for cryptography.
class SplitMix64
{
public:
    using result_type = std::uint64_t;

    explicit constexpr SplitMix64(std::uint64_t seed) noexcept : m_state(seed) {}

    static constexpr result_type min() noexcept { return 0; }
    static constexpr result_type max() noexcept { return std::numeric_limits<result_type>::max(); }

    constexpr result_type operator()() noexcept { return mixed(m_state += step); }

    static constexpr std::uint64_t step = 0x9e3779b97f4a7c15;

    /// Returns the number drawn in \a state. The map is one-to-one.
    static constexpr std::uint64_t mixed(std::uint64_t state) noexcept
    {
        state = (state ^ (state >> 30)) * 0xbf58476d1ce4e5b9;
        state = (state ^ (state >> 27)) * 0x94d049bb133111eb;
        return state ^ (state >> 31);
    }

private:
    std::uint64_t m_state;
};

/// Draws uniformly from an inclusive range of integers while making runs of similar values unlikely.
///
/// A draw within an eighth of the range of the previous one, counted cyclically, is drawn again once; no value is ever
/// excluded. The cyclic distance between two successive draws does not depend on the first of them, so each single draw
/// is exactly uniform. Time and memory are constant. A value type: a copy continues the same sequence. One thread at a
/// time.
class ShuffledDistribution
{
public:
    /// Draws from \a lowestValue to \a highestValue in an unpredictable order. If the lowest value is greater than the
    /// highest, the process stops. Any thread.
    ShuffledDistribution(std::int64_t lowestValue, std::int64_t highestValue);

    /// Draws in an order that depends on \a seed alone (and on the standard library).
    ShuffledDistribution(std::int64_t lowestValue, std::int64_t highestValue, std::uint64_t seed);

    /// Returns the next integer of the range.
    std::int64_t nextInt();

private:
    bool isNear(std::uint64_t one, std::uint64_t other) const noexcept;

    std::int64_t m_lowestValue;
    std::uint64_t m_span; // the highest value minus the lowest
    std::optional<std::uint64_t> m_previous; // minus the lowest value
    SplitMix64 m_engine;
};

} // namespace TQFoundation
