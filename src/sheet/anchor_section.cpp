#include "design/catalogue.h"
#include "selection/anchor_catalogue.h"
#include "selection/clauses.h"
#include "sheet/numbers.h"
#include "sheet/sections.h"
#include "sheet/sketch_picture.h"

namespace ferna::sheet {

namespace {

/// The thickness of base plate and grout as the last line of the anchor's block holds it.
std::optional<int> combinedThickness(const Stan& stan) {
    const QString& line = stan.raport.Wiersze_kotwy(stan.raport.Liczba_wierszy_kotwy);
    const QString& words = stan.Teksty(phrase::CombinedThickness);
    if (!line.startsWith(words))
        return std::nullopt;
    bool isNumber = false;
    const int g = line.mid(words.size()).section(u' ', 0, 0).toInt(&isNumber);
    return isNumber ? std::optional(g) : std::nullopt;
}

/// The lengths of the anchor that was chosen.
class Chosen {
public:
    Chosen(Maker& maker, int g)
        : maker_(maker), stan_(maker.input().stan), nr_(stan_.wyniki.Nr_kotwy_max),
          d_(stan_.plyta.Fi_kotwy(nr_)), row_(catalogueAnchor(d_)), g_(g) {}

    bool hooked() const { return stan_.raport.Typ_szkicu_kotwy == 1; }

    Equations all() {
        dNumber_ = given("d", "d", d_, millimetres, "anchor.d");
        addCapacity();
        gNumber_ = given("g", "g", g_, millimetres, "anchor.g");
        thread_ = given("Ld", "L_d", row_.Ld, millimetres, "anchor.thread");
        if (hooked())
            addHooked();
        else
            addPlated();
        return std::move(rows_);
    }

    QString designation() const {
        const QString whole = maker_.at(0, QStringLiteral("k_Lc"))->text;
        return (hooked() ? QStringLiteral("F-") : QStringLiteral("P-")) + QString::number(d_) + u'-'
               + QString(whole).remove(QChar(0x202F));
    }

private:
    const Quantity* given(const char* name, const char* symbol, double value, const QString& unit,
                          const char* meaning) {
        const Quantity* const made =
            maker_.given(0, QStringLiteral("k_") + QString::fromLatin1(name),
                         QString::fromUtf8(symbol), value, unit);
        rows_.rows.push_back(
            {made, nullptr,
             *meaning == '\0' ? QString() : maker_.text()(QString::fromLatin1(meaning))});
        return made;
    }
    const Quantity* computed(const char* name, const char* symbol, const Clause& clause,
                             const Numbers& inputs, const char* meaning) {
        return computed(name, symbol, formulaOf(clause, inputs), meaning);
    }
    const Quantity* computed(const char* name, const char* symbol, Expression formula,
                             const char* meaning) {
        const Quantity* const made =
            maker_.computed(0, QStringLiteral("k_") + QString::fromLatin1(name),
                            QString::fromUtf8(symbol), millimetres, std::move(formula), places(0));
        rows_.rows.push_back({made, nullptr, maker_.text()(QString::fromLatin1(meaning))});
        return made;
    }

    void addCapacity() {
        const Quantity* const A =
            given("A", "A", stan_.plyta.Pole_kotwy(nr_), QStringLiteral("cm²"), "");
        const Single told = anchorCapacity(A->value, stan_.materialy.Fd_kotwy);
        const Quantity* const N = maker_.computed(
            0, QStringLiteral("k_N"), QStringLiteral("N_R"), anchorCapacityClause,
            {A, maker_.at(0, QStringLiteral("fd"))}, {.told = fixedSingle(told, 1)});
        rows_.rows.push_back({N, nullptr, maker_.text()(QStringLiteral("anchor.capacity"))});
        const double force = std::fabs(static_cast<double>(stan_.wyniki.Sila_kotwy_max));
        static constexpr Clause use{
            {}, {u"η", u""}, u"abs({F}) / {N}", {{{u"F", u"kN"}, {u"N", u"kN"}}}};
        const Quantity* const share =
            maker_.computed(0, QStringLiteral("k_use"), QStringLiteral("η_N"), use,
                            {maker_.at(0, QStringLiteral("F_max")), N}, places(3));
        rows_.rows.push_back({share, nullptr,
                              maker_.text()(force > N->value ? QStringLiteral("check.not")
                                                             : QStringLiteral("check.kept"))});
    }

    void addHooked() {
        constexpr Integer thin = 20; // mm, below which the bend is narrow
        computed("D", "D", d_ < thin ? bendOfThinAnchorClause : bendDiameterClause, {dNumber_},
                 "anchor.bend");
        const Quantity* const Lh =
            computed("Lh", "L_h", hookLengthClause, {dNumber_}, "anchor.hook");
        const Quantity* Lk = nullptr;
        if (row_.Lk == 0 && row_.Ld != 0) { // taken from the core area
            const Quantity* const k = given("k", "k", stan_.materialy.Mnoznik_dlugosci,
                                            QStringLiteral("mm/cm²"), "anchor.k");
            Lk = computed("Lk", "L_k", anchorageOfAreaClause,
                          {k, maker_.at(0, QStringLiteral("k_A"))}, "anchor.anchorage");
        } else {
            Lk = given("Lk", "L_k", row_.Lk, millimetres, "anchor.catalogue");
        }
        const Quantity* const Lo =
            computed("Lo", "L_o", straightPartClause, {Lk, gNumber_, thread_}, "anchor.straight");
        computed("Lc", "L_c", hookedAnchorLengthClause, {Lo, Lh}, "anchor.whole");
    }

    void addPlated() {
        constexpr Integer leastWithRib = 48; // mm
        const Quantity* const base =
            given("Lp0", "L_p0", row_.Lp0, millimetres, "anchor.catalogue");
        const Quantity* const factor =
            given("omega", "ω", stan_.materialy.Wsp_dlugosci, {}, "anchor.omega");
        // The nearest whole number.
        const Quantity* const Lp =
            computed("Lp", "L_p",
                     functionOf(QStringLiteral("floor"),
                                {sumOf({formulaOf(anchorageOfBaseClause, std::vector{factor, base}),
                                        number(QStringLiteral("0.5"))})}),
                     "anchor.anchorage");
        given("a", "a", row_.a, millimetres, "anchor.plateSide");
        const Quantity* const t = given("t", "t", row_.t, millimetres, "anchor.plateThickness");
        if (d_ >= leastWithRib)
            given("L1", "L_1", row_.L1, millimetres, "anchor.rib");
        const Quantity* const Lo =
            computed("Lo", "L_o", straightPartClause, {Lp, gNumber_, thread_}, "anchor.straight");
        computed("Lc", "L_c",
                 d_ >= leastWithRib ? ribbedAnchorLengthClause : plateAnchorLengthClause, {Lo, t},
                 "anchor.whole");
    }

    Maker& maker_;
    const Stan& stan_;
    Integer nr_;
    Integer d_;
    CatalogueAnchor row_;
    int g_;
    const Quantity* dNumber_ = nullptr;
    const Quantity* gNumber_ = nullptr;
    const Quantity* thread_ = nullptr;
    Equations rows_;
};

} // namespace

void addAnchor(Maker& maker) {
    const Stan& stan = maker.input().stan;
    maker.heading(1, maker.text()(QStringLiteral("anchor.heading")));
    const bool selected = maker.input().hasResults && stan.raport.Liczba_wierszy_kotwy > 0;
    const std::optional<int> g = selected ? combinedThickness(stan) : std::nullopt;
    if (!g) {
        maker.say(QStringLiteral("anchor.none"));
        return;
    }
    if (stan.wyniki.Nr_kotwy_max == 0) {
        const QString& line = stan.raport.Wiersze_kotwy(1);
        maker.say(QStringLiteral("anchor.noTension"),
                  {rich(line.mid(stan.Teksty(phrase::SelectedAnchor).size()).trimmed())},
                  Tone::Warning);
        return;
    }
    Chosen chosen(maker, *g);
    Equations rows = chosen.all();
    maker.add(Paragraph{maker.text()(chosen.hooked() ? QStringLiteral("anchor.hooked")
                                                     : QStringLiteral("anchor.plated"),
                                     {chosen.designation()}),
                        Tone::Plain, true});
    auto beside = std::make_shared<Beside>();
    beside->leftShare = 0.4;
    constexpr double width = 66; // mm
    static constexpr std::array<const char*, 3> sketches{"rys3f", "rys2pm", "rys2pd"};
    beside->left.push_back(
        sketchPicture(QString::fromLatin1(sketches.at(static_cast<std::size_t>(
                          std::clamp<int>(stan.raport.Typ_szkicu_kotwy, 1, 3) - 1))),
                      width));
    beside->right.push_back(std::move(rows));
    maker.add(std::shared_ptr<const Beside>(beside));
}

} // namespace ferna::sheet
