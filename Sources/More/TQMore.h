#pragma once

#include "TQFoundation/Color.h"
#include "TQFoundation/tqfoundation_export.h"

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
/// English. Never instantiated. Any thread, except where a member says otherwise.
class TQFOUNDATION_EXPORT TQMore
{
public:
    TQMore() = delete;

    /// The title of the row that leads to the privacy policy.
    static QString privacyText();
    /// The page of the privacy policy.
    static QString privacyUrl();
    /// The title of the row that leads to writing to the developer.
    static QString feedbackText();
    /// The page where users who cannot send mail reach the developer.
    static QString feedbackUrl();
    /// The title of the row that asks for a review. Its link belongs to each app: TQApp::reviewLink().
    static QString reviewText();
    /// The title of the row that leads to the developer's social pages.
    static QString threadsText();
    /// The page that gathers the developer's social pages; the same in every language.
    static QString threadsUrl();
    /// The title of the row that leads to the developer's website.
    static QString blogText();
    /// The developer's website.
    static QString blogUrl();
    /// The title of the row that leads to the developer's other apps.
    static QString moreAppText();
    /// The store's page of the developer; the same in every language.
    static QString moreAppUrl();

    /// The word for version, a blank, the host's version and, with no blank between, its build in parentheses:
    /// "Version 2.3.1(57)". What the host does not say stays empty.
    static QString versionText();

    // Two rows in succession. In mainland China (isChn()) an app that has a filing shows its filing text and then the
    // website; everybody else sees the website and then the social page. Only the absence of icp counts: an empty text
    // is a filing. A row's text and link always belong together.

    /// The title of the first of the two rows: the filing \a icp itself, or blogText().
    static QString icpOrBlogText(const std::optional<QString> &icp);
    /// The link of the first row: the site where filings are looked up, or blogUrl().
    static QString icpOrBlogUrl(const std::optional<QString> &icp);
    /// The title of the second row: blogText() beneath a filing, else threadsText().
    static QString blogOrSocialText(const std::optional<QString> &icp);
    /// The link of the second row: blogUrl() beneath a filing, else threadsUrl().
    static QString blogOrSocialUrl(const std::optional<QString> &icp);

    /// The controller to present a screen on: from the root controller of the key window of the app's active window
    /// scene, the last of the chain of modal presentations. Null where no scene is active, none of its windows is key,
    /// or that window is not one of Qt Quick. Looked up at each call. Main thread.
    static std::shared_ptr<ViewController> topViewController();

    /// Opens the link behind a row. A text that is no URL does nothing.
    ///
    /// The site where filings are looked up stays in the app: given exactly as icpOrBlogUrl() spells it, in mainland
    /// China and with a tint, it opens in the in-app browser on topViewController(), or not at all where that is null.
    /// Every other link is handed to the system. Main thread.
    static void openUrl(const QString &urlString, const std::optional<Color> &tintColor);

    /// Lets the user write to the developer: shows the mail composer on topViewController(), or nothing where that is
    /// null. The subject names the host, its version and its build; \a message is the body as HTML and passed on as it
    /// is. The controller that was on top when the composer was made is its delegate. Without a tint the composer keeps
    /// the system's colour.
    ///
    /// Where no mail can be sent, hands feedbackUrl() to the system, or does nothing where that is no URL. Main thread.
    static void sendFeedbackEmail(const std::optional<Color> &tintColor, const QString &message);
};

} // namespace TQFoundation
