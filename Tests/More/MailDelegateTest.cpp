#include "RecordingPlatform.h"
#include "Scenes.h"

#include <TQFoundation/TQMore.h>
#include <TQFoundation/ViewController.h>

#include <QtQuick/qquickwindow.h>

#include <gtest/gtest.h>

namespace TQFoundation {
namespace {

using Result = ViewController::MailComposeResult;

class MailDelegate : public testing::Test
{
protected:
    MailDelegate() { platform->scenes = Testing::keyScene(&window); }

    Testing::InstalledRecordingPlatform platform;
    QQuickWindow window;
};

TEST_F(MailDelegate, DismissesTheComposerForEveryResult)
{
    for (const Result result : {Result::cancelled, Result::saved, Result::sent, Result::failed}) {
        TQMore::sendFeedbackEmail(std::nullopt, {});
        const auto composer = platform->mailComposer.lock();
        composer->delegate.lock()->mailComposeController(composer.get(), result, QStringLiteral("words"));
        EXPECT_EQ(platform->calls.last(), QStringLiteral("composer.disappear()"));
        EXPECT_EQ(TQMore::topViewController(), ViewController::rootOf(&window));
    }
}

TEST_F(MailDelegate, DismissesAComposerThatAnotherControllerPresents)
{
    const auto presenter = std::make_shared<ViewController>();
    const auto delegate = std::make_shared<ViewController>();
    const auto composer = platform->makeMailComposer();
    presenter->present(composer);
    delegate->mailComposeController(composer.get(), Result::cancelled, {});
    EXPECT_EQ(presenter->presentedViewController(), nullptr);
    EXPECT_EQ(platform->calls.last(), QStringLiteral("composer.disappear()"));
}

TEST_F(MailDelegate, IgnoresANullComposer)
{
    ViewController().mailComposeController(nullptr, Result::sent, {});
    EXPECT_EQ(platform->calls, QStringList());
}

TEST_F(MailDelegate, IsInvokableThroughTheMetaObject)
{
    TQMore::sendFeedbackEmail(std::nullopt, {});
    const auto composer = platform->mailComposer.lock();
    ViewController other;
    EXPECT_TRUE(QMetaObject::invokeMethod(
        &other, "mailComposeController", Q_ARG(TQFoundation::MailComposer *, composer.get()),
        Q_ARG(TQFoundation::ViewController::MailComposeResult, Result::sent), Q_ARG(QString, QString())));
    EXPECT_EQ(platform->calls.last(), QStringLiteral("composer.disappear()"));
}

} // namespace
} // namespace TQFoundation
