#pragma once

#include "TQFoundation/Platform.h"

#include <QtCore/qelapsedtimer.h>
#include <QtCore/qtimer.h>

namespace TQFoundation {

/// A timer of Qt's event loop: single shots, each armed for the next multiple of the interval, because a repeating
/// QTimer shifts its grid after a stall. Main thread only.
class DesktopTimer final : public RepeatingTimer, public std::enable_shared_from_this<DesktopTimer>
{
public:
    /// Ticks every \a interval seconds of \a clock, counted from now. Held by `std::shared_ptr`.
    DesktopTimer(const QElapsedTimer &clock, double interval, std::function<void()> tick);

    void fire() override;
    void schedule() override;
    void invalidate() override;

private:
    double now() const;
    void arm();
    void tickOnTheGrid();

    const QElapsedTimer m_clock;
    const double m_interval;
    const double m_made;
    std::function<void()> m_tick;
    QTimer m_shot;
    std::shared_ptr<DesktopTimer> m_heldByEventLoop;
};

} // namespace TQFoundation
