#pragma once

#include "TQFoundation/Color.h"
#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qstring.h>

#include <memory>
#include <optional>

namespace TQFoundation {

class ViewController;

/// Titles and links of the rows of an app's More screen, the version line, and functions that open a link or a feedback
/// mail. The host builds the rows.
///
/// Texts and links are translated on their first read and kept for the life of the process. Without a translation they
/// are English. A link leads to a page in the user's language if the site has one. Never instantiated. Any thread
/// unless a member says otherwise.
class TQFOUNDATION_EXPORT TQMore
{
public:
    TQMore() = delete;

    /// The title of the row that leads to the privacy policy.
    static QString privacyText();
    /// The page of the privacy policy.
    static QString privacyUrl();
    /// The title of the row that calls sendFeedbackEmail().
    static QString feedbackText();
    /// The contact page, for users who cannot send mail.
    static QString feedbackUrl();
    /// The title of the row that opens the review form; its link is TQApp::reviewLink().
    static QString reviewText();
    /// The title of the row that leads to the developer's social pages.
    static QString threadsText();
    /// The page that lists the developer's social pages; the same in every language.
    static QString threadsUrl();
    /// The title of the row that leads to the developer's website.
    static QString blogText();
    /// The developer's website.
    static QString blogUrl();
    /// The title of the row that leads to the developer's other apps.
    static QString moreAppText();
    /// The store's page of the developer; the same in every language.
    static QString moreAppUrl();

    /// The word "Version", a blank, the host's version and, without a blank, its build number in parentheses:
    /// "Version 2.3.1(57)". A missing version or build number is empty.
    static QString versionText();

    // Two consecutive rows. In mainland China (isChn()) an app with a filing shows its filing text and then the
    // website; every other user sees the website and then the social page. Only a null icp counts as absent: an empty
    // text is a filing. The text and the link of a row always belong together.

    /// The title of the first row: the filing text \a icp, or blogText().
    static QString icpOrBlogText(const std::optional<QString> &icp);
    /// The link of the first row: the site where filings are looked up, or blogUrl().
    static QString icpOrBlogUrl(const std::optional<QString> &icp);
    /// The title of the second row: blogText() below a filing, else threadsText().
    static QString blogOrSocialText(const std::optional<QString> &icp);
    /// The link of the second row: blogUrl() below a filing, else threadsUrl().
    static QString blogOrSocialUrl(const std::optional<QString> &icp);

    /// The controller to present a screen on: the last of the chain of modal presentations that begins at the root
    /// controller of the key window of the active window scene. Null if no scene is active, if none of its windows is
    /// key, or if that is not a QQuickWindow. Looked up at each call. GUI thread.
    static std::shared_ptr<ViewController> topViewController();

    /// Opens the link of a row in the system's handler. Does nothing if \a urlString is not a URL.
    ///
    /// Exception: the filing site, spelled exactly as by icpOrBlogUrl(), opens in the in-app browser on
    /// topViewController() if isChn() and \a tintColor is not null. If topViewController() is null, nothing opens then.
    /// GUI thread.
    static void openUrl(const QString &urlString, const std::optional<Color> &tintColor);

    /// Presents a mail composer, addressed to the developer, on topViewController(); does nothing if that is null. The
    /// subject has the host's name, version and build number. The body is \a message, HTML, unchanged. The delegate is
    /// topViewController() at the time of the call. A null \a tintColor keeps the system's colour.
    ///
    /// If the platform cannot send mail, opens feedbackUrl() in the system's handler instead, if that is a URL. GUI
    /// thread.
    static void sendFeedbackEmail(const std::optional<Color> &tintColor, const QString &message);
};

} // namespace TQFoundation
