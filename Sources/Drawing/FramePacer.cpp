#include "FramePacer.h"

#include <algorithm>
#include <utility>

namespace TQFoundation {

void FramePacer::setRefreshRate(double hertz)
{
    m_interval = 1 / std::clamp(hertz, 1.0, 1000.0);
}

double FramePacer::holdBack(const Frame &frame)
{
    if (frame.isSynchronized || !frame.isRequested)
        m_earlierHostFrame = std::exchange(m_lastHostFrame, frame.shownAt);
    const double taken = frame.shownAt - std::exchange(m_resumedAt, frame.shownAt);
    // A late frame of the host may simply have begun late: it does not show that the display blocks.
    if (taken < 0.75 * m_interval)
        m_earlyFrames = std::min(m_earlyFrames + 1, toleratedFrames + 1);
    else if (frame.isRequested)
        m_earlyFrames = 0;
    if (!frame.isRequested || m_earlyFrames <= toleratedFrames || isHostDrawing(frame.shownAt))
        return 0;
    m_resumedAt += m_interval - taken;
    return m_interval - taken;
}

// Two frames within a quarter of a second are an animation; one is a single change.
bool FramePacer::isHostDrawing(double now) const
{
    return now - m_earlierHostFrame < 0.25;
}

} // namespace TQFoundation
