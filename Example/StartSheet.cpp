#include "StartSheet.h"

#include "Options.h"

#include <TQFoundation/InAppBrowser.h>
#include <TQFoundation/Platform.h>
#include <TQFoundation/TQMore.h>
#include <TQFoundation/ViewController.h>

#include <QtCore/qurl.h>

using namespace TQFoundation;

void presentStartSheet(const Options &options)
{
    if (options.compose)
        TQMore::sendFeedbackEmail(options.app.tintColor(), {});
    const auto top = TQMore::topViewController();
    if (options.openBrowser.isEmpty() || !top)
        return;
    const auto browser = platform().makeInAppBrowser(QUrl(options.openBrowser, QUrl::StrictMode));
    browser->setPreferredControlTintColor(options.app.tintColor());
    top->present(browser);
}
