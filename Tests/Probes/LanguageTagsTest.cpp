#include "LanguageTags.h"

#include <gtest/gtest.h>

#include <QtCore/qlocale.h>

namespace TQFoundation {
namespace {

QStringList names(std::initializer_list<const char *> tags)
{
    QStringList list;
    for (const char *tag : tags)
        list += QString::fromUtf8(tag);
    return tableNames(list);
}

TEST(LanguageTags, NameScriptThenTerritoryThenLanguage)
{
    EXPECT_EQ(names({"zh-CN"}),
              (QStringList{QStringLiteral("zh_Hans"), QStringLiteral("zh_CN"), QStringLiteral("zh")}));
    EXPECT_EQ(names({"pt-BR"}).at(1), QStringLiteral("pt_BR"));
}

TEST(LanguageTags, DistinguishChineseScripts)
{
    for (const char *tag : {"zh", "zh-CN", "zh-SG", "zh-Hans", "zh-Hans-HK", "zh_CN"})
        EXPECT_EQ(names({tag}).at(0), QStringLiteral("zh_Hans")) << tag;
    for (const char *tag : {"zh-TW", "zh-HK", "zh-MO", "zh-Hant", "zh-Hant-CN", "zh_TW"})
        EXPECT_EQ(names({tag}).at(0), QStringLiteral("zh_Hant")) << tag;
}

TEST(LanguageTags, KeepTheOrderWithoutDuplicates)
{
    const QStringList list = names({"de-AT", "de-DE", "en-GB"});
    EXPECT_EQ(list.count(QStringLiteral("de")), 1);
    EXPECT_LT(list.indexOf(QStringLiteral("de")), list.indexOf(QStringLiteral("en")));
    EXPECT_LT(list.indexOf(QStringLiteral("de_AT")), list.indexOf(QStringLiteral("de_DE")));
}

TEST(LanguageTags, AreSkippedIfInvalid)
{
    EXPECT_TRUE(names({"", "C", "POSIX", "xx-invalid", "123", "../../etc", "\xff"}).isEmpty());
}

TEST(LanguageTags, OfLocaleCNameNoTable)
{
    EXPECT_TRUE(tableNames(QLocale::c().uiLanguages()).isEmpty());
}

} // namespace
} // namespace TQFoundation
