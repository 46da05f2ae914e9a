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

/// Regular expression of an empty standard error. An emulator of another processor writes one line about the signal.
inline constexpr const char *noMessage = "^(qemu: uncaught target signal [^\n]*\n)?$";

} // namespace TQFoundation::Testing
