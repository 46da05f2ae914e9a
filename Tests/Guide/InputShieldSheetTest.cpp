#include "GuideHost.h"
#include "QmlWindow.h"
#include "Topmost.h"

#include <TQFoundation/DesktopPlatform.h>
#include <TQFoundation/MailComposer.h>
#include <TQFoundation/ViewController.h>

#include <QtQuick/qquickitem.h>

namespace TQFoundation {
namespace {

using Testing::keyScene;
using Testing::QmlWindow;

// Records the presses, keys and drops that reach it, and has a dialog with a field.
constexpr char recordingHost[] = R"(
import QtQuick.Controls
Item {
    id: root
    property string received
    property alias editor: editor
    property alias below: below
    property alias dialog: dialog
    property alias field: field
    width: 390; height: 700
    Keys.onPressed: event => received += "key "
    MouseArea { anchors.fill: parent; onPressed: root.received += "press " }
    TextField { id: editor; onTextEdited: root.received += "edit " }
    TextField { id: below; y: 60; onTextEdited: root.received += "edit " }
    Popup {
        id: dialog
        y: 200; width: 390; height: 300
        modal: true
        focus: true
        closePolicy: Popup.NoAutoClose
        TextField { id: field; focus: true; onTextEdited: root.received += "dialog " }
    }
}
)";

class InputShieldSheet : public testing::Test
{
protected:
    InputShieldSheet() { platform->scenes = keyScene(&host.window); }

    ~InputShieldSheet() override
    {
        if (const auto root = ViewController::rootOf(&host.window))
            root->dismiss();
        pass(500);
    }

    std::shared_ptr<TQGuideView> shown(int paragraphs = 1)
    {
        QStringList texts;
        for (int number = 0; number < paragraphs; ++number)
            texts += QStringLiteral("Paragraph %1").arg(number);
        auto guide = TQGuideView::initFromNib(Color::systemBlue(), texts, nullptr);
        guide->showGuide();
        pass(600);
        return guide;
    }

    // Presents a mail sheet on the topmost controller and waits until it has slid in.
    std::shared_ptr<ViewController> presentSheet()
    {
        auto top = ViewController::rootOf(&host.window);
        while (const auto next = top->presentedViewController())
            top = next;
        const auto sheet = desktop.makeMailComposer();
        top->present(sheet);
        pass(500);
        return sheet;
    }

    void dismiss(const std::shared_ptr<ViewController> &sheet)
    {
        sheet->dismiss();
        pass(500);
        pass(10); // after the sheet is deleted
    }

    void pass(int milliseconds)
    {
        clock.pass(milliseconds);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void press(Qt::Key key)
    {
        QTest::keyClick(&host.window, key);
        QCoreApplication::processEvents();
    }

    void click(QPoint place) { QTest::mouseClick(&host.window, Qt::LeftButton, {}, place); }

    void touch(QPoint place)
    {
        QTest::touchEvent(&host.window, touchScreen).press(0, place);
        QTest::touchEvent(&host.window, touchScreen).release(0, place);
    }

    // The events that the host received since the last call.
    QString received() const
    {
        const QString all = host.item->property("received").toString();
        host.item->setProperty("received", QString());
        return all;
    }

    QQuickItem *hostItem(const char *name) const { return host.item->property(name).value<QQuickItem *>(); }

    void openDialog()
    {
        QMetaObject::invokeMethod(host.item->property("dialog").value<QObject *>(), "open");
        pass(500);
    }

    static bool hasFocusInside(const QQuickItem &item)
    {
        const QQuickItem *const focused = item.window() ? item.window()->activeFocusItem() : nullptr;
        return focused && (focused == &item || item.isAncestorOf(focused));
    }

    int taps() const { return static_cast<int>(platform->calls.count(QStringLiteral("softImpact()"))); }

    QPointingDevice *touchScreen = QTest::createTouchDevice();
    Testing::InstalledRecordingPlatform platform;
    Testing::AnimationClock clock;
    DesktopPlatform desktop;
    QmlWindow host{recordingHost, {390, 700}};
};

TEST_F(InputShieldSheet, SheetAboveHasKeyboardUntilDismissed)
{
    hostItem("editor")->forceActiveFocus();
    const auto guide = shown();
    const auto sheet = presentSheet();
    QQuickItem *const focused = host.window.activeFocusItem();
    ASSERT_TRUE(focused);
    ASSERT_TRUE(focused->inherits("QQuickTextInput") || focused->inherits("QQuickTextEdit"));
    press(Qt::Key_X);
    EXPECT_TRUE(focused->property("text").toString().contains(u'x'));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Tab, Qt::Key_Return, Qt::Key_Tab}) {
        press(key);
        EXPECT_FALSE(hasFocusInside(*guide)) << key;
    }
    EXPECT_EQ(taps(), 0);
    EXPECT_EQ(received(), QString());
    dismiss(sheet);
    EXPECT_TRUE(guide->nextButton()->hasActiveFocus());
    press(Qt::Key_Return);
    EXPECT_EQ(taps(), 1);
    pass(600);
    EXPECT_TRUE(hostItem("editor")->hasActiveFocus());
}

TEST_F(InputShieldSheet, SheetAboveHasPointersUntilDismissed)
{
    const auto guide = shown();
    const QPoint button = guide->nextButton()->mapToScene({30, 30}).toPoint();
    const auto sheet = presentSheet();
    for (const QPoint place : {button, QPoint(195, 4), QPoint(195, 400)}) {
        click(place);
        touch(place);
    }
    EXPECT_EQ(taps(), 0);
    EXPECT_EQ(received(), QString());
    QQuickItem *const focused = host.window.activeFocusItem();
    ASSERT_TRUE(focused) << "a click focuses a field of the sheet";
    EXPECT_FALSE(hasFocusInside(*guide));
    dismiss(sheet);
    click(button);
    EXPECT_EQ(taps(), 1);
}

TEST_F(InputShieldSheet, SheetHasInputFromItsFirstFrame)
{
    const auto guide = shown();
    auto root = ViewController::rootOf(&host.window);
    root->present(desktop.makeMailComposer());
    QTest::keyClick(&host.window, Qt::Key_Return);
    QCoreApplication::processEvents();
    QTest::keyClick(&host.window, Qt::Key_Return);
    EXPECT_EQ(taps(), 0);
    root->dismiss();
    QTest::keyClick(&host.window, Qt::Key_Return);
    EXPECT_EQ(taps(), 0) << "the sheet slides out";
    pass(500);
    press(Qt::Key_Return);
    EXPECT_EQ(taps(), 1);
}

TEST_F(InputShieldSheet, CancelsPressWhenSheetAppears)
{
    const auto guide = shown();
    const QPoint button = guide->nextButton()->mapToScene({30, 30}).toPoint();
    for (const bool isTouch : {false, true}) {
        if (isTouch)
            QTest::touchEvent(&host.window, touchScreen).press(0, button);
        else
            QTest::mousePress(&host.window, Qt::LeftButton, {}, button);
        EXPECT_TRUE(guide->nextButton()->property("pressed").toBool());
        const auto sheet = presentSheet();
        EXPECT_FALSE(guide->nextButton()->property("pressed").toBool());
        if (isTouch)
            QTest::touchEvent(&host.window, touchScreen).release(0, button);
        else
            QTest::mouseRelease(&host.window, Qt::LeftButton, {}, button);
        dismiss(sheet);
        EXPECT_EQ(taps(), 0);
    }
    click(button);
    EXPECT_EQ(taps(), 1);
}

TEST_F(InputShieldSheet, TopmostGuideHasInputAfterSheet)
{
    const auto lower = shown();
    const auto upper = shown();
    dismiss(presentSheet());
    EXPECT_TRUE(isAbove(upper.get(), lower.get()));
    press(Qt::Key_Return);
    pass(600);
    EXPECT_EQ(upper->parentItem(), nullptr);
    EXPECT_TRUE(lower->nextButton()->hasActiveFocus());
}

TEST_F(InputShieldSheet, LowerSheetHasInputAfterUpperIsDismissed)
{
    const auto guide = shown();
    const auto lower = presentSheet();
    const auto upper = presentSheet();
    dismiss(upper);
    press(Qt::Key_Return);
    EXPECT_FALSE(hasFocusInside(*guide));
    EXPECT_EQ(taps(), 0);
    dismiss(lower);
    press(Qt::Key_Return);
    EXPECT_EQ(taps(), 1);
}

TEST_F(InputShieldSheet, CoversHostDialogAgainAfterSheet)
{
    openDialog();
    ASSERT_TRUE(hostItem("field")->hasActiveFocus());
    const auto guide = shown();
    dismiss(presentSheet());
    EXPECT_TRUE(guide->nextButton()->hasActiveFocus());
    EXPECT_EQ(host.window.contentItem()->childAt(195, 300), guide.get()) << "the guide is on top again";
    click({195, 220});
    EXPECT_TRUE(guide->nextButton()->hasActiveFocus());
    press(Qt::Key_Return);
    EXPECT_EQ(taps(), 1);
    pass(600);
    press(Qt::Key_A);
    EXPECT_EQ(received(), QStringLiteral("dialog ")) << "the dialog has its focus back";
}

TEST_F(InputShieldSheet, LaterGuideCoversSheet)
{
    const auto sheet = presentSheet();
    const QQuickItem *const focused = host.window.activeFocusItem();
    const auto guide = shown();
    EXPECT_TRUE(guide->nextButton()->hasActiveFocus());
    press(Qt::Key_Return);
    EXPECT_EQ(taps(), 1);
    pass(600);
    EXPECT_EQ(host.window.activeFocusItem(), focused);
}

TEST_F(InputShieldSheet, SheetKeepsFocusIfGuideIsRemovedBelow)
{
    hostItem("editor")->forceActiveFocus();
    const auto guide = shown();
    const auto sheet = presentSheet();
    const QQuickItem *const focused = host.window.activeFocusItem();
    ASSERT_FALSE(hasFocusInside(*guide));
    guide->setParentItem(nullptr);
    pass(10);
    EXPECT_EQ(host.window.activeFocusItem(), focused);
    dismiss(sheet);
    press(Qt::Key_Return);
    EXPECT_EQ(taps(), 0);
}

TEST_F(InputShieldSheet, PresentedViewHasInputUntilDismissed)
{
    hostItem("editor")->forceActiveFocus();
    const auto guide = shown();
    const QPoint button = guide->nextButton()->mapToScene({30, 30}).toPoint();
    QQuickItem view;
    view.setSize({200, 200});
    view.setFlag(QQuickItem::ItemIsFocusScope);
    const auto controller = std::make_shared<ViewController>(&view);
    ViewController::rootOf(&host.window)->present(controller);
    pass(10);
    EXPECT_TRUE(hasFocusInside(view));
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    click(button);
    touch(button);
    EXPECT_EQ(taps(), 0);
    EXPECT_EQ(received(), QString());
    controller->dismiss();
    pass(10);
    EXPECT_TRUE(guide->nextButton()->hasActiveFocus());
    press(Qt::Key_Return);
    EXPECT_EQ(taps(), 1);
    pass(600);
    EXPECT_TRUE(hostItem("editor")->hasActiveFocus());
}

TEST_F(InputShieldSheet, KeepsFocusInsideOverHostDialog)
{
    openDialog();
    const auto guide = shown();
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Tab}) {
        press(key);
        EXPECT_TRUE(guide->nextButton()->hasActiveFocus()) << key;
    }
    press(Qt::Key_Return);
    EXPECT_EQ(taps(), 1);
    pass(600);
    EXPECT_TRUE(hostItem("field")->hasActiveFocus());
    press(Qt::Key_A);
    EXPECT_EQ(received(), QStringLiteral("dialog "));
}

TEST_F(InputShieldSheet, RestoresFocusAfterTab)
{
    hostItem("editor")->forceActiveFocus();
    const auto guide = shown();
    press(Qt::Key_Tab);
    EXPECT_TRUE(guide->nextButton()->hasActiveFocus());
    EXPECT_TRUE(guide->nextButton()->property("visualFocus").toBool());
    press(Qt::Key_Return);
    pass(600);
    EXPECT_TRUE(hostItem("editor")->hasActiveFocus());
}

TEST_F(InputShieldSheet, TakesFocusWhenItsViewEntersWindow)
{
    platform->scenes = {};
    hostItem("editor")->forceActiveFocus();
    QQuickItem view;
    auto guide = TQGuideView::initFromNib(Color::systemBlue(), {QStringLiteral("Text")}, nullptr);
    guide->showGuide(nullptr, &view);
    pass(600);
    EXPECT_TRUE(hostItem("editor")->hasActiveFocus());
    view.setParentItem(host.window.contentItem());
    pass(10);
    EXPECT_TRUE(guide->nextButton()->hasActiveFocus());
    press(Qt::Key_A);
    EXPECT_EQ(received(), QString());
    press(Qt::Key_Return);
    EXPECT_EQ(taps(), 1);
    pass(600);
    EXPECT_TRUE(hostItem("editor")->hasActiveFocus());
}

} // namespace
} // namespace TQFoundation
