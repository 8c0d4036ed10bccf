#include "runtime/saved_file.h"

#include "runtime/run_time_error.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <optional>
#include <utility>

namespace ferna {

namespace {

const QByteArray savingEnding = ".ferna-nowy";

/// A descriptor for the length of a scope.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    explicit operator bool() const { return number_ >= 0; }
    int number() const { return number_; }
    void reset(int number) {
        close();
        number_ = number;
    }
    /// False where the system has something to say at the closing.
    bool close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

private:
    int number_;
};

int errorNumber(int reason) {
    switch (reason) {
    case ENOENT:
    case ENOTDIR:
        return error::PathNotFound;
    case EISDIR:
    case ENXIO:
        return error::PathAccess;
    case EACCES:
    case EPERM:
    case EROFS:
        return error::PermissionDenied;
    case ENOSPC:
    case EDQUOT:
        return error::DiskFull;
    default:
        return error::DeviceIO;
    }
}

[[noreturn]] void refuse(const QByteArray& path, int number, const QString& why) {
    throw RunTimeError(number, QDir::toNativeSeparators(QFile::decodeName(path))
                                   + QStringLiteral(" (") + why + u')');
}

/// `path` as it was given; the reason as the system has it.
[[noreturn]] void fail(const QByteArray& path, int reason = errno) {
    refuse(path, errorNumber(reason), qt_error_string(reason));
}

QByteArray folderOf(const QByteArray& path) {
    const qsizetype slash = path.lastIndexOf('/');
    return slash < 0 ? QByteArray(".") : slash == 0 ? QByteArray("/") : path.first(slash);
}

QByteArray nameOf(const QByteArray& path) {
    return path.mid(path.lastIndexOf('/') + 1);
}

QByteArray hiddenName(const QByteArray& path) {
    constexpr qsizetype longest = 200; // bytes; a file system takes 255
    return folderOf(path) + "/." + nameOf(path).first(qMin(longest, nameOf(path).size()))
           + savingEnding;
}

/// True for what somebody else has left in a folder where everybody may leave something.
bool isStrangers(const QByteArray& folder, const struct stat& info) {
    constexpr mode_t open = S_ISVTX | S_IWOTH;
    struct stat of {};
    return ::stat(folder.constData(), &of) == 0 && (of.st_mode & open) == open
           && info.st_uid != ::geteuid() && info.st_uid != of.st_uid;
}

/// True for a folder of the system's own, whose links are descriptors and no names.
bool isOfProcesses(const QByteArray& folder) {
    struct statfs info {};
    return ::statfs(folder.constData(), &info) == 0 && info.f_type == PROC_SUPER_MAGIC;
}

/// Where a path leads: the symbolic links at its end followed.
QByteArray followed(const QByteArray& given) {
    constexpr int mostLinks = 40;
    QByteArray path = given;
    for (int links = 0; links <= mostLinks; ++links) {
        struct stat info {};
        if (::lstat(path.constData(), &info) != 0 || !S_ISLNK(info.st_mode))
            return path;
        const QByteArray folder = folderOf(path);
        if (isOfProcesses(folder))
            return path;
        if (isStrangers(folder, info))
            refuse(given, error::PermissionDenied,
                   QStringLiteral("to dowiązanie innego użytkownika w folderze wspólnym"));
        char target[PATH_MAX];
        const ssize_t length = ::readlink(path.constData(), target, sizeof target);
        if (length < 0)
            fail(given);
        const QByteArray step(target, length);
        path = step.startsWith('/') ? step : folder + '/' + step;
    }
    fail(given, ELOOP);
}

void writeAll(int file, const QByteArray& bytes, const QByteArray& given) {
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t count =
            ::write(file, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (count < 0 && errno != EINTR)
            fail(given);
        done += qMax<ssize_t>(count, 0);
    }
}

/// A descriptor of this process under the name that the system gives it; -1 for anything else.
int ownDescriptor(const QByteArray& path) {
    bool isNumber = false;
    const int number = nameOf(path).toInt(&isNumber);
    const QString own = QStringLiteral("/proc/%1/fd").arg(::getpid());
    const QString folder = QDir(QFile::decodeName(folderOf(path))).canonicalPath();
    return isNumber && folder == own ? number : -1;
}

/// Writes to what is no plain file, and leaves it what it is.
void writeThrough(const QByteArray& path, const struct stat& info, const QByteArray& bytes,
                  const QByteArray& given) {
    const int own = isOfProcesses(folderOf(path)) ? ownDescriptor(path) : -1;
    if (own >= 0) { // shares the place of writing with the other descriptor
        writeAll(own, bytes, given);
        return;
    }
    if (S_ISBLK(info.st_mode) || S_ISSOCK(info.st_mode))
        refuse(given, error::PathAccess, QStringLiteral("to nie jest zwykły plik"));
    if (S_ISFIFO(info.st_mode) && isStrangers(folderOf(path), info))
        refuse(given, error::PermissionDenied,
               QStringLiteral("to łącze innego użytkownika w folderze wspólnym"));
    // A pipe that nobody reads would be waited for without end.
    Descriptor file(
        ::open(path.constData(), O_WRONLY | O_APPEND | O_NOCTTY | O_CLOEXEC | O_NONBLOCK));
    if (!file && errno == ENXIO)
        refuse(given, error::PathAccess, QStringLiteral("nikt nie czyta z tego łącza"));
    if (!file || ::fcntl(file.number(), F_SETFL, O_APPEND) != 0)
        fail(given);
    writeAll(file.number(), bytes, given);
    if (!file.close())
        fail(given);
}

/// True where the open file still stands under that name.
bool isNamed(int file, const QByteArray& name) {
    struct stat here {};
    struct stat named {};
    return ::fstat(file, &here) == 0 && ::lstat(name.constData(), &named) == 0
           && here.st_ino == named.st_ino;
}

/// Removes a hidden name unless the saving that made it is under way. False where it is.
bool removeLeft(const QByteArray& hidden) {
    const Descriptor left(
        ::open(hidden.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!left && errno == ENOENT)
        return true; // what stands there from now on is the next saving's
    if (left && ::flock(left.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return false;
    if (left && !isNamed(left.number(), hidden))
        return true; // it has got its name in the meantime
    return ::unlink(hidden.constData()) == 0 || errno == ENOENT;
}

/// For another program that saves the same file at the same moment.
class Patience {
public:
    explicit Patience(QByteArray given) : given_(std::move(given)) {}

    void wait() {
        constexpr int most = 1000;
        constexpr useconds_t step = 5000;
        if (++waits_ > most)
            refuse(given_, error::PermissionDenied,
                   QStringLiteral("ten plik zapisuje właśnie inny program"));
        ::usleep(step);
    }

private:
    QByteArray given_;
    int waits_ = 0;
};

/// The bytes of a new file on their way to its name. It is locked as long as it is on its way.
class Saving {
public:
    Saving(QByteArray path, QByteArray given, mode_t mode)
        : path_(std::move(path)), given_(std::move(given)), hidden_(hiddenName(path_)),
          file_(::open(folderOf(path_).constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, mode)) {
        if (!file_ && (errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL))
            openHidden(mode);
        if (!file_)
            fail(given_);
        if (!hasName_)
            ::flock(file_.number(), LOCK_EX | LOCK_NB);
    }
    ~Saving() {
        if (hasName_)
            ::unlink(hidden_.constData());
    }
    Saving(const Saving&) = delete;
    Saving& operator=(const Saving&) = delete;

    void write(const QByteArray& bytes, Lasting lasting) {
        writeAll(file_.number(), bytes, given_);
        if (lasting != Lasting::UntilNextUse && ::fdatasync(file_.number()) != 0
            && !isUnknown(errno))
            fail(given_);
    }

    void setPermissions(mode_t mode) { ::fchmod(file_.number(), mode); }

    /// Gives it its name.
    void install(Lasting lasting) {
        giveHiddenName();
        if (::rename(hidden_.constData(), path_.constData()) != 0)
            fail(given_);
        hasName_ = false;
        if (!file_.close())
            fail(given_);
        if (lasting == Lasting::Kept)
            keepName();
    }

private:
    /// The system does not know the demand, which is no failure of the disk.
    static bool isUnknown(int reason) {
        return reason == EINVAL || reason == EROFS || reason == EOPNOTSUPP;
    }

    /// Where the file system has no files without a name.
    void openHidden(mode_t mode) {
        Patience patience(given_);
        for (;;) {
            constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
            file_.reset(::open(hidden_.constData(), flags, mode));
            if (!file_ && errno != EEXIST)
                fail(given_);
            // Before it was locked it may have been taken for a left one, and be without its name.
            hasName_ =
                file_ && ::flock(file_.number(), LOCK_EX) == 0 && isNamed(file_.number(), hidden_);
            if (hasName_)
                return;
            if (!file_ && !removeLeft(hidden_))
                patience.wait();
        }
    }

    void giveHiddenName() {
        Patience patience(given_);
        const QByteArray unnamed = "/proc/self/fd/" + QByteArray::number(file_.number());
        while (!hasName_) {
            hasName_ = ::linkat(AT_FDCWD, unnamed.constData(), AT_FDCWD, hidden_.constData(),
                                AT_SYMLINK_FOLLOW)
                       == 0;
            if (!hasName_ && errno != EEXIST)
                fail(given_);
            if (!hasName_ && !removeLeft(hidden_))
                patience.wait();
        }
    }

    /// The name itself outlives a power cut only with its folder.
    void keepName() const {
        const Descriptor folder(
            ::open(folderOf(path_).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (folder && ::fsync(folder.number()) != 0 && errno == EIO)
            fail(given_);
    }

    QByteArray path_;
    QByteArray given_;
    QByteArray hidden_;
    Descriptor file_;
    bool hasName_ = false; // the hidden one
};

} // namespace

/// Bytes on their way to a file: to the disk at once, under their name at the end.
class FileAhead::Way {
public:
    Way(const QString& path, const QByteArray& bytes, Lasting lasting)
        : given_(QFile::encodeName(path)), target_(followed(given_)), lasting_(lasting) {
        const bool exists = ::stat(target_.constData(), &info_) == 0;
        if (exists && S_ISDIR(info_.st_mode))
            fail(given_, EISDIR);
        if (exists && (!S_ISREG(info_.st_mode) || isOfProcesses(folderOf(target_)))) {
            through_ = bytes;
            return;
        }
        constexpr mode_t forEverybody = 0666; // less what the user's mask takes
        saving_.emplace(target_, given_, forEverybody);
        saving_->write(bytes, lasting);
        if (exists)
            saving_->setPermissions(info_.st_mode & 0777);
    }

    void install() {
        if (saving_)
            saving_->install(lasting_);
        else
            writeThrough(target_, info_, through_, given_);
    }

private:
    QByteArray given_;
    QByteArray target_;
    Lasting lasting_;
    struct stat info_ {};
    QByteArray through_; // for what is no plain file
    std::optional<Saving> saving_;
};

FileAhead::FileAhead(const QString& path, const QByteArray& bytes)
    : way_(std::make_unique<Way>(path, bytes, Lasting::Whole)) {}
FileAhead::FileAhead(FileAhead&&) noexcept = default;
FileAhead& FileAhead::operator=(FileAhead&&) noexcept = default;
FileAhead::~FileAhead() = default;

void FileAhead::install() {
    way_->install();
}

void writeFileWhole(const QString& path, const QByteArray& bytes, Lasting lasting) {
    FileAhead::Way(path, bytes, lasting).install();
}

QString savingName(const QString& path) {
    return QFile::decodeName(hiddenName(QFile::encodeName(path)));
}

void removeLeftSavings(const QString& folder) {
    const QStringList left = QDir(folder).entryList(
        {QStringLiteral(".*") + QFile::decodeName(savingEnding)}, QDir::Files | QDir::Hidden);
    for (const QString& name : left)
        removeLeft(QFile::encodeName(folder + u'/' + name));
}

} // namespace ferna
