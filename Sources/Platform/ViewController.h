#pragma once

#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>
#include <QtQuick/qquickitem.h>

#include <memory>

class QQuickWindow;
class QWindow;

namespace TQFoundation {

class MailComposer;

/// What a screen of the library is presented on, and what it is presented as: a link of the chain of modal screens of
/// one window.
///
/// Each window of Qt Quick has a root controller, which is made when it is first asked for. A host that shows modal
/// screens of its own presents a controller for each, so that the library's screens come to lie on top of them. Held
/// by `std::shared_ptr`: a presenting controller holds the one that it presents. Main thread only.
class TQFOUNDATION_EXPORT ViewController : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("TQFoundation/MailComposer.h")

public:
    /// How the user was done with a mail.
    enum class MailComposeResult { cancelled, saved, sent, failed };
    Q_ENUM(MailComposeResult)

    /// A controller of \a view, which is not owned and may go away at any time. Without a view it is a mere link of the
    /// chain, for a screen that the host shows by itself.
    explicit ViewController(QQuickItem *view = nullptr);
    ~ViewController() override;

    /// What it shows; not owned, null where it was made without a view or the view has gone.
    QQuickItem *view() const { return m_view; }

    /// The controller that this one presents; null where it presents none.
    std::shared_ptr<ViewController> presentedViewController() const { return m_presented; }

    /// Shows \a next over everything in this controller's window. Does nothing for null, where this controller already
    /// presents one, and where \a next is presented elsewhere or comes before this one in its chain.
    void present(std::shared_ptr<ViewController> next);

    /// Takes away what this controller presents, with all that lies on top of that; a controller that presents nothing
    /// takes itself away. Does nothing for a root that presents nothing.
    void dismiss();

    /// The root controller of \a window; null for null and for a window that is not one of Qt Quick.
    static std::shared_ptr<ViewController> rootOf(QWindow *window);

    /// Makes \a root the root controller of \a window, or one that is made anew where it is null.
    static void setRoot(QQuickWindow *window, const std::shared_ptr<ViewController> &root);

    /// What a mail composer tells its delegate, which any controller can be, when the user is done; \a error says in
    /// words what went wrong, and is empty where nothing did. Whatever the result, the composer is dismissed, also
    /// where another controller presented it. Nothing is shown or kept.
    Q_INVOKABLE virtual void mailComposeController(TQFoundation::MailComposer *controller,
                                                   TQFoundation::ViewController::MailComposeResult result,
                                                   const QString &error);

protected:
    /// Puts the view on the screen: on top of all that \a window shows, which is null where the presenting controller
    /// is in no window.
    virtual void appear(QQuickWindow *window);

    /// Takes the view off the screen.
    virtual void disappear();

private:
    QPointer<QQuickItem> m_view;
    std::shared_ptr<ViewController> m_presented;
    ViewController *m_presenting = nullptr;
};

} // namespace TQFoundation
