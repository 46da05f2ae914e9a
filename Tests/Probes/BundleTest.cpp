#include <TQFoundation/Bundle.h>

#include "Languages.h"
#include "RecordingPlatform.h"

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace TQFoundation {
namespace {

using Testing::InstalledRecordingPlatform;
using Testing::useLanguage;

const QString version = QStringLiteral("Version");

QByteArray chineseTable()
{
    QFile table(QStringLiteral(":/qt-project.org/imports/TQFoundation/Translations/TQFoundation_zh_Hans.qm"));
    EXPECT_TRUE(table.open(QIODevice::ReadOnly));
    return table.readAll();
}

// Makes the folder a bundle with a Chinese table of this content.
void write(const QString &root, const QByteArray &content)
{
    EXPECT_TRUE(QDir().mkpath(root + QStringLiteral("/Translations")));
    QFile table(root + QStringLiteral("/Translations/TQFoundation_zh_Hans.qm"));
    table.remove(); // a loaded table is mapped into memory
    EXPECT_TRUE(table.open(QIODevice::WriteOnly));
    table.write(content);
}

TEST(Bundle, ReadsItsRootAtEveryUse)
{
    const InstalledRecordingPlatform platform;
    EXPECT_EQ(libraryBundle().root(), QStringLiteral(":/qt-project.org/imports/TQFoundation"));
    platform->root = QStringLiteral("/elsewhere");
    EXPECT_EQ(libraryBundle().root(), QStringLiteral("/elsewhere"));
}

TEST(Bundle, TranslatesIntoTheUsersLanguage)
{
    useLanguage("zh-CN");
    EXPECT_EQ(localizedInLibrary(version), QStringLiteral("版本"));
}

TEST(Bundle, PrefersTheDefaultLocaleToTheSystemsLanguages)
{
    qputenv("LC_ALL", "fr_FR.UTF-8");
    qputenv("LANGUAGE", "fr");
    EXPECT_EQ(QLocale::system().uiLanguages().value(0).left(2), QStringLiteral("fr"));
    useLanguage("zh-CN");
    EXPECT_EQ(localizedInLibrary(version), QStringLiteral("版本"));
}

TEST(Bundle, TakesTheFirstLanguageThatHasATable)
{
    qputenv("LC_ALL", "sw_KE.UTF-8");
    qputenv("LANGUAGE", "sw:zh_CN:de");
    QLocale::setDefault(QLocale::system());
    EXPECT_EQ(localizedInLibrary(version), QStringLiteral("版本"));
}

TEST(Bundle, ReturnsTextsWithoutEntryUnchanged)
{
    useLanguage("zh-CN");
    for (const char16_t *text : {u"", u"version", u"Version ", u"No such text", u"<b>Version</b>", u"版本"})
        EXPECT_EQ(localizedInLibrary(QString::fromUtf16(text)), QString::fromUtf16(text));
}

TEST(Bundle, LooksUpTheWholeTextPastNul)
{
    useLanguage("zh-CN");
    const QString withNul = version + QChar::Null + QStringLiteral("x");
    EXPECT_EQ(localizedInLibrary(withNul), withNul);
    const QString halfACharacter = version + QChar(0xD800);
    EXPECT_EQ(localizedInLibrary(halfACharacter), halfACharacter);
    const QString huge(4 << 20, u'x');
    EXPECT_EQ(localizedInLibrary(huge), huge);
}

TEST(Bundle, ReturnsTheKeyWithoutATable)
{
    useLanguage("zh-CN");
    const InstalledRecordingPlatform platform;
    platform->root = Testing::emptyBundle();
    EXPECT_EQ(localizedInLibrary(version), version);
}

TEST(Bundle, FallsBackToEnglish)
{
    useLanguage("sw-KE");
    EXPECT_EQ(localizedInLibrary(version), version);
}

TEST(Bundle, ReturnsEnglishInLocaleC)
{
    useLanguage("C");
    EXPECT_EQ(localizedInLibrary(version), version);
}

TEST(Bundle, ChoosesTheLanguageOncePerProcess)
{
    useLanguage("zh-CN");
    EXPECT_EQ(localizedInLibrary(version), QStringLiteral("版本"));
    useLanguage("de-DE");
    EXPECT_EQ(localizedInLibrary(version), QStringLiteral("版本"));
    EXPECT_EQ(Bundle(QStringLiteral(":/qt-project.org/imports/TQFoundation/.")).localizedString(version),
              QStringLiteral("版本"));
}

TEST(Bundle, IgnoresABrokenTable)
{
    const QTemporaryDir folder;
    write(folder.path(), "\x3c\xb8\x64\x18 and then nothing of the kind");
    useLanguage("zh-CN");
    EXPECT_EQ(Bundle(folder.path()).localizedString(version), version);
}

TEST(Bundle, LoadsEachTableOnce)
{
    useLanguage("zh-CN");
    const QTemporaryDir folders[2];
    for (const QTemporaryDir &folder : folders) {
        write(folder.path(), chineseTable());
        EXPECT_EQ(Bundle(folder.path()).localizedString(version), QStringLiteral("版本"));
    }
    for (const QTemporaryDir &folder : folders) {
        write(folder.path(), "no longer a table");
        EXPECT_EQ(Bundle(folder.path()).localizedString(version), QStringLiteral("版本"));
    }
    EXPECT_EQ(localizedInLibrary(version), QStringLiteral("版本"));
}

TEST(Bundle, TranslatesInManyThreads)
{
    useLanguage("zh-CN");
    const QTemporaryDir folder;
    write(folder.path(), chineseTable());
    std::atomic<int> translated = 0;
    {
        std::vector<std::jthread> threads;
        for (int number = 0; number < 8; ++number) {
            threads.emplace_back([&, number] {
                for (int round = 0; round < 100; ++round) {
                    const QString missing = folder.filePath(QString::number(number * round % 7));
                    translated += Bundle(folder.path()).localizedString(version) == QStringLiteral("版本")
                        && Bundle(missing).localizedString(version) == version;
                }
            });
        }
    }
    EXPECT_EQ(translated, 800);
}

TEST(Bundle, SurvivesEveryTruncatedTable)
{
    const QTemporaryDir folder;
    const QByteArray content = chineseTable();
    useLanguage("zh-CN");
    for (qsizetype length = 0; length < content.size(); length += 37) {
        const QString root = folder.filePath(QString::number(length));
        write(root, content.first(length));
        const QString text = Bundle(root).localizedString(version);
        EXPECT_TRUE(text == version || text == QStringLiteral("版本")) << length;
    }
}

TEST(Bundle, KeepsInterfaceTextsInTheirOwnContext)
{
    useLanguage("de-DE");
    EXPECT_EQ(libraryBundle().interfaceString(QStringLiteral("Next")), QStringLiteral("Weiter"));
    EXPECT_EQ(localizedInLibrary(QStringLiteral("Next")), QStringLiteral("Next"));
    EXPECT_EQ(libraryBundle().interfaceString(version), version);
}

TEST(Bundle, LoadsTheStoredSizeThatIsAWholeMultiple)
{
    const std::pair<int, int> expected[] = {{36, 36},   {18, 36},  {54, 108},  {72, 72},
                                            {108, 108}, {45, 216}, {1000, 216}};
    for (const auto &[side, stored] : expected)
        EXPECT_EQ(libraryBundle().image(QStringLiteral("fir"), side).size(), QSize(stored, stored)) << side;
}

TEST(Bundle, LoadsTheFullSizeOfImagesThatAreNotStoredSmaller)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Icons")));
    const Bundle bundle(folder.path());
    const auto stored = [&](const QString &name) {
        const QString file = u"Icons/" + name + u".png";
        EXPECT_TRUE(QFile::copy(u":/qt-project.org/imports/TQFoundation/" + file, folder.filePath(file)));
        return bundle.image(name, 36);
    };
    const QImage fir = stored(QStringLiteral("fir"));
    EXPECT_EQ(fir.size(), QSize(216, 216));
    EXPECT_NE(stored(QStringLiteral("birch")), fir);
}

// Looking for other formats would load their plugins.
TEST(Bundle, ReadsPngAlone)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Icons")));
    QImage bitmap(108, 108, QImage::Format_RGB32);
    bitmap.fill(Qt::red);
    ASSERT_TRUE(bitmap.save(folder.filePath(QStringLiteral("Icons/fir.png")), "BMP"));
    EXPECT_TRUE(Bundle(folder.path()).image(QStringLiteral("fir"), 36).isNull());
}

TEST(Bundle, ReturnsNullForMissingImages)
{
    EXPECT_TRUE(libraryBundle().image(QStringLiteral("baobab"), 36).isNull());
    EXPECT_TRUE(libraryBundle().image(QString(), 36).isNull());
}

} // namespace
} // namespace TQFoundation
