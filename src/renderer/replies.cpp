#include "renderer/replies.h"

#include "protocol/reply.h"

namespace ferna::renderer {

namespace {

/// On a thread where there is one to be had, else when it is asked for.
constexpr std::launch beside = std::launch::async | std::launch::deferred;

} // namespace

Replies::~Replies() {
    if (failure_.valid())
        failure_.wait(); // without a thread it is written only now
}

void Replies::failureFirst(int page) {
    failure_ = std::async(beside, writeReply, folder_, false, page);
}

void Replies::prepareSuccess(int nextPage) {
    if (failure_.valid())
        failure_.get(); // they take the same name, one after the other
    success_ = std::async(beside, replyAhead, folder_, true, nextPage);
}

void Replies::succeed() {
    success_.get().install();
}

} // namespace ferna::renderer
