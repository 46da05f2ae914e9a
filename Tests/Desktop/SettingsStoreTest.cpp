#include "SettingsStore.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>
#include <QtCore/qtemporarydir.h>

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>

namespace TQFoundation {
namespace {

const QString flag = QStringLiteral("Flag");

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

TEST(SettingsStore, WritesValueOnceEventLoopRuns)
{
    SettingsStore store;
    EXPECT_FALSE(store.value(flag).isValid());
    store.setValue(flag, true);
    EXPECT_EQ(store.value(flag), QVariant(true));

    QCoreApplication::processEvents();
    EXPECT_TRUE(readSettings().contains("Flag=true"));
    EXPECT_EQ(SettingsStore().value(flag), QVariant(true));
}

TEST(SettingsStore, LeavesNothingBehind)
{
    {
        const SettingsStore store;
        EXPECT_FALSE(store.value(flag).isValid());
        EXPECT_TRUE(QCoreApplication::instance()->findChild<QSettings *>());
    }
    EXPECT_FALSE(QCoreApplication::instance()->findChild<QSettings *>());
}

TEST(SettingsStore, ReadsOnlyTrueAndFalseAsBooleansFromText)
{
    writeSettings("[General]\nyes=true\nno=false\none=1\nupper=True\nquoted=\"true \"\nword=yes\nlist=true, true\n");
    const SettingsStore store;
    EXPECT_EQ(store.value(QStringLiteral("yes")), QVariant(true));
    EXPECT_EQ(store.value(QStringLiteral("no")), QVariant(false));
    for (const char *key : {"one", "upper", "quoted", "word", "list"})
        EXPECT_NE(store.value(QLatin1String(key)).typeId(), QMetaType::Bool) << key;
}

TEST(SettingsStore, KeepsEveryByteOfHost)
{
    for (const QByteArray content :
         {"[General]\nname=Grove\n[Window]\nwidth=300\n",
          "; written by hand\n\n; too, without end\nname = Grove ; and here\n", "[General]\nname=Gr\xFCn\n",
          "[General]\nname=\\xdddd\nnames=Grove, \\xd83c\n", "text=\"open\nFlag=false\n",
          "[%General]\nname=Grove\n\n[%GENERAL]\nname=Birch\n", "[General]\n/name=Grove\nname/=Grove\n=Grove\n",
          "[General]\nname=Grove\nhalf a line", "\x7f\x45\x4c\x46\x02\x01\nname=Grove\n[Gen", "[General\nname=Grove\n",
          "# name=Grove\n"}) {
        writeSettings(content);
        SettingsStore store;
        EXPECT_FALSE(store.value(flag).isValid()) << content.constData();
        store.setValue(flag, true);
        QCoreApplication::processEvents();
        EXPECT_EQ(readSettings(), "Flag=true\n" + content);
        EXPECT_EQ(SettingsStore().value(flag), QVariant(true));
    }
}

TEST(SettingsStore, ChangesOwnLine)
{
    writeSettings("; written by hand\nFlag=false\nname=Grove\n");
    SettingsStore store;
    for (const bool value : {true, false, false, true}) {
        store.setValue(flag, value);
        QCoreApplication::processEvents();
        EXPECT_EQ(SettingsStore().value(flag), QVariant(value));
    }
    EXPECT_EQ(readSettings(), "; written by hand\nFlag=true\nname=Grove\n");
}

TEST(SettingsStore, KeepsUnwrittenChangesOfHost)
{
    writeSettings("; written by hand\nname=Grove\n");
    QSettings host(QCoreApplication::organizationName(), QCoreApplication::applicationName());
    host.setValue(QStringLiteral("name"), QStringLiteral("Birch"));
    SettingsStore().setValue(flag, true);
    host.setValue(QStringLiteral("size"), 3);
    QCoreApplication::processEvents();
    EXPECT_EQ(readSettings(), "[General]\nFlag=true\nname=Birch\nsize=3\n");
    EXPECT_EQ(host.value(flag), QVariant(QStringLiteral("true")));
}

TEST(SettingsStore, FollowsLink)
{
    const QTemporaryDir folder;
    const QString target = folder.filePath(QStringLiteral("shared.conf"));
    ASSERT_TRUE(QFile(target).open(QIODevice::WriteOnly));
    ASSERT_TRUE(QFileInfo(settingsPath()).dir().mkpath(QStringLiteral(".")));
    ASSERT_TRUE(QFile::link(target, settingsPath()));
    SettingsStore().setValue(flag, true);
    QCoreApplication::processEvents();
    EXPECT_TRUE(QFileInfo(settingsPath()).isSymLink());
    EXPECT_EQ(readSettings(), "Flag=true\n");
}

TEST(SettingsStore, LeavesFileThatIsNotText)
{
    const QByteArray content("\x7f\x45\x4c\x46\0\nname=Grove\n", 17);
    writeSettings(content);
    SettingsStore store;
    store.setValue(flag, true);
    QCoreApplication::processEvents();
    EXPECT_EQ(readSettings(), content);
    EXPECT_EQ(store.value(flag), QVariant(true));
}

TEST(SettingsStore, OtherTypesAreWrittenByQSettings)
{
    writeSettings("[General]\nname=Grove\n");
    SettingsStore store;
    store.setValue(QStringLiteral("number"), 5);
    store.setValue(QStringLiteral("Group/flag"), true);
    QCoreApplication::processEvents();
    EXPECT_EQ(readSettings(), "[General]\nname=Grove\nnumber=5\n\n[Group]\nflag=true\n");
}

TEST(SettingsStore, AnswersFromMemoryWhateverBecomesOfFile)
{
    writeSettings(QByteArray(1, '\0'));
    SettingsStore store;
    EXPECT_FALSE(store.value(flag).isValid());
    store.setValue(flag, true);
    EXPECT_EQ(store.value(flag), QVariant(true)) << "the file cannot be written";
    QCoreApplication::processEvents();
    EXPECT_EQ(store.value(flag), QVariant(true));
    EXPECT_FALSE(SettingsStore().value(flag).isValid()) << "as at the next launch";

    writeSettings("[General]\nFlag=false\n");
    QSettings(QCoreApplication::organizationName(), QCoreApplication::applicationName()).sync();
    EXPECT_EQ(store.value(flag), QVariant(true)) << "another process changed the file";
    store.setValue(flag, 5);
    EXPECT_EQ(store.value(flag), QVariant(5));
}

TEST(SettingsStore, MakesNoCopyOfFile)
{
    const QTemporaryDir temporary;
    qputenv("TMPDIR", temporary.path().toUtf8());
    writeSettings("[General]\nname=Grove\n");
    const QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    SettingsStore store;
    store.setValue(flag, true);
    QCoreApplication::processEvents();
    EXPECT_EQ(QFileInfo(settingsPath()).dir().entryList(everything).size(), 1);
    EXPECT_EQ(QDir(temporary.path()).entryList(everything), QStringList());
    EXPECT_EQ(readSettings(), "Flag=true\n[General]\nname=Grove\n");
    qunsetenv("TMPDIR");
}

TEST(SettingsStore, LeavesFileOnFullDisk)
{
    const char *content = "; written by hand\nname=Grove\n";
    writeSettings(content);
    const auto tooLarge = std::signal(SIGXFSZ, SIG_IGN);
    rlimit room;
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &room), 0);
    const rlimit full{0, room.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
    SettingsStore store;
    store.setValue(flag, true);
    QCoreApplication::processEvents();
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &room), 0);
    std::signal(SIGXFSZ, tooLarge);
    EXPECT_EQ(readSettings(), content);
    EXPECT_EQ(store.value(flag), QVariant(true));
}

TEST(SettingsStore, LeavesFolderInPlaceOfFile)
{
    // Permissions would not stop the superuser.
    ASSERT_TRUE(QDir().mkpath(settingsPath()));
    SettingsStore store;
    store.setValue(flag, true);
    QCoreApplication::processEvents();
    EXPECT_TRUE(QFileInfo(settingsPath()).isDir());
    EXPECT_EQ(store.value(flag), QVariant(true));
    EXPECT_FALSE(SettingsStore().value(flag).isValid());
}

TEST(SettingsStore, IgnoresSettingsOfOrganisation)
{
    QSettings shared(QCoreApplication::organizationName());
    shared.setValue(flag, true);
    shared.sync();
    EXPECT_FALSE(SettingsStore().value(flag).isValid());
}

} // namespace
} // namespace TQFoundation
