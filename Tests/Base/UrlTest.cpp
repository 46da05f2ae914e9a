#include "Url.h"

#include <gtest/gtest.h>

namespace TQFoundation {
namespace {

TEST(Url, ParsesValidUrls)
{
    for (const char16_t *text : {u"https://beian.miit.gov.cn", u"mailto:support@tqstudio.example", u"/path?query#part",
                                 u"https://example/%20", u"https://bücher.example"}) {
        const QString string = QString::fromUtf16(text);
        EXPECT_EQ(urlFromString(string), std::optional(QUrl(string, QUrl::StrictMode))) << string.toStdString();
    }
}

TEST(Url, IsNullForTextsThatAreNotUrls)
{
    for (const char16_t *text : {u"", u" ", u"http://[1", u"https://a b.example", u"https://example/%zz",
                                 u"https://example:99999", u"https://example\n", u"https://example\xD800"})
        EXPECT_EQ(urlFromString(QString::fromUtf16(text)), std::nullopt) << QString::fromUtf16(text).toStdString();
    EXPECT_EQ(urlFromString(QStringLiteral("https://example") + QChar::Null), std::nullopt);
}

TEST(Url, IsMadeOfFilesAndResources)
{
    EXPECT_EQ(urlOfFile(QStringLiteral("/a b#c%20.png")).toLocalFile(), QStringLiteral("/a b#c%20.png"));
    EXPECT_EQ(urlOfFile(QStringLiteral(":/icon.png")), QUrl(QStringLiteral("qrc:/icon.png")));
}

} // namespace
} // namespace TQFoundation
