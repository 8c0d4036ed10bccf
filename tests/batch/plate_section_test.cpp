#include "batch/plate_section.h"
#include "support/decimal_comma.h"
#include "support/golden.h"
#include "support/printing.h"
#include "support/task_document.h"
#include "support/written_section.h"

using namespace ferna;
using namespace ferna::batch;
using namespace ferna::testing;

namespace {

class PlateSectionOfATask : public ::testing::Test {
protected:
    static std::string refusal(const char* text) {
        return refusalOf([](const TaskDocument& value) { readPlateTask(value); }, text);
    }

private:
    WithDecimalSign comma_{u','};
};

TEST_F(PlateSectionOfATask, EveryReferenceTaskAgrees) {
    int count = 0;
    for (const GoldenCase& golden : goldenCases(QStringLiteral("plate"))) {
        if (!golden.expected.contains("Blacha"))
            continue;
        Stan stan = calculatedState(golden);
        ScriptedDialogs dialogs;
        const auto result =
            runPlateTask(readPlateTask(documentOf(golden.task.at("Blacha"))), stan, dialogs);
        const std::string where = "task " + std::to_string(golden.line);
        expectSame(golden.expected.at("Blacha"), written(stan, result), where);
        expectSame(golden.expected.at("Blad"), result.Blad, where);
        expectLastMessages(golden.expected.at("Komunikaty"), dialogs, where);
        ++count;
    }
    EXPECT_GT(count, 80);
}

TEST_F(PlateSectionOfATask, WhatCannotBeTypedIsRefusedWithItsPlace) {
    EXPECT_EQ(refusal("[]"), "Blacha: expected an object, found []");
    EXPECT_EQ(refusal(R"({"Stal": 1})"), "Blacha.Stal: unknown key");
    EXPECT_EQ(refusal(R"({"Nr_stali_blachy": 7})"),
              "Blacha.Nr_stali_blachy: expected a whole number from 1 to 6, found 7");
    EXPECT_EQ(refusal(R"({"Nr_stali_blachy": "1"})"),
              "Blacha.Nr_stali_blachy: expected a whole number from 1 to 6, found \"1\"");
    EXPECT_EQ(refusal(R"({"Blacha_nazwa": 1})"), "Blacha.Blacha_nazwa: expected a text, found 1");
    EXPECT_EQ(refusal(R"({"Grubosc": "12"})"), "Blacha.Grubosc: expected a number, found \"12\"");
    EXPECT_EQ(refusal(R"({"Sprawdzenia": {"9": {}}})"), "Blacha.Sprawdzenia.9: unknown key");
    EXPECT_EQ(refusal(R"({"Sprawdzenia": {"1": {"l": 1}}})"),
              "Blacha.Sprawdzenia.1.l: unknown key");
    EXPECT_EQ(refusal(R"({"Sprawdzenia": {"3": {"l": 40000}}})"),
              "Blacha.Sprawdzenia.3.l: expected a whole number of 16 bits");
    EXPECT_EQ(refusal(R"({"Sprawdzenia": {"4": {"Nr_profilu": 26}}})"),
              "Blacha.Sprawdzenia.4.Nr_profilu: expected a whole number from 1 to 25, found 26");
    EXPECT_EQ(refusal(R"({"Nr_stali_blachy": 1, "Grubosc": null, "Sprawdzenia": {"1": {}}})"),
              "accepted");
}

TEST_F(PlateSectionOfATask, FieldsLeftOutKeepTheFirstTextOfTheForm) {
    Stan stan;
    fillNumberedCatalogue(stan);
    stan.plyta.Fi_kotwy(1) = 20;
    stan.wyniki.Nr_kotwy_max = 1;
    stan.wyniki.Sila_kotwy_max = -100;
    ScriptedDialogs dialogs;
    const auto result =
        runPlateTask(readPlateTask(parsed(R"({"Nr_stali_blachy": 2, "Sprawdzenia": {"1": {}}})")),
                     stan, dialogs);
    EXPECT_EQ(written(stan, result).at("Wiersze_blachy").at(4), "<38>100 kN<39>60 mm");
    EXPECT_EQ(written(stan, result).at("Wiersze_blachy").at(5), "<40>120 mm");
    EXPECT_TRUE(result.Blad.is_null());
    ASSERT_TRUE(result.section);
    EXPECT_STREQ(result.section->sketches.at(0).file, "Szkic1.bmp");
}

TEST_F(PlateSectionOfATask, AnUnreadableFieldOfTheLaterChecksStopsTheRun) {
    Stan stan;
    ScriptedDialogs dialogs;
    const auto result = runPlateTask(
        readPlateTask(
            parsed(R"({"Nr_stali_blachy": 2, "Grubosc": 30, "Sprawdzenia": {"7": {"S": 50}}})")),
        stan, dialogs);
    EXPECT_EQ(
        result.Blad.dump(),
        R"({"numer":13,"tekst":"Type mismatch","klucz":"Blacha.Sprawdzenia.7","szczegol":"\" \""})");
    EXPECT_EQ(written(stan, result).at("Grubosc"), "0");
    EXPECT_TRUE(written(stan, result).at("Wiersze_blachy").empty());
    EXPECT_FALSE(result.section);
}

TEST_F(PlateSectionOfATask, ARefusedPlateSteelCountsAsCancelled) {
    Stan stan;
    ScriptedDialogs dialogs;
    const auto result = runPlateTask(
        readPlateTask(parsed(
            R"({"Nr_stali_blachy": 6, "Blacha_nazwa": "", "Blacha_fd": 300, "Blacha_t_max": 40})")),
        stan, dialogs);
    ASSERT_GE(dialogs.messages.size(), 2U);
    EXPECT_EQ(dialogs.messages[0].text, QStringLiteral("Podaj nazwę materiału"));
    EXPECT_EQ(dialogs.messages[1].text, QStringLiteral("Musisz okreslić stal dla blachy"));
    EXPECT_EQ(written(stan, result).at("Fd_blachy"), 300.0);
}

TEST_F(PlateSectionOfATask, WithoutAGradeTheCheckAsksForIt) {
    Stan stan;
    ScriptedDialogs dialogs;
    runPlateTask(readPlateTask(parsed(R"({"Sprawdzenia": {"2": {"ca": 10}}})")), stan, dialogs);
    ASSERT_EQ(dialogs.messages.size(), 2U);
    EXPECT_EQ(dialogs.messages[0].text, QStringLiteral("Musisz wybrać gatunek stali"));
}

} // namespace
