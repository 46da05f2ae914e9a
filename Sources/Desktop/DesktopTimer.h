#pragma once

#include "TQFoundation/Platform.h"

#include <QtCore/qelapsedtimer.h>
#include <QtCore/qtimer.h>

namespace TQFoundation {

/// A repeating timer on Qt's event loop: single shots, each armed for the next multiple of the interval, because a
/// repeating QTimer shifts its grid after a stall. GUI thread only.
class DesktopTimer final : public RepeatingTimer, public std::enable_shared_from_this<DesktopTimer>
{
public:
    /// Calls \a tick every \a interval seconds (more than 0) of \a clock, counted from now, once scheduled. Make it
    /// with `std::make_shared`.
    DesktopTimer(const QElapsedTimer &clock, double interval, std::function<void()> tick);

    void fire() override;
    void schedule() override;
    void invalidate() override;

private:
    double now() const;
    void startShot();
    void onTimeout();

    const QElapsedTimer m_clock;
    const double m_interval;
    const double m_start;
    std::function<void()> m_tick;
    QTimer m_shot;
    std::shared_ptr<DesktopTimer> m_self; // set while scheduled, so that the event loop keeps the timer alive
};

} // namespace TQFoundation
