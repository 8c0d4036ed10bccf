#include "fuzzing.h"
#include "protocol/job.h"
#include "protocol/renderer_files.h"

using namespace ferna;
using namespace ferna::fuzzing;

// The job file of the renderer: what can be read is written and read again as the same.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Folder& folder = Folder::instance();
    const QString path = folder.write("W_KK.txt", bytesOf(data, size));
    runs([&] {
        const Job job = readJob(path);
        require(job.lineWidthPt > 0 && job.lineWidthPt <= 20, "a line has a width");
        require(!job.bodyPath.isEmpty() && !job.framePath.isEmpty(), "both files have a path");
        require(job.bodyPath.startsWith(u'/'), "a path is absolute");
        writeJob(job.folder, job.mode, job.firstPage);
        const Job again = readJob(job.folder + u'/' + wyd::jobFile);
        require(again.mode == job.mode && again.firstPage == job.firstPage,
                "a job is read as it was written");
    });
    return 0;
}
