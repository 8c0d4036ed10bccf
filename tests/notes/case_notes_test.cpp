#include "notes/notes_desk.h"
#include "notes/stress_words.h"

#include <algorithm>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// Outside the kern, with anchors in tension.
struct Bent : NotesDesk {
    Bent() { fourAnchors(250, 150).loads(100, 60, 5); }
};

std::vector<Double> anchorsOf(const equilibrium::Result& exact) {
    return {exact.sigmaAnchor.begin(), exact.sigmaAnchor.end()};
}

int mostStressed(const equilibrium::Result& exact) {
    const auto& all = exact.sigmaAnchor;
    return static_cast<int>(std::min_element(all.begin(), all.end()) - all.begin());
}

/// The limit is told as a Single.
Single above(Double value) {
    return std::nextafter(static_cast<Single>(value), std::numeric_limits<Single>::max());
}
Single below(Double value) {
    return std::nextafter(static_cast<Single>(value), Single{0});
}

TEST(CaseNotes, ACaseToldAsItIsBringsNone) {
    Bent desk;
    EXPECT_EQ(marks(desk.toldExactly(CaseOutcome::Found)), Marks{});
    const int most = mostStressed(desk.exact(1)) + 1;
    EXPECT_EQ(marks(desk.toldExactly(CaseOutcome::WholePlate)),
              Marks{"odchylka 1 k" + std::to_string(most)})
        << "a whole plate tells of no tension";
}

TEST(CaseNotes, APressureToldMoreThanTwoPercentTooSmallIsADeviation) {
    const Double is = Bent().exact(1).sigmaConcrete;
    const auto with = [&](Double share) {
        Bent desk;
        return marks(desk.told(CaseOutcome::Found, is * (1 - share), anchorsOf(desk.exact(1))));
    };
    EXPECT_EQ(with(0.019999), Marks{});
    EXPECT_EQ(with(0.020001), Marks{"odchylka 1"});
    EXPECT_EQ(with(-0.5), Marks{}) << "too much is on the safe side";
}

TEST(CaseNotes, AnAnchorToldMoreThanTwoPercentOfTheLargestTooSmallIsADeviation) {
    const auto with = [](int anchor, Double share) {
        Bent desk;
        const equilibrium::Result exact = desk.exact(1);
        std::vector<Double> anchors = anchorsOf(exact);
        const Double largest = -exact.sigmaAnchor.at(static_cast<std::size_t>(mostStressed(exact)));
        anchors.at(static_cast<std::size_t>(anchor)) += share * largest;
        return marks(desk.told(CaseOutcome::Found, exact.sigmaConcrete, anchors));
    };
    const int most = mostStressed(Bent().exact(1));
    const std::string told = "odchylka 1 k" + std::to_string(most + 1);
    EXPECT_EQ(with(most, 0.019999), Marks{});
    EXPECT_EQ(with(most, 0.020001), Marks{told});
    EXPECT_EQ(with(most, -0.3), Marks{}) << "too much is on the safe side";
}

TEST(CaseNotes, StressesAreComparedWithAtLeastOneMegapascal) {
    const auto with = [](Double less) {
        NotesDesk desk;
        desk.fourAnchors(250, 150).loads(1, 0.5, 0);
        const equilibrium::Result exact = desk.exact(1);
        EXPECT_LT(*std::min_element(exact.sigmaAnchor.begin(), exact.sigmaAnchor.end()), 0);
        EXPECT_GT(*std::min_element(exact.sigmaAnchor.begin(), exact.sigmaAnchor.end()), -0.9);
        std::vector<Double> anchors = anchorsOf(exact);
        anchors.at(static_cast<std::size_t>(mostStressed(exact))) += less;
        return marks(desk.told(CaseOutcome::Found, exact.sigmaConcrete, anchors)).size();
    };
    EXPECT_EQ(with(0.0199), 0U);
    EXPECT_EQ(with(0.0201), 1U);
}

TEST(CaseNotes, APressureBelowAHundredthOfAMegapascalDoesNotDeviate) {
    const auto with = [](Double N) {
        NotesDesk desk;
        desk.fourAnchors(250, 150).loads(N, 0, 0);
        return marks(desk.told(CaseOutcome::WholePlate, 0, {0, 0, 0, 0}));
    };
    EXPECT_EQ(with(2.39), Marks{}) << "over 600 x 400 mm";
    EXPECT_EQ(with(2.41), Marks{"odchylka 1"});
}

TEST(CaseNotes, AHundredthOfAMegapascalIsAPressure) {
    const auto with = [](Double pressure) {
        NotesDesk desk;
        desk.fourAnchors(250, 150).loads(2.4, 0, 0);
        EnteredEquilibria equilibria = enteredEquilibria(desk.stan, desk.fields);
        equilibria.byCase[0]->sigmaConcrete = pressure;
        desk.record.begin(notes::entered(desk.stan, desk.fields, equilibria));
        desk.stan.materialy.Fd_kotwy = desk.Fd;
        desk.stan.materialy.Rb_betonu = desk.Rb;
        desk.stan.wyniki.outcomes(1) = CaseOutcome::WholePlate;
        desk.record.caseEnded(desk.stan, 1);
        return marks(notes::notesOf(desk.record));
    };
    EXPECT_EQ(with(0.01), Marks{"odchylka 1"});
    EXPECT_EQ(with(std::nextafter(0.01, 0)), Marks{});
}

TEST(CaseNotes, OfAnchorsStressedAlikeTheFirstIsNamed) {
    NotesDesk desk;
    desk.anchor(-250, 0).anchor(-250, 0).anchor(250, 0).loads(100, 60, 0);
    const equilibrium::Result exact = desk.exact(1);
    ASSERT_LT(exact.sigmaAnchor[0], 0);
    ASSERT_EQ(exact.sigmaAnchor[0], exact.sigmaAnchor[1]);
    EXPECT_EQ(notes::exactOf(exact, 3, desk.record).anchor, 1);
}

TEST(CaseNotes, TheDeviationSaysWhatWasToldWhatIsAndWhatToDo) {
    NotesDesk desk;
    desk.plate(502, 230).fourAnchors(200, 63, 12).loads(12, 11.8, -12.8);
    const notes::Notes found = desk.calculated();
    ASSERT_EQ(marks(found).size(), 2U) << ::testing::PrintToString(marks(found));
    EXPECT_EQ(found[0].code, notes::Code::Odchylka);
    EXPECT_EQ(found[1].code, notes::Code::Werdykt);
    EXPECT_TRUE(found[0].text.startsWith(QStringLiteral("Przypadek 1: poszukiwanie podało ")))
        << found[0].text.toStdString();
    EXPECT_TRUE(found[0].text.contains(QStringLiteral("dokładna równowaga daje ")));
    EXPECT_TRUE(
        found[0].text.contains(QStringLiteral("Wynik przypadku jest fałszywy: zaniżony o ")));
    EXPECT_TRUE(found[1].text.startsWith(QStringLiteral(
        "Przypadek 1: według wyników warunek jest spełniony, w dokładnej równowadze nie: docisk ")))
        << found[1].text.toStdString();
    EXPECT_TRUE(found[1].text.contains(QStringLiteral("przekroczon")));
}

TEST(CaseNotes, ACheckThatPassesOnlyAsToldIsAnotherVerdict) {
    const equilibrium::Result exact = Bent().exact(1);
    const Double stress = -exact.sigmaAnchor.at(static_cast<std::size_t>(mostStressed(exact)));
    const auto withLimit = [&](Single limit) {
        Bent desk;
        desk.Fd = limit;
        std::vector<Double> anchors = anchorsOf(exact);
        for (Double& one : anchors)
            one *= 0.99; // told a little too small, as it is borne
        return marks(desk.told(CaseOutcome::Found, exact.sigmaConcrete, anchors));
    };
    const std::string told = "werdykt 1 k" + std::to_string(mostStressed(exact) + 1);
    EXPECT_EQ(withLimit(above(stress)), Marks{});
    EXPECT_EQ(withLimit(below(stress)), Marks{told});
    EXPECT_EQ(withLimit(above(0.99 * stress)), Marks{told});
    EXPECT_EQ(withLimit(below(0.99 * stress)), Marks{}) << "it fails as told, too";
}

TEST(CaseNotes, TheSameForThePressureAndTwiceTheStrengthOfTheConcrete) {
    const equilibrium::Result exact = Bent().exact(1);
    const auto withLimit = [&](Single limit) {
        Bent desk;
        desk.Fd = 10000;
        desk.Rb = limit / 2;
        return marks(desk.told(CaseOutcome::Found, 0.99 * exact.sigmaConcrete, anchorsOf(exact)));
    };
    EXPECT_EQ(withLimit(above(exact.sigmaConcrete)), Marks{});
    EXPECT_EQ(withLimit(below(exact.sigmaConcrete)), Marks{"werdykt 1"});
    EXPECT_EQ(withLimit(below(0.98 * exact.sigmaConcrete)), Marks{});
}

TEST(CaseNotes, TheNumbersOfAVerdictShowTheDifference) {
    const equilibrium::Result exact = Bent().exact(1);
    const Double stress = -exact.sigmaAnchor.at(static_cast<std::size_t>(mostStressed(exact)));
    Bent desk;
    desk.Fd = static_cast<Single>(stress - 0.004);
    std::vector<Double> anchors(anchorsOf(exact));
    for (Double& one : anchors)
        one *= 0.99;
    const notes::Notes found = desk.told(CaseOutcome::Found, exact.sigmaConcrete, anchors);
    ASSERT_EQ(found.size(), 1U);
    const QString& text = found[0].text;
    const QString is = text.section(QStringLiteral("kotwa "), 1).section(u' ', 1, 1);
    const QString limit = text.section(QStringLiteral("fd = "), 1).section(u' ', 0, 0);
    EXPECT_NE(is, limit) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Naprężenie w kotwie jest przekroczone.")));
}

TEST(CaseNotes, OnlyCasesWithoutResultsAreTheSearchsFault) {
    const auto after = [](CaseOutcome outcome) {
        Bent desk;
        return marks(desk.told(outcome, 0, {0, 0, 0, 0}));
    };
    EXPECT_EQ(after(CaseOutcome::GaveUp), Marks{"brak_rozwiazania 1"});
    EXPECT_EQ(after(CaseOutcome::NoStart), Marks{"brak_rozwiazania 1"});
    EXPECT_EQ(after(CaseOutcome::NotComputed), Marks{});
    EXPECT_EQ(after(CaseOutcome::Failed), Marks{});
    EXPECT_EQ(after(CaseOutcome::OneMoment), Marks{});
}

TEST(CaseNotes, AfterACaseWithoutSolutionTheOthersSayThatTheyWerePassedOver) {
    NotesDesk desk;
    desk.fourAnchors(250, 150).loads(900, 5, 0).loads(100, 60, 5).loads(100, 30, 30);
    desk.record.begin(notes::entered(desk.stan, desk.fields));
    desk.stan.materialy.Fd_kotwy = 215;
    desk.stan.materialy.Rb_betonu = 8.7F;
    desk.stan.wyniki.outcomes(1) = CaseOutcome::WholePlate;
    desk.stan.wyniki.Sigma_b(1) = static_cast<Single>(desk.exact(1).sigmaConcrete);
    desk.stan.wyniki.outcomes(2) = CaseOutcome::GaveUp;
    desk.stan.wyniki.outcomes(3) = CaseOutcome::PassedOver;
    for (int c = 1; c <= 3; ++c)
        desk.record.caseEnded(desk.stan, c);
    const notes::Notes found = notes::notesOf(desk.record);
    ASSERT_EQ(marks(found), (Marks{"brak_rozwiazania 2", "brak_rozwiazania 3"}));
    EXPECT_TRUE(
        found[0].text.startsWith(QStringLiteral("Przypadek 2: poszukiwanie zakończyło się bez "
                                                "rozwiązania, choć stan równowagi istnieje: ")))
        << found[0].text.toStdString();
    EXPECT_TRUE(found[1].text.startsWith(
        QStringLiteral("Przypadek 3: nie ma wyników, bo poszukiwanie zakończyło się bez "
                       "rozwiązania w przypadku 2, choć stan równowagi istnieje: ")))
        << found[1].text.toStdString();
    const notes::Notes band =
        notes::notesInPlaceOfResults(desk.record, notes::entered(desk.stan, desk.fields));
    EXPECT_EQ(marks(band), (Marks{"dokladnie 1", "brak_rozwiazania 2", "brak_rozwiazania 3"}));
    for (const notes::Note& note : band) {
        EXPECT_TRUE(note.text.contains(QStringLiteral("docisk "))) << note.text.toStdString();
        EXPECT_TRUE(note.text.contains(QStringLiteral("dopuszczalne."))
                    || note.text.contains(QStringLiteral("przekroczon")))
            << note.text.toStdString();
    }
}

TEST(CaseNotes, TheDeviationOfAnAnchorIsToldByItsOwnStresses) {
    Bent desk;
    const equilibrium::Result exact = desk.exact(1);
    const int most = mostStressed(exact);
    std::vector<Double> anchors = anchorsOf(exact);
    anchors.at(static_cast<std::size_t>(most)) /= 2;
    const notes::Notes found = desk.told(CaseOutcome::Found, exact.sigmaConcrete, anchors);
    ASSERT_EQ(marks(found), Marks{"odchylka 1 k" + std::to_string(most + 1)});
    const Double is = -exact.sigmaAnchor.at(static_cast<std::size_t>(most));
    EXPECT_TRUE(found[0].text.contains(
        QStringLiteral("poszukiwanie podało %1 MPa w kotwie %2, dokładna równowaga daje %3 MPa")
            .arg(notes::number(is / 2))
            .arg(most + 1)
            .arg(notes::number(is))))
        << found[0].text.toStdString();
}

TEST(CaseNotes, OfAnchorsThatDeviateAlikeTheFirstIsNamed) {
    NotesDesk desk;
    desk.anchor(-250, 0).anchor(-250, 0).anchor(250, 0).loads(100, 60, 0);
    const equilibrium::Result exact = desk.exact(1);
    ASSERT_LT(exact.sigmaAnchor[0], 0);
    ASSERT_EQ(exact.sigmaAnchor[0], exact.sigmaAnchor[1]);
    const Marks told = marks(desk.told(CaseOutcome::Found, exact.sigmaConcrete, {0, 0, 0}));
    EXPECT_EQ(std::ranges::count(told, "odchylka 1 k1"), 1) << ::testing::PrintToString(told);
}

TEST(CaseNotes, ACaseWhoseLoadsCannotBeReadBringsNoneOfItsOwn) {
    for (const CaseOutcome outcome :
         {CaseOutcome::Found, CaseOutcome::FoundWithRaisedMoment, CaseOutcome::GaveUp}) {
        Bent desk;
        desk.fields.loads[0].M1 = QStringLiteral("dwa");
        EXPECT_EQ(marks(desk.told(outcome, 1, {0, 0, 0, 0})), Marks{});
        desk.record.caseRefused(desk.stan, 1);
        EXPECT_EQ(marks(notes::notesInPlaceOfResults(desk.record,
                                                     notes::entered(desk.stan, desk.fields))),
                  Marks{});
    }
}

TEST(CaseNotes, AnAnchorMovedAlongOneAxisAloneHasMoved) {
    for (const bool alongX : {true, false}) {
        Bent desk;
        desk.record.begin(notes::entered(desk.stan, desk.fields));
        Single& moved = alongX ? desk.stan.plyta.X_kotwy(4) : desk.stan.plyta.Y_kotwy(4);
        moved = CSng(moved * 0.995);
        desk.stan.wyniki.outcomes(1) = CaseOutcome::FoundWithMovedAnchor;
        desk.record.caseEnded(desk.stan, 1);
        const Marks told = marks(notes::notesOf(desk.record));
        EXPECT_EQ(std::ranges::count(told, "kotwa_przesunieta 1 k4"), 1)
            << ::testing::PrintToString(told);
    }
}

TEST(CaseNotes, ACaseThatCannotStandIsNotTheSearchsFault) {
    NotesDesk desk; // concrete alone, the load off the plate
    desk.loads(100, 40, 0);
    EXPECT_EQ(marks(desk.told(CaseOutcome::GaveUp, 0, {})), Marks{"nie_stoi 1"});
    EXPECT_EQ(marks(desk.told(CaseOutcome::Found, 0, {})), Marks{"nie_stoi 1"})
        << "also where it was told as solved";
}

TEST(CaseNotes, RefusedTensionIsToldWithTheExactStresses) {
    NotesDesk desk;
    desk.fourAnchors(250, 150).loads(300, 10, 0).loads(-50, 0, 0).loads(-0.001, 0, 0);
    const notes::Notes found = desk.calculated();
    ASSERT_EQ(marks(found), (Marks{"rozciaganie 2", "rozciaganie 3"}));
    EXPECT_EQ(
        found[0].text,
        QStringLiteral("Przypadek 2: program nie liczy zakotwień rozciąganych (N = -50,0 kN). "
                       "Dokładna równowaga: docisk 0,00 MPa (dopuszczalne 2Rb = 14,2 MPa), "
                       "kotwa %1: 35,4 MPa (dopuszczalne fd = 205,0 MPa). Naprężenia te są "
                       "dopuszczalne. Policz ten przypadek osobno albo usuń go z zestawienia.")
            .arg(mostStressed(desk.exact(2)) + 1));
    const notes::Notes band =
        notes::notesInPlaceOfResults(desk.record, notes::entered(desk.stan, desk.fields));
    EXPECT_EQ(marks(band), (Marks{"dokladnie 1", "rozciaganie 2", "rozciaganie 3"}));
}

TEST(CaseNotes, WhatIsRefusedForAnotherReasonIsNotTension) {
    NotesDesk nought;
    nought.fourAnchors(250, 150).loads(0, 10, 0).loads(-50, 0, 0);
    EXPECT_EQ(marks(nought.calculated()), Marks{});
    NotesDesk wide;
    wide.fourAnchors(150, 150).plate(400, 600).loads(-50, 0, 0);
    EXPECT_EQ(marks(wide.calculated()), Marks{});
    EXPECT_EQ(
        marks(notes::notesInPlaceOfResults(wide.record, notes::entered(wide.stan, wide.fields))),
        Marks{});
}

TEST(CaseNotes, ARaisedMomentIsToldWithItsSize) {
    NotesDesk desk;
    desk.fourAnchors(250, 150).loads(100, 60, 5);
    const notes::Notes found = desk.toldExactly(CaseOutcome::FoundWithRaisedMoment);
    ASSERT_EQ(marks(found), Marks{"moment_powiekszony 1"});
    EXPECT_EQ(
        found[0].text,
        QStringLiteral("Przypadek 1: pierwsza próba nie dała rozwiązania i przypadek policzono "
                       "z momentem M2 = 5,50 kNm zamiast 5,00 kNm, większym o 10 %. Wydruk "
                       "podaje moment wpisany. Porównaj wynik z dokładną równowagą albo zmień "
                       "nieco dane i policz ponownie."));
    NotesDesk first;
    first.fourAnchors(250, 150).loads(100, -5, 40);
    EXPECT_TRUE(first.toldExactly(CaseOutcome::FoundWithRaisedMoment)
                    .at(0)
                    .text.contains(QStringLiteral("M1 = -5,50 kNm zamiast -5,00 kNm")));
    NotesDesk vanishing;
    vanishing.fourAnchors(250, 150).loads(100, 60, 0.006);
    EXPECT_TRUE(vanishing.toldExactly(CaseOutcome::FoundWithRaisedMoment)
                    .at(0)
                    .text.contains(QStringLiteral("z małym momentem M2 zamiast zera")));
}

TEST(CaseNotes, AMovedAnchorIsToldWithBothPlaces) {
    Bent desk;
    const equilibrium::Result exact = desk.exact(1);
    desk.record.begin(notes::entered(desk.stan, desk.fields));
    desk.stan.wyniki.outcomes(1) = CaseOutcome::FoundWithMovedAnchor;
    desk.stan.wyniki.Sigma_b(1) = static_cast<Single>(2 * exact.sigmaConcrete);
    desk.stan.materialy.Fd_kotwy = 10000;
    desk.stan.materialy.Rb_betonu = 10000;
    for (int i = 1; i <= 4; ++i) {
        desk.stan.plyta.Odl_kotwy(i) = -1;
        desk.stan.wyniki.Sigma_kotwy(i)(1) = -9999;
    }
    Single& x = desk.stan.plyta.X_kotwy(4);
    Single& y = desk.stan.plyta.Y_kotwy(4);
    desk.record.caseEnded(desk.stan, 1);
    EXPECT_EQ(marks(notes::notesOf(desk.record)), Marks{}) << "it has not moved";
    x = CSng(x * 0.995);
    y = CSng(y * 0.995);
    desk.record.caseEnded(desk.stan, 1);
    const notes::Notes found = notes::notesOf(desk.record);
    ASSERT_EQ(marks(found), Marks{"kotwa_przesunieta 1 k4"});
    EXPECT_TRUE(found[0].text.startsWith(
        QStringLiteral("Przypadek 1: policzono z kotwą 4 w miejscu (-248,75; -149,25) mm zamiast "
                       "(-250; -150) mm, przesuniętą o 1,46 mm. ")))
        << found[0].text.toStdString();
}

TEST(CaseNotes, AMarkFromAnEarlierCalculationIsTold) {
    NotesDesk desk;
    desk.fourAnchors(250, 150).loads(900, 5, 0);
    EXPECT_EQ(marks(desk.calculated()), Marks{}) << "the mark is of this calculation";
    desk.noLoads().loads(100, 60, 5);
    EXPECT_EQ(marks(desk.calculated()), Marks{"znak_z_poprzednich 1"});
    NotesDesk fresh;
    fresh.fourAnchors(250, 150).loads(100, 60, 5);
    EXPECT_EQ(marks(fresh.calculated()), Marks{});
}

TEST(CaseNotes, StressesOfEarlierCalculationsAreNotThisOnes) {
    NotesDesk desk;
    desk.fourAnchors(250, 150).loads(100, 60, 5);
    desk.calculated();
    desk.noLoads().loads(100, -60, 5); // the other side is in tension now
    EXPECT_EQ(marks(desk.calculated()), Marks{});
    EXPECT_EQ(desk.record.told(1).sigmaAnchor.at(1), 0) << "was in tension before";
    EXPECT_LT(desk.record.told(1).sigmaAnchor.at(0), 0);
}

TEST(CaseNotes, NothingIsSaidBeforeACalculation) {
    EXPECT_EQ(marks(notes::notesOf(notes::Record())), Marks{});
}

TEST(CaseNotes, TheLabelsLossesAreTold) {
    Bent desk;
    desk.calculated();
    desk.record.labelled(QString(32, u'F'));
    EXPECT_EQ(marks(notes::notesOf(desk.record)), Marks{});
    desk.record.labelled(QString(31, u'F') + QStringLiteral("12"));
    EXPECT_EQ(marks(notes::notesOf(desk.record)), Marks{"nazwa_skrocona"});
    EXPECT_EQ(notes::notesOf(desk.record)[0].text,
              QStringLiteral("Oznaczenie stopy ma 33 znaków, a raport mieści 32: nie będzie w nim "
                             "\"2\". Skróć oznaczenie."));
    desk.record.labelled(QStringLiteral("Φ1"));
    EXPECT_EQ(marks(notes::notesOf(desk.record)), Marks{"litera_spoza_strony"});
}

} // namespace
