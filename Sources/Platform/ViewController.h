#pragma once

#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

#include <memory>

class QWindow;

namespace TQFoundation {

class MailComposer;

/// A screen in the chain of modal screens of one window.
///
/// Each QQuickWindow has a root controller, made on first request. A host that shows modal screens of its own presents
/// a controller for each of them, so that the library's screens appear above them. Owned by `std::shared_ptr`: a
/// presenting controller shares the ownership of the one that it presents. GUI thread.
class TQFOUNDATION_EXPORT ViewController : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("TQFoundation/MailComposer.h")

public:
    /// How the user finished a mail.
    enum class MailComposeResult { cancelled, saved, sent, failed };
    Q_ENUM(MailComposeResult)

    /// Makes a controller of \a view, which is not owned and may be destroyed at any time. A controller without a view
    /// stands for a screen that the host shows itself.
    explicit ViewController(QQuickItem *view = nullptr);
    ~ViewController() override;

    /// The item that it shows; not owned, null if it was made without one or the item was destroyed.
    QQuickItem *view() const { return m_view; }

    /// The controller that this one presents; null if it presents none.
    std::shared_ptr<ViewController> presentedViewController() const { return m_presented; }

    /// Shows \a next over everything in this controller's window and shares its ownership. The window is that of the
    /// nearest view below, or the one whose root the chain begins with. Does nothing if \a next is
    /// null, is presented already or comes before this controller in its chain, or if this controller presents one.
    void present(std::shared_ptr<ViewController> next);

    /// Removes the controller that this one presents and all controllers above it; a controller that presents none
    /// removes itself. Does nothing for a root that presents none.
    void dismiss();

    /// The root controller of \a window, whose view is by default its content item. Null if \a window is null, not a
    /// QQuickWindow or being destroyed.
    static std::shared_ptr<ViewController> rootOf(QWindow *window);

    /// Makes \a root the root controller of \a window; if it is null, rootOf() makes a new one. Does nothing if
    /// \a window is null. The window shares the ownership of its root.
    static void setRoot(QQuickWindow *window, const std::shared_ptr<ViewController> &root);

    /// Called by \a controller, a mail composer, on its delegate when the user has finished the mail. \a error
    /// describes a failure for the user and is otherwise empty. Dismisses the composer, whatever the result and
    /// whichever controller presented it; shows and stores nothing.
    Q_INVOKABLE virtual void mailComposeController(TQFoundation::MailComposer *controller,
                                                   TQFoundation::ViewController::MailComposeResult result,
                                                   const QString &error);

protected:
    /// Shows the view above everything in \a window, which is null if no controller below has a window.
    virtual void appear(QQuickWindow *window);

    /// Removes the view from its window.
    virtual void disappear();

private:
    QPointer<QQuickItem> m_view;
    QPointer<QQuickWindow> m_rootWindow; // the window whose root this is
    std::shared_ptr<ViewController> m_presented;
    ViewController *m_presenting = nullptr;
};

} // namespace TQFoundation
