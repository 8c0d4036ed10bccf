#include "editing/load_cells.h"
#include "support/decimal_comma.h"

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::editing;
using ferna::testing::WithDecimalSign;

namespace {

class LoadCells : public ::testing::Test {
protected:
    /// Entries as "row,column=text".
    static QStringList entries(const LoadPaste& paste) {
        EXPECT_EQ(paste.refusal, QString());
        QStringList out;
        for (const LoadPaste::Entry& entry : paste.entries)
            out += QStringLiteral("%1,%2=%3")
                       .arg(entry.cell.row)
                       .arg(entry.cell.column)
                       .arg(entry.text);
        return out;
    }

    static void expectRefused(QStringView text, LoadCell at, const char* why) {
        const LoadPaste paste = pasteLoads(text, at);
        EXPECT_EQ(paste.refusal, QString::fromUtf8(why));
        EXPECT_TRUE(paste.entries.empty());
    }

    WithDecimalSign comma{u','};
};

TEST_F(LoadCells, GoDownAndToTheRightFromTheCellInWhichThePasteStands) {
    const LoadPaste paste = pasteLoads(u"1\t2,5\n-3\t4.25\n", {1, 2});
    EXPECT_EQ(entries(paste), QStringList({QStringLiteral("1,2=1"), QStringLiteral("1,3=2,5"),
                                           QStringLiteral("2,2=-3"), QStringLiteral("2,3=4.25")}));
    EXPECT_EQ(paste.rows, 3);
    EXPECT_EQ(paste.remark, QString());
}

TEST_F(LoadCells, GoWhereTheHeadingsSayWhereverThePasteStands) {
    const LoadPaste paste =
        pasteLoads(u"Węzeł;Vy [kN];My [kNm];N [kN];\nA1;5;60;1 250,5;\n\nA2;6;70;-80;\n", {1, 3});
    EXPECT_EQ(entries(paste), QStringList({QStringLiteral("1,4=5"), QStringLiteral("1,1=60"),
                                           QStringLiteral("1,0=1250,5"), QStringLiteral("2,4=6"),
                                           QStringLiteral("2,1=70"), QStringLiteral("2,0=-80")}));
    EXPECT_EQ(paste.remark, QStringLiteral("Pominięte kolumny: Węzeł."));
}

TEST_F(LoadCells, InAnotherUnitAreBroughtToKilonewtonsAndMetres) {
    EXPECT_EQ(entries(pasteLoads(u"N [N],M1 [Nmm]\n12500,3500000\n", {0, 0})),
              QStringList({QStringLiteral("0,0=12,5"), QStringLiteral("0,1=3,5")}));
}

TEST_F(LoadCells, BeyondTheSixthRowAreLeftOutAndThatIsSaid) {
    const LoadPaste paste = pasteLoads(u"1\n2\n3\n4\n5\n6\n7\n8", {0, 0});
    EXPECT_EQ(paste.entries.size(), 6U);
    EXPECT_EQ(paste.rows, 6);
    EXPECT_EQ(paste.remark, QStringLiteral("Tabela ma wierszy: 8, a od tego miejsca mieści się "
                                           "ich 6 - wpisane zostały pierwsze."));
    EXPECT_EQ(pasteLoads(u"1\n2\n3", {4, 0}).entries.size(), 2U);
}

TEST_F(LoadCells, ThatAreNoNumbersRefuseTheWholeWithRowAndColumn) {
    expectRefused(u"1\t2\n\n3\tabc\n", {0, 0},
                  "Wiersz 3, kolumna 2 (M1): \"abc\" nie jest liczbą. Nic nie zostało wpisane.");
    expectRefused(u"1\t2\n3\t\n", {0, 3},
                  "Wiersz 2, kolumna 2 (Vy): komórka jest pusta (wpisz 0, jeśli siły nie ma). Nic "
                  "nie zostało wpisane.");
    expectRefused(
        u"Vy;N\n1;1e39\n", {0, 0},
        "Wiersz 2, kolumna 2 (N): liczba \"1e39\" jest za duża. Nic nie zostało wpisane.");
    expectRefused(u"0,5\t10.125\n", {0, 0},
                  "Wiersz 1, kolumna 2 (M1): \"10.125\" ma inny znak dziesiętny niż reszta tabeli "
                  "i może znaczyć tysiące. Nic nie zostało wpisane.");
}

TEST_F(LoadCells, ThatDoNotFitRefuseTheWhole) {
    expectRefused(u"1\t2\t3\n", {0, 3},
                  "Tabela ma kolumn: 3, a od tej komórki (Vx) mieści się ich 2. Nic nie zostało "
                  "wpisane.");
    EXPECT_EQ(pasteLoads(u"1\t2\t\t\n", {0, 3}).refusal, QString()) << "empty columns take no room";
    expectRefused(u"N [kG]\tM1\n1\t2\n", {0, 0},
                  "Wiersz 1, kolumna 1: \"N [kG]\" - nieznana jednostka. Nic nie zostało wpisane.");
    expectRefused(u"Mx\tMy\tN\n1\t2\t3\n", {0, 0},
                  "Wiersz 1: nagłówek ma Mx i My bez Mz - nazwij kolumny momentów M1 i M2. Nic nie "
                  "zostało wpisane.");
    expectRefused(u"N\tM1\n", {0, 0},
                  "W tabeli nie ma wierszy z liczbami. Nic nie zostało wpisane.");
}

std::array<LoadRow<QString>, MaxCases> someLoads() {
    std::array<LoadRow<QString>, MaxCases> texts;
    const auto row = [](const char* n, const char* m1, const char* m2, const char* vx,
                        const char* vy) {
        return LoadRow<QString>{QString::fromLatin1(n), QString::fromLatin1(m1),
                                QString::fromLatin1(m2), QString::fromLatin1(vx),
                                QString::fromLatin1(vy)};
    };
    texts[0] = row("100", "12.5", "0", "-3,25", "0");
    texts[1] = row("1 000,5", "1e2", "abc", "", "5");
    return texts;
}

TEST_F(LoadCells, AreCopiedWithTabsAndTheDecimalSignOfTheProgram) {
    EXPECT_EQ(copiedLoads(someLoads(), {{0, 1}, {1, 3}}, 2),
              QStringLiteral("12,5\t0\t-3,25\n1e2\tabc\t\n"));
    const WithDecimalSign point(u'.');
    EXPECT_EQ(copiedLoads(someLoads(), {{0, 0}, {1, 1}}, 6),
              QStringLiteral("100\t12.5\n1000.5\t1e2\n"));
}

TEST_F(LoadCells, OfTheWholeTableAreCopiedUnderTheirHeadingsAndComeBack) {
    std::array<LoadRow<QString>, MaxCases> texts = someLoads();
    texts[1].M2 = texts[1].Vx = QStringLiteral("7");
    const QString copied = copiedLoads(texts, {{0, 0}, {1, 4}}, 2);
    EXPECT_EQ(copied, QStringLiteral("N [kN]\tM1 [kNm]\tM2 [kNm]\tVx [kN]\tVy [kN]\n"
                                     "100\t12,5\t0\t-3,25\t0\n1000,5\t1e2\t7\t7\t5\n"));
    const LoadPaste back = pasteLoads(copied, {2, 4});
    EXPECT_EQ(entries(back).join(u' '),
              QStringLiteral("2,0=100 2,1=12,5 2,2=0 2,3=-3,25 2,4=0 3,0=1000,5 3,1=1e2 3,2=7 "
                             "3,3=7 3,4=5"));
}

} // namespace
