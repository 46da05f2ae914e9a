#pragma once

#include <gtest/gtest.h>

#include <csignal>

namespace TQFoundation::Testing {

/// The signal that the compiler's trap instruction raises.
#if defined(__x86_64__) || defined(__i386__)
inline constexpr int trapSignal = SIGILL;
#else
inline constexpr int trapSignal = SIGTRAP;
#endif

} // namespace TQFoundation::Testing
