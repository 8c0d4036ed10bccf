#include "desktop/writer/office_process.h"
#include "desktop/writer/uno_document.h"
#include "runtime/run_time_error.h"

#include <condition_variable>
#include <functional>
#include <future>
#include <mutex>
#include <thread>

namespace ferna::writer {

namespace {

constexpr std::chrono::seconds killLimit{10}; // for a call to come back once its process is dead
constexpr std::chrono::seconds endLimit{20};

/// The thread in which the word processor is spoken to, with the jobs that wait for it.
class Worker {
public:
    using Job = std::packaged_task<void(UnoDocument&)>;

    std::future<void> post(std::function<void(UnoDocument&)> call) {
        Job job(std::move(call));
        std::future<void> done = job.get_future();
        {
            const std::lock_guard lock(mutex_);
            job_ = std::move(job);
        }
        wake_.notify_one();
        return done;
    }

    /// Does the jobs as they come, up to the last one. All of the word processor's side lives and
    /// dies in the thread that runs this.
    void run(const WordProcessorPlace& place, std::shared_ptr<ProcessGroup> group) {
        UnoDocument document(place, std::move(group));
        while (!last_) {
            std::unique_lock lock(mutex_);
            wake_.wait(lock, [this] { return job_.valid(); });
            Job job = std::move(job_);
            lock.unlock();
            job(document);
        }
    }

    /// The job under way is the last one.
    void makeLast() { last_ = true; }

private:
    std::mutex mutex_;
    std::condition_variable wake_;
    Job job_; // one at a time: the caller waits for it
    bool last_ = false;
};

/// The word processor behind a thread of its own and a watchdog: the caller waits for each call,
/// but not for ever. A word processor that does not answer is killed, and the call with it.
class GuardedWriter : public WordProcessor {
public:
    explicit GuardedWriter(const WordProcessorPlace& place)
        : place_(place), group_(std::make_shared<ProcessGroup>()),
          worker_(std::make_shared<Worker>()),
          thread_([place, worker = worker_, group = group_] { worker->run(place, group); }) {}

    ~GuardedWriter() override {
        // A thread that would not come back even from a killed process is left to itself; the
        // worker is its own then.
        const auto ended = worker_->post([worker = worker_.get()](UnoDocument& document) {
            worker->makeLast();
            document.end();
        });
        bool back = !stuck_ && ended.wait_for(endLimit) == std::future_status::ready;
        if (!back) {
            group_->kill();
            back = ended.wait_for(killLimit) == std::future_status::ready;
        }
        if (back)
            thread_.join();
        else
            thread_.detach();
    }
    GuardedWriter(const GuardedWriter&) = delete;
    GuardedWriter& operator=(const GuardedWriter&) = delete;

    void getOrCreate() override {
        call([](UnoDocument& document) { document.connect(); },
             place_.startLimit + place_.callLimit);
    }
    void Documents_Add() override {
        call([](UnoDocument& document) { document.add(); });
    }
    void Documents_Open(const QString& FileName) override {
        call([FileName](UnoDocument& document) { document.openFile(FileName); });
    }
    void InsertAfter(const QString& Text) override {
        call([Text](UnoDocument& document) { document.insertAfter(Text); });
    }
    void AddPicture(const QString& FileName, bool /*LinkToFile*/,
                    bool /*SaveWithDocument*/) override {
        call([FileName](UnoDocument& document) { document.addPicture(FileName); });
    }
    void IncrementTop(const QString& name, int shift) override {
        call([name, shift](UnoDocument& document) { document.move(name, 0, shift); });
    }
    void IncrementLeft(const QString& name, int shift) override {
        call([name, shift](UnoDocument& document) { document.move(name, shift, 0); });
    }
    void GoTo(std::optional<int> /*what*/, std::optional<int> /*which*/, int /*Count*/) override {
        // Its result is a place that nobody asks for.
    }
    void SaveAs(const QString& FileName) override {
        call([FileName](UnoDocument& document) { document.saveAs(FileName); });
    }
    void Close() override {
        call([](UnoDocument& document) { document.close(); });
    }

private:
    void call(std::function<void(UnoDocument&)> function) {
        call(std::move(function), place_.callLimit);
    }

    void call(std::function<void(UnoDocument&)> function, std::chrono::milliseconds limit) {
        if (stuck_)
            noAnswer();
        std::future<void> done = worker_->post(std::move(function));
        if (done.wait_for(limit) == std::future_status::ready)
            return done.get();
        group_->kill();
        stuck_ = done.wait_for(killLimit) != std::future_status::ready;
        noAnswer();
    }

    [[noreturn]] static void noAnswer() {
        throw RunTimeError(error::NoObject, QStringLiteral("LibreOffice Writer nie odpowiada"));
    }

    WordProcessorPlace place_;
    std::shared_ptr<ProcessGroup> group_;
    std::shared_ptr<Worker> worker_;
    std::thread thread_;
    bool stuck_ = false; // the thread has not come back from a call
};

} // namespace

} // namespace ferna::writer

extern "C" Q_DECL_EXPORT ferna::WordProcessor*
ferna_word_processor(const ferna::WordProcessorPlace& place) {
    return new ferna::writer::GuardedWriter(place);
}
