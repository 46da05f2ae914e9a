#pragma once

#include "TQFoundation/Platform.h"

#include <QtCore/qtimer.h>

namespace TQFoundation {

/// A repeating timer on Qt's event loop: single shots, each armed for the next multiple of the interval, because a
/// repeating QTimer shifts its grid after a stall. GUI thread only.
class DesktopTimer final : public RepeatingTimer, public std::enable_shared_from_this<DesktopTimer>
{
public:
    /// Calls \a tick every \a interval seconds (more than 0), counted from now, once scheduled. \a clock returns the
    /// seconds of a monotonic clock. Make it with `std::make_shared`.
    DesktopTimer(std::function<double()> clock, double interval, std::function<void()> tick);

    void fire() override;
    void schedule() override;
    void invalidate() override;

private:
    void startShot();
    void onTimeout();

    const std::function<double()> m_clock;
    const double m_interval;
    const double m_start;
    std::function<void()> m_tick;
    QTimer m_shot;
    std::shared_ptr<DesktopTimer> m_self; // set while scheduled, so that the event loop keeps the timer alive
};

} // namespace TQFoundation
