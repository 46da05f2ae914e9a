#include "Sendmail.h"

#include "LibraryEngine.h"
#include "TQFoundation/Platform.h"

#include <QtCore/qfileinfo.h>
#include <QtCore/qprocess.h>

#include <utility>

#ifdef Q_OS_UNIX
#include <csignal>
#include <unistd.h>
#endif

namespace TQFoundation {
namespace {

// Kills its children too: the rest of a pipeline would pass on half of the message.
void killGroup(QProcess &leader)
{
#ifdef Q_OS_UNIX
    if (leader.processId() > 0)
        ::kill(-static_cast<pid_t>(leader.processId()), SIGKILL);
#endif
    leader.kill();
}

/// Unlike QProcess, leaves the program running on destruction; kills it only if part of the message is unwritten.
class Program final : public QProcess
{
public:
    explicit Program(QObject *parent) : QProcess(parent)
    {
#ifdef Q_OS_UNIX
        setChildProcessModifier([] { ::setpgid(0, 0); });
#endif
    }

    ~Program() override
    {
        if (state() == NotRunning)
            return;
        if (bytesToWrite() > 0) {
            killGroup(*this);
            waitForFinished(1000);
        }
        setProcessState(NotRunning);
    }
};

// The exit codes of sysexits.h, which all sendmail programs use.
Sendmail::Outcome outcomeOf(int exitCode)
{
    switch (exitCode) {
    case 0:
        return Sendmail::Outcome::sent;
    case 64: // EX_USAGE
    case 78: // EX_CONFIG
        return Sendmail::Outcome::notSetUp;
    case 68: // EX_NOHOST
    case 75: // EX_TEMPFAIL
    case 76: // EX_PROTOCOL
        return Sendmail::Outcome::unreachable;
    case 65: // EX_DATAERR
    case 67: // EX_NOUSER
    case 69: // EX_UNAVAILABLE
    case 77: // EX_NOPERM
        return Sendmail::Outcome::rejected;
    default:
        return Sendmail::Outcome::failed;
    }
}

} // namespace

QString sendmailProgram(const QStringList &folders)
{
    for (const QString &folder : folders) {
        const QFileInfo program(folder + u"/sendmail");
        if (!folder.isEmpty() && program.isFile() && program.isExecutable())
            return program.absoluteFilePath();
    }
    return {};
}

Sendmail::~Sendmail()
{
    if (m_timeout)
        m_timeout->invalidate();
}

void Sendmail::start(const QString &program, const QByteArray &message)
{
    auto *process = new Program(applicationScope());
    m_process = process;
    process->setStandardOutputFile(QProcess::nullDevice());
    connect(process, &QProcess::readyReadStandardError, this, [this, process] {
        constexpr qsizetype maximumSize = 4096;
        m_stderr += process->readAllStandardError();
        m_stderr = m_stderr.right(maximumSize);
    });
    connect(process, &QProcess::finished, this, [this](int exitCode, QProcess::ExitStatus status) {
        finish(status == QProcess::NormalExit ? outcomeOf(exitCode) : Outcome::crashed);
    });
    connect(process, &QProcess::errorOccurred, this, [this, process](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        process->deleteLater();
        finish(Outcome::noProgram);
    });
    connect(process, &QProcess::finished, process, &QObject::deleteLater);
    m_timeout = platform().makeTimer(timeout, [this] {
        if (m_process)
            killGroup(*m_process);
        finish(Outcome::unanswered);
    });
    m_timeout->schedule();
    process->start(program, {QStringLiteral("-t"), QStringLiteral("-i")});
    if (process->isOpen()) {
        process->write(message);
        process->closeWriteChannel();
    }
}

void Sendmail::cancel()
{
    m_finished = true;
    m_timeout->invalidate();
    if (m_process)
        killGroup(*m_process);
}

void Sendmail::finish(Outcome outcome)
{
    if (std::exchange(m_finished, true))
        return;
    m_timeout->invalidate();
    QString line = QString::fromLocal8Bit(m_stderr.trimmed());
    line = line.mid(line.lastIndexOf(u'\n') + 1).left(300);
    // Control characters may be commands to a terminal.
    for (QChar &character : line) {
        if (character.category() == QChar::Other_Control)
            character = u' ';
    }
    Q_EMIT finished(outcome, line.trimmed());
}

} // namespace TQFoundation
