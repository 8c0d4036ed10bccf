#include "plate/plate_desk.h"
#include "plate/plate_tables.h"

#include <cmath>

using namespace ferna;
using ferna::testing::PlateDesk;

namespace {

class PlateChecksByHand : public PlateDesk {};

// t = 2.2 sqrt(S ca / (fd bs)) = 2.2 sqrt(100000 * 50 / (205 * 100)) = 34.36 mm
TEST_F(PlateChecksByHand, CantileverInTheTensionZone) {
    strip(u"100", u"50", u"100");
    compute(1);
    EXPECT_EQ(result(1), 34);
    EXPECT_EQ(line(1), QStringLiteral("Wymagana grubość blachy (1) = 34 mm"));
    EXPECT_TRUE(lineShown(1));
    EXPECT_EQ(form.fields.Text4, QStringLiteral("34"));
    EXPECT_TRUE(form.face.Text4_visible);
    EXPECT_TRUE(form.face.Label10_visible);
}

// M = 100^2 ((6 - 4) / 6 + 4 / 2) = 23333 N, t = sqrt(6 M / fd) = sqrt(140000 / 205) = 26.13 mm
TEST_F(PlateChecksByHand, CantileverWithTheSmallerStressAtTheEdge) {
    form.fields.check2.ca = QStringLiteral("100");
    form.fields.check2.sigma_k = QStringLiteral("4");
    form.fields.check2.sigma_p = QStringLiteral("6");
    compute(2);
    EXPECT_EQ(result(2), 26);
}

// M = 100^2 ((9 - 4) / 3 + 4 / 2) = 36667 N, t = sqrt(220000 / 205) = 32.76 mm
TEST_F(PlateChecksByHand, CantileverWithTheGreaterStressAtTheEdge) {
    form.fields.check2.ca = QStringLiteral("100");
    form.fields.check2.sigma_k = QStringLiteral("9");
    form.fields.check2.sigma_p = QStringLiteral("4");
    compute(2);
    EXPECT_EQ(result(2), 33);
}

// equal stresses: t = ca sqrt(3 sigma / fd) = 100 sqrt(15 / 205) = 27.05 mm
TEST_F(PlateChecksByHand, CantileverUnderEqualStresses) {
    form.fields.check2.ca = QStringLiteral("100");
    form.fields.check2.sigma_k = QStringLiteral("5");
    form.fields.check2.sigma_p = QStringLiteral("5");
    compute(2);
    EXPECT_EQ(result(2), 27);
}

// PN-B-03215:1998 (B.6), table B.2: b/l = 0.65, coefficient (0.414 + 0.466) / 2 = 0.44,
// t = 0.44 * 400 sqrt(5 / 205) = 27.49 mm
TEST_F(PlateChecksByHand, FragmentOnFourEdges) {
    fragment(3, 400, 260, u"5");
    compute(3);
    EXPECT_EQ(result(3), 27);
}

// b/l = 0.55, coefficient (0.661 + 0.697) / 2 = 0.679, t = 0.679 * 400 sqrt(5 / 205) = 42.42 mm
TEST_F(PlateChecksByHand, FragmentOnThreeEdges) {
    fragment(5, 400, 220, u"5");
    compute(5);
    EXPECT_EQ(result(5), 42);
}

// b/l = 1: t = 0.719 * 200 sqrt(5 / 205) = 22.46 mm
TEST_F(PlateChecksByHand, SquareFragmentOnThreeEdges) {
    fragment(5, 200, 200, u"5");
    compute(5);
    EXPECT_EQ(result(5), 22);
}

// A fragment wider than long is refused, so the wide end of the table is met only below zero:
// b/l = 1.35, coefficient (0.714 + 0.711) / 2 = 0.7125, t = -0.7125 * 1000 sqrt(5 / 205) = -111.27
TEST_F(PlateChecksByHand, BetweenTheNodesOfEachTableTheCoefficientGoesStraight) {
    for (const int check : {3, 5, 6}) {
        const std::span<const FragmentNode> nodes = fragmentNodes(check);
        for (std::size_t i = 0; i + 1 < nodes.size(); ++i) {
            const Double middle = (nodes[i].r + nodes[i + 1].r) / 2;
            const FragmentInterval table = fragmentInterval(check, CSng(middle));
            EXPECT_EQ(table.r0, nodes[i].r) << check;
            EXPECT_EQ(table.y0, nodes[i].coefficient) << check;
            EXPECT_EQ(table.y1, nodes[i + 1].coefficient) << check;
            EXPECT_NEAR(table.d, nodes[i + 1].r - nodes[i].r, 1e-7) << check << ' ' << middle;
        }
    }
}

TEST_F(PlateChecksByHand, TheWideEndOfTheTableOnThreeEdges) {
    fragment(5, -1000, -1350, u"5");
    compute(5);
    EXPECT_EQ(result(5), -111);
    fragment(5, -1000, -1750, u"5"); // (0.711 + 0.707) / 2 = 0.709, -110.73
    compute(5);
    EXPECT_EQ(result(5), -111);
    fragment(5, -2000, -4000, u"20"); // the end itself: 0.707 * 2000 sqrt(20 / 205) = 441.66
    compute(5);
    EXPECT_EQ(result(5), -442);
}

// b/l = 0.75, coefficient (1.008 + 1.084) / 2 = 1.046, t = 1.046 * 200 sqrt(5 / 205) = 32.67 mm
TEST_F(PlateChecksByHand, FragmentOnTwoEdges) {
    fragment(6, 200, 150, u"5");
    compute(6);
    EXPECT_EQ(result(6), 33);
}

// PN-B-03215:1998 B.2: t = 1.7 sqrt(sigma h s / (fd k)) = 1.7 sqrt(4 * 300 * 150 / (205 * 8))
// = 17.81 mm
TEST_F(PlateChecksByHand, ColumnWithoutStiffeners) {
    form.fields.cmbProfil = 10; // IPE 300
    form.fields.check4.sigma = QStringLiteral("4");
    compute(4);
    EXPECT_EQ(result(4), 18);
}

// PN-B-03215:1998 (B.2) and figure B.2 at b/c = 1, a/c = 1: y = 5.15,
// t = 2.2 sqrt(50000 / (205 * 5.15)) = 15.14 mm
TEST_F(PlateChecksByHand, FragmentFixedOnThreeEdges) {
    anchorFragment(7, 100, 100, 100, u"50");
    compute(7);
    EXPECT_EQ(result(7), 15);
}

// figure B.3 at b/c = 1, a/c = 1.8: y = 4, t = 2.2 sqrt(50000 / (205 * 4)) = 17.18 mm
TEST_F(PlateChecksByHand, FragmentFixedOnTwoEdges) {
    anchorFragment(8, 100, 180, 100, u"50");
    compute(8);
    EXPECT_EQ(result(8), 17);
}

class PlateValidation : public PlateDesk {};

TEST_F(PlateValidation, EveryCommandAsksForTheGradeInItsWords) {
    form.fields.cmbStalb = -1;
    for (int n = 1; n <= PlateChecks; ++n) {
        stan.raport.Spr_blachy(n) = 9;
        compute(n);
        EXPECT_EQ(refusal(), n == 2 ? QStringLiteral("Musisz wybrać gatunek stali")
                                    : QStringLiteral("Musisz określić gatunek stali"));
        EXPECT_EQ(result(n), 0);
    }
}

TEST_F(PlateValidation, TheTensionCantileverReadsItsFieldsOneByOne) {
    strip(u"0", u"x", u"x");
    compute(1);
    EXPECT_EQ(refusal(), QStringLiteral("Musisz okreslić szerokość pasa blachy (bs)!"));
    strip(u"10", u"0", u"x");
    compute(1);
    EXPECT_EQ(refusal(), QStringLiteral("Musisz okreslić długość wspornika (ca)!"));
    strip(u"10", u"10", u"0");
    compute(1);
    EXPECT_EQ(refusal(), QStringLiteral("Musisz okreslić siłę w kotwie!"));
}

TEST_F(PlateValidation, TheCompressionCantileverNeedsStressesAboveZero) {
    auto& f = form.fields;
    f.check2.ca = QStringLiteral("0");
    compute(2);
    EXPECT_EQ(refusal(), QStringLiteral("Musisz podać długość wspornika!"));
    f.check2.ca = QStringLiteral("10");
    f.check2.sigma_k = QStringLiteral("-1");
    compute(2);
    EXPECT_EQ(refusal(), QStringLiteral("Musisz podać naprężenia na końcu wspornika!"));
    f.check2.sigma_k = QStringLiteral("1");
    f.check2.sigma_p = QStringLiteral("0");
    compute(2);
    EXPECT_EQ(refusal(), QStringLiteral("Musisz podać naprężenia na początku wspornika!"));
}

TEST_F(PlateValidation, AFragmentNeedsStressLengthAndWidth) {
    for (const int n : {3, 5, 6}) {
        fragment(n, 0, 0, u"0");
        compute(n);
        EXPECT_EQ(refusal(), QStringLiteral("Musisz okreslić naprężenia pod blachą!"));
        dialogs.messages.clear();
        fragment(n, 0, 0, u"1");
        compute(n);
        ASSERT_EQ(dialogs.messages.size(), 2U);
        EXPECT_EQ(dialogs.messages[0].text,
                  QStringLiteral("Musisz okreslić długość podpartego fragmentu blachy!"));
        EXPECT_EQ(dialogs.messages[1].text,
                  QStringLiteral("Musisz okreslić szrokość podpartego fragmentu blachy!"));
        EXPECT_TRUE(enabled(4)); // nothing was computed
    }
}

TEST_F(PlateValidation, ALengthOfZeroIsSaidAndThenSwappedWithTheWidth) {
    fragment(3, 0, 120, u"1");
    compute(3);
    ASSERT_EQ(dialogs.messages.size(), 2U);
    EXPECT_EQ(dialogs.messages[1].text,
              QStringLiteral("Długośc fragmentu blachy musi być większa od szerokości!"));
    EXPECT_EQ(form.fields.check3.l, QStringLiteral("120"));
    EXPECT_EQ(form.fields.check3.b, QStringLiteral("0"));
    EXPECT_EQ(result(3), 0);
}

TEST_F(PlateValidation, AFragmentWiderThanLongIsTurnedAndComputedAtTheNextPress) {
    fragment(5, 200, 400, u"5");
    compute(5);
    EXPECT_EQ(result(5), 0);
    EXPECT_EQ(form.fields.check5.l, QStringLiteral("400"));
    EXPECT_EQ(form.fields.check5.b, QStringLiteral("200"));
    compute(5);
    EXPECT_GT(result(5), 0);
}

TEST_F(PlateValidation, TheProportionsHaveTheirLimits) {
    fragment(3, 500, 249, u"1");
    compute(3);
    EXPECT_EQ(refusal(), QStringLiteral("Zbyt długi fragment balchy (l/b>2)!"));
    fragment(3, 500, 250, u"1"); // 0.354 * 500 sqrt(1 / 205) = 12.36 mm
    compute(3);
    EXPECT_EQ(result(3), 12);
    fragment(5, 1000, 299, u"1");
    compute(5);
    EXPECT_EQ(refusal(), QStringLiteral("Zbyt długi fragment balchy (b/l<0.3)!"));
    fragment(5, 1000, 300, u"0,1"); // the limit itself passes
    compute(5);
    EXPECT_EQ(result(5), 11);
    fragment(6, 500, 249, u"1");
    compute(6);
    EXPECT_EQ(refusal(), QStringLiteral("Zbyt długi fragment balchy (b/l<0.5)!"));
}

TEST_F(PlateValidation, OnlyNegativeDimensionsReachTheUpperLimits) {
    for (const auto& [n, words] : {std::pair{3, "Zbyt szeroki fragment balchy (b/l>2)!"},
                                   {5, "Zbyt szeroki fragment balchy (b/l>2)!"},
                                   {6, "Zbyt szeroki fragment balchy (b/l>1)!"}}) {
        fragment(n, -100, -201, u"1");
        compute(n);
        EXPECT_EQ(refusal(), QString::fromUtf8(words));
    }
}

TEST_F(PlateValidation, TheColumnCheckNeedsAProfileAndAStress) {
    compute(4);
    EXPECT_EQ(refusal(), QStringLiteral("Musisz wybrać profil słupa"));
    form.fields.cmbProfil = 0;
    form.fields.check4.sigma = QStringLiteral("0");
    compute(4);
    EXPECT_EQ(refusal(), QStringLiteral("Musisz okreslić naprężenia pod blachą!"));
    EXPECT_TRUE(enabled(3));
}

TEST_F(PlateValidation, AFragmentWithAnAnchorReadsForceWidthAndPosition) {
    for (const int n : {7, 8}) {
        anchorFragment(n, 0, 0, 0, u"0");
        compute(n);
        EXPECT_EQ(refusal(), QStringLiteral("Musisz okreslić siłę w kotwie!"));
        anchorFragment(n, 0, 0, 0, u"1");
        compute(n);
        EXPECT_EQ(refusal(),
                  QStringLiteral("Musisz okreslić szrokość podpartego fragmentu blachy!"));
        anchorFragment(n, 100, 0, 0, u"1");
        compute(n);
        EXPECT_EQ(refusal(), QStringLiteral("Musisz okreslić położenie kotwy (wymiar a)!"));
        anchorFragment(n, 100, 100, 0, u"1");
        compute(n);
        EXPECT_EQ(refusal(), QStringLiteral("Musisz okreslić położenie kotwy (wymiar c)!"));
        anchorFragment(n, 100, 100, 150, u"1");
        compute(n);
        EXPECT_EQ(refusal(), QStringLiteral("Ferna poza obliczanym fragmentem blachy (b/c<1)!"));
        EXPECT_EQ(result(n), 0);
    }
}

class PlateRunTimeErrors : public PlateDesk {};

TEST_F(PlateRunTimeErrors, TheFirstFourCommandsShowANumberThatIsNone) {
    strip(u"abc", u"10", u"10");
    compute(1);
    form.fields.check2.ca = QStringLiteral("abc");
    compute(2);
    form.fields.check3.sigma = QString();
    compute(3);
    form.fields.cmbProfil = 0;
    form.fields.check4.sigma = QStringLiteral("abc");
    compute(4);
    ASSERT_EQ(dialogs.messages.size(), 4U);
    for (const auto& box : dialogs.messages) {
        EXPECT_EQ(box.text, QStringLiteral("Podany ciąg znaków nie tworzy liczby"));
        EXPECT_EQ(box.title, programTitle);
        EXPECT_EQ(box.style, MessageStyle::Plain);
    }
}

TEST_F(PlateRunTimeErrors, ANegativeForceIsTheRootOfANegativeNumber) {
    strip(u"100", u"50", u"100");
    compute(1);
    ASSERT_EQ(result(1), 34);
    strip(u"100", u"50", u"-100");
    compute(1);
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_EQ(dialogs.messages[0].text, QStringLiteral("!!!!5"));
    EXPECT_EQ(result(1), 0);
    EXPECT_FALSE(lineShown(1));
}

int errorOf(const std::function<void()>& command) {
    try {
        command();
    } catch (const RunTimeError& failure) {
        return failure.number();
    }
    return 0;
}

TEST_F(PlateRunTimeErrors, TheLaterCommandsLetThemPassAndShowNoResult) {
    for (const int n : {5, 6}) {
        fragment(n, 300, 200, u"1");
        compute(n);
        ASSERT_GT(result(n), 0);
        fragment(n, 300, 200, u"");
        EXPECT_EQ(errorOf([&] { compute(n); }), error::TypeMismatch);
        EXPECT_EQ(result(n), 0);
        EXPECT_FALSE(lineShown(n));
    }
    for (const int n : {7, 8})
        EXPECT_EQ(errorOf([&] { compute(n); }), error::TypeMismatch) << "blank fields at first";
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(PlateRunTimeErrors, ACoefficientOfZeroIsADivisionByZero) {
    for (const int n : {7, 8}) {
        anchorFragment(n, 270, 100, 100, u"50");
        EXPECT_EQ(errorOf([&] { compute(n); }), error::DivisionByZero);
        EXPECT_EQ(result(n), 0);
    }
}

TEST_F(PlateRunTimeErrors, ALengthOfZeroOverANegativeWidthIsADivisionByZero) {
    fragment(3, 0, -5, u"1");
    compute(3);
    EXPECT_EQ(dialogs.messages.back().text, QStringLiteral("!!!!11"));
    fragment(6, 0, -5, u"1");
    EXPECT_EQ(errorOf([&] { compute(6); }), error::DivisionByZero);
}

TEST_F(PlateRunTimeErrors, AnAcceptedThicknessThatIsNoNumberLeavesTheCheckAbsent) {
    form.fields.Text4 = QStringLiteral("dwa");
    strip(u"100", u"50", u"100");
    compute(1);
    EXPECT_EQ(result(1), 0);
    EXPECT_FALSE(lineShown(1));
    EXPECT_EQ(dialogs.messages.back().text, QStringLiteral("Podany ciąg znaków nie tworzy liczby"));
}

TEST_F(PlateRunTimeErrors, WithNoStrengthEverTheUsersSteelDividesByZero) {
    steel.cancelled = true;
    form.fields.cmbStalb = 5;
    strip(u"100", u"50", u"100");
    compute(1);
    ASSERT_EQ(dialogs.messages.size(), 2U);
    EXPECT_EQ(dialogs.messages[0].text, QStringLiteral("Musisz okreslić stal dla blachy"));
    EXPECT_EQ(dialogs.messages[1].text, QStringLiteral("!!!!11"));
}

TEST_F(PlateRunTimeErrors, ACancelledUsersSteelComputesWithTheLastStrength) {
    strip(u"100", u"50", u"100");
    compute(1);
    steel.cancelled = true;
    form.fields.cmbStalb = 5;
    compute(1);
    EXPECT_EQ(refusal(), QStringLiteral("Musisz okreslić stal dla blachy"));
    EXPECT_EQ(result(1), 34);
}

class PlateThicknessLimits : public PlateDesk {
protected:
    void computeThickness(int item, double Fd, double t) {
        form.fields.cmbStalb = item;
        stripOfThickness(t, Fd);
        compute(1);
    }
};

TEST_F(PlateThicknessLimits, TheThicknessIsRoundedBeforeItIsLimited) {
    computeThickness(0, 175, 40.4);
    EXPECT_EQ(result(1), 40);
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(PlateThicknessLimits, St0EndsAtForty) {
    computeThickness(0, 175, 41);
    EXPECT_EQ(refusal(), QStringLiteral("Dla stali St0 max. grubość elementu wynosi 40 mm"));
    EXPECT_EQ(result(1), 0);
    EXPECT_FALSE(lineShown(1));
    EXPECT_EQ(form.fields.Text4, QStringLiteral("0"));
}

TEST_F(PlateThicknessLimits, St3KeepsItsStrengthUpToAHundred) {
    computeThickness(1, 205, 41);
    EXPECT_EQ(result(1), 41);
    EXPECT_EQ(stan.materialy.Fd_blachy, 205.0F);
    computeThickness(1, 205, 100.2);
    EXPECT_EQ(result(1), 100);
    computeThickness(1, 205, 101);
    EXPECT_EQ(refusal(), QStringLiteral("Dla stali St3.. max. grubość elementu wynosi 100 mm"));
}

TEST_F(PlateThicknessLimits, St4EndsAtForty) {
    computeThickness(2, 225, 41);
    EXPECT_EQ(refusal(), QStringLiteral("Dla stali St4.. max. grubość elementu wynosi 40 mm"));
}

TEST_F(PlateThicknessLimits, The18GSteelsGrowLinearlyAboveThirty) {
    computeThickness(3, 295, 31); // 31 * 295 / 285 = 32.09
    EXPECT_EQ(result(1), 32);
    EXPECT_EQ(stan.materialy.Fd_blachy, 295.0F);
    computeThickness(4, 360, 48); // 48 * 360 / 350 = 49.37
    EXPECT_EQ(result(1), 49);
    computeThickness(4, 360, 49.5); // 50, corrected 50.9
    EXPECT_EQ(refusal(), QStringLiteral("Dla stali St18G2.. max. grubość elementu wynosi 50 mm"));
    EXPECT_EQ(result(1), 0);
    dialogs.messages.clear();
    computeThickness(3, 295, 51);
    EXPECT_EQ(refusal(), QStringLiteral("Dla stali St18G2.. max. grubość elementu wynosi 50 mm"));
}

TEST_F(PlateThicknessLimits, BeyondTheUsersSteelItIsAskedForAgain) {
    computeThickness(5, 315.5, 41);
    EXPECT_EQ(steel.shown, 1);
    EXPECT_EQ(refusal(), QStringLiteral("Dla stali S355max. grubość elementu wynosi40 mm"));
    EXPECT_EQ(stan.materialy.Blacha_uzytkownika, False);
    computeThickness(5, 315.5, 39);
    EXPECT_EQ(steel.shown, 2);
    EXPECT_EQ(result(1), 39);
    computeThickness(5, 315.5, 38);
    EXPECT_EQ(steel.shown, 2);
}

TEST_F(PlateThicknessLimits, ATypedThicknessIsOnlyEverRaised) {
    form.fields.Text4 = QStringLiteral("30");
    computeThickness(1, 205, 20);
    EXPECT_EQ(form.fields.Text4, QStringLiteral("30"));
    EXPECT_EQ(line(1), QStringLiteral("Wymagana grubość blachy (1) = 20 mm"));
    computeThickness(1, 205, 35);
    EXPECT_EQ(form.fields.Text4, QStringLiteral("35"));
    form.fields.Text4 = QStringLiteral("12,4");
    computeThickness(1, 205, 12);
    EXPECT_EQ(form.fields.Text4, QStringLiteral("12,4")) << "as large in whole millimetres";
    form.fields.Text4 = QStringLiteral("12");
    computeThickness(1, 205, 10);
    EXPECT_EQ(form.fields.Text4, QStringLiteral("12"));
    EXPECT_EQ(line(1), QStringLiteral("Wymagana grubość blachy (1) = 10 mm"));
}

TEST_F(PlateThicknessLimits, AThicknessOfZeroShowsItsLineAlone) {
    computeThickness(1, 205, 0.3);
    EXPECT_EQ(line(1), QStringLiteral("Wymagana grubość blachy (1) = 0 mm"));
    EXPECT_TRUE(lineShown(1));
    EXPECT_FALSE(form.face.Text4_visible);
}

class ChecksThatExclude : public PlateDesk {};

TEST_F(ChecksThatExclude, AFragmentCheckDisablesTheColumnCheckAlsoWhenItsThicknessIsRefused) {
    form.fields.cmbStalb = 0;
    fragment(3, 900, 900, u"9"); // far above 40 mm
    compute(3);
    EXPECT_EQ(result(3), 0);
    EXPECT_FALSE(enabled(4));
    stan.raport.Spr_blachy(4) = 12;
    compute(4); // a grey button
    EXPECT_EQ(result(4), 12);
    EXPECT_EQ(dialogs.messages.size(), 1U);
}

TEST_F(ChecksThatExclude, TheColumnCheckDisablesTheFragmentChecksAlsoWhenRefused) {
    form.fields.cmbStalb = 0;
    form.fields.cmbProfil = 24;
    form.fields.check4.sigma = QStringLiteral("20");
    compute(4);
    EXPECT_EQ(result(4), 0);
    for (const int n : {3, 5, 6})
        EXPECT_FALSE(enabled(n));
    EXPECT_TRUE(enabled(1));
    EXPECT_TRUE(enabled(7));
}

} // namespace
