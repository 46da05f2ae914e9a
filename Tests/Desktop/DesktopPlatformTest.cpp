#include <TQFoundation/DesktopPlatform.h>

#include "DeathTest.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qdir.h>
#include <QtCore/qelapsedtimer.h>
#include <QtCore/qeventloop.h>
#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>
#include <QtCore/qprocess.h>
#include <QtCore/qscopeguard.h>
#include <QtCore/qsettings.h>
#include <QtCore/qtemporarydir.h>
#include <QtCore/qtimer.h>
#include <QtGui/qdesktopservices.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qpa/qwindowsysteminterface.h>
#include <QtGui/qscreen.h>
#include <QtQuick/qquickrendercontrol.h>
#include <QtQuick/qquickwindow.h>
#include <QtTest/qtest.h>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

namespace TQFoundation {
namespace {

QString plistPath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/Info.plist");
}

/// A host's list beside the executable for as long as it lives. Tests that make one run one at a time.
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

QString settingsPath()
{
    return QSettings(QCoreApplication::organizationName(), QCoreApplication::applicationName()).fileName();
}

void writeSettings(const QByteArray &content)
{
    ASSERT_TRUE(QFileInfo(settingsPath()).dir().mkpath(QStringLiteral(".")));
    QFile file(settingsPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray readSettings()
{
    QFile file(settingsPath());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

class DesktopPlatformTest : public testing::Test
{
protected:
    QVariant info(const char *key) const { return platform.infoDictionaryValue(QLatin1String(key)); }

    DesktopPlatform platform;
};

using DesktopHostInfo = DesktopPlatformTest;

/// What stands in for the system's browser.
class System final : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> opened;

    Q_INVOKABLE void open(const QUrl &url) { opened += url; }
};

TEST_F(DesktopPlatformTest, TheScreenIsThePrimaryOne)
{
    EXPECT_EQ(platform.screenBounds(), QSizeF(QGuiApplication::primaryScreen()->geometry().size()));
    EXPECT_EQ(platform.screenScale(), QGuiApplication::primaryScreen()->devicePixelRatio());
}

TEST_F(DesktopPlatformTest, ADesktopHasNoStorefront)
{
    EXPECT_EQ(platform.storefrontCountryCode(), std::nullopt);
}

TEST_F(DesktopPlatformTest, MediaTimeNeverGoesBack)
{
    double last = platform.mediaTime();
    for (int round = 0; round < 1000; ++round) {
        const double now = platform.mediaTime();
        ASSERT_GE(now, last);
        last = now;
    }
}

TEST_F(DesktopHostInfo, AFileBesideTheExecutableIsTheDictionary)
{
    const HostList list(
        listOf("<key>CFBundleName</key><string>Grove</string><key>CFBundleVersion</key><integer>57</integer>"));
    EXPECT_EQ(info("CFBundleName"), QVariant(QStringLiteral("Grove")));
    EXPECT_EQ(info("CFBundleVersion").typeId(), QMetaType::LongLong);
    EXPECT_FALSE(info("CFBundleDisplayName").isValid());
}

TEST_F(DesktopHostInfo, EntriesOfABrokenListAreMissing)
{
    const HostList list("<plist><dict><key>CFBundleName</key><string>Grove</string>");
    EXPECT_FALSE(info("CFBundleName").isValid());
}

TEST_F(DesktopHostInfo, EntriesOfAHugeListAreMissing)
{
    const HostList list(listOf("<key>CFBundleName</key><string>" + QByteArray(8 << 20, 'x') + "</string>"));
    EXPECT_FALSE(info("CFBundleName").isValid());
}

TEST_F(DesktopHostInfo, APipeInPlaceOfTheListIsNotWaitedFor)
{
    ASSERT_EQ(mkfifo(plistPath().toLocal8Bit().constData(), 0600), 0);
    const auto guard = qScopeGuard([] { QFile::remove(plistPath()); });
    EXPECT_EQ(info("CFBundleName"), QVariant(QCoreApplication::applicationName()));
}

TEST_F(DesktopHostInfo, AFolderInPlaceOfTheListCountsAsNone)
{
    ASSERT_TRUE(QDir().mkdir(plistPath()));
    const auto guard = qScopeGuard([] { QDir().rmdir(plistPath()); });
    EXPECT_EQ(info("CFBundleName"), QVariant(QCoreApplication::applicationName()));
}

#ifdef Q_OS_LINUX
TEST_F(DesktopHostInfo, EntriesOfAListThatCannotBeReadAreMissing)
{
    // A regular file whose every read fails, whoever the user is.
    ASSERT_TRUE(QFile::link(QStringLiteral("/proc/self/mem"), plistPath()));
    const auto guard = qScopeGuard([] { QFile::remove(plistPath()); });
    EXPECT_FALSE(info("CFBundleName").isValid());
}
#endif

TEST_F(DesktopHostInfo, WithoutAListTheApplicationObjectDescribesTheHost)
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

/// A desktop whose programs lie in the folders of the test.
class DesktopWithPrograms : public DesktopPlatform
{
public:
    QStringList folders;

protected:
    QStringList programFolders() const override { return folders; }
};

TEST(SendmailProgram, IsAnExecutableFileInOneOfTheFolders)
{
    const QTemporaryDir first;
    const QTemporaryDir second;
    DesktopWithPrograms desktop;
    EXPECT_FALSE(desktop.canSendMail());
    desktop.folders = {QString(), QStringLiteral("/no/such/folder"), first.path(), second.path()};
    EXPECT_FALSE(desktop.canSendMail());
    ASSERT_TRUE(QDir(first.path()).mkdir(QStringLiteral("sendmail")));
    EXPECT_FALSE(desktop.canSendMail()) << "a folder";
    QFile program(second.filePath(QStringLiteral("sendmail")));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    EXPECT_FALSE(desktop.canSendMail()) << "not executable";
    program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_TRUE(desktop.canSendMail());
    program.remove();
    EXPECT_FALSE(desktop.canSendMail()) << "asked anew each time";
}

TEST(SendmailProgram, IsLookedForInTheSystemsFoldersAndThenInThePath)
{
    qputenv("PATH", "/one::/two");
    struct Desktop : DesktopPlatform
    {
        using DesktopPlatform::programFolders;
    };
    EXPECT_EQ(Desktop().programFolders(),
              (QStringList{QStringLiteral("/usr/sbin"), QStringLiteral("/usr/lib"), QStringLiteral("/one"),
                           QStringLiteral("/two")}));
}

TEST_F(DesktopPlatformTest, ASettingIsReadBackAndOnDiskOnceTheEventLoopRuns)
{
    EXPECT_FALSE(platform.userDefault(QStringLiteral("Flag")).isValid());
    platform.setUserDefault(QStringLiteral("Flag"), true);
    EXPECT_TRUE(platform.userDefault(QStringLiteral("Flag")).toBool());

    QCoreApplication::processEvents();
    EXPECT_TRUE(readSettings().contains("Flag=true"));
}

// A store that keeps no types has exactly one text that counts as true.
TEST_F(DesktopPlatformTest, OfATextFileTrueAndFalseAreBooleansAndAllElseIsText)
{
    writeSettings("[General]\nyes=true\nno=false\none=1\nupper=True\nquoted=\"true \"\nword=yes\nlist=true, true\n");
    EXPECT_EQ(platform.userDefault(QStringLiteral("yes")), QVariant(true));
    EXPECT_EQ(platform.userDefault(QStringLiteral("no")), QVariant(false));
    for (const char *key : {"one", "upper", "quoted", "word", "list"})
        EXPECT_NE(platform.userDefault(QLatin1String(key)).typeId(), QMetaType::Bool) << key;
}

TEST_F(DesktopPlatformTest, ASettingOfTheHostIsNotLost)
{
    writeSettings("[General]\nname=Grove\n[Window]\nwidth=300\n");
    platform.setUserDefault(QStringLiteral("Flag"), true);
    QCoreApplication::processEvents();
    EXPECT_EQ(readSettings(), "[General]\nFlag=true\nname=Grove\n\n[Window]\nwidth=300\n");
}

TEST_F(DesktopPlatformTest, ACorruptFileKeepsAllThatItHolds)
{
    for (const char *corrupt :
         {"[General]\nname=Grove\nhalf a line", "\x7f\x45\x4c\x46\x02\x01\nname=Grove\n[Gen", "[General\nname=Grove\n",
          "[General]\nname=Grove\n/name=Birch\n", "[General]\nname/=Grove\n", "[General]\n=Grove\n",
          "[/]\nname=Grove\n", "[General]\nname=Gr\xFCn\n", "[General]\nname=\\xdddd\n",
          "[General]\nnames=Grove, \\xd83c\n", "[%General]\nname=Grove\n\n[%GENERAL]\nname=Birch\n"}) {
        writeSettings(corrupt);
        DesktopPlatform fresh;
        EXPECT_NE(fresh.userDefault(QStringLiteral("Flag")), QVariant(true));
        fresh.setUserDefault(QStringLiteral("Flag"), true);
        QCoreApplication::processEvents();
        EXPECT_EQ(readSettings(), corrupt);
    }
}

TEST_F(DesktopPlatformTest, ASettingIsStoredAlsoWithoutAPlaceForTemporaryFiles)
{
    writeSettings("[General]\nname=Grove\n");
    qputenv("TMPDIR", "/proc");
    platform.setUserDefault(QStringLiteral("Flag"), true);
    qunsetenv("TMPDIR");
    QCoreApplication::processEvents();
    EXPECT_EQ(readSettings(), "[General]\nFlag=true\nname=Grove\n");
    EXPECT_EQ(QFileInfo(settingsPath()).dir().entryList(QDir::Files).size(), 1);
}

TEST_F(DesktopPlatformTest, ACorruptFileKeepsAllThatItHoldsAlsoWithoutAPlaceForTemporaryFiles)
{
    const char *corrupt = "[General]\nname=Grove\nhalf a line";
    writeSettings(corrupt);
    qputenv("TMPDIR", "/proc");
    platform.setUserDefault(QStringLiteral("Flag"), true);
    qunsetenv("TMPDIR");
    QCoreApplication::processEvents();
    EXPECT_EQ(readSettings(), corrupt);
}

// The disk is full when the setting is made, and has room again when it would be written.
TEST_F(DesktopPlatformTest, OnAFullDiskACorruptFileKeepsAllThatItHolds)
{
    const char *corrupt = "[General]\nname=Grove\nhalf a line";
    writeSettings(corrupt);
    const auto tooLarge = std::signal(SIGXFSZ, SIG_IGN);
    rlimit room;
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &room), 0);
    const rlimit full{0, room.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
    platform.setUserDefault(QStringLiteral("Flag"), true);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &room), 0);
    std::signal(SIGXFSZ, tooLarge);
    QCoreApplication::processEvents();
    EXPECT_EQ(readSettings(), corrupt);
}

TEST_F(DesktopPlatformTest, WhereTheStoreCannotBeWrittenNothingHappens)
{
    // A folder in place of the file; permissions would not stop the superuser.
    ASSERT_TRUE(QDir().mkpath(settingsPath()));
    platform.setUserDefault(QStringLiteral("Flag"), true);
    QCoreApplication::processEvents();
    EXPECT_TRUE(QFileInfo(settingsPath()).isDir());
    EXPECT_NE(DesktopPlatform().userDefault(QStringLiteral("Flag")), QVariant(QStringLiteral("true")));
}

TEST_F(DesktopPlatformTest, ASettingOfTheOrganisationIsNotTheApplications)
{
    QSettings shared(QCoreApplication::organizationName());
    shared.setValue(QStringLiteral("Flag"), true);
    shared.sync();
    EXPECT_FALSE(platform.userDefault(QStringLiteral("Flag")).isValid());
}

TEST_F(DesktopPlatformTest, OneSceneHoldsTheVisibleWindowsAndTheFocusedOneIsKey)
{
    QQuickWindow shown;
    QQuickWindow hidden;
    QQuickWindow other;
    other.show();
    shown.show();
    shown.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&shown));

    const QList<Scene> scenes = platform.connectedScenes();
    ASSERT_EQ(scenes.size(), 1);
    EXPECT_TRUE(scenes[0].isWindowScene);
    EXPECT_EQ(scenes[0].activationState, ActivationState::foregroundActive);
    ASSERT_EQ(scenes[0].windows.size(), 2);
    for (const SceneWindow &window : scenes[0].windows)
        EXPECT_EQ(window.isKey, window.window == &shown);
}

TEST_F(DesktopPlatformTest, TheSceneIsInTheStateOfTheApplication)
{
    const auto stateAfter = [this](Qt::ApplicationState state) {
        QWindowSystemInterface::handleApplicationStateChanged<QWindowSystemInterface::SynchronousDelivery>(state);
        return platform.connectedScenes().value(0).activationState;
    };
    EXPECT_EQ(stateAfter(Qt::ApplicationActive), ActivationState::foregroundActive);
    EXPECT_EQ(stateAfter(Qt::ApplicationInactive), ActivationState::foregroundInactive);
    EXPECT_EQ(stateAfter(Qt::ApplicationHidden), ActivationState::background);
    EXPECT_EQ(stateAfter(Qt::ApplicationSuspended), ActivationState::background);
}

TEST_F(DesktopPlatformTest, AWindowIsKeyWhereAWindowInsideItHasTheFocus)
{
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

TEST_F(DesktopPlatformTest, AWindowThatAnotherOneShowsIsKeyWithIt)
{
    /// As a host of widgets or of another toolkit has it.
    class Control final : public QQuickRenderControl
    {
    public:
        QWindow *outer = nullptr;
        QWindow *renderWindow(QPoint *) override { return outer; }
    };
    QWindow outer;
    Control control;
    control.outer = &outer;
    QQuickWindow shown(&control);
    shown.setVisible(true);
    outer.show();
    outer.requestActivate();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QGuiApplication::focusWindow() == &outer; }));
    const QList<SceneWindow> windows = platform.connectedScenes().value(0).windows;
    ASSERT_EQ(windows.size(), 2);
    for (const SceneWindow &window : windows)
        EXPECT_TRUE(window.isKey);
}

TEST_F(DesktopPlatformTest, AnUrlIsForTheSystem)
{
    System system;
    QDesktopServices::setUrlHandler(QStringLiteral("https"), &system, "open");
    platform.openUrl(QUrl(QStringLiteral("https://links.example/a?b#c")));
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    EXPECT_EQ(system.opened, QList{QUrl(QStringLiteral("https://links.example/a?b#c"))});
}

TEST_F(DesktopPlatformTest, ATimerFiresAtOnceAndThenTicksOnItsGrid)
{
    int ticks = 0;
    const auto timer = platform.makeTimer(0.05, [&] { ++ticks; });
    timer->fire();
    EXPECT_EQ(ticks, 1);
    timer->schedule();
    EXPECT_EQ(ticks, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 3; }));
    timer->invalidate();
}

TEST_F(DesktopPlatformTest, AScheduledTimerLivesUntilItIsInvalidated)
{
    const auto held = std::make_shared<int>(0);
    auto timer = platform.makeTimer(0.01, [held] { ++*held; });
    timer->schedule();
    const std::weak_ptr<RepeatingTimer> weak = timer;
    timer.reset();
    ASSERT_TRUE(QTest::qWaitFor([&] { return *held >= 2; }));
    ASSERT_FALSE(weak.expired());
    weak.lock()->invalidate();
    EXPECT_TRUE(weak.expired());
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(DesktopPlatformTest, ATimerMayEndItselfInItsTick)
{
    int ticks = 0;
    std::weak_ptr<RepeatingTimer> weak;
    {
        const auto timer = platform.makeTimer(0.001, [&] {
            ++ticks;
            weak.lock()->invalidate();
        });
        weak = timer;
        timer->schedule();
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return weak.expired(); }));
    EXPECT_EQ(ticks, 1);
}

TEST_F(DesktopPlatformTest, AnInvalidatedTimerNeverTicksAgain)
{
    int ticks = 0;
    const auto timer = platform.makeTimer(0.001, [&] { ++ticks; });
    timer->invalidate();
    timer->fire();
    timer->schedule();
    EXPECT_FALSE(QTest::qWaitFor([&] { return ticks > 0; }, 20));
}

TEST_F(DesktopPlatformTest, ATimerThatWasStalledTicksOnceAndKeepsItsGrid)
{
    std::vector<double> moments;
    const double made = platform.mediaTime();
    const auto timer = platform.makeTimer(0.1, [&] { moments.push_back(platform.mediaTime() - made); });
    timer->schedule();
    QElapsedTimer busy;
    busy.start();
    while (busy.elapsed() < 250) {} // blocks the event loop on purpose
    ASSERT_TRUE(QTest::qWaitFor([&] { return moments.size() >= 2; }));
    timer->invalidate();
    EXPECT_GE(moments[0], 0.25);
    EXPECT_LT(moments[0], 0.3);
    EXPECT_GE(moments[1], 0.3) << "the tick after a stall comes at the next whole multiple";
}

TEST_F(DesktopPlatformTest, ATimerEndsWithTheApplication)
{
    EXPECT_EXIT(
        {
            auto held = std::make_shared<int>(0);
            platform.makeTimer(10, [held] {})->schedule();
            QCoreApplication::instance()->~QCoreApplication();
            std::_Exit(held.use_count() == 1 ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

TEST(DesktopPlatformDeathTest, ATimerNeedsAnInterval)
{
    for (const double interval : {0.0, -1.0, std::nan(""), HUGE_VAL}) {
        EXPECT_EXIT(DesktopPlatform().makeTimer(interval, [] {}), testing::KilledBySignal(Testing::trapSignal), "^$");
    }
}

TEST(InstalledPlatform, IsADesktopUntilAnotherIsInstalledAndComesBack)
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
