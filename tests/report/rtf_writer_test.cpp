#include "report/hand_filled_report.h"
#include "report/rtf_writer.h"
#include "runtime/codepage.h"
#include "support/golden_file.h"
#include "support/printing.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ferna::testing {
namespace {

constexpr Integer patternA = 1;
constexpr Integer patternB = 2;

QStringList linesOf(const QByteArray& bytes) {
    QStringList lines = codepage::decoded(bytes).value_or(QString()).split(QStringLiteral("\r\n"));
    lines.removeLast(); // behind the last line end
    return lines;
}

QStringList rtfLines(HandFilledReport& report, Integer Tryb_RTF) {
    return linesOf(rtfReport(report.model(), Tryb_RTF, report.now).file().bytes());
}

/// The names of the linked pictures in their order.
QStringList pictures(const QStringList& lines) {
    QStringList names;
    for (const QString& line : lines)
        if (const qsizetype at = line.indexOf(u"\\\\import "); at >= 0)
            names += line.mid(at + 9, line.indexOf(u'}', at) - at - 9);
    return names;
}

TEST(RtfFile, OpensWithItsFixedHeadSlipsIncluded) {
    HandFilledReport report(1);
    const QStringList lines = rtfLines(report, patternA);
    EXPECT_EQ(lines[0],
              QStringLiteral("{\\rtf1\\ansi\\ansicpg1250\\deff1{\\fonttbl{\\f0\\froman\\fcharset238"
                             "\\fprq2{\\*\\panose02020603050405020304}Times New Roman;}{\\f1"
                             "\\fswiss\\fcharset238\\fprq2{\\*\\panose 020b0604020202020204}Arial;}"
                             "{\\f2\\froman\\fprq2\\fcharset Symbol;}}"));
    EXPECT_TRUE(lines[1].startsWith(
        QStringLiteral("{\\colortbl;\\red0\\green0\\blue0;red0\\green0\\blue255;\\red0")))
        << lines[1].toStdString();
    EXPECT_TRUE(lines[1].endsWith(QStringLiteral("\\red255\\green255\\blue255;}")));
    EXPECT_EQ(
        lines[2],
        QStringLiteral("\\paperw12240\\paperh15840\\margll1780\\margr1080\\margt1440\\margb1440"));
    EXPECT_EQ(lines[3], QStringLiteral("\\pard \\f1\\fs16 {Zakotwienie słupów stalowych wg "
                                       "PN-B-03215:1999 oraz PN-84/B-03264"));
    EXPECT_EQ(lines[lines.size() - 2], QStringLiteral("}"));
    EXPECT_EQ(lines.last(), QStringLiteral("\\par}"));
}

TEST(RtfFile, ClosesEveryBraceThatItOpens) {
    for (const Integer mode : {patternA, patternB}) {
        HandFilledReport report =
            HandFilledReport(6, 12, {2}).withPlate({1, 2, 3, 4, 5, 6, 7, 8}).withAnchorSection();
        const QString text = rtfLines(report, mode).join(u'\n');
        EXPECT_EQ(text.count(u'{'), text.count(u'}')) << "mode " << mode;
    }
}

TEST(RtfFile, IsInCodePage1250WithQuestionMarksForWhatThePageLacks) {
    HandFilledReport report(1);
    report.raport.Wiersze_naglowka(4) = QStringLiteral("Łódź \u03c9");
    const QByteArray bytes = rtfReport(report.model(), patternA, report.now).file().bytes();
    EXPECT_TRUE(bytes.contains("\r\n\\par \xA3\xF3\x64\x9F ?\r\n"));
}

TEST(RtfFile, FirstPageHasItsPageLineAsTheTitleBlockMadeIt) {
    HandFilledReport report(1);
    report.stan.opcje.Nr_strony = 7;
    RtfWriter writer = rtfReport(report.model(), patternA, report.now);
    EXPECT_EQ(linesOf(writer.file().bytes())[8], QStringLiteral("\\par Strona "));
    EXPECT_EQ(writer.reached().Nr_strony, 7) << "one page, nothing is counted";
    EXPECT_EQ(writer.reached().pageLine, QStringLiteral("Strona "));
}

TEST(RtfFile, ReportSwitchedOffIsRefused) {
    const HandFilledReport report(1);
    try {
        rtfReport(report.model(), 0, report.now);
        FAIL() << "no refusal";
    } catch (const RunTimeError& refusal) {
        EXPECT_EQ(refusal.number(), error::InvalidCall);
    }
}

TEST(RtfPage, BlockThatEndsAtTheLastLineOfThePageStays) {
    HandFilledReport report(1);
    report.stan.opcje.Nr_strony = 7;
    RtfWriter writer(report.model(), report.now);
    Single y = 200;
    writer.Koniec_strony_RTF(y, 10);
    EXPECT_EQ(y, 210);
    EXPECT_EQ(writer.reached().Nr_strony, 7);
    EXPECT_TRUE(writer.file().bytes().isEmpty());
}

TEST(RtfPage, BlockThatEndsBelowItStartsANewPageWithTheTitleBlock) {
    HandFilledReport report(1);
    report.stan.opcje.Nr_strony = 7;
    RtfWriter writer(report.model(), report.now);
    Single y = 200;
    writer.Koniec_strony_RTF(y, 10.5);
    EXPECT_EQ(y, 11.5F);
    EXPECT_EQ(writer.reached().Nr_strony, 8);
    const QString pageLine =
        QStringLiteral("14/03/25     09:05") + QString(120, u' ') + QStringLiteral("Strona 8");
    EXPECT_EQ(writer.reached().pageLine, pageLine);
    EXPECT_EQ(linesOf(writer.file().bytes()),
              QStringList({QStringLiteral("\\par \\page\\pard\\plain\\f1\\fs16 Zakotwienie słupów "
                                          "stalowych wg PN-B-03215:1999 oraz PN-84/B-03264"),
                           QStringLiteral("\\par "), QStringLiteral("\\par "),
                           QStringLiteral("\\par Hala nr 7, oś B"),
                           QStringLiteral("\\par 14/03/25     09:05"),
                           QStringLiteral("\\par ") + pageLine, QStringLiteral("\\par Stopa F-1"),
                           QStringLiteral("\\par ")}));
}

TEST(RtfPage, HeightIsKeptInSinglePrecision) {
    HandFilledReport report(1);
    RtfWriter writer(report.model(), report.now);
    Single y = 0;
    for (int i = 0; i < 3; ++i)
        writer.Koniec_strony_RTF(y, 3.17);
    EXPECT_EQ(y, static_cast<Single>(static_cast<Single>(static_cast<Single>(3.17) + 3.17) + 3.17));
}

TEST(RtfPage, NumberOfPageZeroIsLeftOut) {
    HandFilledReport report(1);
    report.stan.opcje.Nr_strony = -1;
    RtfWriter writer(report.model(), report.now);
    Single y = 210;
    writer.Koniec_strony_RTF(y, 1);
    EXPECT_EQ(writer.reached().Nr_strony, 0);
    EXPECT_TRUE(writer.reached().pageLine.endsWith(QStringLiteral("  Strona ")));
}

TEST(RtfPage, PageBreakInTheReportRaisesThePageNumberThatTheReportGivesBack) {
    for (const Integer mode : {patternA, patternB}) {
        HandFilledReport report(3, 20);
        report.stan.opcje.Nr_strony = 7;
        RtfWriter writer = rtfReport(report.model(), mode, report.now);
        const qsizetype pages =
            linesOf(writer.file().bytes()).filter(QStringLiteral("\\page")).size();
        EXPECT_GE(pages, 1);
        EXPECT_EQ(writer.reached().Nr_strony, 7 + pages);
        EXPECT_TRUE(writer.reached().pageLine.endsWith(QStringLiteral("Strona %1").arg(7 + pages)))
            << writer.reached().pageLine.toStdString();
    }
}

TEST(RtfPage, PageBehindTheLargestNumberIsAnOverflow) {
    HandFilledReport report(1);
    report.stan.opcje.Nr_strony = 32767;
    RtfWriter writer(report.model(), report.now);
    Single y = 210;
    try {
        writer.Koniec_strony_RTF(y, 1);
        FAIL() << "no overflow";
    } catch (const RunTimeError& overflow) {
        EXPECT_EQ(overflow.number(), error::Overflow);
    }
}

TEST(RtfCases, WholePlateHasTheStandInSketchInPatternAAndNoneInPatternB) {
    HandFilledReport report(3, 4, {2});
    const QStringList fixed{QStringLiteral("Ferogo2.bmp"), QStringLiteral("Ferrob.bmp")};
    EXPECT_EQ(pictures(rtfLines(report, patternA)),
              fixed
                  + QStringList({QStringLiteral("fernasz1.bmp"), QStringLiteral("gkrys0.bmp"),
                                 QStringLiteral("fernasz3.bmp")}));
    EXPECT_EQ(pictures(rtfLines(report, patternB)),
              fixed
                  + QStringList({QStringLiteral("fernasz1.bmp"), QStringLiteral("fernasz3.bmp")}));
}

TEST(RtfCases, PatternAStandsThreeSketchesInARowBeforeTheirText) {
    HandFilledReport report(6, 2);
    const QStringList lines = rtfLines(report, patternA);
    const auto at = [&](const QString& text) {
        for (qsizetype i = 0; i < lines.size(); ++i)
            if (lines[i].contains(text))
                return i;
        ADD_FAILURE() << text.toStdString();
        return qsizetype{-1};
    };
    EXPECT_LT(at(QStringLiteral("fernasz3.bmp")), at(QStringLiteral("obciążenia nr 1")));
    EXPECT_LT(at(QStringLiteral("obciążenia nr 3")), at(QStringLiteral("fernasz4.bmp")));
    EXPECT_LT(at(QStringLiteral("fernasz6.bmp")), at(QStringLiteral("obciążenia nr 4")));
}

TEST(RtfCases, PatternAReservesALineMoreForEachCaseFromTheFourthOn) {
    // No page ends, so the height is the plain sum: the row of sketches, then the cases.
    for (const int cases : {1, 3, 4, 6}) {
        HandFilledReport report(cases, 1);
        RtfWriter writer(report.model(), report.now);
        writer.Poz_rtf = 0;
        writer.Wyniki_RTF_ms();
        Single y = 24;
        for (int c = 1; c <= std::min(cases, 3); ++c)
            y = CSng(y + 6 * 3.17);
        if (cases > 3)
            y += 24;
        for (int c = 4; c <= cases; ++c)
            y = CSng(y + 7 * 3.17);
        if (cases > 1)
            y = CSng(y + 15.85);
        EXPECT_EQ(writer.Poz_rtf, y) << cases << " cases";
    }
}

TEST(RtfCases, PatternBReservesTheSameForEachCase) {
    HandFilledReport report(6, 1);
    RtfWriter writer(report.model(), report.now);
    writer.Poz_rtf = 0;
    writer.Wyniki_RTF_so();
    Single y = 0;
    for (int c = 1; c <= 6; ++c)
        y = CSng(y + 6 * 3.17);
    EXPECT_EQ(writer.Poz_rtf, CSng(y + 15.85));
}

TEST(RtfCases, ExceededStressCarriesOmegaItsSubscriptByTheNormAndTheRatiosInTheirOrder) {
    for (const Integer mode : {patternA, patternB}) {
        HandFilledReport report(3);
        report.stan.opcje.Nr_normy = 1;
        QStringList lines = rtfLines(report, mode);
        EXPECT_TRUE(
            lines.contains(QStringLiteral("\\par wynik 2.2 {\\f2\\fs16 w}{\\f1\\fs10 u} = 1,10")));
        EXPECT_TRUE(
            lines.contains(QStringLiteral("\\par wynik 3.2 {\\f2\\fs16 w}{\\f1\\fs10 u} = 1,25")));
        report.stan.opcje.Nr_normy = 0;
        lines = rtfLines(report, mode);
        EXPECT_TRUE(
            lines.contains(QStringLiteral("\\par wynik 2.2 {\\f2\\fs16 w}{\\f1\\fs10 d} = 1,10")))
            << "counted anew for every report";
    }
}

TEST(RtfCases, LineOfAnotherMarkLeavesNoTrace) {
    HandFilledReport report(1);
    for (const Integer mode : {patternA, patternB})
        EXPECT_TRUE(rtfLines(report, mode).filter(QStringLiteral("wynik 1.3")).isEmpty());
}

TEST(RtfPlate, FourthPictureOfPatternABringsTheTextOfItsRow) {
    HandFilledReport report = HandFilledReport(1).withPlate({1, 2, 3, 4, 5});
    const QStringList lines = rtfLines(report, patternA);
    const qsizetype trailer = lines.indexOf(QStringLiteral("\\par    \\pard"));
    ASSERT_GT(trailer, 0);
    EXPECT_TRUE(lines[trailer - 1].contains(QStringLiteral("blacha 4.4")));
    EXPECT_TRUE(lines[trailer + 1].contains(QStringLiteral("Szkic32.bmp")))
        << "the fifth picture opens a row of its own";
}

TEST(RtfPlate, ExactlyFourPicturesOfPatternAWriteTheirTextOnce) {
    HandFilledReport report = HandFilledReport(1).withPlate({1, 2, 3, 4});
    const QStringList lines = rtfLines(report, patternA);
    const qsizetype trailer = lines.indexOf(QStringLiteral("\\par    \\pard"));
    ASSERT_EQ(trailer, lines.size() - 3) << "the row's end is the section's, the file's two follow";
    EXPECT_TRUE(lines[trailer - 1].contains(QStringLiteral("blacha 4.4")));
    for (const char* text : {"blacha 1.1", "blacha 3.1", "blacha 4.4"})
        EXPECT_EQ(lines.filter(QLatin1String(text)).size(), 1) << text;
    EXPECT_LT(lines.indexOf(lines.filter(QStringLiteral("gkrys0.bmp")).value(0)),
              lines.indexOf(lines.filter(QStringLiteral("blacha 1.1")).value(0)));
}

TEST(RtfPlate, FewerThanFourPicturesLeaveTheTextToTheEndOfTheSection) {
    HandFilledReport report = HandFilledReport(1).withPlate({1, 2, 3});
    const QStringList lines = rtfLines(report, patternA);
    EXPECT_FALSE(lines.contains(QStringLiteral("\\par    \\pard")));
    const qsizetype last = lines.indexOf(lines.filter(QStringLiteral("Szkic31.bmp")).value(0));
    const qsizetype text = lines.indexOf(lines.filter(QStringLiteral("blacha 1.1")).value(0));
    EXPECT_LT(last, text);
    EXPECT_TRUE(lines[lines.size() - 3].contains(QStringLiteral("blacha 3.5"))) << "and all of it";
}

TEST(RtfPlate, LastCheckIsNotCountedAsAFourthPicture) {
    HandFilledReport report = HandFilledReport(1).withPlate({1, 2, 3, 8});
    const QStringList lines = rtfLines(report, patternA);
    EXPECT_FALSE(lines.contains(QStringLiteral("\\par    \\pard")));
    EXPECT_EQ(lines.filter(QStringLiteral("blacha 1.1")).size(), 1);
}

TEST(RtfPlate, CheckWithoutASketchHasTheStandInPictureInPatternAAndNoneInPatternB) {
    HandFilledReport report = HandFilledReport(1).withPlate({4});
    EXPECT_EQ(pictures(rtfLines(report, patternA)).mid(3),
              QStringList(QStringLiteral("gkrys0.bmp")));
    EXPECT_EQ(pictures(rtfLines(report, patternB)).mid(3), QStringList());
}

TEST(RtfPlate, FirstTwoLinesOfARectangularFieldAreJoinedInPatternA) {
    HandFilledReport report = HandFilledReport(1).withPlate({1, 3, 5, 6});
    const QStringList lines = rtfLines(report, patternA);
    for (const QString& check : {QStringLiteral("3"), QStringLiteral("5"), QStringLiteral("6")})
        EXPECT_TRUE(lines.contains(
            QStringLiteral("\\par \\plain \\f1\\fs16 blacha %1.1 blacha %1.2 \\pard ").arg(check)));
    EXPECT_EQ(rtfLines(report, patternB).filter(QStringLiteral("blacha 3.1 blacha")).size(), 0);
}

TEST(RtfPlate, PicturesOfPatternBAlternateBetweenTheTwoColumns) {
    HandFilledReport report = HandFilledReport(1).withPlate({1, 2, 3, 4, 5});
    const QStringList lines = rtfLines(report, patternB);
    const auto head = [&](const QString& file) {
        const QString line = lines.filter(file).value(0);
        return line.mid(6, line.indexOf(u'{') - 6);
    };
    EXPECT_EQ(head(QStringLiteral("Szkic1.bmp")), QStringLiteral("\\absw1550\\absh1700\\posx5500"));
    EXPECT_EQ(head(QStringLiteral("Szkic2.bmp")), QStringLiteral("\\absw1550\\absh1420\\posx7100"));
    EXPECT_EQ(head(QStringLiteral("Szkic31.bmp")),
              QStringLiteral("\\absw1750\\absh1120\\posx5350"));
    EXPECT_EQ(head(QStringLiteral("Szkic32.bmp")), QStringLiteral("\\absw1750\\absh1120\\posx7150"))
        << "the check without a sketch does not count";
}

TEST(RtfPlate, PatternBLeavesOutTheSixthLineOfTheLastCheck) {
    HandFilledReport report = HandFilledReport(1).withPlate({8});
    report.stan.raport.Wiersze_blachy(8) = QStringLiteral("blacha 8.6");
    EXPECT_EQ(rtfLines(report, patternA).filter(QStringLiteral("blacha 8.")).size(), 6);
    EXPECT_EQ(rtfLines(report, patternB).filter(QStringLiteral("blacha 8.")).size(), 5);
}

TEST(RtfSave, FileThatCannotBeWrittenIsAnErrorAndGivesNoPagesBack) {
    QTemporaryDir folder;
    const HandFilledReport report(3, 20);
    try {
        saveRtfReport(report.model(), patternA, report.now,
                      folder.filePath(QStringLiteral("brak/Wyniki.rtf")));
        FAIL() << "no error";
    } catch (const RunTimeError& failure) {
        EXPECT_EQ(failure.number(), error::PathNotFound);
    }
}

TEST(RtfSave, FileIsWrittenUnderTheNameAsItStands) {
    QTemporaryDir folder;
    HandFilledReport report(3, 20);
    report.stan.opcje.Nr_strony = 7;
    const QString path = folder.filePath(QStringLiteral("Wyniki"));
    const RtfPages reached = saveRtfReport(report.model(), patternA, report.now, path);
    RtfWriter again = rtfReport(report.model(), patternA, report.now);
    EXPECT_EQ(fileBytes(path), again.file().bytes());
    EXPECT_GT(reached.Nr_strony, 7);
    EXPECT_EQ(reached.Nr_strony, again.reached().Nr_strony);
}

TEST(RtfSave, QuestionOffersTheName) {
    const SaveQuestion question = rtfQuestion();
    EXPECT_EQ(question.title, QStringLiteral("Podaj nazwę pliku w formacie rtf"));
    EXPECT_EQ(question.preset, QStringLiteral("Wyniki"));
    EXPECT_EQ(question.extension, QStringLiteral(".rtf"));
    EXPECT_EQ(question.filter,
              QStringLiteral("plik wyników (*.rtf)|*.rtf|wszystkie pliki (*.*)|*.*"));
}

} // namespace
} // namespace ferna::testing
