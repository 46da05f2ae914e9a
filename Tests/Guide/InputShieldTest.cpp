#include "GuideHost.h"
#include "KeyboardFocus.h"
#include "QmlWindow.h"

#include <QtCore/qmimedata.h>
#include <QtGui/qevent.h>
#include <QtGui/qpa/qwindowsysteminterface.h>
#include <QtGui/qpointingdevice.h>
#include <QtQuick/qquickitem.h>

namespace TQFoundation {
namespace {

using Testing::keyScene;
using Testing::QmlWindow;

// Records every event that its items, handlers, shortcuts and popup receive. The editor is no TextField, because newer
// ones open a context menu, which takes the focus.
constexpr char recordingHost[] = R"(
import QtQuick.Controls
Item {
    id: root
    property string received
    property alias editor: editor
    property alias popup: popup
    function record(event: string) { received += event + " "; }
    width: 390; height: 700
    focus: true
    Keys.onPressed: record("key")
    Keys.onReleased: record("keyUp")
    HoverHandler { onHoveredChanged: root.record("hover"); onPointChanged: root.record("hoverPoint") }
    TapHandler { onPressedChanged: root.record("tap") }
    PointHandler { onActiveChanged: root.record("point") }
    HoverHandler { parent: root.parent; onHoveredChanged: root.record("windowHover") }
    TapHandler { parent: root.parent; onPressedChanged: root.record("windowTap") }
    WheelHandler { onWheel: root.record("wheel") }
    PinchHandler { onActiveChanged: root.record("pinch") }
    Shortcut {
        sequences: ["Ctrl+S", "Escape", "Return", "F5", "Ctrl+Tab"]
        context: Qt.ApplicationShortcut
        onActivated: root.record("shortcut")
    }
    MouseArea {
        width: 200; height: parent.height
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
        onPressed: root.record("press")
        onReleased: root.record("release")
        onPositionChanged: root.record("move")
        onDoubleClicked: root.record("double")
        onContainsMouseChanged: root.record("contains")
        onWheel: root.record("areaWheel")
    }
    MultiPointTouchArea {
        anchors.fill: parent
        mouseEnabled: false
        onTouchUpdated: root.record("touch")
        onCanceled: root.record("cancel")
    }
    DropArea { anchors.fill: parent; onEntered: root.record("drag"); onDropped: root.record("drop") }
    TextInput { id: editor; width: 120; height: 25; activeFocusOnTab: true; onTextEdited: root.record("edit") }
    Button { y: 100; focusPolicy: Qt.TabFocus; onClicked: root.record("click"); onActiveFocusChanged: root.record("focus") }
    Popup {
        id: popup
        x: 20; y: 200; width: 100; height: 100
        onAboutToHide: root.record("hide")
        Overlay.onPressed: root.record("overlay")
    }
}
)";

class InputShield : public testing::Test
{
protected:
    InputShield() { platform->scenes = keyScene(&host.window); }

    std::shared_ptr<TQGuideView> shown(int paragraphs = 3)
    {
        QStringList texts;
        for (int number = 0; number < paragraphs; ++number)
            texts += QStringLiteral("Paragraph %1").arg(number);
        auto guide = TQGuideView::initFromNib(Color::systemBlue(), texts, nullptr);
        guide->showGuide();
        return guide;
    }

    // The events that the host received since the last call.
    QString received()
    {
        QCoreApplication::processEvents();
        const QString all = host.item->property("received").toString();
        host.item->setProperty("received", QString());
        return all;
    }

    QQuickItem *editor() const { return host.item->property("editor").value<QQuickItem *>(); }
    QObject *popup() const { return host.item->property("popup").value<QObject *>(); }

    int taps() const { return static_cast<int>(platform->calls.count(QStringLiteral("softImpact()"))); }

    void wheel(QPointF position)
    {
        QWheelEvent event(position, host.window.mapToGlobal(position), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&host.window, &event);
    }

    // Sends every kind of mouse, wheel and touch event at \a place.
    void sendPointerEvents(QPoint place)
    {
        QTest::mouseMove(&host.window, place);
        QTest::mouseMove(&host.window, place + QPoint(3, 3));
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton, Qt::BackButton})
            QTest::mouseClick(&host.window, button, {}, place);
        QTest::mouseDClick(&host.window, Qt::LeftButton, {}, place);
        wheel(place);
        QTest::touchEvent(&host.window, touchScreen).press(0, place);
        QTest::touchEvent(&host.window, touchScreen).move(0, place + QPoint(0, 30)).press(1, place + QPoint(9, 9));
        QTest::touchEvent(&host.window, touchScreen).release(0, place).release(1, place);
    }

    // Sends the TouchCancel with which a system takes over a gesture.
    void cancelTouches()
    {
        QWindowSystemInterface::handleTouchCancelEvent<QWindowSystemInterface::SynchronousDelivery>(&host.window,
                                                                                                    touchScreen);
    }

    void sendKeys()
    {
        for (const Qt::Key key : {Qt::Key_A, Qt::Key_Escape, Qt::Key_Back, Qt::Key_Tab, Qt::Key_F5, Qt::Key_Left,
                                  Qt::Key_PageDown, Qt::Key_Menu})
            QTest::keyClick(&host.window, key);
        QTest::keyClick(&host.window, Qt::Key_S, Qt::ControlModifier);
        QTest::keyClick(&host.window, Qt::Key_Tab, Qt::ControlModifier);
    }

    static QList<QPoint> places() { return {{5, 5}, {195, 120}, {60, 250}, {380, 400}}; }

    QPointingDevice *touchScreen = QTest::createTouchDevice();
    Testing::InstalledRecordingPlatform platform;
    Testing::AnimationClock clock;
    QmlWindow host{recordingHost, {390, 700}};
};

TEST_F(InputShield, LeavesHostInputAloneWithoutGuide)
{
    for (const QPoint place : places())
        sendPointerEvents(place);
    const QString pointed = received();
    for (const char *what :
         {"hover", "tap", "point", "windowHover", "windowTap", "press", "double", "areaWheel", "wheel", "touch"})
        EXPECT_TRUE(pointed.contains(QLatin1String(what))) << what;
    sendKeys();
    const QString typed = received();
    for (const char *what : {"key", "keyUp", "shortcut", "focus"})
        EXPECT_TRUE(typed.contains(QLatin1String(what))) << what;
}

TEST_F(InputShield, BlocksPointersFromAddingOn)
{
    const auto guide = shown();
    static_cast<void>(received());
    for (const QPoint place : places())
        sendPointerEvents(place);
    EXPECT_EQ(received(), QString()) << "while the overlay is still transparent";
    clock.pass(600);
    for (const QPoint place : places())
        sendPointerEvents(place);
    EXPECT_EQ(received(), QString());
    EXPECT_EQ(taps(), 0);
}

TEST_F(InputShield, BlocksKeysFromAddingOn)
{
    const auto guide = shown();
    static_cast<void>(received());
    sendKeys();
    EXPECT_EQ(received(), QString());
    EXPECT_EQ(taps(), 0) << "none of these keys is a tap";
}

TEST_F(InputShield, BlocksHostInputWhileButtonIsDisabled)
{
    const auto guide = shown();
    clock.pass(600);
    guide->nextGuide();
    static_cast<void>(received());
    const QPointF middle = guide->nextButton()->mapToScene({30, 30});
    sendPointerEvents(middle.toPoint());
    for (const QPoint place : places())
        sendPointerEvents(place);
    sendKeys();
    QTest::keyClick(&host.window, Qt::Key_Return);
    QTest::keyClick(&host.window, Qt::Key_Space);
    EXPECT_EQ(received(), QString());
    EXPECT_EQ(taps(), 1);
}

TEST_F(InputShield, BlocksHostInputUntilRemoved)
{
    const auto guide = shown(1);
    clock.pass(600);
    guide->nextGuide();
    clock.pass(590);
    static_cast<void>(received());
    sendPointerEvents({195, 120});
    sendKeys();
    EXPECT_EQ(received(), QString());
    clock.pass(10);
    sendPointerEvents({195, 120});
    EXPECT_NE(received(), QString());
    sendKeys();
    EXPECT_NE(received(), QString());
}

TEST_F(InputShield, BlocksHostInputBesideSmallOverlay)
{
    platform->bounds = {100, 100};
    const auto guide = shown();
    clock.pass(600);
    static_cast<void>(received());
    sendPointerEvents({300, 500});
    sendKeys();
    EXPECT_EQ(received(), QString());
}

TEST_F(InputShield, LeavesInputOutsideOfItsViewAlone)
{
    platform->scenes = {};
    platform->bounds = {100, 100};
    auto guide = TQGuideView::initFromNib(Color::systemBlue(), {QStringLiteral("Text")}, nullptr);
    guide->showGuide(nullptr, host.item);
    clock.pass(600);
    static_cast<void>(received());
    QTest::mouseClick(&host.window, Qt::LeftButton, {}, {50, 20});
    EXPECT_EQ(received(), QString());
    QTest::mouseClick(&host.window, Qt::LeftButton, {}, {300, 500});
    EXPECT_NE(received(), QString());
    QTest::touchEvent(&host.window, touchScreen).press(0, {300, 500});
    QTest::touchEvent(&host.window, touchScreen).release(0, {300, 500});
    EXPECT_TRUE(received().contains(QLatin1String("touch")));
    QTest::touchEvent(&host.window, touchScreen).press(0, {300, 500});
    cancelTouches();
    EXPECT_TRUE(received().contains(QLatin1String("cancel")));
}

TEST_F(InputShield, KeepsPopupsBelowOpen)
{
    popup()->setProperty("closePolicy", 0x01 | 0x04 | 0x10); // a press or release outside, Escape
    for (const bool modal : {false, true}) {
        popup()->setProperty("modal", modal);
        QMetaObject::invokeMethod(popup(), "open");
        clock.pass(500);
        const auto guide = shown(1);
        clock.pass(600);
        sendPointerEvents({5, 5});
        static_cast<void>(received()); // that the pointer has left
        for (const QPoint place : places())
            sendPointerEvents(place);
        sendKeys();
        EXPECT_EQ(received(), QString());
        EXPECT_TRUE(popup()->property("visible").toBool());
        guide->nextGuide();
        clock.pass(600);
        QTest::mouseClick(&host.window, Qt::LeftButton, {}, {380, 600});
        clock.pass(500);
        EXPECT_FALSE(popup()->property("visible").toBool()) << "the popup closes again after the guide";
        EXPECT_TRUE(received().contains(QLatin1String("overlay"))) << "its overlay receives events again";
    }
}

TEST_F(InputShield, BlocksPopupThatOpensLater)
{
    const auto guide = shown(1);
    clock.pass(600);
    popup()->setProperty("modal", true);
    QMetaObject::invokeMethod(popup(), "open");
    clock.pass(500);
    static_cast<void>(received());
    sendPointerEvents({380, 600});
    sendKeys();
    EXPECT_EQ(received(), QString());
    EXPECT_TRUE(popup()->property("visible").toBool());
    QTest::keyClick(&host.window, Qt::Key_Return);
    EXPECT_EQ(taps(), 1) << "the button keeps the focus";
}

TEST_F(InputShield, KeepsDragFromHostFlickable)
{
    const QmlWindow scrolling("Flickable { width: 390; height: 200; contentWidth: 2000; contentHeight: 2000; "
                              "pressDelay: 50; Item { objectName: \"content\"; width: 2000; height: 2000 } }");
    platform->scenes = {};
    auto guide = TQGuideView::initFromNib(Color::systemBlue(), {QStringLiteral("Text")}, nullptr);
    guide->showGuide(nullptr, scrolling.item->findChild<QQuickItem *>(QStringLiteral("content")));
    clock.pass(600);
    auto *window = const_cast<QQuickWindow *>(&scrolling.window);
    QTest::mousePress(window, Qt::LeftButton, {}, {200, 150});
    for (int step = 1; step <= 10; ++step)
        QTest::mouseMove(window, {200 - 10 * step, 150 - 10 * step});
    QTest::mouseRelease(window, Qt::LeftButton, {}, {100, 50});
    EXPECT_EQ(scrolling.item->property("contentX"), QVariant(0.0));
    EXPECT_EQ(scrolling.item->property("contentY"), QVariant(0.0));
}

TEST_F(InputShield, EndsGestureInProgress)
{
    for (const int x : {100, 300}) {
        QTest::mousePress(&host.window, Qt::LeftButton, {}, {x, 300});
        const auto guide = shown();
        static_cast<void>(received());
        QTest::mouseMove(&host.window, {x, 350});
        QTest::mouseRelease(&host.window, Qt::LeftButton, {}, {x, 350});
        const QString all = received();
        for (const char *what : {"move", "release", "click"})
            EXPECT_FALSE(all.contains(QLatin1String(what))) << what;
        guide->setParentItem(nullptr);
    }
}

TEST_F(InputShield, RejectsDragFromAnotherApp)
{
    const auto guide = shown();
    static_cast<void>(received());
    QMimeData data;
    data.setText(QStringLiteral("dragged"));
    QDragEnterEvent enter({195, 300}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&host.window, &enter);
    QDragMoveEvent move({195, 310}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&host.window, &move);
    QDropEvent drop(QPointF(195, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&host.window, &drop);
    EXPECT_EQ(received(), QString());
    EXPECT_FALSE(move.isAccepted()) << "the other app shows that nothing can be dropped";
    EXPECT_FALSE(drop.isAccepted()) << "the other app keeps what it moves";
}

// Older versions of Qt send these events to widgets only.
TEST_F(InputShield, BlocksContextMenus)
{
    class Menus final : public QQuickItem
    {
    public:
        using QQuickItem::QQuickItem;
        int opened = 0;

    protected:
        bool event(QEvent *event) override
        {
            opened += event->type() == QEvent::ContextMenu;
            return QQuickItem::event(event);
        }
    };
    Menus menus(host.item);
    menus.setSize({390, 700});
    menus.setFocus(true);
    const auto guide = shown();
    for (const QPoint place : places()) {
        QTest::mouseClick(&host.window, Qt::RightButton, {}, place);
        for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
            QContextMenuEvent event(reason, place, host.window.mapToGlobal(place), Qt::NoModifier);
            QCoreApplication::sendEvent(&host.window, &event);
        }
    }
    EXPECT_EQ(menus.opened, 0);
}

TEST_F(InputShield, TreatsStylusAsPointer)
{
    const auto guide = shown();
    clock.pass(600);
    static_cast<void>(received());
    const QPointingDevice stylus(QStringLiteral("stylus"), 7, QInputDevice::DeviceType::Stylus,
                                 QPointingDevice::PointerType::Pen, QInputDevice::Capability::Position, 1, 1);
    for (const QEvent::Type type : {QEvent::TabletPress, QEvent::TabletMove, QEvent::TabletRelease}) {
        QTabletEvent event(type, &stylus, {195, 300}, {195, 300}, 1, 0, 0, 0, 0, 0, Qt::NoModifier, Qt::LeftButton,
                           Qt::LeftButton);
        QCoreApplication::sendEvent(&host.window, &event);
        EXPECT_FALSE(event.isAccepted()) << "Qt sends it again as a mouse event";
    }
    EXPECT_EQ(received(), QString());
}

TEST_F(InputShield, BlocksTouchpadGestures)
{
    const auto guide = shown();
    static_cast<void>(received());
    const QPointingDevice touchpad(QStringLiteral("touchpad"), 8, QInputDevice::DeviceType::TouchPad,
                                   QPointingDevice::PointerType::Finger, QInputDevice::Capability::Position, 2, 1);
    for (const Qt::NativeGestureType type : {Qt::BeginNativeGesture, Qt::ZoomNativeGesture, Qt::EndNativeGesture}) {
        QNativeGestureEvent event(type, &touchpad, 2, {195, 300}, {195, 300}, {195, 300}, 0.5, {});
        QCoreApplication::sendEvent(&host.window, &event);
        EXPECT_FALSE(event.isAccepted()) << "as if no item were there";
    }
    EXPECT_EQ(received(), QString());
}

TEST_F(InputShield, LetsButtonAcceptClickTouchAndKeys)
{
    const auto guide = shown(6);
    clock.pass(600);
    const QPoint middle = guide->nextButton()->mapToScene({30, 30}).toPoint();
    QTest::mouseClick(&host.window, Qt::LeftButton, {}, middle);
    EXPECT_EQ(taps(), 1);
    clock.pass(800);
    QTest::touchEvent(&host.window, touchScreen).press(0, middle);
    QTest::touchEvent(&host.window, touchScreen).release(0, middle);
    EXPECT_EQ(taps(), 2);
    int expected = 2;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        clock.pass(800);
        QTest::keyClick(&host.window, key);
        EXPECT_EQ(taps(), ++expected) << key;
    }
}

TEST_F(InputShield, UsesFirstOfTwoTouchPoints)
{
    const auto guide = shown();
    clock.pass(600);
    const QPoint middle = guide->nextButton()->mapToScene({30, 30}).toPoint();
    QTest::touchEvent(&host.window, touchScreen).press(0, middle).press(1, {20, 20});
    QTest::touchEvent(&host.window, touchScreen).release(0, middle).release(1, {20, 20});
    EXPECT_EQ(taps(), 1);
}

TEST_F(InputShield, CancelsPressAtTouchCancel)
{
    const auto guide = shown();
    clock.pass(600);
    const QPoint middle = guide->nextButton()->mapToScene({30, 30}).toPoint();
    QTest::touchEvent(&host.window, touchScreen).press(0, middle);
    EXPECT_TRUE(guide->nextButton()->property("pressed").toBool());
    cancelTouches();
    EXPECT_FALSE(guide->nextButton()->property("pressed").toBool());
    EXPECT_EQ(taps(), 0);
    QTest::touchEvent(&host.window, touchScreen).press(0, middle);
    QTest::touchEvent(&host.window, touchScreen).release(0, middle);
    EXPECT_EQ(taps(), 1) << "the next touch is a tap";
}

TEST_F(InputShield, CountsHeldKeyOnce)
{
    const auto guide = shown(6);
    clock.pass(600);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        platform->calls.clear();
        QTest::keyPress(&host.window, key);
        for (int repeat = 0; repeat < 200; ++repeat) {
            QKeyEvent again(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
            QCoreApplication::sendEvent(&host.window, &again);
            clock.pass(10);
        }
        QTest::keyRelease(&host.window, key);
        EXPECT_EQ(taps(), 1) << key;
        clock.pass(800);
    }
}

TEST_F(InputShield, TakesFocusAndRestoresIt)
{
    editor()->forceActiveFocus();
    ASSERT_TRUE(editor()->hasActiveFocus());
    const auto guide = shown(1);
    EXPECT_TRUE(guide->hasActiveFocus());
    EXPECT_TRUE(guide->nextButton()->hasActiveFocus());
    guide->nextGuide();
    clock.pass(600);
    EXPECT_TRUE(editor()->hasActiveFocus());
    QTest::keyClick(&host.window, Qt::Key_A);
    EXPECT_EQ(editor()->property("text"), QVariant(QStringLiteral("a")));
}

TEST_F(InputShield, KeepsFocusInside)
{
    const auto guide = shown(2);
    editor()->forceActiveFocus();
    EXPECT_TRUE(guide->nextButton()->hasActiveFocus()) << "the host cannot take the focus";
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Tab}) {
        QTest::keyClick(&host.window, key);
        EXPECT_TRUE(guide->nextButton()->hasActiveFocus());
    }
    guide->nextGuide();
    clock.pass(400);
    QTest::keyClick(&host.window, Qt::Key_Tab);
    clock.pass(400);
    EXPECT_TRUE(guide->nextButton()->hasActiveFocus()) << "the button has the focus once it is enabled";
}

TEST_F(InputShield, ToleratesDestroyedFocusItem)
{
    auto *gone = new QQuickItem(host.item);
    gone->forceActiveFocus();
    const auto guide = shown(1);
    delete gone;
    guide->nextGuide();
    clock.pass(600);
    EXPECT_EQ(guide->parentItem(), nullptr);
}

TEST_F(InputShield, HandsFocusFromLaterToEarlierGuide)
{
    const auto first = shown(1);
    const auto second = shown(1);
    EXPECT_TRUE(second->nextButton()->hasActiveFocus());
    clock.pass(600);
    QTest::keyClick(&host.window, Qt::Key_Return);
    clock.pass(600);
    EXPECT_EQ(second->parentItem(), nullptr);
    EXPECT_TRUE(first->nextButton()->hasActiveFocus());
    static_cast<void>(received());
    sendKeys();
    EXPECT_EQ(received(), QString());
    QTest::keyClick(&host.window, Qt::Key_Return);
    clock.pass(600);
    EXPECT_EQ(first->parentItem(), nullptr);
    sendKeys();
    EXPECT_NE(received(), QString());
}

TEST_F(InputShield, TakesFocusOfNextWindow)
{
    auto window = std::make_unique<QQuickWindow>();
    EXPECT_TRUE(Testing::showWithFocus(*window));
    platform->scenes = keyScene(window.get());
    const auto guide = TQGuideView::initFromNib(Color::systemBlue(), {QStringLiteral("Only")}, {});
    guide->showGuide();
    EXPECT_TRUE(guide->nextButton()->hasActiveFocus());
    platform->scenes = {};
    window.reset();

    platform->scenes = keyScene(&host.window);
    guide->showGuide();
    EXPECT_TRUE(Testing::showWithFocus(host.window));
    EXPECT_EQ(host.window.activeFocusItem(), guide->nextButton());
}

TEST_F(InputShield, FreesWindowThatGuideLeaves)
{
    QQuickWindow other;
    other.resize(200, 200);
    const auto guide = shown(2);
    platform->scenes = keyScene(&other);
    guide->showGuide();
    static_cast<void>(received());
    sendPointerEvents({195, 300});
    EXPECT_NE(received(), QString());
    sendKeys();
    EXPECT_NE(received(), QString());
}

} // namespace
} // namespace TQFoundation
