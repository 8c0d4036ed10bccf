#include "plate/load_charts.h"
#include "support/places.h"
#include "support/printing.h"

#include <QFile>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace ferna;

namespace {

const nlohmann::json& reference() {
    static const nlohmann::json json = [] {
        QFile file(places::golden("/charts.json"));
        if (!file.open(QIODevice::ReadOnly))
            throw std::runtime_error("charts.json is missing");
        return nlohmann::json::parse(file.readAll().toStdString());
    }();
    return json;
}

Single singleOf(const nlohmann::json& number) {
    return static_cast<Single>(number.get<double>());
}

struct Reading {
    bool ok;
    Single y;
};

constexpr Single untouched = -77;

Reading read(decltype(&Wsp_rysB2) chart, Integer krzywa, Single x) {
    Reading reading{false, untouched};
    chart(krzywa, x, reading.y, reading.ok);
    return reading;
}

TEST(LoadCharts, EveryReferenceReadingOfACurveAgreesToTheLastBit) {
    int count = 0;
    for (const auto& vector : reference().at("curves")) {
        const bool figureB2 = vector.at("rys") == "B2";
        const Reading reading = read(figureB2 ? Wsp_rysB2 : Wsp_rysB3,
                                     vector.at("krzywa").get<Integer>(), singleOf(vector.at("x")));
        EXPECT_EQ(reading.ok, vector.at("ok").get<bool>()) << vector.dump();
        EXPECT_EQ(reading.y, vector.at("y").is_null() ? untouched : singleOf(vector.at("y")))
            << vector.dump();
        ++count;
    }
    EXPECT_GT(count, 900);
}

TEST(LoadCharts, APieceOfACurveLeadsToTheCoefficientThatWasRead) {
    int pieces = 0;
    for (const auto& vector : reference().at("curves")) {
        const bool figureB2 = vector.at("rys") == "B2";
        const Single x = singleOf(vector.at("x"));
        const auto piece = chartPiece(figureB2 ? 7 : 8, vector.at("krzywa").get<Integer>(), x);
        if (!piece) {
            EXPECT_TRUE(!vector.at("ok").get<bool>() || vector.at("y") == 0) << vector.dump();
            continue;
        }
        EXPECT_TRUE(vector.at("ok").get<bool>()) << vector.dump();
        ++pieces;
        EXPECT_NEAR(piece->y0 + (piece->y1 - piece->y0) * (x - piece->x0) / piece->w,
                    vector.at("y").get<double>(), 1e-5)
            << vector.dump();
    }
    EXPECT_GT(pieces, 500);
}

TEST(LoadCharts, EveryReferenceRowOfNeighbouringCurvesAgrees) {
    for (const auto& vector : reference().at("rows")) {
        const ChartRow row = chartRow(vector.at("sprawdzenie"), singleOf(vector.at("p")));
        EXPECT_EQ(row.L, singleOf(vector.at("L"))) << vector.dump();
        EXPECT_EQ(row.U, singleOf(vector.at("U"))) << vector.dump();
        EXPECT_EQ(row.k1, vector.at("k1").get<int>()) << vector.dump();
        EXPECT_EQ(row.k2, vector.at("k2").get<int>()) << vector.dump();
    }
}

TEST(LoadCharts, EveryReferenceInterpolationAgreesToTheLastBit) {
    int count = 0;
    for (const auto& vector : reference().at("interpolation")) {
        const ChartReading reading =
            Interpoluj_wykres(vector.at("sprawdzenie"), vector.at("b").get<Integer>(),
                              vector.at("a").get<Integer>(), vector.at("c").get<Integer>());
        EXPECT_EQ(reading.p, singleOf(vector.at("p"))) << vector.dump();
        EXPECT_EQ(reading.q, singleOf(vector.at("q"))) << vector.dump();
        if (!vector.at("komunikat").is_null()) {
            EXPECT_EQ(reading.message, QString::fromStdString(vector.at("komunikat")));
        } else {
            EXPECT_TRUE(reading.message.isEmpty()) << vector.dump();
            EXPECT_EQ(reading.y1, singleOf(vector.at("y1"))) << vector.dump();
            EXPECT_EQ(reading.y2, singleOf(vector.at("y2"))) << vector.dump();
            EXPECT_EQ(reading.y, singleOf(vector.at("y"))) << vector.dump();
        }
        ++count;
    }
    EXPECT_GT(count, 600);
}

TEST(LoadCharts, CurveTenReachesDownWithoutLimit) {
    const Reading reading = read(Wsp_rysB3, 10, 0.05F);
    EXPECT_TRUE(reading.ok);
    EXPECT_EQ(reading.y, 5.13F);
    EXPECT_EQ(read(Wsp_rysB2, 10, -1.0F).y, 5.15F);
}

TEST(LoadCharts, AnOpenEndGivesZeroAndJustBeyondItIsOutside) {
    const Reading atEnd = read(Wsp_rysB3, 12, 12.18F);
    EXPECT_TRUE(atEnd.ok);
    EXPECT_EQ(atEnd.y, 0.0F);
    const Reading beyond = read(Wsp_rysB3, 12, 12.19F);
    EXPECT_FALSE(beyond.ok);
    EXPECT_EQ(beyond.y, untouched);
    for (const auto& [krzywa, x] :
         {std::pair{14, 12.11F}, {35, 11.25F}, {40, 10.9F}, {45, 10.3F}, {50, 9.6F}, {55, 8.3F}}) {
        EXPECT_TRUE(read(Wsp_rysB3, static_cast<Integer>(krzywa), x).ok) << krzywa;
        EXPECT_EQ(read(Wsp_rysB3, static_cast<Integer>(krzywa), x).y, 0.0F) << krzywa;
    }
    EXPECT_EQ(read(Wsp_rysB2, 32, 5.0F).y, 0.0F);
}

TEST(LoadCharts, AClosedEndGivesTheRimOfTheChart) {
    EXPECT_EQ(read(Wsp_rysB3, 16, 12.04F).y, 12.56F);
    EXPECT_TRUE(read(Wsp_rysB3, 16, 12.04F).ok);
    EXPECT_EQ(read(Wsp_rysB2, 12, 6.9F).y, 12.56F);
    EXPECT_TRUE(read(Wsp_rysB2, 12, 6.9F).ok);
}

TEST(LoadCharts, CurveThirtyOfFigureB2StartsWithZeros) {
    const Reading reading = read(Wsp_rysB2, 30, 1.6F);
    EXPECT_TRUE(reading.ok);
    EXPECT_EQ(reading.y, 0.0F);
    EXPECT_FALSE(read(Wsp_rysB2, 30, 1.4F).ok);
}

TEST(LoadCharts, CurveTwentyOfFigureB3RunsAboveTheRim) {
    EXPECT_NEAR(read(Wsp_rysB3, 20, 9.5F).y, 9.95 + 3.5 * 2.61 / 0.7, 1e-5);
    // 9 itself still belongs to the segment on its left, which departs in y0.
    EXPECT_EQ(read(Wsp_rysB3, 20, 9.0F).y, 9.95F);
}

TEST(LoadCharts, ACurveThatTheChartLacksIsZero) {
    for (const int krzywa : {13, 17, 25, 27, 34, 60}) {
        const Reading reading = read(Wsp_rysB2, static_cast<Integer>(krzywa), 2.0F);
        EXPECT_TRUE(reading.ok);
        EXPECT_EQ(reading.y, 0.0F);
    }
}

TEST(LoadCharts, InterpolatesFromZeroWhereTheLowerCurveIsMissing) {
    const ChartReading reading = Interpoluj_wykres(7, 150, 100, 100);
    EXPECT_EQ(reading.p, 1.5F);
    EXPECT_EQ(reading.row.L, 1.4F);
    EXPECT_EQ(reading.row.k1, 13);
    EXPECT_EQ(reading.row.k2, 16);
    EXPECT_EQ(reading.y1, 0.0F);
    EXPECT_EQ(reading.y2, 8.6F);
    EXPECT_NEAR(reading.y, 4.3, 1e-5);
}

TEST(LoadCharts, BetweenTwoMissingCurvesTheCoefficientIsZero) {
    const ChartReading reading = Interpoluj_wykres(7, 270, 100, 100);
    EXPECT_TRUE(reading.message.isEmpty());
    EXPECT_EQ(reading.y, 0.0F);
}

TEST(LoadCharts, TheLastRowOfFigureB3IsReadAtItsLowerCurve) {
    const ChartReading reading = Interpoluj_wykres(8, 550, 500, 100);
    EXPECT_EQ(reading.row.L, 5.5F);
    EXPECT_EQ(reading.row.k2, 60);
    EXPECT_EQ(reading.y2, 0.0F);
    EXPECT_EQ(reading.y, reading.y1);
    EXPECT_GT(reading.y, 0.0F);
}

TEST(LoadCharts, TheUpperLimitOfFigureB2BelongsToIt) {
    EXPECT_TRUE(Interpoluj_wykres(7, 320, 300, 100).message.isEmpty());
    EXPECT_EQ(
        Interpoluj_wykres(7, 321, 300, 100).message,
        QStringLiteral("Ferna za blisko podparcia - poza zakresem ważności wzoru (b/c>3.2)!"));
}

TEST(LoadCharts, RefusesAnAnchorOutsideTheFragment) {
    EXPECT_EQ(Interpoluj_wykres(7, 100, 100, 150).message,
              QStringLiteral("Ferna poza obliczanym fragmentem blachy (b/c<1)!"));
    EXPECT_EQ(
        Interpoluj_wykres(8, 560, 100, 100).message,
        QStringLiteral("Ferna za blisko podparcia - poza zakresem ważności wzoru (b/c>5.5)!"));
    EXPECT_EQ(
        Interpoluj_wykres(7, 100, 19, 100).message,
        QStringLiteral("Ferna za blisko podparcia - poza zakresem ważności wzoru (a/c<0.2)!"));
    EXPECT_EQ(
        Interpoluj_wykres(8, 100, 9, 100).message,
        QStringLiteral("Ferna za blisko podparcia - poza zakresem ważności wzoru (a/c<0.1)!"));
    EXPECT_EQ(Interpoluj_wykres(7, 100, 701, 100).message,
              QStringLiteral("Ferna za blisko podparcia\nlub zbyt długi fragment blachy (a/c>7)!"));
    EXPECT_EQ(
        Interpoluj_wykres(8, 100, 1226, 100).message,
        QStringLiteral("Ferna za blisko podparcia\nlub zbyt długi fragment blachy (a/c>12.25)!"));
    EXPECT_EQ(Interpoluj_wykres(7, 320, 100, 100).message,
              QStringLiteral("Stosunek a/c poza zakresem dopuszczonym przez PN"));
}

TEST(LoadCharts, TheRowBelowThreeIsDividedByHalfInFigureB3) {
    const ChartReading reading = Interpoluj_wykres(8, 290, 300, 100);
    EXPECT_EQ(reading.row.k2, 30);
    EXPECT_NEAR(reading.y, (reading.y2 - reading.y1) * 0.1 / 0.5 + reading.y1, 1e-4);
}

} // namespace
