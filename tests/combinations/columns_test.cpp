#include "combinations/columns.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace ferna::combinations {

namespace {

Layout layout(const QString& text) {
    return layoutOf(tables::rowsOf(text));
}

/// Columns of N, M1, M2, Vx, Vy.
std::vector<int> places(const Layout& found) {
    std::vector<int> columns;
    for (const LoadColumn& load : found.columns.byLoad)
        columns.push_back(load.column);
    return columns;
}

using Places = std::vector<int>;

TEST(Columns, WithoutNamesAreTheFiveLoadsInOrder) {
    const Layout found = layout(QStringLiteral("300;120;0;10;0\n200;100;0;10;0\n"));
    EXPECT_EQ(found.skipped, 0);
    EXPECT_EQ(found.columns.name, -1);
    EXPECT_EQ(places(found), (Places{0, 1, 2, 3, 4}));
    EXPECT_EQ(found.doubt, QString());
}

TEST(Columns, OfSixWithoutNamesTheFirstHoldsTheNamesAlsoWhereTheseAreNumbers) {
    for (const QString& text : {QStringLiteral("KO-1;300;120;0;10;0\n"),
                                QStringLiteral("1;300;120;0;10;0\n2;300;120;0;10;0\n")}) {
        const Layout found = layout(text);
        EXPECT_EQ(found.skipped, 0);
        EXPECT_EQ(found.columns.name, 0);
        EXPECT_EQ(places(found), (Places{1, 2, 3, 4, 5}));
    }
}

TEST(Columns, AreFoundByTheirNamesInAnyOrderInPolishAndEnglish) {
    const Layout polish =
        layout(QStringLiteral("Tz;Ty;Kombinacja;Mz;My;Siła osiowa\n0;10;KO-1;0;120;300\n"));
    EXPECT_EQ(polish.skipped, 1);
    EXPECT_EQ(polish.columns.name, 2);
    EXPECT_EQ(places(polish), (Places{5, 4, 3, 1, 0}));
    const Layout english = layout(QStringLiteral("M1,M2,Vx,Vy,Axial force,Load case\n1,2,3,4,5,6"));
    EXPECT_EQ(english.columns.name, 5);
    EXPECT_EQ(places(english), (Places{4, 0, 1, 2, 3}));
}

TEST(Columns, TakeTheUnitFromTheNameOrFromTheRowBelow) {
    const Layout beside = layout(QStringLiteral("N [N];M1 [Nmm];M2 (kNm);Vx, kN;Vy\n1;2;3;4;5\n"));
    EXPECT_EQ(beside.columns.byLoad[0].factor, 1e-3);
    EXPECT_DOUBLE_EQ(beside.columns.byLoad[1].factor, 1e-6);
    EXPECT_EQ(beside.columns.byLoad[2].factor, 1);
    EXPECT_EQ(beside.columns.byLoad[3].factor, 1);
    EXPECT_EQ(beside.columns.byLoad[4].factor, 1);
    const Layout below =
        layout(QStringLiteral("Nazwa;N;M1;M2;Vx;Vy\n[-];[N];[Nmm];kNm;kN;[kN]\nKO;1;2;3;4;5\n"));
    EXPECT_EQ(below.skipped, 2);
    EXPECT_EQ(below.columns.byLoad[0].factor, 1e-3);
    EXPECT_DOUBLE_EQ(below.columns.byLoad[1].factor, 1e-6);
    EXPECT_EQ(below.columns.byLoad[2].factor, 1);
}

TEST(Columns, TurnTheSignWhereAMinusStandsBeforeTheName) {
    const Layout found = layout(QStringLiteral("-N [N];M1;M2;−Vx;Vy\n1;2;3;4;5\n"));
    EXPECT_EQ(found.columns.byLoad[0].factor, -1e-3);
    EXPECT_EQ(found.columns.byLoad[1].factor, 1);
    EXPECT_EQ(found.columns.byLoad[3].factor, -1);
}

TEST(Columns, PassOverTitlesBeforeTheNames) {
    const Layout found =
        layout(QStringLiteral("Hala A, słup S-3;;;;;\n\nNazwa;N;M1;M2;Vx;Vy\nKO-1;300;1;2;3;4\n"));
    EXPECT_EQ(found.skipped, 2);
    EXPECT_EQ(found.columns.name, 0);
    EXPECT_EQ(found.doubt, QString());
}

TEST(Columns, AFirstColumnOfAnUnknownWordHoldsTheNames) {
    const Layout found = layout(QStringLiteral("godzina;N;M1;M2;Vx;Vy\n00:00;300;1;2;3;4\n"));
    EXPECT_EQ(found.columns.name, 0);
    EXPECT_EQ(found.doubt, QString());
}

TEST(Columns, AWordForTheCombinationGoesBeforeItsNumber) {
    EXPECT_EQ(layout(QStringLiteral("Lp;Kombinacja;N;M1;M2;Vx;Vy\n1;a;1;1;1;1;1")).columns.name, 1);
    EXPECT_EQ(layout(QStringLiteral("Kombinacja;Nr;N;M1;M2;Vx;Vy\na;1;1;1;1;1;1")).columns.name, 0);
}

TEST(Columns, ALoadWithoutAColumnIsNoughtAndThatIsTold) {
    const Layout found = layout(QStringLiteral("Nazwa;N;M1;Vx\nKO-1;300;120;10\n"));
    EXPECT_EQ(found.doubt, QString());
    EXPECT_EQ(found.assumed, QStringLiteral("kolumny M2, Vy: brak, przyjęto 0"));
    EXPECT_EQ(places(found), (Places{1, 2, -1, 3, -1}));
}

TEST(Columns, AreInDoubtWhereALoadIsMissingAndAWordIsUnknown) {
    EXPECT_EQ(layout(QStringLiteral("Nazwa;N;M1;M2;Vx;H\nKO-1;300;120;0;10;1\n")).doubt,
              QStringLiteral("kolumna Vy: brak, a nie wiadomo, co znaczy \"H\""));
    EXPECT_EQ(layout(QStringLiteral("Nazwa;M1;M2;Vx;Vy\nKO-1;120;0;10;1\n")).doubt,
              QStringLiteral("kolumna N: brak"));
    EXPECT_EQ(layout(QStringLiteral("a;b;c;d;e\n1;2;3;4;5\n")).doubt,
              QStringLiteral("nagłówek nie nazywa żadnego z obciążeń N, M1, M2, Vx, Vy"));
    EXPECT_EQ(layout(QStringLiteral("N [kG];M1;M2;Vx;Vy\n1;2;3;4;5\n")).doubt,
              QStringLiteral("nagłówek: \"N [kG]\" - nieznana jednostka"));
    EXPECT_EQ(layout(QStringLiteral("1;2;3;4;5;6;7\n")).doubt,
              QStringLiteral("kolumn jest 7, a bez nagłówka może ich być pięć (N, M1, M2, Vx, Vy) "
                             "albo sześć, z nazwą na początku"));
}

} // namespace

} // namespace ferna::combinations
