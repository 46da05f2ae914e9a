#include "SettingsFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>

namespace TQFoundation {
namespace {

QByteArray withFlag(const QByteArray &content)
{
    return settingsFileWith(content, "Flag", true);
}

TEST(SettingsFile, PutsNewLineFirst)
{
    for (const QByteArray content : {"", "\n", "name=Grove\n", "[General]\nname=Grove\n", "; Flag=false\n", "\"", "\\",
                                     "[", "Flagged=1\n", "NoFlag=1\n", " Flag=1\n", "flag=1\n", "Flag\n"})
        EXPECT_EQ(withFlag(content), "Flag=true\n" + content) << content.constData();
    EXPECT_EQ(withFlag("\xEF\xBB\xBFname=Grove"),
              "\xEF\xBB\xBF"
              "Flag=true\nname=Grove")
        << "after a byte order mark";
}

TEST(SettingsFile, ChangesLineInPlace)
{
    EXPECT_EQ(withFlag("Flag=false"), "Flag=true");
    EXPECT_EQ(withFlag("Flag="), "Flag=true");
    EXPECT_EQ(withFlag("a=1\r\nFlag=false\r\nb=2\r\n"), "a=1\r\nFlag=true\r\nb=2\r\n");
    EXPECT_EQ(withFlag("[General]\nFlag=false, 1\n[Flag]\n"), "[General]\nFlag=true\n[Flag]\n");
    EXPECT_EQ(withFlag("; don't say \"no\nFlag=false\n"), "; don't say \"no\nFlag=true\n");
    EXPECT_EQ(withFlag("a=\"say \\\"no\"\nFlag=false\n"), "a=\"say \\\"no\"\nFlag=true\n");
    EXPECT_EQ(withFlag("\xEF\xBB\xBF"
                       "Flag=false"),
              "\xEF\xBB\xBF"
              "Flag=true");
    EXPECT_EQ(settingsFileWith("Flag=true\n", "Flag", false), "Flag=false\n");
}

TEST(SettingsFile, ChangesLastLineThatCounts)
{
    EXPECT_EQ(withFlag("Flag=1\nFlag=2\nFlag=3"), "Flag=1\nFlag=2\nFlag=true");
}

TEST(SettingsFile, FindsLineBelowOtherGroups)
{
    EXPECT_EQ(withFlag("[Window]\nFlag=1\n[General]\nFlag=2\n[Flag]\nFlag=3\n"),
              "[Window]\nFlag=1\n[General]\nFlag=true\n[Flag]\nFlag=3\n");
}

TEST(SettingsFile, ChangesNoLineOfOtherGroupsAndTexts)
{
    for (const QByteArray content : {"[Window]\nFlag=false\n", "text=\"\nFlag=false\n\"\n", "text=a\\\nFlag=false\n",
                                     "Flag=\"\nFlag=false\n\"\n", "Flag=a\\\nb\n"})
        EXPECT_EQ(withFlag(content), "Flag=true\n" + content) << content.constData();
}

TEST(SettingsFile, KeepsWhatIsNotText)
{
    const QByteArray content("\xFF\xFE"
                             "a\0=\0",
                             6);
    EXPECT_EQ(withFlag(content), content);
    const QByteArray twoMarks = "\xEF\xBB\xBF\xEF\xBB\xBF=";
    EXPECT_EQ(withFlag(twoMarks), twoMarks) << "a key that QSettings would not find in another line";
}

TEST(SettingsFile, TakesLessThanFiveMilliseconds)
{
    QByteArray content;
    while (content.size() < 100'000)
        content += "Key" + QByteArray::number(content.size()) + "=\"some, text\"\n";
    double fastest = 1e9;
    for (int round = 0; round < 10; ++round) {
        const std::clock_t start = std::clock();
        EXPECT_EQ(withFlag(content).size(), content.size() + 10);
        fastest = std::min(fastest, 1e3 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
#if defined(__OPTIMIZE__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    EXPECT_LT(fastest, 5);
#endif
}

} // namespace
} // namespace TQFoundation
