#include "SheetHost.h"

#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQGuideView.h>
#include <TQFoundation/TQRandomBackgroundView.h>

#include <QtCore/qdir.h>
#include <QtCore/qelapsedtimer.h>
#include <QtCore/qthread.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qpalette.h>
#include <QtNetwork/qtcpserver.h>
#include <QtNetwork/qtcpsocket.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

namespace TQFoundation {
namespace {

/// What a process holds at one moment.
struct Holdings
{
    double megabytes = 0; ///< of resident memory
    int handles = 0;
    int threads = 0;
    int timers = 0; ///< that the platform was asked for and that live
};

/// An app that is never ended: backgrounds that tick, and at times everything else that the library shows.
class Soak : public Testing::SheetHost
{
protected:
    static constexpr double tick = 10; // seconds
    static constexpr int backgroundCount = 3;

    Soak()
    {
        platform->records = false;
        QObject::connect(&server, &QTcpServer::newConnection, &server, [this] {
            QTcpSocket *visitor = server.nextPendingConnection();
            QObject::connect(visitor, &QTcpSocket::disconnected, visitor, &QObject::deleteLater);
            QObject::connect(visitor, &QTcpSocket::readyRead, visitor, [visitor] {
                visitor->write("HTTP/1.0 200 OK\r\nContent-Type: text/html\r\n\r\n<title>Page</title><p>Words");
                visitor->disconnectFromHost();
            });
        });
        const std::array colors{TQApp::hazel.tintColor(), TQApp::cedar.tintColor(), TQApp::larch.tintColor()};
        for (const Color &color : colors) {
            backgrounds.push_back(new TQRandomBackgroundView(color, window->contentItem()));
            backgrounds.back()->setSize(window->size());
        }
    }

    ~Soak() override { QGuiApplication::setPalette(formerPalette); }

    Holdings holdings() const
    {
        QFile status(QStringLiteral("/proc/self/status"));
        EXPECT_TRUE(status.open(QIODevice::ReadOnly));
        const QByteArray text = status.readAll();
        const auto number = [&text](const char *name) {
            const qsizetype at = text.indexOf(name) + qstrlen(name);
            return text.mid(at, text.indexOf('\n', at) - at).replace("kB", "").trimmed().toInt();
        };
        const auto lives = [](const auto &timer) { return !timer.expired(); };
        return {number("VmRSS:") / 1024.0,
                static_cast<int>(QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::NoFilter).size()),
                number("Threads:"), static_cast<int>(std::ranges::count_if(platform->timers, lives))};
    }

    // One tick, and what the app does then.
    void live(int number)
    {
        platform->advance(tick);
        settle();
        if (number % 10 == 0)
            drawAFrame();
        if (number % 20 == 0)
            changeLooks(number / 20);
        if (number % 40 == 0)
            moveTheBackgrounds();
        if (number % 100 == 0)
            showTheGuide();
        if (number % 150 == 0)
            writeAMail();
    }

    void drawAFrame() { EXPECT_FALSE(window->grabWindow().isNull()); }

    void changeLooks(int number)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, number % 2 ? Qt::black : Qt::white);
        palette.setColor(QPalette::WindowText, number % 2 ? Qt::white : Qt::black);
        QGuiApplication::setPalette(palette);
        QGuiApplication::setLayoutDirection(number % 4 < 2 ? Qt::LeftToRight : Qt::RightToLeft);
        QEvent language(QEvent::LanguageChange);
        QCoreApplication::sendEvent(qGuiApp, &language);
        settle();
    }

    // To another window, which is there for one tick, and back.
    void moveTheBackgrounds()
    {
        QQuickWindow other;
        other.resize(820, 600);
        other.show();
        for (TQRandomBackgroundView *background : backgrounds)
            background->setParentItem(other.contentItem());
        settle();
        platform->advance(tick);
        settle();
        for (TQRandomBackgroundView *background : backgrounds)
            background->setParentItem(window->contentItem());
        window->requestActivate();
        settle();
    }

    void showTheGuide()
    {
        platform->defaults.clear();
        int completed = 0;
        const auto guide = TQGuideView::initFromNib(Color::systemBlue(), {QStringLiteral("One"), QStringLiteral("Two")},
                                                    [&] { ++completed; });
        guide->showGuide();
        for (int page = 0; page < 2; ++page) {
            clock.pass(1000);
            guide->nextGuide();
        }
        clock.pass(1000);
        settle();
        EXPECT_EQ(completed, 1);
        EXPECT_FALSE(guide->window());
    }

    void writeAMail()
    {
        const auto mail = desktop.makeMailComposer();
        ASSERT_TRUE(mail);
        mail->setToRecipients({QStringLiteral("support@tqstudio.example")});
        mail->setSubject(QStringLiteral("Feedback"));
        mail->setMessageBody(QStringLiteral("<p>Words</p>"), true);
        root->present(mail);
        slide();
        click(button("Cancel"));
        slide();
        EXPECT_FALSE(isShown());
    }

    void readAPage()
    {
        root->present(
            desktop.makeInAppBrowser(QUrl(QString(u"http://127.0.0.1:" + QString::number(server.serverPort())))));
        slide();
        EXPECT_TRUE(isShown());
        QQuickItem *const web = itemOf("QQuickWebEngineView");
        EXPECT_TRUE(web && comes([web] { return !web->property("loading").toBool(); }));
        click(button("Close"));
        slide();
        EXPECT_FALSE(isShown());
    }

    QTcpServer server;
    QPalette formerPalette = QGuiApplication::palette();
    std::vector<TQRandomBackgroundView *> backgrounds; // of the window
};

TEST_F(Soak, HoursLeaveNothingBehind)
{
    const auto live = [this](int from, int to) {
        for (int number = from; number < to; ++number)
            Soak::live(number);
    };
    live(0, 400);
    const Holdings before = holdings();
    live(400, 2000);
    const Holdings after = holdings();
    // The toolkit's own pool begins its threads when it likes, with a file each. A leak would show more often: by then
    // there were 16 guides, 10 mails and 40 windows.
    const int pool = QThread::idealThreadCount();
    EXPECT_LE(after.handles, before.handles + pool);
    EXPECT_LE(after.threads, before.threads + pool);
    EXPECT_EQ(before.timers, backgroundCount);
    EXPECT_EQ(after.timers, backgroundCount);
#ifndef __SANITIZE_ADDRESS__ // which keeps what was freed
    EXPECT_LT(after.megabytes, before.megabytes + 8);
#endif
}

// Far too long for every run; the target `soak` draws what it prints.
TEST_F(Soak, DISABLED_AMonthLeavesNothingBehind)
{
    qInstallMessageHandler(passOverTheEngine);
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1"); // for the superuser, as who tests may run
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    constexpr int days = 30;
    const int minutes = qEnvironmentVariableIntValue("TQ_SOAK_MINUTES");
    constexpr int samples = 360;
    constexpr int ticksPerSample = days * 24 * 3600 / 10 / samples;
    std::vector<Holdings> held;
    QElapsedTimer clockOnTheWall;
    clockOnTheWall.start();
    std::printf("minutes,days,megabytes,handles,threads,timers\n");
    for (int sample = 0; sample < samples; ++sample) {
        for (int number = 0; number < ticksPerSample; ++number) {
            live(sample * ticksPerSample + number);
            const qint64 due =
                qint64{minutes} * 60'000 * (sample * ticksPerSample + number) / (samples * ticksPerSample);
            if (const qint64 early = due - clockOnTheWall.elapsed(); early > 0)
                QTest::qWait(static_cast<int>(early)); // and frames are drawn
        }
        if (sample % 5 == 0)
            readAPage();
        held.push_back(holdings());
        const Holdings &now = held.back();
        std::printf("%.2f,%.3f,%.1f,%d,%d,%d\n", static_cast<double>(clockOnTheWall.elapsed()) / 60'000,
                    days * (sample + 1.0) / samples, now.megabytes, now.handles, now.threads, now.timers);
        std::fflush(stdout);
    }
    // The second quarter beside the last one. What leaks is never given back, so that the least grows too; the web
    // engine has threads and files for a while.
    const auto least = [&held](std::size_t quarter, auto member) {
        const auto from = held.begin() + static_cast<std::ptrdiff_t>(quarter * samples / 4);
        return (*std::ranges::min_element(from, from + samples / 4, {}, member)).*member;
    };
    EXPECT_LE(least(3, &Holdings::handles), least(1, &Holdings::handles));
    EXPECT_LE(least(3, &Holdings::threads), least(1, &Holdings::threads));
    EXPECT_EQ(least(3, &Holdings::timers), backgroundCount);
    EXPECT_LT(least(3, &Holdings::megabytes), least(1, &Holdings::megabytes) + 2);
}

} // namespace
} // namespace TQFoundation
