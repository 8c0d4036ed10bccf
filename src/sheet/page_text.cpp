#include "sheet/page_text.h"

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

/// What is switched on at a place of the text.
struct Switches {
    int italic = 0;
    int bold = 0;
    int sub = 0;
    int super = 0;

    bool any() const { return italic > 0 || bold > 0 || sub > 0 || super > 0; }
    void turn(QStringView name, int step) {
        if (name == u"i")
            italic += step;
        else if (name == u"b")
            bold += step;
        else if (name == u"sub")
            sub += step;
        else if (name == u"sup")
            super += step;
    }
    /// Symbols stand in the letters of formulas.
    QTextCharFormat format(const QFont& base) const {
        QTextCharFormat made;
        QFont font = base;
        if (bold > 0)
            font.setBold(true);
        if (italic > 0) {
            font.setFamilies({QStringLiteral("Liberation Serif")});
            font.setItalic(true);
        }
        if (sub > 0 || super > 0) {
            // Vertical alignment of the toolkit scales the letters itself.
            made.setVerticalAlignment(sub > 0 ? QTextCharFormat::AlignSubScript
                                              : QTextCharFormat::AlignSuperScript);
        }
        made.setFont(font);
        if (sub > 0 || super > 0)
            made.setVerticalAlignment(sub > 0 ? QTextCharFormat::AlignSubScript
                                              : QTextCharFormat::AlignSuperScript);
        return made;
    }
};

QString withoutEntities(QString text) {
    return text.replace(QStringLiteral("&lt;"), QStringLiteral("<"))
        .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
        .replace(QStringLiteral("&quot;"), QStringLiteral("\""))
        .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
}

/// The tags that the sheet's texts use; a "<" that begins none of them is a letter.
bool isTag(QStringView name) {
    static const std::array<QStringView, 9> known{u"i",    u"/i",  u"b",    u"/b", u"sub",
                                                  u"/sub", u"sup", u"/sup", u"br/"};
    return std::find(known.begin(), known.end(), name) != known.end();
}

Marked parsedText(const Rich& text, const QFont& base) {
    Marked made;
    Switches on;
    QString run;
    const auto flush = [&] {
        const QString plain = withoutEntities(run);
        if (on.any() && !plain.isEmpty())
            made.ranges.push_back({static_cast<int>(made.text.size()),
                                   static_cast<int>(plain.size()), on.format(base)});
        made.text += plain;
        run.clear();
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype end = text[i] == u'<' ? text.indexOf(u'>', i) : -1;
        const QStringView name =
            end > 0 ? QStringView(text).sliced(i + 1, end - i - 1) : QStringView();
        if (end < 0 || !isTag(name)) {
            run += text[i];
            continue;
        }
        flush();
        if (name == u"br/")
            made.text += QChar(QChar::LineSeparator);
        else if (name.startsWith(u'/'))
            on.turn(name.sliced(1), -1);
        else
            on.turn(name, 1);
        i = end;
    }
    flush();
    return made;
}

} // namespace

QFont fontOf(const TextStyle& style) {
    QFont font;
    font.setFamilies(
        {style.serif ? QStringLiteral("Liberation Serif") : QStringLiteral("Liberation Sans"),
         QStringLiteral("DejaVu Sans")});
    font.setPixelSize(static_cast<int>(style.size + 0.5));
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
