#pragma once

#include "Sendmail.h"
#include "TQFoundation/Color.h"
#include "TQFoundation/ViewController.h"

#include <QtCore/qpointer.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquicktextdocument.h>

namespace TQFoundation {

/// The mail that the user edits in the composer's sheet, MailSheet.qml. Sends it through a sendmail program.
///
/// Owned by the composer until the sheet is opened, then by the sheet. GUI thread only.
class MailDraft : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Not for apps: a mail composer makes it.")
    Q_PROPERTY(TQFoundation::Color tint MEMBER tint CONSTANT FINAL)
    Q_PROPERTY(QString recipient READ recipient CONSTANT FINAL)
    Q_PROPERTY(QString subject READ subject WRITE setSubject NOTIFY subjectChanged FINAL)
    Q_PROPERTY(bool hasColors READ hasColors NOTIFY loaded FINAL)
    Q_PROPERTY(bool isHidden READ isHidden CONSTANT FINAL)
    Q_PROPERTY(bool isSending READ isSending NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString problem READ problem NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString problemDetail READ problemDetail NOTIFY stateChanged FINAL)

public:
    using QObject::QObject;

    // The composer sets these before the sheet is opened. Later changes have no effect.

    /// Colour of buttons and selected text. The sheet makes it legible on its background.
    Color tint = Color::systemBlue();

    /// Addresses. Sending fails unless there is exactly one.
    QStringList recipients;

    /// Initial message. Sent unchanged unless the user edits it. Not trusted.
    QString html;

    /// Folders that are searched for sendmail, in this order, at each attempt to send.
    QStringList programFolders;

    /// All recipients, separated by ", ".
    QString recipient() const { return recipients.join(QStringLiteral(", ")); }

    /// The subject as last set. setInitialSubject() does not count as an edit by the user.
    QString subject() const { return m_subject; }
    void setInitialSubject(const QString &subject) { m_subject = subject; }
    void setSubject(const QString &subject);

    /// Whether the message sets text or background colours of its own and therefore needs a white background.
    bool hasColors() const { return m_hasColors; }

    /// Whether laying out the message would block the GUI thread too long, by isCheapToLayOut(). Then it is not shown,
    /// and the text that the user writes is sent before it.
    bool isHidden() const;

    bool isSending() const { return m_state == State::sending; }

    /// Why the last attempt to send failed, for the user; empty if none failed.
    QString problem() const { return m_problem; }

    /// One line by which the mail program explains the problem; may be empty.
    QString problemDetail() const { return m_problemDetail; }

    /// Loads the message into \a editor, whose document is the message from then on. Images and style sheets that the
    /// message refers to are not loaded.
    Q_INVOKABLE void load(QQuickTextDocument *editor);

    /// Replaces the characters from \a start to \a end of the editor by the clipboard's plain text.
    Q_INVOKABLE void paste(int start, int end);

    /// Sends the mail. Does nothing while sending and after finished().
    Q_INVOKABLE void send();

    /// Finishes without sending. Requests a confirmation first if the mail is being sent or was edited by the user.
    Q_INVOKABLE void cancel();

    /// Stops sending, then cancels. Kills the program, so that it does not send half of the message. Does nothing
    /// unless sending.
    Q_INVOKABLE void stopSending();

    /// Finishes without sending: as failed if the last attempt to send failed, else as cancelled. Does nothing while
    /// sending.
    Q_INVOKABLE void discard();

    /// The text that explains \a outcome to the user; empty for Outcome::sent.
    static QString problemOf(Sendmail::Outcome outcome);

Q_SIGNALS:
    /// The user has edited the subject.
    void subjectChanged();

    /// load() has filled the editor.
    void loaded();

    /// Sending has begun or ended.
    void stateChanged();

    /// The sheet has to ask whether the edited mail may be discarded, and to call discard() if so.
    void discardConfirmationRequested();

    /// The sheet has to ask whether to stop sending, and to call stopSending() if so.
    void stopConfirmationRequested();

    /// The user is done with the mail. Emitted once. \a error is the problem() at that time.
    void finished(TQFoundation::ViewController::MailComposeResult result, const QString &error);

private:
    enum class State { editing, sending, finished };

    // Whether the user has changed the message.
    bool isEdited() const { return m_document && m_document->isModified(); }
    // The message as the editor writes it, with the original names of the images.
    QString editedHtml() const;
    void endSending();
    void onSendFinished(Sendmail::Outcome outcome, const QString &detail);
    void finish(ViewController::MailComposeResult result);

    State m_state = State::editing;
    QString m_subject;
    bool m_isSubjectEdited = false;
    bool m_hasColors = false;
    QPointer<QTextDocument> m_document; // the editor's
    QPointer<Sendmail> m_sendmail; // a child of this object; null unless sending
    QString m_problem;
    QString m_problemDetail;
};

} // namespace TQFoundation
