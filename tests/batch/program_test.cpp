// The built program, driven from outside.
#include "batch/program.h"
#include "support/places.h"

#include <sys/resource.h>

using namespace ferna::testing;

namespace {

TEST_F(Program, ASolvedTaskLeavesWithNothing) {
    EXPECT_EQ(call({task(good)}), 0);
    EXPECT_TRUE(nlohmann::json::parse(out.toStdString())["Obliczone"]);
}

TEST_F(Program, ARefusedOrUnsolvedTaskLeavesWithOne) {
    EXPECT_EQ(call({task(QByteArray(good).replace("\"N\": 50", "\"N\": -50"))}), 1);
    EXPECT_FALSE(nlohmann::json::parse(out.toStdString())["Obliczone"]);
    EXPECT_EQ(call({task(QByteArray(good).replace("\"N\": 50", "\"N\": 1e300"))}), 1);
    EXPECT_EQ(nlohmann::json::parse(out.toStdString())["Blad"]["numer"], 6);
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
    EXPECT_TRUE(
        nlohmann::json::parse(folder.read(QStringLiteral("w.json")).toStdString())["Obliczone"]);
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
    const auto lines = stream(input, {}, 1);
    ASSERT_EQ(lines.size(), 8);
    for (const int n : {1, 3, 8}) {
        const nlohmann::json result = nlohmann::json::parse(lines[n - 1].toStdString());
        EXPECT_TRUE(result["Obliczone"]) << n;
        EXPECT_TRUE(result["Blad"].is_null()) << n;
    }
    for (const int n : {2, 4, 5, 6, 7}) {
        const nlohmann::json result = nlohmann::json::parse(lines[n - 1].toStdString());
        EXPECT_EQ(result["Blad"]["numer"], 0) << n;
        const std::string why = result["Blad"]["tekst"];
        EXPECT_EQ(why.rfind("line " + std::to_string(n) + ": ", 0), 0U) << why;
    }
    EXPECT_NE(lines[3].indexOf("Nr_normy: expected a whole number from 0 to 1, found 2"), -1);
}

TEST_F(Program, SeveralThreadsGiveTheSameStream) {
    const QByteArray tasks = Folder::bytesOf(places::golden("/solver.tasks.jsonl"));
    const auto one = stream(tasks, {QStringLiteral("--watki"), QStringLiteral("1")}, 1);
    EXPECT_EQ(stream(tasks, {QStringLiteral("--watki"), QStringLiteral("3")}, 1), one);
    EXPECT_EQ(one.size(), tasks.trimmed().count('\n') + 1);
}

TEST_F(Program, AStreamLeavesWithOneWhereATaskWasRefusedOrNotSolved) {
    stream(good + '\n' + good);
    stream(good + '\n' + QByteArray(good).replace("\"N\": 50", "\"N\": -50"), {}, 1);
    stream(good + '\n' + QByteArray(good).replace("\"N\": 50", "\"N\": 1e300"), {}, 1);
    stream(good + "\nno json\n", {}, 1);
}

TEST_F(Program, AStreamThatCannotBeReadIsAFailure) {
    const QStringList shell{QStringLiteral("-c"), QStringLiteral("\"$0\" --linie < /"),
                            places::bin("/ferna-wsad")};
    QProcess process;
    process.start(QStringLiteral("/bin/sh"), shell);
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 2);
    EXPECT_TRUE(process.readAllStandardError().contains("standard input"));
    const QString mem = QStringLiteral("/proc/self/mem"); // opens, and cannot be read
    process.start(QStringLiteral("/bin/sh"),
                  {shell[0], QStringLiteral("\"$0\" --linie < ") + mem, shell[2]});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 2);
    EXPECT_TRUE(process.readAllStandardError().contains("Device I/O error: standard input"));
}

TEST_F(Program, AnswersEveryLineBeforeTheNextIsSent) {
    for (const char* threads : {"1", "2", "4"}) {
        QProcess process;
        process.start(
            places::bin("/ferna-wsad"),
            {QStringLiteral("--linie"), QStringLiteral("--watki"), QLatin1String(threads)});
        for (int i = 0; i < 20; ++i) {
            process.write(good + '\n');
            ASSERT_TRUE(process.canReadLine() || process.waitForReadyRead(20'000)) << threads;
            EXPECT_TRUE(process.readLine().startsWith("{\"Komunikaty\""));
        }
        process.closeWriteChannel();
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0);
    }
}

TEST_F(Program, ALineBeyondItsLimitIsRefusedAndTheNextIsComputed) {
    const auto lines = stream(QByteArray(5'000'000, '[') + '\n' + good, {}, 1);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(nlohmann::json::parse(lines[0].toStdString())["Blad"]["tekst"],
              "line 1: expected at most 1000000 bytes");
    EXPECT_TRUE(nlohmann::json::parse(lines[1].toStdString())["Obliczone"]);
}

TEST_F(Program, ARunTimeErrorNamesKeyCaseAndWhatWasMet) {
    const auto error = [&](const QByteArray& text) {
        EXPECT_EQ(call({task(text)}), 1);
        return nlohmann::json::parse(out.toStdString())["Blad"];
    };
    const nlohmann::json load = error(QByteArray(good).replace("\"Vx\": 1", "\"Vx\": 1e300"));
    EXPECT_EQ(load,
              nlohmann::json::parse(R"({"numer": 6, "tekst": "Overflow", "klucz": "Przypadki[0].Vx",
                                    "przypadek": 1, "szczegol": "\"1E+300\""})"));
    const nlohmann::json ratio = error(
        QByteArray(good).replace("\"Kotwy\"", R"("Tryb_wsp_n": 1, "Wsp_n_val": 1e99, "Kotwy")"));
    EXPECT_EQ(ratio["klucz"], "Wsp_n_val");
    EXPECT_FALSE(ratio.contains("przypadek"));
    const nlohmann::json search = error(
        R"({"Dlug_plyty_mm": 600, "Szer_plyty_mm": 400, "Hsily_wszystkie": 1,
            "Kotwy": [{"x": 250, "y": 150, "fi": 24}, {"x": 250, "y": -150, "fi": 24}],
            "Przypadki": [{"N": 300, "M1": 40, "M2": 0, "Vx": 0, "Vy": 0},
                          {"N": 300, "M1": 40, "M2": 0, "Vx": 120, "Vy": 0}]})");
    EXPECT_EQ(search["numer"], 11);
    EXPECT_EQ(search["przypadek"], 2);
    const nlohmann::json column = error(QByteArray(good).replace(
        "\"Kotwy\"",
        R"("Slup": [{"kierunek": "pionowe", "rodzaj": "sila", "P": 1e300}], "Kotwy")"));
    EXPECT_EQ(column["klucz"], "Slup[0]");
    const nlohmann::json plate =
        error(QByteArray(good).replace("\"Kotwy\"", R"("Blacha": {"Nr_stali_blachy": 2,
                        "Sprawdzenia": {"5": {"sigma": 1e99}}}, "Kotwy")"));
    EXPECT_EQ(plate["klucz"], "Blacha.Sprawdzenia.5");
}

/// As many bytes of memory as that, for the programs that the test starts.
class LittleMemory {
public:
    explicit LittleMemory(rlim_t bytes) {
        getrlimit(RLIMIT_AS, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_AS, &limit);
    }
    ~LittleMemory() { setrlimit(RLIMIT_AS, &before_); }
    LittleMemory(const LittleMemory&) = delete;
    LittleMemory& operator=(const LittleMemory&) = delete;

private:
    rlimit before_{};
};

TEST_F(Program, OutOfMemoryOrThreadsIsOneLineAndLeavesWithTwo) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "the sanitizer takes more memory than there is here";
#endif
    constexpr rlim_t some = 500'000'000; // less than the stacks of 256 threads
    const LittleMemory limit(some);
    EXPECT_EQ(call({QStringLiteral("--linie"), QStringLiteral("--watki"), QStringLiteral("256")}),
              2);
    EXPECT_EQ(err.count('\n'), 1) << err.toStdString();
    EXPECT_TRUE(err.startsWith("ferna-wsad: the system gives no more")) << err.toStdString();
}

TEST_F(Program, AnEmptyStreamGivesNothing) {
    EXPECT_EQ(call({QStringLiteral("--linie")}), 0);
    EXPECT_EQ(out, QByteArray());
}

} // namespace
