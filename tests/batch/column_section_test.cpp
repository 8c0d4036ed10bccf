#include "batch/column_section.h"
#include "support/decimal_comma.h"
#include "support/golden.h"
#include "support/printing.h"
#include "support/task_document.h"
#include "support/written_section.h"

using namespace ferna;
using namespace ferna::batch;
using namespace ferna::testing;

namespace {

class ColumnSectionOfATask : public ::testing::Test {
protected:
    static std::string refusal(const char* text) {
        return refusalOf([](const TaskDocument& value) { readColumnTask(value); }, text);
    }

private:
    WithDecimalSign comma_{u','};
};

TEST_F(ColumnSectionOfATask, EveryReferenceTaskAgrees) {
    int count = 0;
    for (const GoldenCase& golden : goldenCases(QStringLiteral("statics"))) {
        Stan stan;
        const auto before = golden.task.at("Przypadki").size();
        stan.obciazenia.Liczba_przyp = static_cast<Integer>(before);
        InputFields fields;
        const auto result =
            runColumnTask(readColumnTask(documentOf(golden.task.at("Slup"))), stan, fields);
        const GoldenJson& expected = golden.expected.at("Slup");
        EXPECT_EQ(expected.dump(), written(result).dump()) << "task " << golden.line;
        EXPECT_TRUE(result.Blad.is_null());
        EXPECT_EQ(static_cast<std::size_t>(stan.obciazenia.Liczba_przyp), before + 1);
        EXPECT_EQ(fields.loads.at(before).N.toStdString(), expected.at("N").get<std::string>());
        EXPECT_EQ(fields.loads.at(before).M1.toStdString(), expected.at("M1").get<std::string>());
        EXPECT_EQ(fields.loads.at(before).M2.toStdString(), expected.at("M2").get<std::string>());
        EXPECT_EQ(fields.loads.at(before).Vx.toStdString(), expected.at("Vx").get<std::string>());
        EXPECT_EQ(fields.loads.at(before).Vy.toStdString(), expected.at("Vy").get<std::string>());
        ++count;
    }
    EXPECT_EQ(count, 53);
}

TEST_F(ColumnSectionOfATask, WhatCannotBeTypedIsRefusedWithItsPlace) {
    EXPECT_EQ(refusal("{}"), "Slup: expected an array of loads");
    EXPECT_EQ(refusal("[1]"), "Slup[0]: expected an object, found 1");
    EXPECT_EQ(refusal(R"([{"rodzaj": "sila"}])"),
              "Slup[0].kierunek: this key is required and is missing");
    EXPECT_EQ(refusal(R"([{"kierunek": "XY", "rodzaj": "sila"}])"),
              R"(Slup[0].kierunek: expected "pionowe" or "ZX" or "ZY")");
    EXPECT_EQ(refusal(R"([{"kierunek": "ZX", "rodzaj": "x"}])"),
              R"(Slup[0].rodzaj: expected "sila" or "ciagle" or "moment")");
    EXPECT_EQ(refusal(R"([{"kierunek": "pionowe", "rodzaj": "moment"}])"),
              R"(Slup[0].rodzaj: expected "sila")");
    EXPECT_EQ(refusal(R"([{"kierunek": "ZX", "rodzaj": "moment", "H": 1}])"),
              "Slup[0].H: unknown key");
    EXPECT_EQ(refusal(R"([{"kierunek": "ZX", "rodzaj": "sila", "H": "1"}])"),
              "Slup[0].H: expected a number, found \"1\"");
}

TEST_F(ColumnSectionOfATask, ValuesLeftOutKeepTheFirstTextsOfTheDialog) {
    Stan stan;
    InputFields fields;
    const auto result = runColumnTask(
        readColumnTask(parsed(R"([{"kierunek": "pionowe", "rodzaj": "sila", "ex": 500}])")), stan,
        fields);
    EXPECT_EQ(written(result).at("N"), " 1,0");
    EXPECT_EQ(written(result).at("M1"), " 0,5");
}

TEST_F(ColumnSectionOfATask, AnEmptyListWritesItsRow) {
    Stan stan;
    InputFields fields;
    runColumnTask(readColumnTask(parsed("[]")), stan, fields);
    EXPECT_EQ(fields.loads[1].N, QStringLiteral("0"));
}

TEST_F(ColumnSectionOfATask, ASixteenthLoadIsTheErrorOfTheRun) {
    Stan stan;
    InputFields fields;
    ColumnTask task;
    task.loads.resize(16);
    const auto result = runColumnTask(task, stan, fields);
    EXPECT_EQ(result.Blad.dump(), R"({"numer":9,"tekst":"Subscript out of range","klucz":"[15]"})");
    EXPECT_EQ(written(result).at("lista").size(), 15U);
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 1);
}

} // namespace
