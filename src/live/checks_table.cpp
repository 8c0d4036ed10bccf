#include "live/checks_table.h"

#include "notes/stress_words.h"
#include "runtime/format.h"

namespace ferna::live {

namespace {

QString nameOf(Check check) {
    return checkNames().at(static_cast<int>(check));
}

/// A pressure above Rb is borne where the concrete spreads it: with at least this factor.
QString bearingText(Check check, Double factor) {
    if (check != Check::Concrete || factor < 1)
        return {};
    return QStringLiteral("wsp. docisku ") + Format(factor, u"0.00");
}

/// Shear of a case without any, or that friction takes.
bool applies(Check check, Double exact, Double told) {
    return check == Check::Concrete || check == Check::Tension || exact > 0 || told > 0;
}

CheckCell cellOf(const PictureCase& one, const std::optional<Utilisation>& told, Check check) {
    CheckCell cell;
    const QString start = QStringLiteral("%1, %2: ").arg(caseTitle(one.number), nameOf(check));
    if (!one.found.exists) {
        cell.verdict = Verdict::Exceeded;
        cell.exact = QStringLiteral("brak równowagi");
        cell.words = start + QStringLiteral("słup się przewraca");
        return cell;
    }
    const Double exact = one.used ? one.used->of(check) : 0;
    const Double wasTold = told ? told->of(check) : 0;
    if (!one.used || !applies(check, exact, wasTold)) {
        cell.exact = QStringLiteral("\u2013");
        cell.words = start + QStringLiteral("nie dotyczy");
        return cell;
    }
    cell.verdict = verdictOf(exact);
    cell.exact = utilisationText(exact);
    cell.words = start + cell.exact + QStringLiteral(", ") + verdictWord(*cell.verdict);
    if (check != Check::Concrete)
        cell.anchor = one.used->anchor;
    cell.bearing = bearingText(check, one.used->bearingFactor);
    if (!cell.bearing.isEmpty())
        cell.words += QStringLiteral("; potrzebny ") + cell.bearing;
    if (cell.anchor > 0)
        cell.words += QStringLiteral("; kotwa %1").arg(cell.anchor);
    if (told) {
        cell.told = QStringLiteral("Oblicz: ") + utilisationText(wasTold);
        cell.differs = differ(wasTold, exact);
        cell.words += QStringLiteral(". ") + cell.told;
        if (cell.differs)
            cell.words += QStringLiteral(", różnica ponad 2 %");
    }
    return cell;
}

} // namespace

std::vector<CheckRow> checksTable(const LiveValues& values, const ToldChecks& told) {
    std::vector<CheckRow> rows;
    for (const PictureCase& one : values.cases) {
        CheckRow row;
        for (const Check check : allChecks)
            row.at(static_cast<std::size_t>(check)) =
                cellOf(one, told.at(static_cast<std::size_t>(one.number - 1)), check);
        rows.push_back(std::move(row));
    }
    return rows;
}

QStringList checkNames() {
    return {QStringLiteral("Beton"), QStringLiteral("Rozciąganie"), QStringLiteral("Ścinanie"),
            QStringLiteral("Interakcja")};
}

} // namespace ferna::live
