#pragma once

#include "pages/page.h"

#include <QByteArray>

#include <compare>
#include <map>

namespace ferna::pages {

/// Writes an enhanced metafile record by record; one unit is 0.01 mm.
class EmfWriter {
public:
    /// A picture of that size in mm, described by a title.
    EmfWriter(QSizeF mm, const QString& title);

    /// A white sheet without an outline; mm.
    void whiteSheet(const QRectF& mm);
    /// A line, mm; `gray` is 0 for black.
    void line(const QLineF& mm, double widthMm, bool squareEnds, int gray = 0);
    void text(const Text& text, QPointF baselineMm);
    void picture(const QImage& image, const QRectF& mm);
    /// A filled outline, mm.
    void outline(const QPainterPath& mm, const QColor& colour);
    /// The primitives of a page whose sheet has its corner there; mm.
    void page(const Page& page, QPointF sheetCornerMm);

    /// The finished file.
    QByteArray finish();

private:
    struct Pen {
        int width = 0; ///< units
        bool squareEnds = false;
        int gray = 0;
        auto operator<=>(const Pen&) const = default;
    };
    struct Font {
        int height = 0; ///< units
        int weight = 0;
        auto operator<=>(const Font&) const = default;
    };

    void begin(quint32 type);
    void end();
    void put32(qint64 value);
    void put16(quint32 value);
    void put(QPoint point);
    void putLetters(const QString& text, int units);
    void simple(quint32 type, quint32 value);
    void select(quint32 handle, quint32& selected);
    quint32 penHandle(const Pen& pen);
    quint32 fontHandle(const Font& font);
    quint32 brushHandle(QRgb colour);
    void header();

    QSizeF mm_;
    QString description_;
    QByteArray bytes_;
    qsizetype recordStart_ = 0;
    quint32 records_ = 0;
    quint32 handles_ = 0;
    std::map<Pen, quint32> pens_;
    std::map<Font, quint32> fonts_;
    std::map<QRgb, quint32> brushes_;
    quint32 selectedPen_ = 0, selectedFont_ = 0, selectedBrush_ = 0;
    quint32 fillMode_ = 0;
};

/// One page as a metafile.
QByteArray emfOfPage(const Report& report, const Page& page);

/// All pages under one another, as the screen shows them.
QByteArray emfOfAllPages(const Report& report);

} // namespace ferna::pages
