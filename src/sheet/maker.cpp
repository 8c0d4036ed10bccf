#include "sheet/maker.h"

#include "sheet/numbers.h"

#include <stdexcept>

namespace ferna::sheet {

namespace {

QString printed(double value, const Shown& shown) {
    if (!shown.told.isEmpty())
        return shown.told;
    return shown.decimals >= 0 ? fixed(value, shown.decimals) : significant(value, shown.digits);
}

/// The materials as the calculation took them, or as one would take them.
std::optional<CheckLimits> limitsOf(const SheetInput& input) {
    if (!input.hasResults)
        return enteredLimits(input.stan, input.record.given().fields);
    const Materialy& m = input.stan.materialy;
    return CheckLimits{.Rb = m.Rb_betonu,
                       .fd = m.Fd_kotwy,
                       .fd2 = m.Fd2_kotwy,
                       .fv = m.Fv_kotwy,
                       .tensionSideAlone = input.stan.opcje.Hsily_wszystkie != 0};
}

double typedNumber(const QString& field) {
    try {
        return CDbl(field);
    } catch (const RunTimeError&) {
        return 0;
    }
}

CaseSheet caseSheet(const Maker& maker, int c) {
    const notes::Record& record = maker.input().record;
    const notes::Entered& entered = record.given();
    CaseSheet made;
    made.number = c;
    if (const auto load = enteredLoad(entered.fields, c)) {
        made.readable = true;
        made.load = *load;
    }
    const LoadRow<QString>& row = entered.fields.loads.at(static_cast<std::size_t>(c - 1));
    made.shear = {typedNumber(row.Vx), typedNumber(row.Vy)};
    if (maker.input().hasResults && notes::solved(record.told(c)))
        made.told = &record.told(c);
    const auto& found = entered.equilibrium(c);
    if (found && found->exists)
        made.exact = &*found;
    if (made.exact != nullptr && maker.limits)
        made.exactUse =
            utilisation(*made.exact, made.load, made.shear, *maker.limits, maker.anchors);
    return made;
}

} // namespace

Maker::Maker(const SheetInput& input) : input_(input), text_(input.stan.opcje.Nr_jezyka) {
    anchors = enteredAnchors(entered().plate).value_or(std::vector<equilibrium::Anchor>());
    limits = limitsOf(input);
    hasBase = entered().equilibria.hasBase;
    for (int c = 1; c <= entered().cases; ++c)
        cases.push_back(caseSheet(*this, c));
}

const Quantity* Maker::keep(Quantity quantity) {
    const auto key = std::make_pair(quantity.caseNumber, quantity.id);
    auto held = std::make_unique<Quantity>(std::move(quantity));
    if (!sheet_.byName.emplace(key, held.get()).second)
        throw std::logic_error("number twice: " + key.second.toStdString());
    sheet_.numbers.push_back(std::move(held));
    return sheet_.numbers.back().get();
}

const Quantity* Maker::given(int c, const QString& id, const QString& symbol, double value,
                             const QString& unit, const Shown& shown, const QString& source) {
    return keep({c, id, symbol, value, unit, printed(value, shown), {}, source});
}

const Quantity* Maker::computed(int c, const QString& id, const QString& symbol,
                                const Clause& clause, const Numbers& inputs, const Shown& shown) {
    return computed(c, id, symbol, clause.result.unit.toString(), formulaOf(clause, inputs), shown,
                    sourceText(clause.source));
}

const Quantity* Maker::computed(int c, const QString& id, const QString& symbol,
                                const QString& unit, Expression formula, const Shown& shown,
                                const QString& source) {
    const double value = valueOf(formula);
    return keep({c, id, symbol, value, unit, printed(value, shown), std::move(formula), source});
}

const Quantity* Maker::find(int c, const QString& id) const {
    for (const int owner : {c, 0})
        if (const auto found = sheet_.byName.find({owner, id}); found != sheet_.byName.end())
            return found->second;
    return nullptr;
}

const Quantity* Maker::at(int c, const QString& id) const {
    if (const Quantity* const found = find(c, id))
        return found;
    throw std::logic_error("no number: " + id.toStdString());
}

QString Maker::sourceText(const Source& source) const {
    QStringList parts;
    const auto part = [&](QStringView what, const char* key) {
        if (!what.isEmpty())
            parts += text_(QString::fromLatin1(key), {what.toString()});
    };
    part(source.standard, "source.standard");
    part(source.annex, "source.annex");
    part(source.point, "source.point");
    part(source.formula, "source.formula");
    part(source.table, "source.table");
    part(source.figure, "source.figure");
    return parts.join(QStringLiteral(", "));
}

std::vector<Expression> references(const Numbers& numbers) {
    std::vector<Expression> made;
    made.reserve(numbers.size());
    for (const Quantity* const number : numbers)
        made.push_back(reference(*number));
    return made;
}

Rich richSymbol(const QString& symbol) {
    const qsizetype index = symbol.indexOf(u'_');
    if (index < 0)
        return QStringLiteral("<i>%1</i>").arg(rich(symbol));
    return QStringLiteral("<i>%1</i><sub>%2</sub>")
        .arg(rich(symbol.left(index)), rich(symbol.mid(index + 1)));
}

} // namespace ferna::sheet
