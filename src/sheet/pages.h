#pragma once

#include "sheet/page_slices.h"

#include <QImage>

namespace ferna::sheet {

/// A sheet set into pages of A4.
class Pages {
public:
    /// Needs a QGuiApplication, for the fonts. The sheet must live as long.
    explicit Pages(const Sheet& sheet);

    int count() const { return static_cast<int>(pages_.size()); }
    /// Page 1, 2 ... with head and foot. The painter's units are hundredths of a mm from the left
    /// upper corner of the paper.
    void draw(QPainter& painter, int page) const;

    /// The same as a picture with so many dots to the inch.
    QImage image(int page, double dotsPerInch) const;
    /// All pages as PDF.
    QByteArray pdf() const;

private:
    struct Placed {
        std::shared_ptr<const Slice> slice;
        double y;
    };
    using Page = std::vector<Placed>;

    void flow(Slices slices);
    void drawMargins(QPainter& painter, int page) const;

    const Sheet& sheet_;
    std::vector<Page> pages_;
};

} // namespace ferna::sheet
