#include "sheet/sections.h"

#include <algorithm>
#include <cmath>

namespace ferna::sheet {

namespace {

using combinations::Digest;
using combinations::DigestRow;
using combinations::RowNumber;

/// How a check is called: in identifiers, in symbols, in the texts.
struct UsedCheckName {
    Check check;
    const char* id;
    const char* text;
};
constexpr std::array<UsedCheckName, 4> usedCheckNames{
    {{Check::Concrete, "b", "summary.concrete"},
     {Check::Tension, "t", "summary.tension"},
     {Check::Shear, "v", "summary.shear"},
     {Check::Interaction, "i", "summary.interaction"}}};

const UsedCheckName& nameOf(Check check) {
    return *std::find_if(usedCheckNames.begin(), usedCheckNames.end(),
                         [check](const UsedCheckName& name) { return name.check == check; });
}

QString text(const Maker& maker, const char* key) {
    return maker.text()(QStringLiteral("combinations.") + QLatin1String(key));
}

QString symbolOfUse(const UsedCheckName& check, const QString& index) {
    return QStringLiteral("η_%1,%2").arg(QLatin1String(check.id), index);
}

/// A utilisation as a cell, one above the limit in bold; nothing bears an infinite one.
Cell useCell(const Quantity* number) {
    Cell made = number != nullptr ? cell(number) : cell(QStringLiteral("∞"));
    made.strong = number == nullptr || number->value > 1;
    return made;
}

/// The utilisations of the rows taken, by row and check; null where one is infinite.
std::vector<Numbers> takenUses(Maker& maker, const Digest& digest) {
    std::vector<Numbers> uses;
    for (const DigestRow& row : digest.taken) {
        const QString place = QString::number(uses.size() + 1);
        Numbers ofRow;
        for (const Digest::Governing& one : digest.governing) {
            const UsedCheckName& check = nameOf(one.check);
            const double use = combinations::useOf(row.used, one.check);
            ofRow.push_back(std::isfinite(use) ? maker.given(
                                0, QStringLiteral("k%1_").arg(place) + QLatin1String(check.id),
                                symbolOfUse(check, place), use, {}, places(3),
                                text(maker, "source"))
                                               : nullptr);
        }
        uses.push_back(std::move(ofRow));
    }
    return uses;
}

/// The largest use in the whole table: of the rows taken, where they hold it.
const Quantity* envelope(Maker& maker, const Digest::Governing& one, const Numbers& taken) {
    if (!std::isfinite(one.envelope))
        return nullptr;
    const UsedCheckName& check = nameOf(one.check);
    const QString id = QStringLiteral("k_max_") + QLatin1String(check.id);
    const QString symbol = symbolOfUse(check, QStringLiteral("max"));
    const bool isHeld = std::any_of(taken.begin(), taken.end(), [&](const Quantity* use) {
        return use != nullptr && use->value == one.envelope;
    });
    const bool areFinite = std::find(taken.begin(), taken.end(), nullptr) == taken.end();
    if (!isHeld || !areFinite)
        return maker.given(0, id, symbol, one.envelope, {}, places(3), text(maker, "source"));
    return maker.computed(0, id, symbol, {},
                          taken.size() == 1 ? reference(*taken.front())
                                            : functionOf(QStringLiteral("max"), references(taken)),
                          places(3));
}

/// "17, 28, 30", and how many more.
QString tiesText(const Maker& maker, const std::vector<RowNumber>& rows) {
    constexpr std::size_t named = 6;
    if (rows.size() < 2)
        return QStringLiteral("–");
    QStringList numbers;
    for (std::size_t i = 1; i < std::min(rows.size(), named + 1); ++i)
        numbers += QString::number(rows[i]);
    const QString first = numbers.join(QStringLiteral(", "));
    return rows.size() <= named + 1
               ? first
               : maker.text()(QStringLiteral("combinations.more"),
                              {first, QString::number(rows.size() - named - 1)});
}

Table governingTable(Maker& maker, const Digest& digest, const std::vector<Numbers>& uses) {
    Table table;
    table.caption = text(maker, "governing");
    table.columns = {{Column::Align::Left, 1.4},
                     {Column::Align::Right, 1},
                     {Column::Align::Right, 0.8},
                     {Column::Align::Left, 2.6},
                     {Column::Align::Left, 2.2}};
    Row head;
    for (const char* key : {"check", "envelope", "row", "name", "ties"})
        head.push_back(headCell(text(maker, key)));
    table.head = {std::move(head)};
    std::size_t place = 0;
    for (const Digest::Governing& one : digest.governing) {
        Numbers ofCheck;
        for (const Numbers& row : uses)
            ofCheck.push_back(row.at(place));
        table.rows.push_back({cell(maker.text()(QLatin1String(nameOf(one.check).text))),
                              useCell(envelope(maker, one, ofCheck)),
                              cell(QString::number(one.rows.front())), cell(rich(one.name)),
                              cell(tiesText(maker, one.rows))});
        ++place;
    }
    return table;
}

Table takenTable(Maker& maker, const Digest& digest, const std::vector<Numbers>& uses) {
    Table table;
    table.caption = text(maker, "taken");
    table.columns = {
        {Column::Align::Centre, 0.8}, {Column::Align::Right, 0.8}, {Column::Align::Left, 2.6}};
    table.head = {{headCell(maker.text()(QStringLiteral("case"))), headCell(text(maker, "row")),
                   headCell(text(maker, "name"))}};
    for (const Digest::Governing& one : digest.governing) {
        table.columns.push_back({Column::Align::Right, 1});
        table.head.front().push_back(headCell(maker.text()(QLatin1String(nameOf(one.check).text))
                                              + QStringLiteral("<br/><i>η<sub>%1</sub></i>")
                                                    .arg(QLatin1String(nameOf(one.check).id))));
    }
    std::size_t place = 0;
    for (const DigestRow& taken : digest.taken) {
        Row row{cell(QString::number(place + 1)), cell(QString::number(taken.row)),
                cell(rich(taken.combination.name))};
        for (const Quantity* const use : uses.at(place))
            row.push_back(useCell(use));
        table.rows.push_back(std::move(row));
        ++place;
    }
    return table;
}

} // namespace

void addCombinations(Maker& maker, const Digest& digest) {
    maker.heading(1, text(maker, "heading"));
    maker.say(QStringLiteral("combinations.about"), {rich(digest.source)});
    maker.add(Equations{{{maker.given(0, QStringLiteral("k_rows"), QStringLiteral("n_r"),
                                      static_cast<double>(digest.rows), {}, places(0)),
                          nullptr, text(maker, "rows")},
                         {maker.given(0, QStringLiteral("k_refused"), QStringLiteral("n_o"),
                                      static_cast<double>(digest.refused), {}, places(0)),
                          nullptr, text(maker, "refused")}}});
    const std::vector<Numbers> uses = takenUses(maker, digest);
    maker.add(governingTable(maker, digest, uses));
    maker.add(takenTable(maker, digest, uses));
    maker.say(QStringLiteral("combinations.explain"), {}, Tone::Small);
}

} // namespace ferna::sheet
