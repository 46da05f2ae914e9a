#include "DesktopMailComposer.h"

#include "MailDraft.h"

#include <utility>

namespace TQFoundation {

DesktopMailComposer::DesktopMailComposer(const QStringList &programFolders) : m_draft(std::make_unique<MailDraft>())
{
    m_draft->programFolders = programFolders;
}

DesktopMailComposer::~DesktopMailComposer() = default;

void DesktopMailComposer::setMailComposeDelegate(const std::shared_ptr<ViewController> &delegate)
{
    m_delegate = delegate;
}

void DesktopMailComposer::setNavigationBarTintColor(const Color &color)
{
    if (m_draft)
        m_draft->tint = color;
}

void DesktopMailComposer::setToRecipients(const QStringList &addresses)
{
    if (m_draft)
        m_draft->recipients = addresses;
}

void DesktopMailComposer::setSubject(const QString &subject)
{
    if (m_draft)
        m_draft->setInitialSubject(subject);
}

void DesktopMailComposer::setMessageBody(const QString &body, bool isHtml)
{
    if (m_draft)
        m_draft->html =
            isHtml ? body : QString(u"<div style=\"white-space: pre-wrap\">" + body.toHtmlEscaped() + u"</div>");
}

void DesktopMailComposer::appear(QQuickWindow *window)
{
    if (m_draft) {
        connect(m_draft.get(), &MailDraft::finished, this, &DesktopMailComposer::notifyDelegate);
        if (m_sheet.open(QStringLiteral("MailSheet"), std::move(m_draft), window))
            return;
    }
    notifyDelegate(MailComposeResult::failed, MailDraft::problemOf(Sendmail::Outcome::failed));
}

void DesktopMailComposer::disappear()
{
    m_sheet.close();
}

void DesktopMailComposer::notifyDelegate(MailComposeResult result, const QString &error)
{
    // The presenting controller drops its reference on dismissal.
    const auto self = weak_from_this().lock();
    // A controller that presents another would dismiss that one instead of itself.
    if (presentedViewController())
        dismiss();
    if (const auto delegate = m_delegate.lock())
        delegate->mailComposeController(this, result, error);
    else
        dismiss();
}

} // namespace TQFoundation
