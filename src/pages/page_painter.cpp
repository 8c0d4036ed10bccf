#include "pages/page_painter.h"

#include "pages/drawing.h"

#include <QPainter>

namespace ferna::pages {

namespace {

QPointF inUnits(QPointF mm) {
    return (mm + frameCorner) * drawing::unitsPerMm;
}

void stroke(QPainter& painter, const QLineF& line, double width, Qt::PenCapStyle cap) {
    painter.setPen(QPen(Qt::black, width * drawing::unitsPerMm, Qt::SolidLine, cap));
    painter.drawLine(inUnits(line.p1()), inUnits(line.p2()));
}

void paintPicture(QPainter& painter, const Picture& picture) {
    const QRectF target(inUnits(picture.rect.topLeft()), inUnits(picture.rect.bottomRight()));
    if (picture.outlines.empty()) {
        drawing::drawPicture(painter, target, picture.image);
        return;
    }
    const QTransform inUnits = QTransform::fromTranslate(frameCorner.x(), frameCorner.y())
                               * QTransform::fromScale(drawing::unitsPerMm, drawing::unitsPerMm);
    for (const Outline& outline : picture.outlines)
        painter.fillPath(inUnits.map(picture.placed(outline)), outline.colour);
}

} // namespace

void paintPage(QPainter& painter, const Page& page) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    for (const Picture& picture : page.pictures)
        paintPicture(painter, picture);
    for (const Line& line : page.lines)
        stroke(painter, line.line, line.width, Qt::SquareCap);
    for (const Text& text : page.texts) {
        painter.setPen(Qt::black);
        painter.setFont(drawing::fontOf(text.height, text.weight));
        painter.drawText(inUnits(text.baseline), text.text);
        if (text.underline)
            stroke(painter, text.underlineRule(), text.underlineWidthMm(), Qt::FlatCap);
    }
}

} // namespace ferna::pages
