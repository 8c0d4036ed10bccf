#include "pages/page_painter.h"

#include "pages/drawing.h"

#include <QPainter>

namespace ferna::pages {

namespace {

QPointF units(QPointF mm) {
    return (mm + frameCorner) * drawing::unitsPerMm;
}

void stroke(QPainter& painter, const QLineF& line, double width, Qt::PenCapStyle cap) {
    painter.setPen(QPen(Qt::black, width * drawing::unitsPerMm, Qt::SolidLine, cap));
    painter.drawLine(units(line.p1()), units(line.p2()));
}

} // namespace

void paintPage(QPainter& painter, const Page& page) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    for (const Picture& picture : page.pictures)
        drawing::drawPicture(
            painter, QRectF(units(picture.rect.topLeft()), units(picture.rect.bottomRight())),
            picture.image);
    for (const Line& line : page.lines)
        stroke(painter, line.line, line.width, Qt::SquareCap);
    for (const Text& text : page.texts) {
        painter.setPen(Qt::black);
        painter.setFont(drawing::fontOf(text.height, text.weight));
        painter.drawText(units(text.baseline), text.text);
        if (text.underline)
            stroke(painter, text.underlineRule(), text.underlineWidthMm(), Qt::FlatCap);
    }
}

} // namespace ferna::pages
