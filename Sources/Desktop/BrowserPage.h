#pragma once

#include "TQFoundation/Color.h"

#include <QtCore/qobject.h>
#include <QtCore/qurl.h>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace TQFoundation {

class RepeatingTimer;

/// What the browser's sheet BrowserSheet.qml asks and tells: the page to begin with, what a page may do, and what the
/// user is told when one does not come.
class BrowserPage : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("An in-app browser makes it.")
    Q_PROPERTY(TQFoundation::Color tint MEMBER tint CONSTANT FINAL)
    Q_PROPERTY(QUrl url MEMBER url CONSTANT FINAL)
    Q_PROPERTY(TQFoundation::BrowserPage::Problem problem READ problem NOTIFY problemChanged FINAL)
    Q_PROPERTY(QString problemText READ problemText NOTIFY problemChanged FINAL)
    Q_PROPERTY(QString closeText READ closeText CONSTANT FINAL)
    Q_PROPERTY(QString backText READ backText CONSTANT FINAL)
    Q_PROPERTY(QString reloadText READ reloadText CONSTANT FINAL)
    Q_PROPERTY(QString againText READ againText CONSTANT FINAL)

public:
    enum Problem {
        NoProblem,
        Unreachable, ///< Nothing was loaded: offline, no such host, refused, broken off.
        Insecure, ///< The site could not prove that it is the one that the address names.
        Crashed, ///< The process that shows the page has gone.
        Slow ///< Loading took longer than `patience` and was stopped.
    };
    Q_ENUM(Problem)

    /// How long a page may take to load, in seconds.
    static constexpr double patience = 30;

    using QObject::QObject;
    ~BrowserPage() override;

    Color tint = Color::systemBlue();
    QUrl url;

    Problem problem() const { return m_problem; }

    /// The problem in words for the user; empty without one.
    QString problemText() const;

    /// Whether a page may lead to \a target: to other web pages, and to nothing else. Frames inside of it may also show
    /// what the page itself made.
    Q_INVOKABLE bool mayOpen(const QUrl &target, bool isMainFrame) const;

    /// Who shows the page at \a shown: its host, in the spelling of the domain name system, which no other site's name
    /// can look like; with what is unusual about it, that is a port, or a connection that is not secure.
    Q_INVOKABLE QString siteOf(const QUrl &shown) const;

    /// A page begins to load: forgets the problem of the one before.
    Q_INVOKABLE void beginLoading();

    /// The page has been loaded, or what there is of it.
    Q_INVOKABLE void endLoading();

    /// The page cannot be shown. The first problem of a page counts.
    Q_INVOKABLE void fail(TQFoundation::BrowserPage::Problem problem);

    static QString closeText();
    static QString backText();
    static QString reloadText();
    static QString againText();

Q_SIGNALS:
    void problemChanged();

    /// The user closes the browser.
    void closed();

private:
    void setProblem(Problem problem);

    Problem m_problem = NoProblem;
    std::shared_ptr<RepeatingTimer> m_bound;
};

} // namespace TQFoundation
