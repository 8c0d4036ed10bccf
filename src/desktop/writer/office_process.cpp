#include "desktop/writer/office_process.h"

#include "desktop/word_processor.h"
#include "runtime/run_time_error.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QUrl>
#include <QUuid>

#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>

namespace ferna::writer {

namespace {

constexpr int startAgain = 81; // exit code of a first start on a fresh profile
constexpr int mostStarts = 3;

/// Writing to a word processor that has gone is an error of the call, not the end of the program.
void outliveBrokenConnections() {
    struct sigaction now {};
    if (::sigaction(SIGPIPE, nullptr, &now) == 0 && now.sa_handler == SIG_DFL)
        std::signal(SIGPIPE, SIG_IGN);
}

} // namespace

void ProcessGroup::kill() const {
    if (const qint64 leader = leader_; leader > 0)
        ::kill(static_cast<pid_t>(-leader), SIGKILL);
}

OfficeProcess::OfficeProcess(QString programFolder, std::shared_ptr<ProcessGroup> group)
    : program_(programFolder + QStringLiteral("/soffice.bin")),
      pipe_(QStringLiteral("ferna%1-").arg(::getpid())
            + QUuid::createUuid().toString(QUuid::Id128)),
      folder_(QStringLiteral("dokument")), group_(std::move(group)) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("SAL_USE_VCLPLUGIN"), QStringLiteral("svp"));
    // Its temporary files go with ours, also where it is killed.
    environment.insert(QStringLiteral("TMPDIR"), folder_.path());
    process_.setProcessEnvironment(environment);
    process_.setWorkingDirectory(folder_.path());
    process_.setStandardInputFile(QProcess::nullDevice());
    process_.setStandardOutputFile(QProcess::nullDevice());
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.setChildProcessModifier([] {
        ::setsid();
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    });
}

OfficeProcess::~OfficeProcess() {
    finish(0);
}

void OfficeProcess::start() {
    if (!QFile::exists(program_))
        noWordProcessor(QStringLiteral("brak programu ") + program_);
    const QString profile = QUrl::fromLocalFile(folder_.filePath(QStringLiteral("profil")))
                                .toString(QUrl::FullyEncoded);
    outliveBrokenConnections();
    process_.start(program_, {QStringLiteral("--headless"), QStringLiteral("--invisible"),
                              QStringLiteral("--norestore"), QStringLiteral("--nologo"),
                              QStringLiteral("--nodefault"), QStringLiteral("--nofirststartwizard"),
                              QStringLiteral("--accept=pipe,name=%1;urp;").arg(pipe_),
                              QStringLiteral("-env:UserInstallation=") + profile});
    if (!process_.waitForStarted(-1))
        throw RunTimeError(error::NoObject,
                           program_ + QStringLiteral(": ") + process_.errorString());
    group_->set(process_.processId());
}

bool OfficeProcess::stillRunning(int milliseconds) {
    if (process_.state() == QProcess::Running && !process_.waitForFinished(milliseconds))
        return true;
    group_->set(0);
    if (process_.exitStatus() != QProcess::NormalExit || process_.exitCode() != startAgain)
        return false;
    if (++starts_ > mostStarts)
        throw RunTimeError(
            error::NoObject,
            program_ + QStringLiteral(" po %1 uruchomieniach prosi o następne").arg(mostStarts));
    start();
    return true;
}

void OfficeProcess::finish(int milliseconds) {
    if (process_.state() != QProcess::NotRunning
        && (milliseconds == 0 || !process_.waitForFinished(milliseconds))) {
        group_->kill();
        process_.waitForFinished(-1);
    }
    group_->set(0);
    QFile::remove(QStringLiteral("/tmp/OSL_PIPE_%1_%2").arg(::getuid()).arg(pipe_));
}

} // namespace ferna::writer
