#include "StyleCost.h"

#include <gtest/gtest.h>

namespace TQFoundation {
namespace {

TEST(StyleCost, AcceptsSimpleStyles)
{
    StyleCost cost;
    EXPECT_TRUE(cost.addProperties(u""));
    EXPECT_TRUE(
        cost.addProperties(u" ; color : #1234567 ;font-size:12pt;font-family: 'Noto Sans', serif ; margin-top:0px"));
    EXPECT_TRUE(cost.addProperties(u"background-image: url(https://tqstudio.example/1234567.png)"));
    EXPECT_TRUE(cost.addSheet(u" @import url(a.css); p, li { color: red } .a{} #b{} * { margin: 1px; } "));
}

TEST(StyleCost, RefusesStylesOfUnknownCost)
{
    for (const char16_t *properties :
         {u"x", u"x:1", u"color", u"display: block", u"float: left", u"font: 9999px a", u"font-size: 100px",
          u"font-size: 0px", u"font-size: 9em", u"font-size: 9", u"font-size: 12px !important", u"margin: 99999px",
          u"width: 999%", u"-qt-list-indent: 100", u"color: red; /* x */", u"font-si\\7a e: 1px", u"col&#111;r: red",
          u"a{b", u"white-space: nowrap"})
        EXPECT_FALSE(StyleCost().addProperties(properties));
}

TEST(StyleCost, RefusesSelectorsWithCombinators)
{
    for (const char16_t *sheet : {u"p", u"p{", u"{}", u"p b{}", u"p>b{}", u"p+b{}", u"p~b{}", u"p[a]{}", u"p:hover{}",
                                  u"p,{}", u"@media x{p{}}", u"@import x", u"@import {}", u"p{}}"})
        EXPECT_FALSE(StyleCost().addSheet(sheet));
}

TEST(StyleCost, CountsDifferentFontsOncePerTagAtMost)
{
    StyleCost cost;
    const std::int64_t plain = cost.total(1000);
    cost.addFontFamily(u"a");
    cost.addFontFamily(u"a");
    EXPECT_EQ(cost.total(1000), 2 * plain);
    cost.addFontSize(u"1");
    EXPECT_EQ(cost.total(1000), 4 * plain);
    EXPECT_EQ(cost.total(0), 0);
}

TEST(StyleCost, BoundsTheExtent)
{
    StyleCost cost;
    EXPECT_EQ(cost.extent(1000, 10), 1000 * 50 + 10 * 100);
    EXPECT_TRUE(cost.addProperties(u"font-size: 99pt"));
    EXPECT_EQ(cost.extent(1000, 10), 1000 * 198 + 10 * 100);
    EXPECT_TRUE(cost.addProperties(u"margin: 1px 200px 3.5px; font-weight: 700"));
    EXPECT_EQ(cost.extent(1000, 10), 1000 * 198 * 3 + 10 * 900);
    EXPECT_TRUE(cost.addProperties(u"-qt-list-indent: 99"));
    EXPECT_EQ(cost.extent(0, 1), 4 * 990 + 100);
    EXPECT_TRUE(cost.addLength(u"9999"));
    EXPECT_EQ(cost.extent(0, 1), 4 * 9999 + 100);
    for (const char16_t *length : {u"", u"x", u"10000", u"1e3", u"201%", u"1em"})
        EXPECT_FALSE(cost.addLength(length));
}

TEST(StyleCost, MultipliesSheetsByTags)
{
    StyleCost cost;
    ASSERT_TRUE(cost.addSheet(u"p{}\n\n\n\n"));
    EXPECT_EQ(cost.total(1000) - cost.total(100), 900);
}

TEST(StyleCost, KnowsPreformattedText)
{
    StyleCost cost;
    EXPECT_TRUE(cost.addProperties(u"white-space: pre-wrap"));
    EXPECT_FALSE(cost.isPreformatted());
    EXPECT_TRUE(cost.addProperties(u"white-space: pre"));
    EXPECT_TRUE(cost.isPreformatted());
}

} // namespace
} // namespace TQFoundation
