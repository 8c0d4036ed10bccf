#pragma once

#include <functional>
#include <string>

namespace ferna::batch {

/// A stream of items that become results.
struct Stream {
    /// The next item; false where there is none. One thread at a time; may wait as long as it
    /// likes.
    std::function<bool(std::string& item)> next;
    /// The result of an item, which is the `number`-th, from 1. On any thread.
    std::function<std::string(const std::string& item, long number)> work;
    /// Takes the results in the order of the items. One thread at a time.
    std::function<void(const std::string& result)> deliver;
    /// Ends a waiting `next`, from another thread; may be left out where `next` never waits long.
    std::function<void()> cancel = {};
};

/// Runs a stream on `threads` threads. A result goes out as soon as it and those before it are
/// there, also while the next item is waited for. No more than a fixed number of items is under way
/// at once, so the memory does not grow with the stream. An exception of the stream's functions,
/// and a thread that cannot be had, ends it and is thrown here.
void runOrdered(int threads, const Stream& stream);

} // namespace ferna::batch
