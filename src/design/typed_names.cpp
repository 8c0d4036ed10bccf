#include "design/typed_names.h"

#include "pages/letter_widths.h"
#include "runtime/codepage.h"
#include "runtime/format.h"

#include <QStringList>

namespace ferna {

namespace {

/// Notes under one another, without the empty ones.
QString together(QStringList notes) {
    notes.removeAll(QString());
    return notes.join(u'\n');
}

} // namespace

QString lostLetters(QStringView text) {
    QString lost;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const QStringView character = text.mid(i, isPair ? 2 : 1);
        if (!codepage::holds(text[i]) && !lost.contains(character))
            lost += character;
        if (isPair)
            ++i;
    }
    return lost;
}

QString cutFromLabel(QStringView label) {
    return label.mid(longestLabel).toString();
}

double projectLetters(QStringView name) {
    // From the text's edge to the frame's divider, with the gap that the renderer keeps.
    constexpr double lineWidth = 139;
    constexpr double slack = 0.05;
    constexpr double hundredths = 100; // letters are whole hundredths of a millimetre
    const double width = drawing::textWidth(name, frameLetters);
    if (width <= lineWidth)
        return frameLetters;
    return qMax(1.0, Int(frameLetters * hundredths * (lineWidth - slack) / width)) / hundredths;
}

QString lettersNote(const QString& text) {
    const QString lost = lostLetters(text);
    if (lost.isEmpty())
        return {};
    return QStringLiteral("Tych znaków nie ma w stronie kodowej 1250, zamiast nich będzie "
                          "\"?\": %1")
        .arg(lost);
}

QString labelNote(const QString& label) {
    const QString cut = cutFromLabel(label);
    return together({lettersNote(label.left(longestLabel)),
                     cut.isEmpty()
                         ? cut
                         : QStringLiteral("Oznaczenie ma najwyżej %1 znaki, w raporcie nie będzie: "
                                          "\"%2\"")
                               .arg(longestLabel)
                               .arg(cut)});
}

QString projectNote(const QString& name) {
    const double letters = projectLetters(name);
    return together(
        {lettersNote(name),
         letters == frameLetters
             ? QString()
             : QStringLiteral("Nazwa nie mieści się w wierszu nagłówka: na stronach "
                              "raportu będzie pismem %1 pt zamiast %2 pt")
                   .arg(Format(points(letters), u"#0.0"), Format(points(frameLetters), u"#0.0"))});
}

QString steelNote(const QString& name) {
    return together({lettersNote(name),
                     name.contains(u',')
                         ? QStringLiteral("W zapisanym zadaniu nazwa kończy się przed przecinkiem")
                         : QString()});
}

} // namespace ferna
