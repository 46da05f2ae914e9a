#pragma once

#include <cstdlib>

namespace TQFoundation::Fuzzing {

/// Ends a fuzzer with a finding unless \a holds.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace TQFoundation::Fuzzing
