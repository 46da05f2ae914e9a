#include "MailHost.h"

#include <QtCore/qjsonarray.h>
#include <QtCore/qjsondocument.h>
#include <QtCore/qjsonobject.h>
#include <QtCore/qprocess.h>
#include <QtNetwork/qtcpserver.h>

namespace TQFoundation {
namespace {

using Result = ViewController::MailComposeResult;

// Delivery through an installed mail program to a mail server.
class MailDelivery : public Testing::MailHost
{
protected:
    ~MailDelivery() override
    {
        server.closeWriteChannel();
        server.waitForFinished();
    }

    // Starts the server and installs a program that delivers to it.
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

    // The next report of the server.
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

TEST_F(MailDelivery, DeliversMailUnchanged)
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

TEST_F(MailDelivery, DeliversEditedMail)
{
    serve("accept");
    compose(QStringLiteral("<p>given</p>"));
    type(message(), "written ");
    ASSERT_TRUE(sendAndWait());
    const QString html = said().value(QStringLiteral("html")).toString();
    EXPECT_TRUE(html.contains(QStringLiteral("written given"))) << html.toStdString();
}

TEST_F(MailDelivery, DeliversTextThatIsTooLargeToShow)
{
    serve("accept");
    const QString html = QStringLiteral("<p>中文</p>").repeated(100000);
    compose(html);
    EXPECT_TRUE(text("More text, which cannot be shown here, is sent along below yours."));
    type(message(), "mine");
    ASSERT_TRUE(sendAndWait());
    const QString arrived = said().value(QStringLiteral("html")).toString();
    EXPECT_TRUE(arrived.endsWith(html));
    EXPECT_TRUE(arrived.chopped(html.size()).contains(QStringLiteral("mine")));
}

TEST_F(MailDelivery, ReportsMissingConfiguration)
{
    makeProgram("HOME=/no/such/home exec " MSMTP " \"$@\"");
    compose(QStringLiteral("precious"));
    expectProblem("The mail program on this device is not set up.");
}

TEST_F(MailDelivery, ReportsRefusedConnection)
{
    QTcpServer closed;
    ASSERT_TRUE(closed.listen(QHostAddress::LocalHost));
    const int port = closed.serverPort();
    closed.close();
    deliverTo(port);
    compose(QStringLiteral("precious"));
    expectProblem("The mail server cannot be reached. Check your connection and try again.");
}

TEST_F(MailDelivery, ReportsRejectedRecipient)
{
    serve("reject");
    compose(QStringLiteral("precious"));
    expectProblem("The mail server did not accept your message.");
}

TEST_F(MailDelivery, ReportsSilentServerAfterThirtySeconds)
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
