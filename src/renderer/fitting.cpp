#include "renderer/fitting.h"

#include "pages/text_measure.h"

namespace ferna::renderer {

namespace {

constexpr double gap = 1;    // mm between a text and what stops it
constexpr double least = 15; // mm that a text keeps at least
constexpr double smallestTouch = 0.01;

bool touchUpright(const QRectF& a, const QRectF& b) {
    return qMin(a.bottom(), b.bottom()) - qMax(a.top(), b.top()) > smallestTouch;
}

bool touchAcross(const QRectF& a, const QRectF& b) {
    return qMin(a.right(), b.right()) - qMax(a.left(), b.left()) > smallestTouch;
}

} // namespace

bool overlap(const QRectF& a, const QRectF& b) {
    return touchUpright(a, b) && touchAcross(a, b);
}

void shrinkChain(Chain& chain, double right) {
    const double left = chain.left();
    const double width = chain.box().right() - left;
    if (width <= right - left || right - left < least)
        return;
    // Rounding to whole letter heights and advances must not leave it too wide by a hair.
    const double factor = (right - left - 0.05) / width;
    const double y = chain.texts.front().baseline.y();
    double x = left;
    for (pages::Text& text : chain.texts) {
        scaleText(text, QPointF(x, y + (text.baseline.y() - y) * factor), factor);
        x += text.widthMm();
    }
}

void fitLine(TextLine& line) {
    for (std::size_t i = 0; i < line.chains.size(); ++i) {
        Chain& chain = line.chains[i];
        if (!chain.leavesInk())
            continue;
        double right = rightMost;
        for (const Chain& other : line.chains)
            if (other.leavesInk() && other.left() >= chain.left() + least)
                right = qMin(right, other.left() - gap);
        shrinkChain(chain, right);
    }
}

void fitFrame(Segment& frame) {
    for (TextLine& line : frame.lines)
        for (Chain& chain : line.chains) {
            double right = rightMost;
            for (const Block& block : frame.blocks)
                for (const pages::Line& rule : block.lines) {
                    const QRectF box = QRectF(rule.line.p1(), rule.line.p2()).normalized();
                    if (box.width() == 0 && box.left() > chain.left()
                        && touchUpright(box, chain.box()))
                        right = qMin(right, box.left() - gap);
                }
            shrinkChain(chain, right);
        }
}

void fitBeside(std::vector<TextLine>& lines, Block& block) {
    for (TextLine& line : lines)
        for (Chain& chain : line.chains) {
            const QRectF box = chain.box();
            if (!chain.leavesInk() || !overlap(box, block.rect))
                continue;
            if (block.rect.top() > line.y - smallestTouch)
                block.translate(box.bottom() - block.rect.top());
            else
                shrinkChain(chain, block.rect.left() - gap);
        }
}

} // namespace ferna::renderer
