#include "analysis/clauses.h"
#include "batch/sheet_files.h"
#include "sheet/html_writer.h"
#include "sheet/pages.h"
#include "sheet/texts.h"
#include "support/places.h"
#include "task/task.h"
#include "utilisation/utilisation.h"

#include <QRegularExpression>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <ctime>

namespace ferna::sheet {
namespace {

using ::places::data;

constexpr std::array<Integer, 5> languages{0, 1, 2, 3, 4};

nlohmann::json base(Integer language = 0) {
    return {{"Nazwa_projektu", "Hala <B> & C"},
            {"Nr_jezyka", language},
            {"Dlug_plyty_mm", 600},
            {"Szer_plyty_mm", 400},
            {"Kotwy",
             {{{"x", 250}, {"y", 150}, {"fi", 24}},
              {{"x", -250}, {"y", 150}, {"fi", 24}},
              {{"x", 250}, {"y", -150}, {"fi", 24}},
              {{"x", -250}, {"y", -150}, {"fi", 24}}}},
            {"Przypadki", {{{"N", 100}, {"M1", 40}, {"M2", 10}, {"Vx", 60}, {"Vy", 5}}}}};
}

/// Six cases of twenty anchors with every section.
nlohmann::json large(Integer language) {
    nlohmann::json task = base(language);
    task["Dlug_plyty_mm"] = 1000;
    task["Szer_plyty_mm"] = 600;
    task["Kotwy"] = nlohmann::json::array();
    for (int i = 0; i < 10; ++i)
        for (const int y : {-250, 250})
            task["Kotwy"].push_back({{"x", -450 + 100 * i}, {"y", y}, {"fi", 30}});
    task["Przypadki"] = nlohmann::json::array();
    for (int i = 0; i < 6; ++i)
        task["Przypadki"].push_back({{"N", 800 + 50 * i},
                                     {"M1", 400 - 60 * i},
                                     {"M2", (i % 2 == 0 ? 1 : -1) * (60 + 30 * i)},
                                     {"Vx", 300},
                                     {"Vy", 10 * i}});
    task["Blacha"] = {{"Nr_stali_blachy", 4},
                      {"Sprawdzenia",
                       {{"1", {{"bs", 120}, {"ca", 60}, {"S", 100}}},
                        {"2", {{"ca", 90}, {"sigma_k", 6}, {"sigma_p", 4}}},
                        {"3", {{"l", 300}, {"b", 200}, {"sigma", 9}}},
                        {"7", {{"b", 150}, {"a", 100}, {"c", 100}, {"S", 90}}},
                        {"8", {{"b", 120}, {"a", 60}, {"c", 50}, {"S", 60}}}}}};
    task["Kotwa"] = {{"rodzaj", "P"}, {"g", 60}};
    return task;
}

batch::ComputedTask computed(const nlohmann::json& task) {
    const std::string text = task.dump();
    return batch::run(readTask(parsed(text)),
                      batch::RunOptions{{}, data(), QDateTime::currentDateTime()});
}

QString page(const nlohmann::json& task) {
    return QString::fromUtf8(htmlOf(batch::sheetOf(computed(task)), HtmlPictures::LeftOut));
}

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

TEST(SheetPages, OneCaseWithFourAnchorsTakesFourAtMost) {
    for (const Integer language : languages) {
        const Sheet sheet = batch::sheetOf(computed(base(language)));
        EXPECT_LE(Pages(sheet).count(), 4) << language;
    }
}

TEST(SheetPages, SixCasesWithTwentyAnchorsTakeTwelveAtMostAndUnderASecond) {
    for (const Integer language : languages) {
        const batch::ComputedTask done = computed(large(language));
        const std::clock_t start = std::clock();
        const Sheet sheet = batch::sheetOf(done);
        const Pages pages(sheet);
        const QByteArray pdf = pages.pdf();
        const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
        EXPECT_LE(pages.count(), 12) << language;
        EXPECT_LT(seconds, 1) << language;
        EXPECT_TRUE(pdf.startsWith("%PDF"));
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
