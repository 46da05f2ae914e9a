#include "RecordingPlatform.h"
#include "Scenes.h"

#include <TQFoundation/TQMore.h>
#include <TQFoundation/ViewController.h>

#include <QtQuick/qquickwindow.h>

#include <gtest/gtest.h>

namespace TQFoundation {
namespace {

const QString filingSite = QStringLiteral("https://beian.miit.gov.cn");
const Color tint = Color::systemRed();

class TQMoreOpenUrl : public testing::Test
{
protected:
    TQMoreOpenUrl()
    {
        platform->storefront = QStringLiteral("CHN");
        platform->scenes = Testing::keyScene(&window);
    }

    // The platform calls that open a link, without that for the region.
    QStringList callsFor(const QString &urlString, const std::optional<Color> &color = tint)
    {
        TQMore::openUrl(urlString, color);
        QStringList calls = std::exchange(platform->calls, {});
        calls.removeAll(QStringLiteral("storefrontCountryCode()"));
        return calls;
    }

    static QStringList systemOpens(const QString &url) { return {u"openUrl(" + url + u')'}; }

    Testing::InstalledRecordingPlatform platform;
    QQuickWindow window;
};

TEST_F(TQMoreOpenUrl, OpensTheFilingSiteInTheInAppBrowser)
{
    EXPECT_EQ(callsFor(filingSite),
              (QStringList{QStringLiteral("makeInAppBrowser(https://beian.miit.gov.cn)"),
                           QStringLiteral("browser.setPreferredControlTintColor(#ffff3b30 #ffff453a)"),
                           QStringLiteral("browser.setDismissButtonStyle(close)"),
                           QStringLiteral("browser.setModalPresentationStyle(pageSheet)"),
                           QStringLiteral("connectedScenes()"), QStringLiteral("browser.appear()")}));
    EXPECT_EQ(TQMore::topViewController(), platform->inAppBrowser.lock());
}

TEST_F(TQMoreOpenUrl, ReadsTheRegionFirst)
{
    TQMore::openUrl(filingSite, tint);
    EXPECT_EQ(platform->calls.first(), QStringLiteral("storefrontCountryCode()"));
}

TEST_F(TQMoreOpenUrl, DropsTheBrowserWithoutATopController)
{
    platform->scenes.clear();
    EXPECT_EQ(callsFor(filingSite).last(), QStringLiteral("connectedScenes()"));
    EXPECT_TRUE(platform->inAppBrowser.expired());
}

TEST_F(TQMoreOpenUrl, PresentsTheBrowserOnTheTopController)
{
    const auto sheet = std::make_shared<ViewController>();
    ViewController::rootOf(&window)->present(sheet);
    TQMore::openUrl(filingSite, tint);
    ASSERT_TRUE(platform->inAppBrowser.lock());
    EXPECT_EQ(sheet->presentedViewController(), platform->inAppBrowser.lock());
}

TEST_F(TQMoreOpenUrl, LeavesTheBrowserToItsPresenter)
{
    TQMore::openUrl(filingSite, tint);
    EXPECT_FALSE(platform->inAppBrowser.expired());
    ViewController::rootOf(&window)->dismiss();
    EXPECT_TRUE(platform->inAppBrowser.expired());
    EXPECT_EQ(platform->calls.last(), QStringLiteral("browser.disappear()"));
}

TEST_F(TQMoreOpenUrl, OpensTheSiteWithTrailingSlashExternally)
{
    EXPECT_EQ(callsFor(filingSite + u'/'), systemOpens(filingSite + u'/'));
}

TEST_F(TQMoreOpenUrl, OpensOtherSpellingsOfTheSiteExternally)
{
    EXPECT_EQ(callsFor(QStringLiteral("https://") + filingSite.mid(8).toUpper()), systemOpens(filingSite));
    EXPECT_EQ(callsFor(QStringLiteral("HTTPS://beian.miit.gov.cn")), systemOpens(filingSite));
    EXPECT_EQ(callsFor(QStringLiteral("http://beian.miit.gov.cn")),
              systemOpens(QStringLiteral("http://beian.miit.gov.cn")));
    EXPECT_EQ(callsFor(filingSite + u"#"), systemOpens(filingSite + u'#'));
}

TEST_F(TQMoreOpenUrl, OpensTheSiteExternallyWithoutATint)
{
    EXPECT_EQ(callsFor(filingSite, std::nullopt), systemOpens(filingSite));
}

TEST_F(TQMoreOpenUrl, OpensTheSiteExternallyOutsideChina)
{
    platform->storefront = QStringLiteral("USA");
    EXPECT_EQ(callsFor(filingSite), systemOpens(filingSite));
}

TEST_F(TQMoreOpenUrl, OpensTheSiteInTheAppForUnknownRegions)
{
    platform->storefront = std::nullopt;
    EXPECT_EQ(callsFor(filingSite).first(), QStringLiteral("makeInAppBrowser(https://beian.miit.gov.cn)"));
}

TEST_F(TQMoreOpenUrl, OpensOtherLinksExternally)
{
    for (const QString &url : {TQMore::privacyUrl(), TQMore::feedbackUrl(), TQMore::blogUrl(), TQMore::threadsUrl(),
                               TQMore::moreAppUrl(), QStringLiteral("mailto:support@tqstudio.example")}) {
        platform->calls.clear();
        EXPECT_EQ(callsFor(url), systemOpens(url));
    }
}

TEST_F(TQMoreOpenUrl, IgnoresTextsThatAreNotUrls)
{
    for (const QString &text :
         {QString(), QStringLiteral(""), QStringLiteral("http://[1"), QStringLiteral("https://a b.example"),
          QStringLiteral("https://example/%zz"), QStringLiteral("https://example:99999"), QStringLiteral(" "),
          QString(filingSite + u'\n'), QString(filingSite + QChar(0)), QString(filingSite + QChar(0xD800))}) {
        TQMore::openUrl(text, tint);
        EXPECT_EQ(platform->calls, QStringList()) << text.toStdString();
    }
}

} // namespace
} // namespace TQFoundation
