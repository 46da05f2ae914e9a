// Draws from arbitrary ranges with arbitrary seeds. Every draw must lie in the range, and the same seed or a copy must
// give the same draws.

#include "Require.h"
#include "ShuffledDistribution.h"

#include <algorithm>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>

using TQFoundation::ShuffledDistribution;
using TQFoundation::Fuzzing::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const auto one = data.ConsumeIntegral<std::int64_t>();
    const auto other = data.ConsumeBool() ? one : data.ConsumeIntegral<std::int64_t>();
    const auto [lowest, highest] = std::minmax(one, other);
    const auto seed = data.ConsumeIntegral<std::uint64_t>();
    ShuffledDistribution source(lowest, highest, seed);
    ShuffledDistribution twin(lowest, highest, seed);
    for (int draw = 0; draw < 32; ++draw) {
        ShuffledDistribution copy = source;
        const std::int64_t value = source.nextInt();
        require(value >= lowest && value <= highest);
        require(twin.nextInt() == value && copy.nextInt() == value);
    }
    return 0;
}
