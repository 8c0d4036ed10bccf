#include "runtime/saved_file.h"
#include "runtime/text_file.h"
#include "support/folder.h"
#include "support/run_time_errors.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <functional>

namespace {

int syncFailure = 0; // what the disk answers; 0: it keeps what it got
int syncs = 0;
int folderSyncs = 0;
bool everyFileHasAName = false;       // as on some file systems
std::function<int()> lookAtALeftFile; // what the system answers while another program saves

} // namespace

/// The disk of this test program: takes bytes and may not keep them.
extern "C" int fdatasync(int file) {
    ++syncs;
    if (syncFailure == 0)
        return static_cast<int>(syscall(SYS_fdatasync, file));
    errno = syncFailure;
    return -1;
}

/// The waiting for a name.
extern "C" int fsync(int file) {
    ++folderSyncs;
    return static_cast<int>(syscall(SYS_fsync, file));
}

/// The file system of this test program, with files without a name or without such.
extern "C" int open(const char* path, int flags, ...) {
    if (everyFileHasAName && (flags & O_TMPFILE) == O_TMPFILE) {
        errno = EOPNOTSUPP;
        return -1;
    }
    if (lookAtALeftFile && (flags & O_NOFOLLOW) != 0 && (flags & O_CREAT) == 0)
        return lookAtALeftFile();
    va_list more;
    va_start(more, flags);
    const mode_t mode = va_arg(more, mode_t);
    va_end(more);
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

using namespace ferna;
using namespace ferna::testing;

namespace {

const QString name = QStringLiteral("a.txt");

class SavedFile : public ::testing::Test {
protected:
    ~SavedFile() override {
        syncFailure = 0;
        everyFileHasAName = false;
        lookAtALeftFile = nullptr;
    }

    QByteArray native(const QString& file) const { return QFile::encodeName(folder.path(file)); }

    /// A folder like the one for temporary files: everybody may leave something there.
    QString openFolder() const {
        const QByteArray open = native(QStringLiteral("wspólny"));
        ::mkdir(open.constData(), 0700);
        ::chmod(open.constData(), 01777);
        return QFile::decodeName(open);
    }

    Folder folder;
};

TEST_F(SavedFile, IsNotSavedWhereTheDiskDoesNotKeepIt) {
    const QString path = folder.write(name, "stary");
    syncFailure = EIO;
    const auto failure = errorOf([&] { writeFileWhole(path, "nowy"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), error::DeviceIO);
    EXPECT_TRUE(failure->text().contains(path)) << failure->text().toStdString();
    syncFailure = ENOSPC;
    EXPECT_EQ(errorNumberOf([&] { writeFileWhole(path, "nowy"); }), error::DiskFull);
    EXPECT_EQ(folder.read(name), QByteArray("stary"));
    EXPECT_EQ(folder.names(), QStringList(name));
}

TEST_F(SavedFile, TakesADiskThatKnowsNoWaiting) {
    syncFailure = EINVAL;
    writeFileWhole(folder.path(name), "nowy");
    EXPECT_EQ(folder.read(name), QByteArray("nowy"));
}

TEST_F(SavedFile, OfTheMomentDoesNotWaitForTheDisk) {
    syncs = 0;
    writeFileWhole(folder.path(name), "a", Lasting::UntilNextUse);
    EXPECT_EQ(syncs, 0);
    folderSyncs = 0;
    writeFileWhole(folder.path(name), "b");
    EXPECT_EQ(syncs, 1);
    EXPECT_EQ(folderSyncs, 1) << "its name";
    EXPECT_EQ(folder.read(name), QByteArray("b"));
}

TEST_F(SavedFile, AheadIsOnTheDiskBeforeItTakesItsName) {
    const QString path = folder.write(name, "stary");
    ::chmod(native(name).constData(), 0640);
    syncs = 0;
    folderSyncs = 0;
    FileAhead ahead(path, "nowy");
    EXPECT_EQ(syncs, 1);
    EXPECT_EQ(folder.read(name), QByteArray("stary"));
    ahead.install();
    EXPECT_EQ(folder.read(name), QByteArray("nowy"));
    EXPECT_EQ(QFile::permissions(path) & QFile::ReadOther, QFile::Permissions());
    EXPECT_EQ(syncs, 1);
    EXPECT_EQ(folderSyncs, 0) << "its name is not waited for";
    EXPECT_EQ(folder.names(), QStringList(name));
    syncFailure = EIO;
    EXPECT_EQ(errorNumberOf([&] { FileAhead(path, "inny"); }), error::DeviceIO);
}

TEST_F(SavedFile, AheadThatIsNotWantedAnyMoreLeavesNothing) {
    const QString path = folder.write(name, "stary");
    for (const bool named : {false, true}) {
        everyFileHasAName = named;
        { const FileAhead dropped(path, "nowy"); }
        EXPECT_EQ(folder.read(name), QByteArray("stary"));
        EXPECT_EQ(folder.names(), QStringList(name));
    }
}

TEST_F(SavedFile, AheadOfAPipeIsWrittenWhenItIsWanted) {
    ASSERT_EQ(::mkfifo(native(name).constData(), 0600), 0);
    const int reader = ::open(native(name).constData(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    char read[8] = {};
    FileAhead ahead(folder.path(name), "nowy");
    EXPECT_EQ(::read(reader, read, sizeof read), 0);
    ahead.install();
    EXPECT_EQ(::read(reader, read, sizeof read), 4);
    EXPECT_STREQ(read, "nowy");
    ::close(reader);
}

TEST_F(SavedFile, KeepsThePermissionsOfTheOldOne) {
    const QString path = folder.write(name, "stary");
    ::chmod(native(name).constData(), 0640);
    writeFileWhole(path, "nowy");
    struct stat info {};
    ::stat(native(name).constData(), &info);
    EXPECT_EQ(info.st_mode & 07777, 0640U);
}

TEST_F(SavedFile, GoesWhereItsLinkLeads) {
    folder.write(QStringLiteral("cel.txt"), "stary");
    ASSERT_EQ(::symlink("cel.txt", native(name).constData()), 0);
    writeFileWhole(folder.path(name), "nowy");
    EXPECT_EQ(folder.read(QStringLiteral("cel.txt")), QByteArray("nowy"));
    EXPECT_TRUE(QFileInfo(folder.path(name)).isSymLink());
    ASSERT_EQ(::symlink("kółko", native(QStringLiteral("kółko")).constData()), 0);
    EXPECT_NE(errorNumberOf([&] { writeFileWhole(folder.path(QStringLiteral("kółko")), "x"); }), 0);
}

TEST_F(SavedFile, DoesNotFollowAStrangersLinkInAnOpenFolder) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only the superuser can make a stranger's link";
    constexpr uid_t stranger = 12345;
    const QString open = openFolder();
    const QString mine = folder.write(QStringLiteral("moje.txt"), "moje");
    const QByteArray link = QFile::encodeName(open + QStringLiteral("/raport.txt"));
    ASSERT_EQ(::symlink(QFile::encodeName(mine).constData(), link.constData()), 0);
    ASSERT_EQ(::lchown(link.constData(), stranger, stranger), 0);
    const auto failure = errorOf([&] { writeFileWhole(QFile::decodeName(link), "nowy"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), error::PermissionDenied);
    EXPECT_TRUE(failure->text().contains(QStringLiteral("innego użytkownika")));
    EXPECT_EQ(folder.read(QStringLiteral("moje.txt")), QByteArray("moje"));
    ASSERT_EQ(::lchown(link.constData(), geteuid(), getegid()), 0); // one's own is followed
    writeFileWhole(QFile::decodeName(link), "nowy");
    EXPECT_EQ(folder.read(QStringLiteral("moje.txt")), QByteArray("nowy"));
}

TEST_F(SavedFile, OfADeviceIsWrittenThrough) {
    writeFileWhole(QStringLiteral("/dev/null"), "x");
    struct stat info {};
    ASSERT_EQ(::stat("/dev/null", &info), 0);
    EXPECT_TRUE(S_ISCHR(info.st_mode));
    EXPECT_EQ(errorNumberOf([] { writeFileWhole(QStringLiteral("/dev/full"), "x"); }),
              error::DiskFull);
}

TEST_F(SavedFile, OfADescriptorGoesOnWhereItStands) {
    const int file = ::open(native(name).constData(), O_WRONLY | O_CREAT, 0600);
    ASSERT_EQ(::write(file, "1", 1), 1);
    writeFileWhole(QStringLiteral("/dev/fd/%1").arg(file), "2");
    ASSERT_EQ(::write(file, "3", 1), 1);
    ::close(file);
    EXPECT_EQ(folder.read(name), QByteArray("123"));
}

TEST_F(SavedFile, OfAPipeIsWrittenWhereSomebodyReads) {
    ASSERT_EQ(::mkfifo(native(name).constData(), 0600), 0);
    const auto failure = errorOf([&] { writeFileWhole(folder.path(name), "x"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), error::PathAccess);
    EXPECT_TRUE(failure->text().contains(QStringLiteral("nikt nie czyta")));
    const int reader = ::open(native(name).constData(), O_RDONLY | O_NONBLOCK);
    writeFileWhole(folder.path(name), "xyz");
    char got[4] = {};
    EXPECT_EQ(::read(reader, got, 3), 3);
    EXPECT_STREQ(got, "xyz");
    ::close(reader);
    EXPECT_FALSE(QFileInfo(folder.path(name)).isFile());
}

TEST_F(SavedFile, OfASocketIsRefused) {
    const int made = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{AF_UNIX, {}};
    const QByteArray path = native(QStringLiteral("s"));
    ASSERT_LT(path.size(), qsizetype{sizeof address.sun_path});
    std::copy(path.begin(), path.end(), address.sun_path);
    ASSERT_EQ(::bind(made, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(errorNumberOf([&] { writeFileWhole(folder.path(QStringLiteral("s")), "x"); }),
              error::PathAccess);
    struct stat info {};
    ASSERT_EQ(::stat(path.constData(), &info), 0);
    EXPECT_TRUE(S_ISSOCK(info.st_mode));
    ::close(made);
}

TEST_F(SavedFile, TakesOverTheHiddenNameThatAKillHasLeft) {
    const QString path = folder.path(name);
    const QByteArray hidden = QFile::encodeName(savingName(path));
    for (int round = 0; round < 3; ++round) {
        const int left = ::open(hidden.constData(), O_WRONLY | O_CREAT, 0600);
        ASSERT_EQ(::write(left, "pół", 3), 3);
        ::close(left);
        writeFileWhole(path, "cały");
        EXPECT_EQ(folder.read(name), QByteArray("cały"));
        EXPECT_EQ(folder.names(), QStringList(name));
    }
}

TEST_F(SavedFile, LeavesOnlyWhatIsStillBeingSavedAtTheNextStart) {
    const QString left = savingName(folder.path(QStringLiteral("Ferna.cfg")));
    const QString present = savingName(folder.path(QStringLiteral("W_X.txt")));
    folder.write(QFileInfo(left).fileName(), "pół");
    folder.write(QStringLiteral(".ukryty"), "czyjś");
    const int saving = ::open(QFile::encodeName(present).constData(), O_WRONLY | O_CREAT, 0600);
    ASSERT_EQ(::flock(saving, LOCK_EX), 0);
    removeLeftSavings(folder.path(QStringLiteral(".")));
    EXPECT_EQ(folder.names(),
              QStringList({QFileInfo(present).fileName(), QStringLiteral(".ukryty")}));
    ::close(saving);
    removeLeftSavings(folder.path(QStringLiteral(".")));
    EXPECT_EQ(folder.names(), QStringList(QStringLiteral(".ukryty")));
}

/// On both kinds of file systems.
class SavedFileOfTwo : public SavedFile, public ::testing::WithParamInterface<bool> {};

TEST_P(SavedFileOfTwo, AtOnceIsTheOnesOrTheOthers) {
    everyFileHasAName = GetParam();
    const QByteArray one(100'000, '1');
    const QByteArray other(100'000, '2');
    const QString path = folder.path(name);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    for (int i = 0; i < 200; ++i)
        writeFileWhole(path, child == 0 ? one : other, Lasting::UntilNextUse);
    if (child == 0)
        _exit(0);
    int status = 1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    const QByteArray found = folder.read(name);
    EXPECT_TRUE(found == one || found == other);
    EXPECT_EQ(folder.names(), QStringList(name));
}

/// The other one's saving ends and its next begins between two steps of this one.
TEST_P(SavedFileOfTwo, LeavesTheOthersNextSavingAlone) {
    everyFileHasAName = GetParam();
    const QString path = folder.path(name);
    const QByteArray hidden = QFile::encodeName(savingName(path));
    folder.write(QFileInfo(savingName(path)).fileName(), "drugi");
    int next = -1;
    int looks = 0;
    bool nextIsSaved = false;
    lookAtALeftFile = [&] {
        if (++looks == 1) {
            ::unlink(hidden.constData());
            next = ::open(hidden.constData(), O_WRONLY | O_CREAT, 0600);
            ::flock(next, LOCK_EX);
        } else {
            nextIsSaved = ::rename(hidden.constData(), native(name).constData()) == 0;
            ::close(next);
        }
        errno = ENOENT;
        return -1;
    };
    writeFileWhole(path, "pierwszy");
    EXPECT_EQ(looks, 2);
    EXPECT_TRUE(nextIsSaved);
    EXPECT_EQ(folder.read(name), QByteArray("pierwszy"));
    EXPECT_EQ(folder.names(), QStringList(name));
}

INSTANTIATE_TEST_SUITE_P(FileSystems, SavedFileOfTwo, ::testing::Bool());

TEST_F(SavedFile, IsReplacedOrNotAlsoWhereEveryFileHasAName) {
    everyFileHasAName = true;
    const QString path = folder.write(name, "stary");
    syncFailure = EIO;
    EXPECT_EQ(errorNumberOf([&] { writeFileWhole(path, "nowy"); }), error::DeviceIO);
    EXPECT_EQ(folder.read(name), QByteArray("stary"));
    EXPECT_EQ(folder.names(), QStringList(name));
    syncFailure = 0;
    folder.write(QFileInfo(savingName(path)).fileName(), "pół"); // left by a kill
    writeFileWhole(path, "nowy");
    EXPECT_EQ(folder.read(name), QByteArray("nowy"));
    EXPECT_EQ(folder.names(), QStringList(name));
}

TEST_F(SavedFile, APipeIsNotReadAsAFile) {
    ASSERT_EQ(::mkfifo(native(name).constData(), 0600), 0);
    const auto failure = errorOf([&] { readFileWhole(folder.path(name)); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), error::PathAccess);
    EXPECT_TRUE(failure->text().contains(QStringLiteral("zwykły plik")));
    EXPECT_EQ(errorNumberOf([] { readFileWhole(QStringLiteral("/dev/zero")); }), error::PathAccess);
}

TEST_F(SavedFile, AFileBeyondItsLimitIsNotReadToTheEnd) {
    const QString path = folder.write(name, QByteArray(1000, 'x'));
    EXPECT_EQ(readFileWhole(path, 1000).size(), 1000);
    EXPECT_EQ(errorNumberOf([&] { readFileWhole(path, 999); }), error::DeviceIO);
}

TEST_F(SavedFile, ThatIsReadInPartsComesWholeAndInItsOrder) {
    QByteArray bytes(1'000'000, Qt::Uninitialized);
    for (qsizetype i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i * i / 1000);
    const QString path = folder.write(name, bytes);
    QByteArray read;
    int parts = 0;
    const qsizetype size = readFileInParts(path, [&](QByteArrayView part) {
        read += part;
        ++parts;
    });
    EXPECT_EQ(size, bytes.size());
    EXPECT_TRUE(read == bytes);
    EXPECT_GT(parts, 1);
    const auto nothing = [](QByteArrayView) {};
    EXPECT_EQ(errorNumberOf([&] { readFileInParts(folder.path(QStringLiteral("brak")), nothing); }),
              error::FileNotFound);
    EXPECT_EQ(errorNumberOf([&] { readFileInParts(folder.path(QStringLiteral(".")), nothing); }),
              error::PathAccess);
}

} // namespace
