#pragma once

namespace TQFoundation {

/// Stops the process at once, without a message, unless \a holds.
///
/// For programming errors only (a missing asset, an index out of range), after which going on would show a broken app.
/// Executes the compiler's trap instruction: SIGILL or SIGTRAP on Unix systems. Any thread.
constexpr void precondition(bool holds) noexcept
{
    if (!holds) [[unlikely]] {
#if defined(_MSC_VER) && !defined(__clang__)
        __fastfail(5);
#else
        __builtin_trap();
#endif
    }
}

} // namespace TQFoundation
