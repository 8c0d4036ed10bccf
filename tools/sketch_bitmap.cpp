// Build tool: turns an SVG sketch into the bitmap that is delivered with the program, 600 dots per
// inch at least, and its vector twin beside it.
//     sketch_bitmap SKETCH.svg WIDTH_MM BITMAP.bmp
// WIDTH_MM is its printed width, which is its natural width for programs that place the file.

#include "runtime/picture_box.h"
#include "runtime/picture_twin.h"
#include "runtime/text_file.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 4) {
        std::fputs("sketch_bitmap: expected SKETCH.svg WIDTH_MM BITMAP.bmp\n", stderr);
        return 2;
    }
    QSvgRenderer sketch(arguments[1]);
    const double widthMm = arguments[2].toDouble();
    if (!sketch.isValid() || widthMm <= 0) {
        std::fprintf(stderr, "sketch_bitmap: cannot draw %s\n", argv[1]);
        return 1;
    }
    const qreal scale = ferna::printRatio(sketch.defaultSize().width(), widthMm);
    QImage picture(sketch.defaultSize() * scale, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    sketch.render(&painter);
    painter.end();
    const int dotsPerMetre = qRound(picture.width() / widthMm * 1000);
    picture.setDotsPerMeterX(dotsPerMetre);
    picture.setDotsPerMeterY(dotsPerMetre);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.convertToFormat(QImage::Format_RGB888).save(&buffer, "BMP");
    try {
        ferna::writeFileWhole(arguments[3], bytes);
        ferna::writeFileWhole(ferna::twinPath(arguments[3]),
                              ferna::twinOf(ferna::readFileWhole(arguments[1]), bytes));
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "sketch_bitmap: %s\n", failure.what());
        return 1;
    }
    return 0;
}
