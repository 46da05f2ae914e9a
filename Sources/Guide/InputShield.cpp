#include "InputShield.h"

#include <QtCore/qcoreapplication.h>
#include <QtGui/qevent.h>
#include <QtGui/qpointingdevice.h>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace TQFoundation {
namespace {

// Events are re-sent from a device of type Unknown, which items accept and pointer handlers ignore. Qt Quick offers
// every press to the handlers of all items below it, also if an item on top accepts it.
const QPointingDevice *itemOnlyDevice()
{
    static const QPointingDevice device(QStringLiteral("shielded pointer"), -1, QInputDevice::DeviceType::Unknown,
                                        QPointingDevice::PointerType::Generic, QInputDevice::Capability::Position, 1,
                                        8);
    return &device;
}

bool isOverlay(const QQuickItem &item)
{
    const QList<QQuickItem *> children = item.childItems();
    return std::ranges::any_of(children,
                               [](const QQuickItem *child) { return dynamic_cast<const InputShield *>(child); });
}

// The overlay that is \a item or contains it; null if there is none.
QQuickItem *enclosingOverlay(QQuickItem *item)
{
    while (item && !isOverlay(*item))
        item = item->parentItem();
    return item;
}

// The item that has the focus in \a window, or gets it when the window becomes active.
QQuickItem *focusedItem(const QQuickWindow &window)
{
    QQuickItem *item = window.contentItem();
    while (QQuickItem *inner = item->scopedFocusItem())
        item = inner;
    return item;
}

// The popup overlays of \a window.
std::vector<QQuickItem *> popupLayers(const QQuickWindow &window)
{
    const QList<QQuickItem *> children = window.contentItem()->childItems();
    std::vector<QQuickItem *> layers;
    std::ranges::copy_if(children, std::back_inserter(layers),
                         [](const QQuickItem *child) { return child->inherits("QQuickOverlay"); });
    return layers;
}

} // namespace

InputShield::InputShield(QQuickItem *overlay) : QQuickItem(overlay), m_overlay(overlay)
{
    setFlag(ItemAcceptsDrops);
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptHoverEvents(true);
    // A Flickable of the host must not steal a gesture that began on the overlay.
    setKeepMouseGrab(true);
}

InputShield::~InputShield()
{
    detach();
}

void InputShield::takeFocus()
{
    if (!m_window || !m_window->contentItem())
        return;
    QQuickItem *const content = m_window->contentItem();
    QQuickItem *const focused = focusedItem(*m_window);
    if (enclosingOverlay(focused) != m_overlay) {
        if (focused != content)
            m_previousFocus = focused;
        m_overlay->forceActiveFocus();
    }
    // Works around Qt: an item whose window was destroyed still reports active focus, and the next inactive window
    // would keep a dangling pointer to it. Here it becomes the window's focus item, which the content item then clears.
    if (!content->hasFocus() && m_overlay->hasActiveFocus()) {
        QQuickItem *const inner = m_overlay->scopedFocusItem();
        setFocus(true);
        setFocus(false);
        content->setFocus(true);
        if (inner)
            inner->setFocus(true);
    }
}

void InputShield::restoreFocus(const QQuickWindow &window)
{
    QQuickItem *const previous = std::exchange(m_previousFocus, nullptr);
    QQuickItem *const overlay = enclosingOverlay(focusedItem(window));
    if (previous && previous->window() == &window && previous->isVisible() && previous->isEnabled()
        && (!overlay || overlay == m_overlay))
        previous->forceActiveFocus();
}

bool InputShield::contains(const QPointF &point) const
{
    const bool coversWindow = m_window && m_overlay->parentItem() == m_window->contentItem();
    return coversWindow || m_overlay->contains(point);
}

void InputShield::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change != ItemSceneChange)
        return;
    detach();
    if (data.window)
        attach(data.window);
}

void InputShield::attach(QQuickWindow *window)
{
    m_window = window;
    window->installEventFilter(this);
    connect(window, &QQuickWindow::activeFocusItemChanged, this, [this] {
        QQuickItem *const focused = m_window ? m_window->activeFocusItem() : nullptr;
        if (focused && !focused->isAncestorOf(this) && !enclosingOverlay(focused))
            takeFocus();
    });
    connect(window->contentItem(), &QQuickItem::childrenChanged, this, &InputShield::suspendPopupFilters,
            Qt::QueuedConnection);
    suspendPopupFilters();
}

void InputShield::detach()
{
    QQuickWindow *const window = m_window;
    m_window = nullptr;
    m_touchId.reset();
    if (!window)
        return;
    window->removeEventFilter(this);
    window->disconnect(this);
    // A window that is being destroyed has no content item any more.
    if (QQuickItem *const content = window->contentItem()) {
        content->disconnect(this);
        for (QQuickItem *const layer : popupLayers(*window))
            window->installEventFilter(layer);
        restoreFocus(*window);
    }
}

// A popup overlay filters the window's events before any item receives them, and closes or blocks popups.
void InputShield::suspendPopupFilters()
{
    if (!m_window)
        return;
    for (QQuickItem *const layer : popupLayers(*m_window))
        m_window->removeEventFilter(layer);
}

bool InputShield::event(QEvent *event)
{
    if (event->type() == QEvent::DragEnter)
        static_cast<QDragEnterEvent *>(event)->setDropAction(Qt::IgnoreAction);
    else if (!event->isPointerEvent())
        return QQuickItem::event(event);
    event->accept();
    return true;
}

bool InputShield::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        if (!isPressedInside(static_cast<QMouseEvent &>(*event)))
            return false;
        redirectMouse(static_cast<QMouseEvent &>(*event));
        return true;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        if (!isPressedInside(static_cast<QTouchEvent &>(*event)))
            return false;
        redirectTouch(static_cast<QTouchEvent &>(*event));
        return true;
    case QEvent::TouchCancel:
        cancelTouch(static_cast<QTouchEvent &>(*event));
        return false;
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
        // Qt sends an ignored tablet event again as a mouse event.
        event->ignore();
        return true;
    case QEvent::NativeGesture:
        return true;
    case QEvent::ShortcutOverride:
        // Accepting it turns a shortcut of the host into an ordinary key press.
        event->accept();
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (m_window && enclosingOverlay(m_window->activeFocusItem()))
            return false;
        event->accept();
        return true;
    default:
        return QQuickItem::eventFilter(watched, event);
    }
}

// Whether any point of \a event was pressed on the shield. Hover events need no redirection.
bool InputShield::isPressedInside(const QPointerEvent &event) const
{
    if (event.pointingDevice() == itemOnlyDevice())
        return false;
    if (event.type() == QEvent::MouseMove && static_cast<const QMouseEvent &>(event).buttons() == Qt::NoButton)
        return false;
    return std::ranges::any_of(event.points(), [this](const QEventPoint &point) {
        return contains(mapFromScene(point.scenePressPosition()));
    });
}

void InputShield::redirectMouse(QMouseEvent &event)
{
    // Ends a gesture that began before the overlay was shown.
    event.setExclusiveGrabber(event.points().first(), nullptr);
    event.clearPassiveGrabbers(event.points().first());
    QMouseEvent redirected(event.type(), event.position(), event.scenePosition(), event.globalPosition(),
                           event.button(), event.buttons(), event.modifiers(), itemOnlyDevice());
    redirected.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(m_window, &redirected);
    event.setAccepted(redirected.isAccepted());
}

// The first touch point becomes the mouse; others are consumed.
void InputShield::redirectTouch(QTouchEvent &event)
{
    event.accept();
    for (const QEventPoint &point : event.points()) {
        event.setExclusiveGrabber(point, nullptr);
        event.clearPassiveGrabbers(point);
        if (!m_touchId && event.type() == QEvent::TouchBegin) {
            m_touchId = point.id();
            sendMouse(QEvent::MouseButtonPress, point.scenePosition(), point.globalPosition(), event);
        } else if (m_touchId == point.id() && point.state() == QEventPoint::Released) {
            m_touchId.reset();
            sendMouse(QEvent::MouseButtonRelease, point.scenePosition(), point.globalPosition(), event);
        } else if (m_touchId == point.id() && point.state() == QEventPoint::Updated) {
            sendMouse(QEvent::MouseMove, point.scenePosition(), point.globalPosition(), event);
        }
    }
}

// Cancels every touch point of the window. A release outside of all items is no click.
void InputShield::cancelTouch(const QTouchEvent &event)
{
    if (!std::exchange(m_touchId, std::nullopt))
        return;
    constexpr QPointF outside(-1e6, -1e6);
    sendMouse(QEvent::MouseMove, outside, outside, event);
    sendMouse(QEvent::MouseButtonRelease, outside, outside, event);
}

void InputShield::sendMouse(QEvent::Type type, QPointF position, QPointF globalPosition, const QTouchEvent &touch)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent redirected(type, position, position, globalPosition, button, buttons, touch.modifiers(),
                           itemOnlyDevice());
    redirected.setTimestamp(touch.timestamp());
    if (m_window)
        QCoreApplication::sendEvent(m_window, &redirected);
}

} // namespace TQFoundation
