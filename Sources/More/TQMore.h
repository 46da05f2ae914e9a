#pragma once

#include "tqfoundation_export.h"

#include <QtCore/qstring.h>

#include <memory>
#include <optional>

namespace TQFoundation {

class ViewController;

/// The rows of an app's More screen: their titles, the links behind them and the version line. The host builds the
/// rows.
///
/// Texts and links are worked out on their first read and kept for the life of the process: another language shows at
/// the next launch. Links are in the user's language where the site has such a page. A text without a translation is
/// English. Never instantiated. Any thread.
class TQFOUNDATION_EXPORT TQMore
{
public:
    TQMore() = delete;

    static QString privacyText();
    static QString privacyUrl();
    static QString feedbackText();
    static QString feedbackUrl();
    /// Its link belongs to each app: TQApp::reviewLink().
    static QString reviewText();
    static QString threadsText();
    static QString threadsUrl();
    static QString blogText();
    static QString blogUrl();
    static QString moreAppText();
    static QString moreAppUrl();

    /// The word for version, a blank, the host's version and, with no blank between, its build in parentheses:
    /// "Version 2.3.1(57)". What the host does not say stays empty.
    static QString versionText();

    // Two rows in succession. In mainland China (isChn()) an app that has a filing shows its filing text and then the
    // website; everybody else sees the website and then the social page. Only the absence of icp counts: an empty text
    // is a filing. A row's text and link always belong together.

    static QString icpOrBlogText(const std::optional<QString> &icp);
    static QString icpOrBlogUrl(const std::optional<QString> &icp);
    static QString blogOrSocialText(const std::optional<QString> &icp);
    static QString blogOrSocialUrl(const std::optional<QString> &icp);

    /// The controller to present a screen on: from the root controller of the key window of the app's active window
    /// scene, the last of the chain of modal presentations. Null where no scene is active, none of its windows is key,
    /// or that window is not one of Qt Quick. Looked up at each call. Main thread.
    static std::shared_ptr<ViewController> topViewController();
};

} // namespace TQFoundation
