#include "MailDraft.h"

#include "MailMessage.h"
#include "TQFoundation/Bundle.h"

#include <QtGui/qclipboard.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qimage.h>
#include <QtGui/qinputmethod.h>
#include <QtGui/qtextcursor.h>
#include <QtGui/qtextdocument.h>
#include <QtGui/qtextdocumentfragment.h>
#include <QtGui/qtextobject.h>

#include <algorithm>
#include <utility>

namespace TQFoundation {
namespace {

// What stands in the editor for the name of an image, and where the image keeps its own.
constexpr QLatin1String noImage("tq:no-image");
constexpr int ownName = QTextFormat::UserProperty + 1;

/// A document that loads nothing of what its HTML refers to.
class SecludedDocument final : public QTextDocument
{
protected:
    QVariant loadResource(int type, const QUrl &) override
    {
        return type == ImageResource ? QVariant(QImage()) : QVariant(QByteArray());
    }
};

// Gives each stretch of text the format that `change` makes of its own.
template <typename Change>
void changeFormats(QTextDocument &document, const Change &change)
{
    QList<QTextFragment> fragments;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
            fragments += fragment.fragment();
    }
    struct Run
    {
        int start;
        int end;
        QTextCharFormat format;
    };
    QList<Run> runs;
    for (const QTextFragment &fragment : std::as_const(fragments)) {
        QTextCharFormat format = fragment.charFormat();
        if (change(format))
            runs.append({fragment.position(), fragment.position() + fragment.length(), format});
    }
    QTextCursor cursor(&document);
    for (const Run &run : std::as_const(runs)) {
        cursor.setPosition(run.start);
        cursor.setPosition(run.end, QTextCursor::KeepAnchor);
        cursor.setCharFormat(run.format);
    }
}

// Whether the user would see colours of the text's own. Links have the toolkit's.
bool isColored(const QTextDocument &document)
{
    const QList<QTextFormat> formats = document.allFormats();
    return std::ranges::any_of(formats, [](const QTextFormat &format) {
        const bool isLink = format.isCharFormat() && format.toCharFormat().isAnchor();
        return format.hasProperty(QTextFormat::BackgroundBrush)
            || (format.hasProperty(QTextFormat::ForegroundBrush) && !isLink);
    });
}

QString words(const char *key)
{
    return libraryBundle().interfaceString(QString::fromUtf8(key));
}

} // namespace

void MailDraft::setSubject(const QString &subject)
{
    if (m_subject == subject)
        return;
    m_subject = subject;
    m_subjectChanged = true;
    Q_EMIT subjectChanged();
}

bool MailDraft::isTooLarge() const
{
    // Laying out takes time with the square of a paragraph's length and of the depth of nesting, and doubles with every
    // table in a table.
    return html.size() > 20000 || html.count(u'<') > 1000
        || html.count(QStringLiteral("<table"), Qt::CaseInsensitive) > 8;
}

void MailDraft::fill(QQuickTextDocument *editor)
{
    SecludedDocument given;
    if (!isTooLarge())
        given.setHtml(html);
    m_hasColors = isColored(given);
    changeFormats(given, [](QTextCharFormat &format) {
        if (format.isImageFormat()) {
            format.setProperty(ownName, format.toImageFormat().name());
            format.setProperty(QTextFormat::ImageName, noImage);
        } else if (format.isAnchor()) {
            format.clearForeground();
        }
        return format.isImageFormat() || format.isAnchor();
    });

    m_document = editor->textDocument();
    m_document->setUndoRedoEnabled(false);
    QImage nothing(1, 1, QImage::Format_ARGB32_Premultiplied);
    nothing.fill(Qt::transparent);
    m_document->addResource(QTextDocument::ImageResource, QUrl(noImage), nothing);
    QTextCursor(m_document).insertFragment(QTextDocumentFragment(&given));
    m_document->setUndoRedoEnabled(true);
    m_document->setModified(false);
    Q_EMIT filled();
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
    if (m_sending || m_finished)
        return;
    QGuiApplication::inputMethod()->commit();
    m_sending = true;
    Q_EMIT stateChanged();
    const auto message = composeMail({
        .to = recipientText().toStdString(),
        .subject = m_subject.toStdString(),
        .html = this->message().toStdString(),
    });
    const QString program = sendmailProgram(programFolders);
    if (!message || program.isEmpty()) {
        heardBack(message ? Sendmail::Outcome::noProgram : Sendmail::Outcome::failed, {});
        return;
    }
    m_sendmail = new Sendmail(this);
    connect(m_sendmail, &Sendmail::finished, this, &MailDraft::heardBack);
    m_sendmail->start(program, QByteArray::fromStdString(*message));
}

void MailDraft::cancel()
{
    if (m_sending)
        return;
    QGuiApplication::inputMethod()->commit();
    if (m_subjectChanged || (m_document && m_document->isModified()))
        Q_EMIT discardQuestioned();
    else
        discard();
}

void MailDraft::discard()
{
    if (!m_sending)
        finish(m_problem.isEmpty() ? ViewController::MailComposeResult::cancelled
                                   : ViewController::MailComposeResult::failed);
}

// What the user has not changed goes out as it was given; what is changed, as the editor writes it.
QString MailDraft::message() const
{
    if (!m_document || !m_document->isModified())
        return html;
    const std::unique_ptr<QTextDocument> copy(m_document->clone());
    copy->setDocumentMargin(m_document->documentMargin()); // else it is written as a table around all
    changeFormats(*copy, [](QTextCharFormat &format) {
        if (!format.hasProperty(ownName))
            return false;
        format.setProperty(QTextFormat::ImageName, format.property(ownName));
        format.clearProperty(ownName);
        return true;
    });
    return isTooLarge() ? QString(copy->toHtml() + html) : copy->toHtml();
}

void MailDraft::heardBack(Sendmail::Outcome outcome, const QString &detail)
{
    if (m_sendmail)
        m_sendmail->deleteLater();
    m_sending = false;
    m_problem = problemOf(outcome);
    m_problemDetail = outcome == Sendmail::Outcome::sent ? QString() : detail;
    Q_EMIT stateChanged();
    if (outcome == Sendmail::Outcome::sent)
        finish(ViewController::MailComposeResult::sent);
}

void MailDraft::finish(ViewController::MailComposeResult result)
{
    if (!std::exchange(m_finished, true))
        Q_EMIT finished(result, m_problem);
}

QString MailDraft::problemOf(Sendmail::Outcome outcome)
{
    switch (outcome) {
    case Sendmail::Outcome::sent:
        break;
    case Sendmail::Outcome::noProgram:
        //: Why a mail was not sent.
        return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "There is no mail program on this device."));
    case Sendmail::Outcome::notSetUp:
        //: Why a mail was not sent.
        return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "The mail program on this device is not set up."));
    case Sendmail::Outcome::unreachable:
        //: Why a mail was not sent.
        return words(QT_TRANSLATE_NOOP("TQFoundationInterface",
                                       "The mail server cannot be reached. Check your connection and try again."));
    case Sendmail::Outcome::rejected:
        //: Why a mail was not sent.
        return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "The mail server did not accept your message."));
    case Sendmail::Outcome::failed:
        //: Why a mail was not sent.
        return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "Your message could not be sent."));
    case Sendmail::Outcome::crashed:
        //: Why a mail was not sent.
        return words(QT_TRANSLATE_NOOP("TQFoundationInterface",
                                       "The mail program stopped unexpectedly. Your message may not have been sent."));
    case Sendmail::Outcome::unanswered:
        //: The user has to know that a further attempt could send the mail twice.
        return words(QT_TRANSLATE_NOOP(
            "TQFoundationInterface",
            "There has been no answer for 30 seconds. Your message may already have been sent; if so, trying again "
            "sends it twice."));
    }
    return {};
}

QString MailDraft::titleText()
{
    //: Title of the sheet in which the user writes a mail.
    return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "New Message"));
}

QString MailDraft::sendingText()
{
    //: Stands in place of the sheet's title while a mail is on its way.
    return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "Sending…"));
}

QString MailDraft::cancelText()
{
    //: Button that closes the sheet without sending the mail.
    return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "Cancel"));
}

QString MailDraft::sendText()
{
    //: Button that sends the mail.
    return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "Send"));
}

QString MailDraft::againText()
{
    //: Button that sends the mail, or loads the page, once more after that failed.
    return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "Try Again"));
}

QString MailDraft::toText()
{
    //: Stands before the address that a mail goes to.
    return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "To:"));
}

QString MailDraft::subjectText()
{
    //: Stands before the subject of a mail.
    return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "Subject:"));
}

QString MailDraft::messageText()
{
    //: What a screen reader calls the field in which the text of a mail is written.
    return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "Message"));
}

QString MailDraft::tooLargeText()
{
    //: Stands below what the user writes in a mail.
    return words(QT_TRANSLATE_NOOP("TQFoundationInterface",
                                   "More text, which is too long to be shown here, is sent along below yours."));
}

QString MailDraft::discardQuestion()
{
    //: Asked before the sheet is closed; answered by "Discard" or "Keep Writing".
    return words(
        QT_TRANSLATE_NOOP("TQFoundationInterface", "Discard this message? What you have written will be lost."));
}

QString MailDraft::discardText()
{
    //: Button that closes the sheet and loses what was written.
    return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "Discard"));
}

QString MailDraft::keepText()
{
    //: Button that leads back to the mail that is being written.
    return words(QT_TRANSLATE_NOOP("TQFoundationInterface", "Keep Writing"));
}

} // namespace TQFoundation
