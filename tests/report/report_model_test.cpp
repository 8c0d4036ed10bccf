#include "design/plate_blocks.h"
#include "report/hand_filled_report.h"
#include "support/printing.h"

#include <gtest/gtest.h>

#include <numeric>

namespace ferna::testing {
namespace {

TEST(ReportModel, HasTheSectionsOfTheReportAndTheirLines) {
    const HandFilledReport report(2);
    const ReportModel model = report.model();
    EXPECT_EQ(model.title(7), QStringLiteral("Stopa F-1"));
    EXPECT_EQ(model.generalView, QStringLiteral("Ferogo2.bmp"));
    EXPECT_EQ(model.platePicture, QStringLiteral("Ferrob.bmp"));
    EXPECT_EQ(model.data.size(), 4);
    EXPECT_EQ(model.anchors.size(), 5) << "the heading and four anchors";
    EXPECT_EQ(model.anchorCount(), 4);
    EXPECT_EQ(model.loads.size(), 5) << "heading, columns, two cases, an empty line";
    EXPECT_EQ(model.resultsHeading, QStringLiteral("Wyniki obliczeń"));
    ASSERT_EQ(model.caseCount(), 2);
    EXPECT_EQ(model.cases[1].title, QStringLiteral("Schemat obciążenia nr 2"));
    EXPECT_EQ(model.cases[1].figure, QStringLiteral("fernasz2.bmp"));
    EXPECT_EQ(model.cases[1].axis, QStringList({QStringLiteral("Oś obojętna A(20,-200), B(300,5)"),
                                                QStringLiteral("Naprężenia w kotwach:")}));
    ASSERT_TRUE(model.summary);
    EXPECT_EQ(model.summary->heading, QStringLiteral("Wartości największe"));
    EXPECT_FALSE(model.plate);
    EXPECT_FALSE(model.anchor);
}

TEST(ReportModel, HasNoSummaryOfOneCase) {
    EXPECT_FALSE(HandFilledReport(1).model().summary);
}

TEST(ReportModel, CaseOfTheWholePlateHasNeitherFigureNorNeutralAxis) {
    const ReportModel model = HandFilledReport(2, 4, {1}).model();
    EXPECT_TRUE(model.cases[0].wholePlate());
    EXPECT_TRUE(model.cases[0].axis.isEmpty());
    EXPECT_FALSE(model.cases[1].wholePlate());
}

TEST(ReportModel, CountsRatiosOverTheCasesAndLeavesOutLinesOfAnotherMark) {
    const ReportModel model = HandFilledReport(3).model();
    // The third of the four lines of case 1 is of no kind that is written.
    ASSERT_EQ(model.cases[0].results.size(), 3U);
    EXPECT_EQ(model.cases[0].results[2].text, QStringLiteral("wynik 1.4 "));
    EXPECT_EQ(model.cases[0].countedLines, 4);
    EXPECT_EQ(model.lastResultLine(), 12);
    EXPECT_FALSE(model.cases[1].results[0].ratio);
    EXPECT_EQ(model.cases[1].results[1].ratio, QStringLiteral(" = 1,10"));
    EXPECT_EQ(model.cases[2].results[1].ratio, QStringLiteral(" = 1,25"));
}

TEST(ReportModel, PlateSectionTakesTheLinesOfItsChecksInTheirOrder) {
    const ReportModel model = HandFilledReport(1).withPlate({1, 4, 8}).model();
    ASSERT_TRUE(model.plate);
    EXPECT_EQ(model.plate->heading(), QStringLiteral("Blacha podstawy o grubości 20 mm"));
    ASSERT_EQ(model.plate->blocks.size(), 3U);
    const ReportPlateBlock& fourth = model.plate->blocks[1];
    EXPECT_EQ(fourth.check, 4);
    EXPECT_EQ(fourth.figure, QString()) << "it has no sketch";
    EXPECT_EQ(fourth.lines.first(), QStringLiteral("blacha 4.1 "));
    EXPECT_EQ(fourth.lines.size(), 4);
    EXPECT_EQ(model.plate->blocks[2].figure, QStringLiteral("Szkic52.bmp"));
    EXPECT_EQ(model.plate->blocks[2].lines.last(), QString()) << "it ends on an empty line";
}

TEST(ReportModel, LinesOfThePlateSectionAreThoseOfTheStateUpToItsLastIndex) {
    const HandFilledReport report = HandFilledReport(1).withPlate({1, 2, 3, 4, 5, 6, 7, 8});
    const Stan_raportu& state = report.stan.raport;
    QStringList lines;
    for (int i = 0; i <= state.Liczba_wierszy_blachy; ++i)
        lines += state.Wiersze_blachy(i);
    EXPECT_EQ(report.model().plate->lines(), lines);
    EXPECT_EQ(lines.size(), plateHeadLines
                                + std::accumulate(plateBlockForms.begin(), plateBlockForms.end(), 0,
                                                  [](int sum, const PlateBlockForm& form) {
                                                      return sum + form.lines;
                                                  }));
}

TEST(ReportModel, AnchorSectionHasItsHeadingApartAndNamesItsSketch) {
    const ReportModel model = HandFilledReport(1).withAnchorSection(9).model();
    ASSERT_TRUE(model.anchor);
    EXPECT_EQ(model.anchor->heading, QStringLiteral("kotwa wiersz 1"));
    EXPECT_EQ(model.anchor->lines.size(), 8);
    EXPECT_EQ(model.anchor->lines.first(), QStringLiteral("kotwa wiersz 2"));
    EXPECT_EQ(model.anchor->figure, QStringLiteral("Szkick.bmp"));
    EXPECT_EQ(model.anchor->sketch, 1);
}

} // namespace
} // namespace ferna::testing
