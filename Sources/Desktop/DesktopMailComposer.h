#pragma once

#include "Sheet.h"
#include "TQFoundation/MailComposer.h"

#include <memory>

namespace TQFoundation {

class MailDraft;

/// The composer of a desktop: a sheet whose mail goes out through the system's sendmail program. It keeps no drafts,
/// and so never reports a mail as saved.
class DesktopMailComposer final : public MailComposer, public std::enable_shared_from_this<DesktopMailComposer>
{
    Q_OBJECT

public:
    /// \a programFolders are searched for sendmail in their order.
    explicit DesktopMailComposer(const QStringList &programFolders);
    ~DesktopMailComposer() override;

    void setMailComposeDelegate(const std::shared_ptr<ViewController> &delegate) override;
    void setNavigationBarTintColor(const Color &color) override;
    void setToRecipients(const QStringList &addresses) override;
    void setSubject(const QString &subject) override;
    void setMessageBody(const QString &body, bool isHtml) override;

protected:
    void appear(QQuickWindow *window) override;
    void disappear() override;

private:
    void tellDelegate(MailComposeResult result, const QString &error);

    std::weak_ptr<ViewController> m_delegate;
    std::unique_ptr<MailDraft> m_draft; // until it is shown; afterwards the sheet has it
    Sheet m_sheet;
};

} // namespace TQFoundation
