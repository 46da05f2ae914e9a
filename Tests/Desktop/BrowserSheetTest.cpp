#include "BrowserHost.h"
#include "Languages.h"
#include "Layout.h"
#include "ScreenReader.h"

#include <QtGui/qguiapplication.h>
#include <QtGui/qopenglcontext.h>
#include <QtNetwork/qtcpserver.h>
#include <QtNetwork/qtcpsocket.h>
#include <QtTest/qsignalspy.h>

#include <algorithm>
#include <csignal>

namespace TQFoundation {
namespace {

using Testing::Layout;
using Testing::ScreenReader;

class BrowserSheet : public Testing::BrowserHost
{};

TEST_F(BrowserSheet, ShowsAPageUnderItsHostName)
{
    load(plain);
    EXPECT_TRUE(isTitled("Bank of Anywhere"));
    EXPECT_TRUE(text(plain.toUtf8().constData()));
    EXPECT_FALSE(text("Bank of Anywhere"));
    EXPECT_FALSE(isProblemShown());
    EXPECT_TRUE(QOpenGLContext::globalShareContext());
}

TEST_F(BrowserSheet, ShowsItsButtonsAsTintedIcons)
{
    browse(plain);
    for (const char *name : {"Close", "Back", "Reload"}) {
        const QList<QQuickItem *> parts = button(name)->findChildren<QQuickItem *>();
        const auto strokes = std::ranges::count_if(parts, [](const QQuickItem *part) {
            const auto color = part->property("color").value<QColor>();
            return part->inherits("QQuickRectangle") && part->height() == 2 && color.red() > 150 && color.green() < 100;
        });
        EXPECT_EQ(strokes, 2) << name;
        EXPECT_GE(button(name)->width(), 44);
        EXPECT_GE(button(name)->height(), 44);
    }
}

TEST_F(BrowserSheet, ClosesByButtonEscapeAndBackKey)
{
    for (const QString &page : {plain, QString(plain + u"/keys")}) {
        load(page);
        click(button("Close"));
        EXPECT_FALSE(isShown());
        slide();
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Back}) {
            load(page);
            QTest::keyClick(static_cast<QWindow *>(window.get()), key);
            EXPECT_FALSE(isShown()) << "the page cannot consume the key";
            slide();
        }
    }
}

TEST_F(BrowserSheet, ShowsASlowPageOnceItHasLoaded)
{
    browse(plain + u"/slow");
    ASSERT_TRUE(isLoading());
    const std::string tree = ScreenReader::tree(Layout::popupOf(button("Close")));
    EXPECT_NE(tree.find("ProgressBar '"), std::string::npos) << tree;
    EXPECT_TRUE(isTitled("slow"));
    EXPECT_TRUE(comes([this] { return !isLoading(); }));
}

TEST_F(BrowserSheet, ReportsAnUnreachableServer)
{
    QTcpServer closed;
    ASSERT_TRUE(closed.listen(QHostAddress::LocalHost));
    const QString url = QStringLiteral("http://127.0.0.1:%1").arg(closed.serverPort());
    closed.close();
    load(url);
    EXPECT_TRUE(text(unreachableText));
    EXPECT_TRUE(text(url.toUtf8().constData())) << "the site of the page that is missing";
}

TEST_F(BrowserSheet, LoadsThePageAgainAfterTryAgain)
{
    QTcpServer late;
    ASSERT_TRUE(late.listen(QHostAddress::LocalHost));
    const quint16 port = late.serverPort();
    late.close();
    load(QStringLiteral("http://127.0.0.1:%1").arg(port));
    EXPECT_TRUE(text(unreachableText));
    ASSERT_TRUE(late.listen(QHostAddress::LocalHost, port));
    QObject::connect(&late, &QTcpServer::newConnection, &late, [&late] {
        QTcpSocket *const socket = late.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket] {
            if (!socket->readAll().endsWith("\r\n\r\n"))
                return;
            socket->write("HTTP/1.0 200 OK\r\nContent-Type: text/html\r\n\r\n<title>there</title>");
            socket->disconnectFromHost();
        });
    });
    click(button("Try Again"));
    EXPECT_TRUE(isTitled("there"));
    EXPECT_FALSE(isProblemShown());
    EXPECT_TRUE(web()->isVisible());
    EXPECT_TRUE(web()->hasActiveFocus()) << "keyboard focus";
}

TEST_F(BrowserSheet, RejectsASelfSignedCertificate)
{
    load(secure);
    EXPECT_TRUE(text(insecureText));
    EXPECT_NE(title(), QStringLiteral("Bank of Anywhere"));
    click(button("Try Again"));
    ASSERT_TRUE(comes([this] { return isProblemShown(); }));
    EXPECT_TRUE(text(insecureText));
}

TEST_F(BrowserSheet, LoadsAPageAgainAfterARendererCrash)
{
    load(plain);
    ASSERT_TRUE(isTitled("Bank of Anywhere"));
    kill(static_cast<pid_t>(web()->property("renderProcessPid").toLongLong()), SIGKILL);
    ASSERT_TRUE(comes([this] { return isProblemShown(); }));
    EXPECT_TRUE(text("This page has stopped working."));
    click(button("Try Again"));
    EXPECT_TRUE(comes([this] { return !isProblemShown() && !isLoading(); }));
    EXPECT_TRUE(isTitled("Bank of Anywhere"));
    EXPECT_TRUE(web()->isVisible());
}

TEST_F(BrowserSheet, StopsLoadingAfterThirtySeconds)
{
    browse(plain + u"/silent");
    platform->advance(29.9);
    settle();
    EXPECT_FALSE(isProblemShown());
    platform->advance(0.2);
    settle();
    EXPECT_TRUE(text(timedOutText));
    EXPECT_FALSE(web()->isVisible()) << "no blank page";
    EXPECT_TRUE(comes([this] { return !isLoading(); }));
    EXPECT_TRUE(isProblemShown());
}

TEST_F(BrowserSheet, KeepsPartialPageAfterTimeout)
{
    browse(plain + u"/endless");
    ASSERT_TRUE(isTitled("endless"));
    ASSERT_TRUE(comes([this] { return web()->property("contentsSize").toSizeF().height() > 1000; }));
    platform->advance(30);
    settle();
    EXPECT_TRUE(text(timedOutText));
    EXPECT_TRUE(web()->isVisible());
    EXPECT_TRUE(comes([this] { return !isLoading(); }));
}

TEST_F(BrowserSheet, FollowsRedirectsButNoRedirectLoop)
{
    load(plain + u"/redirect");
    EXPECT_TRUE(isTitled("Bank of Anywhere"));
    close();
    load(plain + u"/round");
    EXPECT_TRUE(text(unreachableText));
}

TEST_F(BrowserSheet, ShowsPagesBuiltByScripts)
{
    load(plain + u"/scripts");
    EXPECT_TRUE(isTitled("scripts"));
}

TEST_F(BrowserSheet, ShowsServerErrorPagesUnlessEmpty)
{
    load(plain + u"/not-found");
    EXPECT_TRUE(isTitled("not found"));
    QTest::qWait(1000); // longer than the check for an empty error page
    EXPECT_FALSE(isProblemShown());
    close();
    load(plain + u"/empty-error");
    EXPECT_TRUE(comes([this] { return text(unreachableText) != nullptr; }));
}

TEST_F(BrowserSheet, DropsConsoleMessagesOfPages)
{
    load(plain + u"/loud");
    EXPECT_TRUE(isTitled("loud"));
}

TEST_F(BrowserSheet, AnswersDialogsWithoutAskingTheUser)
{
    load(plain + u"/dialogs");
    EXPECT_TRUE(isTitled("went on"));
    close();
    load(plain + u"/password");
    EXPECT_TRUE(isTitled("no entry"));
}

TEST_F(BrowserSheet, OpensNoChoosers)
{
    for (const char *page : {"/chooser-of-colors", "/chooser-of-files"}) {
        load(plain + QLatin1String(page));
        ASSERT_TRUE(isTitled("chooser"));
        EXPECT_TRUE(clickUntilTitled("asked")) << page;
        EXPECT_EQ(QGuiApplication::topLevelWindows().size(), 1) << page;
        close();
    }
}

TEST_F(BrowserSheet, DeniesPermissions)
{
    load(plain + u"/ask");
    EXPECT_TRUE(isTitled("denied"));
}

TEST_F(BrowserSheet, OpensNoWindowsProgramsOrFiles)
{
    for (const char *page : {"/windows", "/programs", "/files"}) {
        load(plain + QLatin1String(page));
        EXPECT_TRUE(isTitled("tried")) << page;
        EXPECT_EQ(QGuiApplication::topLevelWindows().size(), 1) << page;
        EXPECT_TRUE(platform->calls.filter(QStringLiteral("openUrl(")).isEmpty()) << page;
        EXPECT_EQ(web()->property("url").toUrl(), QUrl(plain + QLatin1String(page)));
        close();
    }
}

TEST_F(BrowserSheet, ShowsFramesThatThePageGenerates)
{
    load(plain + u"/frames");
    EXPECT_TRUE(isTitled("frames"));
    EXPECT_FALSE(isProblemShown());
}

TEST_F(BrowserSheet, RefusesDownloadsWithoutABlankSheet)
{
    const QDir home = QDir::home();
    const QStringList before = home.entryList();
    load(plain + u"/download");
    EXPECT_TRUE(isTitled("download"));
    close();
    browse(plain + u"/attachment");
    EXPECT_TRUE(comes([this] { return isProblemShown(); }));
    EXPECT_EQ(home.entryList(), before);
    EXPECT_FALSE(QFile::exists(home.filePath(QStringLiteral("Downloads/attachment.bin"))));
}

TEST_F(BrowserSheet, OpensLinksToNewWindowsInTheSheet)
{
    load(plain + u"/blank-link");
    ASSERT_TRUE(isTitled("link"));
    ASSERT_TRUE(clickUntilTitled("Bank of Anywhere"));
    EXPECT_EQ(QGuiApplication::topLevelWindows().size(), 1);
}

TEST_F(BrowserSheet, GoesBackToThePreviousPage)
{
    load(plain + u"/link");
    ASSERT_TRUE(isTitled("link"));
    EXPECT_FALSE(button("Back")->isEnabled());
    ASSERT_TRUE(clickUntilTitled("Bank of Anywhere"));
    ASSERT_TRUE(comes([this] { return button("Back")->isEnabled(); }));
    click(button("Back"));
    EXPECT_TRUE(isTitled("link"));
}

TEST_F(BrowserSheet, NamesTheShownPageWhileAnotherLoads)
{
    for (const char *page : {"/elsewhere-in-place", "/elsewhere", "/elsewhere-in-frame", "/elsewhere-rewriting"}) {
        load(plain + QLatin1String(page) + u"?silent");
        ASSERT_TRUE(isTitled("link")) << page;
        const QSignalSpy names(text(plain.toUtf8().constData()), SIGNAL(textChanged(QString)));
        ASSERT_TRUE(clickUntilLoading()) << page;
        EXPECT_TRUE(comes([this] { return isLoadingShown(); })) << page;
        platform->advance(31);
        settle();
        EXPECT_TRUE(text(timedOutText)) << page;
        EXPECT_TRUE(web()->isVisible()) << page;
        ASSERT_TRUE(comes([this] { return !isLoading(); })) << page;
        EXPECT_TRUE(comes([this] { return !isLoadingShown(); })) << page;
        click(button("Try Again"));
        ASSERT_TRUE(comes([this] { return isLoadingShown(); })) << page;
        EXPECT_TRUE(isNamed(plain)) << page;
        EXPECT_EQ(names.size(), 0) << page;
        close();
    }
}

TEST_F(BrowserSheet, NamesTheNextPageOnceItIsShown)
{
    for (const char *page : {"/elsewhere-in-place", "/elsewhere"}) {
        load(plain + QLatin1String(page) + u"?endless");
        ASSERT_TRUE(isTitled("link"));
        ASSERT_TRUE(clickUntilTitled("endless")) << page;
        EXPECT_TRUE(isNamed(elsewhere)) << page;
        EXPECT_TRUE(isLoading()) << page;
        EXPECT_TRUE(isLoadingShown()) << page;
        close();
        load(plain + QLatin1String(page) + u"?redirect");
        ASSERT_TRUE(isTitled("link"));
        ASSERT_TRUE(clickUntilTitled("Bank of Anywhere")) << page;
        EXPECT_TRUE(isNamed(elsewhere)) << page;
        close();
    }
    load(plain + u"/redirect-elsewhere");
    EXPECT_TRUE(isTitled("Bank of Anywhere"));
    EXPECT_TRUE(isNamed(elsewhere));
}

TEST_F(BrowserSheet, KeepsTheNameIfALinkIsADownload)
{
    load(plain + u"/elsewhere?attachment");
    ASSERT_TRUE(isTitled("link"));
    const QSignalSpy names(text(plain.toUtf8().constData()), SIGNAL(textChanged(QString)));
    const QSignalSpy progress(web(), SIGNAL(loadProgressChanged()));
    ASSERT_TRUE(comes([this, &progress] {
        click(web());
        QTest::qWait(200);
        return progress.size() > 0 && !isLoading();
    }));
    EXPECT_FALSE(isProblemShown());
    EXPECT_EQ(names.size(), 0);
}

TEST_F(BrowserSheet, NamesTheFailedPageOnlyBesideItsErrorMessage)
{
    load(plain + u"/elsewhere?round");
    ASSERT_TRUE(isTitled("link"));
    ASSERT_TRUE(clickUntilLoading());
    for (int attempt = 0; attempt < 2; ++attempt) {
        ASSERT_TRUE(comes([this] {
            EXPECT_TRUE(isNamed(web()->isVisible() ? plain : elsewhere));
            return isProblemShown();
        }));
        EXPECT_TRUE(text(unreachableText));
        EXPECT_TRUE(isNamed(elsewhere));
        click(button("Try Again"));
        ASSERT_TRUE(comes([this] { return isLoading(); }));
    }
}

TEST_F(BrowserSheet, NamesTheShownPageWhileGoingBack)
{
    load(plain + u"/silent-later?");
    ASSERT_TRUE(isTitled("link"));
    ASSERT_TRUE(clickUntilTitled("Bank of Anywhere"));
    ASSERT_TRUE(comes([this] { return button("Back")->isEnabled() && !isLoading(); }));
    click(button("Back"));
    ASSERT_TRUE(comes([this] { return isLoading(); }));
    EXPECT_TRUE(comes([this] { return isLoadingShown(); }));
    EXPECT_TRUE(isNamed(elsewhere));
}

TEST_F(BrowserSheet, FollowsLinksToNewWindowsInAnyDocument)
{
    for (const char *page : {"/sandboxed", "/drawing"}) {
        load(plain + QLatin1String(page));
        ASSERT_TRUE(isTitled("link")) << page;
        EXPECT_TRUE(clickUntilTitled("Bank of Anywhere")) << page;
        EXPECT_TRUE(comes([this] { return isNamed(elsewhere); })) << page;
        ASSERT_TRUE(comes([this] { return button("Back")->isEnabled(); }));
        click(button("Back"));
        EXPECT_TRUE(isTitled("link")) << page;
        close();
    }
}

TEST_F(BrowserSheet, FollowsLinksToNewWindowsByExactAddress)
{
    QStringList titles;
    for (const char *target : {"target=_self", "target=_blank"}) {
        load(plain + u"/echo-links?" + QLatin1String(target));
        ASSERT_TRUE(isTitled("links"));
        ASSERT_TRUE(clickUntil([this] { return title().startsWith(u"/echo?"); })) << target;
        titles += title();
        close();
    }
    EXPECT_EQ(titles.first(), titles.last());
}

TEST_F(BrowserSheet, LeavesPagesThatAskToStay)
{
    for (const char *target : {"target=_self", "target=_blank"}) {
        load(plain + u"/stay-link?" + QLatin1String(target));
        ASSERT_TRUE(isTitled("stay"));
        EXPECT_TRUE(clickUntilTitled("Bank of Anywhere")) << target;
        close();
    }
    load(plain + u"/elsewhere-in-place?stay");
    ASSERT_TRUE(isTitled("link"));
    ASSERT_TRUE(clickUntilTitled("stay"));
    ASSERT_TRUE(comes([this] { return button("Back")->isEnabled() && !isLoading(); }));
    click(web()); // a page that was never clicked cannot ask
    QTest::qWait(200); // the page's process gives no sign that the click has arrived
    click(button("Back"));
    EXPECT_TRUE(isTitled("link"));
}

TEST_F(BrowserSheet, FocusesTryAgainIfThereIsNoPage)
{
    load(secure);
    EXPECT_TRUE(button("Try Again")->hasActiveFocus());
    QStringList stops;
    for (int press = 0; press < 3; ++press) {
        QTest::keyClick(static_cast<QWindow *>(window.get()), Qt::Key_Tab);
        EXPECT_TRUE(window->activeFocusItem()->property("visualFocus").toBool());
        stops += window->activeFocusItem()->property("text").toString();
    }
    EXPECT_EQ(stops.join(u' '), QStringLiteral("Close Reload Try Again"));
    QTest::keyClick(static_cast<QWindow *>(window.get()), Qt::Key_Backtab);
    EXPECT_TRUE(button("Reload")->hasActiveFocus());
    QTest::keyClick(static_cast<QWindow *>(window.get()), Qt::Key_Space);
    EXPECT_FALSE(button("Reload")->hasActiveFocus());
    EXPECT_TRUE(comes([this] { return isProblemShown() && button("Try Again")->hasActiveFocus(); }))
        << "after another failure";
}

TEST_F(BrowserSheet, ExposesRolesAndNamesToAssistiveTechnology)
{
    const ScreenReader reader;
    load(secure);
    const std::string site = secure.mid(8).toStdString();
    EXPECT_EQ(reader.tree(Layout::popupOf(button("Close"))),
              "Dialog '' focused\n Dialog '" + site + R"(' focused
  Button 'Close' focusable
  Button 'Back'
  Heading ')" + site
                  + R"('
  Button 'Reload' focusable
  AlertMessage 'The connection to this site is not secure, so the page was not opened.'
   Button 'Try Again' focusable focused)");
    EXPECT_EQ(reader.describes(button("Try Again"))->text(QAccessible::Description), QLatin1String(insecureText));
    reader.press(button("Back"));
    EXPECT_TRUE(isProblemShown()) << "Back is disabled";
    reader.press(button("Close"));
    EXPECT_FALSE(isShown());
}

// Languages with long words, with dense scripts and written from right to left.
class BrowserSheetIn : public BrowserSheet, public testing::WithParamInterface<const char *>
{
protected:
    BrowserSheetIn() { Testing::useLanguage(GetParam()); }

    /// Expects a whole sheet in every window, except that \a address may be elided at its start.
    void expectFitsAnyWindow(const QString &address)
    {
        const QQuickItem *const sheet = Layout::popupOf(web());
        for (const QSize size :
             {QSize(320, 568), QSize(1280, 800), QSize(390, 844), QSize(240, 240), QSize(820, 1180)}) {
            window->resize(size);
            settle();
            window->grabWindow();
            QStringList flaws = Layout::flawsOf(sheet);
            flaws.removeIf(
                [&address](const QString &flaw) { return flaw.contains(address) && flaw.endsWith(u"clipped"); });
            EXPECT_EQ(flaws, QStringList()) << size.width();
            EXPECT_TRUE(Layout::isInSight(window->activeFocusItem())) << size.width();
        }
    }
};

TEST_P(BrowserSheetIn, FitsAnyWindowAndTextSize)
{
    for (const double points : {9.0, 18.0}) {
        QFont font = QGuiApplication::font();
        font.setPointSizeF(points);
        QGuiApplication::setFont(font);
        browse(secure);
        ASSERT_TRUE(comes([this] { return !web()->isVisible(); }));
        settle();
        expectFitsAnyWindow(secure.mid(8));
        root->dismiss();
        slide();
        browse(plain + u"/silent");
        ASSERT_TRUE(comes([this] { return isLoading(); }));
        expectFitsAnyWindow(plain.mid(7));
        root->dismiss();
        slide();
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, BrowserSheetIn, testing::Values("en", "de", "zh-Hans", "ar"),
                         [](const auto &language) { return std::string(language.param).substr(0, 2); });

} // namespace
} // namespace TQFoundation
