#include "ShuffledDistribution.h"

#include "Precondition.h"

#include <algorithm>
#include <atomic>
#include <random>

namespace TQFoundation {
namespace {

// The system is asked for randomness once: asking takes far longer than a draw.
std::uint64_t unknownSeed()
{
    static std::atomic<std::uint64_t> state = [] {
        std::random_device device;
        return std::uniform_int_distribution<std::uint64_t>()(device);
    }();
    return SplitMix64::mixed(state.fetch_add(SplitMix64::step, std::memory_order_relaxed));
}

} // namespace

ShuffledDistribution::ShuffledDistribution(std::int64_t lowestValue, std::int64_t highestValue)
    : ShuffledDistribution(lowestValue, highestValue, unknownSeed())
{}

ShuffledDistribution::ShuffledDistribution(std::int64_t lowestValue, std::int64_t highestValue, std::uint64_t seed)
    : m_lowestValue(lowestValue),
      m_highest(static_cast<std::uint64_t>(highestValue) - static_cast<std::uint64_t>(lowestValue)),
      m_engine(seed)
{
    precondition(lowestValue <= highestValue);
}

std::int64_t ShuffledDistribution::nextInt()
{
    std::uniform_int_distribution<std::uint64_t> uniform(0, m_highest);
    std::uint64_t next = uniform(m_engine);
    if (m_previous && isNear(next, *m_previous))
        next = uniform(m_engine);
    m_previous = next;
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(m_lowestValue) + next);
}

bool ShuffledDistribution::isNear(std::uint64_t one, std::uint64_t other) const noexcept
{
    const std::uint64_t apart = std::max(one, other) - std::min(one, other);
    // Around the ends there is one step more than the range has; for equal values of the whole range it wraps to 0.
    const std::uint64_t aroundTheEnds = m_highest - apart + 1;
    return std::min(apart, aroundTheEnds) <= m_highest / 8;
}

} // namespace TQFoundation
