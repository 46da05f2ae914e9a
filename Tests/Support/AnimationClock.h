#pragma once

#include <QtCore/qabstractanimation.h>
#include <QtCore/qcoreapplication.h>

namespace TQFoundation::Testing {

/// Drives all animations of the process by hand for as long as it lives.
class AnimationClock : public QAnimationDriver
{
public:
    AnimationClock() { install(); }
    ~AnimationClock() override { uninstall(); }

    /// Lets \a milliseconds pass in steps of 10, so that an animation that starts at the end of another is on time too.
    void pass(int milliseconds)
    {
        constexpr int step = 10;
        settle();
        for (int passed = 0; passed < milliseconds; passed += step) {
            m_elapsed += step;
            if (isRunning())
                advanceAnimation();
            settle();
        }
    }

    qint64 elapsed() const override { return m_elapsed; }

protected:
    void start() override
    {
        m_elapsed = 0;
        QAnimationDriver::start();
    }

private:
    // An animation starts when two events, each posted by the one before, have been handled.
    static void settle()
    {
        for (int round = 0; round < 2; ++round)
            QCoreApplication::processEvents();
    }

    qint64 m_elapsed = 0;
};

} // namespace TQFoundation::Testing
