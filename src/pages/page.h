#pragma once

#include <QColor>
#include <QImage>
#include <QLineF>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <vector>

namespace ferna::pages {

/// Positioned primitives. Millimetres from the top left corner of the frame, y downward.

struct Text {
    QString text;
    QPointF baseline; ///< left end of the baseline
    int height = 320; ///< of the letters, 0.01 mm
    int weight = 400; ///< 400 normal, 700 bold
    bool underline = false;
    std::vector<int> advances; ///< of every UTF-16 unit, 0.01 mm

    double heightMm() const;
    double widthMm() const;
    /// The box of letters, accents, descenders and underline.
    QRectF box() const;
    /// Empty where the text is not underlined.
    QLineF underlineRule() const;
    double underlineWidthMm() const;
    /// False for a text of blanks without an underline.
    bool leavesInk() const;
};

struct Line {
    QLineF line;
    double width = 0; ///< mm
};

/// A filled outline of a picture, mm from the picture's corner.
struct Outline {
    QPainterPath path;
    QColor colour;
};

/// A picture: outlines, or a bitmap. Where it has both, the outlines are drawn.
struct Picture {
    QRectF rect;
    QImage image;
    std::vector<Outline> outlines = {};

    bool isEmpty() const { return image.isNull() && outlines.empty(); }
    /// The part of an outline that lies on the picture, mm on the page.
    QPainterPath placed(const Outline& outline) const;
    /// Made smaller or larger about its corner.
    void scale(double factor);
};

/// An entry of the table of contents.
struct Heading {
    QString text;
    int level = 0;
    double y = 0; ///< baseline of its line, mm
};

struct Page {
    int number = 0;
    std::vector<Picture> pictures; ///< drawn first
    std::vector<Line> lines;
    std::vector<Text> texts;
    std::vector<Heading> headings; ///< in their order
};

/// A report laid out.
struct Report {
    QString title;         ///< first title line of the frame
    QString project;       ///< its line with the project's name
    QString documentTitle; ///< what it is called as a document; empty: title and project
    QString subject, author;
    QString language; ///< of its texts, BCP 47; empty: not known
    std::vector<Page> pages;
};

/// A4 portrait, mm.
inline constexpr QSizeF sheet{210, 297};
/// The frame's corner on the sheet, mm.
inline constexpr QPointF frameCorner{20, 5};

} // namespace ferna::pages
