#include "TQMore.h"

#include "Bundle.h"
#include "DeveloperIdentity.h"
#include "DeveloperPage.h"
#include "Environment.h"
#include "KeyWindow.h"
#include "MoreKeys.h"
#include "TQApp.h"
#include "ViewController.h"

#include <QtQuick/qquickwindow.h>

namespace TQFoundation {
namespace {

QString localized(const char *key)
{
    return localizedInLibrary(QLatin1String(key));
}

bool showsFiling(const std::optional<QString> &icp)
{
    return isChn() && icp;
}

} // namespace

QString TQMore::privacyText()
{
    static const QString text = localized(MoreKeys::privacy);
    return text;
}

QString TQMore::privacyUrl()
{
    static const QString url = localized(DeveloperIdentity::privacyPage);
    return url;
}

QString TQMore::feedbackText()
{
    static const QString text = localized(MoreKeys::feedback);
    return text;
}

QString TQMore::feedbackUrl()
{
    static const QString url = localized(DeveloperIdentity::contactPage);
    return url;
}

QString TQMore::reviewText()
{
    static const QString text = localized(MoreKeys::review);
    return text;
}

QString TQMore::threadsText()
{
    static const QString text = localized(MoreKeys::threads);
    return text;
}

QString TQMore::threadsUrl()
{
    return QLatin1String(DeveloperIdentity::socialPage);
}

QString TQMore::blogText()
{
    static const QString text = localized(MoreKeys::blog);
    return text;
}

QString TQMore::blogUrl()
{
    static const QString url = localized(DeveloperIdentity::homePage);
    return url;
}

QString TQMore::moreAppText()
{
    static const QString text = localized(DeveloperPage::title);
    return text;
}

QString TQMore::moreAppUrl()
{
    return QLatin1String(DeveloperIdentity::storePage);
}

QString TQMore::versionText()
{
    // Statement by statement, because the operands of one expression would be read in any order.
    static const QString text = [] {
        QString line = localized(MoreKeys::version);
        line += u' ';
        line += TQApp::version();
        line += u'(';
        line += TQApp::buildNumber();
        line += u')';
        return line;
    }();
    return text;
}

QString TQMore::icpOrBlogText(const std::optional<QString> &icp)
{
    return showsFiling(icp) ? *icp : blogText();
}

QString TQMore::icpOrBlogUrl(const std::optional<QString> &icp)
{
    return showsFiling(icp) ? QString(QLatin1String(DeveloperIdentity::filingSite)) : blogUrl();
}

QString TQMore::blogOrSocialText(const std::optional<QString> &icp)
{
    return showsFiling(icp) ? blogText() : threadsText();
}

QString TQMore::blogOrSocialUrl(const std::optional<QString> &icp)
{
    return showsFiling(icp) ? blogUrl() : threadsUrl();
}

std::shared_ptr<ViewController> TQMore::topViewController()
{
    auto top = ViewController::rootOf(keyWindow());
    while (top && top->presentedViewController())
        top = top->presentedViewController();
    return top;
}

} // namespace TQFoundation
