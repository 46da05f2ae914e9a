#pragma once

#include <QtCore/qbytearray.h>
#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>
#include <QtCore/qstringlist.h>

#include <memory>

class QProcess;

namespace TQFoundation {

class RepeatingTimer;

/// The path of the first executable file "sendmail" in \a folders; empty if no folder has one. Any thread.
QString sendmailProgram(const QStringList &folders);

/// Passes one message to a sendmail program, which sends it to the recipients in its header. GUI thread only.
///
/// Asynchronous. If this object or the application is destroyed, a program that has read the whole message continues.
/// Otherwise it is killed with the application, so that no partial mail is sent.
class Sendmail : public QObject
{
    Q_OBJECT

public:
    enum class Outcome {
        sent, ///< The program accepted the mail.
        noProgram, ///< The program could not be started.
        notSetUp, ///< Its configuration is missing or wrong.
        unreachable, ///< The server cannot be reached at the moment.
        rejected, ///< The server rejected this mail or its recipient.
        failed, ///< It exited with another code.
        crashed, ///< It was killed or crashed.
        unanswered ///< It was killed after `timeout`; the mail may have been sent.
    };
    Q_ENUM(Outcome)

    /// The longest run time of the program, in seconds.
    static constexpr double timeout = 30;

    using QObject::QObject;
    ~Sendmail() override;

    /// Starts \a program and writes \a message to its standard input. Call it once.
    void start(const QString &program, const QByteArray &message);

    /// Kills the program and the processes that it has started. finished() is not emitted any more. The mail may
    /// already have been sent.
    void cancel();

Q_SIGNALS:
    /// Emitted once, before start() returns if the program cannot be started. \a detail is the last line that the
    /// program wrote to its standard error: plain text of 300 characters at most, or empty.
    void finished(TQFoundation::Sendmail::Outcome outcome, const QString &detail);

private:
    void finish(Outcome outcome);

    QPointer<QProcess> m_process;
    std::shared_ptr<RepeatingTimer> m_timeout;
    QByteArray m_stderr;
    bool m_finished = false;
};

} // namespace TQFoundation
