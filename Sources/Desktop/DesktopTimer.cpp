#include "DesktopTimer.h"

#include "TickGrid.h"

#include <QtCore/qcoreapplication.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace TQFoundation {

DesktopTimer::DesktopTimer(const QElapsedTimer &clock, double interval, std::function<void()> tick)
    : m_clock(clock),
      m_interval(interval),
      m_made(now()),
      m_tick(std::move(tick))
{
    m_shot.setSingleShot(true);
    m_shot.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_shot, &QTimer::timeout, &m_shot, [this] { tickOnTheGrid(); });
}

void DesktopTimer::fire()
{
    const auto alive = shared_from_this();
    // A copy, because the tick may invalidate the timer that holds it.
    if (const auto tick = m_tick)
        tick();
}

void DesktopTimer::schedule()
{
    if (m_heldByEventLoop || !m_tick)
        return;
    m_heldByEventLoop = shared_from_this();
    if (auto *application = QCoreApplication::instance())
        QObject::connect(application, &QObject::destroyed, &m_shot, [this] { invalidate(); });
    arm();
}

void DesktopTimer::invalidate()
{
    const auto alive = std::exchange(m_heldByEventLoop, nullptr);
    m_shot.stop();
    const auto tick = std::exchange(m_tick, nullptr);
}

double DesktopTimer::now() const
{
    return static_cast<double>(m_clock.nsecsElapsed()) * 1e-9;
}

void DesktopTimer::arm()
{
    const double wait = nextTick(m_made, m_interval, now()) - now();
    m_shot.start(std::chrono::milliseconds(std::max(0LL, std::llround(std::ceil(wait * 1e3)))));
}

void DesktopTimer::tickOnTheGrid()
{
    const auto alive = shared_from_this();
    fire();
    if (m_heldByEventLoop)
        arm();
}

} // namespace TQFoundation
