#pragma once

#include "task/task.h"

#include <QDateTime>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace ferna {

/// A task that was kept while it was worked on.
struct KeptTask {
    QString file;
    QDateTime when; ///< of its last keeping
    Task task;
};

/// Keeps the task that is worked on in a folder, so that it is there after any end, and with it the
/// last ten tasks. Every keeping is a file of its own that takes its name whole; the one before it
/// goes only once the new one is on the disk. So a kill loses nothing that was kept and a power cut
/// at most what the disk had not taken, and no keeping waits for the disk.
class KeptTasks {
public:
    static constexpr std::size_t most = 10; ///< tasks

    /// The folder is made with the first keeping.
    explicit KeptTasks(QString folder);
    /// Waits for the disk.
    ~KeptTasks();
    KeptTasks(const KeptTasks&) = delete;
    KeptTasks& operator=(const KeptTasks&) = delete;

    /// Keeps the task's text in place of what was kept of the task before. Errors of
    /// `writeFileWhole`; what was kept before stands then.
    void keep(const std::string& text);

    /// What is kept from now on is another task; the oldest beyond ten go.
    void beginAnother();

    /// The tasks of the folder, the last one first; files that hold no whole task are passed over.
    std::vector<KeptTask> all() const;

private:
    struct Replaced {
        QString now;
        QString before; ///< empty for none
    };
    void settle();
    void prune() const;

    QString folder_;
    QString name_;   ///< of the task, begins with the time of its first keeping
    QString last_;   ///< its newest file
    int number_ = 0; ///< of its keepings
    std::mutex guard_;
    std::condition_variable work_;
    std::deque<Replaced> waiting_;
    bool ends_ = false;
    std::thread settling_;
};

/// What is offered after a start: "Ostatnie zadanie: F-1, 12 kotew, 6 przypadków, dziś 18:32". A
/// task without a label goes by its project, one without either by its plate.
QString offerOf(const KeptTask& kept, const QDateTime& now);

} // namespace ferna
