#pragma once

#include <QtCore/qlist.h>
#include <QtCore/qpointer.h>
#include <QtGui/qeventpoint.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

#include <optional>

class QPointerEvent;

namespace TQFoundation {

/// Makes an overlay input-modal: consumes pointer, wheel, hover, drag, key and shortcut events meant for items below
/// the overlay.
///
/// The first child of the overlay, which owns it and must be a focus scope. The overlay's other children receive their
/// events as usual. Keyboard focus stays inside the overlay while it is in a window. Afterwards the item that had the
/// focus before gets it back, if it is still in that window, visible and enabled.
///
/// A modal popup or a controller's view that is presented above the overlay receives focus, keys and pointer events
/// until it is dismissed. The overlay then covers the window's popups again and has the focus back. While a popup lies
/// above, shortcuts work as below any modal popup. GUI thread.
class InputShield final : public QQuickItem
{
public:
    /// Consumes events from the moment when \a overlay enters a window until it leaves it or either is destroyed.
    explicit InputShield(QQuickItem *overlay);
    ~InputShield() override;

    /// Follows a change of the stacking order: takes the keyboard focus, or gives it to what is presented above. Called
    /// in the event loop after most changes; call it to have the effect at once. Does nothing without a window.
    void updateStacking();

    /// Whether \a point is shielded: any point if the overlay is a child of its window's content item, else the points
    /// of the overlay.
    bool contains(const QPointF &point) const override;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void attach(QQuickWindow *window);
    void detach();
    QQuickItem *presentedAbove(const QQuickItem *layer) const;
    void takeFocus();
    void restoreFocus(const QQuickWindow &window);
    bool filterKey(QKeyEvent &event);
    bool filterPointer(QEvent *pointerEvent);
    void redirectMouse(QMouseEvent &event);
    void redirectTouch(QTouchEvent &event);
    void cancelPress();
    void resend(QEvent::Type type, const QEventPoint &point, Qt::MouseButton button, Qt::MouseButtons buttons,
                const QInputEvent *source = nullptr);

    QQuickItem *const m_overlay;
    QPointer<QQuickWindow> m_window;
    QPointer<QQuickItem> m_previousFocus;
    QPointer<QQuickItem> m_cover; // popup layer or view that is presented above the overlay
    QList<QPointer<QQuickItem>> m_popupsBelow; // popups that were open when the overlay was on top
    std::optional<QEventPoint> m_pressed; // last point of the press that is being re-sent
};

} // namespace TQFoundation
