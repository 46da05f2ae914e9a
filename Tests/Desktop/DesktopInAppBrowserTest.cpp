#include "BrowserHost.h"

#include <cstdio>

#include <unistd.h>

namespace TQFoundation {
namespace {

class DesktopInAppBrowser : public Testing::BrowserHost
{};

TEST_F(DesktopInAppBrowser, LoadsNothingBeforeItIsPresented)
{
    const auto browser = desktop.makeInAppBrowser(QUrl(plain));
    browser->setPreferredControlTintColor(Color::systemRed());
    settle();
    EXPECT_TRUE(renderers().isEmpty());
    EXPECT_FALSE(web());
}

TEST_F(DesktopInAppBrowser, ClosesABusyPageAtOnce)
{
    for (const char *page : {"/busy", "/busy-at-once"}) {
        browse(plain + QLatin1String(page));
        QTest::qWait(600); // busy from 200 ms on; a busy page gives no sign
        click(button("Close"));
        EXPECT_FALSE(isShown());
        slide();
        EXPECT_TRUE(comes([] { return renderers().isEmpty(); })) << page;
    }
}

TEST_F(DesktopInAppBrowser, KeepsNoDataAfterClosing)
{
    for (int round = 0; round < 2; ++round) {
        load(plain + u"/keep");
        EXPECT_TRUE(isTitled("kept:"));
        close();
    }
}

TEST_F(DesktopInAppBrowser, ClosingFreesTheWebViewAndItsProcesses)
{
    for (int round = 0; round < 3; ++round) {
        load(plain);
        EXPECT_EQ(renderers().size(), 1);
        const QPointer<QQuickItem> view = web();
        close();
        EXPECT_FALSE(view);
        EXPECT_TRUE(comes([] { return renderers().isEmpty(); }));
    }
}

TEST_F(DesktopInAppBrowser, IsDestroyedWithItsWindow)
{
    load(plain);
    const QPointer<QQuickItem> view = web();
    ViewController::setRoot(window.get(), nullptr);
    root = std::make_shared<Delegate>();
    window.reset();
    settle();
    EXPECT_FALSE(view);
    EXPECT_TRUE(comes([] { return renderers().isEmpty(); }));
    open({390, 844});
}

TEST_F(DesktopInAppBrowser, OpensSystemBrowserForRootWithoutSandbox)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "not root";
    qunsetenv("QTWEBENGINE_DISABLE_SANDBOX");
    browse(plain);
    EXPECT_FALSE(isShown());
    EXPECT_FALSE(web());
    EXPECT_TRUE(platform->calls.contains(QString(u"openUrl(" + plain + u')')));
}

TEST_F(DesktopInAppBrowser, OpensSystemBrowserIfTheSheetIsMissing)
{
    platform->root = QStringLiteral(":/NoSuchBundle");
    browse(plain);
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(platform->calls.contains(QString(u"openUrl(" + plain + u')')));
}

TEST_F(DesktopInAppBrowser, OpensTheFilingSiteThroughThePlatform)
{
    qunsetenv("QTWEBENGINE_DISABLE_SANDBOX");
    TQMore::openUrl(QStringLiteral("https://beian.miit.gov.cn"), Color::systemRed());
    EXPECT_EQ(platform->calls.filter(QStringLiteral("make")),
              QStringList{QStringLiteral("makeInAppBrowser(https://beian.miit.gov.cn)")});
    if (geteuid() == 0) {
        EXPECT_LT(platform->calls.indexOf(QStringLiteral("connectedScenes()")),
                  platform->calls.indexOf(QStringLiteral("openUrl(https://beian.miit.gov.cn)")));
    }
}

// Slow: run by the target browser_rounds.
TEST_F(DesktopInAppBrowser, DISABLED_FiftyRoundsLeakNothing)
{
    const auto resident = [] {
        QFile status(QStringLiteral("/proc/self/status"));
        EXPECT_TRUE(status.open(QIODevice::ReadOnly));
        const QByteArray text = status.readAll();
        const qsizetype at = text.indexOf("VmRSS:") + 6;
        return text.mid(at, text.indexOf("kB", at) - at).trimmed().toDouble() / 1024;
    };
    double early = 0;
    for (int round = 1; round <= 50; ++round) {
        load(plain);
        close();
        ASSERT_TRUE(comes([] { return renderers().isEmpty(); }));
        if (round == 10)
            early = resident();
        if (round % 10 == 0)
            std::printf("after %d rounds: %.1f MB, %lld files open\n", round, resident(),
                        static_cast<long long>(QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::NoFilter).size()));
    }
    EXPECT_LT(resident(), early + 10);
}

} // namespace
} // namespace TQFoundation
