#include "pages/emf_writer.h"

#include "pages/drawing.h"
#include "pages/emf_format.h"

#include <QtEndian>

#include <bit>
#include <cmath>

namespace ferna::pages {

namespace {

constexpr int headerSize = 108;

int units(double mm) {
    return static_cast<int>(std::lround(mm * drawing::unitsPerMm));
}
QPoint units(QPointF mm) {
    return {units(mm.x()), units(mm.y())};
}

} // namespace

EmfWriter::EmfWriter(QSizeF mm, const QString& title)
    : mm_(mm), description_(QStringLiteral("Wyd_drk") + QChar(0) + title + QChar(0) + QChar(0)) {
    header();
    simple(emf::SetMapMode, emf::mapModeText);
    simple(emf::SetBkMode, emf::backgroundTransparent);
    simple(emf::SetTextAlign, emf::alignBaseline);
    simple(emf::SetTextColor, 0);
    simple(emf::SetStretchBltMode, emf::stretchHalftone);
}

void EmfWriter::begin(quint32 type) {
    recordStart_ = bytes_.size();
    put32(type);
    put32(0);
}

void EmfWriter::end() {
    while (bytes_.size() % 4 != 0)
        bytes_ += '\0';
    qToLittleEndian(static_cast<quint32>(bytes_.size() - recordStart_),
                    bytes_.data() + recordStart_ + 4);
    ++records_;
}

void EmfWriter::put32(qint64 value) {
    char raw[4];
    qToLittleEndian(static_cast<quint32>(value), raw);
    bytes_.append(raw, sizeof raw);
}

void EmfWriter::put16(quint32 value) {
    char raw[2];
    qToLittleEndian(static_cast<quint16>(value), raw);
    bytes_.append(raw, sizeof raw);
}

void EmfWriter::put(QPoint point) {
    put32(point.x());
    put32(point.y());
}

void EmfWriter::putLetters(const QString& text, int units) {
    for (int i = 0; i < units; ++i)
        put16(i < text.size() ? text[i].unicode() : 0);
}

void EmfWriter::simple(quint32 type, quint32 value) {
    begin(type);
    put32(value);
    end();
}

void EmfWriter::select(quint32 handle, quint32& selected) {
    if (handle != selected)
        simple(emf::SelectObject, handle);
    selected = handle;
}

void EmfWriter::header() {
    const QPoint size = units(QPointF(mm_.width(), mm_.height()));
    begin(emf::Header);
    put({0, 0}); // bounds: readers crop to them, so the whole picture
    put(size);
    put({0, 0}); // frame, 0.01 mm
    put(size);
    put32(emf::signature);
    put32(0x10000); // version
    put32(0);       // bytes, records and handles are filled in at the end
    put32(0);
    put16(0);
    put16(0);
    put32(description_.size());
    put32(headerSize);
    put32(0);  // palette entries
    put(size); // device, in pixels of 0.01 mm
    put({static_cast<int>(std::lround(mm_.width())), static_cast<int>(std::lround(mm_.height()))});
    put({0, 0});                                              // pixel format
    put32(0);                                                 // OpenGL
    put({units(mm_.width()) * 10, units(mm_.height()) * 10}); // device, micrometres
    putLetters(description_, static_cast<int>(description_.size()));
    end();
}

quint32 EmfWriter::penHandle(const Pen& pen) {
    const auto [entry, isNew] = pens_.try_emplace(pen, handles_ + 1);
    if (isNew) {
        ++handles_;
        begin(emf::ExtCreatePen);
        put32(entry->second);
        for (int i = 0; i < 4; ++i)
            put32(0); // no brush bitmap
        put32(emf::penGeometric | emf::joinMiter
              | (pen.squareEnds ? emf::capSquare : emf::capFlat));
        put32(pen.width);
        put32(0); // solid
        put32(pen.gray * 0x010101);
        put32(0); // hatch
        put32(0); // style entries
        end();
    }
    return entry->second;
}

quint32 EmfWriter::fontHandle(const Font& font) {
    constexpr int faceUnits = 32;
    constexpr int extendedBytes = 320;
    constexpr quint32 anyCharset = 1;
    constexpr quint32 outlinePrecision = 4; // TrueType first
    constexpr quint32 proportionalSwiss = 0x22;
    const auto [entry, isNew] = fonts_.try_emplace(font, handles_ + 1);
    if (isNew) {
        ++handles_;
        begin(emf::ExtCreateFontIndirectW);
        const qsizetype start = bytes_.size() + 4;
        put32(entry->second);
        put32(-font.height); // negative: the height of the letters, not of the line
        put32(0);
        put({0, 0}); // escapement, orientation
        put32(font.weight);
        put16(0); // italic, underline: the rule is drawn as a line
        put16(anyCharset << 8);
        put16(outlinePrecision);
        put16(proportionalSwiss << 8);
        putLetters(drawing::textFace, faceUnits);
        bytes_.append(start + extendedBytes - bytes_.size(), '\0');
        end();
    }
    return entry->second;
}

quint32 EmfWriter::brushHandle(QRgb colour) {
    const auto [entry, isNew] = brushes_.try_emplace(colour, handles_ + 1);
    if (isNew) {
        ++handles_;
        begin(emf::CreateBrushIndirect);
        put32(entry->second);
        put32(0); // solid
        put32(qRed(colour) | qGreen(colour) << 8 | qBlue(colour) << 16);
        put32(0); // hatch
        end();
    }
    return entry->second;
}

void EmfWriter::whiteSheet(const QRectF& mm) {
    simple(emf::SelectObject, emf::nullPen);
    simple(emf::SelectObject, emf::whiteBrush);
    selectedPen_ = emf::nullPen;
    selectedBrush_ = emf::whiteBrush;
    begin(emf::Rectangle);
    put(units(mm.topLeft()));
    put(units(mm.bottomRight()));
    end();
}

void EmfWriter::line(const QLineF& mm, double widthMm, bool squareEnds, int gray) {
    select(penHandle({qMax(1, units(widthMm)), squareEnds, gray}), selectedPen_);
    begin(emf::MoveToEx);
    put(units(mm.p1()));
    end();
    begin(emf::LineTo);
    put(units(mm.p2()));
    end();
}

void EmfWriter::text(const Text& text, QPointF baselineMm) {
    constexpr int fixedBytes = 76;
    constexpr float one = 1.0F;
    select(fontHandle({text.height, text.weight}), selectedFont_);
    const QPoint corner = units(baselineMm + text.box().topLeft() - text.baseline);
    const QPoint far = units(baselineMm + text.box().bottomRight() - text.baseline);
    const auto letters = static_cast<int>(text.text.size());
    begin(emf::ExtTextOutW);
    put(corner);
    put(far);
    put32(1); // compatible graphics mode, its two scales being 1
    put32(std::bit_cast<quint32>(one));
    put32(std::bit_cast<quint32>(one));
    put(units(baselineMm));
    put32(letters);
    put32(fixedBytes);
    put32(0); // no clipping, no opaque ground
    for (int i = 0; i < 4; ++i)
        put32(0);
    const int letterBytes = (letters * 2 + 3) / 4 * 4;
    put32(fixedBytes + letterBytes);
    putLetters(text.text, letterBytes / 2);
    for (const int advance : text.advances)
        put32(advance);
    end();
}

void EmfWriter::picture(const QImage& image, const QRectF& mm) {
    constexpr int fixedBytes = 80;
    constexpr int infoBytes = 40;
    const QImage rows = image.convertToFormat(QImage::Format_BGR888).mirrored();
    const int stride = (rows.width() * 3 + 3) / 4 * 4;
    const QPoint corner = units(mm.topLeft());
    const QPoint size = units(mm.bottomRight()) - corner;
    begin(emf::StretchDiBits);
    put(corner);
    put(corner + size);
    put(corner);
    put({0, 0});
    put({rows.width(), rows.height()});
    put32(fixedBytes);
    put32(infoBytes);
    put32(fixedBytes + infoBytes);
    put32(qint64{stride} * rows.height());
    put32(0); // colours as they stand
    put32(emf::sourceCopy);
    put(size);
    put32(infoBytes); // the bitmap's own header
    put({rows.width(), rows.height()});
    put16(1);
    put16(24);
    put32(0); // not compressed
    put32(qint64{stride} * rows.height());
    for (int i = 0; i < 4; ++i)
        put32(0);
    for (int y = 0; y < rows.height(); ++y) {
        bytes_.append(reinterpret_cast<const char*>(rows.constScanLine(y)), rows.width() * 3);
        bytes_.append(stride - rows.width() * 3, '\0');
    }
    end();
}

void EmfWriter::outline(const QPainterPath& mm, const QColor& colour) {
    const QList<QPolygonF> parts =
        mm.toSubpathPolygons(QTransform::fromScale(drawing::unitsPerMm, drawing::unitsPerMm));
    qsizetype points = 0;
    for (const QPolygonF& part : parts)
        points += part.size();
    if (points == 0)
        return;
    const quint32 mode = mm.fillRule() == Qt::WindingFill ? emf::fillWinding : emf::fillAlternate;
    if (mode != fillMode_)
        simple(emf::SetPolyFillMode, mode);
    fillMode_ = mode;
    select(emf::nullPen, selectedPen_);
    select(brushHandle(colour.rgb()), selectedBrush_);
    const QRectF box = mm.boundingRect();
    begin(emf::PolyPolygon);
    put(units(box.topLeft()));
    put(units(box.bottomRight()));
    put32(parts.size());
    put32(points);
    for (const QPolygonF& part : parts)
        put32(part.size());
    for (const QPolygonF& part : parts)
        for (const QPointF& point : part)
            put(point.toPoint());
    end();
}

void EmfWriter::page(const Page& page, QPointF sheetCornerMm) {
    const QPointF corner = sheetCornerMm + frameCorner;
    for (const Picture& picture : page.pictures) {
        if (picture.outlines.empty())
            this->picture(picture.image, picture.rect.translated(corner));
        for (const Outline& shape : picture.outlines)
            outline(picture.placed(shape).translated(corner), shape.colour);
    }
    for (const Line& line : page.lines)
        this->line(line.line.translated(corner), line.width, true);
    for (const Text& text : page.texts) {
        this->text(text, text.baseline + corner);
        if (text.underline)
            line(text.underlineRule().translated(corner), text.underlineWidthMm(), false);
    }
}

QByteArray EmfWriter::finish() {
    begin(emf::Eof);
    put32(0);
    put32(16); // place of the palette that is not there
    put32(20);
    end();
    qToLittleEndian(static_cast<quint32>(bytes_.size()), bytes_.data() + 48);
    qToLittleEndian(records_, bytes_.data() + 52);
    qToLittleEndian(static_cast<quint16>(handles_ + 1), bytes_.data() + 56);
    return std::exchange(bytes_, {});
}

QByteArray emfOfPage(const Report& report, const Page& page) {
    EmfWriter writer(sheet, report.title);
    writer.whiteSheet(QRectF(QPointF(0, 0), sheet));
    writer.page(page, {0, 0});
    return writer.finish();
}

QByteArray emfOfAllPages(const Report& report) {
    constexpr int sheetEdgeGray = 0xB0;
    constexpr double sheetEdgeMm = 0.3;
    const auto count = static_cast<double>(report.pages.size());
    EmfWriter writer({sheet.width(), sheet.height() * count}, report.title);
    QPointF corner(0, 0);
    for (const Page& page : report.pages) {
        writer.whiteSheet(QRectF(corner, sheet));
        if (corner.y() > 0)
            writer.line({corner, corner + QPointF(sheet.width(), 0)}, sheetEdgeMm, false,
                        sheetEdgeGray);
        writer.page(page, corner);
        corner.ry() += sheet.height();
    }
    return writer.finish();
}

} // namespace ferna::pages
