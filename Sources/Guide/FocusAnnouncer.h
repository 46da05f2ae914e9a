#pragma once

#include <QtCore/qobject.h>
#include <QtGui/qaccessible.h>

class QQuickItem;
class QQuickWindow;

namespace TQFoundation {

/// Announces the focused part of an overlay to screen readers when its window becomes active, or when a screen reader
/// starts while the window is active.
///
/// Works around Qt, which announces an item only when it gets the focus: not if it has had it since before its window
/// was active or accessibility was, as at the launch of an app. GUI thread only.
class FocusAnnouncer final : public QObject, private QAccessible::ActivationObserver
{
public:
    /// A child of \a overlay, which must not be null.
    explicit FocusAnnouncer(QQuickItem *overlay);
    ~FocusAnnouncer() override;

private:
    void accessibilityActiveChanged(bool active) override;
    void watch(QQuickWindow *window);
    void announce() const;

    QQuickItem *m_overlay;
    QMetaObject::Connection m_connection;
};

} // namespace TQFoundation
