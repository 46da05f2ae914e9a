#pragma once

#include <QtCore/qbytearray.h>
#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>
#include <QtCore/qstringlist.h>

#include <memory>

class QProcess;

namespace TQFoundation {

class RepeatingTimer;

/// The program called sendmail in the first of \a folders that holds an executable one; empty where none does.
QString sendmailProgram(const QStringList &folders);

/// Hands one message to a sendmail program, which passes it on to whom its header names. Main thread only.
///
/// Nothing waits. A program that has the whole message goes on by itself when this object or the application goes; one
/// that has not is ended with the application, so that no half of a mail is sent.
class Sendmail : public QObject
{
    Q_OBJECT

public:
    enum class Outcome {
        sent, ///< The program has taken charge of the mail.
        noProgram, ///< It could not be started.
        notSetUp, ///< It says that its configuration is missing or wrong.
        unreachable, ///< It says that it cannot reach the server for now.
        rejected, ///< It says that the server does not want this mail or its recipient.
        failed, ///< It gives another reason.
        crashed, ///< It was ended before it was done.
        unanswered ///< It was ended because it was still busy after `patience`: the mail may have gone.
    };
    Q_ENUM(Outcome)

    /// How long the program may take, in seconds.
    static constexpr double patience = 30;

    using QObject::QObject;
    ~Sendmail() override;

    /// Starts \a program and hands it \a message. Call it once.
    void start(const QString &program, const QByteArray &message);

    /// Kills the program and the processes that it has started. finished() is not emitted any more. The mail may
    /// already have been sent.
    void cancel();

Q_SIGNALS:
    /// Comes once, for a program that cannot be started at once. \a detail is what the program itself said last, one
    /// line of plain text, or empty.
    void finished(TQFoundation::Sendmail::Outcome outcome, const QString &detail);

private:
    void finish(Outcome outcome);

    QPointer<QProcess> m_process;
    std::shared_ptr<RepeatingTimer> m_bound;
    QByteArray m_said;
    bool m_finished = false;
};

} // namespace TQFoundation
