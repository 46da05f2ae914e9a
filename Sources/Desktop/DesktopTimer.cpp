#include "DesktopTimer.h"

#include "TickGrid.h"

#include <QtCore/qcoreapplication.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace TQFoundation {

DesktopTimer::DesktopTimer(std::function<double()> clock, double interval, std::function<void()> tick)
    : m_clock(std::move(clock)),
      m_interval(interval),
      m_start(m_clock()),
      m_tick(std::move(tick))
{
    m_shot.setSingleShot(true);
    m_shot.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_shot, &QTimer::timeout, &m_shot, [this] { onTimeout(); });
}

void DesktopTimer::fire()
{
    const auto alive = shared_from_this();
    // A copy, because the tick may invalidate this timer.
    if (const auto tick = m_tick)
        tick();
}

void DesktopTimer::schedule()
{
    if (m_self || !m_tick)
        return;
    m_self = shared_from_this();
    if (auto *application = QCoreApplication::instance())
        QObject::connect(application, &QObject::destroyed, &m_shot, [this] { invalidate(); });
    startShot();
}

void DesktopTimer::invalidate()
{
    const auto alive = std::exchange(m_self, nullptr);
    m_shot.stop();
    const auto tick = std::exchange(m_tick, nullptr);
}

void DesktopTimer::startShot()
{
    const double now = m_clock();
    const double delay = nextTick(m_start, m_interval, now) - now;
    m_shot.start(std::chrono::milliseconds(std::max(0LL, std::llround(std::ceil(delay * 1e3)))));
}

void DesktopTimer::onTimeout()
{
    const auto alive = shared_from_this();
    fire();
    if (m_self)
        startShot();
}

} // namespace TQFoundation
