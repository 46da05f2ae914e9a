#include "DesktopPlatform.h"

#include "DesktopInAppBrowser.h"
#include "DesktopMailComposer.h"
#include "DesktopTimer.h"
#include "InfoPlist.h"
#include "Precondition.h"
#include "Sendmail.h"

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>
#include <QtCore/qtemporaryfile.h>
#include <QtCore/qurl.h>
#include <QtGui/qdesktopservices.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qscreen.h>
#include <QtQuick/qquickrendercontrol.h>
#include <QtQuick/qquickwindow.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace TQFoundation {
namespace {

// The host's property list, or nothing where there is none. An unreadable one is an empty list.
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
        // Opening a pipe or a device instead of a regular file could wait for ever.
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
    // Qt answers with the application name where no display name was set.
    if (key == u"CFBundleDisplayName"
        && QGuiApplication::applicationDisplayName() != QCoreApplication::applicationName())
        return nonEmpty(QGuiApplication::applicationDisplayName());
    return {};
}

// Whether the settings lie in a text file, which keeps no types.
bool isText(const QSettings &settings)
{
#if defined(Q_OS_DARWIN) || defined(Q_OS_WIN)
    return settings.format() == QSettings::IniFormat;
#else
    static_cast<void>(settings);
    return true;
#endif
}

// Whether all that the settings hold can be read and asked for: what cannot be would be lost when they are written
// anew, as would what a name with an empty part is then taken for, and what is no text in UTF-8 or UTF-16; and groups
// called general in any case become one. Asked of a copy, because Qt parses a file once in a process and tells of
// errors only whoever came first. Where there is no room for a copy, nothing is known to be whole.
bool isWhole(const QSettings &settings)
{
    QFile file(settings.fileName());
    if (!isText(settings) || !file.exists())
        return true;
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray content = file.readAll();
    if (!QUtf8StringView(content).isValidUtf8())
        return false;
    for (const QString &folder : {QDir::tempPath(), QFileInfo(file).path()}) {
        QTemporaryFile copy(QString(folder + u"/settings.XXXXXX"));
        if (!copy.open() || copy.write(content) != content.size() || !copy.flush())
            continue;
        const QSettings read(copy.fileName(), settings.format());
        const QStringList keys = read.allKeys();
        const auto stays = [&read](const QString &key) {
            const bool isInGeneral = key.startsWith(u"general/", Qt::CaseInsensitive);
            return !key.split(u'/').contains(QString()) && (!isInGeneral || key.startsWith(u"General/"))
                && std::ranges::all_of(read.value(key).toStringList(), &QString::isValidUtf16);
        };
        return read.status() == QSettings::NoError && std::ranges::all_of(keys, stays);
    }
    return false;
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

// The window on the screen that shows this one: itself, unless its contents are rendered into another.
QWindow *windowOnScreen(QWindow *window)
{
    if (auto *quick = qobject_cast<QQuickWindow *>(window)) {
        if (QWindow *target = QQuickRenderControl::renderWindowFor(quick))
            return target;
    }
    return window;
}

} // namespace

DesktopPlatform::DesktopPlatform()
{
    m_clock.start();
}

DesktopPlatform::~DesktopPlatform()
{
    delete m_settings;
}

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
    const QSettings *stored = settings();
    if (!stored)
        return {};
    QVariant value = stored->value(key);
    if (isText(*stored) && value.typeId() == QMetaType::QString) {
        if (value.toString() == u"true")
            return true;
        if (value.toString() == u"false")
            return false;
    }
    return value;
}

void DesktopPlatform::setUserDefault(const QString &key, const QVariant &value)
{
    QSettings *stored = settings();
    if (stored && isWhole(*stored))
        stored->setValue(key, value);
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
    return static_cast<double>(m_clock.nsecsElapsed()) * 1e-9;
}

std::shared_ptr<RepeatingTimer> DesktopPlatform::makeTimer(double interval, std::function<void()> tick)
{
    precondition(interval > 0 && std::isfinite(interval));
    return std::make_shared<DesktopTimer>(m_clock, interval, std::move(tick));
}

QString DesktopPlatform::resourceRoot() const
{
    return QStringLiteral(":/qt-project.org/imports/TQFoundation");
}

QSettings *DesktopPlatform::settings() const
{
    if (!m_settings && QCoreApplication::instance()) {
        m_settings =
            new QSettings(QSettings::defaultFormat(), QSettings::UserScope, QCoreApplication::organizationName(),
                          QCoreApplication::applicationName(), QCoreApplication::instance());
        m_settings->setFallbacksEnabled(false);
    }
    return m_settings;
}

std::unique_ptr<Platform> makeDefaultPlatform()
{
    return std::make_unique<DesktopPlatform>();
}

} // namespace TQFoundation
