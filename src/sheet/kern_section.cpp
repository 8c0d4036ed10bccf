#include "analysis/solve.h"
#include "sheet/descriptions.h"
#include "sheet/numbers.h"
#include "sheet/sections.h"

namespace ferna::sheet {

namespace {

/// Working moments as the calculation takes them, kG cm.
Stan_przypadku working(const equilibrium::Load& load) {
    Stan_przypadku s;
    s.M1n = std::fabs(load.M1);
    s.M2n = std::fabs(load.M2);
    Ustal_momenty(s);
    return s;
}

/// The moment in kG cm, or what stands for one that vanishes.
Equation workingMoment(Maker& maker, const CaseSheet& one, int axis, double taken) {
    const int c = one.number;
    const QString index = QString::number(axis);
    const QString id = QStringLiteral("Mk%1").arg(axis);
    const QString symbol = QStringLiteral("M_%1,k").arg(axis);
    const Quantity* const M = maker.at(c, QStringLiteral("M%1").arg(axis));
    const Expression formula =
        functionOf(QStringLiteral("abs"), {formulaOf(momentInKilogramsClause, std::vector{M})});
    constexpr double same = 1e-6;
    if (std::fabs(valueOf(formula) - taken) <= same * taken)
        return {
            maker.computed(c, id, symbol, QStringLiteral("kGcm"), formula, digits(7)), nullptr, {}};
    return {maker.given(c, id, symbol, taken, QStringLiteral("kGcm"), digits(7)), nullptr,
            maker.text()(QStringLiteral("kern.small"), {index})};
}

void addEccentricities(Maker& maker, const CaseSheet& one, Equations& rows) {
    const int c = one.number;
    const Stan_przypadku s = working(one.load);
    const Quantity* const N =
        maker.computed(c, QStringLiteral("Nk"), QStringLiteral("N_k"), forceInKilogramsClause,
                       {maker.at(c, QStringLiteral("N"))}, digits(7));
    rows.rows.push_back({N, nullptr, {}});
    rows.rows.push_back(workingMoment(maker, one, 1, s.M1k));
    rows.rows.push_back(workingMoment(maker, one, 2, s.M2k));
    const Quantity* const ex =
        maker.computed(c, QStringLiteral("ex"), QStringLiteral("e_x"), eccentricityClause,
                       {maker.at(c, QStringLiteral("Mk1")), N}, digits(5));
    const Quantity* const ey =
        maker.computed(c, QStringLiteral("ey"), QStringLiteral("e_y"), eccentricityClause,
                       {maker.at(c, QStringLiteral("Mk2")), N}, digits(5));
    const Quantity* const e = maker.computed(c, QStringLiteral("e"), QStringLiteral("e"),
                                             eccentricityLengthClause, {ex, ey}, digits(5));
    const Quantity* const alpha = maker.computed(c, QStringLiteral("alpha"), QStringLiteral("α"),
                                                 directionClause, {ex, ey}, digits(5));
    for (const Quantity* const made : {ex, ey, e, alpha})
        rows.rows.push_back({made, nullptr, {}});
}

void addKern(Maker& maker, const CaseSheet& one, Equations& rows) {
    const int c = one.number;
    const auto centimetres = [&](const char* id, const char* of) {
        static constexpr Clause clause{{}, {u"L", u"cm"}, u"{L} / 10", {{{u"L", u"mm"}}}};
        const QString name = QString::fromLatin1(id);
        if (const Quantity* const made = maker.find(0, name))
            return made;
        const Quantity* const made =
            maker.computed(0, name, QString::fromLatin1(of) + QStringLiteral("_k"), clause,
                           {maker.at(0, QString::fromLatin1(of))}, digits(6));
        rows.rows.push_back({made, nullptr, {}});
        return made;
    };
    const Quantity* const L = centimetres("Lk", "L");
    const Quantity* const B = centimetres("Bk", "B");
    const Quantity* const r =
        maker.computed(c, QStringLiteral("r"), QStringLiteral("r"), kernRadiusClause,
                       {L, B, maker.at(c, QStringLiteral("alpha"))}, digits(5));
    const double e = maker.at(c, QStringLiteral("e"))->value;
    const bool inside = one.told != nullptr ? one.wholePlate() : !(r->value < e);
    rows.rows.push_back(
        {r, nullptr,
         maker.text()(inside ? QStringLiteral("kern.inside") : QStringLiteral("kern.outside"))});
}

/// The stress at the corner of a plate that is compressed as a whole.
void addWholePlate(Maker& maker, const CaseSheet& one, Equations& rows) {
    const int c = one.number;
    const Quantity* const L = maker.at(0, QStringLiteral("Lk"));
    const Quantity* const B = maker.at(0, QStringLiteral("Bk"));
    const Quantity* const Wx = maker.computed(c, QStringLiteral("Wx"), QStringLiteral("W_x"),
                                              sectionModulusClause, {B, L}, digits(6));
    const Quantity* const Wy = maker.computed(c, QStringLiteral("Wy"), QStringLiteral("W_y"),
                                              sectionModulusClause, {L, B}, digits(6));
    const Quantity* const stress =
        maker.computed(c, QStringLiteral("sigma_k"), QStringLiteral("σ_k"), cornerStressClause,
                       {maker.at(c, QStringLiteral("Nk")), L, B, maker.at(c, QStringLiteral("Mk1")),
                        Wx, maker.at(c, QStringLiteral("Mk2")), Wy},
                       digits(6));
    const Quantity* const inMPa = maker.computed(
        c, QStringLiteral("sigma_b_s"), QStringLiteral("σ_b"), stressInMegapascalsClause, {stress},
        {.told = fixedSingle(CSng(one.told->sigmaConcrete), 2)});
    for (const Quantity* const made : {Wx, Wy, stress, inMPa})
        rows.rows.push_back({made, nullptr, {}});
}

} // namespace

Equations kernEquations(Maker& maker, const CaseSheet& one) {
    Equations rows;
    if (!one.readable || !(one.load.N > 0))
        return rows;
    addEccentricities(maker, one, rows);
    addKern(maker, one, rows);
    if (one.wholePlate())
        addWholePlate(maker, one, rows);
    return rows;
}

} // namespace ferna::sheet
