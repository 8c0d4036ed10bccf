#pragma once

#include "runtime/passing_folder.h"

#include <QProcess>
#include <QString>

#include <atomic>
#include <memory>

namespace ferna::writer {

/// Process group of the word processor, for the watchdog: 0 where none runs. Set and read in
/// different threads.
class ProcessGroup {
public:
    void set(qint64 leader) { leader_ = leader; }
    /// Kills the whole group.
    void kill() const;

private:
    std::atomic<qint64> leader_{0};
};

/// A hidden word processor of our own, with a profile of its own, that listens on a pipe. To be
/// used in one thread; when that thread or the program ends, the word processor ends too.
class OfficeProcess {
public:
    /// `programFolder` is where its executable lies.
    OfficeProcess(QString programFolder, std::shared_ptr<ProcessGroup> group);
    ~OfficeProcess();
    OfficeProcess(const OfficeProcess&) = delete;
    OfficeProcess& operator=(const OfficeProcess&) = delete;

    /// Starts it. Error 429 where that fails.
    void start();
    /// Waits a moment; false once it has ended. Where it asked for a second start, as it does on a
    /// fresh profile, it gets one, but no more than three in all. Error 429 as above.
    bool stillRunning(int milliseconds);
    /// Waits for the end of its own accord, else kills it; nothing of it is left behind.
    void finish(int milliseconds);

    QString pipe() const { return pipe_; }
    /// A folder for files on their way; gone with the object.
    QString folder() const { return folder_.path(); }

private:
    QString program_;
    QString pipe_;
    PassingFolder folder_;
    std::shared_ptr<ProcessGroup> group_;
    QProcess process_;
    int starts_ = 1;
};

} // namespace ferna::writer
