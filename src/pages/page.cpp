#include "pages/page.h"

#include "pages/drawing.h"

#include <numeric>

namespace ferna::pages {

namespace {

// The face's letters in parts of their height, accents and descenders included.
constexpr double aboveBaseline = 0.75;
constexpr double belowBaseline = 0.22;

} // namespace

double Text::heightMm() const {
    return height / drawing::unitsPerMm;
}

double Text::widthMm() const {
    return std::accumulate(advances.begin(), advances.end(), 0) / drawing::unitsPerMm;
}

QRectF Text::box() const {
    return {baseline.x(), baseline.y() - aboveBaseline * heightMm(), widthMm(),
            (aboveBaseline + belowBaseline) * heightMm()};
}

QLineF Text::underlineRule() const {
    if (!underline)
        return {};
    const double y = baseline.y() + drawing::underlineDrop(heightMm());
    return {baseline.x(), y, baseline.x() + widthMm(), y};
}

double Text::underlineWidthMm() const {
    return drawing::underlineWidth(heightMm());
}

bool Text::leavesInk() const {
    return underline ? !text.isEmpty() : !text.trimmed().isEmpty();
}

QPainterPath Picture::placed(const Outline& outline) const {
    const QPainterPath path = outline.path.translated(rect.topLeft());
    if (rect.contains(path.boundingRect()))
        return path;
    QPainterPath frame;
    frame.addRect(rect);
    return path.intersected(frame);
}

void Picture::scale(double factor) {
    rect.setSize(rect.size() * factor);
    for (Outline& outline : outlines)
        outline.path = QTransform::fromScale(factor, factor).map(outline.path);
}

} // namespace ferna::pages
