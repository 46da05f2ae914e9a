#pragma once

#include "SheetHost.h"

#include <QtCore/qdir.h>
#include <QtCore/qprocess.h>
#include <QtQml/qqmlcontext.h>

namespace TQFoundation::Testing {

/// A SheetHost that shows pages of a local web server in the in-app browser.
class BrowserHost : public SheetHost
{
protected:
    BrowserHost()
    {
        qInstallMessageHandler(passOverTheEngine);
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
        server.start(QStringLiteral(SYSTEM_PYTHON), {QStringLiteral(SUPPORT_FOLDER "/web_server.py"), programs.path()});
        EXPECT_TRUE(comes([this] { return server.canReadLine(); }));
        const QList<QByteArray> ports = server.readLine().trimmed().split(' ');
        plain = u"http://127.0.0.1:" + QString::fromLatin1(ports.value(0));
        elsewhere = u"http://localhost:" + QString::fromLatin1(ports.value(0));
        secure = u"https://127.0.0.1:" + QString::fromLatin1(ports.value(1));
    }

    ~BrowserHost() override
    {
        root->dismiss();
        slide();
        server.closeWriteChannel();
        server.waitForFinished();
    }

    /// Presents a browser for \a url.
    void browse(const QString &url)
    {
        const auto browser = desktop.makeInAppBrowser(QUrl(url));
        browser->setPreferredControlTintColor(Color::systemRed());
        TQMore::topViewController()->present(browser);
        slide();
    }

    /// Presents a browser for \a url and waits until the page has loaded or an error message is shown.
    void load(const QString &url)
    {
        browse(url);
        ASSERT_TRUE(web());
        EXPECT_TRUE(comes([this] { return isProblemShown() || !isLoading(); }));
        settle();
    }

    void close()
    {
        click(button("Close"));
        slide();
    }

    /// The web view; null if no browser is shown.
    QQuickItem *web() const { return findWeb(window->contentItem()); }

    bool isLoading() const { return web()->property("loading").toBool(); }
    bool isProblemShown() const { return button("Try Again"); }
    QString title() const { return web()->property("title").toString(); }

    /// Whether the bar names the site \a address.
    bool isNamed(const QString &address) const { return text(address.toUtf8().constData()); }
    /// Whether the bar says that a page is being loaded.
    bool isLoadingShown() const { return text("Loading…"); }

    /// Waits until the title of the page is \a text. False after the timeout.
    bool isTitled(const char *text) const
    {
        return comes([this, text] { return title() == QLatin1String(text); });
    }

    /// Clicks the page until the title is \a text: a page that was just loaded may ignore the first clicks.
    bool clickUntilTitled(const char *text)
    {
        return clickUntil([this, text] { return title() == QLatin1String(text); });
    }

    /// Clicks the page until \a condition holds.
    template <typename Condition>
    bool clickUntil(const Condition &condition)
    {
        return comes([this, &condition] {
            click(web());
            QTest::qWait(50);
            return condition();
        });
    }

    /// Clicks the page until another one is being loaded.
    bool clickUntilLoading()
    {
        return clickUntil([this] { return isLoading(); });
    }

    /// The process ids of the render processes. Each is a child of a child of this process.
    static QList<qint64> renderers()
    {
        QList<qint64> found;
        const QStringList processes = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
        for (const QString &process : processes) {
            const qint64 parent = parentOf(process.toLongLong());
            if (parent != QCoreApplication::applicationPid() && parentOf(parent) == QCoreApplication::applicationPid()
                && read(process.toLongLong(), "cmdline").contains("QtWebEngineProcess"))
                found += process.toLongLong();
        }
        return found;
    }

    static constexpr const char *unreachableText =
        "This page could not be loaded. Check your connection and try again.";
    static constexpr const char *insecureText =
        "The connection to this site is not secure, so the page was not opened.";
    static constexpr const char *timedOutText = "This page takes too long to load.";

    QProcess server;
    QString plain; ///< The server's address over HTTP, without a path.
    QString elsewhere; ///< The same address under another host name: for the browser, another site.
    QString secure; ///< The server's address over HTTPS with a self-signed certificate, without a path.

private:
    static QQuickItem *findWeb(const QQuickItem *from)
    {
        const QList<QQuickItem *> children = from->childItems();
        for (QQuickItem *child : children) {
            if (child->inherits("QQuickWebEngineView"))
                return child;
            if (QQuickItem *inside = findWeb(child))
                return inside;
        }
        return nullptr;
    }

    static QByteArray read(qint64 process, const char *name)
    {
        QFile file(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(name)));
        return process > 0 && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static qint64 parentOf(qint64 process)
    {
        const QByteArray status = read(process, "status");
        const qsizetype at = status.indexOf("PPid:\t");
        return at < 0 ? 0 : status.mid(at + 6, status.indexOf('\n', at) - at - 6).toLongLong();
    }
};

} // namespace TQFoundation::Testing
