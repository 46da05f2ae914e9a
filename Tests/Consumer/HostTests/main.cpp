#include <RecordingPlatform.h>

#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQGuideView.h>
#include <TQFoundation/TQMore.h>

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QQuickWindow>

#include <cstdlib>
#include <functional>

using namespace TQFoundation;

namespace {

void require(bool condition, const char *what)
{
    if (condition)
        return;
    qWarning("failed: %s", what);
    std::exit(EXIT_FAILURE);
}

// Fades take real time.
void waitFor(const std::function<bool()> &condition, const char *what)
{
    const QDeadlineTimer deadline(10'000);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    require(condition(), what);
}

void walkGuideToItsEnd(const Testing::RecordingPlatform &platform)
{
    require(TQGuideView::shouldShowGuide(), "the guide is new");
    const TQApp app = TQApp::hazel;
    bool isCompleted = false;
    const auto guide = TQGuideView::initFromNib(app.tintColor(), app.guideText(), [&] { isCompleted = true; });
    guide->showGuide();
    for (const QString &paragraph : app.guideText()) {
        waitFor([&] { return guide->nextButton()->isEnabled(); }, "the next button");
        require(guide->guideLabel()->property("text") == paragraph, "the paragraph");
        guide->nextGuide();
    }
    require(isCompleted && !TQGuideView::shouldShowGuide(), "the guide is over");
    require(platform.calls.contains(QStringLiteral("setUserDefault(KeyOfDidShowGuide, true)")), "the flag");
    waitFor([&] { return !guide->parentItem(); }, "the guide leaves the window");
}

void sendMail(Testing::RecordingPlatform &platform)
{
    TQMore::sendFeedbackEmail(std::nullopt, QStringLiteral("<p>Hello</p>"));
    const auto composer = platform.mailComposer.lock();
    require(composer != nullptr, "the mail composer");
    require(platform.calls.contains(QStringLiteral("composer.setMessageBody(<p>Hello</p>, html)")), "the message");
    const auto controller = composer->delegate.lock();
    controller->mailComposeController(composer.get(), ViewController::MailComposeResult::sent, {});
}

void readMoreScreen(bool isInChina)
{
    const QString filing = QStringLiteral("ICP-2099000001-1");
    require(TQMore::versionText() == QStringLiteral("Version 2.3.1(57)"), "the version");
    require(TQMore::icpOrBlogText(filing) == (isInChina ? filing : TQMore::blogText()), "the first region row");
    require(TQMore::blogOrSocialText(filing) == (isInChina ? TQMore::blogText() : TQMore::threadsText()), "the second");
}

} // namespace

// Tests of a host on a recording platform. The store's country is the first argument: the library reads it once per
// process, so that each region is a process of its own.
int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QString country = QCoreApplication::arguments().value(1);
    const Testing::InstalledRecordingPlatform platform;
    platform->storefront = country;
    platform->infoDictionary = {{QStringLiteral("CFBundleName"), QStringLiteral("Grove")},
                                {QStringLiteral("CFBundleShortVersionString"), QStringLiteral("2.3.1")},
                                {QStringLiteral("CFBundleVersion"), QStringLiteral("57")}};
    QQuickWindow window;
    window.show();
    platform->scenes = {{ActivationState::foregroundActive, true, {{&window, true}}}};

    readMoreScreen(country == QStringLiteral("CHN"));
    walkGuideToItsEnd(*platform);
    sendMail(*platform);
    return EXIT_SUCCESS;
}
