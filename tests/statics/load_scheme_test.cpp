#include "statics/load_scheme.h"
#include "support/printing.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace ferna;

namespace {

std::array<bool, MaxCases> numbers(int first, int last) {
    std::array<bool, MaxCases> shown{};
    for (int i = first; i <= last; ++i)
        shown.at(static_cast<std::size_t>(i)) = true;
    return shown;
}

TEST(SchemeDialogOpened, OnAnEmptyTableOffersTheFirstNewScheme) {
    const SchemeDialog dialog = openSchemeDialog(0);
    EXPECT_EQ(dialog.optZapis_visible, (std::array{true, false, false}));
    EXPECT_EQ(dialog.optZapis, 0);
    EXPECT_EQ(dialog.optNumer_visible, numbers(0, 0));
    EXPECT_EQ(dialog.optNumer, 0);
    EXPECT_EQ(dialog.cmdZapisz, QStringLiteral("Zapisz"));
}

TEST(SchemeDialogOpened, BetweenOffersAllModesAndTheNextNumber) {
    for (Integer count = 1; count <= 5; ++count) {
        const SchemeDialog dialog = openSchemeDialog(count);
        EXPECT_EQ(dialog.optZapis_visible, (std::array{true, true, true}));
        EXPECT_EQ(dialog.optZapis, 0);
        EXPECT_EQ(dialog.optNumer_visible, numbers(0, count));
        EXPECT_EQ(dialog.optNumer, count);
        EXPECT_EQ(dialog.cmdZapisz, QStringLiteral("Zapisz"));
    }
}

TEST(SchemeDialogOpened, OnAFullTableReplacesUnderAnotherCaption) {
    const SchemeDialog dialog = openSchemeDialog(6);
    EXPECT_EQ(dialog.optZapis_visible, (std::array{false, true, true}));
    EXPECT_EQ(dialog.optZapis, 2);
    EXPECT_EQ(dialog.optNumer_visible, numbers(0, 5));
    EXPECT_EQ(dialog.optNumer, 0);
    EXPECT_EQ(dialog.cmdZapisz, QStringLiteral("Dodaj"));
}

TEST(SchemeDialogOpened, BeyondAFullTableStandsLikeAFullOne) {
    EXPECT_EQ(openSchemeDialog(7).optNumer_visible, numbers(0, 5));
}

TEST(ChoosingAMode, ShowsItsNumbersAndItsCaption) {
    SchemeDialog dialog = openSchemeDialog(3);
    chooseMode(dialog, 1, 3);
    EXPECT_EQ(dialog.cmdZapisz, QStringLiteral("Dodaj"));
    EXPECT_EQ(dialog.optNumer_visible, numbers(0, 2));
    EXPECT_EQ(dialog.optNumer, 0);
    chooseMode(dialog, 2, 3);
    EXPECT_EQ(dialog.cmdZapisz, QStringLiteral("Zastąp"));
    EXPECT_EQ(dialog.optNumer_visible, numbers(0, 2));
    chooseMode(dialog, 0, 3);
    EXPECT_EQ(dialog.cmdZapisz, QStringLiteral("Zapisz"));
    EXPECT_EQ(dialog.optNumer_visible, numbers(3, 3));
    EXPECT_EQ(dialog.optNumer, 3);
    EXPECT_EQ(dialog.optZapis, 0);
}

TEST(ChoosingAMode, OnAFullTableANewSchemeHasNoNumber) {
    SchemeDialog dialog = openSchemeDialog(6);
    chooseMode(dialog, 0, 6);
    EXPECT_EQ(dialog.optNumer, -1);
    EXPECT_EQ(dialog.optNumer_visible, (std::array<bool, MaxCases>{}));
}

class RecordedTable : public LoadTable {
public:
    void setCount(const QString& text) override { count = text; }
    void setRow(int r, const LoadRow<QString>& texts) override { rows[r] = texts; }
    void showRow(int r) override { shown.push_back(r); }

    QString count;
    std::map<int, LoadRow<QString>> rows;
    std::vector<int> shown;
};

const LoadRow<QString> totals{QStringLiteral(" 100,0"), QStringLiteral("- 2,0"),
                              QStringLiteral("0"), QStringLiteral("1 000,0"),
                              QStringLiteral(" 0,5")};

TEST(SavingTheTotals, AddsARowWithTheTextsAsTheyStandWhateverTheDialogSays) {
    Stan stan;
    stan.obciazenia.Liczba_przyp = 2;
    SchemeDialog dialog = openSchemeDialog(2);
    chooseMode(dialog, 2, 2);
    dialog.optNumer = 0;
    RecordedTable table;
    saveTotals(stan, totals, table);
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 3);
    EXPECT_EQ(table.count, QStringLiteral("3"));
    ASSERT_EQ(table.rows.size(), 1U);
    EXPECT_EQ(table.rows.at(2), totals);
    EXPECT_EQ(table.shown, std::vector<int>{2});
}

TEST(SavingTheTotals, TheSeventhRowFailsAfterTheCountAndItsFieldHaveChanged) {
    Stan stan;
    stan.obciazenia.Liczba_przyp = 6;
    RecordedTable table;
    try {
        saveTotals(stan, totals, table);
        ADD_FAILURE() << "no error";
    } catch (const RunTimeError& failure) {
        EXPECT_EQ(failure.number(), error::Subscript);
    }
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 7);
    EXPECT_EQ(table.count, QStringLiteral("7"));
    EXPECT_TRUE(table.rows.empty());
    EXPECT_TRUE(table.shown.empty());
}

} // namespace
