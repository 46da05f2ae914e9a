#include "MailHost.h"

#include <QtCore/qmimedata.h>
#include <QtGui/qclipboard.h>
#include <QtGui/qguiapplication.h>
#include <QtNetwork/qtcpserver.h>

#include <csignal>
#include <sys/stat.h>

namespace TQFoundation {
namespace {

using Result = ViewController::MailComposeResult;

class MailDraft : public Testing::MailHost
{};

TEST_F(MailDraft, SendsUneditedMessageUnchanged)
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

TEST_F(MailDraft, LetsProgramReadRecipientFromHeader)
{
    makeKeepingProgram();
    compose();
    ASSERT_TRUE(sendAndWait());
    EXPECT_EQ(kept("arguments"), "-t -i\n");
    EXPECT_EQ(sentHeader("To"), "support@tqstudio.example");
}

TEST_F(MailDraft, LeavesSenderAndDateToTheProgram)
{
    makeKeepingProgram();
    qputenv("EMAIL", "me@home.example\nBcc: eve@evil.example");
    compose();
    ASSERT_TRUE(sendAndWait());
    EXPECT_EQ(sentHeader("From"), QByteArray());
    EXPECT_EQ(sentHeader("Date"), QByteArray());
    EXPECT_FALSE(kept("mail").contains("Bcc"));
}

TEST_F(MailDraft, SendsEditsOfTheUser)
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

TEST_F(MailDraft, CancelFinishesAnUneditedMailAtOnce)
{
    compose(QStringLiteral("text"));
    click(button("Cancel"));
    EXPECT_FALSE(isShown());
    EXPECT_EQ(root->results, QList{Result::cancelled});
}

TEST_F(MailDraft, CancelAsksIfTheMessageIsEdited)
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

TEST_F(MailDraft, CancelAsksIfTheSubjectIsEdited)
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

TEST_F(MailDraft, CancelWhileSendingStopsTheProgramAfterConfirmation)
{
    makeProgram("head -c 1000 > '" + path("mail") + "'; sleep 1000 & echo $! > '" + path("child") + "'; echo $$ > '"
                + path("program") + "'; wait");
    compose(QString(3000000, u'x'));
    click(button("Send"));
    ASSERT_TRUE(comes([this] { return kept("program").endsWith('\n'); }));
    click(button("Cancel"));
    EXPECT_TRUE(text("Stop sending this message? It may already have been sent."));
    click(button("Keep Sending"));
    EXPECT_TRUE(text("Sending…"));
    press(Qt::Key_Escape);
    ASSERT_TRUE(button("Stop Sending"));
    click(button("Stop Sending"));
    EXPECT_FALSE(isShown());
    EXPECT_EQ(root->results, QList{Result::cancelled});
    for (const char *name : {"program", "child"}) {
        const int process = kept(name).trimmed().toInt();
        EXPECT_TRUE(comes([process] { return process > 0 && ::kill(process, 0) != 0; })) << name;
    }
}

TEST_F(MailDraft, StoppedMailCanBeEditedAndSentAgain)
{
    makeProgram("echo started > '" + path("program") + "'; exec sleep 1000");
    compose();
    type(message(), "precious");
    click(button("Send"));
    ASSERT_TRUE(comes([this] { return kept("program").endsWith('\n'); }));
    press(Qt::Key_Escape);
    click(button("Stop Sending"));
    EXPECT_FALSE(text("Sending…"));
    ASSERT_TRUE(button("Discard"));
    click(button("Keep Writing"));
    EXPECT_FALSE(isProblemShown());
    EXPECT_FALSE(message()->property("readOnly").toBool());
    makeKeepingProgram();
    ASSERT_TRUE(sendAndWait());
    EXPECT_TRUE(sentHtml().contains(QStringLiteral("precious")));
    EXPECT_EQ(root->results, QList{Result::sent});
}

TEST_F(MailDraft, StopQuestionClosesWhenSendingEnds)
{
    ASSERT_EQ(mkfifo(path("gate").constData(), 0600), 0);
    for (const char *exitCode : {"75", "0"}) {
        makeProgram("cat > '" + path("mail") + "'; cat '" + path("gate") + "'; exit " + exitCode);
        if (!isShown())
            compose();
        click(button("Send"));
        click(button("Cancel"));
        ASSERT_TRUE(button("Stop Sending"));
        QFile gate(programs.filePath(QStringLiteral("gate")));
        ASSERT_TRUE(gate.open(QIODevice::WriteOnly));
        gate.close();
        ASSERT_TRUE(comes([this] { return !button("Stop Sending"); }));
        settle();
        EXPECT_EQ(isProblemShown() && button("Try Again")->hasActiveFocus(), *exitCode == '7');
    }
    EXPECT_FALSE(isShown());
    EXPECT_EQ(root->results, QList{Result::sent});
}

TEST_F(MailDraft, KeepsTextIfThereIsNoProgram)
{
    compose();
    type(message(), "precious");
    ASSERT_TRUE(sendAndWait());
    EXPECT_TRUE(text("There is no mail program on this device."));
    EXPECT_EQ(document()->toPlainText(), QStringLiteral("precious"));
    EXPECT_EQ(root->results, QList<Result>());
    makeKeepingProgram();
    window->grabWindow(); // the button can be clicked once it is drawn
    click(button("Try Again"));
    ASSERT_TRUE(comes([this] { return !isShown(); }));
    EXPECT_TRUE(sentHtml().contains(QStringLiteral("precious")));
    EXPECT_EQ(root->results, QList{Result::sent});
}

TEST_F(MailDraft, ReportsProgramThatCannotBeStarted)
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

TEST_F(MailDraft, ExplainsExitCodes)
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

TEST_F(MailDraft, ReportsCrashedProgram)
{
    makeProgram("kill -9 $$");
    compose();
    ASSERT_TRUE(sendAndWait());
    EXPECT_TRUE(text("The mail program stopped unexpectedly. Your message may not have been sent."));
}

TEST_F(MailDraft, AcceptsProgramThatReadsNothing)
{
    makeProgram("exit 0");
    compose(QString(4000000, u'x'));
    ASSERT_TRUE(sendAndWait());
    EXPECT_EQ(root->results, QList{Result::sent});
}

TEST_F(MailDraft, ReportsTimeoutAfterThirtySeconds)
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
    window->grabWindow(); // the button can be clicked once it is drawn
    click(button("Try Again"));
    ASSERT_TRUE(comes([this] { return !isShown(); }));
    platform->advance(60);
    EXPECT_EQ(root->results, QList{Result::sent});
}

TEST_F(MailDraft, LoadsNoImages)
{
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const QString remote = QStringLiteral("http://127.0.0.1:%1/").arg(server.serverPort());
    QImage picture(300, 300, QImage::Format_RGB32);
    ASSERT_TRUE(picture.save(programs.filePath(QStringLiteral("large.png"))));
    const QString local = u"file://" + programs.path();
    compose(u"<p>text <img src='" + remote + u"c.png'><img src='" + local + u"/large.png'><img src='" + programs.path()
            + u"/large.png'><img src=':/qt-project.org/imports/TQFoundation/Icons/fir.png'></p>");
    EXPECT_TRUE(document()->toPlainText().startsWith(QStringLiteral("text ")));
    EXPECT_FALSE(server.waitForNewConnection(100));
    EXPECT_LT(message()->property("contentHeight").toDouble(), 60);
}

TEST_F(MailDraft, EditedMessageKeepsImageReferences)
{
    makeKeepingProgram();
    compose(QStringLiteral("<p>one <img src=\"https://tqstudio.example/a.png\" width=\"20\"> two</p>"));
    type(message(), "zero ");
    ASSERT_TRUE(sendAndWait());
    EXPECT_TRUE(sentHtml().contains(QStringLiteral("src=\"https://tqstudio.example/a.png\"")))
        << sentHtml().toStdString();
    EXPECT_FALSE(sentHtml().contains(QStringLiteral("no-image")));
}

TEST_F(MailDraft, SendsExpensiveMessageUnshownAndUnchanged)
{
    makeKeepingProgram();
    const QString html = QStringLiteral("<table><tr>") + QStringLiteral("<td colspan=20480>x").repeated(50);
    compose(html);
    EXPECT_TRUE(text("More text, which cannot be shown here, is sent along below yours."));
    EXPECT_EQ(document()->toPlainText(), QString());
    ASSERT_TRUE(sendAndWait());
    EXPECT_EQ(sentHtml(), html);
}

TEST_F(MailDraft, ShowsLongPlainMessage)
{
    const QString sentence = QStringLiteral("All that is plain is shown. ");
    compose(u"<p>" + sentence.repeated(2000) + u"</p>");
    EXPECT_FALSE(text("More text, which cannot be shown here, is sent along below yours."));
    EXPECT_EQ(document()->toPlainText().size(), sentence.size() * 2000);
}

TEST_F(MailDraft, PastesPlainTextOnly)
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

} // namespace
} // namespace TQFoundation
