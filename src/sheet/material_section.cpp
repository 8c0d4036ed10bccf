#include "design/material_tables.h"
#include "sheet/sections.h"

#include <algorithm>

namespace ferna::sheet {

namespace {

QString concreteNorm(const SheetInput& input) {
    return input.stan.opcje.Nr_normy == 0 || input.stan.opcje.Nr_betonu == 5
               ? QStringLiteral("PN-84/B-03264")
               : QStringLiteral("PN-B-03264:1999");
}

int steelNumber(const Maker& maker) {
    const InputFields& fields = maker.entered().fields;
    return fields.cmbStal >= 0 ? fields.cmbStal + 1 : maker.input().stan.opcje.Nr_stali;
}

QString steelName(const Maker& maker) {
    const int number = steelNumber(maker);
    return number == userSteel ? maker.input().stan.materialy.Stal_nazwa
                               : steelNames().value(number - 1);
}

Integer largestDiameter(const Plyta_i_kotwy& plate) {
    Integer largest = 0;
    for (int i = 1; i <= plate.Liczba_srub; ++i)
        largest = std::max(largest, plate.Fi_kotwy(i));
    return largest;
}

/// A property: symbol, value, meaning.
void property(Maker& maker, Equations& rows, const char* id, const QString& symbol, double value,
              const char* meaning, const QString& source) {
    rows.rows.push_back(
        {maker.given(0, QString::fromLatin1(id), symbol, value, megapascals, digits(7), source),
         nullptr, maker.text()(QString::fromLatin1(meaning))});
}

void ratio(Maker& maker, Equations& rows) {
    const QString id = QStringLiteral("n");
    if (maker.input().stan.opcje.Tryb_wsp_n == 0) {
        const Quantity* const Eb = maker.at(0, QStringLiteral("Eb"));
        const double typed = CDbl(maker.entered().fields.Text2);
        const Expression formula = formulaOf(ratioNClause, std::vector{Eb});
        // The field holds what a change of the concrete has computed.
        if (valueOf(formula) == typed) {
            rows.rows.push_back({maker.computed(0, id, id, ratioNClause, {Eb}, places(2)), nullptr,
                                 maker.text()(QStringLiteral("material.n"))});
            return;
        }
    }
    rows.rows.push_back({maker.given(0, id, id, CDbl(maker.entered().fields.Text2), {}, digits(7)),
                         nullptr, maker.text()(QStringLiteral("material.nTyped"))});
}

void addConcrete(Maker& maker, Equations& rows) {
    const SheetInput& input = maker.input();
    const QString norm = maker.text()(QStringLiteral("source.concrete"), {concreteNorm(input)});
    if (maker.limits)
        property(maker, rows, "Rb", QStringLiteral("R_b"), maker.limits->Rb, "material.Rb", norm);
    property(maker, rows, "Eb", QStringLiteral("E_b"),
             concrete(input.stan.opcje.Nr_normy, input.stan.opcje.Nr_betonu).Eb_betonu,
             "material.Eb", norm);
}

void addSteel(Maker& maker, Equations& rows) {
    if (!maker.limits)
        return;
    const QString norm = steelNumber(maker) == userSteel
                             ? maker.text()(QStringLiteral("source.user"))
                             : maker.text()(QStringLiteral("source.steel"));
    property(maker, rows, "fd", QStringLiteral("f_d"), maker.limits->fd, "material.fd", norm);
    property(maker, rows, "fd2", QStringLiteral("f_d2"), maker.limits->fd2, "material.fd2", norm);
    property(maker, rows, "fv", QStringLiteral("f_v"), maker.limits->fv, "material.fv", norm);
}

} // namespace

void addMaterials(Maker& maker) {
    const Texts& text = maker.text();
    const SheetInput& input = maker.input();
    const InputFields& fields = maker.entered().fields;
    maker.heading(1, text(QStringLiteral("material.heading")));
    const Concrete& row = concrete(input.stan.opcje.Nr_normy, input.stan.opcje.Nr_betonu);
    maker.say(fields.Option1_0 ? QStringLiteral("material.plain")
                               : QStringLiteral("material.reinforced"),
              {rich(QString::fromLatin1(row.name))});
    maker.say(QStringLiteral("material.steel"),
              {rich(steelName(maker)), QString::number(largestDiameter(maker.entered().plate))});
    Equations rows;
    addConcrete(maker, rows);
    addSteel(maker, rows);
    maker.add(std::move(rows));
    Equations moduli;
    if (maker.hasBase)
        ratio(maker, moduli);
    maker.add(std::move(moduli));
    if (!maker.limits)
        maker.say(QStringLiteral("material.noSteel"), {}, Tone::Warning);
    maker.say(QStringLiteral("material.areas"), {}, Tone::Small);
}

} // namespace ferna::sheet
