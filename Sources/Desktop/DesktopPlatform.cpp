#include "DesktopPlatform.h"

#include "DesktopInAppBrowser.h"
#include "DesktopMailComposer.h"
#include "DesktopTimer.h"
#include "InfoPlist.h"
#include "Precondition.h"
#include "Sendmail.h"
#include "SettingsStore.h"

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>
#include <QtCore/qurl.h>
#include <QtGui/qdesktopservices.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qscreen.h>
#include <QtQuick/qquickrendercontrol.h>
#include <QtQuick/qquickwindow.h>

#include <cmath>
#include <utility>

namespace TQFoundation {
namespace {

// The host's property list; nothing if it is missing, empty if it cannot be read.
std::optional<QByteArray> hostInfoPlist()
{
    QStringList candidates{QStringLiteral(":/Info.plist")};
    if (QCoreApplication::instance()) {
        const QString folder = QCoreApplication::applicationDirPath();
        candidates += QString(folder + u"/Info.plist");
#ifdef Q_OS_MACOS
        candidates += QString(folder + u"/../Info.plist");
#endif
    }
    for (const QString &path : std::as_const(candidates)) {
        // Opening a pipe or a device could block forever.
        if (!QFileInfo(path).isFile())
            continue;
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return QByteArray();
        return file.read(largestInfoPlist + 1);
    }
    return std::nullopt;
}

QVariant applicationValue(const QString &key)
{
    const auto nonEmpty = [](const QString &text) { return text.isEmpty() ? QVariant() : QVariant(text); };
    if (key == u"CFBundleName")
        return nonEmpty(QCoreApplication::applicationName());
    if (key == u"CFBundleShortVersionString")
        return nonEmpty(QCoreApplication::applicationVersion());
    // Qt returns the application name if no display name was set.
    if (key == u"CFBundleDisplayName"
        && QGuiApplication::applicationDisplayName() != QCoreApplication::applicationName())
        return nonEmpty(QGuiApplication::applicationDisplayName());
    return {};
}

ActivationState activationState(Qt::ApplicationState state)
{
    switch (state) {
    case Qt::ApplicationActive:
        return ActivationState::foregroundActive;
    case Qt::ApplicationInactive:
        return ActivationState::foregroundInactive;
    case Qt::ApplicationHidden:
    case Qt::ApplicationSuspended:
        break;
    }
    return ActivationState::background;
}

QWindow *topLevelOf(QWindow *window)
{
    while (window && window->parent())
        window = window->parent();
    return window;
}

// The window on the screen: the window itself, unless QQuickRenderControl renders it into another.
QWindow *windowOnScreen(QWindow *window)
{
    if (auto *quick = qobject_cast<QQuickWindow *>(window)) {
        if (QWindow *target = QQuickRenderControl::renderWindowFor(quick))
            return target;
    }
    return window;
}

double secondsOf(const QElapsedTimer &clock)
{
    return static_cast<double>(clock.nsecsElapsed()) * 1e-9;
}

} // namespace

DesktopPlatform::DesktopPlatform() : m_settings(std::make_unique<SettingsStore>())
{
    m_clock.start();
}

DesktopPlatform::~DesktopPlatform() = default;

QSizeF DesktopPlatform::screenBounds() const
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? QSizeF(screen->geometry().size()) : QSizeF(0, 0);
}

double DesktopPlatform::screenScale() const
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->devicePixelRatio() : 1;
}

std::optional<Appearance> DesktopPlatform::appearance() const
{
    return {};
}

std::optional<QString> DesktopPlatform::storefrontCountryCode() const
{
    return std::nullopt;
}

QVariant DesktopPlatform::infoDictionaryValue(const QString &key) const
{
    if (const auto list = hostInfoPlist())
        return parseInfoPlist(*list).value(key);
    return applicationValue(key);
}

QVariant DesktopPlatform::userDefault(const QString &key) const
{
    return m_settings->value(key);
}

void DesktopPlatform::setUserDefault(const QString &key, const QVariant &value)
{
    m_settings->setValue(key, value);
}

QList<Scene> DesktopPlatform::connectedScenes() const
{
    Scene scene{activationState(QGuiApplication::applicationState()), true, {}};
    const QWindow *focused = topLevelOf(QGuiApplication::focusWindow());
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow *window : windows) {
        if (window->isVisible())
            scene.windows.append({window, focused && topLevelOf(windowOnScreen(window)) == focused});
    }
    return {scene};
}

void DesktopPlatform::openUrl(const QUrl &url)
{
    QDesktopServices::openUrl(url);
}

bool DesktopPlatform::canSendMail() const
{
    return !sendmailProgram(programFolders()).isEmpty();
}

std::shared_ptr<MailComposer> DesktopPlatform::makeMailComposer()
{
    return std::make_shared<DesktopMailComposer>(programFolders());
}

std::shared_ptr<InAppBrowser> DesktopPlatform::makeInAppBrowser(const QUrl &url)
{
    return std::make_shared<DesktopInAppBrowser>(url);
}

QStringList DesktopPlatform::programFolders() const
{
    const QString path = qEnvironmentVariable("PATH");
    return QStringList{QStringLiteral("/usr/sbin"), QStringLiteral("/usr/lib")}
    + path.split(QDir::listSeparator(), Qt::SkipEmptyParts);
}

void DesktopPlatform::softImpact() {}

double DesktopPlatform::mediaTime() const
{
    return secondsOf(m_clock);
}

std::shared_ptr<RepeatingTimer> DesktopPlatform::makeTimer(double interval, std::function<void()> tick)
{
    precondition(interval > 0 && std::isfinite(interval));
    // A copy of the clock, because the timer may outlive the platform.
    return std::make_shared<DesktopTimer>([clock = m_clock] { return secondsOf(clock); }, interval, std::move(tick));
}

QString DesktopPlatform::resourceRoot() const
{
    return QStringLiteral(":/qt-project.org/imports/TQFoundation");
}

std::unique_ptr<Platform> makeDefaultPlatform()
{
    return std::make_unique<DesktopPlatform>();
}

} // namespace TQFoundation
