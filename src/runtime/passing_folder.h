#pragma once

#include <QString>
#include <QTemporaryDir>

#include <thread>

namespace ferna {

/// A folder for files on their way, in the system's folder for temporary files; gone with the
/// object, at a signal that `TidyEnd` sees, or, after a kill, when the next one is made.
class PassingFolder {
public:
    /// `purpose`: a word for the folder's name. Error 75 where there can be none.
    explicit PassingFolder(const QString& purpose);
    ~PassingFolder();
    PassingFolder(const PassingFolder&) = delete;
    PassingFolder& operator=(const PassingFolder&) = delete;

    QString path() const { return folder_.path(); }
    QString filePath(const QString& name) const { return folder_.filePath(name); }

private:
    QTemporaryDir folder_;
    int lock_; // held as long as the folder is in use
};

/// As long as it lives, the end by SIGTERM, SIGHUP or SIGINT is a tidy one: the programs that this
/// one has started are killed, its passing folders removed, then the signal does its work. A signal
/// that is ignored stays so. One of them in a program, made before other threads.
class TidyEnd {
public:
    TidyEnd();
    ~TidyEnd();
    TidyEnd(const TidyEnd&) = delete;
    TidyEnd& operator=(const TidyEnd&) = delete;

private:
    std::thread waiting_;
};

/// In a child between its start and its program: ends it with the program that has started it.
/// `parent`: the process that has.
void endWithParent(qint64 parent);

} // namespace ferna
