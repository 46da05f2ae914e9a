#pragma once

#include "Sheet.h"
#include "TQFoundation/MailComposer.h"

#include <memory>

namespace TQFoundation {

class MailDraft;

/// The mail composer of a desktop: shows MailSheet.qml and sends through the system's sendmail program. There are no
/// drafts, so the delegate never gets MailComposeResult::saved.
///
/// Values set after it was presented have no effect. Held by `std::shared_ptr`. GUI thread only.
class DesktopMailComposer final : public MailComposer, public std::enable_shared_from_this<DesktopMailComposer>
{
    Q_OBJECT

public:
    /// Searches \a programFolders for sendmail, in this order, each time the user sends.
    explicit DesktopMailComposer(const QStringList &programFolders);
    ~DesktopMailComposer() override;

    /// Kept as a weak reference. If it is destroyed before the user is done, the composer dismisses itself.
    void setMailComposeDelegate(const std::shared_ptr<ViewController> &delegate) override;

    void setNavigationBarTintColor(const Color &color) override;
    void setToRecipients(const QStringList &addresses) override;
    void setSubject(const QString &subject) override;

    /// Plain text is converted to HTML that shows the same characters, lines and blanks.
    void setMessageBody(const QString &body, bool isHtml) override;

protected:
    /// Opens the sheet in \a window. Reports MailComposeResult::failed if that is null or the sheet cannot be loaded.
    void appear(QQuickWindow *window) override;

    /// Closes the sheet. A mail that is being sent is sent all the same.
    void disappear() override;

private:
    // Dismisses all screens above the composer first, and the composer itself if there is no delegate.
    void notifyDelegate(MailComposeResult result, const QString &error);

    std::weak_ptr<ViewController> m_delegate;
    std::unique_ptr<MailDraft> m_draft; // null once the sheet owns it
    Sheet m_sheet;
};

} // namespace TQFoundation
