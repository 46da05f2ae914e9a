#include "MailHost.h"

#include <csignal>
#include <cstdlib>
#include <sys/stat.h>

namespace TQFoundation {
namespace {

using Result = ViewController::MailComposeResult;

class DesktopMailComposer : public Testing::MailHost
{
protected:
    // Sends a mail to a program that never ends and destroys the application. Exits with 0 if the program is then alive
    // or dead as expected. For a death test.
    [[noreturn]] void quitWhileSending(int letters, bool isExpectedAlive)
    {
        makeProgram("head -c 1000 > '" + path("mail") + "'; echo $$ > '" + path("process")
                    + "'; exec sleep 1000 < /dev/null");
        compose(QString(letters, u'x'));
        click(button("Send"));
        comes([this] { return kept("process").endsWith('\n'); });
        root.reset();
        window.reset();
        settle();
        QCoreApplication::instance()->~QCoreApplication();
        const int process = kept("process").trimmed().toInt();
        const bool isAlive = process > 0 && ::kill(process, SIGKILL) == 0;
        std::_Exit(isAlive == isExpectedAlive ? 0 : 1);
    }
};

TEST_F(DesktopMailComposer, NotifiesDelegateOnce)
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

TEST_F(DesktopMailComposer, NotifiesDelegateOnceIfItStaysOpen)
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

TEST_F(DesktopMailComposer, IsDismissedWithScreensAboveIt)
{
    class Custom final : public ViewController
    {
    public:
        void mailComposeController(MailComposer *composer, MailComposeResult, const QString &) override
        {
            composer->dismiss();
        }
    };
    ASSERT_EQ(mkfifo(path("gate").constData(), 0600), 0);
    makeProgram("cat > /dev/null; cat '" + path("gate") + "'");
    const std::shared_ptr<ViewController> delegates[] = {root, std::make_shared<Custom>(), nullptr};
    for (const auto &delegate : delegates) {
        const auto composer = desktop.makeMailComposer();
        composer->setToRecipients({QStringLiteral("a@b.example")});
        composer->setMailComposeDelegate(delegate);
        root->present(composer);
        slide();
        click(button("Send"));
        QQuickItem view;
        composer->present(std::make_shared<ViewController>(&view));
        composer->presentedViewController()->present(std::make_shared<ViewController>());
        QFile gate(programs.filePath(QStringLiteral("gate")));
        ASSERT_TRUE(gate.open(QIODevice::WriteOnly));
        gate.close();
        EXPECT_TRUE(comes([this] { return !isShown(); }));
        EXPECT_FALSE(view.parentItem());
        EXPECT_FALSE(composer->presentedViewController());
        slide();
        EXPECT_FALSE(itemOf("QQuickTextArea"));
        if (isShown())
            open({390, 844});
    }
}

TEST_F(DesktopMailComposer, DefaultDelegateDismissesScreensAboveIt)
{
    const auto composer = desktop.makeMailComposer();
    root->present(composer);
    composer->present(std::make_shared<ViewController>());
    root->mailComposeController(composer.get(), Result::sent, {});
    EXPECT_FALSE(isShown());
    EXPECT_FALSE(composer->presentedViewController());
}

TEST_F(DesktopMailComposer, FailsWithoutWindow)
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

TEST_F(DesktopMailComposer, DismissesItselfWithoutDelegate)
{
    const auto composer = desktop.makeMailComposer();
    TQMore::topViewController()->present(composer);
    slide();
    click(button("Cancel"));
    EXPECT_FALSE(isShown());
    EXPECT_EQ(root->results, QList<Result>());
}

TEST_F(DesktopMailComposer, ReportsFailureIfCancelledAfterOne)
{
    makeProgram("exit 69");
    compose();
    ASSERT_TRUE(sendAndWait());
    click(button("Cancel"));
    EXPECT_EQ(root->results, QList{Result::failed});
    EXPECT_EQ(root->errors, QStringList{QStringLiteral("The mail server did not accept your message.")});
}

TEST_F(DesktopMailComposer, SendsOnlyToExactlyOneRecipient)
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

TEST_F(DesktopMailComposer, SendsPlainTextAsHtml)
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

TEST_F(DesktopMailComposer, ContinuesSendingAfterWindowIsDestroyed)
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

TEST_F(DesktopMailComposer, ProgramWithWholeMailOutlivesApplication)
{
    EXPECT_EXIT(quitWhileSending(1000, true), testing::ExitedWithCode(0), "");
}

TEST_F(DesktopMailComposer, ProgramWithHalfTheMailIsKilledAtExit)
{
    EXPECT_EXIT(quitWhileSending(3000000, false), testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace TQFoundation
