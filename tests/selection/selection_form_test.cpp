#include "design/material_tables.h"
#include "selection/anchor_catalogue.h"
#include "selection/clauses.h"
#include "selection/selection_form.h"
#include "support/decimal_comma.h"
#include "support/printing.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::WithDecimalSign;

namespace {

class AnchorSelection : public ::testing::Test {
protected:
    AnchorSelection() {
        for (int n = 1; n <= CatalogueLines; ++n)
            stan.Teksty(n) = QStringLiteral("<%1>").arg(n);
        stan.materialy.Fd_kotwy = 195;
        concreteClass(0, 1);
        stan.opcje.Nr_stali = 2;
    }

    void concreteClass(Integer norm, Integer number) {
        stan.materialy.Mnoznik_dlugosci = concrete(norm, number).Mnoznik_dlugosci;
        stan.materialy.Wsp_dlugosci = concrete(norm, number).Wsp_dlugosci;
    }

    /// Opens the dialog for an anchor of this diameter.
    bool open(Integer d, const QString& g = QStringLiteral("50")) {
        stan.wyniki.Nr_kotwy_max = 2;
        stan.plyta.Fi_kotwy(2) = d;
        stan.plyta.Pole_kotwy(2) = coreArea(d).value_or(0);
        form = {};
        dialogs = {};
        dialogs.answers = {g};
        return loadSelection(stan, form, dialogs);
    }
    QStringList accepted() {
        acceptSelection(stan, form);
        QStringList lines;
        for (int i = 1; i <= stan.raport.Liczba_wierszy_kotwy; ++i)
            lines += stan.raport.Wiersze_kotwy(i);
        return lines;
    }

    WithDecimalSign comma{u','};
    Stan stan;
    ScriptedDialogs dialogs;
    SelectionForm form;
};

TEST_F(AnchorSelection, AsksForTheCombinedThickness) {
    EXPECT_TRUE(open(20));
    ASSERT_EQ(dialogs.questions.size(), 1U);
    EXPECT_EQ(dialogs.questions[0].text,
              QStringLiteral("Podaj łączną grubość blachy czołowej i podlewki w mm"));
    EXPECT_EQ(dialogs.questions[0].title, QStringLiteral("Ferna 2005 Pr"));
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(AnchorSelection, CaptionsAreTheDesignedOnesWithTheValueBehindThem) {
    open(20);
    EXPECT_EQ(form.lblNazwa[0], QStringLiteral("F-20-1100"));
    EXPECT_EQ(form.lblNazwa[1], QStringLiteral("P-20-650"));
    EXPECT_EQ(form.lbldia[0], QStringLiteral("d = 20 mm"));
    EXPECT_EQ(form.lblNosnosc[1], QStringLiteral("Nośność:   47,8 kN")); // 2.45 cm2 * 19.5
    EXPECT_EQ(form.lblLo[0], QStringLiteral("Lo =1005 mm"));
    EXPECT_EQ(form.lblLo[1], QStringLiteral("Lo =605 mm"));
    EXPECT_EQ(form.lblLcalk[0], QStringLiteral("Lcałk. =  1100 mm"));
    EXPECT_EQ(form.lblLcalk[1], QStringLiteral("Lcałk. =  650 mm"));
    EXPECT_EQ(form.lblLd[0], QStringLiteral("Ld = 55 mm"));
    EXPECT_EQ(form.lblLh, QStringLiteral("Lh = 100 mm"));
    EXPECT_EQ(form.lblD, QStringLiteral("D = 100 mm"));
    EXPECT_EQ(form.lbla, QStringLiteral("a =100 mm"));
    EXPECT_EQ(form.lblt, QStringLiteral("t = 20 mm"));
    EXPECT_EQ(form.lblL1, QStringLiteral("L1 = "));
    EXPECT_FALSE(form.lblL1_visible);
}

TEST_F(AnchorSelection, ThinAnchorsAreBentTighter) {
    open(12); // 2.5 * 12
    EXPECT_EQ(form.D, 30);
    open(16);
    EXPECT_EQ(form.D, 40);
    open(20);
    EXPECT_EQ(form.D, 100);
}

TEST_F(AnchorSelection, FromThirtySixOnTheStraightLengthComesFromTheCoreArea) {
    open(30, QStringLiteral("0"));
    EXPECT_EQ(form.LoF, 1330 + 70);
    open(36, QStringLiteral("0")); // 40 * 8.17 = 326.8
    EXPECT_EQ(form.LoF, 326 + 80);
    open(42, QStringLiteral("0")); // 40 * 11.2 = 448 exactly
    EXPECT_EQ(form.LoF, 448 + 85);
}

TEST_F(AnchorSelection, TheConcreteShortensThePlateAnchorByOneRounding) {
    concreteClass(0, 3); // 0.866 * 500 = 433
    open(20, QStringLiteral("0"));
    EXPECT_EQ(form.lblLo[1], QStringLiteral("Lo =488 mm"));
    concreteClass(0, 2); // the Single of 0.961 lies above it: 480.5 goes up to 481
    open(20, QStringLiteral("0"));
    EXPECT_EQ(form.lblLo[1], QStringLiteral("Lo =536 mm"));
    concreteClass(0, 4); // the Single of 0.775 lies below it: 697.5 goes down to 697
    open(42, QStringLiteral("0"));
    EXPECT_EQ(form.lblLo[1], QStringLiteral("Lo =782 mm"));
}

TEST_F(AnchorSelection, LengthsAreRoundedToFiftyATieGoingUp) {
    EXPECT_EQ(R50(1105), 1100);
    EXPECT_EQ(R50(1125), 1150);
    EXPECT_EQ(R50(1124), 1100);
    EXPECT_EQ(R50(-25), 0);
    EXPECT_EQ(R50(-26), -50);
    EXPECT_EQ(R50(32767), 32750); // the greatest whole number of 16 bits goes down
}

TEST_F(AnchorSelection, AtFortyTwoTheSmallSketchStandsWithoutARib) {
    open(42);
    EXPECT_EQ(form.Picture1, 2);
    EXPECT_FALSE(form.lblL1_visible);
    EXPECT_EQ(form.lblLcalk[1], QStringLiteral("Lcałk. =  1100 mm")); // 900+50+85+20+30 = 1085
    bringToFront(form, 1);
    EXPECT_EQ(
        accepted(),
        (QStringList{QStringLiteral("<21>P-42-1100"), QStringLiteral("<22> 218,4 kN"),
                     QStringLiteral("<23>d = 42 mm"), QStringLiteral("<27>Ld = 85 mm"),
                     QStringLiteral("<26>Lo =1035 mm"), QStringLiteral("<31>150 x 150 x 20 mm"),
                     QStringLiteral("<29>Lcałk. =  1100 mm<30>"), QStringLiteral("<28>50 mm")}));
    EXPECT_EQ(stan.raport.Typ_szkicu_kotwy, 2);
}

TEST_F(AnchorSelection, AtFortyEightTheLargeSketchStandsWithARib) {
    open(48);
    EXPECT_EQ(form.Picture1, 3);
    EXPECT_TRUE(form.lblL1_visible);
    EXPECT_EQ(form.lblL1, QStringLiteral("L1 = 160 mm"));
    EXPECT_EQ(form.lblLcalk[1], QStringLiteral("Lcałk. =  1150 mm")); // 1000+50+90+20 = 1160
    bringToFront(form, 1);
    EXPECT_EQ(
        accepted().mid(5),
        (QStringList{QStringLiteral("<31>170 x 170 x 20 mm"), QStringLiteral("<32>L1 = 160 mm"),
                     QStringLiteral("<29>Lcałk. =  1150 mm<30>"), QStringLiteral("<28>50 mm")}));
    EXPECT_EQ(stan.raport.Liczba_wierszy_kotwy, 9);
    EXPECT_EQ(stan.raport.Typ_szkicu_kotwy, 3);
}

TEST_F(AnchorSelection, AHookedAnchorHasNineLinesAndItsSketch) {
    open(20);
    EXPECT_EQ(
        accepted(),
        (QStringList{QStringLiteral("<21>F-20-1100"), QStringLiteral("<22> 47,8 kN"),
                     QStringLiteral("<23>d = 20 mm"), QStringLiteral("<27>Ld = 55 mm"),
                     QStringLiteral("<26>Lo =1005 mm"), QStringLiteral("<24>Lh = 100 mm"),
                     QStringLiteral("<25>D = 100 mm"), QStringLiteral("<29>Lcałk. =  1100 mm<30>"),
                     QStringLiteral("<28>50 mm")}));
    EXPECT_EQ(stan.raport.Typ_szkicu_kotwy, 1);
}

TEST_F(AnchorSelection, ThinAnchorsComeHookedOnlyEvenWhereTheSteelAdvisesAgainst) {
    stan.opcje.Nr_stali = 5;
    open(16);
    EXPECT_EQ(form.tab, 0);
    EXPECT_EQ(form.SSTab1[0], QStringLiteral("Ferna fajkowa (nie zalecane)"));
    EXPECT_EQ(form.SSTab1[1], QStringLiteral("Ferna płytkowa"));
    EXPECT_FALSE(form.tabEnabled[1]);
    bringToFront(form, 1);
    EXPECT_EQ(form.tab, 0);
}

TEST_F(AnchorSelection, ASofterSteelAdvisesAgainstThePlateAnchorButLeavesIt) {
    stan.opcje.Nr_stali = 3;
    open(20);
    EXPECT_EQ(form.tab, 0);
    EXPECT_EQ(form.SSTab1[0], QStringLiteral("Ferna fajkowa"));
    EXPECT_EQ(form.SSTab1[1], QStringLiteral("Ferna płytkowa (nie zalecane)"));
    bringToFront(form, 1);
    EXPECT_EQ(form.tab, 1);
    EXPECT_EQ(accepted().size(), 8);
}

TEST_F(AnchorSelection, AStrongerSteelBringsThePlateAnchorToTheFront) {
    stan.opcje.Nr_stali = 4;
    open(20);
    EXPECT_EQ(form.tab, 1);
}

TEST_F(AnchorSelection, WithoutTensionEveryValueIsZero) {
    stan.opcje.Nr_stali = 4;
    dialogs.answers = {QStringLiteral("80")};
    EXPECT_TRUE(loadSelection(stan, form, dialogs));
    EXPECT_EQ(form.lblNazwa[0], QStringLiteral("F-0-100"));
    EXPECT_EQ(form.D, 0);
    EXPECT_EQ(form.Lh, 0);
    EXPECT_EQ(form.Nosnosc, 0.0F);
    EXPECT_EQ(form.LoF, 80);
    EXPECT_EQ(form.lblLd[0], QStringLiteral("Ld = 0 mm"));
    EXPECT_EQ(form.lblLo[1], QStringLiteral("Lo =80 mm"));
    EXPECT_EQ(form.lbla, QStringLiteral("a =0 mm"));
    EXPECT_EQ(form.lblt, QStringLiteral("t = 0 mm"));
    EXPECT_EQ(form.lblNazwa[1], QStringLiteral("P-0-100")); // 80 + 30
    EXPECT_EQ(form.tab, 0);
    EXPECT_FALSE(form.tabEnabled[1]);
}

TEST_F(AnchorSelection, ATextThatIsNoNumberCountsAsZero) {
    for (const QString& typed : {QString(), QStringLiteral("gruba")}) {
        EXPECT_TRUE(open(20, typed));
        ASSERT_EQ(dialogs.messages.size(), 1U);
        EXPECT_EQ(dialogs.messages[0].text,
                  QStringLiteral("Podany ciąg znaków nie tworzy liczby\nPrzyjęto wartość ZERO."));
        EXPECT_EQ(form.Grub_laczna, 0);
        EXPECT_EQ(form.lblNazwa[0], QStringLiteral("F-20-1050")); // 900 + 55 + 100 = 1055
    }
}

TEST_F(AnchorSelection, TheThicknessIsRoundedToEvenAndTakenAsItStands) {
    open(20, QStringLiteral("50,5"));
    EXPECT_EQ(form.Grub_laczna, 50);
    open(20, QStringLiteral("-100"));
    EXPECT_EQ(form.lblLo[0], QStringLiteral("Lo =855 mm"));
}

TEST_F(AnchorSelection, AThicknessBeyondSixteenBitsStopsTheLoading) {
    EXPECT_FALSE(open(20, QStringLiteral("40000")));
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_EQ(dialogs.messages[0].text, QStringLiteral("6!!!!"));
    EXPECT_EQ(form.D, 100); // before the question
    EXPECT_EQ(form.Lh, 0);  // behind it
    EXPECT_EQ(form.lblNazwa[0], QStringLiteral("F"));
    EXPECT_EQ(form.SSTab1[1], QStringLiteral("Ferna płytkowa"));
}

TEST_F(AnchorSelection, ASumBeyondSixteenBitsStopsWhereItStands) {
    EXPECT_FALSE(open(20, QStringLiteral("31800"))); // 900 + 31800 + 55 = 32755 fits
    EXPECT_EQ(form.LoF, 32755);
    EXPECT_EQ(form.LcF, 0); // + 100 does not
    EXPECT_EQ(form.lblLo[0], QStringLiteral("Lo ="));
    EXPECT_EQ(dialogs.messages.back().text, QStringLiteral("6!!!!"));
    // At 48 mm the hooked anchor still fits, and the plate anchor stops it before its rib.
    concreteClass(0, 5);
    EXPECT_FALSE(open(48, QStringLiteral("31970"))); // 693 + 31970 + 90 = 32753, + 20 = 32773
    EXPECT_GT(form.LcF, 0);
    EXPECT_FALSE(form.lblL1_visible);
}

TEST_F(AnchorSelection, TheMenuOffersItOncePerCalculationWithoutExceededAnchors) {
    EXPECT_TRUE(anchorSelectionOffered(stan));
    open(20);
    acceptSelection(stan, form);
    EXPECT_FALSE(anchorSelectionOffered(stan));
    open(20); // each opening drops the earlier lines
    EXPECT_TRUE(anchorSelectionOffered(stan));
    stan.wyniki.Kotwy_OK = False;
    EXPECT_FALSE(anchorSelectionOffered(stan));
}

TEST_F(AnchorSelection, TheCatalogueCoversTheSeriesOfDiameters) {
    for (const Integer d : anchorDiameters)
        EXPECT_GT(catalogueAnchor(d).Ld, 0) << d;
    EXPECT_EQ(catalogueAnchor(33).Ld, 0);
    EXPECT_EQ(straightLengthHooked(catalogueAnchor(33), 40, 5), 0);
}

} // namespace
