#pragma once

#include <QtCore/qpointer.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

#include <optional>

class QPointerEvent;

namespace TQFoundation {

/// Keeps what the user does away from all that lies beneath an overlay: pointers, wheel, hover, drags, keys and
/// shortcuts. The keyboard focus stays inside the overlay until it leaves its window, and then goes back to where it
/// was.
///
/// A child of the overlay, which owns it and has to be a focus scope. Its siblings, the overlay's content, take their
/// input as ever. Where the overlay is a child of the window itself, the shield is as large as the window. Main thread.
class InputShield final : public QQuickItem
{
public:
    explicit InputShield(QQuickItem *overlay);
    ~InputShield() override;

    /// Brings the focus inside the overlay. Does nothing where it is already, or where the overlay is in no window.
    void takeFocus();

    bool contains(const QPointF &point) const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;

private:
    void enter(QQuickWindow *window);
    void leave();
    void silencePopups();
    void giveFocusBack(const QQuickWindow &window);
    bool takes(const QPointerEvent &event) const;
    void takeMouse(QMouseEvent &event);
    void takeTouch(QTouchEvent &event);
    void send(QEvent::Type type, QPointF position, QPointF globalPosition, const QTouchEvent &touch);

    QQuickItem *const m_overlay;
    QPointer<QQuickWindow> m_window;
    QPointer<QQuickItem> m_formerFocus;
    std::optional<int> m_finger; // the touch that is under way
};

} // namespace TQFoundation
