#pragma once

#include "TQFoundation/Color.h"

#include <QtCore/qobject.h>
#include <QtCore/qurl.h>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace TQFoundation {

class RepeatingTimer;

/// The object behind BrowserSheet.qml: the first page, the rules for links, and the error message for a page that
/// cannot be shown. GUI thread only.
class BrowserPage : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Not for apps: an in-app browser makes it.")
    Q_PROPERTY(TQFoundation::Color tint MEMBER tint CONSTANT FINAL)
    Q_PROPERTY(QUrl url MEMBER url CONSTANT FINAL)
    Q_PROPERTY(TQFoundation::BrowserPage::Problem problem READ problem NOTIFY problemChanged FINAL)
    Q_PROPERTY(QString problemText READ problemText NOTIFY problemChanged FINAL)

public:
    /// Why a page cannot be shown, or not in full.
    enum Problem {
        NoProblem,
        Unreachable, ///< Nothing was loaded: offline, unknown host, connection refused or lost.
        Insecure, ///< The certificate of the site is not valid.
        Crashed, ///< The render process of the page has ended.
        TimedOut ///< The page was still loading after `timeout`.
    };
    Q_ENUM(Problem)

    /// How long a page may take to load, in seconds.
    static constexpr double timeout = 30;

    using QObject::QObject;

    /// Cancels the timeout.
    ~BrowserPage() override;

    Color tint = Color::systemBlue(); ///< The colour of the sheet's buttons. Set it before the sheet is opened.
    QUrl url; ///< The first page. Set it before the sheet is opened.

    /// The problem of the page that was requested last.
    Problem problem() const { return m_problem; }

    /// The error message for the user, in the user's language. Empty without a problem.
    QString problemText() const;

    /// Whether a page may navigate to \a target. The main frame may show http and https only; other frames may also
    /// show what the page itself generates: about, blob and data URLs.
    Q_INVOKABLE bool canOpen(const QUrl &target, bool isMainFrame) const;

    /// The host of \a shown, in ASCII (Punycode), so that it cannot resemble the name of another site. A port follows
    /// unless it is the default; "http://" precedes if the connection is not encrypted. Empty if \a shown is not a web
    /// page.
    Q_INVOKABLE QString siteOf(const QUrl &shown) const;

    /// A script that clicks a link to \a target without a referrer. Run it in a page, but not in the page's own world.
    Q_INVOKABLE QString linkScript(const QUrl &target) const;

    /// Call it when a page starts to load. Clears the problem and starts the timeout.
    Q_INVOKABLE void beginLoading();

    /// Call it when a page has loaded or loading was stopped. Cancels the timeout.
    Q_INVOKABLE void endLoading();

    /// Cancels the timeout and sets the problem. Only the first problem of a page counts; later ones are ignored.
    Q_INVOKABLE void fail(TQFoundation::BrowserPage::Problem problem);

    /// Keeps a web view's \a profile for ten more seconds, or until the application object is destroyed.
    /// Qt WebEngine crashes at times if a profile is destroyed while its threads still end a refused download.
    Q_INVOKABLE void destroyLater(QObject *profile) const;

Q_SIGNALS:
    /// Emitted when problem() and with it problemText() has changed.
    void problemChanged();

    /// Emitted by the sheet when the user closes the browser.
    void closed();

private:
    void setProblem(Problem problem);

    Problem m_problem = NoProblem;
    std::shared_ptr<RepeatingTimer> m_timer; // null unless a page is loading
};

} // namespace TQFoundation
