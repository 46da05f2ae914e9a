#pragma once

#include <QtCore/qabstractanimation.h>
#include <QtCore/qcoreapplication.h>

namespace TQFoundation::Testing {

/// Animation driver that a test advances by hand. Drives all animations of the process until it is destroyed.
class AnimationClock : public QAnimationDriver
{
public:
    AnimationClock() { install(); }
    ~AnimationClock() override { uninstall(); }

    /// Advances all animations by \a milliseconds in steps of 10. A multiple of 10. Animations that start when another
    /// one ends are in time as well, and posted events are delivered after each step.
    void pass(int milliseconds)
    {
        constexpr int step = 10;
        for (int passed = 0; passed < milliseconds; passed += step)
            jump(step);
    }

    /// Advances all animations by \a milliseconds at once, as after the process was suspended.
    void jump(int milliseconds)
    {
        settle();
        m_elapsed += milliseconds;
        if (isRunning())
            advanceAnimation();
        settle();
    }

    qint64 elapsed() const override { return m_elapsed; }

protected:
    void start() override
    {
        m_elapsed = 0;
        QAnimationDriver::start();
    }

private:
    // Two rounds: an animation starts in an event that is posted by another one.
    static void settle()
    {
        for (int round = 0; round < 2; ++round)
            QCoreApplication::processEvents();
    }

    qint64 m_elapsed = 0;
};

} // namespace TQFoundation::Testing
