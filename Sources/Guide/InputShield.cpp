#include "InputShield.h"

#include <QtCore/qcoreapplication.h>
#include <QtGui/qevent.h>
#include <QtGui/qpointingdevice.h>

#include <algorithm>
#include <utility>

namespace TQFoundation {
namespace {

// A device of a kind that no pointer handler listens to; items take its events like those of any other. Qt Quick offers
// a press to the handlers of all items at its place, however many lie on top of them and take it.
const QPointingDevice *deviceForItems()
{
    static const QPointingDevice device(QStringLiteral("shielded pointer"), -1, QInputDevice::DeviceType::Unknown,
                                        QPointingDevice::PointerType::Generic, QInputDevice::Capability::Position, 1,
                                        8);
    return &device;
}

// The overlay that an item lies in, or is; null where it lies in none.
QQuickItem *overlayAround(QQuickItem *item)
{
    const auto isShield = [](const QQuickItem *child) { return dynamic_cast<const InputShield *>(child) != nullptr; };
    for (; item; item = item->parentItem()) {
        const QList<QQuickItem *> children = item->childItems();
        if (std::any_of(children.begin(), children.end(), isShield))
            return item;
    }
    return nullptr;
}

// The item that has the focus in the window, or will have it as soon as the window has it.
QQuickItem *focusedItem(const QQuickWindow &window)
{
    QQuickItem *item = window.contentItem();
    while (QQuickItem *inside = item->scopedFocusItem())
        item = inside;
    return item;
}

// The layers that hold a window's popups.
QObjectList popupLayers(const QQuickWindow &window)
{
    QObjectList layers;
    const QList<QQuickItem *> children = window.contentItem()->childItems();
    for (QQuickItem *child : children) {
        if (child->inherits("QQuickOverlay"))
            layers.append(child);
    }
    return layers;
}

} // namespace

InputShield::InputShield(QQuickItem *overlay) : QQuickItem(overlay), m_overlay(overlay)
{
    setFlag(ItemAcceptsDrops);
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptHoverEvents(true);
    // A host that scrolls may not take over a gesture that began on the overlay.
    setKeepMouseGrab(true);
}

InputShield::~InputShield()
{
    leave();
}

void InputShield::takeFocus()
{
    if (!m_window || !m_window->contentItem())
        return;
    QQuickItem *focused = focusedItem(*m_window);
    if (overlayAround(focused) == m_overlay)
        return;
    if (focused != m_window->contentItem())
        m_formerFocus = focused;
    m_overlay->forceActiveFocus();
}

void InputShield::giveFocusBack(const QQuickWindow &window)
{
    QQuickItem *former = m_formerFocus;
    m_formerFocus = nullptr;
    QQuickItem *around = overlayAround(focusedItem(window));
    if (former && former->window() == &window && former->isVisible() && former->isEnabled()
        && (!around || around == m_overlay))
        former->forceActiveFocus();
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
    leave();
    if (data.window)
        enter(data.window);
}

void InputShield::enter(QQuickWindow *window)
{
    m_window = window;
    window->installEventFilter(this);
    // The focus is taken back, unless it merely left the overlay or went to another one.
    connect(window, &QQuickWindow::activeFocusItemChanged, this, [this] {
        QQuickItem *focused = m_window ? m_window->activeFocusItem() : nullptr;
        if (focused && !focused->isAncestorOf(this) && !overlayAround(focused))
            takeFocus();
    });
    connect(window->contentItem(), &QQuickItem::childrenChanged, this, &InputShield::silencePopups,
            Qt::QueuedConnection);
    silencePopups();
}

void InputShield::leave()
{
    QQuickWindow *window = m_window;
    m_window = nullptr;
    m_finger.reset();
    if (!window)
        return;
    window->removeEventFilter(this);
    window->disconnect(this);
    // A window that is being destroyed has no content any more.
    if (QQuickItem *content = window->contentItem()) {
        content->disconnect(this);
        const QObjectList layers = popupLayers(*window);
        for (QObject *layer : layers)
            window->installEventFilter(layer);
        giveFocusBack(*window);
    }
}

// The layer of the popups looks at all that happens in the window before any item does, and closes or shields popups by
// it. It is under the overlay, and has to rest.
void InputShield::silencePopups()
{
    if (!m_window)
        return;
    const QObjectList layers = popupLayers(*m_window);
    for (QObject *layer : layers)
        m_window->removeEventFilter(layer);
}

bool InputShield::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        if (!takes(static_cast<QMouseEvent &>(*event)))
            return false;
        takeMouse(static_cast<QMouseEvent &>(*event));
        return true;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        if (!takes(static_cast<QTouchEvent &>(*event)))
            return false;
        takeTouch(static_cast<QTouchEvent &>(*event));
        return true;
    case QEvent::TouchCancel:
        // It means every finger in the window and names none. Ours is no click when it is let go outside everything.
        if (std::exchange(m_finger, std::nullopt)) {
            constexpr QPointF outside(-1e6, -1e6);
            send(QEvent::MouseMove, outside, outside, static_cast<QTouchEvent &>(*event));
            send(QEvent::MouseButtonRelease, outside, outside, static_cast<QTouchEvent &>(*event));
        }
        return false;
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
        // Ignored, it comes again as a mouse event.
        event->ignore();
        return true;
    case QEvent::NativeGesture:
        return true;
    case QEvent::ShortcutOverride:
        // Accepted, it is a mere key press and no shortcut of the host.
        event->accept();
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (m_window && overlayAround(m_window->activeFocusItem()))
            return false;
        event->accept();
        return true;
    default:
        return QQuickItem::eventFilter(watched, event);
    }
}

// Whether a pointer went down on the overlay. One that merely hovers finds the topmost item by itself.
bool InputShield::takes(const QPointerEvent &event) const
{
    if (event.pointingDevice() == deviceForItems())
        return false;
    if (event.type() == QEvent::MouseMove && static_cast<const QMouseEvent &>(event).buttons() == Qt::NoButton)
        return false;
    const auto wentDownHere = [this](const QEventPoint &point) {
        return contains(mapFromScene(point.scenePressPosition()));
    };
    return std::any_of(event.points().begin(), event.points().end(), wentDownHere);
}

void InputShield::takeMouse(QMouseEvent &event)
{
    // What the pointer did before the overlay came is over.
    event.setExclusiveGrabber(event.points().first(), nullptr);
    event.clearPassiveGrabbers(event.points().first());
    QMouseEvent shielded(event.type(), event.position(), event.scenePosition(), event.globalPosition(), event.button(),
                         event.buttons(), event.modifiers(), deviceForItems());
    shielded.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(m_window, &shielded);
    event.setAccepted(shielded.isAccepted());
}

// The first finger is the pointer; others do nothing.
void InputShield::takeTouch(QTouchEvent &event)
{
    event.accept();
    const QList<QEventPoint> points = event.points();
    for (const QEventPoint &point : points) {
        event.setExclusiveGrabber(point, nullptr);
        event.clearPassiveGrabbers(point);
    }
    const auto sendAt = [&](QEvent::Type type, const QEventPoint &point) {
        send(type, point.scenePosition(), point.globalPosition(), event);
    };
    for (const QEventPoint &point : points) {
        const bool isFinger = m_finger == point.id();
        if (!m_finger && event.type() == QEvent::TouchBegin) {
            m_finger = point.id();
            sendAt(QEvent::MouseButtonPress, point);
        } else if (isFinger && point.state() == QEventPoint::Released) {
            m_finger.reset();
            sendAt(QEvent::MouseButtonRelease, point);
        } else if (isFinger && point.state() == QEventPoint::Updated) {
            sendAt(QEvent::MouseMove, point);
        }
    }
}

void InputShield::send(QEvent::Type type, QPointF position, QPointF globalPosition, const QTouchEvent &touch)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent shielded(type, position, position, globalPosition, button, buttons, touch.modifiers(),
                         deviceForItems());
    shielded.setTimestamp(touch.timestamp());
    if (m_window)
        QCoreApplication::sendEvent(m_window, &shielded);
}

void InputShield::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void InputShield::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
}

void InputShield::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
}

void InputShield::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
}

void InputShield::wheelEvent(QWheelEvent *event)
{
    event->accept();
}

void InputShield::hoverEnterEvent(QHoverEvent *event)
{
    event->accept();
}

void InputShield::hoverMoveEvent(QHoverEvent *event)
{
    event->accept();
}

void InputShield::hoverLeaveEvent(QHoverEvent *event)
{
    event->accept();
}

void InputShield::dragEnterEvent(QDragEnterEvent *event)
{
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
}

} // namespace TQFoundation
