#pragma once

namespace TQFoundation {

/// Frame pacing for displays without vsync, where nothing else limits the frame rate.
///
/// It decides after each frame of a window how long the next one is to be held back, from the times between frames
/// alone. A display that blocks until its next refresh is never held back. Nor is a window whose host draws by itself,
/// because holding back blocks its whole render thread. All times are seconds of one steady clock. One thread at a
/// time.
class FramePacer
{
public:
    /// A frame that the window has shown.
    struct Frame
    {
        double shownAt = 0; ///< When its buffers were swapped.
        bool isRequested = false; ///< Whether the caller asked for it; otherwise the host did.
        bool isSynchronized = false; ///< Whether the GUI thread took part, so that the host changed something.
    };

    /// The refresh rate in hertz that the display reports, clamped to 1 to 1000; 60 unless set.
    void setRefreshRate(double hertz);

    /// The time between two refreshes of the display, in seconds.
    double interval() const { return m_interval; }

    /// How long to hold the next frame back after \a frame, in seconds; 0 for not at all.
    ///
    /// A frame is early if it comes within three quarters of the interval. A display may accept three early frames
    /// before it blocks, so only the fourth is held back. Time spent holding back does not count for the next frame.
    double holdBack(const Frame &frame);

    /// The caller delayed the next frame by itself, until \a now: the delay does not count as part of the frame.
    void resume(double now) { m_resumedAt = now; }

    /// Whether frames come early and the host draws them by itself at \a now, so that the caller need not ask for any.
    bool yieldsToHost(double now) const { return m_earlyFrames > toleratedFrames && isHostDrawing(now); }

private:
    static constexpr int toleratedFrames = 3;

    bool isHostDrawing(double now) const;

    double m_interval = 1.0 / 60;
    double m_resumedAt = 0; // when the next frame could begin
    int m_earlyFrames = 0; // in a row
    double m_lastHostFrame = -1e9;
    double m_earlierHostFrame = -1e9;
};

} // namespace TQFoundation
