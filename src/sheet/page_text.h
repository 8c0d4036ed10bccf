#pragma once

#include "runtime/lengths.h"
#include "sheet/sheet.h"

#include <QFont>
#include <QPointF>

class QPainter;
class QTextLayout;

namespace ferna::sheet {

// Texts on the pages of a sheet. Every length is in hundredths of a mm, y down, so that a page
// looks the same on every device.

inline constexpr double perMm = 100;
/// The height of letters of so many points.
constexpr double points(double count) {
    return count * mmPerPoint * perMm;
}

/// What a text looks like.
struct TextStyle {
    double size = points(8.5);
    bool bold = false;
    bool serif = false; ///< of formulas
    bool italic = false;
    bool grey = false;
    Qt::Alignment align = Qt::AlignLeft;
};

/// The font of a style. Both faces come with the program's packages.
QFont fontOf(const TextStyle& style);

/// A text set into lines of a width; of 0 it is one line as long as it is.
class TextBlock {
public:
    TextBlock() = default;
    TextBlock(const Rich& text, const TextStyle& style, double width = 0);

    double width() const { return width_; }   ///< of its longest line
    double height() const { return height_; } ///< of all its lines
    double ascent() const { return ascent_; } ///< of its first line
    /// With its left upper corner there.
    void draw(QPainter& painter, QPointF at) const;

private:
    std::shared_ptr<QTextLayout> layout_;
    double width_ = 0;
    double height_ = 0;
    double ascent_ = 0;
    bool grey_ = false;
};

} // namespace ferna::sheet
