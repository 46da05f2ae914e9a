#pragma once

#include "Sendmail.h"
#include "TQFoundation/Color.h"
#include "TQFoundation/ViewController.h"

#include <QtCore/qpointer.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquicktextdocument.h>

#include <memory>

namespace TQFoundation {

/// The mail that the user writes, as the composer's sheet MailSheet.qml shows it, and its way out.
class MailDraft : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A mail composer makes it.")
    Q_PROPERTY(TQFoundation::Color tint MEMBER tint CONSTANT FINAL)
    Q_PROPERTY(QString recipient READ recipientText CONSTANT FINAL)
    Q_PROPERTY(QString subject READ subject WRITE setSubject NOTIFY subjectChanged FINAL)
    Q_PROPERTY(bool hasColors READ hasColors NOTIFY filled FINAL)
    Q_PROPERTY(bool isTooLarge READ isTooLarge CONSTANT FINAL)
    Q_PROPERTY(bool isSending READ isSending NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString problem READ problem NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString problemDetail READ problemDetail NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString titleText READ titleText CONSTANT FINAL)
    Q_PROPERTY(QString sendingText READ sendingText CONSTANT FINAL)
    Q_PROPERTY(QString cancelText READ cancelText CONSTANT FINAL)
    Q_PROPERTY(QString sendText READ sendText CONSTANT FINAL)
    Q_PROPERTY(QString againText READ againText CONSTANT FINAL)
    Q_PROPERTY(QString toText READ toText CONSTANT FINAL)
    Q_PROPERTY(QString subjectText READ subjectText CONSTANT FINAL)
    Q_PROPERTY(QString messageText READ messageText CONSTANT FINAL)
    Q_PROPERTY(QString tooLargeText READ tooLargeText CONSTANT FINAL)
    Q_PROPERTY(QString discardQuestion READ discardQuestion CONSTANT FINAL)
    Q_PROPERTY(QString discardText READ discardText CONSTANT FINAL)
    Q_PROPERTY(QString keepText READ keepText CONSTANT FINAL)

public:
    using QObject::QObject;

    Color tint = Color::systemBlue();
    QStringList recipients;
    QString html; ///< what the message begins with
    QStringList programFolders; ///< where to look for sendmail

    QString recipientText() const { return recipients.join(QStringLiteral(", ")); }

    /// The subject as it was given, until the user changes it.
    QString subject() const { return m_subject; }
    void begin(const QString &subject) { m_subject = subject; }
    void setSubject(const QString &subject);

    /// Whether the message says itself what it is painted in, so that its ground has to be white.
    bool hasColors() const { return m_hasColors; }

    /// Whether the message would take the editor too long to lay out. It is not shown then, and what the user writes
    /// goes before it.
    bool isTooLarge() const;

    bool isSending() const { return m_sending; }

    /// Why the last attempt to send failed, in words for the user; empty while none did.
    QString problem() const { return m_problem; }

    /// What the mail program said of it; may be empty.
    QString problemDetail() const { return m_problemDetail; }

    /// Shows the message in a rich text editor, which from then on holds it. Nothing that it refers to is loaded: no
    /// image, no style sheet.
    Q_INVOKABLE void fill(QQuickTextDocument *editor);

    /// Replaces what is between \a start and \a end in the editor with the clipboard's text, which brings no images or
    /// styles along.
    Q_INVOKABLE void paste(int start, int end);

    /// Sends the mail. Does nothing while it is being sent.
    Q_INVOKABLE void send();

    /// Gives the mail up, or asks first where the user has changed it. Does nothing while it is being sent.
    Q_INVOKABLE void cancel();

    /// Gives the mail up.
    Q_INVOKABLE void discard();

    /// Why sending ended like this, in words for the user; empty for a mail that was sent.
    static QString problemOf(Sendmail::Outcome outcome);

    static QString titleText();
    static QString sendingText();
    static QString cancelText();
    static QString sendText();
    static QString againText();
    static QString toText();
    static QString subjectText();
    static QString messageText();
    static QString tooLargeText();
    static QString discardQuestion();
    static QString discardText();
    static QString keepText();

Q_SIGNALS:
    void subjectChanged();
    void filled();
    void stateChanged();

    /// The user is to be asked whether the changed mail may be given up.
    void discardQuestioned();

    /// The user is done with the mail. Comes once.
    void finished(TQFoundation::ViewController::MailComposeResult result, const QString &error);

private:
    QString message() const;
    void heardBack(Sendmail::Outcome outcome, const QString &detail);
    void finish(ViewController::MailComposeResult result);

    QString m_subject;
    bool m_subjectChanged = false;
    bool m_hasColors = false;
    QPointer<QTextDocument> m_document; // the editor's
    QPointer<Sendmail> m_sendmail;
    bool m_sending = false;
    bool m_finished = false;
    QString m_problem;
    QString m_problemDetail;
};

} // namespace TQFoundation
