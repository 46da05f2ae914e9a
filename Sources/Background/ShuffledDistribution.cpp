#include "ShuffledDistribution.h"

#include "Precondition.h"

#include <algorithm>
#include <atomic>
#include <random>

namespace TQFoundation {
namespace {

// Asks the system for entropy once per process: that takes far longer than a draw.
std::uint64_t randomSeed()
{
    static std::atomic<std::uint64_t> state = [] {
        std::random_device device;
        return std::uniform_int_distribution<std::uint64_t>()(device);
    }();
    return SplitMix64::mixed(state.fetch_add(SplitMix64::step, std::memory_order_relaxed));
}

} // namespace

ShuffledDistribution::ShuffledDistribution(std::int64_t lowestValue, std::int64_t highestValue)
    : ShuffledDistribution(lowestValue, highestValue, randomSeed())
{}

ShuffledDistribution::ShuffledDistribution(std::int64_t lowestValue, std::int64_t highestValue, std::uint64_t seed)
    : m_lowestValue(lowestValue),
      m_span(static_cast<std::uint64_t>(highestValue) - static_cast<std::uint64_t>(lowestValue)),
      m_engine(seed)
{
    precondition(lowestValue <= highestValue);
}

std::int64_t ShuffledDistribution::nextInt()
{
    std::uniform_int_distribution<std::uint64_t> uniform(0, m_span);
    std::uint64_t next = uniform(m_engine);
    if (m_previous && isNear(next, *m_previous))
        next = uniform(m_engine);
    m_previous = next;
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(m_lowestValue) + next);
}

bool ShuffledDistribution::isNear(std::uint64_t one, std::uint64_t other) const noexcept
{
    const std::uint64_t distance = std::max(one, other) - std::min(one, other);
    // Wraps to 0 for equal values of the full 64-bit range, for which 0 is also the right distance.
    const std::uint64_t distanceAroundTheEnds = m_span - distance + 1;
    return std::min(distance, distanceAroundTheEnds) <= m_span / 8;
}

} // namespace TQFoundation
