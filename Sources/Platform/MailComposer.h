#pragma once

#include "TQFoundation/Color.h"
#include "TQFoundation/tqfoundation_export.h"
#include "TQFoundation/ViewController.h"

#include <QtCore/qstringlist.h>

#include <memory>

namespace TQFoundation {

/// The system's screen for writing one mail. The library fills it in and presents it; the user then sends, saves or
/// cancels the mail, and the delegate receives the result. Call the setters before it is presented. GUI thread.
class TQFOUNDATION_EXPORT MailComposer : public ViewController
{
    Q_OBJECT

public:
    using ViewController::ViewController;

    /// Sets the controller whose mailComposeController() is called once, when the user has finished the mail. Not
    /// owned; nothing is called if it is null or destroyed by then.
    virtual void setMailComposeDelegate(const std::shared_ptr<ViewController> &delegate) = 0;

    /// Sets the color of the navigation bar's buttons; the system's color if it is never set.
    virtual void setNavigationBarTintColor(const Color &color) = 0;

    /// Sets the recipients, as plain addresses.
    virtual void setToRecipients(const QStringList &addresses) = 0;

    /// Sets the subject, as plain text.
    virtual void setSubject(const QString &subject) = 0;

    /// Sets the initial text, unchanged: HTML if \a isHtml is true, else plain text.
    virtual void setMessageBody(const QString &body, bool isHtml) = 0;
};

} // namespace TQFoundation
