#include "command/calculation.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::ColumnBase;
using ferna::testing::errorNumberOf;
using ferna::testing::WithDecimalSign;

namespace {

struct Calculation : ::testing::Test {
    WithDecimalSign comma{u','};
    ColumnBase base;

    void expectRefused(const char16_t* text, const QString& title = programTitle) {
        base.dialogs.messages.clear();
        EXPECT_EQ(base.calculate(), CalculationEnd::Refused);
        ASSERT_EQ(base.dialogs.messages.size(), 1U);
        EXPECT_EQ(base.dialogs.messages[0].text, QString::fromUtf16(text));
        EXPECT_EQ(base.dialogs.messages[0].title, title);
        EXPECT_EQ(base.dialogs.messages[0].style, MessageStyle::Stop);
        EXPECT_TRUE(base.host.cases.empty()) << "nothing was computed";
    }
};

TEST_F(Calculation, ComputesEveryCaseAndDrawsThePlateOnce) {
    base.fourAnchors(250, 150).loads(300, 10, 0).loads(300, 20, 5).loads(300, 80, 30);
    EXPECT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.host.cases, std::vector({1, 2, 3}));
    EXPECT_EQ(base.host.drawings, 1);
    EXPECT_EQ(base.host.steelDialogs, 0);
    EXPECT_TRUE(base.messages().isEmpty());
}

TEST_F(Calculation, RefusesALayoutWithoutAnchorsBeforeAnythingElse) {
    base.plate(100, 200).loads(-1, 0, 0);
    base.fields.txtNr_strony = QStringLiteral("x");
    base.stan.wyniki.Sigma_b_max = 5;
    expectRefused(u"Musisz okreslić położenie i średnicę śrub kotwiących");
    EXPECT_EQ(base.stan.wyniki.Sigma_b_max, 5) << "the last results stand";
}

TEST_F(Calculation, RefusesAPlateWiderThanLong) {
    base.plate(400, 401).fourAnchors(150, 150).loads(300, 10, 0);
    base.stan.raport.Liczba_wierszy_blachy = 7;
    expectRefused(u"Długość płyty musi być większa od szerokości");
    EXPECT_EQ(base.stan.raport.Liczba_wierszy_blachy, 7);
    EXPECT_EQ(base.host.drawings, 0);
}

TEST_F(Calculation, ASquarePlatePasses) {
    base.plate(400, 400).fourAnchors(150, 150).loads(300, 10, 0);
    EXPECT_EQ(base.calculate(), CalculationEnd::Computed);
}

TEST_F(Calculation, RefusesADiameterBeyondTheSteelAfterTheFormWasRead) {
    base.fields.cmbStal = 2; // St4VX ends at 40 mm
    base.anchor(200, 100, 24).anchor(-200, 100, 42).loads(-1, 0, 0);
    base.stan.raport.Liczba_wierszy_kotwy = 6;
    base.stan.materialy.Fd_kotwy = 1;
    expectRefused(u"Norma nie przewiduje takich śrub");
    EXPECT_EQ(base.stan.opcje.Nazwa_projektu, QStringLiteral("Hala A"));
    EXPECT_EQ(base.stan.plyta.Fi_max, 42);
    EXPECT_EQ(base.stan.opcje.Nr_stali, 3);
    EXPECT_EQ(base.stan.raport.Liczba_wierszy_kotwy, 0) << "the anchor section is dropped";
    EXPECT_EQ(base.stan.materialy.Fd_kotwy, 1);
    EXPECT_EQ(base.stan.materialy.Rb_betonu, 0) << "no concrete was assigned yet";
}

TEST_F(Calculation, RefusesAUserSteelThatWasCancelled) {
    base.fields.cmbStal = 6;
    base.fourAnchors(200, 100).loads(-1, 0, 0);
    expectRefused(u"Musisz określić stal dla śrub kotwiących");
    EXPECT_EQ(base.host.steelDialogs, 1);
}

TEST_F(Calculation, TheDialogOfTheUserSteelOpensAtEachCalculationAndTheClassStays) {
    base.fourAnchors(200, 100).loads(300, 10, 0);
    base.fields.cmbStal = 0;
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.stan.materialy.Klasa_stali, QStringLiteral(" (A-0) "));
    base.fields.cmbStal = 6;
    base.host.steelDialog = [](Stan& stan) {
        stan.materialy.Fd_kotwy = 640;
        stan.materialy.Fd2_kotwy = 765;
        stan.materialy.Fv_kotwy = 450;
        stan.materialy.Stal_anulowana = False;
    };
    EXPECT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.host.steelDialogs, 2);
    EXPECT_EQ(base.stan.materialy.Fd_kotwy, 640);
    EXPECT_EQ(base.stan.materialy.Fd2_kotwy, 765);
    EXPECT_EQ(base.stan.materialy.Fv_kotwy, 450);
    EXPECT_EQ(base.stan.materialy.Klasa_stali, QStringLiteral(" (A-0) "));
}

TEST_F(Calculation, ANegativeForceInTheThirdCaseStopsThereBeforeAnyComputation) {
    base.fourAnchors(250, 150)
        .loads(300, 10, 0)
        .loads(310, 20, 0)
        .loads(-0.1, 30, 0)
        .loads(-5, 40, 0);
    base.stan.obciazenia.Moment_M1(3) = 99;
    expectRefused(u"Program nie wykonuje obliczeń dla zakotwień rozciąganych",
                  QStringLiteral("Schemat nr 3"));
    EXPECT_EQ(base.stan.obciazenia.Sila_N(2), 310);
    EXPECT_EQ(base.stan.obciazenia.Moment_M1(2), 20);
    EXPECT_EQ(base.stan.obciazenia.Sila_N(3), -0.1F);
    EXPECT_EQ(base.stan.obciazenia.Tablica_obc(1)(3), -1);
    EXPECT_EQ(base.stan.obciazenia.Moment_M1(3), 99);
    EXPECT_EQ(base.stan.obciazenia.Sila_N(4), 0);
    EXPECT_EQ(base.host.drawings, 1) << "the plate had been drawn";
}

TEST_F(Calculation, AForceOfNothingIsRefusedInItsOwnWords) {
    base.fourAnchors(250, 150).loads(300, 10, 0).loads(0, 10, 0);
    EXPECT_EQ(base.calculate(), CalculationEnd::Refused);
    ASSERT_EQ(base.dialogs.messages.size(), 1U);
    EXPECT_EQ(base.dialogs.messages[0].title, QStringLiteral("Schemat nr 2"));
    EXPECT_FALSE(base.dialogs.messages[0].text.isEmpty());
    EXPECT_NE(base.dialogs.messages[0].text,
              QStringLiteral("Program nie wykonuje obliczeń dla zakotwień rozciąganych"));
    EXPECT_TRUE(base.host.cases.empty());
}

TEST_F(Calculation, ATextThatIsNoNumberIsARunTimeError) {
    base.fourAnchors(250, 150).loads(300, 10, 0);
    for (QString* const field :
         {&base.fields.Text3, &base.fields.Text4, &base.fields.txtNr_strony, &base.fields.Text2,
          &base.fields.loads[0].N, &base.fields.loads[0].M1, &base.fields.loads[0].M2,
          &base.fields.loads[0].Vx, &base.fields.loads[0].Vy}) {
        const QString before = *field;
        *field = QStringLiteral("12x");
        EXPECT_EQ(errorNumberOf([&] { base.calculate(); }), error::TypeMismatch);
        *field = before;
    }
    EXPECT_TRUE(base.messages().isEmpty());
    base.fields.Text3 = QStringLiteral("32769");
    EXPECT_EQ(errorNumberOf([&] { base.calculate(); }), error::Overflow);
}

TEST_F(Calculation, LoadsGoIntoTheConfigurationAsTenthsRoundedDown) {
    base.fourAnchors(250, 150).loads(12.34, -1.25, 0.7, -0.05, 99.99);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    const auto& table = base.stan.obciazenia.Tablica_obc;
    EXPECT_EQ(table(1)(1), 123);
    EXPECT_EQ(table(2)(1), -13);
    EXPECT_EQ(table(3)(1), 7); // 0,7 as a Single times 10 is 7, not 6.9999
    EXPECT_EQ(table(4)(1), -1);
    EXPECT_EQ(table(5)(1), 999);
}

TEST_F(Calculation, TakesTheFormIntoTheState) {
    base.plate(1197, 803).fourAnchors(250, 150).loads(100, 5, 0);
    base.fields.Text2 = QStringLiteral("6.5");
    base.fields.txtNr_strony = QStringLiteral("12,5");
    base.fields.Option1_0 = false;
    base.fields.optHsruby_0 = false;
    base.stan.opcje.Nr_normy = 1;
    base.stan.opcje.Nr_betonu = 4;
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.stan.plyta.Dlugosc_plyty, 119.7F);
    EXPECT_EQ(base.stan.plyta.Dlug_plyty_mm, 1197);
    EXPECT_EQ(base.stan.plyta.Szer_plyty_mm, 803);
    EXPECT_EQ(base.stan.opcje.Wsp_n_val, 6.5F);
    EXPECT_EQ(base.stan.opcje.Nr_strony, 12);
    EXPECT_EQ(base.stan.opcje.Stopa_betonowa, 1);
    EXPECT_EQ(base.stan.opcje.Hsily_wszystkie, 1);
    EXPECT_EQ(base.stan.materialy.Rb_betonu, 16.7F);
    EXPECT_EQ(base.stan.materialy.Nazwa_betonu, QStringLiteral("B30"));
    EXPECT_EQ(base.stan.obciazenia.Sila_N_kG(1), CSng(100000 / 9.80665));
}

TEST_F(Calculation, AConcreteThatTheListDoesNotOfferIsTheOlderNormsB30) {
    base.fourAnchors(250, 150).loads(100, 5, 0);
    base.stan.opcje.Nr_normy = 1;
    base.stan.opcje.Nr_betonu = 5;
    base.stan.materialy.Rbz_betonu = 9;
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.stan.materialy.Rb_betonu, 13.9F);
    EXPECT_EQ(base.stan.materialy.Eb_betonu, 32400);
    EXPECT_EQ(base.stan.materialy.Rbz_betonu, 1.15F);
    base.stan.opcje.Nr_betonu = 1;
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.stan.materialy.Rbz_betonu, 1.15F) << "the newer norm leaves it unchanged";
    EXPECT_EQ(base.stan.materialy.Nazwa_betonu, QStringLiteral("B15"));
}

TEST_F(Calculation, TheLargestDiameterChoosesTheStrengthOfAllAnchors) {
    base.anchor(200, 100, 12).anchor(-200, 100, 16).loads(300, 10, 0);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.stan.materialy.Fd_kotwy, 215);
    base.anchor(0, 100, 20);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.stan.plyta.Fi_max, 20);
    EXPECT_EQ(base.stan.materialy.Fd_kotwy, 205);
}

TEST_F(Calculation, ADiameterOffTheSeriesLeavesTheEarlierArea) {
    base.anchor(200, 100, 24).anchor(-200, 100, 24).loads(300, 10, 0);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    base.stan.plyta.Fi_kotwy(2) = 22;
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.stan.plyta.Pole_kotwy(2), 3.53);
    base.anchor(0, 100, 22);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.stan.plyta.Pole_kotwy(3), 0);
}

TEST_F(Calculation, WithoutAChosenItemTheLastSteelStands) {
    base.fourAnchors(250, 150).loads(300, 10, 0);
    base.fields.cmbStal = -1;
    base.stan.opcje.Nr_stali = 5;
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.stan.materialy.Fd_kotwy, 360);
    EXPECT_EQ(base.stan.materialy.Klasa_stali, QStringLiteral(" "));
}

TEST_F(Calculation, SignClassesFollowTheSignsOfTheMoments) {
    base.fourAnchors(250, 150)
        .loads(300, 0, 0)
        .loads(300, 0, -1)
        .loads(300, -1, 0)
        .loads(300, -1, -1);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    for (int c = 1; c <= 4; ++c)
        EXPECT_EQ(base.stan.obciazenia.Klasa_znaku(c), c);
}

TEST_F(Calculation, AFreshCalculationDropsTheMaximaAndTheSectionsOfTheLast) {
    base.fourAnchors(250, 150).loads(10, 60, 30, 50, 0);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    ASSERT_LT(base.stan.wyniki.Sigma_s_max, 0);
    ASSERT_GT(base.stan.wyniki.Nr_kotwy_max, 0);
    base.stan.raport.Liczba_wierszy_blachy = 7;
    base.stan.raport.Liczba_wierszy_kotwy = 7;
    base.stan.wyniki.Beton_OK = false;
    base.noLoads().loads(500, 1, 0);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    const Wyniki& r = base.stan.wyniki;
    EXPECT_EQ(r.Sigma_s_max, 0);
    EXPECT_EQ(r.Sila_kotwy_max, 0);
    EXPECT_EQ(r.Nr_kotwy_max, 0);
    EXPECT_EQ(r.Sigma_b_max, r.Sigma_b(1));
    EXPECT_EQ(r.Kotwy_OK, True);
    EXPECT_TRUE(r.Beton_OK);
    EXPECT_EQ(base.stan.raport.Liczba_wierszy_blachy, 0);
    EXPECT_EQ(base.stan.raport.Liczba_wierszy_kotwy, 0);
    EXPECT_EQ(r.Nr_wiersza, 2);
}

TEST(InputFieldsTest, TheCaseRunsTheSameWithADecimalPoint) {
    const WithDecimalSign point(u'.');
    ColumnBase base;
    base.fourAnchors(250, 150).loads(10.5, 60.25, 30);
    base.fields.Text2 = QStringLiteral("6,5");
    EXPECT_EQ(base.calculate(), CalculationEnd::Computed);
    EXPECT_EQ(base.stan.opcje.Wsp_n_val, 6.5F);
    EXPECT_TRUE(base.lines().join(u' ').contains(u'.'));
}

} // namespace
