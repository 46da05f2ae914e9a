#include "BrowserPage.h"

#include "TQFoundation/Bundle.h"
#include "TQFoundation/Platform.h"

#include <utility>

namespace TQFoundation {
namespace {

QString words(const char *key)
{
    return libraryBundle().interfaceString(QString::fromUtf8(key));
}

} // namespace

BrowserPage::~BrowserPage()
{
    endLoading();
}

QString BrowserPage::problemText() const
{
    switch (m_problem) {
    case NoProblem:
        break;
    case Unreachable:
        //: Stands in place of a web page.
        return words(QT_TRANSLATE_NOOP("TQFoundationInterface",
                                       "This page could not be loaded. Check your connection and try again."));
    case Insecure:
        //: Stands in place of a web page whose certificate is not valid.
        return words(QT_TRANSLATE_NOOP("TQFoundationInterface",
                                       "The connection to this site is not secure, so the page was not opened."));
    case Crashed:
        //: Stands in place of a web page whose process has ended.
        return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "This page has stopped working."));
    case Slow:
        //: Stands in place of, or below, a web page.
        return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "This page takes too long to load."));
    }
    return {};
}

bool BrowserPage::mayOpen(const QUrl &target, bool isMainFrame) const
{
    const QString scheme = target.scheme();
    const bool isWeb = scheme == u"https" || scheme == u"http";
    const bool isOwn = scheme == u"about" || scheme == u"blob" || scheme == u"data";
    return isWeb || (isOwn && !isMainFrame);
}

QString BrowserPage::siteOf(const QUrl &shown) const
{
    if (!mayOpen(shown, true))
        return {};
    const QString authority = shown.authority(QUrl::FullyEncoded | QUrl::RemoveUserInfo);
    return shown.scheme() == u"https" ? authority : QString(u"http://" + authority);
}

void BrowserPage::beginLoading()
{
    setProblem(NoProblem);
    endLoading();
    m_bound = platform().makeTimer(patience, [this] { fail(Slow); });
    m_bound->schedule();
}

void BrowserPage::endLoading()
{
    if (const auto bound = std::exchange(m_bound, nullptr))
        bound->invalidate();
}

void BrowserPage::fail(Problem problem)
{
    endLoading();
    if (m_problem == NoProblem)
        setProblem(problem);
}

void BrowserPage::setProblem(Problem problem)
{
    if (m_problem == problem)
        return;
    m_problem = problem;
    Q_EMIT problemChanged();
}

QString BrowserPage::closeText()
{
    //: Button that closes the in-app browser.
    return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "Close"));
}

QString BrowserPage::backText()
{
    //: Button that leads to the page before, in the in-app browser.
    return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "Back"));
}

QString BrowserPage::reloadText()
{
    //: Button that loads the page once more, in the in-app browser.
    return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "Reload"));
}

QString BrowserPage::againText()
{
    return words("Try Again");
}

} // namespace TQFoundation
