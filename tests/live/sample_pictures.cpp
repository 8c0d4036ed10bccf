#include "live/sample_pictures.h"

#include "design/material_tables.h"

#include <QPainter>

namespace ferna::testing {

namespace {

using live::PictureOptions;
using live::PictureValues;
using live::Theme;

std::vector<std::array<int, 3>> grid(int columns, int rows, int x, int y, int fi) {
    std::vector<std::array<int, 3>> anchors;
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < columns; ++c)
            anchors.push_back({columns == 1 ? 0 : -x + 2 * x * c / (columns - 1),
                               rows == 1 ? 0 : y - 2 * y * r / (rows - 1), fi});
    return anchors;
}

std::vector<std::array<int, 3>> ring(int count, int x, int y, int fi) {
    std::vector<std::array<int, 3>> anchors;
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * Pi * i / count;
        anchors.push_back({static_cast<int>(std::lround(x * std::cos(angle))),
                           static_cast<int>(std::lround(y * std::sin(angle))), fi});
    }
    return anchors;
}

PictureOptions dark() {
    PictureOptions options;
    options.theme = Theme::Dark;
    return options;
}

PictureOptions small() {
    PictureOptions options;
    options.size = {420, 320};
    options.letter = 11;
    return options;
}

PictureOptions greyed() {
    PictureOptions options;
    options.greyed = true;
    options.reason = QStringLiteral("M1 przypadku 1: „12,,5” nie jest liczbą");
    return options;
}

} // namespace

PictureValues valuesOf(const SampleBase& base, int which) {
    constexpr double n = 8;
    const CheckLimits limits{.Rb = 7.1, .fd = 160, .fd2 = 145, .fv = 130};
    PictureValues values;
    values.length = base.length;
    values.width = base.width;
    std::vector<equilibrium::Anchor> anchors;
    for (const auto& [x, y, fi] : base.anchors) {
        const double area = 100 * coreArea(static_cast<Integer>(fi)).value_or(0);
        values.anchors.push_back({double(x), double(y), fi, area});
        anchors.push_back({double(x), double(y), area});
    }
    values.title =
        which == 0 ? QStringLiteral("Obwiednia") : QStringLiteral("Przypadek %1").arg(which);
    if (which > 0) {
        const equilibrium::Load& load = base.loads.at(static_cast<std::size_t>(which - 1));
        values.loads = QStringLiteral("N = %1 kN, M1 = %2 kNm, M2 = %3 kNm")
                           .arg(load.N)
                           .arg(load.M1)
                           .arg(load.M2);
    }
    const equilibrium::Base exact(base.length, base.width, n, anchors);
    for (int c = 1; c <= static_cast<int>(base.loads.size()); ++c)
        if (which == 0 || which == c) {
            const equilibrium::Load& load = base.loads.at(static_cast<std::size_t>(c - 1));
            const equilibrium::Result found = exact.solve(load);
            values.cases.push_back({c, found, utilisation(found, load, {}, limits, anchors)});
        }
    return values;
}

QImage imageOf(const PictureValues& values, const PictureOptions& options, qreal ratio) {
    QImage image((options.size * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    drawPicture(painter, values, options);
    return image;
}

std::vector<SamplePicture> samplePictures() {
    const SampleBase four{
        600, 400, grid(2, 2, 250, 150, 24), {{300, 120, 0}, {300, 40, -35}, {500, 0, 60}}};
    const SampleBase tiny{100, 100, grid(2, 2, 35, 35, 12), {{20, 1.2, 0.4}}};
    const SampleBase one{100, 100, {{-30, 0, 12}}, {{10, 0.5, 0}}};
    const SampleBase tinyFull{100, 100, ring(20, 42, 42, 12), {{20, 1.5, 0.6}}};
    const SampleBase longPlate{
        2000, 300, grid(10, 2, 950, 110, 30), {{400, 500, 20}, {100, -300, 30}}};
    const SampleBase longFew{2000, 300, grid(3, 1, 900, 0, 36), {{400, -400, 0}}};
    const SampleBase square{
        700, 700, ring(12, 290, 290, 30), {{500, 220, 130}, {200, -150, 60}, {800, 30, 20}}};
    const SampleBase full{900, 700, grid(5, 4, 390, 290, 24), {{300, 260, 180}}};
    const SampleBase mixed{
        500, 400, {{-200, 150, 36}, {-200, -150, 36}, {200, 0, 24}, {0, 150, 20}}, {{150, 80, 12}}};
    const SampleBase off{
        400, 300, {{-350, 0, 24}, {160, 110, 24}, {160, -110, 24}}, {{100, 45, 0}}};
    const SampleBase whole{600, 400, grid(2, 2, 250, 150, 24), {{900, 20, 10}}};
    const SampleBase even{600, 400, grid(2, 2, 250, 150, 24), {{900, 0, 0}}};
    const SampleBase lifted{600, 400, grid(2, 2, 250, 150, 24), {{-200, 10, 5}}};
    const SampleBase falls{600, 400, {}, {{100, 40, 10}}};
    const SampleBase tall{300, 1500, grid(2, 6, 110, 690, 24), {{200, 10, 160}}};
    return {{"four", valuesOf(four, 1), {}},
            {"four-dark", valuesOf(four, 1), dark()},
            {"four-envelope", valuesOf(four, 0), {}},
            {"four-envelope-dark", valuesOf(four, 0), dark()},
            {"four-small", valuesOf(four, 2), small()},
            {"four-greyed", valuesOf(four, 1), greyed()},
            {"tiny", valuesOf(tiny, 1), {}},
            {"one", valuesOf(one, 1), {}},
            {"tiny-full", valuesOf(tinyFull, 1), {}},
            {"long", valuesOf(longPlate, 1), {}},
            {"long-envelope", valuesOf(longPlate, 0), {}},
            {"long-few", valuesOf(longFew, 1), {}},
            {"square", valuesOf(square, 1), {}},
            {"square-envelope", valuesOf(square, 0), {}},
            {"full", valuesOf(full, 1), {}},
            {"full-small", valuesOf(full, 1), small()},
            {"mixed", valuesOf(mixed, 1), {}},
            {"off", valuesOf(off, 1), {}},
            {"whole", valuesOf(whole, 1), {}},
            {"even", valuesOf(even, 1), {}},
            {"lifted", valuesOf(lifted, 1), {}},
            {"falls", valuesOf(falls, 1), {}},
            {"tall", valuesOf(tall, 1), {}}};
}

} // namespace ferna::testing
