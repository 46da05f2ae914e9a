#include "Languages.h"
#include "RecordingPlatform.h"
#include "Scenes.h"

#include <TQFoundation/TQMore.h>
#include <TQFoundation/ViewController.h>

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qprocess.h>
#include <QtCore/qtemporarydir.h>
#include <QtQuick/qquickwindow.h>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace TQFoundation {
namespace {

const QString message = QStringLiteral("<p>Hello</p>");

class TQMoreFeedbackEmail : public testing::Test
{
protected:
    TQMoreFeedbackEmail()
    {
        platform->scenes = Testing::keyScene(&window);
        platform->infoDictionary = {{QStringLiteral("CFBundleDisplayName"), QStringLiteral("Hazel Grid")},
                                    {QStringLiteral("CFBundleShortVersionString"), QStringLiteral("2.3.1")},
                                    {QStringLiteral("CFBundleVersion"), QStringLiteral("57")}};
    }

    QString subject()
    {
        platform->calls.clear();
        TQMore::sendFeedbackEmail(std::nullopt, message);
        ViewController::rootOf(&window)->dismiss();
        return platform->calls.filter(QStringLiteral("setSubject")).value(0);
    }

    Testing::InstalledRecordingPlatform platform;
    QQuickWindow window;
};

TEST_F(TQMoreFeedbackEmail, ComposesInFixedOrder)
{
    TQMore::sendFeedbackEmail(Color::systemRed(), message);
    EXPECT_EQ(
        platform->calls,
        (QStringList{QStringLiteral("infoDictionaryValue(CFBundleDisplayName)"),
                     QStringLiteral("infoDictionaryValue(CFBundleShortVersionString)"),
                     QStringLiteral("infoDictionaryValue(CFBundleVersion)"), QStringLiteral("makeMailComposer()"),
                     QStringLiteral("connectedScenes()"), QStringLiteral("composer.setMailComposeDelegate(controller)"),
                     QStringLiteral("composer.setNavigationBarTintColor(#ffff3b30 #ffff453a)"),
                     QStringLiteral("composer.setToRecipients(support@tqstudio.example)"),
                     QStringLiteral("composer.setSubject(Contact: Hazel Grid 2.3.1(57))"),
                     QStringLiteral("composer.setMessageBody(<p>Hello</p>, html)"), QStringLiteral("canSendMail()"),
                     QStringLiteral("connectedScenes()"), QStringLiteral("composer.appear()")}));
    EXPECT_EQ(TQMore::topViewController(), platform->mailComposer.lock());
}

TEST_F(TQMoreFeedbackEmail, MakesTheTopControllerTheDelegate)
{
    TQMore::sendFeedbackEmail(std::nullopt, message);
    EXPECT_EQ(platform->mailComposer.lock()->delegate.lock(), ViewController::rootOf(&window));
}

TEST_F(TQMoreFeedbackEmail, KeepsTheSystemTintForNull)
{
    TQMore::sendFeedbackEmail(std::nullopt, message);
    EXPECT_TRUE(platform->calls.filter(QStringLiteral("Tint")).isEmpty());
    EXPECT_TRUE(platform->calls.contains(QStringLiteral("composer.appear()")));
}

TEST_F(TQMoreFeedbackEmail, PassesTheMessageOnAsHtml)
{
    TQMore::sendFeedbackEmail(std::nullopt, QStringLiteral("one\ntwo\r\n\r\n<three"));
    EXPECT_TRUE(platform->calls.contains(QStringLiteral("composer.setMessageBody(one\ntwo\r\n\r\n<three, html)")));
}

TEST_F(TQMoreFeedbackEmail, BuildsTheSubjectAtEachCall)
{
    EXPECT_EQ(subject(), QStringLiteral("composer.setSubject(Contact: Hazel Grid 2.3.1(57))"));
    platform->infoDictionary.insert(QStringLiteral("CFBundleVersion"), QStringLiteral("58"));
    EXPECT_EQ(subject(), QStringLiteral("composer.setSubject(Contact: Hazel Grid 2.3.1(58))"));
    platform->infoDictionary.clear();
    EXPECT_EQ(subject(), QStringLiteral("composer.setSubject(Contact:  ())"));
}

TEST_F(TQMoreFeedbackEmail, TranslatesTheSubject)
{
    Testing::useLanguage("zh-CN");
    EXPECT_EQ(subject(), QStringLiteral("composer.setSubject(联系：Hazel Grid 2.3.1(57))"));
    platform->root = Testing::emptyBundle();
    EXPECT_EQ(subject(), QStringLiteral("composer.setSubject(Contact: Hazel Grid 2.3.1(57))"));
}

TEST_F(TQMoreFeedbackEmail, ShowsNothingWithoutATopController)
{
    platform->scenes.clear();
    TQMore::sendFeedbackEmail(std::nullopt, message);
    EXPECT_TRUE(platform->calls.contains(QStringLiteral("composer.setMailComposeDelegate(null)")));
    EXPECT_EQ(platform->calls.mid(platform->calls.indexOf(QStringLiteral("canSendMail()"))),
              (QStringList{QStringLiteral("canSendMail()"), QStringLiteral("connectedScenes()")}));
    EXPECT_TRUE(platform->mailComposer.expired());
}

// A system that shows a screen of its own while it is asked for mail.
struct PresentingPlatform : Testing::RecordingPlatform
{
    bool canSendMail() const override
    {
        TQMore::topViewController()->present(alert);
        return RecordingPlatform::canSendMail();
    }

    std::shared_ptr<ViewController> alert = std::make_shared<ViewController>();
};

TEST_F(TQMoreFeedbackEmail, ReadsTheTopControllerAgainToPresent)
{
    auto presenting = std::make_unique<PresentingPlatform>();
    PresentingPlatform &asked = *presenting;
    asked.scenes = platform->scenes;
    auto former = installPlatform(std::move(presenting));
    TQMore::sendFeedbackEmail(std::nullopt, message);
    const auto composer = asked.mailComposer.lock();
    ASSERT_TRUE(composer);
    EXPECT_EQ(composer->delegate.lock(), ViewController::rootOf(&window));
    EXPECT_EQ(asked.alert->presentedViewController(), composer);
    ViewController::rootOf(&window)->dismiss();
    installPlatform(std::move(former));
}

TEST_F(TQMoreFeedbackEmail, OpensTheContactPageWithoutMail)
{
    platform->mailCanBeSent = false;
    TQMore::sendFeedbackEmail(Color::systemRed(), message);
    EXPECT_EQ(
        platform->calls.mid(platform->calls.indexOf(QStringLiteral("canSendMail()"))),
        (QStringList{QStringLiteral("canSendMail()"), QStringLiteral("openUrl(https://tqstudio.example/contact-en)")}));
    EXPECT_TRUE(platform->mailComposer.expired());
}

TEST_F(TQMoreFeedbackEmail, ReadsTheTopControllerOnceWithoutMail)
{
    platform->mailCanBeSent = false;
    TQMore::sendFeedbackEmail(std::nullopt, message);
    EXPECT_EQ(platform->calls.count(QStringLiteral("connectedScenes()")), 1);
}

// A bundle whose English table translates the contact page into a text that is not a URL.
TEST_F(TQMoreFeedbackEmail, IgnoresAContactPageThatIsNoUrl)
{
    const QTemporaryDir bundle;
    ASSERT_TRUE(QDir(bundle.path()).mkdir(QStringLiteral("Translations")));
    const QString table = bundle.filePath(QStringLiteral("Translations/TQFoundation_en"));
    QFile source(table + u".ts");
    ASSERT_TRUE(source.open(QIODevice::WriteOnly));
    source.write("<TS version=\"2.1\" language=\"en\"><context><name>TQFoundation</name><message>"
                 "<source>https://tqstudio.example/contact-en</source><translation>not a URL</translation>"
                 "</message></context></TS>");
    source.close();
    ASSERT_EQ(QProcess::execute(QStringLiteral(LRELEASE), {QStringLiteral("-silent"), table + u".ts"}), 0);
    Testing::useLanguage("en-US");
    platform->root = bundle.path();
    platform->mailCanBeSent = false;
    TQMore::sendFeedbackEmail(std::nullopt, message);
    EXPECT_EQ(TQMore::feedbackUrl(), QStringLiteral("not a URL"));
    EXPECT_EQ(platform->calls.last(), QStringLiteral("canSendMail()"));
}

} // namespace
} // namespace TQFoundation
