#pragma once

#include "TQFoundation/Color.h"
#include "TQFoundation/tqfoundation_export.h"
#include "TQFoundation/ViewController.h"

#include <QtCore/qstringlist.h>

#include <memory>

namespace TQFoundation {

/// The system's screen for writing one mail. The library fills it in and presents it; what happens then is between the
/// user and the system, until the delegate is told how it ended. Main thread only.
class TQFOUNDATION_EXPORT MailComposer : public ViewController
{
    Q_OBJECT

public:
    using ViewController::ViewController;

    /// Who is told once, by mailComposeController(), when the user is done. Not owned; null for nobody.
    virtual void setMailComposeDelegate(const std::shared_ptr<ViewController> &delegate) = 0;

    /// What the buttons of the navigation bar are painted in; the system's own colour where it is never set.
    virtual void setNavigationBarTintColor(const Color &color) = 0;

    /// Whom the mail goes to, as plain addresses.
    virtual void setToRecipients(const QStringList &addresses) = 0;

    /// What the mail is about, as plain text.
    virtual void setSubject(const QString &subject) = 0;

    /// What the mail begins with, passed on as it is: HTML where \a isHtml is true, else plain text.
    virtual void setMessageBody(const QString &body, bool isHtml) = 0;
};

} // namespace TQFoundation
