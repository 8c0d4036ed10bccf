#include "batch/program.h"

#include <algorithm>
#include <cmath>

namespace ferna::testing {

namespace {

const QByteArray hall =
    R"({"Dlug_plyty_mm": 600, "Szer_plyty_mm": 400, "Nr_normy": 1, "Nr_betonu": 3,)"
    R"("Kotwy": [{"x": -250, "y": -150, "fi": 24}, {"x": 250, "y": 150, "fi": 24},)"
    R"({"x": 250, "y": -150, "fi": 24}, {"x": -250, "y": 150, "fi": 24}],)"
    R"("Przypadki": [{"N": 300, "M1": 80, "M2": 10, "Vx": 20, "Vy": 0},)"
    R"({"N": 120, "M1": 60, "M2": -5, "Vx": 45, "Vy": 10}]})";

const QByteArray smallRange =
    R"({"Slup": {"h": 200, "b": 200}, "Dlugosc": {"od": 450, "do": 700, "co": 50},)"
    R"("Szerokosc": {"od": 350, "do": 500, "co": 50}, "Srednice": [20, 24, 30], "Ile": 3})";

/// Answers in place of a result.
struct ReserveAnswers : Program {
    QString range(const QByteArray& text) { return folder.write(QStringLiteral("r.json"), text); }
    nlohmann::json answer() const { return nlohmann::json::parse(out.toStdString()); }
};

TEST_F(ReserveAnswers, OfTheCapacityHoldTheLineOfEveryCaseAndBothPlanes) {
    ASSERT_EQ(call({QStringLiteral("--nosnosc"), task(hall)}), 0);
    EXPECT_EQ(err, QByteArray());
    const nlohmann::json found = answer();
    ASSERT_EQ(found["Przypadki"].size(), 2U);
    for (const nlohmann::json& one : found["Przypadki"]) {
        EXPECT_EQ(one["Linia"].size(), 360U);
        const double used = std::max({one["Wytezenie"]["beton"].get<double>(),
                                      one["Wytezenie"]["rozciaganie"].get<double>(),
                                      std::sqrt(one["Wytezenie"]["interakcja"].get<double>())});
        EXPECT_NEAR(one["zapas"].get<double>(), 1 / used, 1e-9);
        EXPECT_GT(one["zapas_momentow"].get<double>(), 1);
    }
    EXPECT_EQ(found["N_M1"].size(), 360U);
    EXPECT_TRUE(found["N_M2"][90].contains("M2"));
}

TEST_F(ReserveAnswers, OfTheCapacityIsTheCasesOwnResultWhenItsLoadsAreScaledToTheLine) {
    ASSERT_EQ(call({QStringLiteral("--nosnosc"), task(hall)}), 0);
    const double times = answer()["Przypadki"][0]["zapas_momentow"].get<double>();
    nlohmann::json scaled = nlohmann::json::parse(hall.toStdString());
    scaled["Przypadki"][0]["M1"] = 80 * times;
    scaled["Przypadki"][0]["M2"] = 10 * times;
    ASSERT_EQ(call({task(QByteArray::fromStdString(scaled.dump()))}), 0);
    const nlohmann::json told = answer()["Rownowaga"][0];
    double pulled = 0;
    for (const nlohmann::json& stress : told["Sigma_kotwy"])
        pulled = std::max(pulled, -stress.get<double>());
    const double pressed = told["Sigma_b"].get<double>();
    EXPECT_NEAR(std::max(pulled / answer()["Materialy"]["Fd_kotwy"].get<double>(),
                         pressed / 2 / answer()["Materialy"]["Rb_betonu"].get<double>()),
                1, 1e-6);
}

TEST_F(ReserveAnswers, OfTheSmallestBaseAreConfirmedAndCanBeCalculated) {
    ASSERT_EQ(call({QStringLiteral("--dobierz"), range(smallRange), task(hall)}), 0);
    const nlohmann::json found = answer();
    EXPECT_GT(found["Spelniajace"].get<int>(), 10);
    EXPECT_EQ(found["Nie_sprawdzono"].size(), 5U);
    int confirmed = 0;
    double mass = 0;
    for (const nlohmann::json& base : found["Podstawy"]) {
        EXPECT_GE(base["Masa"].get<double>(), mass);
        mass = base["Masa"].get<double>();
        confirmed += base["Potwierdzona"].get<bool>() ? 1 : 0;
        nlohmann::json entered = nlohmann::json::parse(hall.toStdString());
        for (const char* key : {"Dlug_plyty_mm", "Szer_plyty_mm", "Kotwy", "Nr_stali"})
            entered[key] = base[key];
        ASSERT_EQ(call({task(QByteArray::fromStdString(entered.dump()))}), 0);
        EXPECT_TRUE(answer()["Kotwy_OK"].get<bool>());
    }
    EXPECT_EQ(confirmed, 3);
}

TEST_F(ReserveAnswers, CountTheCaseOfTheColumn) {
    nlohmann::json withColumn = nlohmann::json::parse(hall.toStdString());
    withColumn["Slup"] =
        nlohmann::json::parse(R"([{"kierunek": "pionowe", "rodzaj": "sila", "P": 200}])");
    const QString file = task(QByteArray::fromStdString(withColumn.dump()));
    ASSERT_EQ(call({QStringLiteral("--nosnosc"), file}), 0);
    ASSERT_EQ(answer()["Przypadki"].size(), 3U);
    EXPECT_EQ(answer()["Przypadki"][2]["N"], 200);
}

TEST_F(ReserveAnswers, GoIntoTheFileThatIsNamed) {
    const QString result = folder.path(QStringLiteral("n.json"));
    ASSERT_EQ(call({QStringLiteral("--nosnosc"), QStringLiteral("--wynik"), result, task(hall)}),
              0);
    EXPECT_EQ(out, QByteArray());
    QFile file(result);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(nlohmann::json::parse(file.readAll().toStdString()).contains("N_M1"));
    const QString own = task(hall);
    EXPECT_EQ(call({QStringLiteral("--nosnosc"), QStringLiteral("--wynik"), own, own}), 2);
}

TEST_F(ReserveAnswers, AreUnsolvedWhereThereIsNone) {
    nlohmann::json thick = nlohmann::json::parse(hall.toStdString());
    thick["Nr_stali"] = 3;
    thick["Kotwy"][0]["fi"] = 42;
    EXPECT_EQ(call({QStringLiteral("--nosnosc"), task(QByteArray::fromStdString(thick.dump()))}),
              1);
    EXPECT_EQ(answer()["Blad"]["numer"], 0);
    nlohmann::json pulled = nlohmann::json::parse(hall.toStdString());
    pulled["Przypadki"][1]["N"] = -20;
    EXPECT_EQ(call({QStringLiteral("--dobierz"), range(smallRange),
                    task(QByteArray::fromStdString(pulled.dump()))}),
              1);
    EXPECT_EQ(answer()["Podstawy"][0]["powod"],
              "Program nie wykonuje obliczeń dla zakotwień rozciąganych");
}

TEST_F(ReserveAnswers, AreRefusedWithOneLineThatSaysWhatIsWrong) {
    const QString good = range(smallRange);
    const auto refused = [&](const QStringList& arguments, const char* words) {
        EXPECT_EQ(call(arguments), 2);
        EXPECT_EQ(err.count('\n'), 1);
        EXPECT_TRUE(err.contains(words)) << err.toStdString();
        EXPECT_EQ(out, QByteArray());
    };
    const QString own = task(hall);
    refused({QStringLiteral("--nosnosc"), QStringLiteral("--dobierz"), good, own},
            "do not go together");
    refused({QStringLiteral("--nosnosc"), QStringLiteral("--linie")}, "takes no --linie");
    refused({QStringLiteral("--nosnosc"), QStringLiteral("--raport"), QStringLiteral("x.txt"), own},
            "takes no --linie, --raport");
    refused({QStringLiteral("--dobierz"), QString(), own},
            "--dobierz: expected the name of a file");
    refused({QStringLiteral("--dobierz"), folder.path(QStringLiteral("none.json")), own},
            "none.json");
    QByteArray wrong = smallRange;
    wrong.replace("[20, 24, 30]", "[20,\n25]");
    refused({QStringLiteral("--dobierz"), range(wrong), own},
            "r.json, line 1: Srednice: expected diameters among 12, 16");
    wrong = smallRange;
    wrong.replace("\"do\": 700", "\n\"do\": 400");
    refused({QStringLiteral("--dobierz"), range(wrong), own},
            "r.json, line 2: Dlugosc.do: expected at least \"od\"");
    wrong = smallRange;
    wrong.replace("\"co\": 50}, \"Sz", "\"co\": 1}, \"Sz").replace("\"do\": 700", "\"do\": 30000");
    wrong.replace("\"do\": 500, \"co\": 50", "\"do\": 30000, \"co\": 1");
    refused({QStringLiteral("--dobierz"), range(wrong), own},
            "expected at most 20000000 candidates");
    refused({QStringLiteral("--schemat"), QStringLiteral("inny")},
            "expected zadanie or wynik or zakres or dobor or nosnosc");
}

} // namespace

} // namespace ferna::testing
