#include "batch/task_run.h"
#include "runtime/format.h"
#include "support/decimal_comma.h"
#include "support/places.h"
#include "support/printing.h"
#include "support/random_tasks.h"
#include "support/task_document.h"

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::batch;
using ferna::testing::Dice;
using ferna::testing::documentOf;
using ferna::testing::WithDecimalSign;

namespace {

const std::string smallest = R"({"Dlug_plyty_mm": 600, "Szer_plyty_mm": 400,
 "Kotwy": [{"x": 250, "y": 150, "fi": 24}],
 "Przypadki": [{"N": 300, "M1": 12.5, "M2": 0, "Vx": 10, "Vy": 0}]})";

Json smallestTask() {
    return Json::parse(smallest);
}

struct Refusal {
    std::string path;
    std::string message;
};

Refusal refusalOf(const Json& task) {
    try {
        readTask(documentOf(task));
    } catch (const TaskError& failure) {
        return {failure.path, failure.what()};
    }
    return {"(accepted)", ""};
}

TEST(TextOfATask, AZeroByteIsRefusedWithItsLine) {
    for (const std::string& behind : {std::string(), std::string("}"), std::string("\n{")}) {
        const std::string text = smallest + '\n' + '\0' + behind;
        try {
            parsed(text);
            FAIL() << "the library ends at a zero, and what stands behind it is lost";
        } catch (const TaskError& failure) {
            EXPECT_STREQ(failure.what(), "expected JSON: a zero byte stands in it");
            EXPECT_EQ(lineOf(text, failure.path), 4);
        }
    }
}

TEST(TextOfATask, TheWholeNumbersOfSixtyFourBitsAreNumbers) {
    const auto numberOfText = [](const std::string& text) {
        const TaskDocument document = parsed('[' + text + ']');
        return std::pair(document.values.at(1).number, document.values.at(1).isWhole);
    };
    EXPECT_EQ(numberOfText("-9223372036854775808"), std::pair(-9223372036854775808.0, false));
    EXPECT_EQ(numberOfText("18446744073709551615"), std::pair(18446744073709551615.0, false));
    EXPECT_EQ(numberOfText("-9007199254740992"), std::pair(-9007199254740992.0, true));
    EXPECT_EQ(numberOfText("-9007199254740993"), std::pair(-9007199254740992.0, false));
    EXPECT_EQ(numberOfText("9007199254740992"), std::pair(9007199254740992.0, true));
    EXPECT_EQ(numberOfText("9007199254740993"), std::pair(9007199254740992.0, false));
}

TEST(TextOfATask, ANumberIsTheDoubleThatIsNearestToIt) {
    Dice dice(3);
    for (int i = 0; i < 100'000; ++i) {
        std::string text = std::to_string(dice.bits() % std::uint64_t{1'000'000'000'000'000'000});
        text.resize(1 + dice.bits() % text.size());
        if (text.size() > 1 && text[0] == '0')
            text.insert(1, 1, '.');
        else if (text.size() > 1 && dice.oneIn(2))
            text.insert(1 + dice.bits() % (text.size() - 1), 1, '.');
        if (dice.oneIn(2))
            text.insert(0, 1, '-');
        if (dice.oneIn(5))
            text += "e-" + std::to_string(dice.whole(0, 30));
        const TaskDocument document = parsed('[' + text + ']');
        const double expected = std::strtod(text.c_str(), nullptr);
        ASSERT_EQ(document.values.at(1).number, expected) << text;
        const bool isWhole = text.find_first_of(".e") == std::string::npos;
        ASSERT_EQ(document.values.at(1).isWhole, isWhole && std::fabs(expected) <= 0x1p53) << text;
    }
}

TEST(TextOfATask, AKeyThatStandsTwiceIsRefusedHoweverManyThereAre) {
    for (const int many : {2, 5, 31, 32, 33, 100}) {
        std::string keys = "{";
        for (int i = 0; i < many; ++i)
            keys += "\"k" + std::to_string(i) + "\": 0, ";
        EXPECT_NO_THROW(parsed(keys + "\"other\": 0}"));
        for (const int twice : {0, many / 2, many - 1})
            EXPECT_THROW(parsed(keys + "\"k" + std::to_string(twice) + "\": 0}"), TaskError)
                << twice << " of " << many;
    }
}

TEST(TextOfATask, StaysWithItsDocument) {
    // The quick reader takes the first one, the library the second.
    for (std::string text : {R"({"a": "b", "c": ["de"]})", R"({"a": "b", "c": ["d\u0065"]})"}) {
        TaskDocument read = parsed(text);
        text.assign(text.size(), 'x');
        const TaskDocument moved = std::move(read);
        EXPECT_EQ(moved.root().find("a")->text, "b");
        EXPECT_EQ((*moved.root().find("c")->parts().begin()).text, "de");
    }
}

struct Tasks : ::testing::Test {
    WithDecimalSign comma{u','};
    Json task = smallestTask();
};

TEST_F(Tasks, KeysLeftOutTakeTheirDefaults) {
    const Task read = readTask(documentOf(task));
    EXPECT_EQ(read.fields.txtNaz_proj, QString());
    EXPECT_EQ(read.Nazwa_stopy, QString());
    EXPECT_EQ(read.fields.txtNr_strony, QStringLiteral("1"));
    EXPECT_EQ(read.stan.opcje.Nr_normy, 0);
    EXPECT_EQ(read.stan.opcje.Nr_jezyka, 0);
    EXPECT_EQ(read.stan.opcje.Tryb_RTF, 1);
    EXPECT_TRUE(read.fields.optHsruby_0);
    EXPECT_EQ(read.stan.opcje.Nr_betonu, 1);
    EXPECT_TRUE(read.fields.Option1_0);
    EXPECT_EQ(read.fields.cmbStal, 1);
    EXPECT_EQ(read.fields.Text2, QStringLiteral("8,87")) << "computed for B15";
    EXPECT_EQ(read.fields.Text3, QStringLiteral("600"));
    EXPECT_EQ(read.fields.Text4, QStringLiteral("400"));
    EXPECT_EQ(read.stan.plyta.Liczba_srub, 1);
    EXPECT_EQ(read.stan.plyta.X_kotwy(1), 25);
    EXPECT_EQ(read.fields.loads[0].M1, QStringLiteral("12,5"));
    EXPECT_EQ(read.stan.obciazenia.Liczba_przyp, 1);
}

TEST_F(Tasks, EveryKeyReachesItsPlace) {
    task["Nazwa_projektu"] = "Hala ż";
    task["Nazwa_stopy"] = "F-1";
    task["Nr_strony"] = 7;
    task["Nr_normy"] = 1;
    task["Nr_jezyka"] = 4;
    task["Tryb_RTF"] = 0;
    task["Hsily_wszystkie"] = 1;
    task["Tryb_wsp_n"] = 1;
    task["Wsp_n_val"] = 6.25;
    task["Nr_betonu"] = 5;
    task["Stopa_betonowa"] = 1;
    task["Nr_stali"] = 7;
    task["Stal"] = {{"Stal_nazwa", "8.8"},
                    {"Stal_fd", 300.5},
                    {"Stal_fi_max", 36},
                    {"Stal_Re", 640},
                    {"Stal_Rm", 800}};
    const Task read = readTask(documentOf(task));
    EXPECT_EQ(read.fields.txtNaz_proj, QStringLiteral("Hala ż"));
    EXPECT_EQ(read.Nazwa_stopy, QStringLiteral("F-1"));
    EXPECT_EQ(read.fields.txtNr_strony, QStringLiteral("7"));
    EXPECT_EQ(read.stan.opcje.Nr_normy, 1);
    EXPECT_EQ(read.stan.opcje.Nr_jezyka, 4);
    EXPECT_EQ(read.stan.opcje.Tryb_RTF, 0);
    EXPECT_FALSE(read.fields.optHsruby_0);
    EXPECT_EQ(read.fields.Text2, QStringLiteral("6,25"));
    EXPECT_EQ(read.stan.opcje.Nr_betonu, 5);
    EXPECT_FALSE(read.fields.Option1_0);
    EXPECT_EQ(read.fields.cmbStal, 6);
    EXPECT_EQ(read.stan.materialy.Stal_Re, 640);
    EXPECT_EQ(read.steel.name, QStringLiteral("8.8"));
    EXPECT_EQ(read.steel.fd, QStringLiteral("300,5"));
    EXPECT_EQ(read.steel.Rm, QStringLiteral("800")) << "Rm stands in front of Re";
}

TEST_F(Tasks, CoordinatesRoundToWholeMillimetresWithTiesToEven) {
    task["Kotwy"][0]["x"] = 12.5;
    task["Kotwy"][0]["y"] = -13.5;
    const Task read = readTask(documentOf(task));
    EXPECT_EQ(read.stan.plyta.X_kotwy_mm(1), 12);
    EXPECT_EQ(read.stan.plyta.Y_kotwy_mm(1), -14);
}

struct Spoiled {
    const char* pointer; // where in the task, as a JSON pointer
    Json value;
    const char* path; // as the refusal names it
    const char* expected;
};

TEST_F(Tasks, EveryRefusalNamesTheKeyAndWhatWasExpected) {
    const Json anchor = task["Kotwy"][0];
    const Json loads = task["Przypadki"][0];
    const std::vector<Spoiled> spoiled{
        {"", Json::array(), "", "expected an object"},
        {"/Nr_stal", 3, "Nr_stal", "unknown key"},
        {"/Kotwy/0/z", 3, "Kotwy[0].z", "unknown key"},
        {"/Przypadki/0/V", 3, "Przypadki[0].V", "unknown key"},
        {"/Stal", Json{{"fd", 1}}, "Stal.fd", "unknown key"},
        {"/Nazwa_projektu", 3, "Nazwa_projektu", "expected a text, found 3"},
        {"/Nazwa_stopy", nullptr, "Nazwa_stopy", "expected a text"},
        {"/Nr_strony", 1.5, "Nr_strony", "expected a whole number from -32768 to 32767, found 1.5"},
        {"/Nr_strony", 32768, "Nr_strony", "expected a whole number"},
        {"/Nr_strony", "1", "Nr_strony", "expected a whole number"},
        {"/Nr_normy", 2, "Nr_normy", "expected a whole number from 0 to 1, found 2"},
        {"/Nr_jezyka", 5, "Nr_jezyka", "from 0 to 4"},
        {"/Nr_jezyka", -1, "Nr_jezyka", "from 0 to 4"},
        {"/Tryb_RTF", 3, "Tryb_RTF", "from 0 to 2"},
        {"/Hsily_wszystkie", true, "Hsily_wszystkie", "from 0 to 1"},
        {"/Tryb_wsp_n", 2, "Tryb_wsp_n", "from 0 to 1"},
        {"/Tryb_wsp_n", 1, "Wsp_n_val", "required and is missing"},
        {"/Wsp_n_val", "6", "Wsp_n_val", "expected a number"},
        {"/Nr_betonu", 0, "Nr_betonu", "from 1 to 5"},
        {"/Nr_betonu", 6, "Nr_betonu", "from 1 to 5"},
        {"/Stopa_betonowa", 2, "Stopa_betonowa", "from 0 to 1"},
        {"/Nr_stali", 0, "Nr_stali", "from 1 to 7"},
        {"/Nr_stali", 8, "Nr_stali", "from 1 to 7"},
        {"/Stal", 7, "Stal", "expected an object"},
        {"/Stal", Json{{"Stal_fd", 1e300}}, "Stal.Stal_fd", "fits 32 bits"},
        {"/Stal", Json{{"Stal_fi_max", 40000}}, "Stal.Stal_fi_max", "whole number"},
        {"/Dlug_plyty_mm", 600.5, "Dlug_plyty_mm", "expected a whole number"},
        {"/Szer_plyty_mm", 40000, "Szer_plyty_mm", "expected a whole number"},
        {"/Kotwy", 4, "Kotwy", "expected an array"},
        {"/Kotwy/0", 4, "Kotwy[0]", "expected an object"},
        {"/Kotwy/0/x", "250", "Kotwy[0].x", "expected a number"},
        {"/Kotwy/0/y", 40000, "Kotwy[0].y", "fits 16 bits"},
        {"/Kotwy/0/fi", 24.5, "Kotwy[0].fi", "expected a whole number"},
        {"/Kotwy", Json(21, anchor), "Kotwy", "at most 20 anchors, found 21"},
        {"/Przypadki", Json::array(), "Przypadki", "1 to 6 cases, found 0"},
        {"/Przypadki", Json(7, loads), "Przypadki", "1 to 6 cases, found 7"},
        {"/Przypadki/0/N", nullptr, "Przypadki[0].N", "expected a number"},
    };
    for (const Spoiled& one : spoiled) {
        Json bad = smallestTask();
        bad[Json::json_pointer(one.pointer)] = one.value;
        const Refusal refusal = refusalOf(bad);
        EXPECT_EQ(refusal.path, one.path) << one.pointer;
        EXPECT_NE(refusal.message.find(one.expected), std::string::npos)
            << one.pointer << ": " << refusal.message;
    }
    for (const char* key : {"Dlug_plyty_mm", "Szer_plyty_mm", "Kotwy", "Przypadki"}) {
        Json bad = smallestTask();
        bad.erase(key);
        EXPECT_EQ(refusalOf(bad).path, key);
    }
    for (const char* key : {"x", "y", "fi"}) {
        Json bad = smallestTask();
        bad["Kotwy"][0].erase(key);
        EXPECT_EQ(refusalOf(bad).path, std::string("Kotwy[0].") + key);
    }
    for (const char* key : {"N", "M1", "M2", "Vx", "Vy"}) {
        Json bad = smallestTask();
        bad["Przypadki"][0].erase(key);
        EXPECT_EQ(refusalOf(bad).path, std::string("Przypadki[0].") + key);
    }
}

TEST_F(Tasks, AColumnIsOneOfTheSixCases) {
    task["Przypadki"] = Json(6, task["Przypadki"][0]);
    EXPECT_EQ(refusalOf(task).path, "(accepted)");
    task["Slup"] = Json::array();
    EXPECT_EQ(refusalOf(task).path, "Przypadki");
}

TEST_F(Tasks, WhatIsNoJsonIsRefused) {
    for (const char* text : {"", "{", "{\"a\": }", "nothing", "{\"N\": 1e999}", "[1,", "{} {}",
                             "{\"Nazwa_projektu\": \"\xff\"}"})
        EXPECT_THROW(parsed(text), TaskError) << text;
    EXPECT_THROW(parsed(R"({"Nr_normy": 0, "Nr_normy": 1})"), TaskError);
}

TEST_F(Tasks, ATowerOfBracketsIsRefusedBeforeItFillsTheMemory) {
    EXPECT_THROW(parsed(std::string(1'000'000, '[')), TaskError);
    EXPECT_NO_THROW(parsed(std::string(32, '[') + std::string(32, ']')));
}

TEST_F(Tasks, TheLineOfAKeyIsFound) {
    const std::string text =
        "{\n\"Dlug_plyty_mm\": 600,\n\"Kotwy\": [\n{\"x\": 1},\n{\"x\":\n\"2\"}]}";
    EXPECT_EQ(lineOf(text, "Dlug_plyty_mm"), 2);
    EXPECT_EQ(lineOf(text, "Kotwy"), 3);
    EXPECT_EQ(lineOf(text, "Kotwy[0].x"), 4);
    EXPECT_EQ(lineOf(text, "Kotwy[1].x"), 6);
    EXPECT_EQ(lineOf(text, "Kotwy[1].y"), 5) << "a missing key: the object it belongs to";
    EXPECT_EQ(lineOf(text, "Szer_plyty_mm"), 1);
    EXPECT_EQ(lineOf("{\n\"a\": 1,\n\n\"a\": 2}", "a"), 2);
    EXPECT_EQ(lineOf("{\n\n{", ""), 3) << "where the reading broke off";
}

struct Runs : ::testing::Test {
    WithDecimalSign comma{u','};
    RunOptions options{{}, places::data(), QDateTime(QDate(2026, 3, 1), QTime(12, 30), Qt::UTC)};
    Json task = smallestTask();

    Json result() { return resultOf(run(readTask(documentOf(task)), options)); }
};

TEST_F(Runs, AComputedTaskHasItsResults) {
    const Json r = result();
    EXPECT_EQ(r["Komunikaty"], Json::array());
    EXPECT_TRUE(r["Blad"].is_null());
    EXPECT_TRUE(r["Obliczone"]);
    EXPECT_FALSE(r["Przerwij_obliczenia"]);
    EXPECT_EQ(r["Materialy"]["Fd_kotwy"], 205);
    EXPECT_EQ(r["Materialy"]["Wsp_n_val"], 8.87);
    EXPECT_EQ(r["Fi_max"], 24);
    const Json& first = r["Przypadki"][0];
    EXPECT_TRUE(first["Przyp_policzony"]);
    EXPECT_TRUE(first["Beta"].is_null());
    EXPECT_TRUE(first["Wiersz_strefy"].is_null());
    EXPECT_EQ(first["Wiersze"].size(), first["Znaki"].size());
    EXPECT_EQ(r["Wspolrzedne"], Json::parse("[[25.0, 15.0]]"));
}

TEST_F(Runs, ARefusedValidationLeavesTheOtherKeysOut) {
    task["Kotwy"] = Json::array();
    const Json r = result();
    EXPECT_EQ(r["Komunikaty"][0]["tekst"], "Musisz okreslić położenie i średnicę śrub kotwiących");
    EXPECT_EQ(r["Komunikaty"][0]["tytul"], "Ferna 2005 Pr");
    EXPECT_FALSE(r["Obliczone"]);
    EXPECT_FALSE(r.contains("Materialy"));
    EXPECT_FALSE(solved(run(readTask(documentOf(task)), options)));
}

TEST_F(Runs, ARunTimeErrorGoesIntoTheResult) {
    task["Przypadki"][0]["N"] = 1e300;
    const Json r = result();
    EXPECT_EQ(r["Blad"]["numer"], 6);
    EXPECT_EQ(r["Blad"]["tekst"], "Overflow");
    EXPECT_FALSE(r["Obliczone"]);
}

TEST_F(Runs, ARefusedUserSteelShowsBothMessages) {
    task["Nr_stali"] = 7;
    task["Stal"] = {{"Stal_nazwa", "x"},
                    {"Stal_fd", 700},
                    {"Stal_fi_max", 36},
                    {"Stal_Re", 640},
                    {"Stal_Rm", 800}};
    const Json r = result();
    ASSERT_EQ(r["Komunikaty"].size(), 2U);
    EXPECT_EQ(r["Komunikaty"][0]["tekst"], "Nieprawidłowe parametry materiału");
    EXPECT_EQ(r["Komunikaty"][0]["tytul"], "Błąd w opisie stali użytkownika");
    EXPECT_EQ(r["Komunikaty"][1]["tekst"], "Musisz określić stal dla śrub kotwiących");
    task["Stal"]["Stal_fd"] = 600;
    EXPECT_EQ(result()["Materialy"]["Fv_kotwy"], 360);
}

TEST_F(Runs, WithoutReportsHaveTheSameResultAndNoLinesOfOne) {
    task["Przypadki"][0]["M1"] = 60;
    const ComputedTask with = run(readTask(documentOf(task)), options);
    options.reports = false;
    const ComputedTask without = run(readTask(documentOf(task)), options);
    EXPECT_EQ(resultText(with, JsonWriter::Layout::Indented),
              resultText(without, JsonWriter::Layout::Indented));
    EXPECT_TRUE(solved(without));
    EXPECT_EQ(with.task.stan.raport.Wiersze_srub(1),
              QStringLiteral("1.   M24  x=250 mm  y=150 mm"));
    EXPECT_FALSE(with.raport.Wiersze_danych(1).isEmpty());
    EXPECT_TRUE(without.raport.Wiersze_danych(1).isEmpty());
}

TEST_F(Runs, SinglesAreWrittenAsTheirShortestDecimal) {
    task["Przypadki"][0] = {{"N", 50}, {"M1", 60}, {"M2", 20}, {"Vx", 0}, {"Vy", 0}};
    const Json r = result();
    const std::string text = r["Przypadki"][0]["Sigma_b"].dump();
    EXPECT_LE(text.size(), 10U) << text;
    EXPECT_EQ(static_cast<Single>(r["Przypadki"][0]["Sigma_b"].get<double>()),
              static_cast<Single>(std::stod(text)));
}

} // namespace
