#include "runtime/passing_folder.h"

#include "runtime/run_time_error.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

namespace ferna {

namespace {

const QString prefix = QStringLiteral("ferna-");

QStringList foldersLike(const QString& pattern) {
    QStringList paths;
    const QDir all(QDir::tempPath());
    for (const QString& name : all.entryList({pattern}, QDir::Dirs | QDir::NoSymLinks))
        paths += all.filePath(name);
    return paths;
}

/// Descriptor of a folder of the user's own that nobody has locked, locked now; -1 for another.
int lockedFolder(const QString& path) {
    const int folder = ::open(QFile::encodeName(path).constData(),
                              O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    struct stat info {};
    if (folder >= 0 && ::fstat(folder, &info) == 0 && info.st_uid == ::geteuid()
        && ::flock(folder, LOCK_EX | LOCK_NB) == 0)
        return folder;
    if (folder >= 0)
        ::close(folder);
    return -1;
}

/// Those of programs that were killed. A new one may not have its lock yet.
void removeLeftFolders() {
    constexpr int settled = 60; // seconds
    for (const QString& path : foldersLike(prefix + QStringLiteral("*-*-??????"))) {
        if (QFileInfo(path).lastModified().secsTo(QDateTime::currentDateTime()) < settled)
            continue;
        const int lock = lockedFolder(path);
        if (lock < 0)
            continue;
        QDir(path).removeRecursively();
        ::close(lock);
    }
}

QString ownPattern(const QString& purpose) {
    return QStringLiteral("%1%2-%3-").arg(prefix, purpose).arg(::getpid());
}

std::array<int, 2> signalPipe{-1, -1}; // handlers of signals know nothing but this

constexpr std::array signalsOfAnEnd{SIGTERM, SIGHUP, SIGINT};

void tellSignal(int number) {
    const int before = errno;
    const auto byte = static_cast<char>(number);
    (void)!::write(signalPipe[1], &byte, 1);
    errno = before;
}

void killChild(pid_t child) {
    ::kill(::getpgid(child) == child ? -child : child, SIGKILL);
    siginfo_t ended{};
    ::waitid(P_PID, static_cast<id_t>(child), &ended, WEXITED | WNOWAIT);
}

void killChildren() {
    const QDir threads(QStringLiteral("/proc/self/task"));
    for (const QString& thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile children(threads.filePath(thread + QStringLiteral("/children")));
        if (children.open(QIODevice::ReadOnly))
            for (const QByteArray& child : children.readAll().simplified().split(' '))
                if (child.toInt() > 0)
                    killChild(child.toInt());
    }
}

/// The other threads work on meanwhile: what they still make is removed too, and what they have to
/// say about it is not for the user.
void endTidily(int number) {
    const int nobody = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    ::dup2(nobody, STDERR_FILENO);
    QStringList left = foldersLike(ownPattern(QStringLiteral("*")) + u'*');
    constexpr int most = 500;
    for (int round = 0; round < most && (round == 0 || !left.isEmpty()); ++round) {
        killChildren();
        for (const QString& path : left)
            QDir(path).removeRecursively();
        left = foldersLike(ownPattern(QStringLiteral("*")) + u'*');
        ::usleep(left.isEmpty() ? 0 : 1000);
    }
    std::signal(number, SIG_DFL);
    ::kill(::getpid(), number);
}

} // namespace

PassingFolder::PassingFolder(const QString& purpose)
    : folder_(QDir(QDir::tempPath()).filePath(ownPattern(purpose) + QStringLiteral("XXXXXX"))),
      lock_(folder_.isValid() ? lockedFolder(folder_.path()) : -1) {
    if (!folder_.isValid())
        throw RunTimeError(error::PathAccess, folder_.errorString());
    removeLeftFolders();
}

PassingFolder::~PassingFolder() {
    folder_.remove();
    if (lock_ >= 0)
        ::close(lock_);
}

TidyEnd::TidyEnd() {
    if (::pipe2(signalPipe.data(), O_CLOEXEC) != 0)
        throw RunTimeError(error::NoObject, qt_error_string(errno));
    waiting_ = std::thread([reader = signalPipe[0]] {
        char byte = 0;
        while (::read(reader, &byte, 1) == 1 && byte != 0)
            endTidily(byte);
    });
    for (const int number : signalsOfAnEnd) {
        struct sigaction action {};
        if (::sigaction(number, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
            continue;
        action = {};
        action.sa_handler = tellSignal;
        action.sa_flags = SA_RESTART;
        ::sigaction(number, &action, nullptr);
    }
}

TidyEnd::~TidyEnd() {
    for (const int number : signalsOfAnEnd) {
        struct sigaction action {};
        if (::sigaction(number, nullptr, &action) == 0 && action.sa_handler == tellSignal)
            std::signal(number, SIG_DFL);
    }
    tellSignal(0);
    waiting_.join();
    for (int& end : signalPipe)
        ::close(std::exchange(end, -1));
}

void endWithParent(qint64 parent) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent) // it has ended before this was told
        ::_exit(1);
}

} // namespace ferna
