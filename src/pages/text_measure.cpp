#include "pages/text_measure.h"

#include "pages/drawing.h"

#include <QTextLayout>

#include <array>
#include <cmath>

namespace ferna::pages {

namespace {

// Greek letters where the Symbol font keeps them: A to Z, then a to z.
constexpr std::u16string_view symbolCapitals = u"ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ";
constexpr std::u16string_view symbolSmall = u"αβχδεφγηιϕκλμνοπθρστυϖωξψζ";
static_assert(symbolCapitals.size() == 26 && symbolSmall.size() == 26);

QChar symbol(QChar letter) {
    const char16_t c = letter.unicode();
    if (c >= u'A' && c <= u'Z')
        return symbolCapitals[c - u'A'];
    if (c >= u'a' && c <= u'z')
        return symbolSmall[c - u'a'];
    return letter;
}

} // namespace

QString lettersOf(const QString& text, bool symbolFont) {
    QString letters = text;
    for (QChar& c : letters) {
        if (c.category() == QChar::Other_Control) // of no use on paper, and no part of SVG
            c = u' ';
        if (symbolFont)
            c = symbol(c);
    }
    return letters;
}

void measure(Text& text) {
    text.advances.assign(static_cast<std::size_t>(text.text.size()), 0);
    if (text.text.isEmpty())
        return;
    QTextLayout layout(text.text, drawing::fontOf(text.height, text.weight));
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    // Places are rounded, not steps, so that rounding does not add up.
    int before = 0;
    for (int i = 0; i < static_cast<int>(text.text.size()); ++i) {
        const int after = static_cast<int>(std::lround(line.cursorToX(i + 1)));
        text.advances[static_cast<std::size_t>(i)] = after - before;
        before = after;
    }
}

void scaleText(Text& text, QPointF baseline, double factor) {
    text.baseline = baseline;
    text.height = qMax(1, static_cast<int>(text.height * factor));
    measure(text);
}

} // namespace ferna::pages
