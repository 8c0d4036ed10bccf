#include "design/language.h"
#include "report/report_lines.h"
#include "report/text_writer.h"
#include "runtime/codepage.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"
#include "support/folder.h"
#include "support/places.h"
#include "support/run_time_errors.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <cstdlib>

using namespace ferna;
using ferna::testing::ColumnBase;
using ferna::testing::errorNumberOf;
using ferna::testing::Folder;
using ferna::testing::WithDecimalSign;

namespace {

const QDateTime moment(QDate(2026, 3, 9), QTime(7, 5), Qt::UTC);

struct ReportLines : ::testing::Test {
    WithDecimalSign comma{u','};
    ColumnBase base;
    Raport raport;

    void prepare(const QString& label = QStringLiteral("F-1")) {
        ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
        Wypelnij_wiersze(raport, base.stan);
        for (int c = 1; c <= base.cases; ++c)
            if (!wholePlate(base.stan, c))
                raport.Wiersze_strefy(c - 1) = Wiersz_strefy(base.stan, c);
        base.dialogs.answers.push_back(label);
        Naglowek(raport, base.stan, base.stan.opcje.Nr_normy == 0, moment, base.dialogs);
    }

    QStringList written() const {
        return codepage::decoded(textReport(reportModel(base.stan, raport)).bytes())
            ->split(QStringLiteral("\r\n"));
    }
};

TEST_F(ReportLines, TheTitleBlockAsksForTheLabelAndStandsInItsOrder) {
    base.fourAnchors(250, 150).loads(300, 10, 0);
    prepare(QStringLiteral("F-1"));
    EXPECT_EQ(base.dialogs.questions.at(0).text,
              QStringLiteral("Podaj oznaczenie stopy (max 32 znaki)"));
    EXPECT_EQ(base.dialogs.questions.at(0).title, QStringLiteral("Ferna 2005 Pr"));
    const QStringList expected{
        QStringLiteral("Zakotwienie słupów stalowych wg PN-B-03215:1999 oraz PN-84/B-03264"),
        QString(),
        QString(),
        QStringLiteral("Hala A"),
        QStringLiteral("09/03/26     07:05"),
        QStringLiteral("Strona "),
        QStringLiteral("F-1"),
        QString()};
    for (int i = 1; i <= 8; ++i)
        EXPECT_EQ(raport.Wiersze_naglowka(i), expected[i - 1]) << i;
    base.dialogs.answers.push_back(QStringLiteral("F-2"));
    Naglowek(raport, base.stan, false, moment, base.dialogs);
    EXPECT_TRUE(raport.Wiersze_naglowka(1).endsWith(u"PN-B-03264:1999"));
    EXPECT_EQ(raport.Wiersze_naglowka(7), QStringLiteral("F-2"));
}

TEST_F(ReportLines, TheFreeLinesOfTheTitleBlockAreThoseOfTheOffice) {
    base.fourAnchors(250, 150).loads(300, 10, 0);
    raport.titleLines = {QStringLiteral("Konstrukcje stalowe"), QStringLiteral("Biuro Słup")};
    prepare();
    EXPECT_EQ(raport.Wiersze_naglowka(2), QStringLiteral("Konstrukcje stalowe"));
    EXPECT_EQ(raport.Wiersze_naglowka(3), QStringLiteral("Biuro Słup"));
    EXPECT_EQ(written().mid(1, 2).join(u'|'), QStringLiteral("Konstrukcje stalowe|Biuro Słup"));
}

TEST_F(ReportLines, TheLabelIsCutAndOfferedAgain) {
    base.dialogs.answers.push_back(QString(40, u'x'));
    Nazwa_zadania(raport, base.dialogs);
    EXPECT_EQ(raport.Nazwa_stopy, QString(32, u'x'));
    Nazwa_zadania(raport, base.dialogs); // Enter takes the one before
    EXPECT_EQ(raport.Nazwa_stopy, QString(32, u'x'));
    base.dialogs.answers.push_back(QString()); // cancelled
    Nazwa_zadania(raport, base.dialogs);
    EXPECT_EQ(raport.Nazwa_stopy, QString());
    base.dialogs.answers.push_back(QStringLiteral("F-1\r\nF-2\n"));
    Nazwa_zadania(raport, base.dialogs);
    EXPECT_EQ(raport.Nazwa_stopy, QStringLiteral("F-1 F-2"));
}

TEST_F(ReportLines, AnEmptyLabelLeavesItsLineEmpty) {
    base.fourAnchors(250, 150).loads(300, 10, 0);
    prepare(QStringLiteral("F-1"));
    ASSERT_EQ(written().at(6), QStringLiteral("F-1"));
    prepare(QString());
    EXPECT_EQ(raport.Wiersze_naglowka(7), QString());
    EXPECT_EQ(written().at(6), QString());
}

TEST_F(ReportLines, TheGeneralDataStandInFourLines) {
    base.plate(1197, 803).fourAnchors(250, 150).loads(300, 10, 0);
    base.fields.Option1_0 = false;
    prepare();
    EXPECT_EQ(raport.Wiersze_danych(1), QStringLiteral("<10>x = 1 197 mm"));
    EXPECT_EQ(raport.Wiersze_danych(2), QStringLiteral("<11>y =  803 mm"));
    EXPECT_EQ(raport.Wiersze_danych(3),
              QStringLiteral("<12>B15<34>       Eb = 23100 MPa      E/Eb = 8,87"));
    EXPECT_EQ(raport.Wiersze_danych(4),
              QStringLiteral("<13>St3SX,St3SY,St3S,St3V,St3W (A-I)   fd = 205 MPa"));
    base.fields.Option1_0 = true;
    prepare();
    EXPECT_TRUE(raport.Wiersze_danych(3).startsWith(u"<12>B15<33> "));
}

TEST_F(ReportLines, AUserSteelDiffersInTheFourthLineAlone) {
    base.fourAnchors(250, 150).loads(300, 10, 0);
    prepare();
    const Raport listed = raport;
    base.fields.cmbStal = 6;
    base.host.steelDialog = [](Stan& stan) {
        stan.materialy.Stal_nazwa = QStringLiteral("S355");
        stan.materialy.Fd_kotwy = 305;
        stan.materialy.Fd2_kotwy = 300;
        stan.materialy.Fv_kotwy = 220;
        stan.materialy.Stal_Re = 355;
        stan.materialy.Stal_Rm = 490;
        stan.materialy.Stal_anulowana = False;
    };
    prepare();
    EXPECT_EQ(raport.Wiersze_danych(4),
              QStringLiteral("<13>S355  fd = 305 MPa  Re = 355 MPa  Rm = 490 MPa"));
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(raport.Wiersze_danych(i), listed.Wiersze_danych(i));
}

TEST_F(ReportLines, TheLoadTableHoldsSixCases) {
    while (base.stan.plyta.Liczba_srub < MaxAnchors)
        base.fourAnchors(250, 150);
    for (int c = 1; c <= MaxCases; ++c)
        base.loads(1234.5, -c, 0.7, 12, -3.25);
    auto& lines = base.stan.raport.Wiersze_obciazen;
    lines(8) = QStringLiteral("of the calculation before");
    prepare();
    EXPECT_EQ(lines(0), QStringLiteral("<14>"));
    EXPECT_EQ(lines(1),
              QStringLiteral("                    N                      M1                       "
                             "M2                    Vx                 Vy"));
    EXPECT_EQ(lines(2), QStringLiteral("<15>1     1 234,50 kN     - 1,00 kNm      0,70 kNm     "
                                       "12,00 kN      - 3,25 kN"));
    EXPECT_TRUE(lines(7).startsWith(u"<15>6     "));
    EXPECT_EQ(lines(8), QString()) << "the last index";
    const QStringList report = written();
    EXPECT_EQ(report.filter(QRegularExpression(QStringLiteral("^\\d+\\.   M24"))).size(),
              MaxAnchors);
    const qsizetype sixth = report.indexOf(lines(7));
    ASSERT_GT(sixth, 0);
    EXPECT_EQ(report.mid(sixth + 1, 2), QStringList({QString(), QStringLiteral("<16>1")}));
}

TEST_F(ReportLines, EveryTableTakesItsLastLineAndNoneBehindIt) {
    base.fourAnchors(250, 150).loads(300, 1, 0);
    prepare();
    Stan_raportu& lines = base.stan.raport;
    lines.Wiersze_blachy(43) = QStringLiteral("blacha 43");
    lines.Wiersze_kotwy(10) = QStringLiteral("kotwa 10");
    lines.Liczba_wierszy_blachy = 43;
    lines.Liczba_wierszy_kotwy = 10;
    EXPECT_TRUE(written().contains(QStringLiteral("blacha 43")));
    EXPECT_EQ(written().at(written().size() - 2), QStringLiteral("kotwa 10"));
    EXPECT_EQ(errorNumberOf([&] { lines.Wiersze_blachy(44).clear(); }), error::Subscript);
    EXPECT_EQ(errorNumberOf([&] { lines.Wiersze_kotwy(11).clear(); }), error::Subscript);
    EXPECT_EQ(errorNumberOf([&] { lines.Wiersze_srub(21).clear(); }), error::Subscript);
    EXPECT_EQ(errorNumberOf([&] { lines.Wiersze_obciazen(9).clear(); }), error::Subscript);
}

TEST_F(ReportLines, TheNeutralLineIsWrittenInWholeMillimetresRoundedDown) {
    Wyniki& r = base.stan.wyniki;
    r.Przec_a(2) = -1.23F;
    r.Przec_b(2) = 20;
    r.Przec_c(2) = 0.7F; // 7 as a Single times 10
    r.Przec_d(2) = -0.01F;
    EXPECT_EQ(Wiersz_strefy(base.stan, 2), QStringLiteral("<45>-13,200), B(7,-1)"));
}

TEST_F(ReportLines, TheSummaryStandsOnlyWithMoreThanOneCase) {
    base.fourAnchors(250, 150).loads(50, 60, 20);
    prepare();
    EXPECT_FALSE(written().contains(QStringLiteral("<17>")));
    base.loads(100, 70, 20);
    prepare();
    const QStringList lines = written();
    const qsizetype at = lines.indexOf(QStringLiteral("<17>"));
    ASSERT_GT(at, 0);
    const Wyniki& r = base.stan.wyniki;
    EXPECT_EQ(lines[at + 1], QStringLiteral("<18>") + Format(r.Sigma_b_max, u"##0.0# MPa"));
    EXPECT_EQ(lines[at + 2], QStringLiteral("<19>") + Format(r.Sigma_s_max, u"# ##0.0# MPa"));
    EXPECT_EQ(lines[at + 3], QStringLiteral("<20>") + Format(r.Sila_kotwy_max, u"## ##0.0# kN"));
    EXPECT_EQ(lines[at - 1], QString()) << "the empty line that ends the case";
    EXPECT_NE(lines[at - 2], QString()) << "no further one in front of the summary";
}

TEST_F(ReportLines, RatiosGoOnOverTheWholeReport) {
    base.fourAnchors(250, 150).loads(400, 60, 40).loads(300, 1, 0).loads(420, 60, 40);
    prepare();
    const Wyniki& r = base.stan.wyniki;
    ASSERT_EQ(r.Liczba_przekroczen, 2);
    const QStringList lines = written();
    EXPECT_TRUE(lines.contains(QStringLiteral("<5>omega d") + r.Tekst_przekroczenia(1)));
    EXPECT_TRUE(lines.contains(QStringLiteral("<5>omega d") + r.Tekst_przekroczenia(2)));
    EXPECT_NE(r.Tekst_przekroczenia(1), r.Tekst_przekroczenia(2));
    base.stan.opcje.Nr_normy = 1;
    EXPECT_EQ(omegaSubscript(base.stan), u'u');
}

TEST_F(ReportLines, ALineOfAnotherMarkIsPassedOver) {
    base.fourAnchors(250, 150).loads(300, 1, 0, 10, 0);
    prepare();
    ASSERT_TRUE(written().contains(QStringLiteral("<46>")));
    base.stan.wyniki.Znak_wiersza(3) = 2;
    EXPECT_FALSE(written().contains(QStringLiteral("<46>")));
}

TEST_F(ReportLines, TheTextCarriesTheSectionsThatWereAdded) {
    base.fourAnchors(250, 150).loads(300, 1, 0);
    prepare();
    EXPECT_FALSE(written().contains(QStringLiteral("<8>"))) << "a line of the other outputs";
    Stan_raportu& lines = base.stan.raport;
    for (int i = 0; i <= 3; ++i) {
        lines.Wiersze_blachy(i) = QStringLiteral("blacha %1").arg(i);
        lines.Wiersze_kotwy(i) = QStringLiteral("kotwa %1").arg(i);
    }
    const qsizetype before = written().size();
    lines.Liczba_wierszy_blachy = 2;
    lines.Liczba_wierszy_kotwy = 2;
    const QStringList report = written();
    EXPECT_EQ(report.mid(before - 1),
              QStringList({QStringLiteral("blacha 0"), QStringLiteral("blacha 1"),
                           QStringLiteral("blacha 2"), QStringLiteral("kotwa 1"),
                           QStringLiteral("kotwa 2"), QString()}));
}

TEST_F(ReportLines, AWholePlateCaseHasNoNeutralLine) {
    base.fourAnchors(250, 150).loads(300, 1, 0).loads(50, 60, 20);
    prepare();
    const QStringList lines = written();
    const qsizetype first = lines.indexOf(QStringLiteral("<16>1"));
    const qsizetype second = lines.indexOf(QStringLiteral("<16>2"));
    ASSERT_TRUE(first > 0 && second > first);
    EXPECT_EQ(lines[first + 1], QString());
    EXPECT_TRUE(lines[second + 1].startsWith(u"<45>"));
    EXPECT_EQ(lines[second + 2], QStringLiteral("<9>"));
    EXPECT_EQ(lines[second + 3], QString());
}

struct GoldenReport {
    const char* name;
    Integer language;
    void (*fill)(ColumnBase& base);
};

void sixCases(ColumnBase& base) {
    base.fourAnchors(250, 150, 30)
        .loads(300, 10, 0)
        .loads(100, 40, 15, 20, 5)
        .loads(50, 60, 20, 80, 0)
        .loads(420, 60, -40)
        .loads(12.5, -0.7, 0.1)
        .loads(900, -90, -70, 250, -50);
}

void withoutTension(ColumnBase& base) {
    base.stan.opcje.Nr_normy = 1;
    base.stan.opcje.Nr_betonu = 4;
    base.fields.Option1_0 = false;
    base.plate(910, 840)
        .anchor(425, 0, 48)
        .anchor(213, 338, 48)
        .allAnchorsTakeShear(false)
        .loads(314.65, 42, 13, 90, 0);
}

constexpr GoldenReport goldenReports[] = {
    {"six_cases_pl", 0, sixCases}, {"six_cases_p2", 1, sixCases},
    {"six_cases_gb", 2, sixCases}, {"six_cases_fr", 3, sixCases},
    {"six_cases_ge", 4, sixCases}, {"without_tension", 0, withoutTension},
};

class GoldenReports : public ReportLines, public ::testing::WithParamInterface<GoldenReport> {};

TEST_P(GoldenReports, StandAsTheyWereAccepted) {
    const GoldenReport& golden = GetParam();
    Czytaj_teksty(base.stan, Folder::delivered(catalogueFile(golden.language)));
    golden.fill(base);
    prepare(QStringLiteral("F-1 oś A"));
    const QString path =
        places::golden("/report/") + QString::fromLatin1(golden.name) + QStringLiteral(".txt");
    if (std::getenv("FERNA_ACCEPT_GOLDEN") != nullptr) // see tests/accept_golden.sh
        textReport(reportModel(base.stan, raport)).commit(path);
    EXPECT_EQ(textReport(reportModel(base.stan, raport)).bytes().toStdString(),
              Folder::bytesOf(path).toStdString());
}

INSTANTIATE_TEST_SUITE_P(Text, GoldenReports, ::testing::ValuesIn(goldenReports),
                         [](const auto& one) { return std::string(one.param.name); });

} // namespace
