#include "plate/clauses.h"
#include "plate/load_charts.h"
#include "plate/plate_tables.h"
#include "sheet/numbers.h"
#include "sheet/sections.h"
#include "sheet/sketch_picture.h"

namespace ferna::sheet {

namespace {

/// A check as its command calls it, and the file of its sketch.
struct PlateCheckName {
    const char* name;
    const char* sketch;
};
constexpr std::array<PlateCheckName, PlateChecks> plateCheckNames{{{"1", "szkic1"},
                                                                   {"2", "szkic2"},
                                                                   {"3.1", "szkic31"},
                                                                   {"4", ""},
                                                                   {"3.2", "szkic32"},
                                                                   {"3.3", "szkic33"},
                                                                   {"5.1", "szkic51"},
                                                                   {"5.2", "szkic52"}}};

const PlateCheckName& nameOf(int check) {
    return plateCheckNames.at(static_cast<std::size_t>(check - 1));
}

/// One check of the plate: its numbers are told apart by its number in front.
class PlateCheck {
public:
    PlateCheck(Maker& maker, const notes::PlateFacts& facts, int check)
        : maker_(maker), facts_(facts), check_(check) {}

    /// What was given, then what follows from it.
    Blocks all() {
        const Quantity* const t = thickness();
        whole(corrected(t));
        return {std::move(values_), std::move(givens_), std::move(rows_)};
    }

private:
    QString id(const char* name) const {
        return QStringLiteral("p%1_").arg(check_) + QString::fromLatin1(name);
    }
    const Quantity* given(const char* name, const char* symbol, double value, const char* unit,
                          const Rich& remark = {}) {
        const Quantity* const made =
            maker_.given(0, id(name), QString::fromUtf8(symbol), value, QString::fromLatin1(unit));
        if (remark.isEmpty())
            values_.numbers.push_back(made);
        else
            givens_.rows.push_back({made, nullptr, remark});
        return made;
    }
    const Quantity* computed(const char* name, const char* symbol, const Clause& clause,
                             const Numbers& inputs, const Shown& shown = digits(5),
                             const Rich& remark = {}) {
        const Quantity* const made =
            maker_.computed(0, id(name), QString::fromUtf8(symbol), clause, inputs, shown);
        rows_.rows.push_back({made, nullptr, remark});
        return made;
    }
    const Quantity* fd() const { return maker_.at(0, QStringLiteral("fd_plate")); }

    /// A typed force beside the largest one that was computed.
    const Quantity* force(double typed) {
        return given("S", "S", typed, "kN", compared(typed, facts_.force, "kN"));
    }
    const Quantity* pressure(const char* name, const char* symbol, double typed) {
        return given(name, symbol, typed, "MPa", compared(typed, facts_.pressure, "MPa"));
    }
    /// How a typed value stands to the largest one that was computed. The form offers it with one
    /// decimal.
    Rich compared(double typed, double found, const char* unit) const {
        constexpr double slack = 0.02;
        constexpr double rounding = 0.0501;
        const char* const key = std::fabs(typed - found) <= rounding ? "plate.same"
                                : typed > found                      ? "plate.more"
                                : typed < (1 - slack) * found        ? "plate.less"
                                                                     : "plate.little";
        return maker_.text()(QString::fromLatin1(key), {fixed(found, 2), QString::fromLatin1(unit),
                                                        percentText(1 - typed / found)});
    }

    const Quantity* thickness() {
        const PlateInputs& in = facts_.inputs;
        switch (check_) {
        case 1:
            return tensionStrip();
        case 2:
            return compressionStrip();
        case 3:
            return fragment(in.check3);
        case 4:
            return columnBase();
        case 5:
            return fragment(in.check5);
        case 6:
            return fragment(in.check6);
        case 7:
            return anchorFragment(in.check7, threeEdgesCurveClause, threeEdgesCoefficientClause);
        default:
            return anchorFragment(in.check8, twoEdgesCurveClause, twoEdgesCoefficientClause);
        }
    }

    const Quantity* tensionStrip() {
        const auto& in = facts_.inputs.check1;
        const Quantity* const S = force(in.S);
        const Quantity* const ca = given("ca", "c_a", in.ca, "mm");
        const Quantity* const bs = given("bs", "b_s", in.bs, "mm");
        return computed("t", "t", tensionStripThicknessClause, {S, ca, bs, fd()});
    }

    const Quantity* compressionStrip() {
        const auto& in = facts_.inputs.check2;
        const Quantity* const ca = given("ca", "c_a", in.ca, "mm");
        const Quantity* const k = pressure("sk", "σ_k", in.sigma_k);
        const Quantity* const p = pressure("sp", "σ_p", in.sigma_p);
        const Quantity* const M = computed("M", "M",
                                           in.sigma_k < in.sigma_p ? momentOfFallingStressClause
                                                                   : momentOfRisingStressClause,
                                           {ca, k, p}, digits(6));
        return computed("t", "t", compressionStripThicknessClause, {M, fd()});
    }

    const Quantity* fragment(const PlateInputs::Fragment& in) {
        const Quantity* const sigma = pressure("sigma", "σ", in.sigma);
        const Quantity* const l = given("l", "l", in.l, "mm");
        const Quantity* const b = given("b", "b", in.b, "mm");
        const Quantity* const r = computed("r", "r", sideRatioClause, {b, l});
        const FragmentInterval table = fragmentInterval(check_, sideRatio(in.b, in.l));
        const Rich read =
            maker_.text()(QStringLiteral("plate.interval"),
                          {significant(table.r0, 4), significant(table.r0 + table.d, 4)});
        const Quantity* const r0 = given("r0", "r_0", table.r0, "", read);
        const Quantity* const w0 = given("w0", "ω_0", table.y0, "");
        const Quantity* const w1 = given("w1", "ω_1", table.y1, "");
        const Quantity* const d = given("d", "d", table.d, "");
        const Quantity* const share =
            computed("wl", "ω·l", coefficientTimesLengthClause, {w0, w1, r, r0, d, l});
        return computed("t", "t", edgeFragmentThicknessClause, {share, sigma, fd()});
    }

    const Quantity* columnBase() {
        const auto& in = facts_.inputs.check4;
        const ColumnProfile& profile = columnProfile(in.Nr_profilu);
        const Quantity* const sigma = pressure("sigma", "σ", in.sigma);
        const Rich name = rich(QString::fromLatin1(profile.name));
        const Quantity* const h = given("h", "h", profile.h, "mm", name);
        const Quantity* const s = given("s", "s", profile.s, "mm");
        const Quantity* const k = given("k", "k", profile.k, "");
        return computed("t", "t", columnBaseThicknessClause, {sigma, h, s, k, fd()});
    }

    /// The coefficient on one curve, from the straight piece of it that serves a/c. A curve that
    /// the chart does not have, or that has ended, counts as 0.
    const Quantity* readCurve(int number, Integer curve, const ChartReading& read,
                              const Clause& clause, const Quantity* q) {
        const QString n = QString::number(number);
        const QString ratio = significant(curve / 10.0, 3);
        const auto name = [&](const char* base) { return QByteArray(base) + n.toUtf8(); };
        const auto piece = chartPiece(check_, curve, read.q);
        if (!piece)
            return given(name("y").constData(), name("y_").constData(), 0, "",
                         maker_.text()(QStringLiteral("plate.noCurve"), {ratio}));
        const auto of = [&](const char* base, const char* symbol, Single value) {
            return given(name(base).constData(), name(symbol).constData(), value, "");
        };
        const Quantity* const x0 = of("x0", "q_0,", piece->x0);
        const Quantity* const y0 = of("y0", "y_0,", piece->y0);
        const Quantity* const yr = of("yr", "y_r,", piece->y1);
        const Quantity* const w = of("w", "w_", piece->w);
        return computed(name("y").constData(), name("y_").constData(), clause, {x0, y0, yr, w, q},
                        digits(5), maker_.text()(QStringLiteral("plate.onCurve"), {ratio}));
    }

    const Quantity* anchorFragment(const PlateInputs::AnchorFragment& in, const Clause& curve,
                                   const Clause& chart) {
        const Quantity* const S = force(in.S);
        const Quantity* const b = given("b", "b", in.b, "mm");
        const Quantity* const a = given("a", "a", in.a, "mm");
        const Quantity* const c = given("c", "c", in.c, "mm");
        const Quantity* const p = computed("p", "p", chartWidthClause, {b, c});
        const Quantity* const q = computed("q", "q", chartPlaceClause, {a, c});
        const ChartReading read = Interpoluj_wykres(check_, in.b, in.a, in.c);
        const double step = check_ == 8 && read.row.k2 >= 30 ? 0.5 : 0.2;
        const Quantity* const L = given(
            "L", "L", read.row.L, "",
            maker_.text()(QStringLiteral("plate.curves"), {significant(read.row.k1 / 10.0, 3),
                                                           significant(read.row.k2 / 10.0, 3)}));
        const Quantity* const y1 = readCurve(1, read.row.k1, read, curve, q);
        const Quantity* const y2 = readCurve(2, read.row.k2, read, curve, q);
        const Quantity* const d = given("d", "d", step, "");
        const Quantity* const y = computed("y", "y", chart, {y1, y2, p, L, d});
        return computed("t", "t", anchorFragmentThicknessClause, {S, y, fd()});
    }

    /// For a plate thicker than its strength holds: the linear correction of the grade.
    const Quantity* corrected(const Quantity* t) {
        const Materialy& m = maker_.input().stan.materialy;
        if (!(Int(t->value + 0.5) > m.Max_grubosc))
            return t;
        constexpr double lower = 10; // MPa, of the grades 18G2 and 18G2AV; the others stay
        const bool falls = facts_.grade == 4 || facts_.grade == 5;
        const Quantity* const fd1 =
            given("fd1", "f_d,1", m.Fd_blachy - (falls ? lower : 0), "MPa",
                  maker_.text()(QStringLiteral("plate.thick"), {QString::number(m.Max_grubosc)}));
        return computed("t1", "t_1", thicknessAtStrengthClause, {t, fd(), fd1});
    }

    /// Whole millimetres as the report gives them. A thickness so near to a half that the report's
    /// numbers of seven digits fall on its other side is told as it is.
    void whole(const Quantity* t) {
        const double told = facts_.required.at(static_cast<std::size_t>(check_ - 1));
        const Expression formula = formulaOf(wholeThicknessClause, std::vector{t});
        const Rich remark = maker_.text()(QStringLiteral("plate.needed"));
        if (valueOf(formula) == told)
            computed("g", "g", wholeThicknessClause, {t}, places(0), remark);
        else
            rows_.rows.push_back(
                {maker_.given(0, id("g"), QStringLiteral("g"), told, QStringLiteral("mm")), nullptr,
                 remark});
    }

    Maker& maker_;
    const notes::PlateFacts& facts_;
    int check_;
    Values values_;
    Equations givens_; ///< with a remark each
    Equations rows_;
};

/// False for a result that an earlier opening of the form has left: nothing was typed for it in
/// this one.
bool wasEntered(const PlateInputs& in, int check) {
    switch (check) {
    case 5:
        return in.check5.l != 0;
    case 6:
        return in.check6.l != 0;
    case 7:
        return in.check7.S != 0;
    case 8:
        return in.check8.S != 0;
    default:
        return true; // the form clears these when it opens
    }
}

void addCheck(Maker& maker, const notes::PlateFacts& facts, int check) {
    const Texts& text = maker.text();
    const PlateCheckName& name = nameOf(check);
    maker.heading(3, text(QStringLiteral("plate.check"),
                          {QString::fromLatin1(name.name),
                           text(QStringLiteral("plate.fragment%1").arg(check))}));
    if (!wasEntered(facts.inputs, check)) {
        maker.say(QStringLiteral("plate.left"),
                  {QString::number(facts.required.at(static_cast<std::size_t>(check - 1)))},
                  Tone::Warning);
        return;
    }
    Blocks blocks = PlateCheck(maker, facts, check).all();
    if (*name.sketch == '\0') {
        for (Block& block : blocks)
            maker.add(std::move(block));
        return;
    }
    auto beside = std::make_shared<Beside>();
    beside->leftShare = 0.22;
    constexpr double width = 36; // mm
    beside->left.push_back(sketchPicture(QString::fromLatin1(name.sketch), width));
    beside->right = std::move(blocks);
    maker.add(std::shared_ptr<const Beside>(beside));
}

QString gradeName(const notes::PlateFacts& facts) {
    return facts.steelName.isEmpty() ? plateSteelNames().value(facts.grade - 1) : facts.steelName;
}

void tellRefused(Maker& maker, const notes::PlateFacts& facts) {
    QStringList withdrawn;
    for (int check = 1; check <= PlateChecks; ++check) {
        const auto at = static_cast<std::size_t>(check - 1);
        const QString name = QString::fromLatin1(nameOf(check).name);
        if (facts.refused.at(at) && facts.why.at(at).isEmpty())
            maker.say(QStringLiteral("plate.excluded"), {name}, Tone::Warning);
        else if (facts.refused.at(at))
            maker.say(QStringLiteral("plate.refused"),
                      {name, rich(QString(facts.why.at(at)).replace(u'\n', u' '))}, Tone::Warning);
        else if (facts.withdrawn.at(at))
            withdrawn += name;
    }
    if (!withdrawn.isEmpty())
        maker.say(QStringLiteral("plate.withdrawn"), {withdrawn.join(QStringLiteral(", "))});
}

} // namespace

void addPlate(Maker& maker) {
    const std::optional<notes::PlateFacts>& facts = maker.input().record.plate();
    maker.heading(1, maker.text()(QStringLiteral("plate.heading")));
    if (!maker.input().hasResults || !facts || !facts->accepted) {
        maker.say(QStringLiteral("plate.none"));
        if (facts)
            tellRefused(maker, *facts);
        return;
    }
    Equations rows;
    rows.rows.push_back({maker.given(0, QStringLiteral("fd_plate"), QStringLiteral("f_d"),
                                     maker.input().stan.materialy.Fd_blachy, QStringLiteral("MPa")),
                         nullptr,
                         maker.text()(QStringLiteral("plate.steel"), {rich(gradeName(*facts))})});
    rows.rows.push_back({maker.given(0, QStringLiteral("g_accepted"), QStringLiteral("g"),
                                     *facts->accepted, QStringLiteral("mm")),
                         nullptr, maker.text()(QStringLiteral("plate.accepted"))});
    maker.add(std::move(rows));
    for (int check = 1; check <= PlateChecks; ++check)
        if (facts->required.at(static_cast<std::size_t>(check - 1)) > 0)
            addCheck(maker, *facts, check);
    tellRefused(maker, *facts);
}

} // namespace ferna::sheet
