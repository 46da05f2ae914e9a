#include "TQMore.h"

#include "DeveloperIdentity.h"
#include "DeveloperPage.h"
#include "KeyWindow.h"
#include "MoreKeys.h"
#include "TQFoundation/Bundle.h"
#include "TQFoundation/Environment.h"
#include "TQFoundation/InAppBrowser.h"
#include "TQFoundation/MailComposer.h"
#include "TQFoundation/Platform.h"
#include "TQFoundation/TQApp.h"
#include "TQFoundation/ViewController.h"
#include "Url.h"

#include <QtQuick/qquickwindow.h>

namespace TQFoundation {
namespace {

QString localized(const char *key)
{
    return localizedInLibrary(QLatin1String(key));
}

template <const char *const &key>
QString localizedOnce()
{
    static const QString text = localized(key);
    return text;
}

// Separate statements, because the operands of one expression are evaluated in unspecified order.
QString &appendVersion(QString &text)
{
    text += TQApp::version();
    text += u'(';
    text += TQApp::buildNumber();
    text += u')';
    return text;
}

QString feedbackSubject()
{
    QString subject = localized(MoreKeys::feedbackSubject);
    subject += TQApp::name();
    subject += u' ';
    return appendVersion(subject);
}

bool hasFilingRow(const std::optional<QString> &icp)
{
    return isChn() && icp;
}

} // namespace

QString TQMore::privacyText()
{
    return localizedOnce<MoreKeys::privacy>();
}

QString TQMore::privacyUrl()
{
    return localizedOnce<DeveloperIdentity::privacyPage>();
}

QString TQMore::feedbackText()
{
    return localizedOnce<MoreKeys::feedback>();
}

QString TQMore::feedbackUrl()
{
    return localizedOnce<DeveloperIdentity::contactPage>();
}

QString TQMore::reviewText()
{
    return localizedOnce<DeveloperIdentity::reviewTitle>();
}

QString TQMore::threadsText()
{
    return localizedOnce<MoreKeys::threads>();
}

QString TQMore::threadsUrl()
{
    return QLatin1String(DeveloperIdentity::socialPage);
}

QString TQMore::blogText()
{
    return localizedOnce<MoreKeys::blog>();
}

QString TQMore::blogUrl()
{
    return localizedOnce<DeveloperIdentity::homePage>();
}

QString TQMore::moreAppText()
{
    return DeveloperPage::title();
}

QString TQMore::moreAppUrl()
{
    return QLatin1String(DeveloperIdentity::storePage);
}

QString TQMore::versionText()
{
    static const QString text = [] {
        QString line = localized(MoreKeys::version);
        line += u' ';
        return appendVersion(line);
    }();
    return text;
}

QString TQMore::icpOrBlogText(const std::optional<QString> &icp)
{
    return hasFilingRow(icp) ? *icp : blogText();
}

QString TQMore::icpOrBlogUrl(const std::optional<QString> &icp)
{
    return hasFilingRow(icp) ? QString(QLatin1String(DeveloperIdentity::filingSite)) : blogUrl();
}

QString TQMore::blogOrSocialText(const std::optional<QString> &icp)
{
    return hasFilingRow(icp) ? blogText() : threadsText();
}

QString TQMore::blogOrSocialUrl(const std::optional<QString> &icp)
{
    return hasFilingRow(icp) ? blogUrl() : threadsUrl();
}

std::shared_ptr<ViewController> TQMore::topViewController()
{
    auto top = ViewController::rootOf(keyWindow());
    while (top && top->presentedViewController())
        top = top->presentedViewController();
    return top;
}

void TQMore::openUrl(const QString &urlString, const std::optional<Color> &tintColor)
{
    const auto url = urlFromString(urlString);
    if (!url)
        return;
    if (!isChn() || !tintColor || urlString != QLatin1String(DeveloperIdentity::filingSite)) {
        platform().openUrl(*url);
        return;
    }
    const auto browser = platform().makeInAppBrowser(*url);
    browser->setPreferredControlTintColor(*tintColor);
    browser->setDismissButtonStyle(InAppBrowser::DismissButtonStyle::close);
    browser->setModalPresentationStyle(InAppBrowser::ModalPresentationStyle::pageSheet);
    if (const auto top = topViewController())
        top->present(browser);
}

void TQMore::sendFeedbackEmail(const std::optional<Color> &tintColor, const QString &message)
{
    const QString subject = feedbackSubject();
    const auto composer = platform().makeMailComposer();
    composer->setMailComposeDelegate(topViewController());
    if (tintColor)
        composer->setNavigationBarTintColor(*tintColor);
    composer->setToRecipients({QLatin1String(DeveloperIdentity::supportAddress)});
    composer->setSubject(subject);
    composer->setMessageBody(message, true);
    if (platform().canSendMail()) {
        if (const auto top = topViewController())
            top->present(composer);
    } else if (const auto page = urlFromString(feedbackUrl())) {
        platform().openUrl(*page);
    }
}

} // namespace TQFoundation
