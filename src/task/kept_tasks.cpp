#include "task/kept_tasks.h"

#include "runtime/run_time_error.h"
#include "runtime/text_file.h"
#include "task/step_name.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <map>

namespace ferna {

namespace {

constexpr qsizetype largestTask = 1'000'000; // bytes
const QString ending = QStringLiteral(".ferna");

/// "20260312-183207-512-4711.17.ferna" is the keeping 17 of the task "20260312-183207-512-4711".
QString taskNameOf(const QString& file) {
    return QFileInfo(file).fileName().section(u'.', 0, 0);
}

int numberOf(const QString& file) {
    return QFileInfo(file).fileName().section(u'.', 1, 1).toInt();
}

/// The files of each task, the newest keeping first.
std::map<QString, QStringList> filesByTask(const QString& folder) {
    std::map<QString, QStringList> tasks;
    for (const QString& name : QDir(folder).entryList({u'*' + ending}, QDir::Files))
        tasks[taskNameOf(name)] += folder + u'/' + name;
    for (auto& [task, files] : tasks)
        std::sort(files.begin(), files.end(),
                  [](const QString& a, const QString& b) { return numberOf(a) > numberOf(b); });
    return tasks;
}

void bringToDisk(const QString& path) {
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return;
    ::fsync(file);
    ::close(file);
}

std::optional<KeptTask> read(const QString& path) {
    try {
        const QByteArray bytes = readFileWhole(path, largestTask);
        const std::string_view text(bytes.constData(), static_cast<std::size_t>(bytes.size()));
        return KeptTask{path, QFileInfo(path).lastModified(), readTask(parsed(text))};
    } catch (const RunTimeError&) {
    } catch (const TaskError&) {
    }
    return std::nullopt;
}

QString day(const QDateTime& when, const QDateTime& now) {
    const qint64 days = when.date().daysTo(now.date());
    if (days == 0)
        return QStringLiteral("dziś");
    return days == 1 ? QStringLiteral("wczoraj") : when.toString(QStringLiteral("dd.MM.yyyy"));
}

} // namespace

KeptTasks::KeptTasks(QString folder)
    : folder_(std::move(folder)), settling_([this] { settle(); }) {}

KeptTasks::~KeptTasks() {
    {
        const std::lock_guard hold(guard_);
        ends_ = true;
    }
    work_.notify_one();
    settling_.join();
}

void KeptTasks::keep(const std::string& text) {
    const bool isFirst = name_.isEmpty();
    if (isFirst) {
        QDir().mkpath(folder_);
        name_ = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss-zzz-"))
                + QString::number(::getpid());
    }
    const QString file = folder_ + u'/' + name_ + u'.' + QString::number(number_ + 1) + ending;
    try {
        writeFileWhole(file, QByteArray::fromStdString(text), Lasting::UntilNextUse);
    } catch (const RunTimeError&) {
        if (isFirst)
            name_.clear();
        throw;
    }
    ++number_;
    {
        const std::lock_guard hold(guard_);
        waiting_.push_back({file, std::exchange(last_, file)});
    }
    work_.notify_one();
    if (isFirst)
        prune();
}

void KeptTasks::beginAnother() {
    name_.clear();
    last_.clear();
    number_ = 0;
}

/// Runs beside the program: brings each keeping to the disk and removes the one before it.
void KeptTasks::settle() {
    for (;;) {
        std::deque<Replaced> due;
        {
            std::unique_lock hold(guard_);
            work_.wait(hold, [this] { return ends_ || !waiting_.empty(); });
            if (waiting_.empty())
                return;
            due.swap(waiting_);
        }
        bringToDisk(due.back().now);
        bringToDisk(folder_);
        for (const Replaced& one : due)
            if (!one.before.isEmpty())
                QFile::remove(one.before);
    }
}

void KeptTasks::prune() const {
    const std::map<QString, QStringList> tasks = filesByTask(folder_);
    std::size_t tooMany = tasks.size() > most ? tasks.size() - most : 0;
    for (auto task = tasks.begin(); tooMany > 0; ++task, --tooMany)
        for (const QString& file : task->second)
            QFile::remove(file);
}

std::vector<KeptTask> KeptTasks::all() const {
    std::vector<KeptTask> kept;
    for (const auto& [task, files] : filesByTask(folder_))
        for (const QString& file : files)
            if (auto whole = read(file)) {
                kept.push_back(std::move(*whole));
                break;
            }
    std::sort(kept.begin(), kept.end(), [](const KeptTask& a, const KeptTask& b) {
        return a.when == b.when ? a.file > b.file : a.when > b.when;
    });
    return kept;
}

QString offerOf(const KeptTask& kept, const QDateTime& now) {
    const Task& task = kept.task;
    QString name = task.Nazwa_stopy.simplified();
    if (name.isEmpty())
        name = task.fields.txtNaz_proj.simplified();
    if (name.isEmpty())
        name = QStringLiteral("płyta %1 × %2").arg(task.fields.Text3, task.fields.Text4);
    const int cases = task.stan.obciazenia.Liczba_przyp + (addsCase(task) ? 1 : 0);
    return QStringLiteral("Ostatnie zadanie: %1, %2, %3, %4 %5")
        .arg(name,
             counted(task.stan.plyta.Liczba_srub, QStringLiteral("kotwa"), QStringLiteral("kotwy"),
                     QStringLiteral("kotew")),
             counted(cases, QStringLiteral("przypadek"), QStringLiteral("przypadki"),
                     QStringLiteral("przypadków")),
             day(kept.when, now), kept.when.toString(QStringLiteral("hh:mm")));
}

} // namespace ferna
