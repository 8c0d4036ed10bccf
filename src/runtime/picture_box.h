#pragma once

#include "runtime/picture_shapes.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPointF>
#include <QSizeF>

namespace ferna {

/// The 16-colour table.
QColor QBColor(int number);
namespace qb {
inline constexpr int Black = 0;
inline constexpr int Cyan = 3;
inline constexpr int Grey = 7;
inline constexpr int LightRed = 12;
inline constexpr int White = 15;
} // namespace qb

/// A picture with a user scale: draws into a bitmap of `size` picture pixels at a device pixel
/// ratio. Line widths and letters are given in picture pixels and grow with the ratio, so that the
/// same drawing is sharp on every screen and in print.
class PictureBox {
public:
    enum class Style { Solid, Dotted, DashDot };

    explicit PictureBox(QSize size, qreal devicePixelRatio = 1);

    QSize size() const { return size_; }

    /// The user scale: coordinates of the top left and of the bottom right corner.
    void setScale(QPointF topLeft, QPointF bottomRight);

    void setColour(int qbColour) { colour_ = QBColor(qbColour); }
    void setFillColour(int qbColour) { fillColour_ = QBColor(qbColour); }
    void setWidth(qreal picturePixels) { width_ = picturePixels; }
    void setStyle(Style style) { style_ = style; }
    void setFilled(bool filled) { filled_ = filled; }
    void setBold(bool bold) { bold_ = bold; }
    void setLetterHeight(int picturePixels) { letterHeight_ = picturePixels; }
    /// Letters stand in a white rim, so that they are read also on a line, and inside the picture.
    void setRim(bool rim) { rim_ = rim; }

    void clear();
    void line(QPointF from, QPointF to);
    /// A rectangle between two opposite corners.
    void box(QPointF corner, QPointF opposite);
    void circle(QPointF centre, qreal radius);
    /// A text with its top left corner at a point.
    void text(QPointF at, const QString& text);

    /// The finished bitmap; nothing can be drawn behind it.
    QImage image();
    /// Saves it as a bitmap file, and as vectors beside it (`twinPath`). The natural width, for
    /// programs that place the file, is `printedWidth` mm, or a picture pixel is 1/96 inch. Errors
    /// of `writeFileWhole`.
    void saveBitmap(const QString& path, qreal printedWidth = 0);

private:
    void draw(const PictureShape& shape);
    QPointF insidePicture(QPointF corner, const QRectF& letters) const;
    QPointF pixel(QPointF user) const;
    QPen pen() const;

    QSize size_;
    QImage image_;
    QPainter painter_;
    QPointF topLeft_{0, 0};
    QPointF pixelsPerUnit_{1, 1};
    QColor colour_ = Qt::black;
    QColor fillColour_ = Qt::black;
    qreal width_ = 1;
    Style style_ = Style::Solid;
    bool filled_ = false;
    bool bold_ = false;
    bool rim_ = false;
    int letterHeight_ = 11;
    std::vector<PictureShape> shapes_; ///< what was drawn
};

/// The device pixel ratio at which a picture of a width in pixels is printed with at least 600 dots
/// per inch on `millimetres` of paper.
qreal printRatio(int widthPixels, qreal millimetres);

} // namespace ferna
