#pragma once

#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qpa/qplatformintegration.h>
#include <QtTest/qtest.h>

namespace TQFoundation::Testing {

/// Whether a window gets the keyboard focus on request. A Wayland compositor decides by itself, and Qt logs a line if a
/// test waits with qWaitForWindowActive() there.
inline bool canActivateWindows()
{
    return QGuiApplicationPrivate::platformIntegration()->hasCapability(QPlatformIntegration::WindowActivation);
}

/// Shows \a window and waits until it has the keyboard focus. False after five seconds.
///
/// A Wayland compositor gives it to each new window, once that has drawn its first frame.
inline bool showWithFocus(QWindow &window)
{
    window.show();
    if (canActivateWindows())
        window.requestActivate();
    return QTest::qWaitFor([&window] { return QGuiApplication::focusWindow() == &window && window.isExposed(); });
}

} // namespace TQFoundation::Testing
