#include <TQFoundation/DesktopPlatform.h>
#include <TQFoundation/TQGuideView.h>

#include "DeathTest.h"
#include "KeyboardFocus.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qscopeguard.h>
#include <QtCore/qsettings.h>
#include <QtGui/qdesktopservices.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qpa/qwindowsysteminterface.h>
#include <QtGui/qscreen.h>
#include <QtQuick/qquickrendercontrol.h>
#include <QtQuick/qquickwindow.h>
#include <QtTest/qtest.h>

#include <cmath>

#include <sys/stat.h>

namespace TQFoundation {
namespace {

QString plistPath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/Info.plist");
}

/// A property list beside the executable while this object exists. Tests that make one run one at a time.
class HostList
{
public:
    explicit HostList(const QByteArray &content)
    {
        QFile file(plistPath());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    HostList(const HostList &) = delete;
    HostList &operator=(const HostList &) = delete;
    ~HostList() { QFile::remove(plistPath()); }
};

QByteArray listOf(const QByteArray &entries)
{
    return "<plist version=\"1.0\"><dict>" + entries + "</dict></plist>";
}

/// An entry of the dictionary of a new platform.
QVariant info(const char *key)
{
    return DesktopPlatform().infoDictionaryValue(QLatin1String(key));
}

/// Stands for the system's browser.
class UrlHandler final : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> opened;

    Q_INVOKABLE void open(const QUrl &url) { opened += url; }
};

TEST(DesktopPlatform, MeasuresPrimaryScreen)
{
    const DesktopPlatform platform;
    EXPECT_EQ(platform.screenBounds(), QSizeF(QGuiApplication::primaryScreen()->geometry().size()));
    EXPECT_EQ(platform.screenScale(), QGuiApplication::primaryScreen()->devicePixelRatio());
}

TEST(DesktopPlatform, HasNoStorefront)
{
    const DesktopPlatform platform;
    EXPECT_EQ(platform.storefrontCountryCode(), std::nullopt);
}

TEST(DesktopPlatform, MediaTimeIsMonotonic)
{
    const DesktopPlatform platform;
    double last = platform.mediaTime();
    for (int round = 0; round < 1000; ++round) {
        const double now = platform.mediaTime();
        ASSERT_GE(now, last);
        last = now;
    }
}

TEST(DesktopHostInfo, ReadsFileBesideExecutable)
{
    const HostList list(
        listOf("<key>CFBundleName</key><string>Grove</string><key>CFBundleVersion</key><integer>57</integer>"));
    EXPECT_EQ(info("CFBundleName"), QVariant(QStringLiteral("Grove")));
    EXPECT_EQ(info("CFBundleVersion").typeId(), QMetaType::LongLong);
    EXPECT_FALSE(info("CFBundleDisplayName").isValid());
}

TEST(DesktopHostInfo, IsEmptyIfListIsBroken)
{
    const HostList list("<plist><dict><key>CFBundleName</key><string>Grove</string>");
    EXPECT_FALSE(info("CFBundleName").isValid());
}

TEST(DesktopHostInfo, IsEmptyIfListIsHuge)
{
    const HostList list(listOf("<key>CFBundleName</key><string>" + QByteArray(8 << 20, 'x') + "</string>"));
    EXPECT_FALSE(info("CFBundleName").isValid());
}

TEST(DesktopHostInfo, DoesNotBlockOnPipe)
{
    ASSERT_EQ(mkfifo(plistPath().toLocal8Bit().constData(), 0600), 0);
    const auto guard = qScopeGuard([] { QFile::remove(plistPath()); });
    EXPECT_EQ(info("CFBundleName"), QVariant(QCoreApplication::applicationName()));
}

TEST(DesktopHostInfo, IgnoresFolderInPlaceOfList)
{
    ASSERT_TRUE(QDir().mkdir(plistPath()));
    const auto guard = qScopeGuard([] { QDir().rmdir(plistPath()); });
    EXPECT_EQ(info("CFBundleName"), QVariant(QCoreApplication::applicationName()));
}

#ifdef Q_OS_LINUX
TEST(DesktopHostInfo, IsEmptyIfListCannotBeRead)
{
    // Reading this regular file fails for every user.
    ASSERT_TRUE(QFile::link(QStringLiteral("/proc/self/mem"), plistPath()));
    const auto guard = qScopeGuard([] { QFile::remove(plistPath()); });
    EXPECT_FALSE(info("CFBundleName").isValid());
}
#endif

TEST(DesktopHostInfo, FallsBackToApplicationObject)
{
    EXPECT_EQ(info("CFBundleName"), QVariant(QStringLiteral("Tests")));
    EXPECT_FALSE(info("CFBundleDisplayName").isValid());
    EXPECT_FALSE(info("CFBundleShortVersionString").isValid());
    EXPECT_FALSE(info("CFBundleVersion").isValid());

    QGuiApplication::setApplicationDisplayName(QStringLiteral("All Tests"));
    QCoreApplication::setApplicationVersion(QStringLiteral("3.4"));
    EXPECT_EQ(info("CFBundleDisplayName"), QVariant(QStringLiteral("All Tests")));
    EXPECT_EQ(info("CFBundleShortVersionString"), QVariant(QStringLiteral("3.4")));
    EXPECT_FALSE(info("CFBundleVersion").isValid());
}

TEST(DesktopPlatform, StoresUserDefaultsInOwnSettings)
{
    DesktopPlatform platform;
    EXPECT_FALSE(platform.userDefault(QStringLiteral("Flag")).isValid());
    platform.setUserDefault(QStringLiteral("Flag"), true);
    EXPECT_EQ(platform.userDefault(QStringLiteral("Flag")), QVariant(true));
    QCoreApplication::processEvents();
    const QSettings settings(QCoreApplication::organizationName(), QCoreApplication::applicationName());
    EXPECT_EQ(settings.value(QStringLiteral("Flag")), QVariant(QStringLiteral("true")));
}

TEST(DesktopPlatform, GuideStaysFinishedIfSettingsCannotBeWritten)
{
    const QSettings settings(QCoreApplication::organizationName(), QCoreApplication::applicationName());
    ASSERT_TRUE(QDir().mkpath(settings.fileName())) << "a folder in place of the file";
    EXPECT_TRUE(TQGuideView::shouldShowGuide());
    platform().setUserDefault(QStringLiteral("KeyOfDidShowGuide"), true);
    EXPECT_FALSE(TQGuideView::shouldShowGuide());
    QCoreApplication::processEvents();
    EXPECT_FALSE(TQGuideView::shouldShowGuide());
    installPlatform(nullptr);
    EXPECT_TRUE(TQGuideView::shouldShowGuide()) << "as at the next launch";
}

TEST(DesktopPlatform, HasOneSceneWithVisibleWindows)
{
    const DesktopPlatform platform;
    QQuickWindow shown;
    QQuickWindow hidden;
    QQuickWindow other;
    other.show();
    ASSERT_TRUE(Testing::showWithFocus(shown));

    const QList<Scene> scenes = platform.connectedScenes();
    ASSERT_EQ(scenes.size(), 1);
    EXPECT_TRUE(scenes[0].isWindowScene);
    EXPECT_EQ(scenes[0].activationState, ActivationState::foregroundActive);
    ASSERT_EQ(scenes[0].windows.size(), 2);
    for (const SceneWindow &window : scenes[0].windows)
        EXPECT_EQ(window.isKey, window.window == &shown);
}

TEST(DesktopPlatform, SceneHasStateOfApplication)
{
    const DesktopPlatform platform;
    const auto stateAfter = [&platform](Qt::ApplicationState state) {
        QWindowSystemInterface::handleApplicationStateChanged<QWindowSystemInterface::SynchronousDelivery>(state);
        return platform.connectedScenes().value(0).activationState;
    };
    EXPECT_EQ(stateAfter(Qt::ApplicationActive), ActivationState::foregroundActive);
    EXPECT_EQ(stateAfter(Qt::ApplicationInactive), ActivationState::foregroundInactive);
    EXPECT_EQ(stateAfter(Qt::ApplicationHidden), ActivationState::background);
    EXPECT_EQ(stateAfter(Qt::ApplicationSuspended), ActivationState::background);
}

TEST(DesktopPlatform, WindowIsKeyIfChildWindowHasFocus)
{
    if (QGuiApplication::platformName() == u"wayland")
        GTEST_SKIP() << "the compositor gives no child window the focus";
    const DesktopPlatform platform;
    QQuickWindow window;
    QWindow inside(&window);
    window.show();
    inside.show();
    inside.requestActivate();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QGuiApplication::focusWindow() == &inside; }));
    const QList<SceneWindow> windows = platform.connectedScenes().value(0).windows;
    ASSERT_EQ(windows.size(), 1);
    EXPECT_TRUE(windows[0].window == &window && windows[0].isKey);
}

TEST(DesktopPlatform, WindowRenderedIntoKeyWindowIsKey)
{
    const DesktopPlatform platform;
    /// A host of widgets or of another toolkit has one.
    class Control final : public QQuickRenderControl
    {
    public:
        QWindow *outer = nullptr;
        QWindow *renderWindow(QPoint *) override { return outer; }
    };
    QQuickWindow outer; // a plain window paints nothing, so a Wayland compositor does not show it
    Control control;
    control.outer = &outer;
    QQuickWindow shown(&control);
    shown.setVisible(true);
    ASSERT_TRUE(Testing::showWithFocus(outer));
    const QList<SceneWindow> windows = platform.connectedScenes().value(0).windows;
    ASSERT_EQ(windows.size(), 2);
    for (const SceneWindow &window : windows)
        EXPECT_TRUE(window.isKey);
}

TEST(DesktopPlatform, OpensUrlWithSystemHandler)
{
    DesktopPlatform platform;
    UrlHandler handler;
    QDesktopServices::setUrlHandler(QStringLiteral("https"), &handler, "open");
    platform.openUrl(QUrl(QStringLiteral("https://links.example/a?b#c")));
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    EXPECT_EQ(handler.opened, QList{QUrl(QStringLiteral("https://links.example/a?b#c"))});
}

TEST(DesktopPlatformDeathTest, StopsIfTimerIntervalIsInvalid)
{
    for (const double interval : {0.0, -1.0, std::nan(""), HUGE_VAL}) {
        EXPECT_EXIT(DesktopPlatform().makeTimer(interval, [] {}), testing::KilledBySignal(Testing::trapSignal),
                    Testing::noMessage);
    }
}

TEST(InstalledPlatform, IsDesktopPlatformUnlessAnotherIsInstalled)
{
    Platform *const first = &platform();
    EXPECT_NE(dynamic_cast<DesktopPlatform *>(first), nullptr);

    auto mine = std::make_unique<DesktopPlatform>();
    Platform *const second = mine.get();
    auto former = installPlatform(std::move(mine));
    EXPECT_EQ(former.get(), first);
    EXPECT_EQ(&platform(), second);

    EXPECT_EQ(installPlatform(nullptr).get(), second);
    EXPECT_NE(dynamic_cast<DesktopPlatform *>(&platform()), nullptr);
}

} // namespace
} // namespace TQFoundation

#include "DesktopPlatformTest.moc"
