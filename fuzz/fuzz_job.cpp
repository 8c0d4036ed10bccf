#include "fuzzing.h"
#include "renderer/job.h"
#include "runtime/text_file.h"

using namespace ferna;
using namespace ferna::fuzzing;

// The job file of the renderer.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString path = Folder::instance().write("W_KK.txt", bytesOf(data, size));
    runs([&] {
        const renderer::Job job = renderer::readJob(path);
        require(job.lineWidthPt > 0 && job.lineWidthPt <= 20, "a line has a width");
        require(!job.bodyPath.isEmpty() && !job.framePath.isEmpty(), "both files have a path");
        require(job.bodyPath.startsWith(u'/'), "a path is absolute");
    });
    return 0;
}
