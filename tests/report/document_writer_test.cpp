#include "report/document_writer.h"
#include "report/hand_filled_report.h"
#include "report/rtf_writer.h"
#include "report/text_writer.h"
#include "report/wyd_writer.h"
#include "runtime/format.h"
#include "support/decimal_comma.h"
#include "support/golden_file.h"
#include "support/printing.h"
#include "support/recording_word_processor.h"

#include <gtest/gtest.h>

namespace ferna::testing {
namespace {

const QString folder = QStringLiteral("/program");

RecordingWordProcessor built(const HandFilledReport& report) {
    RecordingWordProcessor word;
    buildDocument(word, report.model(), folder);
    return word;
}

void compare(const char* name, const HandFilledReport& report) {
    const WithDecimalSign comma(u',');
    const RecordingWordProcessor word = built(report);
    expectGolden(word.operations.join(u'\n').toUtf8() + '\n',
                 QStringLiteral("document/") + QLatin1String(name) + QStringLiteral(".txt"));
}

TEST(DocumentOperations, OneCase) {
    HandFilledReport report(1);
    report.stan.opcje.Nr_normy = 1;
    compare("one_case", report);
}

TEST(DocumentOperations, SixCasesWithBothSections) {
    compare("everything",
            HandFilledReport(6, 12, {3}).withPlate({1, 2, 3, 4, 5, 6, 7, 8}).withAnchorSection());
}

TEST(DocumentOperations, ShortReportWithThePlateOnItsFirstPage) {
    compare("plate_on_first_page", HandFilledReport(1, 2, {1}).withPlate({4}));
}

TEST(DocumentText, TitleLineIsCutAtItsHundredAndFiftiethLetter) {
    HandFilledReport report(1);
    // As a page of the RTF report leaves it: date, time and page number 120 blanks apart.
    report.raport.Wiersze_naglowka(6) =
        QStringLiteral("14/03/25     09:05") + QString(120, u' ') + QStringLiteral("Strona 12345");
    const RecordingWordProcessor word = built(report);
    EXPECT_TRUE(word.operations.contains(QStringLiteral("InsertAfter 14/03/25     09:05")
                                         + QString(120, u' ')
                                         + QStringLiteral("Strona 12345<CR><LF>")))
        << "150 letters stand";
    report.raport.Wiersze_naglowka(6) += QStringLiteral("6 i dalej");
    EXPECT_EQ(report.raport.Wiersze_naglowka(6).left(150).size(), 150);
    EXPECT_TRUE(built(report).operations.contains(QStringLiteral("InsertAfter 14/03/25     09:05")
                                                  + QString(120, u' ')
                                                  + QStringLiteral("Strona 12345<CR><LF>")));
}

TEST(DocumentText, LongTitleLineStandsWholeInTheOtherOutputs) {
    HandFilledReport report(1);
    const QByteArray longLine(200, 'x');
    report.raport.Wiersze_naglowka(6) = QString::fromLatin1(longLine);
    EXPECT_TRUE(textReport(report.model()).bytes().contains(longLine));
    EXPECT_TRUE(rtfReport(report.model(), 1, report.now).file().bytes().contains(longLine));
    WydWriter commands(report.model(), folder);
    commands.Naglowek_wyd();
    EXPECT_TRUE(commands.file().bytes().contains(longLine));
    EXPECT_FALSE(built(report).text.contains(QString(151, u'x')));
}

TEST(DocumentText, OtherLinesAreNotCut) {
    HandFilledReport report(1);
    const QString longLine(200, u'x');
    report.raport.Wiersze_danych(1) = longLine;
    EXPECT_TRUE(built(report).text.contains(longLine));
}

TEST(DocumentText, ExceededStressIsWrittenWithTheSmallOmegaAndTheRatiosInTheirOrder) {
    HandFilledReport report(3);
    report.stan.opcje.Nr_normy = 1;
    QString text = built(report).text;
    EXPECT_TRUE(text.contains(QStringLiteral("wynik 2.2 \u03c9u = 1,10\r\n")));
    EXPECT_TRUE(text.contains(QStringLiteral("wynik 3.2 \u03c9u = 1,25\r\n")));
    EXPECT_FALSE(text.contains(QStringLiteral("wynik 1.3"))) << "a mark that is not written";
    report.stan.opcje.Nr_normy = 0;
    text = built(report).text;
    EXPECT_TRUE(text.contains(QStringLiteral("wynik 2.2 \u03c9d = 1,10\r\n")));
}

TEST(DocumentText, WholePlateHasNoNeutralAxisLineButTheStandInSketch) {
    const RecordingWordProcessor word = built(HandFilledReport(2, 4, {2}));
    EXPECT_TRUE(word.text.contains(QStringLiteral("A(10,")));
    EXPECT_FALSE(word.text.contains(QStringLiteral("A(20,")));
    EXPECT_EQ(word.pictures.at(QStringLiteral("Picture 4")).file, QStringLiteral("fernasz1.bmp"));
    EXPECT_EQ(word.pictures.at(QStringLiteral("Picture 5")).file, QStringLiteral("gkrys0.bmp"));
}

TEST(DocumentPictures, SixCasesStandInTwoRowsAtThreePlaces) {
    const RecordingWordProcessor word = built(HandFilledReport(6));
    constexpr int left[] = {60, 190, 320, 60, 190, 320};
    const int row = word.pictures.at(QStringLiteral("Picture 4")).top;
    for (int c = 1; c <= 6; ++c) {
        const auto& sketch = word.pictures.at(QStringLiteral("Picture %1").arg(c + 3));
        EXPECT_EQ(sketch.file, QStringLiteral("fernasz%1.bmp").arg(c));
        EXPECT_EQ(sketch.left, left[c - 1]) << "case " << c;
        EXPECT_EQ(sketch.top, c < 4 ? row : row + 80) << "case " << c;
    }
}

TEST(DocumentPictures, PlacesAreCountedFromTheLinesAbove) {
    // Four anchors: 9.225 * 17 = 156.825. Six cases: 9.225 * 10 + 157 + 120 = 369.25.
    const RecordingWordProcessor word = built(HandFilledReport(6));
    const auto& view = word.pictures.at(QStringLiteral("Picture 2"));
    const auto& plate = word.pictures.at(QStringLiteral("Picture 3"));
    EXPECT_EQ(view.file, QStringLiteral("Ferogo2.bmp"));
    EXPECT_EQ(plate.file, QStringLiteral("Ferrob.bmp"));
    EXPECT_EQ(view.top, 157);
    EXPECT_EQ(plate.top, 157);
    EXPECT_EQ(view.left, 50);
    EXPECT_EQ(plate.left, 250);
    EXPECT_EQ(word.pictures.at(QStringLiteral("Picture 4")).top, 369);
}

TEST(DocumentPictures, HalfAPointGoesToTheEvenNeighbour) {
    HandFilledReport report(1);
    report.stan.plyta.Liczba_srub = 7; // 9.225 * 20 = 184.5
    EXPECT_EQ(built(report).pictures.at(QStringLiteral("Picture 2")).top, 184);
}

TEST(DocumentPictures, AreEmbeddedFromTheProgramFolder) {
    const RecordingWordProcessor word = built(HandFilledReport(2));
    EXPECT_EQ(word.folders, QStringList(4, folder));
    EXPECT_EQ(word.operations.filter(QStringLiteral(".bmp, False, True")).size(), 4);
}

TEST(DocumentPictures, OtherNumberingOfTheWordProcessorIsAnError) {
    HandFilledReport report(1);
    RecordingWordProcessor word;
    word.firstNumber = 1;
    try {
        buildDocument(word, report.model(), folder);
        FAIL() << "no error";
    } catch (const RunTimeError& failure) {
        EXPECT_EQ(failure.number(), error::Subscript);
        EXPECT_EQ(failure.detail(), QStringLiteral("Picture 2"));
    }
}

TEST(DocumentPlate, WithoutTheSectionThereIsNoTraceOfIt) {
    const RecordingWordProcessor word = built(HandFilledReport(2));
    EXPECT_TRUE(word.operations.filter(QStringLiteral("GoTo")).isEmpty());
    EXPECT_FALSE(word.text.contains(u'\f'));
    EXPECT_EQ(word.pictures.size(), 4U);
}

TEST(DocumentPlate, PictureOfSixCasesKeepsBothDigitsOfItsNumber) {
    const RecordingWordProcessor word = built(HandFilledReport(6).withPlate({4}));
    const auto& picture = word.pictures.at(QStringLiteral("Picture 10"));
    EXPECT_EQ(picture.file, QStringLiteral("Ferogo2.bmp"));
    EXPECT_EQ(picture.left, 60);
}

TEST(DocumentPlate, PictureStandsByTwiceTheLineCount) {
    // One case of 2 lines: lines = 2 + 3 = 5; row = whole(9.225 * 5 + 157 + 120) = 323.
    RecordingWordProcessor word = built(HandFilledReport(1, 2).withPlate({4}));
    EXPECT_EQ(word.pictures.at(QStringLiteral("Picture 5")).top, 449); // 46.125 + 323 + 80
    EXPECT_FALSE(word.text.contains(u'\f'));
    // Two cases of 2 lines and the summary: lines = 4 + 5 + 4 = 13; row = 332.
    word = built(HandFilledReport(2, 2).withPlate({4}));
    EXPECT_EQ(word.pictures.at(QStringLiteral("Picture 6")).top, 532); // 119.925 + 332 + 80
}

TEST(DocumentPlate, PictureBelowSixHundredPointsStartsAPage) {
    // lines = 2 n + 1, row = 323: n = 10 gives 596.7, n = 11 gives 615.2.
    RecordingWordProcessor word = built(HandFilledReport(1, 10).withPlate({4}));
    EXPECT_EQ(word.pictures.at(QStringLiteral("Picture 5")).top, 597);
    EXPECT_FALSE(word.text.contains(u'\f'));
    word = built(HandFilledReport(1, 11).withPlate({4}));
    EXPECT_EQ(word.pictures.at(QStringLiteral("Picture 5")).top, 615 + 250);
    EXPECT_TRUE(word.text.contains(QStringLiteral("\r\f")));
    EXPECT_LT(word.text.indexOf(u'\f'), word.text.indexOf(QStringLiteral("blacha 4.1")));
}

TEST(DocumentPlate, SectionIsWrittenFromItsEmptyFirstLineOn) {
    const RecordingWordProcessor word = built(HandFilledReport(1, 2).withPlate({4}));
    EXPECT_TRUE(word.text.contains(
        QStringLiteral("\r\n\r\nBlacha podstawy o grubości 20 mm\r\n\r\n\r\nblacha 4.1 \r\n")));
}

TEST(DocumentAnchorSection, IsFollowedByTheNoteOnTheSketches) {
    const RecordingWordProcessor word = built(HandFilledReport(1).withAnchorSection(8));
    EXPECT_TRUE(word.text.endsWith(QStringLiteral(
        "kotwa wiersz 8\r\n\r\nSzkice kotew są w plikach: rys3f.bmp (kotwy fajkowe), rys2pm.bmp "
        "(małe kotwy płytkowe) i rys2pd.bmp (duże kotwy płytkowe).\r\n")));
    EXPECT_TRUE(word.text.contains(QStringLiteral("\r\n\r\nkotwa wiersz 1\r\n")));
    EXPECT_FALSE(word.text.contains(QStringLiteral("kotwa wiersz 0")));
    EXPECT_EQ(word.pictures.size(), 3U) << "no picture of its own";
}

TEST(DocumentSave, SavesUnderTheNameAsItStandsAndCloses) {
    RecordingWordProcessor word = built(HandFilledReport(1));
    EXPECT_TRUE(word.open);
    saveDocument(word, QStringLiteral("Wyniki"));
    EXPECT_EQ(word.savedAs, QStringLiteral("Wyniki"));
    EXPECT_FALSE(word.open);
    EXPECT_EQ(word.operations.mid(word.operations.size() - 2),
              QStringList({QStringLiteral("SaveAs Wyniki"), QStringLiteral("Close")}));
}

TEST(DocumentSave, FailureToSaveIsToldApartFromAFailureToBuild) {
    RecordingWordProcessor word = built(HandFilledReport(1));
    word.failAt = QStringLiteral("SaveAs");
    word.failWith = error::PathNotFound;
    try {
        saveDocument(word, QStringLiteral("/brak/Wyniki.doc"));
        FAIL() << "no error";
    } catch (const RunTimeError& failure) {
        EXPECT_EQ(failure.number(), error::PathNotFound);
    }
    EXPECT_TRUE(word.open) << "until the word processor is let go";
}

TEST(DocumentSave, MissingWordProcessorStopsBeforeAnythingIsWritten) {
    HandFilledReport report(1);
    RecordingWordProcessor word;
    word.failAt = QStringLiteral("get or create");
    try {
        buildDocument(word, report.model(), folder);
        FAIL() << "no error";
    } catch (const RunTimeError& failure) {
        EXPECT_EQ(failure.number(), error::NoObject);
    }
    EXPECT_TRUE(word.operations.isEmpty());
}

TEST(DocumentSave, QuestionAndAdviceAreThoseOfTheCommand) {
    const SaveQuestion question = documentQuestion();
    EXPECT_EQ(question.title, QStringLiteral("Podaj nazwę dokumentu Word'a"));
    EXPECT_EQ(question.preset, QStringLiteral("Wyniki"));
    EXPECT_EQ(question.extension, QStringLiteral(".doc"));
    EXPECT_EQ(question.filter,
              QStringLiteral("plik wyników (*.doc)|*.doc|wszystkie pliki (*.*)|*.*"));
    EXPECT_EQ(documentAdviceTitle(), QStringLiteral("Dokument Word'a"));
    EXPECT_EQ(documentAdvice().split(u'\n'),
              QStringList({QStringLiteral("    Zaleca się otwieranie dokumentu"),
                           QStringLiteral("       z czcionką o wysokości '8'  i"),
                           QStringLiteral("widokiem ustawionym na 'Układ strony'")}));
}

} // namespace
} // namespace ferna::testing
