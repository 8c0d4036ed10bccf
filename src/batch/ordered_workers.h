#pragma once

#include <functional>
#include <string>

namespace ferna::batch {

/// Takes items from `next` until it returns false, turns each into a result on one of `threads`
/// threads, and hands the results to `deliver` in the order of the items. No more than a fixed
/// number of items is under way at once, so the memory does not grow with the stream. `next` and
/// `deliver` are called from one thread at a time. An exception of `work` ends the stream and is
/// thrown here.
void runOrdered(int threads, const std::function<bool(std::string& item)>& next,
                const std::function<std::string(std::string item, long number)>& work,
                const std::function<void(const std::string& result)>& deliver);

} // namespace ferna::batch
