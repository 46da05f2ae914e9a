#pragma once

#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qpa/qplatformintegration.h>
#include <QtTest/qtest.h>

namespace TQFoundation::Testing {

/// Shows \a window and waits until it has the keyboard focus. False after five seconds.
///
/// A Wayland compositor gives it to each new window, once that has drawn its first frame.
inline bool showWithFocus(QWindow &window)
{
    window.show();
    // Older Wayland clients cannot request it.
    if (QGuiApplicationPrivate::platformIntegration()->hasCapability(QPlatformIntegration::WindowActivation))
        window.requestActivate();
    return QTest::qWaitFor([&window] { return QGuiApplication::focusWindow() == &window && window.isExposed(); });
}

} // namespace TQFoundation::Testing
