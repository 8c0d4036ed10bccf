// What the sections of the sheet say beside their numbers.
#include "plate/load_charts.h"
#include "sheet/sheet_tasks.h"
#include "sheet/texts.h"

#include <gtest/gtest.h>

namespace ferna::sheet {
namespace {

using namespace ferna::testing;

void gather(const Blocks& blocks, std::vector<const Equation*>& found) {
    for (const Block& block : blocks)
        if (const auto* beside = std::get_if<std::shared_ptr<const Beside>>(&block)) {
            gather((*beside)->left, found);
            gather((*beside)->right, found);
        } else if (const auto* equations = std::get_if<Equations>(&block)) {
            for (const Equation& row : equations->rows)
                found.push_back(&row);
        }
}

std::vector<const Equation*> equationsOf(const Sheet& sheet) {
    std::vector<const Equation*> found;
    gather(sheet.blocks, found);
    return found;
}

/// What stands beside a number; empty where it does not stand.
QString remarkOf(const Sheet& sheet, const char* id) {
    for (const Equation* const row : equationsOf(sheet))
        if (row->result != nullptr && row->result->id == QLatin1String(id))
            return row->remark;
    return {};
}

nlohmann::json withPlate(const nlohmann::json& checks, int grade = 2) {
    nlohmann::json task = base();
    task["Blacha"] = {{"Nr_stali_blachy", grade}, {"Sprawdzenia", checks}};
    return task;
}

TEST(SheetChecks, AVerdictIsThatOfTheNumberBesideIt) {
    const Texts text(0);
    int kept = 0;
    int not_ = 0;
    for (const int side : {0, 1})
        for (const double M1 : {20, 45, 90, 190}) {
            nlohmann::json task = base();
            task["Hsily_wszystkie"] = side;
            task["Przypadki"][0]["M1"] = M1;
            task["Przypadki"][0]["Vx"] = 3 * M1;
            const Sheet sheet = batch::sheetOf(computed(task));
            for (const Equation* const row : equationsOf(sheet)) {
                const Quantity* const number = row->result != nullptr ? row->result : row->exact;
                static const QStringList checked{QStringLiteral("u_t_s"), QStringLiteral("u_v_s"),
                                                 QStringLiteral("u_i_s")};
                if (!checked.contains(number->id))
                    continue;
                const double worst =
                    std::max(number->value, row->exact != nullptr ? row->exact->value : 0.0);
                ++(worst > 1 ? not_ : kept);
                EXPECT_EQ(row->remark, text(worst > 1 ? QStringLiteral("check.not")
                                                      : QStringLiteral("check.kept")))
                    << number->id.toStdString() << " = " << worst;
            }
        }
    EXPECT_GT(kept, 4);
    EXPECT_GT(not_, 4);
}

TEST(SheetChecks, TheBearingFactorNeededIsTheLargerOfTheTwo) {
    nlohmann::json task = base();
    int needed = 0;
    for (const double M1 : {100, 120, 140, 160}) {
        task["Przypadki"] = {{{"N", 320}, {"M1", M1}, {"M2", 0}, {"Vx", 0}, {"Vy", 0}}};
        const Sheet sheet = batch::sheetOf(computed(task));
        const double search = sheet.byName.at({1, QStringLiteral("omega_s")})->value;
        const double exact = sheet.byName.at({1, QStringLiteral("omega_e")})->value;
        const double larger = std::max(search, exact);
        const QString remark = remarkOf(sheet, "u_b_s");
        if (larger < 1 || larger > 2)
            continue;
        ++needed;
        EXPECT_TRUE(remark.endsWith(QString::fromUtf8("≥ %1").arg(larger, 0, 'f', 3)))
            << remark.toStdString() << ' ' << search << ' ' << exact;
    }
    EXPECT_GT(needed, 1);
}

TEST(SheetAnchor, WithoutAnAnchorInTensionNoneWasChosenAndThatIsSaid) {
    nlohmann::json task = base();
    task["Przypadki"] = {{{"N", 900}, {"M1", 10}, {"M2", 8}, {"Vx", 0}, {"Vy", 0}}};
    task["Kotwa"] = {{"rodzaj", "F"}, {"g", 50}};
    for (const Integer language : languages) {
        task["Nr_jezyka"] = language;
        const QString html = page(task);
        EXPECT_TRUE(html.contains(
            Texts(language)(QStringLiteral("anchor.noTension"), {QStringLiteral("F-0-50")})))
            << language;
        EXPECT_FALSE(html.contains(QStringLiteral("data-symbol=\"k_d\""))) << language;
    }
}

TEST(SheetAnchor, TheCapacityStandsAgainstTheLargestForce) {
    nlohmann::json task = base();
    task["Kotwa"] = {{"rodzaj", "F"}, {"g", 50}};
    const batch::ComputedTask done = computed(task);
    const Sheet sheet = batch::sheetOf(done);
    const Quantity* const share = sheet.byName.at({0, QStringLiteral("k_use")});
    const double force = -static_cast<double>(done.task.stan.wyniki.Sila_kotwy_max);
    EXPECT_GT(force, 0);
    EXPECT_NEAR(share->value, force / (3.53 * 205 * 0.1), 1e-6);
    EXPECT_EQ(remarkOf(sheet, "k_use"), Texts(0)(QStringLiteral("check.kept")));
}

TEST(SheetPlate, TellsHowATypedForceStandsToTheComputedOne) {
    const batch::ComputedTask plain = computed(base());
    const double found = -static_cast<double>(plain.task.stan.wyniki.Sila_kotwy_max);
    ASSERT_NEAR(found, 22.48, 0.005);
    const auto remark = [](double S) {
        const nlohmann::json task = withPlate({{"1", {{"bs", 120}, {"ca", 60}, {"S", S}}}});
        return remarkOf(batch::sheetOf(computed(task)), "p1_S");
    };
    EXPECT_EQ(remark(22.5), QString::fromUtf8("równe obliczonemu, 22.48 kN"));
    EXPECT_EQ(remark(23), QString::fromUtf8("większe od obliczonego, 22.48 kN"));
    EXPECT_EQ(remark(22.3), QString::fromUtf8("mniejsze od obliczonego, 22.48 kN, o 0.8\u202f%"));
    EXPECT_EQ(remark(20),
              QString::fromUtf8("UWAGA: mniejsze od obliczonego, 22.48 kN, o 11.0\u202f%"));
}

TEST(SheetPlate, ACoefficientIsReadFromThePieceOfItsCurve) {
    for (const auto& [check, b, a, c] :
         {std::tuple{7, 150, 130, 80}, {7, 170, 330, 140}, {8, 120, 65, 50}, {8, 210, 333, 60}}) {
        SCOPED_TRACE(b);
        const Sheet sheet = batch::sheetOf(computed(
            withPlate({{std::to_string(check), {{"b", b}, {"a", a}, {"c", c}, {"S", 20}}}})));
        const ChartReading read = Interpoluj_wykres(check, CInt(b), CInt(a), CInt(c));
        const auto number = [&, which = check](const char* name) {
            return sheet.byName.at({0, QStringLiteral("p%1_").arg(which) + QLatin1String(name)});
        };
        EXPECT_NEAR(number("y1")->value, read.y1, 1e-5);
        EXPECT_NEAR(number("y2")->value, read.y2, 1e-5);
        EXPECT_NEAR(number("y")->value, read.y, 1e-4);
        int pieces = 0;
        for (const auto& [name, value] : {std::pair{"y1", read.y1}, {"y2", read.y2}})
            if (value != 0) {
                ++pieces;
                EXPECT_TRUE(number(name)->formula.has_value()) << name;
                EXPECT_TRUE(number(name)->source.contains(check == 7 ? QStringLiteral("rys. B.2")
                                                                     : QStringLiteral("rys. B.3")));
            }
        EXPECT_GT(pieces, 0);
    }
}

TEST(SheetPlate, ARefusedCheckIsToldWithItsMessage) {
    const QString html = page(withPlate({{"1", {{"bs", 120}, {"ca", 60}, {"S", 100}}},
                                         {"3", {{"l", 300}, {"b", 100}, {"sigma", 9}}}}));
    EXPECT_TRUE(html.contains(QString::fromUtf8(
        "Sprawdzenie (3.1) odrzucone, bez wyniku. Komunikat programu: „Zbyt długi "
        "fragment balchy (l/b&gt;2)!”")));
    const QString thick = page(withPlate({{"1", {{"bs", 20}, {"ca", 200}, {"S", 300}}}}, 1));
    EXPECT_TRUE(thick.contains(QString::fromUtf8("Sprawdzenie (1) odrzucone")));
    EXPECT_TRUE(thick.contains(QString::fromUtf8("Dla stali St0 max. grubość")));
}

TEST(SheetPlate, AnExcludedCheckIsTold) {
    const QString html = page(withPlate({{"3", {{"l", 300}, {"b", 200}, {"sigma", 9}}},
                                         {"4", {{"Nr_profilu", 10}, {"sigma", 9}}}}));
    EXPECT_TRUE(html.contains(QString::fromUtf8("Sprawdzenie (4) nie odbyło się")));
}

/// The sheet of a task whose plate form has gone through `change` since.
QString pageAfter(const std::function<void(notes::PlateFacts& facts)>& change) {
    batch::ComputedTask done = computed(withPlate({{"1", {{"bs", 120}, {"ca", 60}, {"S", 70}}}}));
    notes::PlateFacts facts = *done.record.plate();
    change(facts);
    done.record.plateWorked(facts);
    return QString::fromUtf8(htmlOf(batch::sheetOf(done), HtmlPictures::LeftOut));
}

TEST(SheetPlate, AWithdrawnCheckIsTold) {
    const QString html = pageAfter([](notes::PlateFacts& facts) { facts.withdrawn[6] = true; });
    EXPECT_TRUE(html.contains(QString::fromUtf8("wycofane przez projektanta, bez wyniku: 5.1.")));
}

TEST(SheetPlate, AResultOfAnEarlierOpeningIsToldAsSuch) {
    const QString html = pageAfter([](notes::PlateFacts& facts) { facts.required[4] = 17; });
    EXPECT_TRUE(html.contains(QString::fromUtf8("Wynik 17 mm pozostał z wcześniejszego otwarcia")));
    EXPECT_FALSE(html.contains(QStringLiteral("p5_")));
}

TEST(SheetCase, WithoutPressureThereAreNoTablesOfTheCompressedZone) {
    nlohmann::json task = base();
    task["Przypadki"][0] = {{"N", -50}, {"M1", 4}, {"M2", 1}, {"Vx", 0}, {"Vy", 0}};
    const QString html = page(task);
    const Texts text(0);
    EXPECT_FALSE(html.contains(text(QStringLiteral("zone.caption"))));
    EXPECT_FALSE(html.contains(text(QStringLiteral("triangles.caption"))));
    EXPECT_TRUE(html.contains(text(QStringLiteral("balance.caption"))));
}

TEST(SheetCase, BothLinesHaveTheirEndsInTheSameOrder) {
    for (const auto& [M1, M2] :
         {std::pair{40, 10}, {-40, 10}, {40, -10}, {60, 0}, {0, 45}, {-60, -20}}) {
        nlohmann::json task = base();
        task["Przypadki"][0] = {{"N", 200}, {"M1", M1}, {"M2", M2}, {"Vx", 0}, {"Vy", 0}};
        const Sheet sheet = batch::sheetOf(computed(task));
        for (const char* end : {"xA", "yA", "xB", "yB"}) {
            const auto of = [&](const char* side) {
                return sheet.byName.at({1, QLatin1String(end) + QLatin1String(side)})->value;
            };
            EXPECT_NEAR(of("_s"), of("_e"), 15) << end << ' ' << M1 << ' ' << M2;
        }
    }
}

TEST(SheetCase, WhereNoAnchorIsInTensionTheCheckSaysSo) {
    nlohmann::json task = base();
    task["Przypadki"][0] = {{"N", 900}, {"M1", 10}, {"M2", 8}, {"Vx", 0}, {"Vy", 0}};
    EXPECT_EQ(remarkOf(batch::sheetOf(computed(task)), "sigma_t_s"),
              QString::fromUtf8("żadna kotwa nie jest rozciągana"));
}

} // namespace
} // namespace ferna::sheet
