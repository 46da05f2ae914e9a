#include "InputShield.h"

#include "Topmost.h"
#include "TQFoundation/ViewController.h"

#include <QtCore/qcoreapplication.h>
#include <QtGui/qevent.h>
#include <QtGui/qpointingdevice.h>

#include <algorithm>
#include <utility>

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

// The overlay that is \a item or contains it, or null.
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

// The item that contains the popups of \a window; null if it has none yet.
QQuickItem *popupLayer(const QQuickWindow &window)
{
    const QList<QQuickItem *> children = window.contentItem()->childItems();
    const auto layer =
        std::ranges::find_if(children, [](const QQuickItem *child) { return child->inherits("QQuickOverlay"); });
    return layer == children.end() ? nullptr : *layer;
}

bool isInside(const QQuickItem &item, const QQuickItem *other)
{
    return other && (other == &item || item.isAncestorOf(other));
}

// Whether any point of \a event was pressed inside \a item. Hover events have no pressed points.
bool isPressedInside(const QQuickItem &item, const QPointerEvent &event)
{
    const bool isHover =
        event.type() == QEvent::MouseMove && static_cast<const QMouseEvent &>(event).buttons() == Qt::NoButton;
    return !isHover && std::ranges::any_of(event.points(), [&item](const QEventPoint &point) {
        return item.contains(item.mapFromScene(point.scenePressPosition()));
    });
}

} // namespace

InputShield::InputShield(QQuickItem *overlay) : QQuickItem(overlay), m_overlay(overlay)
{
    setFlag(ItemAcceptsDrops);
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptHoverEvents(true);
    // A Flickable of the host must not steal a gesture that began on the overlay.
    setKeepMouseGrab(true);
    // Newer versions of Qt Quick call contains() only inside the item's rectangle, which therefore covers any window.
    setPosition({-1e5, -1e5});
    setSize({2e5, 2e5});
}

InputShield::~InputShield()
{
    detach();
}

void InputShield::updateStacking()
{
    if (!m_window || !m_window->contentItem())
        return;
    QQuickItem *const layer = popupLayer(*m_window);
    if (layer) {
        constexpr auto once = Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection);
        connect(layer, &QQuickItem::childrenChanged, this, &InputShield::updateStacking, once);
        connect(layer, &QQuickItem::zChanged, this, &InputShield::updateStacking, once);
        if (const auto popups = layer->childItems(); !isAbove(layer, m_overlay))
            m_popupsBelow = {popups.begin(), popups.end()};
    }
    QQuickItem *const presented = presentedAbove(layer);
    m_cover = presented && presented->parentItem() == layer ? layer : presented;
    // The popup layer filters the window's events before any item receives them, and closes or blocks popups.
    if (layer && m_cover == layer)
        m_window->installEventFilter(layer);
    else if (layer)
        m_window->removeEventFilter(layer);
    QQuickItem *const focusedOverlay = enclosingOverlay(focusedItem(*m_window));
    if (m_cover) {
        cancelPress();
        if (focusedOverlay == m_overlay)
            presented->forceActiveFocus();
        return;
    }
    if (layer && layer->parentItem() == m_overlay->parentItem() && isAbove(layer, m_overlay))
        addAsTopmostChild(m_overlay, m_overlay->parentItem());
    if (!focusedOverlay || focusedOverlay == m_overlay || isAbove(m_overlay, focusedOverlay))
        takeFocus();
}

// The topmost modal popup or view of a controller that was presented above the overlay, or null.
QQuickItem *InputShield::presentedAbove(const QQuickItem *layer) const
{
    QQuickItem *topmost = nullptr;
    const auto consider = [&](QQuickItem *item) {
        if (item->isVisible() && isAbove(item, topmost ? topmost : m_overlay))
            topmost = item;
    };
    for (auto link = ViewController::rootOf(m_window); link; link = link->presentedViewController()) {
        if (QQuickItem *const view = link->view())
            consider(view);
    }
    const QList<QQuickItem *> popups = layer ? layer->childItems() : QList<QQuickItem *>();
    for (QQuickItem *const popup : popups) {
        if (popup->parent() && popup->parent()->property("modal").toBool() && !m_popupsBelow.contains(popup))
            consider(popup);
    }
    return topmost;
}

void InputShield::takeFocus()
{
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
    if (previous && previous->window() == &window && previous->isVisible() && previous->isEnabled() && !m_cover
        && (!overlay || overlay == m_overlay))
        previous->forceActiveFocus();
}

bool InputShield::contains(const QPointF &point) const
{
    return (m_window && m_overlay->parentItem() == m_window->contentItem())
        || m_overlay->contains(mapToItem(m_overlay, point));
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
        if (!focused || m_cover || enclosingOverlay(focused))
            return;
        // A popup receives the focus before it may be raised above the overlay, an ancestor while the overlay leaves.
        const QQuickItem *const layer = popupLayer(*m_window);
        if (focused->isAncestorOf(this) || (layer && layer->isAncestorOf(focused)))
            QMetaObject::invokeMethod(this, &InputShield::updateStacking, Qt::QueuedConnection);
        else
            takeFocus();
    });
    connect(window->contentItem(), &QQuickItem::childrenChanged, this, &InputShield::updateStacking,
            Qt::QueuedConnection);
    QMetaObject::invokeMethod(this, &InputShield::updateStacking, Qt::QueuedConnection);
}

void InputShield::detach()
{
    QQuickWindow *const window = std::exchange(m_window, nullptr);
    m_pressed.reset();
    if (!window)
        return;
    window->removeEventFilter(this);
    window->disconnect(this);
    // A window that is being destroyed has no content item any more.
    if (QQuickItem *const content = window->contentItem()) {
        content->disconnect(this);
        if (QQuickItem *const layer = popupLayer(*window)) {
            layer->disconnect(this);
            window->installEventFilter(layer);
        }
        restoreFocus(*window);
    }
    m_cover = nullptr;
}

bool InputShield::event(QEvent *event)
{
    if (event->type() == QEvent::DragEnter)
        static_cast<QDropEvent *>(event)->setDropAction(Qt::IgnoreAction);
    else if (!event->isPointerEvent() && event->type() != QEvent::ContextMenu)
        return QQuickItem::event(event);
    event->accept();
    return true;
}

bool InputShield::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        return filterPointer(event);
    case QEvent::TouchCancel:
        cancelPress();
        return false;
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
        // Qt sends an ignored tablet event again as a mouse event.
        event->ignore();
        return !m_cover;
    case QEvent::ShortcutOverride:
        // Accepting it turns a shortcut of the host into an ordinary key press.
        event->setAccepted(!m_cover);
        return !m_cover;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return filterKey(static_cast<QKeyEvent &>(*event));
    default:
        return false;
    }
}

bool InputShield::filterKey(QKeyEvent &event)
{
    QQuickItem *const focused = m_window ? m_window->activeFocusItem() : nullptr;
    const QQuickItem *const overlay = enclosingOverlay(focused);
    const bool isAllowed = m_cover ? isInside(*m_cover, focused) : overlay != nullptr;
    if (!isAllowed)
        event.accept();
    // The focused item itself would move the focus to an item below.
    else if (overlay == m_overlay && (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab))
        QCoreApplication::sendEvent(m_overlay, &event);
    else
        return false;
    return true;
}

bool InputShield::filterPointer(QEvent *pointerEvent)
{
    auto &event = static_cast<QPointerEvent &>(*pointerEvent);
    if (event.pointingDevice() == itemOnlyDevice() || !isPressedInside(*this, event)
        || (m_cover && isPressedInside(*m_cover, event)))
        return false;
    event.accept();
    if (!m_cover && event.isSinglePointEvent())
        redirectMouse(static_cast<QMouseEvent &>(event));
    else if (!m_cover)
        redirectTouch(static_cast<QTouchEvent &>(event));
    return true;
}

void InputShield::redirectMouse(QMouseEvent &event)
{
    // Ends a gesture that began before the overlay was shown.
    event.setExclusiveGrabber(event.points().first(), nullptr);
    event.clearPassiveGrabbers(event.points().first());
    resend(event.type(), event.points().first(), event.button(), event.buttons(), &event);
}

// The first touch point becomes the mouse; others are consumed.
void InputShield::redirectTouch(QTouchEvent &event)
{
    for (const QEventPoint &point : event.points()) {
        event.setExclusiveGrabber(point, nullptr);
        event.clearPassiveGrabbers(point);
        const bool isTracked = m_pressed && m_pressed->id() == point.id();
        if (!m_pressed && event.type() == QEvent::TouchBegin)
            resend(QEvent::MouseButtonPress, point, Qt::LeftButton, Qt::LeftButton, &event);
        else if (isTracked && point.state() == QEventPoint::Released)
            resend(QEvent::MouseButtonRelease, point, Qt::LeftButton, Qt::NoButton, &event);
        else if (isTracked && point.state() == QEventPoint::Updated)
            resend(QEvent::MouseMove, point, Qt::NoButton, Qt::LeftButton, &event);
    }
}

// Ends a press without a click: releases it outside of all items, at the same height so that no Flickable scrolls.
void InputShield::cancelPress()
{
    if (!m_pressed)
        return;
    const QEventPoint outside(0, QEventPoint::Updated, {-1e6, m_pressed->scenePosition().y()}, {});
    resend(QEvent::MouseMove, outside, Qt::NoButton, Qt::LeftButton);
    resend(QEvent::MouseButtonRelease, outside, Qt::LeftButton, Qt::NoButton);
}

void InputShield::resend(QEvent::Type type, const QEventPoint &point, Qt::MouseButton button, Qt::MouseButtons buttons,
                         const QInputEvent *source)
{
    QMouseEvent event(type, point.scenePosition(), point.scenePosition(), point.globalPosition(), button, buttons,
                      source ? source->modifiers() : Qt::NoModifier, itemOnlyDevice());
    event.setTimestamp(source ? source->timestamp() : 0);
    m_pressed = buttons ? std::optional(point) : std::nullopt;
    if (m_window)
        QCoreApplication::sendEvent(m_window, &event);
}

} // namespace TQFoundation
