#pragma once

namespace TQFoundation {

/// The first moment after \a now that is a whole number of \a interval after \a start: when a repeating timer that was
/// made at \a start ticks next. All in seconds of one clock; \a interval is more than 0.
///
/// Moments that have passed are dropped, not made up for. A \a now before \a start gives the first tick.
double nextTick(double start, double interval, double now) noexcept;

} // namespace TQFoundation
