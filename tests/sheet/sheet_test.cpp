#include "analysis/clauses.h"
#include "sheet/pages.h"
#include "sheet/sheet_tasks.h"
#include "sheet/texts.h"
#include "utilisation/utilisation.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace ferna::sheet {
namespace {

using namespace ferna::testing;

int placesIn(const QString& text) {
    return static_cast<int>(text.count(QRegularExpression(QStringLiteral("%\\d"))));
}

TEST(SheetTexts, AllLanguagesHaveTheSameTextsWithTheSamePlaces) {
    const Texts polish(0);
    ASSERT_GT(polish.keys().size(), 150);
    for (const Integer language : languages) {
        const Texts other(language);
        for (const QString& key : polish.keys()) {
            EXPECT_NE(other(key), key) << language << ' ' << key.toStdString();
            EXPECT_EQ(placesIn(other(key)), placesIn(polish(key))) << key.toStdString();
        }
        EXPECT_EQ(other.keys().size(), polish.keys().size());
    }
}

TEST(SheetTexts, WithoutDiacriticsPolishHasNone) {
    const Texts plain(1);
    const QString marks = QStringLiteral("ąćęłńóśźżĄĆĘŁŃÓŚŹŻ");
    for (const QString& key : plain.keys())
        for (const QChar mark : marks)
            EXPECT_FALSE(plain(key).contains(mark)) << key.toStdString();
}

/// Four rows, one of which nothing carries and one refused; the first two are taken.
combinations::Digest digestOfTable() {
    const auto use = [](Double concrete, Double tension) {
        Utilisation used;
        used.concrete = concrete;
        used.tension = tension;
        return used;
    };
    const equilibrium::Load load{100, 40, 10};
    return {QStringLiteral("hala.csv"),
            4,
            1,
            {{Check::Concrete, 0.61, {2, 1, 4}, QStringLiteral("KO-2")},
             {Check::Tension, HUGE_VAL, {3}, {}}},
            {{1, {QStringLiteral("KO-1"), load, {}}, use(0.61, 0.2)},
             {2, {QStringLiteral("KO-2"), load, {}}, use(0.61, 0.3)}}};
}

TEST(SheetCombinations, StandInEveryLanguageWithTheirGoverningRowsAndTies) {
    const combinations::Digest table = digestOfTable();
    nlohmann::json task = base();
    task["Przypadki"].push_back(task["Przypadki"][0]);
    const QRegularExpression key(QStringLiteral(">combinations\\.\\w+"));
    for (const Integer language : languages) {
        task["Nr_jezyka"] = language;
        const Sheet sheet = batch::sheetOf(computed(task), &table);
        const QString page = QString::fromUtf8(htmlOf(sheet, HtmlPictures::LeftOut));
        EXPECT_FALSE(page.contains(key)) << language;
        EXPECT_TRUE(page.contains(u"hala.csv"));
        EXPECT_TRUE(page.contains(u">1, 4<")) << "the ties";
        EXPECT_TRUE(page.contains(u">∞<")) << "of a row that nothing carries";
        EXPECT_TRUE(page.contains(u"data-formula=\"max(k1_b,k2_b)\""));
        EXPECT_EQ(sheet.byName.count({0, QStringLiteral("k_max_t")}), 0U);
        EXPECT_GT(Pages(sheet).count(), 1);
    }
}

TEST(SheetTexts, NoSheetShowsAKeyInPlaceOfAText) {
    const QRegularExpression key(
        QStringLiteral(">(head|data|material|case|cases|kern|plane|anchors?|zone|triangles|balance|"
                       "check|summary|plate|notes?|model|outcome|side|source|picture)\\.\\w+"));
    for (const Integer language : languages)
        EXPECT_FALSE(page(large(language)).contains(key)) << language;
}

TEST(SheetFormula, IsComputedWrittenAndKeptAsItsClause) {
    const Quantity B{0, QStringLiteral("B"), QStringLiteral("B"), 40, {}, {}, {}, {}};
    const Quantity L{0, QStringLiteral("L"), QStringLiteral("L"), 60, {}, {}, {}, {}};
    const Quantity a{0, QStringLiteral("a"), QStringLiteral("α"), 0.4, {}, {}, {}, {}};
    const Expression formula = formulaOf(kernRadiusClause, std::vector{&L, &B, &a});
    EXPECT_EQ(valueOf(formula), kernRadius(60, 40, 0.4));
    EXPECT_EQ(programText(formula), QStringLiteral("B/(6*(sin(a)+B/L*cos(a)))"));
}

TEST(SheetNumbers, AreThoseOfTheUtilisations) {
    for (const int all : {0, 1}) {
        nlohmann::json task = large(0);
        task["Hsily_wszystkie"] = all;
        const batch::ComputedTask done = computed(task);
        const Sheet sheet = batch::sheetOf(done);
        const notes::Entered& given = done.record.given();
        const auto anchors = enteredAnchors(given.plate);
        const auto limits = enteredLimits(done.task.stan, given.fields);
        ASSERT_TRUE(anchors && limits);
        for (int c = 1; c <= 6; ++c) {
            const auto load = enteredLoad(given.fields, c);
            const double V = done.task.fields.loads[static_cast<std::size_t>(c - 1)].Vy.toDouble();
            const auto use = utilisation(*given.equilibrium(c), *load, {300, V}, *limits, *anchors);
            const auto of = [&](const char* id) {
                const auto found = sheet.byName.find({c, QString::fromLatin1(id)});
                return found == sheet.byName.end() ? 0.0 : found->second->value;
            };
            EXPECT_NEAR(of("u_b_e"), use->concrete, 1e-9);
            EXPECT_NEAR(of("u_t_e"), use->tension, 1e-9);
            EXPECT_NEAR(of("u_v_e"), use->shear, 1e-9);
            EXPECT_NEAR(of("u_i_e"), use->interaction, 1e-9);
        }
    }
}

TEST(SheetWithoutASolution, QuotesTheMessageInFrontOfEverything) {
    nlohmann::json task = base();
    task["Przypadki"][0]["N"] = -50;
    const QString html = page(task);
    const QString first = html.left(html.indexOf(QStringLiteral("<h2>")));
    EXPECT_TRUE(first.contains(QStringLiteral("Arkusz opiera się na dokładnej równowadze")));
    EXPECT_TRUE(
        first.contains(QStringLiteral("Program nie wykonuje obliczeń dla zakotwień rozciąganych")));
    EXPECT_TRUE(html.contains(QStringLiteral("data-symbol=\"sigma_1_e\"")));
    EXPECT_FALSE(html.contains(QStringLiteral("data-symbol=\"sigma_1_s\"")));
}

TEST(SheetWithoutASolution, ATippingColumnHasASheetThatSaysSo) {
    nlohmann::json task = base();
    task["Kotwy"] = nlohmann::json::array(); // nothing holds it
    EXPECT_TRUE(page(task).contains(QStringLiteral("słup się przewraca")));
}

TEST(SheetNames, ArePrintedLetterByLetter) {
    EXPECT_TRUE(page(base()).contains(QStringLiteral("Hala &lt;B&gt; &amp; C")));
}

} // namespace
} // namespace ferna::sheet
