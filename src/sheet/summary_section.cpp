#include "sheet/numbers.h"
#include "sheet/sections.h"

namespace ferna::sheet {

namespace {

constexpr std::array<const char*, 4> useNames{"u_b", "u_t", "u_v", "u_i"};

/// A case on one side: its checks, the largest in bold, and what it comes to.
Row useRow(const Maker& maker, const CaseSheet& one, Side side) {
    const Texts& text = maker.text();
    Row row{cell(QString::number(one.number)),
            cell(text(side == Side::Search ? QStringLiteral("side.search")
                                           : QStringLiteral("side.exact")))};
    const Quantity* worst = nullptr;
    std::size_t governing = 0;
    std::size_t check = 0;
    for (const char* const id : useNames) {
        const Quantity* const use = maker.find(one.number, sided(QString::fromLatin1(id), side));
        row.push_back(use != nullptr ? cell(use) : cell(QStringLiteral("–")));
        if (use != nullptr && (worst == nullptr || use->value > worst->value)) {
            worst = use;
            governing = check;
        }
        ++check;
    }
    if (worst == nullptr)
        return row;
    row[2 + governing].strong = true;
    static constexpr std::array<const char*, 4> checks{"summary.concrete", "summary.tension",
                                                       "summary.shear", "summary.interaction"};
    row.push_back(cell(text(QString::fromLatin1(checks[governing]))));
    row.push_back(cell(
        text(worst->value > 1 ? QStringLiteral("summary.no") : QStringLiteral("summary.yes"))));
    row.back().strong = true;
    return row;
}

Row rowWithoutEquilibrium(const Maker& maker, const CaseSheet& one) {
    Row row{cell(QString::number(one.number)), cell(maker.text()(QStringLiteral("side.exact")))};
    row.push_back({maker.text()(QStringLiteral("summary.none")), nullptr, false, 5});
    row.push_back({maker.text()(QStringLiteral("summary.no")), nullptr, true});
    return row;
}

/// The largest values over the cases as the report gives them.
void addLargest(Maker& maker) {
    const Wyniki& r = maker.input().stan.wyniki;
    Equations rows;
    const auto largest = [&](const char* id, const char* symbol, Single value, const char* unit,
                             const char* meaning) {
        rows.rows.push_back(
            {maker.given(0, QString::fromLatin1(id), QString::fromUtf8(symbol), value,
                         QString::fromLatin1(unit), {.told = fixedSingle(value, 2)}),
             nullptr, maker.text()(QString::fromLatin1(meaning))});
    };
    largest("sigma_b_max", "σ_b,max", r.Sigma_b_max, "MPa", "summary.largestConcrete");
    largest("sigma_s_max", "σ_s,max", r.Sigma_s_max, "MPa", "summary.largestStress");
    largest("F_max", "F_max", r.Sila_kotwy_max, "kN", "summary.largestForce");
    maker.add(std::move(rows));
}

} // namespace

void addSummary(Maker& maker) {
    const Texts& text = maker.text();
    maker.heading(1, text(QStringLiteral("summary.heading")));
    Table table;
    table.caption = text(QStringLiteral("summary.caption"));
    table.columns = {{Column::Align::Centre, 1},   {Column::Align::Left, 1.4},  {}, {}, {}, {},
                     {Column::Align::Centre, 1.5}, {Column::Align::Centre, 1.5}};
    table.head = {{headCell(text(QStringLiteral("case"))), headCell({}),
                   headCell(text(QStringLiteral("summary.concrete"))
                            + QStringLiteral("<br/><i>η<sub>b</sub></i>")),
                   headCell(text(QStringLiteral("summary.tension"))
                            + QStringLiteral("<br/><i>η<sub>t</sub></i>")),
                   headCell(text(QStringLiteral("summary.shear"))
                            + QStringLiteral("<br/><i>η<sub>v</sub></i>")),
                   headCell(text(QStringLiteral("summary.interaction"))
                            + QStringLiteral("<br/><i>η<sub>i</sub></i>")),
                   headCell(text(QStringLiteral("summary.governs"))),
                   headCell(text(QStringLiteral("summary.verdict")))}};
    for (const CaseSheet& one : maker.cases) {
        if (one.told != nullptr && maker.limits)
            table.rows.push_back(useRow(maker, one, Side::Search));
        if (one.exact != nullptr && maker.limits)
            table.rows.push_back(useRow(maker, one, Side::Exact));
        else if (maker.hasBase && one.readable)
            table.rows.push_back(rowWithoutEquilibrium(maker, one));
    }
    if (table.rows.empty()) {
        maker.say(QStringLiteral("summary.nothing"));
        return;
    }
    maker.add(std::move(table));
    if (maker.input().hasResults)
        addLargest(maker);
    maker.say(QStringLiteral("summary.explain"), {}, Tone::Small);
}

} // namespace ferna::sheet
