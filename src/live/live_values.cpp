#include "live/live_values.h"

#include "command/entered_equilibria.h"
#include "design/material_tables.h"
#include "notes/stress_words.h"
#include "runtime/format.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <array>

namespace ferna::live {

namespace {

std::optional<Double> number(const QString& field) {
    try {
        const Double value = CDbl(field);
        return std::isfinite(value) ? std::optional(value) : std::nullopt;
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

/// What is wrong about a typed number, with the name of its field.
QString wrong(const QString& name, const QString& typed) {
    constexpr int longest = 30;
    if (typed.trimmed().isEmpty())
        return QStringLiteral("%1: pole jest puste").arg(name);
    const QString shown =
        typed.size() > longest ? typed.first(longest) + QStringLiteral("...") : typed;
    return QStringLiteral("%1: \u201e%2\u201d nie jest liczbą").arg(name, shown);
}

QString wrongOfBase(const Stan& stan, const InputFields& fields) {
    struct Field {
        QString name;
        const QString& typed;
    };
    for (const Field& field : {Field{QStringLiteral("długość blachy"), fields.Text3},
                               Field{QStringLiteral("szerokość blachy"), fields.Text4},
                               Field{QStringLiteral("współczynnik n"), fields.Text2}})
        if (!number(field.typed))
            return wrong(field.name, field.typed);
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
        if (!coreArea(stan.plyta.Fi_kotwy(i)))
            return QStringLiteral("kotwa %1: średnicy %2 mm nie ma w szeregu")
                .arg(i)
                .arg(stan.plyta.Fi_kotwy(i));
    if (!(*number(fields.Text3) > 0) || !(*number(fields.Text4) > 0))
        return QStringLiteral("blacha nie ma wymiarów: %1 x %2 mm")
            .arg(fields.Text3.trimmed(), fields.Text4.trimmed());
    return QStringLiteral("z tych danych nie da się policzyć równowagi");
}

QString wrongOfCase(const LoadRow<QString>& row, int c) {
    for (const auto& [name, typed] : {std::pair<const char*, const QString&>{"N", row.N},
                                      {"M1", row.M1},
                                      {"M2", row.M2},
                                      {"Vx", row.Vx},
                                      {"Vy", row.Vy}})
        if (!number(typed))
            return wrong(QStringLiteral("%1 przypadku %2").arg(QLatin1String(name)).arg(c), typed);
    return QStringLiteral("przypadek %1: takiego obciążenia nic nie przeniesie").arg(c);
}

QString loadsText(const equilibrium::Load& load) {
    return QStringLiteral("N = %1 kN, M1 = %2 kNm, M2 = %3 kNm")
        .arg(general(load.N), general(load.M1), general(load.M2));
}

/// Takes the cases in; false where one of them cannot be computed, and `reason` says why.
bool takeCases(LiveValues& values, const Stan& stan, const InputFields& fields,
               const equilibrium::Base& base, const std::vector<equilibrium::Anchor>& anchors) {
    const std::optional<CheckLimits> limits = limitsOf(stan, fields);
    if (!limits)
        values.withoutChecks = QStringLiteral(
            "Bez sprawdzeń: wybrana stal kotew nie ma wytrzymałości dla tej średnicy "
            "albo nie została jeszcze opisana.");
    const int cases = std::clamp<int>(stan.obciazenia.Liczba_przyp, 0, MaxCases);
    for (int c = 1; c <= cases; ++c) {
        const LoadRow<QString>& row = fields.loads.at(static_cast<std::size_t>(c - 1));
        const std::optional<equilibrium::Load> load = enteredLoad(fields, c);
        const std::optional<Double> Vx = number(row.Vx);
        const std::optional<Double> Vy = number(row.Vy);
        if (!load || !Vx || !Vy) {
            values.reason = wrongOfCase(row, c);
            return false;
        }
        PictureCase one{c, base.solve(*load), {}};
        if (limits)
            one.used = utilisation(one.found, *load, {*Vx, *Vy}, *limits, anchors);
        values.cases.push_back(one);
        values.loads += loadsText(*load);
    }
    return true;
}

} // namespace

std::optional<CheckLimits> limitsOf(const Stan& stan, const InputFields& fields) {
    try {
        return enteredLimits(stan, fields);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

LiveValues liveValues(const Stan& stan, const InputFields& fields) {
    LiveValues values;
    const std::optional<equilibrium::Base> base = enteredBase(stan, fields);
    const auto anchors = enteredAnchors(stan.plyta);
    if (!base || !anchors) {
        values.reason = wrongOfBase(stan, fields);
        return values;
    }
    values.plate.length = *number(fields.Text3);
    values.plate.width = *number(fields.Text4);
    for (std::size_t i = 0; i < anchors->size(); ++i)
        values.plate.anchors.push_back({(*anchors)[i].x, (*anchors)[i].y,
                                        stan.plyta.Fi_kotwy(static_cast<int>(i) + 1),
                                        (*anchors)[i].area});
    if (takeCases(values, stan, fields, *base, *anchors) && !pictureOf(values, 0).drawable())
        values.reason = QStringLiteral("z tych danych nie da się policzyć równowagi");
    return values;
}

QString caseTitle(int number) {
    return QStringLiteral("Przypadek %1").arg(number);
}

PictureValues pictureOf(const LiveValues& values, int which) {
    PictureValues picture = values.plate;
    picture.title = which == 0 ? envelopeTitle : caseTitle(which);
    if (which == 0) {
        picture.cases = values.cases;
    } else if (const auto c = static_cast<std::size_t>(which - 1); c < values.cases.size()) {
        picture.cases = {values.cases[c]};
        picture.loads = values.loads.value(which - 1);
    }
    return picture;
}

} // namespace ferna::live
