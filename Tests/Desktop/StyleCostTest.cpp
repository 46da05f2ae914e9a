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
          u"color: red; /* x */", u"font-si\\7a e: 1px", u"col&#111;r: red", u"a{b", u"white-space: nowrap"})
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
