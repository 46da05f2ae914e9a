#include "SafeArea.h"

#include <QtGui/qscreen.h>
#include <QtQuick/qquickwindow.h>

namespace TQFoundation {
namespace {

// Flag of windows that extend below the bars and notches of the screen.
#if QT_VERSION >= QT_VERSION_CHECK(6, 10, 0)
constexpr Qt::WindowType extendsUnderBars = Qt::ExpandedClientAreaHint;
#else
constexpr Qt::WindowType extendsUnderBars = Qt::MaximizeUsingFullscreenGeometryHint;
#endif

} // namespace

QRectF safeArea(const QQuickWindow &window)
{
    QRectF area(QPointF(), window.size());
#if QT_VERSION >= QT_VERSION_CHECK(6, 9, 0)
    area = area.marginsRemoved(window.safeAreaMargins());
#endif
    const bool usesWholeScreen =
        window.flags().testFlag(extendsUnderBars) || window.visibility() == QWindow::FullScreen;
    if (const QScreen *screen = window.screen(); screen && usesWholeScreen)
        area &= QRectF(screen->availableGeometry()).translated(window.mapFromGlobal(QPointF()));
    return area;
}

} // namespace TQFoundation
