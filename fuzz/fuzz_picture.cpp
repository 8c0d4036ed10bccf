#include "fuzzing.h"
#include "live/checks_table.h"
#include "live/picture.h"
#include "support/picture_margin.h"
#include "task/task.h"

using namespace ferna;
using namespace ferna::fuzzing;
using namespace ferna::live;
using ferna::testing::staysInside;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    startQt();
    return 0;
}

// A task into the live view: its values, the pictures of its first case and of the envelope, and
// the table of the checks.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    PictureOptions options;
    options.size = {240, 180};
    options.letter = 9;
    options.theme = size % 2 == 0 ? Theme::Light : Theme::Dark;
    try {
        const Task task = readTask(parsed(text));
        const LiveValues values = liveValues(task.stan, task.fields);
        options.reason = values.reason;
        options.greyed = !values.valid();
        for (const int which : {0, 1}) {
            const PictureValues picture = pictureOf(values, which);
            require(!values.valid() || picture.drawable(), "valid values can be drawn");
            require(staysInside(picture, options), "nothing is drawn outside a picture");
        }
        for (const CheckRow& row : checksTable(values, {}))
            for (const CheckCell& cell : row)
                require(!cell.exact.isEmpty() && !cell.words.isEmpty(),
                        "every check says something");
    } catch (const TaskError&) {
        return 0;
    }
    return 0;
}
