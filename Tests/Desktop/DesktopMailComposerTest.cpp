#include "Languages.h"
#include "Layout.h"
#include "ScreenReader.h"
#include "SheetHost.h"

#include <QtCore/qjsonarray.h>
#include <QtCore/qjsondocument.h>
#include <QtCore/qjsonobject.h>
#include <QtCore/qmimedata.h>
#include <QtCore/qprocess.h>
#include <QtGui/qaccessible.h>
#include <QtGui/qclipboard.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qpalette.h>
#include <QtGui/qtextobject.h>
#include <QtNetwork/qtcpserver.h>
#include <QtQuick/qquicktextdocument.h>

#include <csignal>
#include <cstdlib>
#include <sys/stat.h>

namespace TQFoundation {
namespace {

using Result = ViewController::MailComposeResult;
using Testing::Layout;
using Testing::ScreenReader;

class MailSheet : public Testing::SheetHost
{
protected:
    // Makes the program what the shell does.
    void makeProgram(const QByteArray &script)
    {
        QFile file(programs.filePath(QStringLiteral("sendmail")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + script + '\n');
        file.close();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    // Makes it one that keeps what it is given.
    void makeKeepingProgram()
    {
        makeProgram("echo \"$@\" > '" + path("arguments") + "'; cat > '" + path("mail") + "'");
    }

    QByteArray path(const char *name) const { return programs.filePath(QLatin1String(name)).toLocal8Bit(); }

    QByteArray kept(const char *name) const
    {
        QFile file(programs.filePath(QLatin1String(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QByteArray sentHeader(const QByteArray &name) const
    {
        for (const QByteArray &line : kept("mail").split('\n')) {
            if (line.startsWith(QByteArray(name + ": ")))
                return line.mid(name.size() + 2);
        }
        return {};
    }

    QString sentHtml() const
    {
        const QByteArray mail = kept("mail");
        return QString::fromUtf8(QByteArray::fromBase64(mail.mid(mail.indexOf("\n\n") + 2)));
    }

    void compose(const QString &html = {})
    {
        TQMore::sendFeedbackEmail(Color::systemRed(), html);
        slide();
    }

    QQuickItem *subject() const { return itemOf("QQuickTextField"); }
    QQuickItem *message() const { return itemOf("QQuickTextArea"); }

    void type(QQuickItem *field, const char *text)
    {
        field->forceActiveFocus();
        for (const char *letter = text; *letter; ++letter)
            QTest::keyClick(static_cast<QWindow *>(window.get()), *letter);
        settle();
    }

    void press(Qt::Key key)
    {
        QTest::keyClick(static_cast<QWindow *>(window.get()), key);
        settle();
    }

    // What has the focus after each press of a key, until it comes round. Buttons have to show it.
    std::string tabStops(Qt::Key key)
    {
        QStringList stops;
        const QQuickItem *const start = window->activeFocusItem();
        do {
            press(key);
            const QQuickItem *const item = window->activeFocusItem();
            EXPECT_TRUE(!item->inherits("QQuickAbstractButton") || item->property("visualFocus").toBool());
            stops += item == message() ? QStringLiteral("text") : item->property("text").toString();
        } while (window->activeFocusItem() != start && stops.size() < 20);
        return stops.join(QStringLiteral(", ")).toStdString();
    }

    bool sendAndWait()
    {
        click(button("Send"));
        return comes([this] { return !isShown() || isProblemShown(); });
    }

    bool isProblemShown() const { return button("Try Again"); }

    QTextDocument *document() const
    {
        return message()->property("textDocument").value<QQuickTextDocument *>()->textDocument();
    }
};

TEST_F(MailSheet, ShowsTheRecipientTheSubjectAndTheMessage)
{
    compose(QStringLiteral("<b>Hello</b> world"));
    EXPECT_TRUE(text("New Message"));
    EXPECT_TRUE(text("support@tqstudio.example"));
    EXPECT_EQ(subject()->property("text").toString(), QStringLiteral("Contact: Hazel Grid 2.3.1(57)"));
    EXPECT_EQ(document()->toPlainText(), QStringLiteral("Hello world"));
    EXPECT_TRUE(message()->hasActiveFocus());
}

TEST_F(MailSheet, SlidesUpFromTheBottomAndLeavesNothingBehind)
{
    TQMore::sendFeedbackEmail(std::nullopt, {});
    EXPECT_GE(button("Send")->mapToScene({}).y(), window->height());
    slide();
    EXPECT_LT(button("Send")->mapToScene({}).y(), 60);
    const QPointer<QQuickItem> content = button("Send");
    click(button("Cancel"));
    clock.pass(100);
    EXPECT_TRUE(content && content->isVisible()) << "still on its way";
    slide();
    EXPECT_FALSE(content);
    EXPECT_FALSE(isShown());
}

TEST_F(MailSheet, WhatIsNotEditedIsSentAsItWasGiven)
{
    makeKeepingProgram();
    const QString html =
        QStringLiteral("<STYLE>p{}</STYLE>one\ntwo\r\n <!-- kept --> 中文 🌲 &nbsp;<p>un</b>closed") + QChar(0);
    compose(html);
    ASSERT_TRUE(sendAndWait());
    EXPECT_EQ(sentHtml(), html);
    EXPECT_EQ(sentHeader("Subject"), "Contact: Hazel Grid 2.3.1(57)");
    EXPECT_EQ(root->results, QList{Result::sent});
    EXPECT_EQ(root->errors, QStringList{QString()});
}

TEST_F(MailSheet, TheProgramReadsTheRecipientFromTheMailAndNoDotEndsIt)
{
    makeKeepingProgram();
    compose();
    ASSERT_TRUE(sendAndWait());
    EXPECT_EQ(kept("arguments"), "-t -i\n");
    EXPECT_EQ(sentHeader("To"), "support@tqstudio.example");
}

TEST_F(MailSheet, WhoSendsItAndWhenIsForTheProgramToSay)
{
    makeKeepingProgram();
    qputenv("EMAIL", "me@home.example\nBcc: eve@evil.example");
    compose();
    ASSERT_TRUE(sendAndWait());
    EXPECT_EQ(sentHeader("From"), QByteArray());
    EXPECT_EQ(sentHeader("Date"), QByteArray());
    EXPECT_FALSE(kept("mail").contains("Bcc"));
}

TEST_F(MailSheet, WhatTheUserWritesIsSent)
{
    makeKeepingProgram();
    compose(QStringLiteral("<b>Hello</b>"));
    type(subject(), "X");
    type(message(), "Dear developer ");
    ASSERT_TRUE(sendAndWait());
    EXPECT_TRUE(sentHtml().contains(QStringLiteral("Dear developer"))) << sentHtml().toStdString();
    EXPECT_TRUE(sentHtml().contains(QStringLiteral("Hello")));
    EXPECT_TRUE(sentHeader("Subject").contains("X"));
}

TEST_F(MailSheet, AMailIsOnItsWayVisiblyAndWithoutBlocking)
{
    ASSERT_EQ(mkfifo(path("gate").constData(), 0600), 0);
    makeProgram("cat > '" + path("mail") + "'; cat '" + path("gate") + "'");
    compose(QStringLiteral("text"));
    click(button("Send"));
    EXPECT_TRUE(text("Sending…"));
    EXPECT_FALSE(button("Cancel")->isEnabled());
    EXPECT_FALSE(button("Send")->isEnabled());
    EXPECT_TRUE(message()->property("readOnly").toBool());
    QTest::keyClick(static_cast<QWindow *>(window.get()), Qt::Key_Escape);
    EXPECT_TRUE(isShown());
    QFile gate(programs.filePath(QStringLiteral("gate")));
    ASSERT_TRUE(gate.open(QIODevice::WriteOnly));
    gate.close();
    ASSERT_TRUE(comes([this] { return !isShown(); }));
    EXPECT_EQ(root->results, QList{Result::sent});
}

TEST_F(MailSheet, CancelClosesAMailThatIsNotEditedAtOnce)
{
    compose(QStringLiteral("text"));
    click(button("Cancel"));
    EXPECT_FALSE(isShown());
    EXPECT_EQ(root->results, QList{Result::cancelled});
}

TEST_F(MailSheet, EscapeAndTheBackKeyCancel)
{
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Back}) {
        compose();
        QTest::keyClick(static_cast<QWindow *>(window.get()), key);
        EXPECT_FALSE(isShown());
        slide();
    }
    EXPECT_EQ(root->results, (QList{Result::cancelled, Result::cancelled}));
}

TEST_F(MailSheet, CancelAsksFirstWhereTheMessageIsEdited)
{
    compose();
    type(message(), "text");
    click(button("Cancel"));
    EXPECT_TRUE(isShown());
    click(button("Keep Writing"));
    EXPECT_FALSE(button("Keep Writing"));
    EXPECT_EQ(document()->toPlainText(), QStringLiteral("text"));
    EXPECT_TRUE(message()->hasActiveFocus());
    click(button("Cancel"));
    ASSERT_TRUE(button("Discard"));
    click(button("Discard"));
    EXPECT_FALSE(isShown());
    EXPECT_EQ(root->results, QList{Result::cancelled});
}

TEST_F(MailSheet, CancelAsksFirstWhereTheSubjectIsEdited)
{
    compose();
    type(subject(), "x");
    QTest::keyClick(static_cast<QWindow *>(window.get()), Qt::Key_Escape);
    settle();
    EXPECT_TRUE(button("Discard"));
    QTest::keyClick(static_cast<QWindow *>(window.get()), Qt::Key_Escape);
    settle();
    EXPECT_FALSE(button("Discard")) << "Escape answers the question alone";
    EXPECT_TRUE(isShown());
    EXPECT_EQ(root->results, QList<Result>());
}

TEST_F(MailSheet, WithoutAProgramTheSheetSaysSoAndKeepsTheText)
{
    compose();
    type(message(), "precious");
    ASSERT_TRUE(sendAndWait());
    EXPECT_TRUE(text("There is no mail program on this device."));
    EXPECT_EQ(document()->toPlainText(), QStringLiteral("precious"));
    EXPECT_EQ(root->results, QList<Result>());
    makeKeepingProgram();
    click(button("Try Again"));
    ASSERT_TRUE(comes([this] { return !isShown(); }));
    EXPECT_TRUE(sentHtml().contains(QStringLiteral("precious")));
    EXPECT_EQ(root->results, QList{Result::sent});
}

TEST_F(MailSheet, AProgramThatCannotBeStartedIsNone)
{
    makeProgram("");
    QFile file(programs.filePath(QStringLiteral("sendmail")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/no/such/shell\n");
    file.close();
    compose(QString(1000000, u'x'));
    ASSERT_TRUE(sendAndWait());
    EXPECT_TRUE(text("There is no mail program on this device."));
}

TEST_F(MailSheet, SaysInWordsWhyTheProgramFailed)
{
    const std::pair<int, const char *> reasons[] = {
        {64, "The mail program on this device is not set up."},
        {78, "The mail program on this device is not set up."},
        {68, "The mail server cannot be reached. Check your connection and try again."},
        {75, "The mail server cannot be reached. Check your connection and try again."},
        {67, "The mail server did not accept your message."},
        {69, "The mail server did not accept your message."},
        {1, "Your message could not be sent."},
        {70, "Your message could not be sent."},
    };
    compose();
    for (const auto &[code, words] : reasons) {
        makeProgram("echo 'first' >&2; printf 'the \\033reason\\n' >&2; exit " + QByteArray::number(code));
        click(button(isProblemShown() ? "Try Again" : "Send"));
        ASSERT_TRUE(comes([this] { return isProblemShown() && !text("Sending…"); }));
        EXPECT_TRUE(text(words)) << code;
        EXPECT_TRUE(text("the  reason")) << "what the program said last, without control characters";
        window->grabWindow(); // lays it out
    }
}

TEST_F(MailSheet, AProgramThatIsKilledIsSaidToHaveStopped)
{
    makeProgram("kill -9 $$");
    compose();
    ASSERT_TRUE(sendAndWait());
    EXPECT_TRUE(text("The mail program stopped unexpectedly. Your message may not have been sent."));
}

TEST_F(MailSheet, AProgramThatReadsNothingHarmsNobody)
{
    makeProgram("exit 0");
    compose(QString(4000000, u'x'));
    ASSERT_TRUE(sendAndWait());
    EXPECT_EQ(root->results, QList{Result::sent});
}

TEST_F(MailSheet, AfterThirtySecondsWithoutAnswerSaysThatTheMailMayHaveGone)
{
    makeProgram("echo $$ > '" + path("process") + "'; exec sleep 1000");
    compose();
    click(button("Send"));
    ASSERT_TRUE(comes([this] { return kept("process").endsWith('\n'); }));
    platform->advance(29.9);
    settle();
    EXPECT_FALSE(isProblemShown());
    platform->advance(0.2);
    ASSERT_TRUE(comes([this] { return isProblemShown(); }));
    EXPECT_TRUE(text("There has been no answer for 30 seconds. Your message may already have been sent; if so, trying "
                     "again sends it twice."));
    EXPECT_TRUE(isShown());
    EXPECT_TRUE(comes([this] { return ::kill(kept("process").trimmed().toInt(), 0) != 0; })) << "it is ended";
    makeKeepingProgram();
    click(button("Try Again"));
    ASSERT_TRUE(comes([this] { return !isShown(); }));
    platform->advance(60);
    EXPECT_EQ(root->results, QList{Result::sent});
}

TEST_F(MailSheet, GivenUpAfterAFailureItReportsTheFailure)
{
    makeProgram("exit 69");
    compose();
    ASSERT_TRUE(sendAndWait());
    click(button("Cancel"));
    EXPECT_EQ(root->results, QList{Result::failed});
    EXPECT_EQ(root->errors, QStringList{QStringLiteral("The mail server did not accept your message.")});
}

TEST_F(MailSheet, TheDelegateIsToldOnce)
{
    makeKeepingProgram();
    compose();
    QQuickItem *const send = button("Send");
    QQuickItem *const cancel = button("Cancel");
    for (int press = 0; press < 3; ++press) {
        QMetaObject::invokeMethod(send, "clicked");
        QMetaObject::invokeMethod(cancel, "clicked");
    }
    ASSERT_TRUE(comes([this] { return !isShown(); }));
    QMetaObject::invokeMethod(cancel, "clicked");
    slide();
    EXPECT_EQ(root->results, QList{Result::sent});
}

TEST_F(MailSheet, ADelegateThatLeavesTheSheetOpenIsToldOnceToo)
{
    class Leaving final : public ViewController
    {
    public:
        QList<MailComposeResult> results;
        void mailComposeController(MailComposer *, MailComposeResult result, const QString &) override
        {
            results += result;
        }
    };
    const auto leaving = std::make_shared<Leaving>();
    const auto composer = desktop.makeMailComposer();
    composer->setMailComposeDelegate(leaving);
    root->present(composer);
    slide();
    click(button("Cancel"));
    click(button("Cancel"));
    EXPECT_TRUE(isShown());
    EXPECT_EQ(leaving->results, QList{Result::cancelled});
}

TEST_F(MailSheet, OutsideOfAWindowItSaysThatItFailed)
{
    QQuickItem view;
    const auto nowhere = std::make_shared<Delegate>(&view);
    const auto composer = desktop.makeMailComposer();
    composer->setMailComposeDelegate(nowhere);
    nowhere->present(composer);
    EXPECT_EQ(nowhere->results, QList{Result::failed});
    EXPECT_EQ(nowhere->errors, QStringList{QStringLiteral("Your message could not be sent.")});
    EXPECT_FALSE(nowhere->presentedViewController());
}

TEST_F(MailSheet, WithoutADelegateTheComposerDismissesItself)
{
    const auto composer = desktop.makeMailComposer();
    TQMore::topViewController()->present(composer);
    slide();
    click(button("Cancel"));
    EXPECT_FALSE(isShown());
    EXPECT_EQ(root->results, QList<Result>());
}

TEST_F(MailSheet, WithoutRecipientOrWithSeveralNothingIsSent)
{
    makeKeepingProgram();
    for (const QStringList &recipients :
         {QStringList(), QStringList{QStringLiteral("a@b.example"), QStringLiteral("c@d.example")},
          QStringList{QStringLiteral("a@b.example\nBcc: c@d.example")}}) {
        const auto composer = desktop.makeMailComposer();
        composer->setToRecipients(recipients);
        TQMore::topViewController()->present(composer);
        slide();
        ASSERT_TRUE(sendAndWait());
        EXPECT_TRUE(text("Your message could not be sent."));
        EXPECT_EQ(kept("mail"), QByteArray());
        click(button("Cancel"));
        slide();
    }
}

TEST_F(MailSheet, APlainMessageIsSentAsHtmlThatShowsTheSameText)
{
    makeKeepingProgram();
    const auto composer = desktop.makeMailComposer();
    composer->setToRecipients({QStringLiteral("a@b.example")});
    composer->setMessageBody(QStringLiteral("1 < 2\n<b>"), false);
    TQMore::topViewController()->present(composer);
    slide();
    EXPECT_EQ(document()->toPlainText(), QStringLiteral("1 < 2\n<b>"));
    ASSERT_TRUE(sendAndWait());
    EXPECT_TRUE(sentHtml().contains(QStringLiteral("1 &lt; 2\n&lt;b&gt;")));
}

TEST_F(MailSheet, LoadsNothingThatTheMessageRefersTo)
{
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const QString remote = QStringLiteral("http://127.0.0.1:%1/").arg(server.serverPort());
    QImage picture(300, 300, QImage::Format_RGB32);
    ASSERT_TRUE(picture.save(programs.filePath(QStringLiteral("large.png"))));
    QFile style(programs.filePath(QStringLiteral("large.css")));
    ASSERT_TRUE(style.open(QIODevice::WriteOnly));
    style.write("p { font-size: 200px }");
    style.close();
    const QString local = u"file://" + programs.path();
    compose(u"<html><head><link rel=stylesheet href='" + remote + u"a.css'><link rel=stylesheet href='" + local
            + u"/large.css'><style>@import url(" + local + u"/large.css)</style></head><body background='" + remote
            + u"b.png'><p style=\"background-image: url('" + local + u"/large.png')\">text <img src='" + remote
            + u"c.png'><img src='" + local + u"/large.png'><img src='" + programs.path()
            + u"/large.png'><img src=':/qt-project.org/imports/TQFoundation/Icons/fir.png'></p></body></html>");
    EXPECT_FALSE(server.waitForNewConnection(100));
    EXPECT_LT(message()->property("contentHeight").toDouble(), 60);
}

TEST_F(MailSheet, AnEditedMessageKeepsTheImagesThatItRefersTo)
{
    makeKeepingProgram();
    compose(QStringLiteral("<p>one <img src=\"https://tqstudio.example/a.png\" width=\"20\"> two</p>"));
    type(message(), "zero ");
    ASSERT_TRUE(sendAndWait());
    EXPECT_TRUE(sentHtml().contains(QStringLiteral("src=\"https://tqstudio.example/a.png\"")))
        << sentHtml().toStdString();
    EXPECT_FALSE(sentHtml().contains(QStringLiteral("no-image")));
}

TEST_F(MailSheet, PastingBringsTextAndNoImages)
{
    compose();
    auto *rich = new QMimeData;
    rich->setHtml(QStringLiteral("<b>bold</b><img src='file:///etc/hostname'>"));
    rich->setText(QStringLiteral("bold"));
    QGuiApplication::clipboard()->setMimeData(rich);
    message()->forceActiveFocus();
    QTest::keySequence(static_cast<QWindow *>(window.get()), QKeySequence::Paste);
    settle();
    EXPECT_EQ(document()->toPlainText(), QStringLiteral("bold"));
    EXPECT_FALSE(document()->toHtml().contains(QStringLiteral("img")));
    EXPECT_FALSE(message()->flags().testFlag(QQuickItem::ItemAcceptsDrops));
    QTest::mouseClick(window.get(), Qt::MiddleButton, {}, message()->mapToScene({50, 50}).toPoint());
    EXPECT_EQ(document()->toPlainText(), QStringLiteral("bold"));
}

TEST_F(MailSheet, AMessageWithColorsOfItsOwnLiesOnWhite)
{
    compose(QStringLiteral("<p style='color: #222'>dark</p>"));
    EXPECT_EQ(message()->property("color").value<QColor>(), QColor(Qt::black));
    EXPECT_EQ(message()->parentItem()->property("color").value<QColor>(), QColor(Qt::white));
}

TEST_F(MailSheet, LinksAreReadableTextThatLeadsNowhere)
{
    QGuiApplication::setPalette(QPalette(Qt::white, Qt::black, Qt::black, Qt::black, Qt::black, Qt::white, Qt::black));
    compose(QStringLiteral("<a href='https://tqstudio.example'>link</a>"));
    const QTextCharFormat format = document()->begin().begin().fragment().charFormat();
    EXPECT_TRUE(format.isAnchor());
    EXPECT_FALSE(format.hasProperty(QTextFormat::ForegroundBrush));
    QTest::mouseClick(window.get(), Qt::LeftButton, {}, message()->mapToScene({30, 25}).toPoint());
    EXPECT_TRUE(platform->calls.filter(QStringLiteral("openUrl")).isEmpty());
}

TEST_F(MailSheet, LiesOnTopOfWhatAHostPresentsByItself)
{
    QQuickItem view;
    view.setSize({390, 844});
    view.setAcceptedMouseButtons(Qt::AllButtons);
    root->present(std::make_shared<ViewController>(&view));
    TQMore::sendFeedbackEmail(std::nullopt, {});
    slide();
    click(button("Cancel"));
    EXPECT_EQ(root->results.size(), 0);
    EXPECT_FALSE(button("Cancel") && TQMore::topViewController() != root->presentedViewController());
}

TEST_F(MailSheet, WhatLiesBeneathIsOutOfReach)
{
    QQuickItem host(window->contentItem());
    host.setSize({390, 844});
    host.setFocus(true);
    compose();
    EXPECT_FALSE(host.hasActiveFocus());
    for (int press = 0; press < 12; ++press) {
        QTest::keyClick(static_cast<QWindow *>(window.get()), Qt::Key_Tab);
        ASSERT_TRUE(window->activeFocusItem());
        EXPECT_NE(window->activeFocusItem(), &host);
    }
}

TEST_F(MailSheet, TheWholeSheetWorksByKeys)
{
    makeKeepingProgram();
    compose();
    for (int press = 0; press < 8 && !button("Send")->hasActiveFocus(); ++press)
        QTest::keyClick(static_cast<QWindow *>(window.get()), Qt::Key_Tab);
    EXPECT_TRUE(button("Send")->hasActiveFocus());
    QTest::keyClick(static_cast<QWindow *>(window.get()), Qt::Key_Return);
    ASSERT_TRUE(comes([this] { return !isShown(); }));
    EXPECT_EQ(root->results, QList{Result::sent});
}

TEST_F(MailSheet, AWindowThatGoesTakesTheSheetAlong)
{
    compose();
    const QPointer<QQuickItem> content = button("Send");
    root.reset();
    window.reset();
    settle();
    EXPECT_FALSE(content);
}

TEST_F(MailSheet, AMailThatIsOnItsWayGoesOnWhenTheWindowGoes)
{
    makeProgram("cat > '" + path("part") + "'; mv '" + path("part") + "' '" + path("mail") + "'");
    const QString html(3000000, u'x');
    compose(html);
    click(button("Send"));
    root.reset();
    window.reset();
    settle();
    ASSERT_TRUE(comes([this] { return !kept("mail").isEmpty(); }));
    EXPECT_EQ(sentHtml().size(), html.size());
}

// Sends a mail to a program that never ends, and lets the application end. Whether the program goes on.
#define EXPECT_GOES_ON(letters, goesOn)                                                                                \
    EXPECT_EXIT(                                                                                                       \
        {                                                                                                              \
            makeProgram("head -c 1000 > '" + path("mail") + "'; echo $$ > '" + path("process")                         \
                        + "'; exec sleep 1000 < /dev/null");                                                           \
            compose(QString(letters, u'x'));                                                                           \
            click(button("Send"));                                                                                     \
            comes([this] { return kept("process").endsWith('\n'); });                                                  \
            root.reset();                                                                                              \
            window.reset();                                                                                            \
            settle();                                                                                                  \
            QCoreApplication::instance()->~QCoreApplication();                                                         \
            const int process = kept("process").trimmed().toInt();                                                     \
            const bool isAlive = process > 0 && ::kill(process, SIGKILL) == 0;                                         \
            std::_Exit(isAlive == (goesOn) ? 0 : 1);                                                                   \
        },                                                                                                             \
        testing::ExitedWithCode(0), "")

TEST_F(MailSheet, AProgramThatHasTheWholeMailGoesOnWhenTheApplicationEnds)
{
    EXPECT_GOES_ON(1000, true);
}

TEST_F(MailSheet, AProgramThatHasHalfOfTheMailIsEndedWithTheApplication)
{
    EXPECT_GOES_ON(3000000, false);
}

TEST_F(MailSheet, FitsEveryWindowInEveryLanguage)
{
    const QSize sizes[] = {{320, 568}, {390, 844}, {1280, 800}, {240, 240}};
    for (const QSize size : sizes) {
        open(size);
        makeProgram("echo said >&2; exit 75");
        compose(QStringLiteral("text ").repeated(400));
        ASSERT_TRUE(sendAndWait());
        slide();
        const QRectF all({0, 0}, QSizeF(size));
        for (const char *name : {"Cancel", "Send"}) {
            const QQuickItem *const target = button(name);
            EXPECT_TRUE(all.contains(target->mapRectToScene(QRectF({0, 0}, target->size()))));
            EXPECT_GE(target->width(), 44);
            EXPECT_GE(target->height(), 44);
        }
        EXPECT_LE(message()->width(), 640);
        EXPECT_GE(message()->height(), message()->property("contentHeight").toDouble());
    }
}

TEST_F(MailSheet, IsMirroredForLanguagesThatAreReadFromTheRight)
{
    Testing::useLanguage("ar");
    TQMore::sendFeedbackEmail(std::nullopt, {});
    slide();
    const QQuickItem *const field = subject();
    ASSERT_TRUE(field);
    EXPECT_LT(field->mapToScene({}).x(), 30);
    EXPECT_LT(field->mapToScene({field->width(), 0}).x(), 380 - 30) << "its label is on the right";
}

TEST_F(MailSheet, TheTabKeyLeadsThroughItInTheOrderOfReadingAndMarksWhereItIs)
{
    makeProgram("exit 75");
    compose();
    EXPECT_EQ(tabStops(Qt::Key_Tab), "Cancel, Send, Contact: Hazel Grid 2.3.1(57), text");
    ASSERT_TRUE(sendAndWait());
    EXPECT_EQ(tabStops(Qt::Key_Tab), "Contact: Hazel Grid 2.3.1(57), text, Cancel, Send, Try Again");
    EXPECT_EQ(tabStops(Qt::Key_Backtab), "Send, Cancel, text, Contact: Hazel Grid 2.3.1(57), Try Again");
    type(message(), "x");
    press(Qt::Key_Escape);
    EXPECT_TRUE(button("Keep Writing")->property("visualFocus").toBool()) << "asked by a key, answered by a key";
    EXPECT_EQ(tabStops(Qt::Key_Tab), "Discard, Keep Writing");
    press(Qt::Key_Escape);
    EXPECT_TRUE(message()->hasActiveFocus());
    click(button("Cancel"));
    EXPECT_FALSE(button("Keep Writing")->property("visualFocus").toBool());
    press(Qt::Key_Backtab);
    press(Qt::Key_Space);
    EXPECT_FALSE(isShown());
}

TEST_F(MailSheet, AFailureTakesTheFocusSoThatItIsReadOut)
{
    const ScreenReader reader;
    makeProgram("exit 75");
    compose();
    ASSERT_TRUE(sendAndWait());
    QQuickItem *const again = button("Try Again");
    EXPECT_TRUE(again->hasActiveFocus());
    EXPECT_EQ(reader.describes(again)->text(QAccessible::Description),
              QStringLiteral("The mail server cannot be reached. Check your connection and try again."));
}

TEST_F(MailSheet, AssistiveTechnologyFindsEveryPartByItsRoleAndName)
{
    const ScreenReader reader;
    compose();
    EXPECT_EQ(reader.tree(Layout::popupOf(button("Send"))), R"(Dialog '' focused
 Dialog 'New Message' focused
  Button 'Cancel' focusable
  Heading 'New Message'
  Button 'Send' focusable
  StaticText 'To: support@tqstudio.example' focusable read only
  EditableText 'Subject:' focusable
  EditableText 'Message' focusable focused)");
}

TEST_F(MailSheet, AssistiveTechnologyFindsWhatBecomesOfTheMail)
{
    const ScreenReader reader;
    makeProgram("cat > /dev/null; exit 75");
    compose();
    QQuickItem *const sheet = Layout::popupOf(button("Send"));
    reader.press(button("Send"));
    EXPECT_EQ(reader.tree(sheet), R"(Dialog '' focused
 Dialog 'New Message' focused
  Button 'Cancel' focusable
  Heading 'Sending…'
  Button 'Send' focusable
  ProgressBar 'Sending…'
  StaticText 'To: support@tqstudio.example' focusable read only
  EditableText 'Subject:' focusable read only
  EditableText 'Message' focusable focused read only)");
    ASSERT_TRUE(comes([this] { return isProblemShown(); }));
    EXPECT_EQ(reader.tree(sheet), R"(Dialog '' focused
 Dialog 'New Message' focused
  Button 'Cancel' focusable
  Heading 'New Message'
  Button 'Send' focusable
  AlertMessage 'The mail server cannot be reached. Check your connection and try again.'
   Button 'Try Again' focusable focused
  StaticText 'To: support@tqstudio.example' focusable read only
  EditableText 'Subject:' focusable
  EditableText 'Message' focusable)");
}

TEST_F(MailSheet, AssistiveTechnologyAnswersTheQuestionAndPressesNothingBeneathIt)
{
    const ScreenReader reader;
    makeKeepingProgram();
    compose();
    type(message(), "x");
    reader.press(button("Cancel"));
    EXPECT_EQ(reader.tree(Layout::popupOf(button("Discard"))), R"(Dialog '' focused
 AlertMessage 'Discard this message? What you have written will be lost.'
  Button 'Discard' focusable
  Button 'Keep Writing' focusable focused)");
    reader.press(button("Send"));
    EXPECT_FALSE(text("Sending…"));
    reader.press(button("Keep Writing"));
    EXPECT_TRUE(message()->hasActiveFocus());
    reader.press(button("Send"));
    EXPECT_TRUE(text("Sending…"));
}

// In languages with long words, with dense writing and from the right.
class MailSheetIn : public MailSheet, public testing::WithParamInterface<const char *>
{
protected:
    MailSheetIn() { Testing::useLanguage(GetParam()); }

    // The sheet or the question, whichever has the focus.
    void expectNoFlawsInAnyWindow()
    {
        const QSize sizes[] = {{320, 568}, {1280, 800}, {390, 844}, {240, 240}, {820, 1180}};
        for (const QSize size : sizes) {
            window->resize(size);
            settle();
            window->grabWindow();
            QQuickItem *const focused = window->activeFocusItem();
            EXPECT_EQ(Layout::flawsOf(Layout::popupOf(focused)), QStringList()) << size.width();
            if (focused != message()) {
                EXPECT_TRUE(Layout::isInSight(focused)) << size.width();
            }
        }
    }
};

TEST_P(MailSheetIn, IsWholeInWindowsThatAreResizedAtEveryTextSize)
{
    makeProgram("echo 'The server said why, at some length.' >&2; exit 75");
    for (const double points : {9.0, 18.0}) {
        QFont font = QGuiApplication::font();
        font.setPointSizeF(points);
        QGuiApplication::setFont(font);
        compose(QStringLiteral("text ").repeated(200));
        ASSERT_TRUE(message()->hasActiveFocus());
        expectNoFlawsInAnyWindow();
        press(Qt::Key_Backtab);
        press(Qt::Key_Backtab);
        press(Qt::Key_Return);
        ASSERT_TRUE(comes([this] { return !message()->property("readOnly").toBool(); }));
        ASSERT_TRUE(window->activeFocusItem()->inherits("QQuickAbstractButton"));
        expectNoFlawsInAnyWindow();
        type(message(), "x");
        press(Qt::Key_Escape);
        expectNoFlawsInAnyWindow();
        press(Qt::Key_Backtab);
        press(Qt::Key_Return);
        ASSERT_FALSE(isShown());
        slide();
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, MailSheetIn, testing::Values("en", "de", "zh-Hans", "ar"),
                         [](const auto &language) { return std::string(language.param).substr(0, 2); });

// Through a mail program and a mail server that are not ours.
class MailDelivery : public MailSheet
{
protected:
    ~MailDelivery() override
    {
        server.closeWriteChannel();
        server.waitForFinished();
    }

    // Starts the server and makes the program one that delivers to it.
    void serve(const char *mode)
    {
        server.start(QStringLiteral(SYSTEM_PYTHON),
                     {QStringLiteral(SUPPORT_FOLDER "/smtp_server.py"), QLatin1String(mode)});
        deliverTo(said().value(QStringLiteral("port")).toInt());
    }

    void deliverTo(int port)
    {
        configure("host 127.0.0.1\nport " + QByteArray::number(port) + "\nfrom me@home.example\n");
        makeProgram("exec " MSMTP " --file='" + path("msmtprc") + "' \"$@\"");
    }

    void configure(const QByteArray &lines)
    {
        QFile file(programs.filePath(QStringLiteral("msmtprc")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("account default\n" + lines);
    }

    // What the server says next.
    QJsonObject said()
    {
        EXPECT_TRUE(comes([this] { return server.canReadLine(); }));
        return QJsonDocument::fromJson(server.readLine()).object();
    }

    void expectProblem(const char *words)
    {
        click(button("Send"));
        ASSERT_TRUE(comes([this] { return isProblemShown(); }));
        EXPECT_TRUE(text(words));
        EXPECT_EQ(document()->toPlainText(), QStringLiteral("precious"));
        EXPECT_TRUE(isShown());
    }

    QProcess server;
};

TEST_F(MailDelivery, AMailArrivesAsItWasWritten)
{
    serve("accept");
    const QString name = QStringLiteral("青岚 شبكة 🌲\r\nBcc: eve@evil.example\r\n.\r\n");
    platform->infoDictionary.insert(QStringLiteral("CFBundleDisplayName"), name);
    const QString html = QStringLiteral("<p>你好\r\n.\r\n..\nFrom مرحبا 🌲</p>\n\n")
        + QStringLiteral("long ").repeated(500) + QChar(0) + QStringLiteral("\nBcc: eve@evil.example\n.\n");
    compose(html);
    ASSERT_TRUE(sendAndWait());
    EXPECT_EQ(root->results, QList{Result::sent});
    const QJsonObject mail = said();
    const QJsonArray support{QStringLiteral("support@tqstudio.example")};
    EXPECT_EQ(mail.value(QStringLiteral("to")).toArray(), support);
    EXPECT_EQ(mail.value(QStringLiteral("header_to")).toArray(), support);
    EXPECT_EQ(mail.value(QStringLiteral("type")).toString(), QStringLiteral("text/html"));
    EXPECT_EQ(mail.value(QStringLiteral("subject")).toString(),
              QStringLiteral("Contact: 青岚 شبكة 🌲  Bcc: eve@evil.example  .   2.3.1(57)"));
    EXPECT_EQ(mail.value(QStringLiteral("html")).toString(), html);
}

TEST_F(MailDelivery, AnEditedMailArrivesWithWhatTheUserWrote)
{
    serve("accept");
    compose(QStringLiteral("<p>given</p>"));
    type(message(), "written ");
    ASSERT_TRUE(sendAndWait());
    const QString html = said().value(QStringLiteral("html")).toString();
    EXPECT_TRUE(html.contains(QStringLiteral("written given"))) << html.toStdString();
}

TEST_F(MailDelivery, AMailThatIsTooLargeToBeShownArrivesWhole)
{
    serve("accept");
    const QString html = QStringLiteral("<p>中文</p>").repeated(100000);
    compose(html);
    EXPECT_TRUE(text("More text, which is too long to be shown here, is sent along below yours."));
    type(message(), "mine");
    ASSERT_TRUE(sendAndWait());
    const QString arrived = said().value(QStringLiteral("html")).toString();
    EXPECT_TRUE(arrived.endsWith(html));
    EXPECT_TRUE(arrived.chopped(html.size()).contains(QStringLiteral("mine")));
}

TEST_F(MailDelivery, AProgramWithoutConfigurationIsNotSetUp)
{
    makeProgram("HOME=/no/such/home exec " MSMTP " \"$@\"");
    compose(QStringLiteral("precious"));
    expectProblem("The mail program on this device is not set up.");
}

TEST_F(MailDelivery, AServerThatRefusesTheConnectionCannotBeReached)
{
    QTcpServer closed;
    ASSERT_TRUE(closed.listen(QHostAddress::LocalHost));
    const int port = closed.serverPort();
    closed.close();
    deliverTo(port);
    compose(QStringLiteral("precious"));
    expectProblem("The mail server cannot be reached. Check your connection and try again.");
}

TEST_F(MailDelivery, AServerThatRejectsTheRecipientDidNotAcceptTheMail)
{
    serve("reject");
    compose(QStringLiteral("precious"));
    expectProblem("The mail server did not accept your message.");
}

TEST_F(MailDelivery, AServerThatNeverAnswersIsGivenThirtySeconds)
{
    serve("silent");
    compose(QStringLiteral("precious"));
    click(button("Send"));
    EXPECT_TRUE(said().contains(QStringLiteral("connected")));
    EXPECT_FALSE(isProblemShown());
    platform->advance(30);
    ASSERT_TRUE(comes([this] { return isProblemShown(); }));
    EXPECT_TRUE(text("There has been no answer for 30 seconds. Your message may already have been sent; if so, trying "
                     "again sends it twice."));
    EXPECT_EQ(document()->toPlainText(), QStringLiteral("precious"));
}

} // namespace
} // namespace TQFoundation
