#include "batch/ordered_workers.h"

#include <condition_variable>
#include <exception>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

namespace ferna::batch {

namespace {

constexpr long itemsUnderWayPerThread = 32;

/// What the threads share. Items are numbered from 1 in the order of the stream.
class Crew {
public:
    Crew(int threads, const Stream& stream)
        : stream_(stream), window_(itemsUnderWayPerThread * threads) {}

    /// What each thread does: takes items and works on them until there are no more.
    void work() {
        try {
            std::string item;
            for (long number = take(item); number != 0; number = take(item))
                hand(number, stream_.work(item, number));
        } catch (...) {
            fail(std::current_exception());
        }
    }

    /// Ends the stream; a thread that waits for input comes back.
    void fail(std::exception_ptr failure) {
        {
            const std::lock_guard lock(mutex_);
            if (!failure_)
                failure_ = std::move(failure);
            ended_ = true;
        }
        delivered_.notify_all();
        if (stream_.cancel)
            stream_.cancel();
    }

    void rethrow() const {
        if (failure_)
            std::rethrow_exception(failure_);
    }

private:
    /// Waits for the next item, but never with what the others need for their results. 0 at the
    /// end.
    long take(std::string& item) {
        const std::lock_guard turn(input_);
        {
            std::unique_lock lock(mutex_);
            delivered_.wait(lock,
                            [this] { return ended_ || taken_ - nextToDeliver_ + 1 < window_; });
            if (ended_)
                return 0;
        }
        const bool more = stream_.next(item);
        const std::lock_guard lock(mutex_);
        ended_ = ended_ || !more;
        delivered_.notify_all();
        return ended_ ? 0 : ++taken_;
    }

    void hand(long number, std::string result) {
        const std::lock_guard lock(mutex_);
        if (number == nextToDeliver_) { // mostly
            deliver(result);
        } else {
            finished_.emplace(number, std::move(result));
        }
        while (!finished_.empty() && finished_.begin()->first == nextToDeliver_) {
            deliver(finished_.begin()->second);
            finished_.erase(finished_.begin());
        }
        delivered_.notify_all();
    }

    void deliver(const std::string& result) {
        if (!failure_)
            stream_.deliver(result);
        ++nextToDeliver_;
    }

    const Stream& stream_;
    const long window_;
    std::mutex input_; // held by the thread whose turn it is to read, before the other one
    std::mutex mutex_; // of everything below
    std::condition_variable delivered_;
    std::map<long, std::string> finished_; // results that wait for an earlier one
    long taken_ = 0;
    long nextToDeliver_ = 1;
    bool ended_ = false;
    std::exception_ptr failure_;
};

} // namespace

void runOrdered(int threads, const Stream& stream) {
    Crew crew(threads, stream);
    {
        std::vector<std::jthread> team;
        try {
            for (int i = 1; i < threads; ++i)
                team.emplace_back([&crew] { crew.work(); });
        } catch (...) { // no more threads to be had
            crew.fail(std::current_exception());
        }
        crew.work();
    }
    crew.rethrow();
}

} // namespace ferna::batch
