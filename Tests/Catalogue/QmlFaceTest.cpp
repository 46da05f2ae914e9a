#include "QmlWindow.h"
#include "RecordingPlatform.h"

#include <TQFoundation/TQApp.h>

namespace TQFoundation {
namespace {

using Testing::InstalledRecordingPlatform;
using Testing::QmlWindow;

class QmlFace : public testing::Test
{
protected:
    // What a host's binding of that type and expression reads.
    QVariant read(const char *type, const char *expression) const
    {
        const QmlWindow host("Item { property " + QByteArray(type) + " result: " + expression + " }");
        return host.item->property("result");
    }

    InstalledRecordingPlatform platform;
};

TEST_F(QmlFace, EveryCaseHasItsProperty)
{
    const auto cases = QMetaEnum::fromType<TQApp::Case>();
    ASSERT_EQ(cases.keyCount(), 10);
    for (int index = 0; index < cases.keyCount(); ++index) {
        const QByteArray expression = QByteArray("TQApp.") + cases.key(index);
        EXPECT_EQ(read("tqApp", expression.constData()).value<TQApp>(), TQApp(TQApp::Case(cases.value(index))));
    }
}

TEST_F(QmlFace, AllCasesCanBeGoneThroughInOrder)
{
    EXPECT_EQ(read("int", "TQApp.allCases.length"), QVariant(10));
    EXPECT_EQ(read("string", "TQApp.allCases[0].id + TQApp.allCases[9].id"),
              QVariant(QStringLiteral("99900000019990000010")));
    EXPECT_EQ(read("string", "TQApp.allCases.map(app => app.id).join()"),
              read("string",
                   "[TQApp.larch, TQApp.juniper, TQApp.hazel, TQApp.ginkgo, TQApp.fir, TQApp.elm, "
                   "TQApp.dogwood, TQApp.cedar, TQApp.birch, TQApp.alder].map(app => app.id).join()"));
}

TEST_F(QmlFace, ACaseHasAllItsMembers)
{
    EXPECT_EQ(read("string", "TQApp.larch.id"), QVariant(QStringLiteral("9990000001")));
    EXPECT_EQ(read("string", "TQApp.larch.icp"), QVariant(QStringLiteral("ICP-2099000001-1A")));
    EXPECT_EQ(read("bool", "TQApp.alder.icp === undefined"), QVariant(true));
    EXPECT_EQ(read("int", "TQApp.hazel.guideText.length"), QVariant(6));
    EXPECT_EQ(read("string", "TQApp.larch.reviewLink"),
              QVariant(QStringLiteral("https://apps.apple.com/app/id9990000001?action=write-review")));
    EXPECT_EQ(read("string", "TQApp.larch.appLink"),
              QVariant(QStringLiteral("https://apps.apple.com/app/id9990000001")));
}

TEST_F(QmlFace, ATintAnswersForLightAndDark)
{
    EXPECT_EQ(read("color", "TQApp.hazel.tintColor.light").value<QColor>(), QColor(Qt::black));
    EXPECT_EQ(read("color", "TQApp.hazel.tintColor.dark").value<QColor>(), QColor(Qt::white));
    EXPECT_EQ(read("color", "TQApp.hazel.tintColor.resolved(true)").value<QColor>(), QColor(Qt::white));
    EXPECT_EQ(read("color", "TQApp.birch.tintColor.resolved(false)").value<QColor>().rgb(), qRgb(148, 23, 81));
    EXPECT_EQ(read("tqColor", "TQApp.fir.tintColor").value<Color>(), Color::systemGray());
}

TEST_F(QmlFace, TheHostsIdentityIsThere)
{
    platform->infoDictionary = {{QStringLiteral("CFBundleDisplayName"), QStringLiteral("Grove")},
                                {QStringLiteral("CFBundleShortVersionString"), QStringLiteral("2.3.1")},
                                {QStringLiteral("CFBundleVersion"), QStringLiteral("57")}};
    EXPECT_EQ(read("string", "TQApp.name + TQApp.version + TQApp.buildNumber"),
              QVariant(QStringLiteral("Grove2.3.157")));
    EXPECT_EQ(read("string", "TQMore.versionText"), QVariant(QStringLiteral("Version 2.3.1(57)")));
}

TEST_F(QmlFace, MoreTextsAndLinksAreThoseOfCpp)
{
    EXPECT_EQ(read("string",
                   "[TQMore.privacyText, TQMore.feedbackText, TQMore.reviewText, TQMore.threadsText, "
                   "TQMore.blogText, TQMore.moreAppText].join('|')"),
              QVariant(QStringLiteral("Privacy Policy|Contact|Rate on the App Store|Follow me on Social Media "
                                      "Platforms|Browse My Personal Website|More Apps I Developed")));
    EXPECT_EQ(read("string",
                   "[TQMore.privacyUrl, TQMore.feedbackUrl, TQMore.threadsUrl, TQMore.blogUrl, "
                   "TQMore.moreAppUrl].join('|')"),
              QVariant(QStringLiteral("https://tqstudio.example/privacy-policy-en|https://tqstudio.example/contact-en|"
                                      "https://links.example/tqstudio|https://tqstudio.example/en|"
                                      "https://apps.apple.com/developer/tq-studio/id9990000000")));
}

TEST_F(QmlFace, AFilingThatIsUndefinedOrNullIsAbsentAndAnEmptyOnePresent)
{
    for (const char *absent : {"undefined", "null", "TQApp.alder.icp"}) {
        const QByteArray expression = QByteArray("TQMore.icpOrBlogUrl(") + absent + ")";
        EXPECT_EQ(read("string", expression.constData()), QVariant(QStringLiteral("https://tqstudio.example/en")))
            << absent;
    }
    EXPECT_EQ(read("string", "TQMore.icpOrBlogUrl('')"), QVariant(QStringLiteral("https://beian.miit.gov.cn")));
    EXPECT_EQ(read("string", "TQMore.icpOrBlogText(TQApp.hazel.icp)"), QVariant(QStringLiteral("ICP-2099000001-3A")));
    EXPECT_EQ(read("string", "TQMore.blogOrSocialText(TQApp.hazel.icp)"),
              QVariant(QStringLiteral("Browse My Personal Website")));
    EXPECT_EQ(read("string", "TQMore.blogOrSocialUrl(undefined)"),
              QVariant(QStringLiteral("https://links.example/tqstudio")));
}

TEST_F(QmlFace, AnIconOfAnyAppCanBeShown)
{
    const QmlWindow host("TQAppIcon { property int changes: 0; app: TQApp.birch; onAppChanged: ++changes }");
    EXPECT_EQ(host.item->size(), QSizeF(36, 36));
    EXPECT_FALSE(host.item->property("empty").toBool());
    const auto picture = [&] { return const_cast<QQuickWindow &>(host.window).grabWindow(); };
    const QImage birch = picture();
    const int changes = host.item->property("changes").toInt();
    host.item->setProperty("app", QVariant::fromValue(TQApp(TQApp::birch)));
    EXPECT_EQ(host.item->property("changes"), QVariant(changes));
    host.item->setProperty("app", QVariant::fromValue(TQApp(TQApp::fir)));
    EXPECT_EQ(host.item->property("changes"), QVariant(changes + 1));
    EXPECT_NE(picture(), birch);
}

TEST_F(QmlFace, LinksAreOpenedWithATintOfEitherTypeOrNone)
{
    platform->storefront = QStringLiteral("CHN");
    for (const char *tint : {"TQApp.hazel.tintColor", "Qt.rgba(1, 0, 0, 1)"}) {
        const QByteArray call = QByteArray("TQMore.openUrl('https://beian.miit.gov.cn', ") + tint + ')';
        const QmlWindow host("Item { Component.onCompleted: " + call + " }");
        EXPECT_FALSE(platform->calls.filter(QStringLiteral("makeInAppBrowser")).isEmpty()) << tint;
        platform->calls.clear();
    }
    for (const char *tint : {"undefined", "null", "'red'", "3"}) {
        const QByteArray call = QByteArray("TQMore.openUrl('https://beian.miit.gov.cn', ") + tint + ')';
        const QmlWindow host("Item { Component.onCompleted: " + call + " }");
        EXPECT_TRUE(platform->calls.contains(QStringLiteral("openUrl(https://beian.miit.gov.cn)"))) << tint;
        platform->calls.clear();
    }
}

TEST_F(QmlFace, AMailToTheDeveloperIsBegun)
{
    const QmlWindow host("Item { Component.onCompleted: TQMore.sendFeedbackEmail(Qt.rgba(1, 0, 0, 1), 'a\nb') }");
    EXPECT_TRUE(platform->calls.contains(QStringLiteral("composer.setNavigationBarTintColor(#ffff0000 #ffff0000)")));
    EXPECT_TRUE(platform->calls.contains(QStringLiteral("composer.setMessageBody(a\nb, html)")));
}

} // namespace
} // namespace TQFoundation
