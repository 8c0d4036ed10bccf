#include "fuzzing.h"
#include "live/checks_table.h"
#include "live/picture.h"
#include "task/task.h"

#include <QPainter>

using namespace ferna;
using namespace ferna::fuzzing;
using namespace ferna::live;

namespace {

constexpr int margin = 40;
const QRgb untouched = qRgb(255, 0, 255);

/// Draws a picture in the middle of a larger image, whose margin it has to leave alone.
void draw(const PictureValues& values, const PictureOptions& options) {
    const QSize size = options.size.toSize();
    QImage image(size + QSize(2 * margin, 2 * margin), QImage::Format_RGB32);
    image.fill(untouched);
    QPainter painter(&image);
    painter.translate(margin, margin);
    drawPicture(painter, values, options);
    painter.end();
    const QRect inside(QPoint(margin, margin), size);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            require(inside.contains(x, y) || image.pixel(x, y) == untouched,
                    "nothing is drawn outside a picture");
}

} // namespace

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
            draw(picture, options);
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
