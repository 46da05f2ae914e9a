#include "BrowserPage.h"

#include "SheetText.h"
#include "TQFoundation/Platform.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qlist.h>
#include <QtCore/qpointer.h>
#include <QtCore/qtimer.h>

#include <chrono>
#include <utility>

namespace TQFoundation {

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
        return SheetText::of(SheetText::PageUnreachable);
    case Insecure:
        return SheetText::of(SheetText::PageInsecure);
    case Crashed:
        return SheetText::of(SheetText::PageCrashed);
    case TimedOut:
        return SheetText::of(SheetText::PageTimedOut);
    }
    return {};
}

bool BrowserPage::canOpen(const QUrl &target, bool isMainFrame) const
{
    const QString scheme = target.scheme();
    const bool isWeb = scheme == u"https" || scheme == u"http";
    const bool isGenerated = scheme == u"about" || scheme == u"blob" || scheme == u"data";
    return isWeb || (isGenerated && !isMainFrame);
}

QString BrowserPage::siteOf(const QUrl &shown) const
{
    if (!canOpen(shown, true))
        return {};
    const QString authority = shown.authority(QUrl::FullyEncoded | QUrl::RemoveUserInfo);
    return shown.scheme() == u"https" ? authority : QString(u"http://" + authority);
}

QString BrowserPage::linkScript(const QUrl &target) const
{
    // An encoded URL contains no quotation mark and no backslash. XML documents do not create HTML elements by default.
    return QStringLiteral("Object.assign(document.createElementNS('http://www.w3.org/1999/xhtml', 'a'), {href: \"%1\", "
                          "rel: 'noreferrer'}).click()")
        .arg(QString::fromLatin1(target.toEncoded()));
}

void BrowserPage::beginLoading()
{
    setProblem(NoProblem);
    endLoading();
    m_timer = platform().makeTimer(timeout, [this] { fail(TimedOut); });
    m_timer->schedule();
}

void BrowserPage::endLoading()
{
    if (const auto timer = std::exchange(m_timer, nullptr))
        timer->invalidate();
}

void BrowserPage::fail(Problem problem)
{
    endLoading();
    if (m_problem == NoProblem)
        setProblem(problem);
}

void BrowserPage::destroyLater(QObject *profile) const
{
    static QList<QPointer<QObject>> kept;
    // Called before Qt WebEngine's own, which is older and ends what a profile needs.
    static const bool isRegistered = [] {
        qAddPostRoutine([] {
            for (const QPointer<QObject> &each : std::exchange(kept, {}))
                delete each;
        });
        return true;
    }();
    Q_UNUSED(isRegistered)
    kept.removeAll(nullptr);
    kept.append(profile);
    profile->setParent(nullptr);
    QTimer::singleShot(std::chrono::seconds(10), profile, &QObject::deleteLater);
}

void BrowserPage::setProblem(Problem problem)
{
    if (m_problem == problem)
        return;
    m_problem = problem;
    Q_EMIT problemChanged();
}

} // namespace TQFoundation
