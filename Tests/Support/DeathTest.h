#pragma once

#include <gtest/gtest.h>

#include <csignal>

namespace TQFoundation::Testing {

/// The signal that a failed precondition() ends the process with.
#if defined(__x86_64__) || defined(__i386__)
inline constexpr int trapSignal = SIGILL;
#else
inline constexpr int trapSignal = SIGTRAP;
#endif

} // namespace TQFoundation::Testing
