// The built program, driven from outside.
#include "support/folder.h"
#include "support/printing.h"

#include <QProcess>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using ferna::testing::Folder;
using Json = nlohmann::json;

namespace {

const QByteArray good =
    R"({"Nazwa_projektu": "Hala ż", "Dlug_plyty_mm": 600, "Szer_plyty_mm": 400,)"
    R"("Kotwy": [{"x": -250, "y": -150, "fi": 24}, {"x": 250, "y": 150, "fi": 24}],)"
    R"("Przypadki": [{"N": 50, "M1": 60, "M2": 20, "Vx": 1, "Vy": 0}]})";

struct Program : ::testing::Test {
    Folder folder;
    QByteArray out;
    QByteArray err;
    QString epoch;

    int call(const QStringList& arguments, const QByteArray& input = {}) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("SOURCE_DATE_EPOCH"));
        if (!epoch.isEmpty())
            environment.insert(QStringLiteral("SOURCE_DATE_EPOCH"), epoch);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(FERNA_BIN_DIR "/ferna-wsad"), arguments);
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(120'000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        out = process.readAllStandardOutput();
        err = process.readAllStandardError();
        return process.exitCode();
    }

    QString task(const QByteArray& text) { return folder.write(QStringLiteral("t.json"), text); }

    QList<QByteArray> stream(const QByteArray& input, const QStringList& more = {}) {
        EXPECT_EQ(call(QStringList(QStringLiteral("--linie")) + more, input), 0);
        QList<QByteArray> lines = out.split('\n');
        EXPECT_EQ(lines.takeLast(), QByteArray()) << "the last line is ended";
        return lines;
    }
};

TEST_F(Program, ASolvedTaskLeavesWithNothing) {
    EXPECT_EQ(call({task(good)}), 0);
    EXPECT_TRUE(Json::parse(out.toStdString())["Obliczone"]);
}

TEST_F(Program, ARefusedOrUnsolvedTaskLeavesWithOne) {
    EXPECT_EQ(call({task(QByteArray(good).replace("\"N\": 50", "\"N\": -50"))}), 1);
    EXPECT_FALSE(Json::parse(out.toStdString())["Obliczone"]);
    EXPECT_EQ(call({task(QByteArray(good).replace("\"N\": 50", "\"N\": 1e300"))}), 1);
    EXPECT_EQ(Json::parse(out.toStdString())["Blad"]["numer"], 6);
}

TEST_F(Program, AnUnreadableTaskLeavesWithTwoAndOneLineThatNamesFileLineAndKey) {
    EXPECT_EQ(call({task(QByteArray(good).replace("\"fi\": 24}, ", "\"fi\":\n\"24\"},"))}), 2);
    EXPECT_EQ(out, QByteArray());
    EXPECT_TRUE(err.trimmed().endsWith(
        "t.json, line 2: Kotwy[0].fi: expected a whole number from -32768 to 32767, found \"24\""))
        << err.toStdString();
    EXPECT_EQ(call({task("{")}), 2);
    EXPECT_TRUE(err.contains("t.json, line 1: expected JSON"));
    EXPECT_EQ(call({folder.path(QStringLiteral("brak.json"))}), 2);
    EXPECT_TRUE(err.contains("brak.json"));
    EXPECT_EQ(call({}), 2);
    EXPECT_EQ(call({QStringLiteral("--nic")}), 2);
    EXPECT_EQ(call({task(good), QStringLiteral("--katalog"), QStringLiteral("brak.txt")}), 2);
    EXPECT_TRUE(err.contains("brak.txt"));
    EXPECT_EQ(call({task(good), QStringLiteral("--wynik"), QStringLiteral("/brak/w.json")}), 2);
}

TEST_F(Program, TheResultAndTheReportGoIntoTheirFiles) {
    epoch = QStringLiteral("1767225600"); // 2026-01-01 00:00 UTC
    const QString report = folder.path(QStringLiteral("r.txt"));
    EXPECT_EQ(call({QStringLiteral("--wynik"), folder.path(QStringLiteral("w.json")),
                    QStringLiteral("--raport"), report, QStringLiteral("--dziesietny"),
                    QStringLiteral(","), task(good)}),
              0);
    EXPECT_EQ(out, QByteArray());
    EXPECT_TRUE(Json::parse(folder.read(QStringLiteral("w.json")).toStdString())["Obliczone"]);
    const QByteArray text = folder.read(QStringLiteral("r.txt"));
    EXPECT_TRUE(text.contains("\r\nHala \xbf\r\n01/01/26     00:00\r\n")) << text.toStdString();
    EXPECT_TRUE(text.contains(" 50,00 kN"));
    EXPECT_EQ(call({QStringLiteral("--raport"), report, QStringLiteral("--dziesietny"),
                    QStringLiteral("."), task(good)}),
              0);
    EXPECT_TRUE(folder.read(QStringLiteral("r.txt")).contains(" 50.00 kN"));
}

TEST_F(Program, NoReportIsWrittenOfAnUnsolvedTask) {
    EXPECT_EQ(call({QStringLiteral("--raport"), folder.path(QStringLiteral("r.txt")),
                    task(QByteArray(good).replace("\"N\": 50", "\"N\": 0"))}),
              1);
    EXPECT_FALSE(QFile::exists(folder.path(QStringLiteral("r.txt"))));
}

TEST_F(Program, ABadLineOfAStreamBecomesItsResult) {
    const QByteArray input = good + "\nno json\n" + good + "\n{\"Nr_normy\": 2}\n\n"
                             + "{\"Nazwa_projektu\": \"\xff\xfe\"}\n" + QByteArray(50'000, '[')
                             + "\n" + good;
    const auto lines = stream(input);
    ASSERT_EQ(lines.size(), 8);
    for (const int n : {1, 3, 8}) {
        const Json result = Json::parse(lines[n - 1].toStdString());
        EXPECT_TRUE(result["Obliczone"]) << n;
        EXPECT_TRUE(result["Blad"].is_null()) << n;
    }
    for (const int n : {2, 4, 5, 6, 7}) {
        const Json result = Json::parse(lines[n - 1].toStdString());
        EXPECT_EQ(result["Blad"]["numer"], 0) << n;
        const std::string why = result["Blad"]["tekst"];
        EXPECT_EQ(why.rfind("line " + std::to_string(n) + ": ", 0), 0U) << why;
    }
    EXPECT_NE(lines[3].indexOf("Nr_normy: expected a whole number from 0 to 1, found 2"), -1);
}

TEST_F(Program, SeveralThreadsGiveTheSameStream) {
    const QByteArray tasks =
        Folder::bytesOf(QStringLiteral(FERNA_GOLDEN_DIR "/solver.tasks.jsonl"));
    const auto one = stream(tasks, {QStringLiteral("--watki"), QStringLiteral("1")});
    EXPECT_EQ(stream(tasks, {QStringLiteral("--watki"), QStringLiteral("3")}), one);
    EXPECT_EQ(one.size(), tasks.trimmed().count('\n') + 1);
}

TEST_F(Program, AnEmptyStreamGivesNothing) {
    EXPECT_EQ(call({QStringLiteral("--linie")}), 0);
    EXPECT_EQ(out, QByteArray());
}

} // namespace
