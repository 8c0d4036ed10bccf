#include "widgets/notes.h"

#include <QApplication>
#include <QLabel>

namespace ferna {

namespace {

/// Red that reads on a light window and on a dark one.
QColor warningColour(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() > 128 ? QColor(0xa8, 0x10, 0x10)
                                                             : QColor(0xff, 0x8a, 0x80);
}

} // namespace

void showAsWarning(QLabel* label, bool warning) {
    QFont font = label->font();
    font.setBold(warning);
    label->setFont(font);
    QPalette palette = QApplication::palette(label);
    if (warning)
        palette.setColor(QPalette::WindowText, warningColour(palette));
    label->setPalette(palette);
}

} // namespace ferna
