#include "TextCost.h"

#include <gtest/gtest.h>

#include <string_view>

namespace TQFoundation {
namespace {

std::int64_t costOf(std::u16string_view text, bool isPreformatted = false)
{
    TextCost cost;
    for (const char16_t c : text)
        cost.add(c);
    cost.endLine();
    return cost.total(isPreformatted);
}

TEST(TextCost, DependsOnTheScript)
{
    EXPECT_EQ(costOf(u"ab c"), 4);
    EXPECT_EQ(costOf(u"é"), 2);
    EXPECT_EQ(costOf(u"\u0301"), 30 + 10);
    EXPECT_EQ(costOf(u"\t"), 30);
    EXPECT_EQ(costOf(u"\u0003"), 30);
    EXPECT_EQ(costOf(u"\u202B"), 30 + 10);
    EXPECT_EQ(costOf(u"\uFFFF"), 15 + 10 + 8000);
}

TEST(TextCost, CountsEachFontOnce)
{
    EXPECT_EQ(costOf(u"中"), 3 + 10 + 8000);
    EXPECT_EQ(costOf(u"中文，のカ"), 4 * 3 + 15 + 10 + 2 * 8000);
    EXPECT_EQ(costOf(u"한국"), 2 * 3 + 10 + 8000);
    EXPECT_EQ(costOf(u"😀🌲"), 4 * 30 + 10 + 2 * 8000);
}

TEST(TextCost, CountsChangesOfScript)
{
    EXPECT_EQ(costOf(u"яaя"), 3 + 1 + 3 + 30);
    EXPECT_EQ(costOf(u"я я"), 3 + 1 + 3 + 10);
}

TEST(TextCost, GrowsWithTheSquareOfUnbrokenRuns)
{
    const std::u16string run(4000, u'x');
    EXPECT_EQ(costOf(run), 4000 + 4000 * 4000 / 8000);
    EXPECT_EQ(costOf(run + u' ' + run), 8001 + 4001 * 4001 / 8000 + 2000);
    EXPECT_EQ(costOf(run + u"é"), 4002 + 4001 * 4001 / 400);
}

TEST(TextCost, BreaksPreformattedTextAtLineFeedsAlone)
{
    const std::u16string run(4000, u'x');
    EXPECT_EQ(costOf(run + u' ' + run, true), 8001 + 8001 * 8001 / 8000);
    EXPECT_EQ(costOf(run + u'\n' + run, true), 8012 + 4001 * 4001 / 8000 + 2000);
}

} // namespace
} // namespace TQFoundation
