#include "Layout.h"
#include "MailHost.h"
#include "TouchScreen.h"

#include <QtGui/private/qinputmethod_p.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qpa/qplatforminputcontext.h>

namespace TQFoundation {
namespace {

using Result = ViewController::MailComposeResult;
using Testing::Layout;

// A fake on-screen keyboard.
class Keyboard : public QPlatformInputContext
{
public:
    Keyboard() { QInputMethodPrivate::get(QGuiApplication::inputMethod())->testContext = this; }
    Keyboard(const Keyboard &) = delete;
    Keyboard &operator=(const Keyboard &) = delete;
    ~Keyboard() override { QInputMethodPrivate::get(QGuiApplication::inputMethod())->testContext = nullptr; }

    // Covers the lower half of \a window.
    void show(const QWindow *window) { cover(QRectF(0, window->height() / 2, window->width(), window->height() / 2)); }
    void hide() { cover({}); }

    bool isValid() const override { return true; }
    QRectF keyboardRect() const override { return m_rect; }
    bool isInputPanelVisible() const override { return !m_rect.isEmpty(); }

private:
    void cover(const QRectF &rect)
    {
        m_rect = rect;
        emitKeyboardRectChanged();
        emitInputPanelVisibleChanged();
    }

    QRectF m_rect;
};

class MailSheetOnAPhone : public Testing::MailHost, public testing::WithParamInterface<int>
{
protected:
    MailSheetOnAPhone() { open({GetParam(), 2 * GetParam()}); }

    // Lowest point of the text cursor in the window.
    double cursorBottom() const
    {
        return message()->mapRectToScene(message()->property("cursorRectangle").toRectF()).bottom();
    }

    void tap(const QQuickItem *item)
    {
        ASSERT_TRUE(item);
        screen.tap(item);
        settle();
    }

    Testing::TouchScreen screen;
};

TEST_P(MailSheetOnAPhone, IsUsableByTouchAlone)
{
    makeKeepingProgram();
    compose(QStringLiteral("text "));
    tap(subject());
    EXPECT_TRUE(subject()->hasActiveFocus());
    tap(message());
    EXPECT_TRUE(message()->hasActiveFocus());
    type(message(), "x"); // an on-screen keyboard sends key events, too
    screen.drag(window.get(), {GetParam() / 2, 3}, {GetParam() / 2, 3});
    tap(button("Cancel"));
    tap(button("Keep Writing"));
    EXPECT_TRUE(isShown());
    tap(button("Send"));
    ASSERT_TRUE(comes([this] { return !isShown(); }));
    EXPECT_EQ(root->results, QList{Result::sent});
    compose();
    type(message(), "x");
    tap(button("Cancel"));
    tap(button("Discard"));
    EXPECT_FALSE(isShown());
}

TEST_P(MailSheetOnAPhone, ScrollsByTouchWithoutSelecting)
{
    compose(QStringLiteral("text ").repeated(800));
    screen.drag(window.get(), {GetParam() / 2, GetParam() * 3 / 2}, {GetParam() / 2, GetParam() / 2});
    EXPECT_GT(itemOf("QQuickFlickable")->property("contentY").toDouble(), 50);
    EXPECT_EQ(message()->property("selectedText").toString(), QString());
}

TEST_P(MailSheetOnAPhone, KeepsCursorAboveOnScreenKeyboard)
{
    Keyboard keyboard;
    compose(QStringLiteral("text ").repeated(800));
    message()->setProperty("cursorPosition", message()->property("length"));
    const QQuickItem *const sheet = Layout::popupOf(message());
    const double height = sheet->height();
    EXPECT_GT(cursorBottom(), GetParam());
    keyboard.show(window.get());
    EXPECT_LE(cursorBottom(), GetParam());
    EXPECT_LE(sheet->mapRectToScene(QRectF({}, sheet->size())).bottom(), GetParam());
    EXPECT_TRUE(Layout::isInSight(button("Send")));
    EXPECT_EQ(Layout::flawsOf(sheet), QStringList());
    keyboard.hide();
    EXPECT_EQ(sheet->height(), height);
    EXPECT_LE(cursorBottom(), 2 * GetParam());
}

TEST_P(MailSheetOnAPhone, KeepsCursorInSightWhenRotated)
{
    compose(QStringLiteral("text ").repeated(800));
    message()->setProperty("cursorPosition", message()->property("length"));
    for (int turn = 0; turn < 2; ++turn) {
        window->resize(window->size().transposed());
        settle();
        window->grabWindow();
        EXPECT_LE(cursorBottom(), window->height());
        EXPECT_GE(cursorBottom(), 56);
        EXPECT_EQ(Layout::flawsOf(Layout::popupOf(message())), QStringList());
    }
}

INSTANTIATE_TEST_SUITE_P(Widths, MailSheetOnAPhone, testing::Values(320, 360, 430));

} // namespace
} // namespace TQFoundation
