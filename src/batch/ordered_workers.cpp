#include "batch/ordered_workers.h"

#include <condition_variable>
#include <exception>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

namespace ferna::batch {

namespace {

/// What the threads share. Items are numbered from 1 in the order of the stream.
struct Shared {
    std::mutex mutex;
    std::condition_variable delivered;
    std::map<long, std::string> finished; // results that wait for an earlier one
    long taken = 0;
    long nextToDeliver = 1;
    bool ended = false;
    std::exception_ptr failure;
};

constexpr long itemsUnderWayPerThread = 32;

} // namespace

void runOrdered(int threads, const std::function<bool(std::string& item)>& next,
                const std::function<std::string(std::string item, long number)>& work,
                const std::function<void(const std::string& result)>& deliver) {
    Shared shared;
    const long window = itemsUnderWayPerThread * threads;

    const auto worker = [&] {
        std::unique_lock lock(shared.mutex);
        for (;;) {
            shared.delivered.wait(lock, [&] {
                return shared.ended || shared.taken - shared.nextToDeliver + 1 < window;
            });
            std::string item;
            if (shared.ended || !next(item)) {
                shared.ended = true;
                shared.delivered.notify_all();
                return;
            }
            const long number = ++shared.taken;
            lock.unlock();
            std::string result = work(std::move(item), number);
            lock.lock();
            shared.finished.emplace(number, std::move(result));
            while (!shared.finished.empty()
                   && shared.finished.begin()->first == shared.nextToDeliver) {
                deliver(shared.finished.begin()->second);
                shared.finished.erase(shared.finished.begin());
                ++shared.nextToDeliver;
            }
            shared.delivered.notify_all();
        }
    };
    const auto guarded = [&] {
        try {
            worker();
        } catch (...) {
            const std::lock_guard lock(shared.mutex);
            if (!shared.failure)
                shared.failure = std::current_exception();
            shared.ended = true;
            shared.delivered.notify_all();
        }
    };

    {
        std::vector<std::jthread> team;
        for (int i = 1; i < threads; ++i)
            team.emplace_back(guarded);
        guarded();
    }
    if (shared.failure)
        std::rethrow_exception(shared.failure);
}

} // namespace ferna::batch
