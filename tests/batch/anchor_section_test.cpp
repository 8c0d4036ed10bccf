#include "batch/anchor_section.h"
#include "design/material_tables.h"
#include "support/decimal_comma.h"
#include "support/golden.h"
#include "support/printing.h"
#include "support/task_document.h"
#include "support/written_section.h"

using namespace ferna;
using namespace ferna::batch;
using namespace ferna::testing;

namespace {

class AnchorSectionOfATask : public ::testing::Test {
protected:
    static std::string refusal(const char* text) {
        return refusalOf([](const TaskDocument& value) { readAnchorTask(value); }, text);
    }

private:
    WithDecimalSign comma_{u','};
};

TEST_F(AnchorSectionOfATask, EveryReferenceTaskAgrees) {
    int count = 0;
    for (const GoldenCase& golden : goldenCases(QStringLiteral("anchor"))) {
        Stan stan = calculatedState(golden);
        for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
            stan.plyta.Pole_kotwy(i) = coreArea(stan.plyta.Fi_kotwy(i)).value();
        ScriptedDialogs dialogs;
        const auto result =
            runAnchorTask(readAnchorTask(documentOf(golden.task.at("Kotwa"))), stan, dialogs);
        expectSame(golden.expected.at("Kotwa"), written(stan, result),
                   "task " + std::to_string(golden.line));
        EXPECT_TRUE(dialogs.messages.empty());
        ++count;
    }
    EXPECT_EQ(count, 26);
}

TEST_F(AnchorSectionOfATask, WhatCannotBeTypedIsRefusedWithItsPlace) {
    EXPECT_EQ(refusal(R"({"rodzaj": "F"})"), "Kotwa.g: this key is required and is missing");
    EXPECT_EQ(refusal(R"({"g": 50})"), "Kotwa.rodzaj: this key is required and is missing");
    EXPECT_EQ(refusal(R"({"g": 50, "rodzaj": "X"})"), R"(Kotwa.rodzaj: expected "F" or "P")");
    EXPECT_EQ(refusal(R"({"g": 50, "rodzaj": 1})"), R"(Kotwa.rodzaj: expected "F" or "P")");
    EXPECT_EQ(refusal(R"({"g": "50", "rodzaj": "F"})"), "Kotwa.g: expected a number, found \"50\"");
    EXPECT_EQ(refusal(R"({"g": 40000, "rodzaj": "F"})"),
              "Kotwa.g: expected a whole number of 16 bits");
}

TEST_F(AnchorSectionOfATask, WithAnExceededAnchorItIsNull) {
    Stan stan;
    stan.wyniki.Kotwy_OK = False;
    ScriptedDialogs dialogs;
    const auto result = runAnchorTask({0, QStringLiteral("50")}, stan, dialogs);
    EXPECT_TRUE(written(stan, result).is_null());
}

TEST_F(AnchorSectionOfATask, AfterAFailedLoadingThereAreNoLines) {
    Stan stan;
    stan.plyta.Fi_kotwy(1) = 20;
    stan.wyniki.Nr_kotwy_max = 1;
    ScriptedDialogs dialogs;
    const auto result =
        runAnchorTask(readAnchorTask(parsed(R"({"rodzaj": "F", "g": 32000})")), stan, dialogs);
    EXPECT_TRUE(written(stan, result).at("Wiersze_kotwy").empty());
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_EQ(dialogs.messages[0].text, QStringLiteral("6!!!!"));
    EXPECT_EQ(stan.raport.Liczba_wierszy_kotwy, 0);
}

} // namespace
