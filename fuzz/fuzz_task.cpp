#include "batch/task_run.h"
#include "fuzzing.h"
#include "report/text_writer.h"

#include <QTimeZone>

using namespace ferna;
using namespace ferna::fuzzing;
using namespace ferna::batch;

namespace {

bool allFinite(const Json& value) {
    if (value.is_number_float())
        return std::isfinite(value.get<double>());
    for (const Json& part : value)
        if (part.is_structured() || part.is_number_float())
            if (!allFinite(part))
                return false;
    return true;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    startQt();
    return 0;
}

// A task of the batch companion, computed whole: refused with the place, or a result without a
// number that is none.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const RunOptions options{
        {}, QStringLiteral(FERNA_DATA_DIR), QDateTime::fromSecsSinceEpoch(0, QTimeZone::utc())};
    try {
        const ComputedTask done = run(readTask(parsed(text)), options);
        const Json result = resultOf(done);
        require(allFinite(result), "every number of a result is finite");
        require(!result.dump(-1, ' ', false, Json::error_handler_t::replace).empty(),
                "a result can be written");
        if (done.reportReady)
            require(!textReport(reportModel(done.task.stan, done.raport)).bytes().isEmpty(),
                    "a computed task has its report");
    } catch (const TaskError& failure) {
        const int line = lineOf(text, failure.path);
        require(line >= 1 && line <= 1 + std::count(text.begin(), text.end(), '\n'),
                "a refusal names a line of the task");
    }
    return 0;
}
