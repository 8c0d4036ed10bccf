#include "batch/program.h"

using ferna::testing::Program;

namespace {

/// The companion answers the rows of a table.
struct Combinations : Program {
    const QByteArray base =
        R"({"Dlug_plyty_mm": 600, "Szer_plyty_mm": 400, "Nr_betonu": 3, "Hsily_wszystkie": 0,)"
        R"("Kotwy": [{"x": -250, "y": -150, "fi": 24}, {"x": 250, "y": -150, "fi": 24},)"
        R"({"x": -250, "y": 150, "fi": 24}, {"x": 250, "y": 150, "fi": 24}]})";

    int answer(const QByteArray& table, const QStringList& more = {}) {
        return call(QStringList{QStringLiteral("--kombinacje"),
                                folder.write(QStringLiteral("k.csv"), table), task(base)}
                    + more);
    }

    std::vector<nlohmann::json> lines() const {
        std::vector<nlohmann::json> all;
        for (const QByteArray& line : out.split('\n'))
            if (!line.isEmpty())
                all.push_back(nlohmann::json::parse(line.toStdString()));
        return all;
    }
};

TEST_F(Combinations, GiveOneLineARowAndASummary) {
    ASSERT_EQ(answer("nazwa;N;M1;M2;Vx;Vy\nKO-1;300;20;0;0;0\nKO-2;300;120;20;5;0\n"
                     "KO-3;300;12,3,4;20;5;0\nKO-4;60;90;10;60;10\n"),
              0);
    EXPECT_EQ(err, QByteArray());
    const auto all = lines();
    ASSERT_EQ(all.size(), 5U);
    EXPECT_EQ(all[0]["wiersz"], 1);
    EXPECT_EQ(all[0]["nazwa"], "KO-1");
    EXPECT_EQ(all[0]["kotwa"], 0);
    EXPECT_EQ(all[0]["Wytezenie"]["rozciaganie"], 0);
    EXPECT_EQ(all[2].dump(), R"({"blad":"kolumna M1: \"12,3,4\" nie jest liczbą","wiersz":3})");
    EXPECT_GT(all[3]["Wytezenie"]["interakcja"], all[3]["Wytezenie"]["rozciaganie"]);
    EXPECT_EQ(all[3]["Wytezenie"]["scinanie"], 0);
    EXPECT_EQ(all[4]["Podsumowanie"]["wiersze"], 4);
    EXPECT_EQ(all[4]["Podsumowanie"]["odrzucone"], 1);
    EXPECT_TRUE(out.endsWith(
        R"({"Podsumowanie":{"wiersze":4,"odrzucone":1,"miarodajne":{"beton":2,"rozciaganie":4,)"
        R"("scinanie":1,"interakcja":4},"szesc":[2,4,1]}})"
        "\n"))
        << out.constData();
}

TEST_F(Combinations, AreThoseOfTheTasksOwnResult) {
    ASSERT_EQ(answer("300;120;20;5;0\n"), 0);
    const nlohmann::json use = lines().front()["Wytezenie"];
    nlohmann::json whole = nlohmann::json::parse(base.toStdString());
    whole["Przypadki"] = {{{"N", 300}, {"M1", 120}, {"M2", 20}, {"Vx", 5}, {"Vy", 0}}};
    ASSERT_EQ(call({task(QByteArray::fromStdString(whole.dump()))}), 0);
    const nlohmann::json result = nlohmann::json::parse(out.toStdString());
    const nlohmann::json exact = result["Rownowaga"][0];
    double tension = 0;
    for (const nlohmann::json& stress : exact["Sigma_kotwy"])
        tension = std::max(tension, -stress.get<double>());
    EXPECT_NEAR(use["beton"],
                exact["Sigma_b"].get<double>()
                    / (2 * result["Materialy"]["Rb_betonu"].get<double>()),
                1e-6);
    EXPECT_NEAR(use["rozciaganie"], tension / result["Materialy"]["Fd_kotwy"].get<double>(), 1e-6);
}

TEST_F(Combinations, WithoutEquilibriumHaveNoUseAndGovernEverything) {
    ASSERT_EQ(call({QStringLiteral("--kombinacje"), QStringLiteral("-"),
                    task(R"({"Dlug_plyty_mm": 600, "Szer_plyty_mm": 400, "Kotwy": []})")},
                   "300;20;0;0;0\n100;90;0;0;0\n"),
              0);
    EXPECT_TRUE(out.contains(R"({"wiersz":2,"nazwa":"","Wytezenie":null})")) << out.constData();
    EXPECT_TRUE(out.contains(R"("beton":2,"rozciaganie":2,"scinanie":2,"interakcja":2},)"
                             R"("szesc":[2,1])"));
}

TEST_F(Combinations, OfAShearThatNoAnchorTakesHaveNull) {
    ASSERT_EQ(call({QStringLiteral("--kombinacje"), QStringLiteral("-"),
                    task(R"({"Dlug_plyty_mm": 600, "Szer_plyty_mm": 400, "Kotwy": []})")},
                   "300;20;0;500;0\n"),
              0);
    EXPECT_TRUE(lines().front()["Wytezenie"]["interakcja"].is_null());
    EXPECT_TRUE(lines().front()["Wytezenie"]["beton"].is_number());
}

TEST_F(Combinations, EndWithOneWhereNoRowCouldBeRead) {
    EXPECT_EQ(answer("x;y;z;1;2\n"), 1);
    EXPECT_EQ(lines().back()["Podsumowanie"]["odrzucone"], 1);
    EXPECT_EQ(answer(""), 1);
    EXPECT_EQ(lines().back()["Podsumowanie"]["wiersze"], 0);
    EXPECT_TRUE(lines().back()["Podsumowanie"]["miarodajne"]["beton"].is_null());
}

TEST_F(Combinations, EndWithTwoWhereTheTableCannotBeRead) {
    EXPECT_EQ(call({QStringLiteral("--kombinacje"), folder.path(QStringLiteral("nie-ma.csv")),
                    task(base)}),
              2);
    EXPECT_TRUE(err.contains("nie można otworzyć pliku")) << err.constData();
    EXPECT_EQ(answer("Nazwa;N;M1;M2;Vx;H\nKO-1;300;120;0;10;1\n"), 2);
    EXPECT_TRUE(err.contains("nie wiadomo, co znaczy \"H\"")) << err.constData();
    EXPECT_EQ(out, QByteArray());
}

TEST_F(Combinations, TellWhatTheyTakeForAMissingColumn) {
    EXPECT_EQ(answer("Nazwa;N;M1\nKO-1;300;20\n"), 0);
    EXPECT_TRUE(err.contains("kolumny M2, Vx, Vy: brak, przyjęto 0")) << err.constData();
}

TEST_F(Combinations, NeedATaskWithABaseAndItsSteel) {
    const QString table = folder.write(QStringLiteral("k.csv"), "1;2;3;4;5\n");
    EXPECT_EQ(call({QStringLiteral("--kombinacje"), table,
                    task(R"({"Dlug_plyty_mm": 600, "Szer_plyty_mm": 400,)"
                         R"("Kotwy": [{"x": 0, "y": 0, "fi": 25}]})")}),
              2);
    EXPECT_TRUE(err.contains("the task gives no base")) << err.constData();
    EXPECT_EQ(call({QStringLiteral("--kombinacje"), table,
                    task(R"({"Dlug_plyty_mm": 600, "Szer_plyty_mm": 400, "Nr_stali": 7,)"
                         R"("Kotwy": [{"x": 0, "y": 0, "fi": 24}]})")}),
              2);
    EXPECT_TRUE(err.contains("no strength")) << err.constData();
    EXPECT_EQ(call({QStringLiteral("--kombinacje"), table, task("{")}), 2);
}

TEST_F(Combinations, TakeNoOtherOutputs) {
    EXPECT_EQ(answer("1;2;3;4;5\n", {QStringLiteral("--wynik"), folder.path(QStringLiteral("w"))}),
              2);
    EXPECT_TRUE(err.contains("--kombinacje writes standard output"));
    EXPECT_EQ(call({QStringLiteral("--kombinacje"), QStringLiteral("-"), QStringLiteral("-")}), 2);
    EXPECT_TRUE(err.contains("standard input cannot be both"));
}

} // namespace
