#include "MailDraft.h"

#include "LayoutCost.h"
#include "MailMessage.h"
#include "SheetText.h"

#include <QtGui/qclipboard.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qimage.h>
#include <QtGui/qinputmethod.h>
#include <QtGui/qtextcursor.h>
#include <QtGui/qtextdocument.h>
#include <QtGui/qtextdocumentfragment.h>
#include <QtGui/qtextobject.h>
#include <QtQuick/qquickitem.h>

#include <algorithm>
#include <utility>

namespace TQFoundation {
namespace {

// Images of the message are shown as one blank image. The original name is kept in a property of the text format.
constexpr QLatin1String blankImage("tq:blank-image");
constexpr int originalImageName = QTextFormat::UserProperty + 1;

/// A document that loads neither images nor style sheets.
class OfflineDocument final : public QTextDocument
{
protected:
    QVariant loadResource(int type, const QUrl &) override
    {
        return type == ImageResource ? QVariant(QImage()) : QVariant(QByteArray());
    }
};

// Calls change(format) for the format of each text fragment and applies the changed format if it returns true. Formats
// are collected first, because applying one invalidates the iterators.
template <typename Change>
void changeFormats(QTextDocument &document, const Change &change)
{
    struct Run
    {
        int start;
        int end;
        QTextCharFormat format;
    };
    QList<Run> runs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto iterator = block.begin(); !iterator.atEnd(); ++iterator) {
            const QTextFragment fragment = iterator.fragment();
            QTextCharFormat format = fragment.charFormat();
            if (change(format))
                runs.append({fragment.position(), fragment.position() + fragment.length(), format});
        }
    }
    QTextCursor cursor(&document);
    cursor.beginEditBlock(); // else each change is laid out
    for (const Run &run : std::as_const(runs)) {
        cursor.setPosition(run.start);
        cursor.setPosition(run.end, QTextCursor::KeepAnchor);
        cursor.setCharFormat(run.format);
    }
    cursor.endEditBlock();
}

// Links do not count: the toolkit colours them.
bool hasOwnColors(const QTextDocument &document)
{
    const QList<QTextFormat> formats = document.allFormats();
    return std::ranges::any_of(formats, [](const QTextFormat &format) {
        const bool isLink = format.isCharFormat() && format.toCharFormat().isAnchor();
        return format.hasProperty(QTextFormat::BackgroundBrush)
            || (format.hasProperty(QTextFormat::ForegroundBrush) && !isLink);
    });
}

} // namespace

void MailDraft::setSubject(const QString &subject)
{
    if (m_subject == subject)
        return;
    m_subject = subject;
    m_isSubjectEdited = true;
    Q_EMIT subjectChanged();
}

bool MailDraft::isHidden() const
{
    return !isCheapToLayOut(html.toStdU16String());
}

void MailDraft::load(QQuickTextDocument *editor)
{
    OfflineDocument message;
    if (!isHidden())
        message.setHtml(html);
    m_hasColors = hasOwnColors(message);
    changeFormats(message, [](QTextCharFormat &format) {
        if (format.isImageFormat()) {
            format.setProperty(originalImageName, format.toImageFormat().name());
            format.setProperty(QTextFormat::ImageName, blankImage);
        } else if (format.isAnchor()) {
            format.clearForeground();
        }
        return format.isImageFormat() || format.isAnchor();
    });

    // Works around Qt: until it is pressed once, a text area keeps the grab of a touch that would scroll the page.
    if (auto *area = qobject_cast<QQuickItem *>(editor->parent()))
        area->setKeepMouseGrab(false);
    m_document = editor->textDocument();
    m_document->setUndoRedoEnabled(false);
    QImage blank(1, 1, QImage::Format_ARGB32_Premultiplied);
    blank.fill(Qt::transparent);
    m_document->addResource(QTextDocument::ImageResource, QUrl(blankImage), blank);
    QTextCursor(m_document).insertFragment(QTextDocumentFragment(&message));
    m_document->setUndoRedoEnabled(true);
    m_document->setModified(false);
    Q_EMIT loaded();
}

void MailDraft::paste(int start, int end)
{
    if (!m_document)
        return;
    QTextCursor cursor(m_document);
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    cursor.insertText(QGuiApplication::clipboard()->text());
}

void MailDraft::send()
{
    if (m_state != State::editing)
        return;
    QGuiApplication::inputMethod()->commit();
    m_state = State::sending;
    m_problem.clear();
    Q_EMIT stateChanged();
    const auto message = composeMail({
        .to = recipient().toStdString(),
        .subject = m_subject.toStdString(),
        .html = (isEdited() ? editedHtml() : html).toStdString(),
    });
    const QString program = sendmailProgram(programFolders);
    if (!message || program.isEmpty()) {
        onSendFinished(message ? Sendmail::Outcome::noProgram : Sendmail::Outcome::failed, {});
        return;
    }
    m_sendmail = new Sendmail(this);
    connect(m_sendmail, &Sendmail::finished, this, &MailDraft::onSendFinished);
    m_sendmail->start(program, QByteArray::fromStdString(*message));
}

void MailDraft::cancel()
{
    if (m_state == State::sending)
        Q_EMIT stopConfirmationRequested();
    if (m_state != State::editing)
        return;
    QGuiApplication::inputMethod()->commit();
    if (m_isSubjectEdited || isEdited())
        Q_EMIT discardConfirmationRequested();
    else
        discard();
}

void MailDraft::stopSending()
{
    if (m_state != State::sending)
        return;
    m_sendmail->cancel();
    endSending();
    cancel();
}

void MailDraft::discard()
{
    if (m_state == State::editing)
        finish(m_problem.isEmpty() ? ViewController::MailComposeResult::cancelled
                                   : ViewController::MailComposeResult::failed);
}

QString MailDraft::editedHtml() const
{
    const std::unique_ptr<QTextDocument> copy(m_document->clone());
    copy->setDocumentMargin(m_document->documentMargin()); // else toHtml() wraps everything in a table
    changeFormats(*copy, [](QTextCharFormat &format) {
        if (!format.hasProperty(originalImageName))
            return false;
        format.setProperty(QTextFormat::ImageName, format.property(originalImageName));
        format.clearProperty(originalImageName);
        return true;
    });
    return isHidden() ? QString(copy->toHtml() + html) : copy->toHtml();
}

void MailDraft::endSending()
{
    if (m_sendmail)
        m_sendmail->deleteLater();
    m_state = State::editing;
    Q_EMIT stateChanged();
}

void MailDraft::onSendFinished(Sendmail::Outcome outcome, const QString &detail)
{
    m_problem = problemOf(outcome);
    m_problemDetail = outcome == Sendmail::Outcome::sent ? QString() : detail;
    endSending();
    if (outcome == Sendmail::Outcome::sent)
        finish(ViewController::MailComposeResult::sent);
}

void MailDraft::finish(ViewController::MailComposeResult result)
{
    m_state = State::finished;
    Q_EMIT finished(result, m_problem);
}

QString MailDraft::problemOf(Sendmail::Outcome outcome)
{
    switch (outcome) {
    case Sendmail::Outcome::sent:
        break;
    case Sendmail::Outcome::noProgram:
        return SheetText::of(SheetText::NoMailProgram);
    case Sendmail::Outcome::notSetUp:
        return SheetText::of(SheetText::MailProgramNotSetUp);
    case Sendmail::Outcome::unreachable:
        return SheetText::of(SheetText::MailServerUnreachable);
    case Sendmail::Outcome::rejected:
        return SheetText::of(SheetText::MailRejected);
    case Sendmail::Outcome::failed:
        return SheetText::of(SheetText::MailFailed);
    case Sendmail::Outcome::crashed:
        return SheetText::of(SheetText::MailProgramCrashed);
    case Sendmail::Outcome::unanswered:
        return SheetText::of(SheetText::MailProgramTimedOut);
    }
    return {};
}

} // namespace TQFoundation
