#pragma once

#include <QtCore/qpointer.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

#include <optional>

class QPointerEvent;

namespace TQFoundation {

/// Makes an overlay input-modal: consumes pointer, wheel, hover, drag, key and shortcut events meant for items below
/// it.
///
/// The first child of the overlay, which owns it and must be a focus scope. The overlay's other children receive their
/// events as usual. Keyboard focus stays inside the overlay while it is in a window. Afterwards the item that had the
/// focus before gets it back, if it is still in that window, visible and enabled. GUI thread.
class InputShield final : public QQuickItem
{
public:
    /// Consumes events from the moment when \a overlay enters a window until it leaves it or either is destroyed.
    explicit InputShield(QQuickItem *overlay);
    ~InputShield() override;

    /// Moves the keyboard focus into the overlay. Does nothing if it is there already or the overlay has no window.
    void takeFocus();

    /// Whether \a point, in the overlay's coordinates, is shielded: any point if the overlay is a child of its window's
    /// content item, else the points of the overlay.
    bool contains(const QPointF &point) const override;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void attach(QQuickWindow *window);
    void detach();
    void suspendPopupFilters();
    void restoreFocus(const QQuickWindow &window);
    bool isPressedInside(const QPointerEvent &event) const;
    void redirectMouse(QMouseEvent &event);
    void redirectTouch(QTouchEvent &event);
    void cancelTouch(const QTouchEvent &event);
    void sendMouse(QEvent::Type type, QPointF position, QPointF globalPosition, const QTouchEvent &touch);

    QQuickItem *const m_overlay;
    QPointer<QQuickWindow> m_window;
    QPointer<QQuickItem> m_previousFocus;
    std::optional<int> m_touchId; // the touch point that acts as the mouse
};

} // namespace TQFoundation
