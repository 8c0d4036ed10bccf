#include "tables/load_headings.h"

#include "tables/cell_number.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace ferna::tables {

namespace {

/// A word at the head of a column without its unit and what tells nothing, and the unit.
struct Words {
    QString name; ///< small letters and digits only
    QString unit; ///< as it stands, without blanks; empty without one
};

/// Letters without their Polish signs, so that "Siła" and "Sila" are the same.
QString plainLetters(QStringView text) {
    QString out;
    for (const QChar c : text.toString().toLower().normalized(QString::NormalizationForm_D)) {
        if (c == u'ł')
            out += u'l';
        else if (c.isLetterOrNumber())
            out += c;
    }
    return out;
}

/// "M1 [kNm]", "M1 (kNm)", "M1, kNm", "M1/kNm", "M1 kNm".
Words wordsOf(const QString& cell) {
    static const QRegularExpression inBrackets(QStringLiteral("^(.*?)[\\[({]([^\\])}]*)[\\])}]?$"));
    static const QRegularExpression behind(
        QStringLiteral("^(.*?)[\\s,/:_-]+([kKM]?N(?:\\s*[*·⋅.x]?\\s*(?:mm|cm|m))?)$"));
    for (const QRegularExpression& form : {inBrackets, behind})
        if (const auto match = form.match(cell.trimmed());
            match.hasMatch() && !match.capturedView(1).trimmed().isEmpty())
            return {plainLetters(match.capturedView(1)), match.captured(2).remove(u' ')};
    return {plainLetters(cell), {}};
}

/// Words of loads. My and Mz, Ty and Tz are the names of frame programs, where x runs along the
/// column.
const QHash<QString, Value>& loadWords() {
    static const QHash<QString, Value> words = [] {
        QHash<QString, Value> known;
        const auto add = [&known](Value load, const char* list) {
            for (const QString& word : QString::fromLatin1(list).split(u' '))
                known.insert(word, load);
        };
        add(Value::N, "n silan silaosiowa silapodluzna silanormalna silaosiowan silapodluznan "
                      "silanormalnan osiowa axial axialforce axialforcen normalforce "
                      "normalforcen");
        add(Value::M1, "m1 my moment1 momentm1 momentmy");
        add(Value::M2, "m2 mz moment2 momentm2 momentmz");
        add(Value::Vx, "vx ty hx silavx silaty silapoprzecznavx silapoprzecznaty silapoziomavx "
                       "silapoziomahx shearvx shearforcevx");
        add(Value::Vy, "vy tz hy silavy silatz silapoprzecznavy silapoprzecznatz silapoziomavy "
                       "silapoziomahy shearvy shearforcevy");
        return known;
    }();
    return words;
}

bool isNameWord(const QString& word) {
    static const QStringList words =
        QStringLiteral("nazwa kombinacja kombinacje nazwakombinacji przypadek przypadki schemat "
                       "obciazenie nr lp numer name combination combinations combinationname "
                       "loadcase loadcombination case combo lc no id")
            .split(u' ');
    return words.contains(word);
}

/// Without the "Ed", "Sd" or "d" that codes put behind a letter and its axis.
QString withoutDesignSign(const QString& word) {
    static const QRegularExpression sign(QStringLiteral("^(n|[mvth][xyz12])(ed|sd|d)$"));
    const auto match = sign.match(word);
    return match.hasMatch() ? match.captured(1) : word;
}

/// Factor of a unit to kN, of a moment to kNm; empty for another unit.
std::optional<double> factorOf(const QString& unit, bool ofMoment) {
    static const QHash<QString, double> forces{{QStringLiteral("N"), 1e-3},
                                               {QStringLiteral("kN"), 1},
                                               {QStringLiteral("KN"), 1},
                                               {QStringLiteral("MN"), 1e3}};
    static const QHash<QString, double> lengths{
        {QStringLiteral("mm"), 1e-3}, {QStringLiteral("cm"), 1e-2}, {QStringLiteral("m"), 1}};
    static const QRegularExpression form(QStringLiteral("^([kKM]?N)[*·⋅.x]?(mm|cm|m)?$"));
    if (unit.isEmpty())
        return 1;
    const auto match = form.match(unit);
    if (!match.hasMatch() || match.captured(2).isEmpty() == ofMoment)
        return std::nullopt;
    return forces.value(match.captured(1)) * (ofMoment ? lengths.value(match.captured(2)) : 1);
}

struct NamedColumns {
    QStringList names; ///< without design signs
    bool holds(const char16_t* name) const { return names.contains(QStringView(name)); }
};

Value loadOf(const QString& name, const NamedColumns& columns) {
    // Shear forces of a frame program, where Vy is the first of the two.
    if (columns.holds(u"vz") && !columns.holds(u"vx")) {
        if (name == u"vy")
            return Value::Vx;
        if (name == u"vz")
            return Value::Vy;
    }
    return loadWords().value(name, Value::None);
}

} // namespace

bool isHeadingRow(const QStringList& cells) {
    const bool words = std::none_of(cells.cbegin(), cells.cend(), [](const QString& cell) {
        return std::holds_alternative<double>(cellNumber(cell));
    });
    return words && std::any_of(cells.cbegin(), cells.cend(), [](const QString& cell) {
               return loadWords().contains(withoutDesignSign(wordsOf(cell).name));
           });
}

Headings headingsOf(const QStringList& cells) {
    NamedColumns columns;
    for (const QString& cell : cells)
        columns.names += withoutDesignSign(wordsOf(cell).name);
    if (columns.holds(u"mx") && columns.holds(u"my") && !columns.holds(u"mz"))
        return HeadingTrouble{0, QStringLiteral("nagłówek ma Mx i My bez Mz - nazwij kolumny "
                                                "momentów M1 i M2")};
    if (columns.holds(u"vz") && columns.holds(u"vx"))
        return HeadingTrouble{0, QStringLiteral("nagłówek ma Vx i Vz - nazwij kolumny sił "
                                                "poziomych Vx i Vy")};
    QList<Heading> headings;
    for (int i = 0; i < cells.size(); ++i) {
        Heading heading;
        heading.load = loadOf(columns.names[i], columns);
        if (heading.load != Value::None) {
            heading.is = Heading::Is::Load;
            if (std::any_of(headings.cbegin(), headings.cend(),
                            [&](const Heading& one) { return one.load == heading.load; }))
                return HeadingTrouble{
                    i + 1, QStringLiteral("\"%1\" - drugi raz to samo obciążenie").arg(cells[i])};
            const bool moment = heading.load == Value::M1 || heading.load == Value::M2;
            const auto factor = factorOf(wordsOf(cells[i]).unit, moment);
            if (!factor)
                return HeadingTrouble{i + 1,
                                      QStringLiteral("\"%1\" - nieznana jednostka").arg(cells[i])};
            heading.factor = *factor;
        } else if (isNameWord(columns.names[i])) {
            heading.is = Heading::Is::Name;
        }
        headings += heading;
    }
    return headings;
}

QString headingOf(Value load) {
    switch (load) {
    case Value::N:
        return QStringLiteral("N [kN]");
    case Value::M1:
        return QStringLiteral("M1 [kNm]");
    case Value::M2:
        return QStringLiteral("M2 [kNm]");
    case Value::Vx:
        return QStringLiteral("Vx [kN]");
    case Value::Vy:
        return QStringLiteral("Vy [kN]");
    default:
        return {};
    }
}

} // namespace ferna::tables
