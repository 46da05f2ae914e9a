#include "QmlValue.h"
#include "RecordingPlatform.h"

#include <TQFoundation/TQMore.h>

namespace TQFoundation {
namespace {

using Testing::InstalledRecordingPlatform;
using Testing::qmlValue;
using Testing::QmlWindow;

// The message of the error that a statement throws; empty if it throws none.
QString thrownBy(const QByteArray &statement)
{
    return qmlValue("string", "{ try { " + statement + "; return '' } catch (error) { return error.message } }")
        .toString();
}

TEST(QmlMore, HasTheTextsAndLinksOfTQMore)
{
    const InstalledRecordingPlatform platform;
    EXPECT_EQ(qmlValue("string",
                       "[TQMore.privacyText, TQMore.feedbackText, TQMore.reviewText, TQMore.threadsText, "
                       "TQMore.blogText, TQMore.moreAppText].join('|')"),
              QVariant(QStringLiteral("Privacy Policy|Contact|Rate on the App Store|Follow me on Social Media "
                                      "Platforms|Browse My Personal Website|More Apps I Developed")));
    EXPECT_EQ(qmlValue("string",
                       "[TQMore.privacyUrl, TQMore.feedbackUrl, TQMore.threadsUrl, TQMore.blogUrl, "
                       "TQMore.moreAppUrl].join('|')"),
              QVariant(QStringLiteral("https://tqstudio.example/privacy-policy-en|https://tqstudio.example/contact-en|"
                                      "https://links.example/tqstudio|https://tqstudio.example/en|"
                                      "https://apps.apple.com/developer/tq-studio/id9990000000")));
}

TEST(QmlMore, HasTheVersionLineOfTQMore)
{
    const InstalledRecordingPlatform platform;
    platform->infoDictionary = {{QStringLiteral("CFBundleShortVersionString"), QStringLiteral("2.3.1")},
                                {QStringLiteral("CFBundleVersion"), QStringLiteral("57")}};
    EXPECT_EQ(qmlValue("string", "TQMore.versionText"), QVariant(QStringLiteral("Version 2.3.1(57)")));
}

TEST(QmlMore, TreatsUndefinedAndNullFilingsAsAbsent)
{
    const InstalledRecordingPlatform platform;
    for (const char *absent : {"undefined", "null", "TQApp.alder.icp"}) {
        const QByteArray expression = QByteArray("TQMore.icpOrBlogUrl(") + absent + ")";
        EXPECT_EQ(qmlValue("string", expression.constData()), QVariant(QStringLiteral("https://tqstudio.example/en")))
            << absent;
    }
    EXPECT_EQ(qmlValue("string", "TQMore.icpOrBlogUrl('')"), QVariant(QStringLiteral("https://beian.miit.gov.cn")));
    EXPECT_EQ(qmlValue("string", "TQMore.icpOrBlogText(TQApp.hazel.icp)"),
              QVariant(QStringLiteral("ICP-2099000001-3A")));
    EXPECT_EQ(qmlValue("string", "TQMore.blogOrSocialText(TQApp.hazel.icp)"),
              QVariant(QStringLiteral("Browse My Personal Website")));
    EXPECT_EQ(qmlValue("string", "TQMore.blogOrSocialUrl(undefined)"),
              QVariant(QStringLiteral("https://links.example/tqstudio")));
}

TEST(QmlMore, AcceptsStringsAsFilingsOnly)
{
    const InstalledRecordingPlatform platform;
    for (const char *function : {"icpOrBlogText", "icpOrBlogUrl", "blogOrSocialText", "blogOrSocialUrl"}) {
        for (const char *icp : {"3", "true", "['ICP']", "({})", "TQApp.hazel"}) {
            const QByteArray call = QByteArray("TQMore.") + function + '(' + icp + ')';
            EXPECT_EQ(thrownBy(call),
                      QString(QLatin1String(function) + u": expected icp as a string, undefined or null"));
        }
    }
}

TEST(QmlMore, AcceptsEveryFormOfATint)
{
    const InstalledRecordingPlatform platform;
    platform->storefront = QStringLiteral("CHN");
    for (const char *tint : {"TQApp.elm.tintColor", "Qt.rgba(1, 0, 0, 1)", "'red'", "'#f00'", "'#ffff0000'"}) {
        const QByteArray call = QByteArray("TQMore.openUrl('https://beian.miit.gov.cn', ") + tint + ')';
        EXPECT_EQ(thrownBy(call), QString());
        EXPECT_FALSE(platform->calls.filter(QStringLiteral("setPreferredControlTintColor(#ffff")).isEmpty()) << tint;
        platform->calls.clear();
    }
    for (const char *arguments : {"", ", undefined", ", null"}) {
        const QByteArray call = QByteArray("TQMore.openUrl('https://beian.miit.gov.cn'") + arguments + ')';
        EXPECT_EQ(thrownBy(call), QString());
        EXPECT_TRUE(platform->calls.contains(QStringLiteral("openUrl(https://beian.miit.gov.cn)"))) << arguments;
        platform->calls.clear();
    }
}

TEST(QmlMore, RejectsTintsThatAreNotColors)
{
    const InstalledRecordingPlatform platform;
    for (const char *tint : {"'reddish'", "''", "3", "true", "({})", "[]", "TQApp.hazel"}) {
        EXPECT_EQ(thrownBy(QByteArray("TQMore.openUrl('https://beian.miit.gov.cn', ") + tint + ')'),
                  QStringLiteral("openUrl: expected tintColor as a tqColor, a color, undefined or null"));
        EXPECT_EQ(thrownBy(QByteArray("TQMore.sendFeedbackEmail(") + tint + ", 'text')"),
                  QStringLiteral("sendFeedbackEmail: expected tintColor as a tqColor, a color, undefined or null"));
    }
    EXPECT_EQ(platform->calls, QStringList());
}

TEST(QmlMore, BeginsAFeedbackMail)
{
    const InstalledRecordingPlatform platform;
    const QmlWindow host("Item { Component.onCompleted: TQMore.sendFeedbackEmail(Qt.rgba(1, 0, 0, 1), 'a\nb') }");
    EXPECT_TRUE(platform->calls.contains(QStringLiteral("composer.setNavigationBarTintColor(#ffff0000 #ffff0000)")));
    EXPECT_TRUE(platform->calls.contains(QStringLiteral("composer.setMessageBody(a\nb, html)")));
    const QmlWindow next("Item { Component.onCompleted: TQMore.sendFeedbackEmail('#ff00ff00', '') }");
    EXPECT_TRUE(platform->calls.contains(QStringLiteral("composer.setNavigationBarTintColor(#ff00ff00 #ff00ff00)")));
}

} // namespace
} // namespace TQFoundation
