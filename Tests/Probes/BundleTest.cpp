#include <TQFoundation/Bundle.h>

#include "Languages.h"
#include "RecordingPlatform.h"

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>

#include <gtest/gtest.h>

namespace TQFoundation {
namespace {

using Testing::InstalledRecordingPlatform;
using Testing::useLanguage;

const QString version = QStringLiteral("Version");

TEST(Bundle, IsAskedForAtEveryUse)
{
    const InstalledRecordingPlatform platform;
    EXPECT_EQ(libraryBundle().root(), QStringLiteral(":/qt-project.org/imports/TQFoundation"));
    platform->root = QStringLiteral("/elsewhere");
    EXPECT_EQ(libraryBundle().root(), QStringLiteral("/elsewhere"));
}

TEST(Bundle, ATextIsTranslatedIntoTheUsersLanguage)
{
    useLanguage("zh-CN");
    EXPECT_EQ(localizedInLibrary(version), QStringLiteral("版本"));
}

TEST(Bundle, ATextWithoutAnEntryComesBackUnchanged)
{
    useLanguage("zh-CN");
    for (const char16_t *text : {u"", u"version", u"Version ", u"No such text", u"<b>Version</b>", u"版本"})
        EXPECT_EQ(localizedInLibrary(QString::fromUtf16(text)), QString::fromUtf16(text));
}

TEST(Bundle, ATextIsLookedUpWholeWhateverItHolds)
{
    useLanguage("zh-CN");
    const QString withNul = version + QChar::Null + QStringLiteral("x");
    EXPECT_EQ(localizedInLibrary(withNul), withNul);
    const QString halfACharacter = version + QChar(0xD800);
    EXPECT_EQ(localizedInLibrary(halfACharacter), halfACharacter);
    const QString huge(4 << 20, u'x');
    EXPECT_EQ(localizedInLibrary(huge), huge);
}

TEST(Bundle, WithoutATableEveryTextIsItsKey)
{
    useLanguage("zh-CN");
    const InstalledRecordingPlatform platform;
    platform->root = Testing::emptyBundle();
    EXPECT_EQ(localizedInLibrary(version), version);
}

TEST(Bundle, ALanguageWithoutATableGivesEnglish)
{
    useLanguage("sw-KE");
    EXPECT_EQ(localizedInLibrary(version), version);
}

TEST(Bundle, TheLocaleCGivesEnglish)
{
    useLanguage("C");
    EXPECT_EQ(localizedInLibrary(version), version);
}

TEST(Bundle, TheLanguageIsChosenOncePerProcess)
{
    useLanguage("zh-CN");
    EXPECT_EQ(localizedInLibrary(version), QStringLiteral("版本"));
    useLanguage("de-DE");
    EXPECT_EQ(localizedInLibrary(version), QStringLiteral("版本"));
    EXPECT_EQ(Bundle(QStringLiteral(":/qt-project.org/imports/TQFoundation/.")).localizedString(version),
              QStringLiteral("版本"));
}

TEST(Bundle, ABrokenTableCountsAsNone)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Translations")));
    QFile table(folder.filePath(QStringLiteral("Translations/TQFoundation_zh_Hans.qm")));
    ASSERT_TRUE(table.open(QIODevice::WriteOnly));
    table.write("\x3c\xb8\x64\x18 and then nothing of the kind");
    table.close();

    useLanguage("zh-CN");
    EXPECT_EQ(Bundle(folder.path()).localizedString(version), version);
}

TEST(Bundle, EveryTruncatedTableIsSurvived)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Translations")));
    QFile whole(QStringLiteral(":/qt-project.org/imports/TQFoundation/Translations/TQFoundation_zh_Hans.qm"));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QByteArray content = whole.readAll();

    useLanguage("zh-CN");
    for (qsizetype length = 0; length < content.size(); length += 37) {
        QFile table(folder.filePath(QStringLiteral("Translations/TQFoundation_zh_Hans.qm")));
        ASSERT_TRUE(table.open(QIODevice::WriteOnly));
        table.write(content.first(length));
        table.close();
        const QString text = Bundle(folder.path()).localizedString(version);
        EXPECT_TRUE(text == version || text == QStringLiteral("版本")) << length;
    }
}

TEST(Bundle, TextsOfTheInterfaceHaveAContextOfTheirOwn)
{
    useLanguage("de-DE");
    EXPECT_EQ(libraryBundle().interfaceString(QStringLiteral("Next")), QStringLiteral("Weiter"));
    EXPECT_EQ(localizedInLibrary(QStringLiteral("Next")), QStringLiteral("Next"));
    EXPECT_EQ(libraryBundle().interfaceString(version), version);
}

TEST(Bundle, AnImageIsFoundByItsNameAlone)
{
    EXPECT_EQ(libraryBundle().image(QStringLiteral("fir")).size(), QSize(216, 216));
}

TEST(Bundle, AMissingOrBrokenImageIsNull)
{
    EXPECT_TRUE(libraryBundle().image(QStringLiteral("baobab")).isNull());
    EXPECT_TRUE(libraryBundle().image(QString()).isNull());
}

} // namespace
} // namespace TQFoundation
