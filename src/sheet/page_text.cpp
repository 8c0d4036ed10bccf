#include "sheet/page_text.h"

#include "sheet/rich_runs.h"

#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace ferna::sheet {

namespace {

/// A text taken out of its markup.
struct Marked {
    QString text;
    QList<QTextLayout::FormatRange> ranges;
};

/// Symbols stand in the letters of formulas.
QTextCharFormat formatOf(const RichRun& run, const QFont& base) {
    QTextCharFormat made;
    QFont font = base;
    if (run.bold)
        font.setBold(true);
    if (run.italic) {
        font.setFamilies({QStringLiteral("Liberation Serif")});
        font.setItalic(true);
    }
    made.setFont(font);
    // Vertical alignment of the toolkit scales the letters itself.
    if (run.below || run.above)
        made.setVerticalAlignment(run.below ? QTextCharFormat::AlignSubScript
                                            : QTextCharFormat::AlignSuperScript);
    return made;
}

Marked parsedText(const Rich& text, const QFont& base) {
    Marked made;
    for (const RichRun& run : runsOf(text)) {
        if (!run.plain())
            made.ranges.push_back({static_cast<int>(made.text.size()),
                                   static_cast<int>(run.text.size()), formatOf(run, base)});
        made.text += run.text;
    }
    return made;
}

} // namespace

QFont fontOf(const TextStyle& style) {
    QFont font;
    font.setFamilies(
        {style.serif ? QStringLiteral("Liberation Serif") : QStringLiteral("Liberation Sans"),
         QStringLiteral("DejaVu Sans")});
    font.setPixelSize(qRound(style.size));
    font.setBold(style.bold);
    font.setItalic(style.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

TextBlock::TextBlock(const Rich& text, const TextStyle& style, double width) : grey_(style.grey) {
    const QFont font = fontOf(style);
    const Marked marked = parsedText(text, font);
    layout_ = std::make_shared<QTextLayout>(marked.text, font);
    layout_->setFormats(marked.ranges);
    QTextOption option(style.align);
    option.setUseDesignMetrics(true);
    option.setWrapMode(width > 0 ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                 : QTextOption::ManualWrap);
    layout_->setTextOption(option);
    layout_->setCacheEnabled(true);
    constexpr double endless = 1e6;
    layout_->beginLayout();
    for (QTextLine line = layout_->createLine(); line.isValid(); line = layout_->createLine()) {
        line.setLineWidth(width > 0 ? width : endless);
        line.setPosition({0, height_});
        if (height_ == 0)
            ascent_ = line.ascent();
        height_ += line.height() * 1.04;
        width_ = std::max(width_, line.naturalTextWidth());
    }
    layout_->endLayout();
    if (width <= 0 && style.align != Qt::AlignLeft) { // aligned within its own width
        height_ = 0;
        layout_->beginLayout();
        for (QTextLine line = layout_->createLine(); line.isValid(); line = layout_->createLine()) {
            line.setLineWidth(width_);
            line.setPosition({0, height_});
            height_ += line.height() * 1.04;
        }
        layout_->endLayout();
    }
}

void TextBlock::draw(QPainter& painter, QPointF at) const {
    if (!layout_)
        return;
    painter.setPen(grey_ ? QColor(0x55, 0x55, 0x55) : QColor(Qt::black));
    layout_->draw(&painter, at);
}

} // namespace ferna::sheet
