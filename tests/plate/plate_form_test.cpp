#include "plate/plate_desk.h"
#include "plate/plate_tables.h"
#include "support/run_time_errors.h"

using namespace ferna;
using ferna::testing::PlateDesk;

namespace {

class PlateFormOpened : public PlateDesk {};

TEST_F(PlateFormOpened, TheFirstLengthsComeFromTheMostStressedAnchor) {
    EXPECT_EQ(form.fields.check1.bs, QStringLiteral("120"));
    EXPECT_EQ(form.fields.check1.ca, QStringLiteral("60"));
    EXPECT_EQ(form.fields.check2.ca, QStringLiteral("120"));
}

TEST_F(PlateFormOpened, TheForceStandsWithoutSignBehindTheBlankOfItsPattern) {
    const PlateFields& fields = form.fields;
    for (const QString& force : {fields.check1.S, fields.check7.S, fields.check8.S})
        EXPECT_EQ(force, QStringLiteral(" 12,3"));
}

TEST_F(PlateFormOpened, TheStressStandsInSixFields) {
    const PlateFields& fields = form.fields;
    for (const QString& stress : {fields.check2.sigma_k, fields.check2.sigma_p, fields.check3.sigma,
                                  fields.check4.sigma, fields.check5.sigma, fields.check6.sigma})
        EXPECT_EQ(stress, QStringLiteral("3,5"));
}

TEST_F(PlateFormOpened, AForceFromAThousandOnIsSplitByTheBlankAndStillReadsAsANumber) {
    stan.wyniki.Sila_kotwy_max = -1234.5F;
    form = openPlateForm(stan);
    EXPECT_EQ(form.fields.check1.S, QStringLiteral("1 234,5"));
    form.fields.cmbStalb = 1;
    compute(1);
    EXPECT_EQ(form.inputs.check1.S, 1234.5F);
}

TEST_F(PlateFormOpened, TheOtherFieldsKeepTheirDesignedTexts) {
    const PlateFields& fields = form.fields;
    for (const PlateFields::Fragment& one : {fields.check3, fields.check5, fields.check6}) {
        EXPECT_EQ(one.l, QStringLiteral("0"));
        EXPECT_EQ(one.b, QStringLiteral("0"));
    }
    for (const PlateFields::AnchorFragment& one : {fields.check7, fields.check8}) {
        EXPECT_EQ(one.b, QStringLiteral(" "));
        EXPECT_TRUE(one.a.isEmpty());
        EXPECT_TRUE(one.c.isEmpty());
    }
}

TEST_F(PlateFormOpened, NothingIsChosenAndTheThicknessIsHidden) {
    const PlateForm opened = openPlateForm(stan);
    EXPECT_EQ(opened.fields.cmbStalb, -1);
    EXPECT_EQ(opened.fields.cmbProfil, -1);
    EXPECT_EQ(opened.fields.Text4, QStringLiteral("0"));
    EXPECT_FALSE(opened.face.Text4_visible);
    EXPECT_FALSE(opened.face.Label10_visible);
    EXPECT_EQ(opened.face.Label8[2], QStringLiteral("Wymagana ..."));
    const std::array<bool, PlateChecks> shown{false, false, true, true, true, true, true, true};
    EXPECT_EQ(opened.face.Label8_visible, shown);
    for (const bool one : opened.face.cmdOblicz_enabled)
        EXPECT_TRUE(one);
}

TEST_F(PlateFormOpened, OnlyTheFirstFourChecksAreCleared) {
    stan.materialy.Blacha_uzytkownika = True;
    stan.raport.Liczba_wierszy_blachy = 7;
    for (int n = 1; n <= PlateChecks; ++n)
        stan.raport.Spr_blachy(n) = static_cast<Integer>(10 + n);
    form = openPlateForm(stan);
    EXPECT_EQ(result(4), 0);
    EXPECT_EQ(result(5), 15);
    EXPECT_EQ(result(8), 18);
    EXPECT_EQ(stan.materialy.Blacha_uzytkownika, False);
    EXPECT_EQ(stan.raport.Liczba_wierszy_blachy, 0);
}

TEST_F(PlateFormOpened, WithoutTensionTheForceIsZeroAndTheCheckRefuses) {
    stan.wyniki.Nr_kotwy_max = 0;
    stan.wyniki.Sila_kotwy_max = 0;
    form = openPlateForm(stan);
    EXPECT_EQ(form.fields.check1.S, QStringLiteral(" 0,0"));
    EXPECT_EQ(form.fields.check1.bs, QStringLiteral("0"));
    form.fields.cmbStalb = 1;
    strip(u"100", u"50", u" 0,0");
    compute(1);
    EXPECT_EQ(refusal(), QStringLiteral("Musisz okreslić siłę w kotwie!"));
}

TEST_F(PlateFormOpened, EveryTabKnowsItsCheckAndItsSketch) {
    const int checks[] = {1, 8, 7, 4, 2, 6, 5, 3};
    for (int tab = 0; tab < PlateChecks; ++tab)
        EXPECT_EQ(plateTab(tab).check, checks[tab]);
    EXPECT_EQ(plateTab(3).sketch, 0);
    EXPECT_EQ(plateTab(1).sketch, 7);
    EXPECT_THROW(plateTab(8), RunTimeError);
}

TEST_F(PlateFormOpened, TheListsHoldTheGradesAndProfiles) {
    EXPECT_EQ(plateSteelNames().size(), 6);
    EXPECT_EQ(plateSteelNames().last(), QStringLiteral("inna stal"));
    EXPECT_EQ(profileNames().size(), 25);
    EXPECT_EQ(profileNames().at(18), QStringLiteral("HEB <=300"));
    EXPECT_EQ(columnProfile(25).k, 9.1);
    EXPECT_THROW(columnProfile(26), RunTimeError);
    EXPECT_THROW(plateSteel(6), RunTimeError);
}

class LeavingTheGradeList : public PlateDesk {
protected:
    void leave(int item) {
        form.fields.cmbStalb = item;
        leaveGradeList(stan, form, dialogs, steel);
    }
};

TEST_F(LeavingTheGradeList, WithNothingChosenNothingHappens) {
    strip(u"100", u"50", u"100");
    compute(1);
    leave(-1);
    EXPECT_EQ(result(1), 34);
    EXPECT_TRUE(lineShown(1));
}

TEST_F(LeavingTheGradeList, AListedGradeForgetsWhatWasRefused) {
    strip(u"0", u"50", u"100");
    compute(1);
    ASSERT_TRUE(form.refused[0]);
    leave(2);
    EXPECT_EQ(form.refused, (std::array<bool, PlateChecks>{}));
}

TEST_F(LeavingTheGradeList, AListedGradeWithdrawsEveryResultAndKeepsTheThickness) {
    form.fields.cmbStalb = 3;
    strip(u"100", u"50", u"50");
    compute(1);
    const QString thickness = form.fields.Text4;
    ASSERT_NE(thickness, QStringLiteral("0"));
    fragment(3, 300, 200, u"2");
    compute(3);
    leave(0);
    for (int n = 1; n <= PlateChecks; ++n) {
        EXPECT_EQ(result(n), 0);
        EXPECT_FALSE(lineShown(n));
    }
    EXPECT_EQ(form.Nr_stali_blachy, 1);
    EXPECT_EQ(form.fields.Text4, thickness);
    EXPECT_TRUE(form.face.Text4_visible);
    EXPECT_FALSE(enabled(4)); // only the withdrawal of check 3 gives it back
}

TEST_F(LeavingTheGradeList, TheUsersSteelIsAskedForOnceAndTheResultsStay) {
    strip(u"100", u"50", u"100");
    compute(1);
    leave(5);
    EXPECT_EQ(steel.shown, 1);
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_EQ(result(1), 34);
    leave(5);
    EXPECT_EQ(steel.shown, 1);
}

TEST_F(LeavingTheGradeList, ACancelledSteelHasItsMessage) {
    steel.cancelled = true;
    leave(5);
    EXPECT_EQ(refusal(), QStringLiteral("Musisz okreslić stal dla blachy"));
}

class WithdrawingACheck : public PlateDesk {};

TEST_F(WithdrawingACheck, TheThicknessBecomesTheLargestThatStandsAlsoOverATypedOne) {
    strip(u"100", u"50", u"100");
    compute(1); // 34 mm
    fragment(3, 300, 200, u"2");
    compute(3);
    const Integer third = result(3);
    ASSERT_GT(third, 0);
    ASSERT_LT(third, 34);
    form.fields.Text4 = QStringLiteral("50");
    cmdAnulujto(stan, form, 0);
    EXPECT_EQ(form.fields.Text4, general(third));
    EXPECT_FALSE(lineShown(1));
    EXPECT_TRUE(form.face.Text4_visible);
    cmdAnulujto(stan, form, 2);
    EXPECT_EQ(form.fields.Text4, QStringLiteral("0"));
    EXPECT_FALSE(form.face.Text4_visible);
    EXPECT_FALSE(form.face.Label10_visible);
}

TEST_F(WithdrawingACheck, TheColumnCheckReturnsWhenTheLastFragmentCheckGoes) {
    fragment(3, 300, 200, u"2");
    compute(3);
    fragment(6, 300, 200, u"2");
    compute(6);
    fragment(5, 300, 200, u"2");
    compute(5);
    EXPECT_FALSE(enabled(4));
    cmdAnulujto(stan, form, 2);
    EXPECT_FALSE(enabled(4));
    cmdAnulujto(stan, form, 5);
    EXPECT_FALSE(enabled(4));
    cmdAnulujto(stan, form, 4);
    EXPECT_TRUE(enabled(4));
}

TEST_F(WithdrawingACheck, EachFragmentCheckThatStandsKeepsTheColumnCheckShut) {
    for (const int withdrawn : {3, 5, 6})
        for (const int standing : {3, 5, 6}) {
            if (standing == withdrawn)
                continue;
            fragment(withdrawn, 300, 200, u"2");
            compute(withdrawn);
            fragment(standing, 300, 200, u"2");
            compute(standing);
            cmdAnulujto(stan, form, withdrawn - 1);
            EXPECT_FALSE(enabled(4)) << withdrawn << " withdrawn, " << standing << " stands";
            cmdAnulujto(stan, form, standing - 1);
            EXPECT_TRUE(enabled(4)) << standing << " withdrawn, the last";
        }
}

TEST_F(WithdrawingACheck, OtherChecksGiveNothingBack) {
    fragment(3, 300, 200, u"2");
    compute(3);
    stan.raport.Spr_blachy(3) = 0;
    cmdAnulujto(stan, form, 0);
    EXPECT_FALSE(enabled(4));
}

TEST_F(WithdrawingACheck, TheFragmentChecksReturnWithTheColumnCheck) {
    form.fields.cmbProfil = 0;
    compute(4);
    for (const int n : {3, 5, 6})
        EXPECT_FALSE(enabled(n));
    cmdAnulujto(stan, form, 3);
    for (const int n : {3, 5, 6})
        EXPECT_TRUE(enabled(n));
}

TEST(PlateTables, NothingStandsOutsideThem) {
    using ferna::testing::errorNumberOf;
    for (const Integer number : {Integer{-1}, Integer{0}, Integer{1000}}) {
        EXPECT_EQ(errorNumberOf([&] { plateSteel(number); }), error::Subscript) << number;
        EXPECT_EQ(errorNumberOf([&] { columnProfile(number); }), error::Subscript) << number;
        EXPECT_EQ(errorNumberOf([&] { fragmentNodes(number); }), error::Subscript) << number;
    }
    EXPECT_EQ(errorNumberOf([] { plateTab(-1); }), error::Subscript);
    EXPECT_EQ(errorNumberOf([] { plateTab(PlateChecks); }), error::Subscript);
}

TEST_F(PlateDesk, ARefusalIsKeptWithWhatItHasToldUntilTheCheckIsMadeAgain) {
    strip(u"0", u"60", u"50");
    compute(1);
    EXPECT_TRUE(form.refused[0]);
    EXPECT_EQ(form.why[0], QStringLiteral("Musisz okreslić szerokość pasa blachy (bs)!"));
    strip(u"5", u"300", u"500");
    compute(1);
    EXPECT_EQ(form.why[0], QStringLiteral("Dla stali St3.. max. grubość elementu wynosi 100 mm"));
    strip(u"x", u"60", u"50");
    compute(1);
    EXPECT_EQ(form.why[0].left(4), errorText(error::TypeMismatch).left(4));
    strip(u"120", u"60", u"50");
    compute(1);
    EXPECT_FALSE(form.refused[0]);
    EXPECT_EQ(form.why[0], QString());
}

TEST_F(PlateDesk, AnExcludedCheckHasNothingToTell) {
    fragment(3, 300, 200, u"5");
    compute(3);
    compute(4);
    EXPECT_TRUE(form.refused[3]);
    EXPECT_EQ(form.why[3], QString());
}

TEST_F(PlateDesk, AWithdrawnCheckIsKnownAsSuchUntilItIsMadeAgain) {
    cmdAnulujto(stan, form, 0);
    EXPECT_FALSE(form.withdrawn[0]) << "it never was";
    strip(u"120", u"60", u"50");
    compute(1);
    EXPECT_FALSE(form.withdrawn[0]);
    cmdAnulujto(stan, form, 0);
    EXPECT_TRUE(form.withdrawn[0]);
    compute(1);
    EXPECT_FALSE(form.withdrawn[0]);
    leaveGradeList(stan, form, dialogs, steel);
    EXPECT_TRUE(form.withdrawn[0]) << "another grade withdraws all of them";
}

TEST_F(PlateDesk, EvenTheThinnestResultIsKnownAsWithdrawn) {
    stan.raport.Spr_blachy(1) = 1;
    cmdAnulujto(stan, form, 0);
    EXPECT_TRUE(form.withdrawn[0]);
}

TEST_F(PlateDesk, ARefusedCheckShowsNoLineOfTheResultBefore) {
    strip(u"120", u"60", u"50");
    compute(1);
    ASSERT_TRUE(lineShown(1));
    strip(u"0", u"60", u"50");
    compute(1);
    EXPECT_FALSE(lineShown(1));
}

} // namespace
