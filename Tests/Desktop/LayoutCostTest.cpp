#include "LayoutCost.h"

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

std::string utf8(std::u16string_view text)
{
    return QStringView(text).left(100).toString().toStdString();
}

// Expects that \a count parts are cheap, and one part more than \a count is not.
void expectLimit(int count, std::u16string_view part, std::u16string_view prefix = {})
{
    EXPECT_TRUE(isCheapToLayOut(std::u16string(prefix) + repeated(part, count))) << utf8(prefix) << utf8(part);
    EXPECT_FALSE(isCheapToLayOut(std::u16string(prefix) + repeated(part, count + 1))) << utf8(prefix) << utf8(part);
}

// The estimated cost of \a html: as many blanks fewer fit before it, each of which costs one. \a lines, of 30 each,
// leave room for little more than \a html.
int cost(std::u16string_view html, int lines = 4000)
{
    const auto blanks = [lines](std::u16string_view end) {
        int most = 0;
        for (int step = 1 << 15; step > 0; step /= 2) {
            if (isCheapToLayOut(repeated(u"\n", lines) + repeated(u" ", most + step) + std::u16string(end)))
                most += step;
        }
        return most;
    };
    return blanks({}) - blanks(html);
}

TEST(LayoutCost, IsTheSumOfItsParts)
{
    const struct
    {
        std::u16string_view html;
        int cost;
    } parts[] = {
        {u"x", 1},
        {u"\n", 30},
        {u"\u007F", 1},
        {u"\u0080", 30},
        {u"\u00A0", 3},
        {u"\u02FF", 3},
        // Another script.
        {u"\u0300", 30 + 20},
        {u"\u036F", 30 + 20},
        {u"\u0370", 16 + 20},
        {u"\u2027", 16 + 20},
        {u"\u2028", 30 + 20},
        // A font for another block.
        {u"\u058F", 16 + 20 + 8000},
        {u"\u0590", 30 + 20 + 8000},
        {u"\u0628x", 30 + 20 + 8000 + 1 + 20},
        {u"\u0900", 16 + 20 + 8000},
        {u"\u0904\u0905", 2 * 16 + 20 + 8000},
        {u"\u4E2D\u6587", 2 * 16 + 20 + 8000},
        {u"\uD55C\u4E2D", 2 * 16 + 20 + 2 * 8000},
        {u"\u2E7F", 30 + 20 + 8000},
        {u"\u2E80", 16 + 20 + 8000},
        {u"\u9FFF", 16 + 20 + 8000},
        {u"\uA000", 30 + 20 + 8000},
        {u"\uABFF", 30 + 20 + 8000},
        {u"\uAC00", 16 + 20 + 8000},
        {u"\uD7FF", 16 + 20 + 8000},
        {u"\U0001F600", 2 * 30 + 20 + 2 * 8000},
        // A tag, and a font of its own.
        {u"<br>", 60 + 600},
        {u"<br><br>", 2 * (60 + 600)},
        {u"<p>x</p>", 2 * (60 + 600) + 1},
        {u"<b>x</b>", 2 * (60 + 600) + 1},
        {u"<p title='abc'></p>", 2 * (60 + 600) + 8},
        {u"<p style='color:#ff0000'>x</p>", 2 * (60 + 600) + 19},
        // Few characters may fit on a line.
        {u"<blockquote>x</blockquote>", 2 * (60 + 600) + 13},
        {u"<ul><li>x</li></ul>", 4 * (60 + 600) + 13},
        // A row of a table.
        {u"<table><tr></tr></table>", 4 * (60 + 600) + 400},
        {u"<table><tr><td>x</td></tr></table>", 6 * (60 + 600) + 400 + 13},
        // Images and links, each the more the longer the text before it is.
        {u"<img>", 1832},
        {u"<img><img>", 3550},
        {u"<a href=x>y</a>", 2476},
        {u"<a href=x>y</a><img>", 4174},
    };
    for (const auto &part : parts)
        EXPECT_EQ(cost(part.html), part.cost) << utf8(part.html);
    EXPECT_EQ(cost(u"&", 3200), 1 + 40'000);
    EXPECT_EQ(cost(u"&&", 3200), 2 + 40'000 + 30);
    EXPECT_EQ(cost(u"<style></style>", 3200), 30'000 + 60 + 600);
}

TEST(LayoutCost, AcceptsOrdinaryMessages)
{
    for (const char16_t *html :
         {u"", u"plain text", u"<p>Hello <b>world</b>,<br>1 &lt; 2 &amp; 3&#39;&#xA0;</p><hr/><P>unclosed<LI>item",
          u"<!DOCTYPE html><html><head><title>t</title><meta charset=utf-8></head><body "
          u"bgcolor='white'>x</body></html>",
          u"<p style=\"font-size: 14px; margin:0px 8.5px; color:#123456; white-space: pre-wrap\" dir='rtl'>x</p>",
          u"<a href=\"https://tqstudio.example/?a=1&amp;b=2\">link</a><img src='a.png' width=20>",
          u"<ul><li>one</li><li><em>two</em><ol><li><strong>three</strong></ol></ul>",
          u"<h1>title</h1><blockquote><i>quote</i></blockquote><pre>a  b\n<code>c</code></pre><div><u>u</u></div>",
          u"<table border=1 width='100%'><tbody> <tr><th>1</th></tr>\n<tr><td><p>2</td></tr></tbody></table>"})
        EXPECT_TRUE(isCheapToLayOut(html)) << utf8(html);
}

TEST(LayoutCost, AcceptsDocumentsOfTheToolkit)
{
    QTextDocument document;
    document.setHtml(
        QStringLiteral("<h1>Title</h1><p align=center>one <b>two</b> <font size=5 color=red>three</font></p>"
                       "<ul><li>a<li>b<ol><li>c</ol></ul><table width=100%><tr><td>1<td>2</table><hr>"
                       "<pre>d\n\ne</pre><blockquote>f<img src=g><br><a href=h>i</a></blockquote>")
        + QStringLiteral("<p>%1</p>").arg(QStringLiteral("plain words ").repeated(12)).repeated(140));
    EXPECT_TRUE(isCheapToLayOut(document.toHtml().toStdU16String())) << document.toHtml().toStdString();
}

TEST(LayoutCost, AcceptsLongTexts)
{
    EXPECT_TRUE(isCheapToLayOut(repeated(u"<p>" + repeated(u"plain words, ", 15) + u"</p>", 300)));
    EXPECT_TRUE(isCheapToLayOut(repeated(u"Les mots accentu\u00E9s. ", 1000)));
    EXPECT_TRUE(isCheapToLayOut(repeated(u"<p>" + repeated(u"中文字符，日本語カナ。", 5) + u"</p>", 100)));
    EXPECT_TRUE(isCheapToLayOut(repeated(u"한국어 ", 2000)));
    EXPECT_TRUE(isCheapToLayOut(repeated(u"مرحبا بك ", 600)));
    EXPECT_TRUE(isCheapToLayOut(repeated(u"नमस्ते ", 1000)));
    EXPECT_TRUE(isCheapToLayOut(u"😀🌲👋" + repeated(u"words 😀 ", 100)));
}

TEST(LayoutCost, RefusesUnknownMarkup)
{
    for (const char16_t *html : {u"<",
                                 u"a < b",
                                 u"<p",
                                 u"<p a=b>",
                                 u"<p dir",
                                 u"<p dir>",
                                 u"<p dir=",
                                 u"<p dir='x",
                                 u"<p dir='<'>",
                                 u"<p dir='>'>",
                                 u"<p dir=b\"c>",
                                 u"<p dir='b'lang='c'>",
                                 u"<p / dir=x>",
                                 u"<p/>",
                                 u"<b/>",
                                 u"</br>",
                                 u"<br></p x>",
                                 u"<t&#97;ble>",
                                 u"<!-- comment -->",
                                 u"<!doctype html",
                                 u"<font>",
                                 u"<nobr>",
                                 u"<center>",
                                 u"<caption>",
                                 u"<link rel=stylesheet href=a>",
                                 u"<script></script>",
                                 u"<body background=a>",
                                 u"<p class=a>",
                                 u"<img align=left>",
                                 u"<table align=left>",
                                 u"<b>x</i>",
                                 u"</b>",
                                 u"<b>x</b></b>",
                                 u"&#1000;",
                                 u"&#x1F600;"})
        EXPECT_FALSE(isCheapToLayOut(html)) << utf8(html);
}

TEST(LayoutCost, RefusesUnknownTables)
{
    for (const char16_t *html :
         {u"<td>", u"<tr>", u"<tbody>", u"</table>", u"<table><td>", u"<table><tr><tr>", u"<table><tbody><thead>",
          u"<table>x", u"<table><tr>x", u"<table><p>", u"<table><br>", u"<table><tr><td><b></td>",
          u"<table><tr><td></tr>", u"<table><tr><td></table>", u"<table><tr><td colspan=2>",
          u"<table><tr><td rowspan=2>", u"<table><tr><td><div><table>"})
        EXPECT_FALSE(isCheapToLayOut(html)) << utf8(html);
}

TEST(LayoutCost, RefusesUnknownStyles)
{
    for (const std::u16string property : {u"x",
                                          u"x:1",
                                          u"color",
                                          u"display: block",
                                          u"float: left",
                                          u"font: 9px a",
                                          u"font-size: 100px",
                                          u"font-size: 9em",
                                          u"font-size: 12px !important",
                                          u"margin: 1000px",
                                          u"margin: -9px",
                                          u"margin: 1e9",
                                          u"margin: inf",
                                          u"line-height: 200%",
                                          u"-qt-list-indent: 1000",
                                          u"background-color: url(a)",
                                          u"color: red; /* x */",
                                          u"font-si\\7a e: 1px",
                                          u"col&#111;r: red",
                                          u"color: a{b",
                                          u"white-space: pre"})
        EXPECT_FALSE(isCheapToLayOut(u"<p style='" + property + u"'>")) << utf8(property);
    for (const char16_t *html :
         {u"<style>p{}</style>", u"<style>", u"<style/>", u"<style>\n", u"</style>", u"<img width=1000>",
          u"<img height=-1>", u"<table cellpadding=inf>", u"<ol start=1000>"})
        EXPECT_FALSE(isCheapToLayOut(html)) << utf8(html);
}

TEST(LayoutCost, LimitsText)
{
    expectLimit(500, u"x");
    EXPECT_TRUE(isCheapToLayOut(repeated(u"<p>" + repeated(u"x", 500), 20)));
    expectLimit(250, u"x ", u"<pre>");
    EXPECT_TRUE(isCheapToLayOut(repeated(u"x ", 30'000)));
    EXPECT_FALSE(isCheapToLayOut(repeated(u"x ", 30'001)));
    EXPECT_TRUE(isCheapToLayOut(repeated(u"plain text in lines\n", 2'000)));
    EXPECT_FALSE(isCheapToLayOut(repeated(u"\n", 5'001)));
    EXPECT_FALSE(isCheapToLayOut(repeated(u"яx ", 3'000)));
    EXPECT_FALSE(isCheapToLayOut(repeated(u"中", 10'000)));
    EXPECT_FALSE(isCheapToLayOut(repeated(u"\u0301 ", 5'000)));
    EXPECT_FALSE(isCheapToLayOut(repeated(u"\u0003 ", 5'000)));
    EXPECT_FALSE(isCheapToLayOut(repeated(u"&amp; ", 4'000)));
    EXPECT_FALSE(isCheapToLayOut(u"\u0600 \u0700 \u0800 \u0900 \u0A00 \u0B00 \u0C00 \u0D00 \u0E00 \u0F00 \u1000 "
                                 u"\u1100 \u1200 \u1300 \u1400 \u1500 \u1600 \u1700 \u1800"));
}

TEST(LayoutCost, LimitsTextInNarrowColumns)
{
    for (const char16_t *html : {u"<blockquote>", u"<ul>", u"<ol><li><b>", u"<table><tr><td>",
                                 u"<p style='margin:9px'>", u"<p style='margin-left:9px; margin-right:0px'>",
                                 u"<p style='-qt-block-indent:9'>", u"<p style='font-size:20px'>"}) {
        EXPECT_TRUE(isCheapToLayOut(std::u16string(html) + repeated(u"x ", 5'000))) << utf8(html);
        EXPECT_FALSE(isCheapToLayOut(std::u16string(html) + repeated(u"x ", 6'000))) << utf8(html);
    }
    EXPECT_TRUE(
        isCheapToLayOut(u"<ul></ul><p style='margin:0px; margin-top:9px; font-size:12pt'>" + repeated(u"x ", 20'000)));
}

TEST(LayoutCost, LimitsTagsAndObjects)
{
    expectLimit(14, u"<b>");
    expectLimit(14, u"<div>");
    expectLimit(10, u"<td></td>", u"<table><tr>");
    EXPECT_TRUE(isCheapToLayOut(repeated(u"<br>", 1'500)));
    EXPECT_FALSE(isCheapToLayOut(repeated(u"<br>", 2'000)));
    EXPECT_FALSE(isCheapToLayOut(u"<table>" + repeated(u"<tr></tr>", 300)));
    EXPECT_TRUE(isCheapToLayOut(repeated(u"<img>", 400)));
    EXPECT_FALSE(isCheapToLayOut(repeated(u"<img>", 600)));
    EXPECT_FALSE(isCheapToLayOut(repeated(u"<img>" + repeated(u"word ", 30), 200)));
    EXPECT_FALSE(isCheapToLayOut(repeated(u"<a href=x>y</a> ", 400)));
    EXPECT_FALSE(isCheapToLayOut(repeated(u"<style></style>", 5)));
    EXPECT_FALSE(isCheapToLayOut(u"<p title='" + repeated(u"x", 149'900) + u"'>"));
    std::u16string fonts;
    for (char16_t size = u'0'; size <= u'9'; ++size)
        for (const char16_t *family : {u"a", u"b", u"c", u"d", u"e", u"f"})
            fonts += std::u16string(u"<b style='font-size:1") + size + u"px; font-family:" + family + u"'>x</b>";
    EXPECT_TRUE(isCheapToLayOut(fonts));
    EXPECT_FALSE(isCheapToLayOut(fonts + fonts + fonts));
}

TEST(LayoutCost, RefusesAnythingLarge)
{
    for (const char16_t *part : {u"x", u" ", u"\n", u"<b>", u"<br>", u"<img>", u"<ul><li>", u"&#x1F600;", u"&amp;",
                                 u"xя中אن😀", u"<table><tr><td>", u"<p></p>", u"<p dir=''>"})
        EXPECT_FALSE(isCheapToLayOut(repeated(part, 150'001))) << utf8(part);
}

} // namespace
} // namespace TQFoundation
