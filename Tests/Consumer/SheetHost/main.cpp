#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQGuideView.h>
#include <TQFoundation/TQMore.h>
#include <TQFoundation/ViewController.h>

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QQuickWindow>

#include <cstdio>
#include <cstdlib>
#include <functional>

using namespace TQFoundation;

namespace {

void waitFor(const std::function<bool()> &condition, const char *what)
{
    const QDeadlineTimer deadline(20'000);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    if (condition())
        return;
    std::fprintf(stderr, "failed: %s\n", what);
    std::exit(EXIT_FAILURE);
}

} // namespace

// Walks the guide to its end and opens the mail sheet, both drawn in a window of the desktop's platform. Needs a
// sendmail program, and settings in which the guide was not shown yet.
int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QGuiApplication::setOrganizationName(QStringLiteral("TQ Studio"));
    QQuickWindow window;
    window.resize(390, 844);
    window.show();
    window.requestActivate();
    waitFor([&] { return window.isActive(); }, "an active window");
    const QImage blank = window.grabWindow();

    const TQApp app = TQApp::hazel;
    const auto guide = TQGuideView::initFromNib(app.tintColor(), app.guideText(), [] {});
    waitFor([] { return TQGuideView::shouldShowGuide(); }, "a guide that was not shown");
    guide->showGuide(&window);
    for (qsizetype page = 0; page < app.guideText().size(); ++page) {
        waitFor([&] { return guide->nextButton()->isEnabled(); }, "the next button");
        waitFor([&] { return window.grabWindow() != blank; }, "a picture of the guide");
        guide->nextGuide();
    }
    waitFor([&] { return !guide->parentItem() && !TQGuideView::shouldShowGuide(); }, "the end of the guide");

    const auto root = TQMore::topViewController();
    TQMore::sendFeedbackEmail(app.tintColor(), QStringLiteral("<p>Hello</p>"));
    waitFor([&] { return TQMore::topViewController() != root; }, "a mail sheet");
    waitFor([&] { return window.grabWindow() != blank; }, "a picture of the mail sheet");
    return EXIT_SUCCESS;
}
