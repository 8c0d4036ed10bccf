#pragma once

#include "live/frame.h"
#include "pages/drawing.h"

#include <QFontMetricsF>
#include <QPainter>

namespace ferna::live {

/// What draws the parts of a picture: painter, colours and sizes in one.
struct Strokes {
    QPainter& painter;
    const Frame& frame;
    const PictureOptions& options;
    Palette palette;

    Strokes(QPainter& on, const Frame& within, const PictureOptions& how)
        : painter(on), frame(within), options(how), palette(paletteOf(how.theme, how.greyed)) {}

    /// The font of the picture's texts; `share` of the usual height.
    QFont font(qreal share = 1, bool bold = false) const {
        QFont result = drawing::fontOf(1, bold ? QFont::Bold : QFont::Normal);
        result.setPixelSize(std::max(1, qRound(share * options.letter)));
        return result;
    }

    void pen(const QColor& colour, qreal share = 0.09, Qt::PenStyle style = Qt::SolidLine) const {
        QPen pen(colour, share * options.letter, style, Qt::FlatCap, Qt::MiterJoin);
        if (style != Qt::SolidLine)
            pen.setDashOffset(0);
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
    }

    /// A text on one line, in a rectangle.
    void text(const QRectF& in, Qt::Alignment alignment, const QString& words) const {
        painter.drawText(in, static_cast<int>(alignment) | Qt::TextSingleLine | Qt::TextDontClip,
                         words);
    }

    /// A text cut with dots where it does not fit.
    void fittingText(const QRectF& in, Qt::Alignment alignment, const QString& words) const {
        const QFontMetricsF metrics(painter.font());
        text(in, alignment, metrics.elidedText(words, Qt::ElideRight, in.width()));
    }
};

} // namespace ferna::live
