#include <TQFoundation/TQMore.h>

#include "DeveloperIdentity.h"
#include "Languages.h"
#include "RecordingPlatform.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace TQFoundation {
namespace {

using Testing::InstalledRecordingPlatform;
using Testing::useLanguage;

const QString filing = QStringLiteral("ICP-2099000001-3A");
const QString filingSite = QStringLiteral("https://beian.miit.gov.cn");

class TQMoreRows : public testing::Test
{
protected:
    InstalledRecordingPlatform platform;
};

TEST_F(TQMoreRows, IsEnglishWithoutATable)
{
    platform->root = Testing::emptyBundle();
    EXPECT_EQ(TQMore::privacyText(), QStringLiteral("Privacy Policy"));
    EXPECT_EQ(TQMore::privacyUrl(), QStringLiteral("https://tqstudio.example/privacy-policy-en"));
    EXPECT_EQ(TQMore::feedbackText(), QStringLiteral("Contact"));
    EXPECT_EQ(TQMore::feedbackUrl(), QStringLiteral("https://tqstudio.example/contact-en"));
    EXPECT_EQ(TQMore::reviewText(), QStringLiteral("Rate on the App Store"));
    EXPECT_EQ(TQMore::threadsText(), QStringLiteral("Follow me on Social Media Platforms"));
    EXPECT_EQ(TQMore::threadsUrl(), QStringLiteral("https://links.example/tqstudio"));
    EXPECT_EQ(TQMore::blogText(), QStringLiteral("Browse My Personal Website"));
    EXPECT_EQ(TQMore::blogUrl(), QStringLiteral("https://tqstudio.example/en"));
    EXPECT_EQ(TQMore::moreAppText(), QStringLiteral("More Apps I Developed"));
    EXPECT_EQ(TQMore::moreAppUrl(), QStringLiteral("https://apps.apple.com/developer/tq-studio/id9990000000"));
    EXPECT_EQ(TQMore::versionText(), QStringLiteral("Version ()"));
}

TEST_F(TQMoreRows, LinksToChinesePagesInChinese)
{
    useLanguage("zh-CN");
    EXPECT_EQ(TQMore::privacyUrl(), QStringLiteral("https://tqstudio.example/privacy-policy"));
    EXPECT_EQ(TQMore::feedbackUrl(), QStringLiteral("https://tqstudio.example/contact"));
    EXPECT_EQ(TQMore::blogUrl(), QStringLiteral("https://tqstudio.example/zh"));
}

TEST_F(TQMoreRows, LinksToEnglishPagesInOtherLanguages)
{
    useLanguage("ja-JP");
    EXPECT_EQ(TQMore::privacyUrl(), QStringLiteral("https://tqstudio.example/privacy-policy-en"));
    EXPECT_EQ(TQMore::blogUrl(), QStringLiteral("https://tqstudio.example/en"));
}

TEST_F(TQMoreRows, HasNoBlankBeforeTheBuildNumber)
{
    platform->infoDictionary = {{QStringLiteral("CFBundleShortVersionString"), QStringLiteral("2.3.1")},
                                {QStringLiteral("CFBundleVersion"), QStringLiteral("57")}};
    EXPECT_EQ(TQMore::versionText(), QStringLiteral("Version 2.3.1(57)"));
    EXPECT_EQ(platform->calls,
              (QStringList{QStringLiteral("infoDictionaryValue(CFBundleShortVersionString)"),
                           QStringLiteral("infoDictionaryValue(CFBundleVersion)")}));
}

TEST_F(TQMoreRows, TranslatesOnlyTheWordVersion)
{
    useLanguage("zh-CN");
    platform->infoDictionary = {{QStringLiteral("CFBundleShortVersionString"), QStringLiteral("2.3.1")},
                                {QStringLiteral("CFBundleVersion"), QStringLiteral("57")}};
    EXPECT_EQ(TQMore::versionText(), QStringLiteral("版本 2.3.1(57)"));
}

TEST_F(TQMoreRows, PassesHostileVersionsOn)
{
    platform->infoDictionary = {{QStringLiteral("CFBundleShortVersionString"), QStringLiteral("<b>1</b>\n")},
                                {QStringLiteral("CFBundleVersion"), QStringLiteral(")(")}};
    EXPECT_EQ(TQMore::versionText(), QStringLiteral("Version <b>1</b>\n()()"));
}

// Texts and links that a table or the host may change, and what they are in English.
const std::vector<std::pair<QString (*)(), QString>> members{
    {TQMore::privacyText, QStringLiteral("Privacy Policy")},
    {TQMore::privacyUrl, QStringLiteral("https://tqstudio.example/privacy-policy-en")},
    {TQMore::feedbackText, QStringLiteral("Contact")},
    {TQMore::feedbackUrl, QStringLiteral("https://tqstudio.example/contact-en")},
    {TQMore::reviewText, QStringLiteral("Rate on the App Store")},
    {TQMore::threadsText, QStringLiteral("Follow me on Social Media Platforms")},
    {TQMore::blogText, QStringLiteral("Browse My Personal Website")},
    {TQMore::blogUrl, QStringLiteral("https://tqstudio.example/en")},
    {TQMore::moreAppText, QStringLiteral("More Apps I Developed")},
    {TQMore::versionText, QStringLiteral("Version ()")},
};

TEST_F(TQMoreRows, KeepsEveryTextReadBeforeTablesChange)
{
    useLanguage("zh-CN");
    QStringList before;
    for (const auto &[member, english] : members) {
        before += member();
        EXPECT_NE(before.last(), english);
    }
    platform->root = Testing::emptyBundle();
    platform->infoDictionary.insert(QStringLiteral("CFBundleVersion"), QStringLiteral("58"));
    for (qsizetype index = 0; index < before.size(); ++index)
        EXPECT_EQ(members[static_cast<std::size_t>(index)].first(), before[index]);
}

TEST_F(TQMoreRows, ReadsEachTextAtItsOwnFirstCall)
{
    useLanguage("zh-CN");
    for (const auto &[member, english] : members) {
        EXPECT_EQ(TQMore::threadsUrl(), QStringLiteral("https://links.example/tqstudio"));
        platform->root = Testing::emptyBundle();
        EXPECT_EQ(member(), english);
    }
}

TEST_F(TQMoreRows, ShowsFilingThenWebsiteInChina)
{
    platform->storefront = QStringLiteral("CHN");
    EXPECT_EQ(TQMore::icpOrBlogText(filing), filing);
    EXPECT_EQ(TQMore::icpOrBlogUrl(filing), filingSite);
    EXPECT_EQ(TQMore::blogOrSocialText(filing), TQMore::blogText());
    EXPECT_EQ(TQMore::blogOrSocialUrl(filing), TQMore::blogUrl());
}

TEST_F(TQMoreRows, ShowsTheFilingForUnknownRegions)
{
    EXPECT_EQ(TQMore::icpOrBlogText(filing), filing);
    EXPECT_EQ(TQMore::icpOrBlogUrl(filing), filingSite);
}

TEST_F(TQMoreRows, CountsAnEmptyFilingAsPresent)
{
    EXPECT_EQ(TQMore::icpOrBlogText(QString()), QString());
    EXPECT_EQ(TQMore::icpOrBlogText(QStringLiteral("")), QStringLiteral(""));
    EXPECT_EQ(TQMore::icpOrBlogUrl(QStringLiteral("")), filingSite);
    EXPECT_EQ(TQMore::blogOrSocialUrl(QString()), TQMore::blogUrl());
}

TEST_F(TQMoreRows, ShowsWebsiteThenSocialPageWithoutFiling)
{
    platform->storefront = QStringLiteral("CHN");
    EXPECT_EQ(TQMore::icpOrBlogText(std::nullopt), TQMore::blogText());
    EXPECT_EQ(TQMore::icpOrBlogUrl(std::nullopt), TQMore::blogUrl());
    EXPECT_EQ(TQMore::blogOrSocialText(std::nullopt), TQMore::threadsText());
    EXPECT_EQ(TQMore::blogOrSocialUrl(std::nullopt), TQMore::threadsUrl());
}

TEST_F(TQMoreRows, IgnoresTheFilingOutsideChina)
{
    platform->storefront = QStringLiteral("USA");
    for (const std::optional<QString> &icp :
         {std::optional(filing), std::optional(QString()), std::optional<QString>()}) {
        EXPECT_EQ(TQMore::icpOrBlogText(icp), TQMore::blogText());
        EXPECT_EQ(TQMore::icpOrBlogUrl(icp), TQMore::blogUrl());
        EXPECT_EQ(TQMore::blogOrSocialText(icp), TQMore::threadsText());
        EXPECT_EQ(TQMore::blogOrSocialUrl(icp), TQMore::threadsUrl());
    }
}

TEST(DeveloperIdentity, HasAFilingSiteOfSchemeAndHost)
{
    EXPECT_EQ(QLatin1String(DeveloperIdentity::filingSite), filingSite);
}

} // namespace
} // namespace TQFoundation
