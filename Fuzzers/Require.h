#pragma once

#include <cstdlib>

namespace TQFoundation::Fuzzing {

/// Aborts, which the fuzzer reports as a finding, unless \a holds.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace TQFoundation::Fuzzing
