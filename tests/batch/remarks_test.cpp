// What the built program says on standard error beside a result.
#include "support/folder.h"
#include "support/places.h"
#include "support/printing.h"

#include <QProcess>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using ferna::testing::Folder;

namespace {

struct Remarks : ::testing::Test {
    Folder folder;
    QByteArray out;
    QByteArray err;

    /// Calls the program for the task and returns its exit code.
    int call(const nlohmann::json& task, const QString& from = QStringLiteral("-")) {
        const QByteArray text = QByteArray::fromStdString(task.dump());
        QProcess process;
        process.start(places::bin("/ferna-wsad"), {from});
        process.write(text);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(120'000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        out = process.readAllStandardOutput();
        err = process.readAllStandardError();
        return process.exitCode();
    }

    /// True where that line, whole, stands on standard error.
    bool told(const QByteArray& line) const { return err.split('\n').contains(line); }

    nlohmann::json result() const { return nlohmann::json::parse(out.toStdString()); }

    nlohmann::json task() const {
        return nlohmann::json::parse(
            Folder::bytesOf(places::data("/przyklady/slup-hali.json")).toStdString());
    }

    /// The first golden task of that name whose expected result has a message with these words.
    static nlohmann::json goldenWith(const QString& name, const std::string& words) {
        const auto linesOf = [&name](const QString& ending) {
            return Folder::bytesOf(places::golden("/") + name + ending).trimmed().split('\n');
        };
        const QList<QByteArray> expected = linesOf(QStringLiteral(".expected.jsonl"));
        for (qsizetype i = 0; i < expected.size(); ++i)
            if (expected[i].toStdString().find(words) != std::string::npos)
                return nlohmann::json::parse(
                    linesOf(QStringLiteral(".tasks.jsonl"))[i].toStdString());
        ADD_FAILURE() << "no golden task with " << words;
        return {};
    }
};

TEST_F(Remarks, ATaskThatGoesAsAskedHasNone) {
    EXPECT_EQ(call(task()), 0);
    EXPECT_EQ(err, QByteArray());
    EXPECT_TRUE(result()["Obliczone"]);
}

TEST_F(Remarks, AnApproximateSolutionIsALineAndStillComputed) {
    EXPECT_EQ(call(goldenWith(QStringLiteral("statics"), "Rozwiązanie przybliżone")), 0);
    EXPECT_TRUE(told("ferna-wsad: /dev/stdin: Ferna 2005 Pr: Brak ścisłego rozwiazania! "
                     "Rozwiązanie przybliżone."))
        << err.toStdString();
}

TEST_F(Remarks, ARefusalIsALineWithItsTitle) {
    nlohmann::json refused = task();
    refused["Przypadki"][0]["N"] = -5;
    EXPECT_EQ(call(refused), 1);
    EXPECT_TRUE(told("ferna-wsad: /dev/stdin: Schemat nr 1: Program nie wykonuje "
                     "obliczeń dla zakotwień rozciąganych"))
        << err.toStdString();
}

TEST_F(Remarks, ARunTimeErrorIsALine) {
    nlohmann::json stopped = task();
    stopped["Przypadki"][0]["N"] = 1e300;
    EXPECT_EQ(call(stopped), 1);
    EXPECT_TRUE(err.startsWith("ferna-wsad: /dev/stdin: error 6: ")) << err.toStdString();
}

TEST_F(Remarks, ARefusedPlateCheckAndAnEmptyPlateSectionAreALineEach) {
    nlohmann::json plate = task();
    plate["Blacha"] = {{"Nr_stali_blachy", 2},
                       {"Sprawdzenia", {{"3", {{"l", 100}, {"b", 200}, {"sigma", 5}}}}}};
    EXPECT_EQ(call(plate), 0);
    EXPECT_TRUE(err.contains("Długośc fragmentu blachy musi być większa od szerokości!\n"))
        << err.toStdString();
    EXPECT_TRUE(
        told("ferna-wsad: /dev/stdin: Blacha: nothing of the plate section stands in the report"))
        << err.toStdString();
    EXPECT_EQ(result()["Blacha"]["Wiersze_blachy"].size(), 0U);
}

TEST_F(Remarks, AnAnchorThatIsNotSelectedIsALine) {
    nlohmann::json anchor = task();
    anchor["Kotwa"] = {{"rodzaj", "F"}, {"g", 75}};
    EXPECT_EQ(call(anchor), 0);
    EXPECT_FALSE(err.contains("Kotwa:")) << "it stands in the report";
    anchor["Przypadki"][0]["M1"] = 240;
    EXPECT_EQ(call(anchor), 0);
    EXPECT_TRUE(result()["Kotwa"].is_null());
    EXPECT_TRUE(
        told("ferna-wsad: /dev/stdin: Kotwa: not selected, as the stress of an anchor is above its "
             "strength; nothing of it stands in the report"))
        << err.toStdString();
}

TEST_F(Remarks, TheTaskOfADashIsThatOfStandardInput) {
    EXPECT_EQ(call(task()), 0);
    const QByteArray fromInput = out;
    EXPECT_EQ(call({}, places::data("/przyklady/slup-hali.json")), 0);
    EXPECT_EQ(out, fromInput);
    EXPECT_EQ(call(nlohmann::json::parse(R"({"Nr_normy": 7})")), 2);
    EXPECT_TRUE(err.startsWith("ferna-wsad: /dev/stdin, line 1: ")) << err.toStdString();
}

} // namespace
