#include "LayoutCost.h"

#include <QtGui/qtextcursor.h>
#include <QtGui/qtextdocument.h>

#include <gtest/gtest.h>

#include <string>

namespace TQFoundation {
namespace {

std::u16string repeated(std::u16string_view part, int count)
{
    std::u16string text;
    for (int index = 0; index < count; ++index)
        text += part;
    return text;
}

bool isCheap(std::u16string_view html)
{
    return layoutCost(html) <= maxLayoutCost;
}

TEST(LayoutCost, AcceptsOrdinaryMessages)
{
    EXPECT_EQ(layoutCost({}), 0);
    EXPECT_TRUE(isCheap(u"<p>Hello <b>world</b>,<br>1 &lt; 2 &amp; 3</p><!-- comment --><hr/>"));
    EXPECT_TRUE(isCheap(u"<!DOCTYPE html><html><head><title>t</title><style>p, li { color: #123456; }</style></head>"
                        u"<body bgcolor='white'><p style=\"font-size: 14px; margin-top:0px\">text</p></body></html>"));
    EXPECT_TRUE(isCheap(u"<a href=\"https://tqstudio.example/?a=1&amp;b=2\">link</a><img src='a.png' width=20>"));
    EXPECT_TRUE(isCheap(u"<table border=1>" + repeated(u"<tr><td>a</td><td>b</td><td>c</td></tr>", 40) + u"</table>"));
    EXPECT_TRUE(
        isCheap(u"<div style=\"white-space: pre-wrap\">" + repeated(u"line of plain text\n", 1000) + u"</div>"));
    EXPECT_TRUE(isCheap(repeated(u"中文字符，", 3000)));
    EXPECT_TRUE(isCheap(repeated(u"مرحبا بك ", 1500)));
}

TEST(LayoutCost, AcceptsDocumentsOfTheToolkit)
{
    QTextDocument document;
    document.setHtml(QStringLiteral("<h1>Title</h1><p>one <b>two</b> <font size=5 color=red>three</font></p>"
                                    "<ul><li>a<li>b</ul><table><tr><td>1<td>2</table>"));
    EXPECT_TRUE(isCheap(document.toHtml().toStdU16String())) << document.toHtml().toStdString();
}

TEST(LayoutCost, RefusesLargeTables)
{
    EXPECT_FALSE(isCheap(u"<table>" + repeated(u"<td colspan=20480>x", 5)));
    EXPECT_FALSE(isCheap(u"<table>" + repeated(u"<td colspan=999>x", 5)));
    EXPECT_FALSE(isCheap(u"<table><tr>" + repeated(u"<td>", 450) + repeated(u"<tr><td>", 250)));
    EXPECT_FALSE(isCheap(repeated(u"<table><tr><td>", 20)));
}

TEST(LayoutCost, RefusesExpensiveText)
{
    EXPECT_FALSE(isCheap(repeated(u"x", 100000)));
    EXPECT_TRUE(isCheap(repeated(u"x ", 50000)));
    EXPECT_FALSE(isCheap(repeated(u"x ", 500000)));
    EXPECT_FALSE(isCheap(u"<style>" + repeated(u"p{}", 500000) + u"</style>"));
    EXPECT_FALSE(isCheap(u"<!--" + repeated(u"x", 500000) + u"-->"));
    EXPECT_FALSE(isCheap(u"<p" + repeated(u" a=b", 500000) + u">"));
    EXPECT_FALSE(isCheap(u"a" + repeated(u"\u0301", 10000)));
    EXPECT_FALSE(isCheap(u"a" + repeated(u"&#x301;", 10000)));
    EXPECT_FALSE(isCheap(repeated(u"\u05D0(x1)", 3500)));
}

TEST(LayoutCost, RefusesManyTagsAndObjects)
{
    EXPECT_TRUE(isCheap(repeated(u"<p>x</p>", 500)));
    EXPECT_FALSE(isCheap(repeated(u"<div>", 5000)));
    EXPECT_FALSE(isCheap(repeated(u"<img>", 2000)));
    EXPECT_TRUE(isCheap(repeated(u"<img>", 400)));
    EXPECT_FALSE(isCheap(repeated(u"<img>" + repeated(u"word ", 30), 400)));
    EXPECT_FALSE(isCheap(repeated(u"<a href=x>y</a>", 1200)));
}

TEST(LayoutCost, RefusesIncompleteTables)
{
    EXPECT_TRUE(isCheap(u"<table><tr><td><p>a<td><b>b</b><tr><td><div><table><td>c</table></div></table>d"));
    for (const char16_t *html :
         {u"<td>", u"<tr>", u"<tbody>", u"<table></table><td>", u"</table>", u"<table><td><b><td>",
          u"<table><td><b></td>", u"<table><td><b></i>", u"<table><td><b></table>", u"<caption>"})
        EXPECT_FALSE(isCheap(html)) << QString::fromUtf16(html).toStdString();
}

TEST(LayoutCost, RefusesHugeLayouts)
{
    EXPECT_TRUE(isCheap(repeated(u"<p style='margin:9999px'>x", 100)));
    EXPECT_FALSE(isCheap(repeated(u"<p style='margin:9999px'>x", 850)));
    EXPECT_TRUE(isCheap(u"<span style='font-size:99px'>" + repeated(u"word ", 4000)));
    EXPECT_FALSE(isCheap(u"<span style='font-size:99px'>" + repeated(u"word ", 10000)));
    EXPECT_TRUE(isCheap(u"<table cellpadding=9999>" + repeated(u"<td>", 50)));
    EXPECT_FALSE(isCheap(u"<table cellpadding=9999>" + repeated(u"<td>", 500)));
}

TEST(LayoutCost, RefusesAmbiguousMarkup)
{
    for (const char16_t *html : {u"<",
                                 u"a < b",
                                 u"<p",
                                 u"<p ",
                                 u"<p a",
                                 u"<p a=",
                                 u"<p a='",
                                 u"<p a='x",
                                 u"<p a='<'>",
                                 u"<p a='>'>",
                                 u"<p a=b\"c>",
                                 u"<p a=b=c>",
                                 u"<p a='b'c>",
                                 u"<p / a>",
                                 u"<t&#97;ble>",
                                 u"<table><td col&#115;pan=9>",
                                 u"<table><td colspan=&#57;9>",
                                 u"<table><td colspan='9&#57;'>",
                                 u"<table><td colspan=1000>",
                                 u"<table><td colspan=0>",
                                 u"<table><td colspan=x>",
                                 u"<img width=99999>",
                                 u"<img width=1e9>",
                                 u"<img width='9999%'>",
                                 u"<font size=100>",
                                 u"<!-- > -->",
                                 u"<!-- <b> -->",
                                 u"<!--",
                                 u"<!-->",
                                 u"<style>p{}",
                                 u"<style>p{}<b></style>",
                                 u"<style/>p{}</style>",
                                 u"<nobr>x",
                                 u"</p a='>'>"})
        EXPECT_FALSE(isCheap(html)) << QString::fromUtf16(html).toStdString();
}

} // namespace
} // namespace TQFoundation
