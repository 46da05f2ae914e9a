#include "FocusAnnouncer.h"

#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

namespace TQFoundation {

FocusAnnouncer::FocusAnnouncer(QQuickItem *overlay) : QObject(overlay), m_overlay(overlay)
{
    QAccessible::installActivationObserver(this);
    connect(overlay, &QQuickItem::windowChanged, this, &FocusAnnouncer::watch);
}

FocusAnnouncer::~FocusAnnouncer()
{
    QAccessible::removeActivationObserver(this);
}

void FocusAnnouncer::accessibilityActiveChanged(bool active)
{
    const QQuickWindow *const window = m_overlay->window();
    // Later, because the platform is still connecting to the screen reader. A window that becomes active until then
    // announces it itself.
    if (active && window && window->isActive())
        QMetaObject::invokeMethod(this, &FocusAnnouncer::announce, Qt::QueuedConnection);
}

void FocusAnnouncer::watch(QQuickWindow *window)
{
    disconnect(m_connection);
    if (window)
        m_connection = connect(window, &QWindow::activeChanged, this, &FocusAnnouncer::announce);
}

void FocusAnnouncer::announce() const
{
    const QQuickWindow *const window = m_overlay->window();
    QQuickItem *const focused = window && window->isActive() ? window->activeFocusItem() : nullptr;
    if (!focused || !m_overlay->isAncestorOf(focused) || !QAccessible::isActive())
        return;
    QAccessibleEvent event(focused, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

} // namespace TQFoundation
