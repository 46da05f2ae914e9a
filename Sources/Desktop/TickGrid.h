#pragma once

namespace TQFoundation {

/// The next tick of a repeating timer that was made at \a start: the first whole multiple of \a interval after
/// \a start that is later than \a now. All in seconds of one clock; \a interval is more than 0.
///
/// Missed ticks are dropped. If \a now is before \a start, it is the first tick. Any thread.
double nextTick(double start, double interval, double now) noexcept;

} // namespace TQFoundation
