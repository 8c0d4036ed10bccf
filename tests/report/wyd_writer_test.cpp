#include "design/language.h"
#include "pages/sketch_files.h"
#include "protocol/renderer_files.h"
#include "report/wyd_writer.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"
#include "support/folder.h"
#include "support/places.h"
#include "support/printing.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

class PrintCommands : public ::testing::Test {
protected:
    ColumnBase base;
    Raport raport;
    WithDecimalSign comma{u','};

    void prepare() {
        ASSERT_NE(base.calculate(), CalculationEnd::Refused);
        Wypelnij_wiersze(raport, base.stan);
        for (int c = 1; c <= base.stan.obciazenia.Liczba_przyp; ++c)
            if (!wholePlate(base.stan, c))
                raport.Wiersze_strefy(c - 1) = Wiersz_strefy(base.stan, c);
        base.dialogs.answers.push_back(QStringLiteral("F-1 oś A"));
        Naglowek(raport, base.stan, true, QDateTime(QDate(2024, 3, 9), QTime(14, 5)), base.dialogs);
    }

    QByteArray body() {
        WydWriter writer(reportModel(base.stan, raport), QStringLiteral("/prog"));
        writer.body();
        return writer.file().bytes();
    }

    QStringList bodyLines() { return QString::fromLatin1(body()).split(QStringLiteral("\r\n")); }

    void expectGolden(const char* name) {
        const QString path = places::golden("/report/") + QString::fromLatin1(name);
        if (std::getenv("FERNA_ACCEPT_GOLDEN") != nullptr) // see tests/accept_golden.sh
            writeFileWhole(path, body());
        EXPECT_EQ(body().toStdString(), Folder::bytesOf(path).toStdString());
    }

    /// The plate and anchor sections as their forms would leave them.
    void fillPlateSection(std::initializer_list<int> checks) {
        Stan_raportu& r = base.stan.raport;
        r.Wiersze_blachy(0) = QStringLiteral("\r\n");
        r.Wiersze_blachy(1) = QStringLiteral("heading");
        r.Wiersze_blachy(2) = QStringLiteral("\r\n");
        int last = 2;
        for (const int check : checks) {
            r.Spr_blachy(check) = 20;
            const int lines = check == 8 ? 6 : check == 1 || check == 2 || check == 4 ? 4 : 5;
            for (int i = 1; i <= lines; ++i)
                r.Wiersze_blachy(++last) = QStringLiteral("block %1 line %2").arg(check).arg(i);
        }
        r.Liczba_wierszy_blachy = CInt(last);
    }

    void fillAnchorSection() {
        Stan_raportu& r = base.stan.raport;
        for (int i = 1; i <= 9; ++i)
            r.Wiersze_kotwy(i) = QStringLiteral("anchor line %1").arg(i);
        r.Liczba_wierszy_kotwy = 9;
        r.Typ_szkicu_kotwy = 1;
    }
};

void sixCasesTwentyAnchors(ColumnBase& base) {
    base.plate(1000, 700);
    for (int i = 0; i < 5; ++i)
        base.fourAnchors(460 - 60 * i, 310, 20);
    base.loads(1500, 100, 20)
        .loads(600, 400, 35, 200, 12)
        .loads(300, -280, 35, -110, 12)
        .loads(640, 180, -160, 60, -75)
        .loads(900, 365, 290, 140, 40)
        .loads(2100, 850, 0, 85, 0);
}

TEST_F(PrintCommands, OfOneCaseAndOneAnchorEndBehindTheLastResultLine) {
    base.anchor(-250, 0).loads(320, 60, 5);
    prepare();
    expectGolden("one_case.wyd");
    EXPECT_FALSE(bodyLines().contains(base.stan.Teksty(17)));
    EXPECT_EQ(bodyLines().at(bodyLines().size() - 2), QString()); // the empty line of the case
}

TEST_F(PrintCommands, OfSixCasesAndTwentyAnchorsWithAWholePlateAndExceedances) {
    sixCasesTwentyAnchors(base);
    Czytaj_teksty(base.stan, Folder::delivered(QStringLiteral("Ferpl.txt")));
    prepare();
    ASSERT_GT(base.stan.wyniki.Liczba_przekroczen, 0);
    ASSERT_TRUE(wholePlate(base.stan, 1));
    expectGolden("six_cases.wyd");
}

TEST_F(PrintCommands, OfBothSectionsFollowTheSummary) {
    base.fourAnchors(250, 150).loads(320, 60, 5).loads(320, 80, -5);
    prepare();
    fillPlateSection({1, 2, 3, 4, 5, 6, 7, 8});
    fillAnchorSection();
    expectGolden("both_sections.wyd");
}

TEST_F(PrintCommands, CarryPointsUnderACommaLocaleWhileTextsKeepTheirCommas) {
    base.fourAnchors(250, 150).loads(320.5, 60, 5);
    prepare();
    const QByteArray withComma = body();
    EXPECT_TRUE(withComma.contains("3,3.,13.5,1,,3.5,1.,0.,0,0,0,400,5\r\n"));
    EXPECT_TRUE(withComma.contains("3,7.0,85.0,1,,3.2,1.,0.,0,0,0,400,5\r\n"));
    EXPECT_TRUE(withComma.contains("5, 125.,148.0, 41.1, 27.9\r\n"));
    EXPECT_TRUE(withComma.contains(" 320,50 kN"));
    const WithDecimalSign point(u'.');
    prepare();
    QByteArray withPoint = body();
    EXPECT_TRUE(withPoint.contains("3,7.0,85.0,1,,3.2,1.,0.,0,0,0,400,5\r\n"));
    EXPECT_TRUE(withPoint.contains(" 320.50 kN"));
}

TEST_F(PrintCommands, ShowAPageNumberOfZeroAsNothingAndANegativeOneAsItIs) {
    base.fourAnchors(250, 150).loads(320, 60, 5);
    base.fields.txtNr_strony = QStringLiteral("0");
    prepare();
    EXPECT_TRUE(bodyLines().contains(QStringLiteral("Strona ")));
    base.fields.txtNr_strony = QStringLiteral("-3");
    prepare();
    EXPECT_TRUE(bodyLines().contains(QStringLiteral("Strona -3")));
}

TEST_F(PrintCommands, CountTheExceedancesOverTheReportAndAnewAtEachBuild) {
    base.fourAnchors(250, 150);
    for (int c = 1; c <= 4; ++c)
        base.loads(320, 60, 5);
    prepare();
    Wyniki& r = base.stan.wyniki;
    // The third and the fourth case alone: neither has the number of its text.
    for (const int c : {3, 4})
        r.Znak_wiersza(r.Ostatni_wiersz(c)) = 1;
    for (int i = 1; i <= 4; ++i)
        r.Tekst_przekroczenia(i) = QStringLiteral(" = 1,%1").arg(i);
    for (int build = 0; build < 2; ++build) {
        const QStringList lines = bodyLines();
        const qsizetype third = lines.indexOf(base.stan.Teksty(16) + u'3');
        const qsizetype fourth = lines.indexOf(base.stan.Teksty(16) + u'4');
        const qsizetype first = lines.indexOf(QStringLiteral(" = 1,1"));
        const qsizetype second = lines.indexOf(QStringLiteral(" = 1,2"));
        EXPECT_TRUE(0 < third && third < first && first < fourth && fourth < second)
            << third << ' ' << first << ' ' << fourth << ' ' << second;
        EXPECT_FALSE(lines.contains(QStringLiteral(" = 1,3")));
        EXPECT_EQ(lines.count(QStringLiteral("w")), 2);
        EXPECT_EQ(lines.count(QStringLiteral("d")), 2);
    }
}

TEST_F(PrintCommands, LeaveOutALineWithAnotherMarkWithoutAGap) {
    base.fourAnchors(250, 150).loads(320, 60, 5);
    prepare();
    const QStringList before = bodyLines();
    const Wyniki& r = base.stan.wyniki;
    ASSERT_GE(r.Ostatni_wiersz(1), 2);
    base.stan.wyniki.Znak_wiersza(1) = 2;
    const QStringList lines = bodyLines();
    EXPECT_EQ(lines.size(), before.size() - 2);
    EXPECT_FALSE(lines.contains(r.Wiersze_wynikow(1)));
    EXPECT_EQ(lines.at(lines.indexOf(r.Wiersze_wynikow(2)) - 1),
              before.at(before.indexOf(r.Wiersze_wynikow(1)) - 1))
        << "the next line stands in its place";
}

TEST_F(PrintCommands, KeepTheStepOfTheBlockWithoutAPicture) {
    base.fourAnchors(250, 150).loads(320, 60, 5);
    prepare();
    fillPlateSection({4, 5});
    const QStringList lines = bodyLines();
    const auto yAbove = [&](const QString& text) {
        return lines.at(lines.indexOf(text) - 1).split(u',').at(2).toDouble();
    };
    EXPECT_NEAR(yAbove(QStringLiteral("block 5 line 1")) - yAbove(QStringLiteral("block 4 line 1")),
                18, 1e-9);
    // Four lines are as high as the step: what the step moves is the next picture.
    const QStringList pictures = lines.filter(QStringLiteral("5, 135.,"));
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_EQ(pictures.at(0).split(u',').at(2).toDouble(),
              yAbove(QStringLiteral("block 5 line 1")));
}

TEST_F(PrintCommands, BeginANewPageByTheirPageTests) {
    base.fourAnchors(250, 150).loads(320, 60, 5);
    prepare();
    WydWriter writer(reportModel(base.stan, raport), QStringLiteral("/prog"));
    writer.Poz_y = 224.5F;
    writer.KoniecZ98();
    EXPECT_TRUE(writer.file().bytes().isEmpty());
    writer.Poz_y = 225;
    writer.KoniecZ98();
    EXPECT_TRUE(writer.file().bytes().startsWith("10\r\n14,178.,0.,0\r\n"));
    EXPECT_EQ(writer.Poz_y, 40);
    EXPECT_EQ(writer.Poz_y_blachy, 40);
    Single y = 235.5F;
    Single y2 = 100;
    writer.KoniecZ98R(y, y2, 54);
    EXPECT_EQ(y2, 100);
    writer.KoniecZ98R(y, y2, 55);
    EXPECT_EQ(y, 40);
    EXPECT_EQ(y2, 40);
    y = 236;
    writer.KoniecZ98R(y, y2, 1);
    EXPECT_EQ(y, 40);
    EXPECT_EQ(writer.Licznik_stron, 3);
}

TEST_F(PrintCommands, NamePicturesAloneInAFolderWhoseNameTheCodePageLacks) {
    base.fourAnchors(250, 150).loads(320, 60, 5);
    prepare();
    const auto picturesIn = [&](const QString& folder) {
        WydWriter writer(reportModel(base.stan, raport), folder);
        writer.body();
        return QString::fromLatin1(writer.file().bytes())
            .split(QStringLiteral("\r\n"))
            .filter(QStringLiteral(".bmp"));
    };
    EXPECT_EQ(picturesIn(QStringLiteral("/юзер")),
              QStringList({QStringLiteral("Ferogo2.bmp"), QStringLiteral("Ferrob.bmp"),
                           QStringLiteral("fernasz1.bmp")}));
    EXPECT_EQ(picturesIn(QStringLiteral("/home")).at(0), QStringLiteral("/home/Ferogo2.bmp"));
}

TEST_F(PrintCommands, AreWrittenAsAFrameAndAsTheWholeReport) {
    base.fourAnchors(250, 150).loads(320, 60, 5);
    prepare();
    fillAnchorSection();
    const Folder folder;
    folder.write(deliveredAnchorSketch(1), "sketch");
    Buduj_wyd(reportModel(base.stan, raport), folder.path(QStringLiteral(".")));
    const QByteArray frame = folder.read(wyd::frameFile);
    const QByteArray report = folder.read(wyd::bodyFile);
    EXPECT_TRUE(frame.endsWith("9,5.\r\n"));
    EXPECT_TRUE(report.startsWith(frame));
    EXPECT_EQ(folder.read(anchorSketchFile), QByteArray("sketch"));
}

} // namespace
