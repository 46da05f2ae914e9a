#pragma once

#include <QtCore/qrect.h>

class QQuickWindow;

namespace TQFoundation {

/// Part of \a window that no bar, notch or rounded corner of the screen covers, in points of the window; all of it if
/// the window does not extend below them. It changes with the window and its screen, without a signal of its own. GUI
/// thread.
QRectF safeArea(const QQuickWindow &window);

} // namespace TQFoundation
