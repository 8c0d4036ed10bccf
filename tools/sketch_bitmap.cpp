// Build tool: turns an SVG sketch into the bitmap that is delivered with the program.
//     sketch_bitmap SKETCH.svg SCALE WIDTH_MM BITMAP.bmp
// WIDTH_MM is its natural width, for programs that place the file.

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 5) {
        std::fputs("sketch_bitmap: expected SKETCH.svg SCALE WIDTH_MM BITMAP.bmp\n", stderr);
        return 2;
    }
    QSvgRenderer sketch(arguments[1]);
    const int scale = arguments[2].toInt();
    const double widthMm = arguments[3].toDouble();
    if (!sketch.isValid() || scale < 1 || widthMm <= 0) {
        std::fprintf(stderr, "sketch_bitmap: cannot draw %s\n", argv[1]);
        return 1;
    }
    QImage picture(sketch.defaultSize() * scale, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    sketch.render(&painter);
    painter.end();
    const int dotsPerMetre = qRound(picture.width() / widthMm * 1000);
    picture.setDotsPerMeterX(dotsPerMetre);
    picture.setDotsPerMeterY(dotsPerMetre);
    if (!picture.convertToFormat(QImage::Format_RGB888).save(arguments[4], "BMP")) {
        std::fprintf(stderr, "sketch_bitmap: cannot write %s\n", argv[4]);
        return 1;
    }
    return 0;
}
