#pragma once

#include "runtime/saved_file.h"

#include <QString>

#include <future>

namespace ferna::renderer {

/// The replies of one run. They are written beside the drawing of the pages: waiting for the disk
/// may take longer than the pages.
class Replies {
public:
    /// `folder`: of the job.
    explicit Replies(QString folder) : folder_(std::move(folder)) {}
    Replies(const Replies&) = delete;
    Replies& operator=(const Replies&) = delete;
    ~Replies();

    /// The reply of a failure comes first: it stands also where the run is cut short.
    void failureFirst(int page);

    /// Brings the reply of success to the disk, where it waits. Errors of `writeReply` of the first
    /// one.
    void prepareSuccess(int nextPage);

    /// The run has done its work. Errors of `writeReply`.
    void succeed();

private:
    QString folder_;
    std::future<void> failure_;
    std::future<FileAhead> success_;
};

} // namespace ferna::renderer
