#include "notes/notes_desk.h"
#include "notes/plate_notes.h"
#include "notes/stress_words.h"

#include <algorithm>

using namespace ferna;
using namespace ferna::testing;

namespace {

struct TwoAnchors : NotesDesk {
    TwoAnchors() { anchor(250, 150).anchor(-250, -150).loads(300, 10, 0); }
    notes::Entered now() const { return notes::entered(stan, fields); }
};

TEST(SameTask, IsOneInWhichNothingThatIsComputedDiffers) {
    const notes::Entered first = TwoAnchors().now();
    EXPECT_TRUE(notes::sameTask(first, TwoAnchors().now()));
    TwoAnchors places;
    places.stan.plyta.X_kotwy(2) = 26;
    EXPECT_FALSE(notes::sameTask(first, places.now())) << "x alone";
    places.stan.plyta.X_kotwy(2) = first.plate.X_kotwy(2);
    places.stan.plyta.Y_kotwy(2) = 16;
    EXPECT_FALSE(notes::sameTask(first, places.now())) << "y alone";
    places.stan.plyta.Y_kotwy(2) = first.plate.Y_kotwy(2);
    EXPECT_TRUE(notes::sameTask(first, places.now()));
    places.stan.plyta.Fi_kotwy(2) = 30;
    EXPECT_FALSE(notes::sameTask(first, places.now())) << "the diameter alone";
    TwoAnchors more;
    more.anchor(0, 0);
    EXPECT_FALSE(notes::sameTask(first, more.now())) << "an anchor more";
    TwoAnchors cases;
    cases.stan.obciazenia.Liczba_przyp = 2;
    EXPECT_FALSE(notes::sameTask(first, cases.now())) << "a case more";
    TwoAnchors loads;
    loads.fields.loads[0].M1 = QStringLiteral("11");
    EXPECT_FALSE(notes::sameTask(first, loads.now())) << "another moment";
}

TEST(Entered, HasNoMoreCasesThanTheTableHasRows) {
    TwoAnchors desk;
    desk.stan.obciazenia.Liczba_przyp = 9;
    EXPECT_EQ(desk.now().cases, 6);
    desk.stan.obciazenia.Liczba_przyp = -3;
    EXPECT_EQ(desk.now().cases, 0);
}

TEST(PlateFacts, AreThoseOfEveryCheckAndOfTheSectionAsItWasWritten) {
    Stan stan;
    PlateForm form = openPlateForm(stan);
    for (int n = 1; n <= PlateChecks; ++n)
        stan.raport.Spr_blachy(n) = CInt(10 + n);
    form.refused[7] = true;
    form.Nr_stali_blachy = 6;
    form.fields.Text4 = QStringLiteral("25");
    stan.wyniki.Sila_kotwy_max = -61.5F;
    stan.wyniki.Sigma_b_max = 4.5F;
    stan.materialy.Blacha_uzytkownika = True;
    stan.materialy.Blacha_nazwa = QStringLiteral("S355");
    const notes::PlateFacts left = notes::plateFacts(stan, form, false);
    EXPECT_EQ(left.required, (std::array<Integer, 8>{11, 12, 13, 14, 15, 16, 17, 18}));
    EXPECT_EQ(left.refused, form.refused);
    EXPECT_EQ(left.grade, 6);
    EXPECT_EQ(left.force, 61.5);
    EXPECT_EQ(left.pressure, 4.5);
    EXPECT_FALSE(left.accepted) << "nothing was written";
    EXPECT_EQ(left.steelName, QString());
    const notes::PlateFacts written = notes::plateFacts(stan, form, true);
    EXPECT_EQ(written.accepted, 25.0F);
    EXPECT_EQ(written.steelName, QStringLiteral("S355"));
    stan.materialy.Blacha_uzytkownika = False;
    EXPECT_EQ(notes::plateFacts(stan, form, true).steelName, QString()) << "a listed steel";
}

TEST(Record, TheNotesOfThePlateAndItsSteelComeWithThoseOfTheCases) {
    TwoAnchors desk;
    desk.calculated();
    notes::PlateFacts facts;
    facts.refused[0] = true;
    facts.steelName = QStringLiteral("S355 Φ");
    desk.record.plateWorked(facts);
    EXPECT_EQ(marks(notes::notesOf(desk.record)),
              (Marks{"sprawdzenie_odrzucone s1", "litera_spoza_strony"}));
}

TEST(Record, AnAnchorOnTheNeutralLineHasNoStressOfAnEarlierCalculation) {
    TwoAnchors desk;
    desk.record.begin(desk.now());
    desk.stan.wyniki.outcomes(1) = CaseOutcome::Found;
    desk.stan.wyniki.Sigma_kotwy(1)(1) = -50;
    desk.stan.wyniki.Sigma_kotwy(2)(1) = -60;
    desk.stan.plyta.Odl_kotwy(1) = 0;
    desk.stan.plyta.Odl_kotwy(2) = -0.01;
    desk.record.caseEnded(desk.stan, 1);
    EXPECT_EQ(desk.record.told(1).sigmaAnchor[0], 0);
    EXPECT_EQ(desk.record.told(1).sigmaAnchor[1], -60);
}

TEST(Record, TheUsersSteelIsNamedOnceItHasBeenDescribed) {
    TwoAnchors desk;
    desk.record.begin(desk.now());
    desk.stan.opcje.Nr_stali = userSteel;
    desk.stan.materialy.Stal_nazwa = QStringLiteral("stal Φ");
    desk.record.caseEnded(desk.stan, 1);
    EXPECT_EQ(marks(notes::notesOf(desk.record)), Marks{"litera_spoza_strony"});
}

TEST(Record, BeforeACalculationThereIsNothingInPlaceOfItsResults) {
    EXPECT_EQ(marks(notes::notesInPlaceOfResults(notes::Record(), TwoAnchors().now())), Marks{});
}

TEST(CasesOfARecord, WhatFollowsAFirstCaseWithoutSolutionNamesIt) {
    NotesDesk desk;
    desk.fourAnchors(250, 150).loads(100, 60, 5).loads(100, 30, 30);
    desk.record.begin(notes::entered(desk.stan, desk.fields));
    desk.stan.wyniki.outcomes(1) = CaseOutcome::GaveUp;
    desk.stan.wyniki.outcomes(2) = CaseOutcome::PassedOver;
    for (int c = 1; c <= 2; ++c)
        desk.record.caseEnded(desk.stan, c);
    const notes::Notes found = notes::notesOf(desk.record);
    ASSERT_EQ(marks(found), (Marks{"brak_rozwiazania 1", "brak_rozwiazania 2"}));
    EXPECT_TRUE(found[1].text.contains(QStringLiteral("bez rozwiązania w przypadku 1, choć")))
        << found[1].text.toStdString();
}

TEST(CasesOfARecord, RefusedTensionWithoutAnEquilibriumIsToldWithoutStresses) {
    NotesDesk desk; // an anchor beside the plate alone: nothing there to lean on
    desk.anchor(400, 0).loads(-50, 0, 0);
    const notes::Notes found = desk.calculated();
    ASSERT_FALSE(desk.exact(1).exists);
    ASSERT_EQ(marks(found), (Marks{"kotwa_poza_plyta k1", "nie_stoi 1", "rozciaganie 1"}));
    EXPECT_EQ(
        found[2].text,
        QStringLiteral("Przypadek 1: program nie liczy zakotwień rozciąganych (N = -50,0 kN). "
                       "Policz ten przypadek osobno albo usuń go z zestawienia."));
    EXPECT_EQ(
        marks(notes::notesInPlaceOfResults(desk.record, notes::entered(desk.stan, desk.fields))),
        marks(found))
        << "there are no exact stresses to add";
}

TEST(CasesOfARecord, InPlaceOfResultsACaseThatDeviatedHasItsExactStressesToo) {
    NotesDesk desk;
    desk.fourAnchors(250, 150).loads(900, 5, 0).loads(100, 60, 5);
    desk.record.begin(notes::entered(desk.stan, desk.fields));
    desk.stan.wyniki.outcomes(1) = CaseOutcome::WholePlate;
    desk.stan.wyniki.Sigma_b(1) = 0;
    desk.stan.wyniki.outcomes(2) = CaseOutcome::GaveUp;
    for (int c = 1; c <= 2; ++c)
        desk.record.caseEnded(desk.stan, c);
    const Marks told =
        marks(notes::notesInPlaceOfResults(desk.record, notes::entered(desk.stan, desk.fields)));
    EXPECT_EQ(std::ranges::count(told, "odchylka 1"), 1) << ::testing::PrintToString(told);
    EXPECT_EQ(std::ranges::count(told, "dokladnie 1"), 1) << ::testing::PrintToString(told);
    EXPECT_EQ(std::ranges::count(told, "dokladnie 2"), 0) << ::testing::PrintToString(told);
}

struct StressWords : ::testing::Test {
    WithDecimalSign comma{u','};
};

TEST_F(StressWords, ANumberHasTwoDecimalsUpToTheOneThatWouldBeRoundedToTen) {
    EXPECT_EQ(notes::number(9.99), QStringLiteral("9,99"));
    EXPECT_EQ(notes::number(9.995), QStringLiteral("10,0"));
    EXPECT_EQ(notes::number(-9.99), QStringLiteral("-9,99"));
    EXPECT_EQ(notes::number(-10), QStringLiteral("-10,0"));
}

TEST_F(StressWords, TwoNumbersBesideEachOtherDifferAsFarAsTheyCan) {
    EXPECT_EQ(notes::numberBeside(5, 5), QStringLiteral("5,00")) << "no digit tells them apart";
    EXPECT_EQ(notes::numberBeside(5.0004, 5), QStringLiteral("5,0004"));
    EXPECT_EQ(notes::numberBeside(5, 5.0004), QStringLiteral("5,0000"));
    EXPECT_EQ(notes::numberBeside(5, 5 + 1e-12), QStringLiteral("5,000000000")) << "nine at most";
}

TEST_F(StressWords, HugeNumbersAreToldWithAnExponent) {
    EXPECT_EQ(notes::number(9999999), QStringLiteral("9999999,0"));
    EXPECT_EQ(notes::number(2.5e16), QStringLiteral("2,5E+16"));
}

} // namespace
