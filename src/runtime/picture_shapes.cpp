#include "runtime/picture_shapes.h"

#include <QXmlStreamWriter>

namespace ferna {

namespace {

QString number(qreal value) {
    constexpr int decimals = 3;
    return QString::number(value, 'f', decimals);
}

QString pair(qreal x, qreal y) {
    return number(x) + u' ' + number(y);
}

QString dataOf(const QPainterPath& path) {
    QStringList data;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        if (e.type == QPainterPath::MoveToElement)
            data += QStringLiteral("M ") + pair(e.x, e.y);
        else if (e.type == QPainterPath::LineToElement)
            data += QStringLiteral("L ") + pair(e.x, e.y);
        else if (e.type == QPainterPath::CurveToElement)
            data += QStringLiteral("C ") + pair(e.x, e.y);
        else
            data += pair(e.x, e.y);
    }
    return data.join(u' ');
}

void writeStroke(QXmlStreamWriter& xml, const QPen& pen) {
    if (pen.style() == Qt::NoPen)
        return;
    const auto put = [&xml](const char* name, const QString& value) {
        xml.writeAttribute(QLatin1String(name), value);
    };
    put("stroke", pen.color().name());
    put("stroke-width", number(pen.widthF()));
    put("stroke-linecap", QStringLiteral("butt"));
    put("stroke-linejoin",
        pen.joinStyle() == Qt::RoundJoin ? QStringLiteral("round") : QStringLiteral("miter"));
    if (pen.style() == Qt::SolidLine)
        return;
    QStringList dashes;
    for (const qreal dash : pen.dashPattern()) // in widths of the pen
        dashes += number(dash * pen.widthF());
    put("stroke-dasharray", dashes.join(u' '));
}

} // namespace

QByteArray svgOf(QSize size, const std::vector<PictureShape>& shapes) {
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    const QString width = QString::number(size.width());
    const QString height = QString::number(size.height());
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("svg"));
    xml.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
    xml.writeAttribute(QStringLiteral("width"), width);
    xml.writeAttribute(QStringLiteral("height"), height);
    xml.writeAttribute(QStringLiteral("viewBox"), QStringLiteral("0 0 %1 %2").arg(width, height));
    for (const PictureShape& shape : shapes) {
        xml.writeStartElement(QStringLiteral("path"));
        xml.writeAttribute(QStringLiteral("d"), dataOf(shape.path));
        xml.writeAttribute(QStringLiteral("fill"),
                           shape.fill.isValid() ? shape.fill.name() : QStringLiteral("none"));
        if (shape.path.fillRule() == Qt::OddEvenFill)
            xml.writeAttribute(QStringLiteral("fill-rule"), QStringLiteral("evenodd"));
        writeStroke(xml, shape.pen);
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeEndDocument();
    return bytes;
}

} // namespace ferna
