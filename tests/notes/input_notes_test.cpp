#include "notes/notes_desk.h"

#include <algorithm>

using namespace ferna;
using namespace ferna::testing;
using notes::Code;

namespace {

TEST(InputNotes, AnOrdinaryBaseBringsNone) {
    NotesDesk desk;
    desk.fourAnchors(250, 150).loads(320, 60, 5).loads(900, 5, 0);
    EXPECT_EQ(marks(desk.typed()), Marks{});
}

TEST(InputNotes, AnchorsCloserThanTheLargerDiameterStandInOnePlace) {
    NotesDesk desk;
    desk.anchor(200, 100, 24).anchor(200, 100, 24).anchor(-200, -100, 24);
    EXPECT_EQ(marks(desk.typed()), Marks{"kotwy_w_jednym_miejscu k2"});
    EXPECT_EQ(desk.typed().at(0).text,
              QStringLiteral("Kotwy 1 (M24) i 2 (M24) są odległe o 0,00 mm, mniej niż średnica 24 "
                             "mm: nie zmieszczą się obok siebie, a program liczy obie. Usuń jedną "
                             "z nich albo popraw współrzędne."));
}

TEST(InputNotes, AnchorsAtTheLargerDiameterDoNot) {
    NotesDesk near;
    near.anchor(200, 100, 16).anchor(229, 100, 30);
    EXPECT_EQ(marks(near.typed()), Marks{"kotwy_w_jednym_miejscu k2"});
    NotesDesk atIt;
    atIt.anchor(200, 100, 16).anchor(230, 100, 30);
    EXPECT_EQ(marks(atIt.typed()), Marks{});
    NotesDesk across;
    across.anchor(0, 0, 30).anchor(18, 24, 30);
    EXPECT_EQ(marks(across.typed()), Marks{}) << "30 mm apart";
    NotesDesk slanted;
    slanted.anchor(0, 0, 30).anchor(18, 23, 30);
    EXPECT_EQ(marks(slanted.typed()), Marks{"kotwy_w_jednym_miejscu k2"});
}

TEST(InputNotes, EachAnchorInAnothersPlaceIsToldOnce) {
    NotesDesk desk;
    desk.anchor(0, 0).anchor(0, 0).anchor(0, 0).anchor(200, 0);
    EXPECT_EQ(marks(desk.typed()),
              (Marks{"kotwy_w_jednym_miejscu k2", "kotwy_w_jednym_miejscu k3"}));
}

TEST(InputNotes, AnAnchorNearerToTheEdgeThanItsRadiusIsOffThePlate) {
    NotesDesk desk; // 600 x 400
    desk.anchor(288, 0, 24).anchor(289, 100, 24).anchor(0, -188, 24).anchor(0, 189, 24);
    EXPECT_EQ(marks(desk.typed()), (Marks{"kotwa_poza_plyta k2", "kotwa_poza_plyta k4"}));
    EXPECT_EQ(desk.typed().at(0).text,
              QStringLiteral("Kotwa 2 (M24) w miejscu (289; 100) mm wychodzi poza płytę 600 x 400 "
                             "mm: jej oś jest 11,0 mm od krawędzi, a promień ma 12,0 mm. Popraw "
                             "współrzędne albo powiększ płytę."));
}

TEST(InputNotes, AnAnchorBesideThePlateIsToldByHowFar) {
    NotesDesk desk;
    desk.anchor(-310, 0, 24);
    ASSERT_EQ(marks(desk.typed()), Marks{"kotwa_poza_plyta k1"});
    EXPECT_EQ(desk.typed().at(0).text,
              QStringLiteral("Kotwa 1 (M24) w miejscu (-310; 0) mm stoi 10,0 mm poza krawędzią "
                             "płyty 600 x 400 mm. Popraw współrzędne albo powiększ płytę."));
}

TEST(InputNotes, WithoutAPlateSizeNoAnchorIsOffIt) {
    NotesDesk desk;
    desk.anchor(900, 0, 24);
    desk.fields.Text3 = QStringLiteral("6x0");
    EXPECT_EQ(marks(desk.typed()), Marks{});
    desk.fields.Text3 = QStringLiteral("0");
    EXPECT_EQ(marks(desk.typed()), Marks{});
}

TEST(InputNotes, ADiameterOffTheSeriesIsToldAndOneOfItIsNot) {
    for (const Integer fi : anchorDiameters) {
        NotesDesk desk;
        desk.anchor(0, 0, fi);
        EXPECT_EQ(marks(desk.typed()), Marks{}) << fi;
    }
    for (const Integer fi : {Integer{0}, Integer{11}, Integer{18}, Integer{81}, Integer{-24}}) {
        NotesDesk desk;
        desk.anchor(0, 0, fi);
        EXPECT_EQ(marks(desk.typed()), Marks{"srednica_spoza_szeregu k1"}) << fi;
    }
}

TEST(InputNotes, ListedPlacesAreComparedWithTheComputedOnes) {
    NotesDesk desk;
    desk.anchor(250, 150).anchor(-250, 150).anchor(-250, -150);
    desk.dialogs.answers = {QStringLiteral("1")};
    ASSERT_TRUE(removeOneAnchor(desk.stan, desk.dialogs));
    EXPECT_EQ(marks(desk.typed()), (Marks{"wspolrzedne_listy k1", "wspolrzedne_listy k2"}));
    EXPECT_EQ(desk.typed().at(0).text,
              QStringLiteral("Kotwa 1: lista i wydruk podają miejsce (250; 150) mm, a program "
                             "liczy i rysuje ją w (-250; 150) mm. Tak jest po usunięciu kotwy i "
                             "po przesunięciu ostatniej kotwy przez poszukiwanie. Usuń kotwy od "
                             "tej w górę i podaj je od nowa."));
    NotesDesk last;
    last.anchor(250, 150).anchor(-250, 150);
    last.dialogs.answers = {QStringLiteral("2")};
    ASSERT_TRUE(removeOneAnchor(last.stan, last.dialogs));
    EXPECT_EQ(marks(last.typed()), Marks{}) << "nothing moved down";
}

TEST(InputNotes, AnAnchorWithoutADiameterIsOffThePlateOnlyBeyondItsEdge) {
    const auto isOff = [](int x, Integer fi) {
        NotesDesk desk;
        desk.anchor(x, 0, fi);
        const Marks told = marks(desk.typed());
        return std::ranges::count(told, "kotwa_poza_plyta k1") == 1;
    };
    EXPECT_FALSE(isOff(300, 0)) << "on the edge";
    EXPECT_FALSE(isOff(300, -8)) << "on the edge";
    EXPECT_TRUE(isOff(301, 0));
}

TEST(InputNotes, APlateOfAMillimetreIsAPlate) {
    NotesDesk desk;
    desk.plate(1, 400).anchor(250, 0);
    EXPECT_EQ(marks(desk.typed()), Marks{"kotwa_poza_plyta k1"});
    desk.plate(0, 400);
    EXPECT_EQ(marks(desk.typed()), Marks{});
    desk.plate(600, 0);
    EXPECT_EQ(marks(desk.typed()), Marks{}) << "nor one of no width";
}

TEST(InputNotes, EveryWholeMillimetreIsListedWhereItIsComputed) {
    NotesDesk desk;
    desk.plate(30000, 30000);
    for (int mm = -14900; mm <= 14900; mm += 7) {
        desk.stan.plyta.Liczba_srub = 0;
        desk.anchor(mm, -mm / 3);
        EXPECT_EQ(marks(desk.typed()), Marks{}) << mm;
    }
}

TEST(InputNotes, AReportWithoutALoadCaseIsTold) {
    NotesDesk desk;
    desk.fourAnchors(250, 150);
    desk.stan.obciazenia.Liczba_przyp = 0;
    EXPECT_EQ(marks(desk.typed()), Marks{"zero_przypadkow"});
    desk.stan.obciazenia.Liczba_przyp = -2;
    EXPECT_EQ(marks(desk.typed()), Marks{"zero_przypadkow"});
    desk.loads(300, 0, 0);
    EXPECT_EQ(marks(desk.typed()), Marks{});
}

TEST(InputNotes, ACaseThatTipsOverIsToldWithItsAxis) {
    NotesDesk desk; // concrete alone
    desk.loads(100, 29, 0).loads(100, 31, 0);
    const notes::Notes refused = desk.calculated();
    ASSERT_EQ(marks(refused), Marks{"nie_stoi 2"});
    EXPECT_EQ(refused.at(0).text,
              QStringLiteral("Przypadek 2: nie ma stanu równowagi, słup przewraca się wokół osi od "
                             "(300; -200) do (300; 200) mm. Dodaj kotwy po stronie odrywanej, "
                             "rozsuń je, powiększ płytę albo zwiększ siłę N."));
}

TEST(InputNotes, ABaseIsNotJudgedWhileItsAnchorsAreStillToCome) {
    NotesDesk desk; // beside the plate with the load
    desk.loads(100, 31, 0);
    EXPECT_EQ(marks(desk.typed()), Marks{});
    desk.anchor(300, 0);
    EXPECT_EQ(marks(desk.typed()), (Marks{"kotwa_poza_plyta k1", "nie_stoi 1"}))
        << "the only anchor lies on the edge about which the column tips over";
    desk.fourAnchors(250, 150);
    EXPECT_EQ(marks(desk.typed()), Marks{"kotwa_poza_plyta k1"});
}

TEST(InputNotes, AProjectNameWithLettersThatTheReportLacksIsTold) {
    NotesDesk desk;
    desk.fourAnchors(250, 150).loads(300, 0, 0);
    desk.fields.txtNaz_proj = QStringLiteral("Hala ŻÓŁĆ 12 × 3 m");
    EXPECT_EQ(marks(desk.typed()), Marks{});
    desk.fields.txtNaz_proj = QStringLiteral("Hala σ");
    EXPECT_EQ(marks(desk.typed()), Marks{"litera_spoza_strony"});
    EXPECT_EQ(desk.typed().at(0).text,
              QStringLiteral("Nazwa projektu: raport nie pomieści znaków σ, w ich miejscu będzie "
                             "\"?\". Wpisz nazwę bez nich."));
}

TEST(InputNotes, NotesStandByCaseAndThenInTheOrderOfTheCodes) {
    NotesDesk desk;
    desk.anchor(400, 0, 18).anchor(400, 0, 24).loads(100, 0, 0);
    desk.fields.txtNaz_proj = QStringLiteral("σ");
    EXPECT_EQ(marks(desk.typed()),
              (Marks{"kotwy_w_jednym_miejscu k2", "kotwa_poza_plyta k1", "kotwa_poza_plyta k2",
                     "srednica_spoza_szeregu k1", "litera_spoza_strony"}));
    notes::Notes mixed{{Code::Werdykt, 2, 0, 0, {}},
                       {Code::Odchylka, 2, 0, 0, {}},
                       {Code::NazwaSkrocona, 0, 0, 0, {}},
                       {Code::ZnakZPoprzednich, 1, 0, 0, {}},
                       {Code::ZeroPrzypadkow, 0, 0, 0, {}}};
    notes::putInOrder(mixed);
    EXPECT_EQ(marks(mixed), (Marks{"zero_przypadkow", "nazwa_skrocona", "znak_z_poprzednich 1",
                                   "odchylka 2", "werdykt 2"}));
}

} // namespace
