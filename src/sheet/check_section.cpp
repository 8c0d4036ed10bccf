#include "sheet/descriptions.h"
#include "sheet/numbers.h"
#include "sheet/sections.h"

#include <algorithm>

namespace ferna::sheet {

namespace {

/// The checks of a case, by the search and by the exact equilibrium side by side.
class Checks {
public:
    Checks(Maker& maker, const CaseSheet& one) : maker_(maker), one_(one), c_(one.number) {
        for (const Side side : {Side::Search, Side::Exact})
            if (side == Side::Search ? one.told != nullptr : one.exact != nullptr)
                sides_.push_back(side);
        rows_.twoResults = sides_.size() > 1;
    }

    Equations all() {
        addConcrete();
        addTension();
        addShear();
        return std::move(rows_);
    }

private:
    /// A row with what `make` gives for each side.
    template <typename Make>
    void add(const Make& make, const Rich& remark = {}) {
        Equation row;
        for (const Side side : sides_)
            (row.result == nullptr ? row.result : row.exact) = make(side);
        row.remark = remark;
        if (row.result != nullptr || row.exact != nullptr)
            rows_.rows.push_back(std::move(row));
    }
    void addOnce(const Quantity* number, const Rich& remark = {}) {
        rows_.rows.push_back({number, nullptr, remark});
    }
    const Quantity* of(const char* id, Side side) const {
        return maker_.at(c_, sided(QString::fromLatin1(id), side));
    }
    const Quantity* shared(const char* id) const { return maker_.at(0, QString::fromLatin1(id)); }
    const Quantity* make(const char* id, const char* base, const char* index, Side side,
                         const Clause& clause, const Numbers& inputs, const Shown& shown) {
        return maker_.computed(c_, sided(QString::fromLatin1(id), side),
                               symbolOf(QString::fromUtf8(base), QString::fromLatin1(index), side),
                               clause, inputs, shown);
    }
    Side first() const { return sides_.front(); }

    void addConcrete() {
        add([&](Side side) {
            const Quantity* const stress = of("sigma_b", side);
            Shown shown = places(3);
            if (side == Side::Search) // as the report prints the factor
                shown.told = fixedSingle(
                    concreteRatio(CSng(one_.told->sigmaConcrete), CSng(maker_.limits->Rb)), 3);
            return make("omega", "ω", "", side, concreteRatioClause, {stress, shared("Rb")}, shown);
        });
        add(
            [&](Side side) {
                return make("u_b", "η", "b", side, doubleShareClause,
                            {of("sigma_b", side), shared("Rb")}, places(3));
            },
            concreteRemark());
    }

    /// By the larger of the two ratios.
    Rich concreteRemark() const {
        const Quantity* factor = of("omega", sides_.front());
        for (const Side side : sides_)
            if (of("omega", side)->value > factor->value)
                factor = of("omega", side);
        const double ratio = factor->value;
        if (ratio > 2)
            return maker_.text()(QStringLiteral("check.concreteNot"));
        if (ratio < 1)
            return maker_.text()(QStringLiteral("check.concreteYes"));
        return maker_.text()(QStringLiteral("check.concreteFactor"), {factor->text});
    }

    /// The stresses of the anchors on one side; none where the whole plate is compressed.
    Numbers stresses(Side side) const {
        Numbers found;
        for (int i = 1; i <= static_cast<int>(maker_.anchors.size()); ++i)
            if (const Quantity* const stress =
                    maker_.find(c_, sided(QStringLiteral("sigma_%1").arg(i), side));
                stress != nullptr && stress->value != 0)
                found.push_back(stress);
        return found;
    }

    const Quantity* largestTension(Side side) {
        if (stresses(side).empty())
            return maker_.given(c_, sided(QStringLiteral("sigma_t"), side),
                                symbolOf(QStringLiteral("σ"), QStringLiteral("t"), side), 0,
                                QStringLiteral("MPa"), places(2));
        std::vector<Expression> parts = references(stresses(side));
        parts.push_back(number(QStringLiteral("0")));
        Shown shown = places(2);
        Expression least = functionOf(QStringLiteral("min"), std::move(parts));
        if (side == Side::Search)
            shown.told = fixedSingle(CSng(valueOf(least)), 2);
        return maker_.computed(c_, sided(QStringLiteral("sigma_t"), side),
                               symbolOf(QStringLiteral("σ"), QStringLiteral("t"), side),
                               QStringLiteral("MPa"), std::move(least), shown);
    }

    void addTension() {
        const bool none = std::all_of(sides_.begin(), sides_.end(),
                                      [&](Side side) { return stresses(side).empty(); });
        add([&](Side side) { return largestTension(side); },
            maker_.text()(none ? QStringLiteral("check.noTension")
                               : QStringLiteral("check.tension")));
        add([&](Side side) {
            return make("u_t", "η", "t", side, shareClause, {of("sigma_t", side), shared("fd")},
                        places(3));
        });
        rows_.rows.back().remark = verdict("u_t");
    }

    /// Of a utilisation that stands already.
    Rich verdict(const char* id) const {
        bool kept = true;
        for (const Side side : sides_)
            if (const Quantity* const use = maker_.find(c_, sided(QString::fromLatin1(id), side)))
                kept = kept && !(use->value > 1);
        return maker_.text()(kept ? QStringLiteral("check.kept") : QStringLiteral("check.not"));
    }

    void addShear() {
        constexpr double none = 0.01; // kN
        const Quantity* const V = maker_.computed(
            c_, QStringLiteral("V"), QStringLiteral("V"), horizontalForceClause,
            {maker_.at(c_, QStringLiteral("Vx")), maker_.at(c_, QStringLiteral("Vy"))}, places(2));
        if (!(V->value > none)) {
            addOnce(V, maker_.text()(QStringLiteral("check.noShear")));
            return;
        }
        addOnce(V);
        const Quantity* const T =
            maker_.computed(c_, QStringLiteral("T"), QStringLiteral("T"), frictionForceClause,
                            {maker_.at(c_, QStringLiteral("N"))}, places(2));
        const bool friction = T->value > V->value;
        const bool side = maker_.limits->tensionSideAlone;
        addOnce(T, maker_.text()(friction ? QStringLiteral("check.friction")
                                 : side   ? QStringLiteral("check.bySide")
                                          : QStringLiteral("check.byAll")));
        if (!friction)
            addShearOfAnchors();
    }

    /// The anchors that take the shear: with the tension side alone those behind the line.
    Numbers areas(Side side) const {
        const bool alone = maker_.limits->tensionSideAlone && hasLine(side);
        Numbers found;
        for (int i = 1; i <= static_cast<int>(maker_.anchors.size()); ++i)
            if (!alone || behind(side, i))
                found.push_back(maker_.at(0, QStringLiteral("A_%1").arg(i)));
        return found;
    }
    bool hasLine(Side side) const {
        if (side == Side::Search)
            return one_.hasLine();
        return one_.exact->plane.s0 < 0 || one_.exact->neutralLine.has_value();
    }
    bool behind(Side side, int anchor) const {
        const auto slot = static_cast<std::size_t>(anchor - 1);
        if (side == Side::Search)
            return one_.told->sigmaAnchor.at(slot) != 0;
        return one_.exact->plane.at({maker_.anchors[slot].x, maker_.anchors[slot].y}) < 0;
    }

    void addShearOfAnchors() {
        add([&](Side side) -> const Quantity* {
            const Numbers taking = areas(side);
            if (taking.empty())
                return nullptr;
            return maker_.computed(c_, sided(QStringLiteral("A_V"), side),
                                   symbolOf(QStringLiteral("A"), QStringLiteral("V"), side),
                                   QStringLiteral("cm²"), sumOf(references(taking)), places(2));
        });
        if (rows_.rows.back().result == nullptr
            || (rows_.twoResults && rows_.rows.back().exact == nullptr)) {
            rows_.rows.back().remark = maker_.text()(QStringLiteral("check.noneTakes"));
            if (rows_.rows.back().result == nullptr)
                return;
        }
        const auto made = [&](Side side) {
            return maker_.find(c_, sided(QStringLiteral("A_V"), side)) != nullptr;
        };
        add([&](Side side) {
            return made(side)
                       ? make("tau", "τ", "", side, anchorShearClause,
                              {maker_.at(c_, QStringLiteral("V")), of("A_V", side)}, places(2))
                       : nullptr;
        });
        if (maker_.limits->tensionSideAlone) {
            add([&](Side side) {
                return made(side) ? make("u_v", "η", "v", side, shearUtilisationClause,
                                         {of("tau", side), shared("fv")}, places(3))
                                  : nullptr;
            });
            rows_.rows.back().remark = verdict("u_v");
            return;
        }
        add([&](Side side) {
            return make("u_i", "η", "i", side, interactionUtilisationClause,
                        {tensionOf(side), shared("fd2"), of("tau", side), shared("fv")}, places(3));
        });
        rows_.rows.back().remark = verdict("u_i");
    }

    /// The tension of the interaction. A stress that an earlier calculation has left for an anchor
    /// takes part in what the report tells.
    const Quantity* tensionOf(Side side) {
        const Quantity* const found = of("sigma_t", side);
        if (side == Side::Exact)
            return found;
        Single told = 0;
        for (int i = 1; i <= static_cast<int>(maker_.anchors.size()); ++i)
            told = std::min(told, maker_.input().stan.wyniki.Sigma_kotwy(i)(c_));
        if (static_cast<double>(told) == found->value)
            return found;
        const Quantity* const left =
            maker_.given(c_, QStringLiteral("sigma_left"), QStringLiteral("σ_left"), told,
                         QStringLiteral("MPa"), {.told = fixedSingle(told, 2)});
        addOnce(left, maker_.text()(QStringLiteral("check.left")));
        return left;
    }

    Maker& maker_;
    const CaseSheet& one_;
    int c_;
    std::vector<Side> sides_;
    Equations rows_;
};

} // namespace

Equations checkEquations(Maker& maker, const CaseSheet& one) {
    return Checks(maker, one).all();
}

} // namespace ferna::sheet
