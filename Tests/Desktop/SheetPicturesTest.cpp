#include "BrowserHost.h"
#include "Languages.h"
#include "MailHost.h"
#include "Pictures.h"

#include <QtGui/qguiapplication.h>
#include <QtGui/qstylehints.h>

namespace TQFoundation {
namespace {

using Testing::expectPicture;
using Testing::useLanguage;

class MailSheetPictures : public Testing::MailHost
{
protected:
    MailSheetPictures() { QGuiApplication::styleHints()->setCursorFlashTime(0); }

    // From the message to Send, by the keyboard alone: the texts of the buttons depend on the language.
    void focusSend()
    {
        press(Qt::Key_Backtab);
        press(Qt::Key_Backtab);
    }

    void sendAndFail()
    {
        press(Qt::Key_Return);
        ASSERT_TRUE(comes([this] { return !message()->property("readOnly").toBool(); }));
        clock.pass(500);
    }
};

TEST_F(MailSheetPictures, OnAPhone)
{
    makeProgram("echo 'The server is full.' >&2; exit 75");
    TQMore::sendFeedbackEmail(Color::systemRed(), QStringLiteral("<b>Hello</b> <i>world</i>"));
    clock.pass(100);
    expectPicture(*window, "mail-slides-in");
    slide();
    focusSend();
    expectPicture(*window, "mail-send-button");
    press(Qt::Key_Tab);
    expectPicture(*window, "mail-subject");
    press(Qt::Key_Backtab);
    sendAndFail();
    expectPicture(*window, "mail-failure");
    type(message(), "Again. ");
    press(Qt::Key_Escape);
    clock.pass(100);
    expectPicture(*window, "mail-question");
    press(Qt::Key_Backtab);
    press(Qt::Key_Return);
    clock.pass(100);
    expectPicture(*window, "mail-slides-out");
}

TEST_F(MailSheetPictures, WhileSending)
{
    makeProgram("exec sleep 1000");
    compose();
    focusSend();
    press(Qt::Key_Return);
    clock.pass(500);
    expectPicture(*window, "mail-sending");
    press(Qt::Key_Escape);
    window->resize(320, 180);
    settle();
    clock.pass(500);
    expectPicture(*window, "mail-stop-question-small");
}

TEST_F(MailSheetPictures, InADarkWindowFromRightToLeft)
{
    useLanguage("ar");
    platform->currentAppearance = Appearance::dark;
    open({900, 640});
    makeProgram("echo 'The server is full.' >&2; exit 75");
    compose(QStringLiteral("مرحبا"));
    focusSend();
    sendAndFail();
    expectPicture(*window, "mail-failure-arabic-dark");
    type(message(), "x");
    press(Qt::Key_Escape);
    expectPicture(*window, "mail-question-arabic-dark");
}

TEST_F(MailSheetPictures, OfALongMessage)
{
    open({390, 420});
    compose(QStringLiteral("A line of a long message.<br>").repeated(40));
    QTest::keyClick(static_cast<QWindow *>(window.get()), Qt::Key_End, Qt::ControlModifier);
    settle();
    clock.pass(500);
    expectPicture(*window, "mail-long");
}

class BrowserSheetPictures : public Testing::BrowserHost
{
protected:
    // Nothing listens at port 9.
    static QString unreachable() { return QStringLiteral("http://127.0.0.1:9/"); }
};

TEST_F(BrowserSheetPictures, OnAPhone)
{
    load(unreachable());
    clock.pass(1000);
    expectPicture(*window, "browser-notice");
    for (const char *name : {"browser-focus-1", "browser-focus-2", "browser-focus-3"}) {
        QTest::keyClick(static_cast<QWindow *>(window.get()), Qt::Key_Tab);
        settle();
        expectPicture(*window, name);
    }
}

TEST_F(BrowserSheetPictures, InADarkWindowFromRightToLeft)
{
    useLanguage("ar");
    platform->currentAppearance = Appearance::dark;
    open({900, 640});
    browse(unreachable());
    ASSERT_TRUE(comes([this] { return web() && !isLoading(); }));
    clock.pass(1000);
    settle();
    expectPicture(*window, "browser-notice-arabic-dark");
}

} // namespace
} // namespace TQFoundation
