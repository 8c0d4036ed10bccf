#include "sheet/plate_picture.h"

#include "live/picture.h"

#include <QPainter>

namespace ferna::sheet {

namespace {

live::PictureWords wordsOf(const Texts& text) {
    live::PictureWords words;
    words.pressure = text(QStringLiteral("picture.pressure"));
    words.neutralLine = text(QStringLiteral("picture.line"));
    words.tippingAxis = text(QStringLiteral("picture.axis"));
    words.governingAnchor = text(QStringLiteral("picture.anchor"));
    words.governingCorner = text(QStringLiteral("picture.corner"));
    words.noPressure = text(QStringLiteral("picture.noPressure"));
    words.noEquilibrium = text(QStringLiteral("picture.noEquilibrium"));
    words.checks = {text(QStringLiteral("summary.concrete")),
                    text(QStringLiteral("summary.tension")), text(QStringLiteral("summary.shear")),
                    text(QStringLiteral("summary.interaction"))};
    words.inCase = text(QStringLiteral("picture.inCase"));
    words.above = text(QStringLiteral("picture.above"));
    words.view = QString();
    return words;
}

live::PictureValues baseOf(const Maker& maker) {
    live::PictureValues values;
    values.length = maker.at(0, QStringLiteral("L"))->value;
    values.width = maker.at(0, QStringLiteral("B"))->value;
    const Plyta_i_kotwy& plate = maker.entered().plate;
    for (std::size_t i = 0; i < maker.anchors.size(); ++i)
        values.anchors.push_back({maker.anchors[i].x, maker.anchors[i].y,
                                  plate.Fi_kotwy(static_cast<int>(i) + 1), maker.anchors[i].area});
    return values;
}

/// The picture in a document: its letters are those of the texts around it.
Picture drawn(const live::PictureValues& values, const Texts& text, double width, double height) {
    constexpr double unitsPerMm = 10;
    constexpr double letter = 21; // units: 6 pt
    live::PictureOptions options;
    options.size = QSizeF(width, height) * unitsPerMm;
    options.letter = letter;
    options.words = wordsOf(text);
    return {width, height, std::make_shared<const Painting>([values, options](QPainter& painter) {
                painter.scale(1 / unitsPerMm, 1 / unitsPerMm);
                live::drawPicture(painter, values, options);
            })};
}

} // namespace

Picture platePicture(const Maker& maker) {
    live::PictureValues values = baseOf(maker);
    values.title = maker.text()(QStringLiteral("picture.plate"));
    constexpr double width = 88; // mm
    constexpr double height = 66;
    return drawn(values, maker.text(), width, height);
}

Picture pressurePicture(const Maker& maker, const CaseSheet& one) {
    live::PictureValues values = baseOf(maker);
    values.title = maker.text()(QStringLiteral("case.heading"), {QString::number(one.number)});
    if (const auto& found = maker.entered().equilibrium(one.number))
        values.cases.push_back({one.number, *found, one.exactUse});
    constexpr double width = 80; // mm
    constexpr double height = 62;
    return drawn(values, maker.text(), width, height);
}

} // namespace ferna::sheet
