#include "support/decimal_comma.h"
#include "support/golden.h"
#include "support/places.h"
#include "task/task.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

struct WrittenTasks : ::testing::TestWithParam<char16_t> {
    WithDecimalSign sign{GetParam()};
};

Task taskOf(const std::string& text) {
    return readTask(parsed(text));
}

/// Every value of `asked` stands in `written`, at its place and in its order; numbers by value.
void expectHeld(const Json& asked, const Json& written, const std::string& where) {
    if (asked.is_number()) {
        EXPECT_EQ(general(asked.get<double>()), general(written.get<double>())) << where;
    } else if (asked.is_object()) {
        for (const auto& [key, part] : asked.items()) {
            if (part.is_null() || (key == "Wsp_n_val" && asked.value("Tryb_wsp_n", 0) == 0))
                continue;
            ASSERT_TRUE(written.contains(key)) << where << '.' << key;
            expectHeld(part, written.at(key), where + '.' + key);
        }
    } else if (asked.is_array()) {
        ASSERT_EQ(asked.size(), written.size()) << where;
        for (std::size_t i = 0; i < asked.size(); ++i)
            expectHeld(asked[i], written[i], where + '[' + std::to_string(i) + ']');
    } else {
        EXPECT_EQ(asked, written) << where;
    }
}

std::vector<std::string> referenceTasks() {
    std::vector<std::string> tasks;
    for (const char* part : {"solver", "plate", "anchor", "statics"})
        for (const GoldenCase& golden : goldenCases(QString::fromLatin1(part)))
            tasks.push_back(golden.task.dump());
    return tasks;
}

std::vector<std::string> sampleTasks() {
    const QDir samples(places::data("/przyklady"));
    std::vector<std::string> tasks;
    for (const QString& name : samples.entryList(QDir::Files)) {
        QFile file(samples.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        tasks.push_back(file.readAll().toStdString());
    }
    return tasks;
}

TEST_P(WrittenTasks, EveryReferenceTaskComesBackWithEveryValue) {
    const std::vector<std::string> tasks = referenceTasks();
    EXPECT_EQ(tasks.size(), 355U + 124U + 26U + 53U);
    for (const std::string& asked : tasks) {
        const std::string written = taskText(taskOf(asked));
        expectHeld(Json::parse(asked), Json::parse(written), asked);
        if (HasFatalFailure())
            return;
    }
}

TEST_P(WrittenTasks, OpenedAndSavedAgainEveryReferenceTaskHasTheSameBytes) {
    for (const std::string& asked : referenceTasks()) {
        const std::string once = taskText(taskOf(asked));
        EXPECT_EQ(once, taskText(taskOf(once)));
    }
}

TEST_P(WrittenTasks, TheSampleTasksComeBackWithEveryValue) {
    const std::vector<std::string> tasks = sampleTasks();
    EXPECT_EQ(tasks.size(), 3U);
    for (const std::string& asked : tasks)
        expectHeld(Json::parse(asked), Json::parse(taskText(taskOf(asked))), "sample");
}

INSTANTIATE_TEST_SUITE_P(WithEitherDecimalSign, WrittenTasks, ::testing::Values(u',', u'.'));

struct TypedTask : ::testing::Test {
    WithDecimalSign comma{u','};
    Task task = taskOf(R"({"Dlug_plyty_mm": 600, "Szer_plyty_mm": 400,
        "Kotwy": [{"x": 250, "y": 150, "fi": 24}],
        "Przypadki": [{"N": 300, "M1": 12.5, "M2": 0, "Vx": 10, "Vy": 0}]})");

    Task again() const { return taskOf(taskText(task)); }
};

TEST_F(TypedTask, IsWrittenAsAPersonWouldWriteIt) {
    EXPECT_EQ(taskText(task), R"({
    "Nazwa_projektu": "",
    "Nazwa_stopy": "",
    "Nr_strony": 1,
    "Nr_normy": 0,
    "Nr_jezyka": 0,
    "Tryb_RTF": 1,
    "Hsily_wszystkie": 0,
    "Tryb_wsp_n": 0,
    "Nr_betonu": 1,
    "Stopa_betonowa": 0,
    "Nr_stali": 2,
    "Dlug_plyty_mm": 600,
    "Szer_plyty_mm": 400,
    "Kotwy": [
        {"x": 250, "y": 150, "fi": 24}
    ],
    "Przypadki": [
        {"N": 300, "M1": 12.5, "M2": 0, "Vx": 10, "Vy": 0}
    ]
}
)");
}

TEST_F(TypedTask, WhatIsNoNumberComesBackAsItWasTyped) {
    task.fields.loads[0].M1 = QStringLiteral("12,3,4");
    task.fields.loads[0].Vy = QString();
    task.fields.Text3 = QStringLiteral("600,5");
    task.fields.txtNr_strony = QStringLiteral("40000");
    EXPECT_EQ(again().fields, task.fields);
    EXPECT_EQ(Json::parse(taskText(task)).at("Wpisane").dump(),
              R"({"Nr_strony":"40000","Dlug_plyty_mm":"600,5",)"
              R"("Przypadki[0].M1":"12,3,4","Przypadki[0].Vy":""})");
}

TEST_F(TypedTask, ARowBehindTheNumberOfCasesComesBack) {
    task.fields.loads[3] = {QStringLiteral("77"), QStringLiteral("0"), QStringLiteral("x"),
                            QStringLiteral("0"), QStringLiteral("5")};
    EXPECT_EQ(again().fields, task.fields);
    EXPECT_EQ(again().stan.obciazenia.Liczba_przyp, 1);
}

TEST_F(TypedTask, ARatioTypedOverTheComputedOneComesBack) {
    task.fields.Text2 = QStringLiteral("7,5");
    EXPECT_EQ(again().fields.Text2, QStringLiteral("7,5"));
    EXPECT_EQ(again().stan.opcje.Tryb_wsp_n, 0);
}

TEST_F(TypedTask, LettersOfEveryKindComeBack) {
    task.fields.txtNaz_proj = QStringLiteral("Hala \"B\" \\ oś №1 \U0001F3D7\t");
    EXPECT_EQ(again().fields.txtNaz_proj, task.fields.txtNaz_proj);
}

TEST_F(TypedTask, AMovedAnchorIsWrittenWhereItIsComputed) {
    task.stan.plyta.X_kotwy(1) = 10; // as after a removal: the listed millimetres stay behind
    EXPECT_EQ(again().stan.plyta.X_kotwy_mm(1), 100);
}

TEST_F(TypedTask, ATotalThatStandsInACaseAddsNone) {
    task.column = readColumnTask(
        parsed(R"([{"kierunek": "pionowe", "rodzaj": "sila", "P": 250, "ex": 0, "ey": 10}])"));
    task.column->inCase = 1;
    const Task read = again();
    ASSERT_TRUE(read.column.has_value());
    EXPECT_EQ(read.column->inCase, 1);
    EXPECT_FALSE(addsCase(read));
    Stan stan = read.stan;
    InputFields fields = read.fields;
    EXPECT_EQ(declareLoads(*read.column, stan, fields).form.totals.N, QStringLiteral(" 250,0"));
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 1);
    EXPECT_EQ(fields, read.fields);
}

TEST_F(TypedTask, DeclaredLoadsBecomeTheTaskThatDeclaresThem) {
    const std::string asked =
        R"([{"kierunek": "pionowe", "rodzaj": "sila", "P": 250, "ex": -3.5, "ey": 10},)"
        R"( {"kierunek": "ZX", "rodzaj": "ciagle", "p1": 1.2, "p2": 3, "h1": 0, "h2": 4.5},)"
        R"( {"kierunek": "ZY", "rodzaj": "sila", "H": 12, "h": 4},)"
        R"( {"kierunek": "ZX", "rodzaj": "moment", "M": -7}])";
    Stan stan = task.stan;
    InputFields fields = task.fields;
    const DeclaredLoads done = declareLoads(readColumnTask(parsed(asked)), stan, fields);
    EXPECT_EQ(columnTaskJson(columnTaskOf(done.loads, 2)), Json::parse(asked));
}

std::string refusal(const std::string& tail) {
    try {
        taskOf(R"({"Dlug_plyty_mm": 1, "Szer_plyty_mm": 1, "Kotwy": [],)"
               R"( "Przypadki": [{"N": 1, "M1": 0, "M2": 0, "Vx": 0, "Vy": 0}], )"
               + tail + "}");
    } catch (const TaskError& failure) {
        return std::string(failure.what()) + " / " + failure.polish;
    }
    return "accepted";
}

TEST(RefusedTask, SaysWhatIsWrongInBothLanguages) {
    EXPECT_EQ(refusal(R"("Wpisane": {"Nr_betonu": "x"})"),
              "Wpisane.Nr_betonu: unknown key / nieznany klucz (plik nowszej wersji programu?)");
    EXPECT_EQ(refusal(R"("Slup_przypadek": 1)"), "Slup_przypadek: expected together with Slup / "
                                                 "ten klucz ma sens tylko z kluczem Slup");
    EXPECT_EQ(refusal(R"("Slup": [], "Slup_przypadek": 2)"),
              "Slup_przypadek: there is no such case / nie ma takiego przypadku");
    EXPECT_EQ(refusal(R"("Nr_normy": 7)"),
              "Nr_normy: expected a whole number from 0 to 1, found 7 / "
              "ma tu stać liczba całkowita od 0 do 1, a stoi 7");
}

} // namespace
