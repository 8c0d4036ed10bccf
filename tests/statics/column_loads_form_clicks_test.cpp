#include "statics/statics_desk.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

TEST_F(ColumnStaticsForm, OpensEmptyWithNothingChosen) {
    EXPECT_EQ(totals(), totals("0", "0", "0", "0", "0"));
    EXPECT_EQ(hand->focused(), QStringLiteral("Text1_0"));
    EXPECT_FALSE(hand->enabled("cmdUsun"));
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(hand->checked(name("optTypObciaz_%1", i)));
        EXPECT_FALSE(hand->checked(name("optTypsily_%1", i)));
    }
    EXPECT_TRUE(hand->shows("Picture1", QStringLiteral("slup")));
    EXPECT_EQ(hand->label("Label2"), QStringLiteral("N [kN]           M1 [kNm]        M2 [kNm]    "
                                                    "   Vx [kN]        Vy [kN]"));
}

TEST_F(ColumnStaticsForm, AVerticalForceTurnsAboutBothAxes) {
    add(0, 0, {QStringLiteral("100")}, {QStringLiteral("50"), QStringLiteral("-20")});
    EXPECT_EQ(totals(), totals(" 100,0", " 5,0", "- 2,0", " 0,0", " 0,0"));
    EXPECT_EQ(lines(), QStringList{QStringLiteral("Siła pionowa  100,0 kN")});
    EXPECT_TRUE(hand->enabled("cmdUsun"));
}

TEST_F(ColumnStaticsForm, AHorizontalForceActsAtItsHeight) {
    add(1, 0, {QStringLiteral("10")}, {QStringLiteral("3")});
    EXPECT_EQ(totals(), totals(" 0,0", " 30,0", " 0,0", " 10,0", " 0,0"));
}

TEST_F(ColumnStaticsForm, ALoadThatGrowsUpwardIsNotTheMirrorOfOneThatFalls) {
    const QStringList from0to3{QStringLiteral("0"), QStringLiteral("3")};
    add(1, 1, {QStringLiteral("2"), QStringLiteral("4")}, from0to3);
    EXPECT_EQ(totals(), totals(" 0,0", " 18,0", " 0,0", " 9,0", " 0,0"));
    EXPECT_EQ(lines().last(), QStringLiteral("Obciążenie trapezowe px  2,0 /  4,0 kN/m"));
    add(1, 1, {QStringLiteral("4"), QStringLiteral("2")}, from0to3);
    EXPECT_EQ(totals(), totals(" 0,0", " 31,5", " 0,0", " 18,0", " 0,0")); // + 13.5, + 9
}

TEST_F(ColumnStaticsForm, NearlyOppositeValuesCountAsUniform) {
    add(1, 1, {QStringLiteral("5"), QStringLiteral("-5,002")},
        {QStringLiteral("0"), QStringLiteral("3")});
    EXPECT_EQ(lines(), QStringList{QStringLiteral("Obciązenie równomierne px 5,0 kN/m")});
    EXPECT_EQ(totals(), totals(" 0,0", " 0,0", " 0,0", " 0,0", " 0,0"));
}

TEST_F(ColumnStaticsForm, TotalsAreRoundedAfterEachLoad) {
    for (int i = 0; i < 3; ++i)
        vertical("0,04");
    EXPECT_EQ(totals().first(), QStringLiteral(" 0,0"));
    EXPECT_EQ(lines().size(), 3);
}

TEST_F(ColumnStaticsForm, RemovingTheLastLoadShutsTheCommandAndKeepsTheRounding) {
    vertical("0,06"); // shown as 0.1
    select(0);
    hand->click("cmdUsun");
    EXPECT_TRUE(lines().isEmpty());
    EXPECT_FALSE(hand->enabled("cmdUsun"));
    EXPECT_EQ(totals().first(), QStringLiteral(" 0,0")); // 0.1 - 0.06
    vertical("0,16");
    vertical("0,16"); // 0.2 + 0.16 = 0.36, shown as 0.4
    select(1);
    hand->click("cmdUsun"); // 0.4 - 0.16
    select(0);
    hand->click("cmdUsun"); // 0.2 - 0.16
    EXPECT_FALSE(hand->enabled("cmdUsun"));
    EXPECT_EQ(loads.Liczba_obc, 0);
}

TEST_F(ColumnStaticsForm, TheSelectedLineIsTheOneThatGoes) {
    vertical("10");
    vertical("20");
    vertical("40");
    select(1);
    hand->click("cmdUsun");
    EXPECT_EQ(totals().first(), QStringLiteral(" 50,0"));
    EXPECT_EQ(lines(), (QStringList{QStringLiteral("Siła pionowa  10,0 kN"),
                                    QStringLiteral("Siła pionowa  40,0 kN")}));
}

TEST_F(ColumnStaticsForm, WithoutASelectionTheRemovalSaysSoAndTheListKeepsItsLines) {
    vertical("10");
    vertical("20");
    // The frame of the focus alone selects nothing.
    list().setFocus();
    answers.box(QStringLiteral("Ferna 2005 Pr"),
                QStringLiteral("Musisz zazanczyć na liście usuwane obciążenie"));
    hand->click("cmdUsun");
    EXPECT_EQ(lines().size(), 2);
    EXPECT_EQ(totals().first(), QStringLiteral(" 30,0"));
    EXPECT_EQ(loads.Liczba_obc, 1);
}

TEST_F(ColumnStaticsForm, WithoutAnyOptionTheDialogIsThatOfAVerticalForce) {
    answers.dialog(QStringLiteral("Obciazenie"), [](QWidget& modal) {
        Hand dialog(modal);
        EXPECT_EQ(dialog.label("Label1"), QStringLiteral("Obciążenie siłą pionową"));
        EXPECT_EQ(dialog.text("Text1_0"), QStringLiteral("1"));
        dialog.click("cmdExit");
    });
    hand->click("cmdDodaj");
    EXPECT_EQ(lines(), QStringList{QStringLiteral("Siła pionowa  1,0 kN")});
}

TEST_F(ColumnStaticsForm, AVerticalLoadIsAlwaysAForce) {
    choose(1, 2);
    hand->click("optTypObciaz_0");
    EXPECT_TRUE(hand->checked("optTypsily_0"));
    EXPECT_FALSE(hand->shown("optTypsily_1"));
    EXPECT_FALSE(hand->shown("optTypsily_2"));
    hand->click("optTypObciaz_2");
    EXPECT_TRUE(hand->shown("optTypsily_1"));
    EXPECT_TRUE(hand->shown("optTypsily_2"));
    EXPECT_TRUE(hand->checked("optTypsily_0"));
}

TEST_F(ColumnStaticsForm, TheOptionsAreChosenByArrowKeysToo) {
    hand->the("optTypObciaz_1")->setFocus();
    hand->key(Qt::Key_Space);
    hand->key(Qt::Key_Up);
    EXPECT_TRUE(hand->checked("optTypObciaz_0"));
    EXPECT_FALSE(hand->shown("optTypsily_1"));
}

TEST_F(ColumnStaticsForm, TheDialogShowsWhatTheLoadNeeds) {
    struct Expected {
        int direction, kind;
        const char* first;
        bool second, third, fourth;
        int sketch;
    };
    const Expected rows[] = {{0, 0, "Siła P [kN]", false, true, true, 1},
                             {1, 0, "Siła Hx [kN]", false, true, false, 4},
                             {1, 1, "Obciążenie p1x [kN/m]", true, true, true, 6},
                             {1, 2, "Moment Mxz [kNm]", false, false, false, 2},
                             {2, 0, "Siła Hy [kN]", false, true, false, 5},
                             {2, 1, "Obciążenie p1y [kN/m]", true, true, true, 6},
                             {2, 2, "Moment Myz [kNm]", false, false, false, 3}};
    for (const Expected& row : rows) {
        SCOPED_TRACE(row.first);
        choose(row.direction, row.kind);
        answers.dialog(QStringLiteral("Obciazenie"), [&row](QWidget& modal) {
            Hand dialog(modal);
            EXPECT_EQ(dialog.focused(), QStringLiteral("Text1_0"));
            EXPECT_EQ(dialog.label("Label2_0"), QString::fromUtf8(row.first));
            for (const char* second : {"Label2_1", "Text1_1"})
                EXPECT_EQ(dialog.shown(second), row.second) << second;
            for (const char* third : {"Label3_0", "Text2_0"})
                EXPECT_EQ(dialog.shown(third), row.third) << third;
            for (const char* fourth : {"Label3_1", "Text2_1"})
                EXPECT_EQ(dialog.shown(fourth), row.fourth) << fourth;
            EXPECT_TRUE(dialog.shows("Picture1", QStringLiteral("obciaz%1").arg(row.sketch)));
            dialog.click("cmdAnuluj");
        });
        hand->click("cmdDodaj");
    }
    EXPECT_TRUE(lines().isEmpty());
    EXPECT_EQ(loads.Liczba_obc, 0);
}

TEST_F(ColumnStaticsForm, LettersInAFieldStopTheLoadAndWhatWasTypedStays) {
    choose(0, 0);
    answers.dialog(QStringLiteral("Obciazenie"), [this](QWidget& modal) {
        Hand dialog(modal);
        fill(dialog, {QStringLiteral("100")}, {QStringLiteral("pięć")});
        answers.stop(13);
        dialog.click("cmdExit");
        EXPECT_EQ(dialog.text("Text1_0"), QStringLiteral("100"));
        EXPECT_TRUE(lines().isEmpty());
        dialog.type("Text2_0", QStringLiteral("5"));
        dialog.click("cmdExit");
    });
    hand->click("cmdDodaj");
    EXPECT_EQ(lines().size(), 1);
    EXPECT_EQ(totals(), totals(" 100,0", " 0,5", " 0,0", " 0,0", " 0,0"));
    select(0); // the line and its load are in step
    hand->click("cmdUsun");
    EXPECT_EQ(totals(), totals(" 0,0", " 0,0", " 0,0", " 0,0", " 0,0"));
}

TEST_F(ColumnStaticsForm, ATotalThatIsNoNumberStopsTheLoadAndStaysAsTyped) {
    hand->type("Text1_0", QStringLiteral("abc"));
    choose(0, 0);
    answers.dialog(QStringLiteral("Obciazenie"), [this](QWidget& modal) {
        answers.stop(13);
        Hand dialog(modal);
        dialog.click("cmdExit");
        dialog.click("cmdAnuluj");
    });
    hand->click("cmdDodaj");
    EXPECT_EQ(hand->text("Text1_0"), QStringLiteral("abc"));
    hand->type("Text1_0", QStringLiteral("7"));
    vertical("2");
    EXPECT_EQ(totals().first(), QStringLiteral(" 9,0"));
    EXPECT_EQ(loads.Liczba_obc, 1);
}

TEST_F(ColumnStaticsForm, TheSixteenthLoadStopsAndTheListStaysUsable) {
    for (int i = 1; i <= MaxColumnLoads; ++i)
        vertical("1");
    answers.dialog(QStringLiteral("Obciazenie"), [this](QWidget& modal) {
        Hand dialog(modal);
        fill(dialog, {QStringLiteral("500")});
        answers.stop(9);
        dialog.click("cmdExit");
        EXPECT_TRUE(modal.isVisible());
        EXPECT_EQ(dialog.text("Text1_0"), QStringLiteral("500"));
        dialog.key(Qt::Key_Escape);
    });
    hand->click("cmdDodaj");
    EXPECT_EQ(lines().size(), MaxColumnLoads);
    EXPECT_EQ(totals().first(), QStringLiteral(" 15,0"));
    select(14);
    hand->click("cmdUsun");
    EXPECT_EQ(totals().first(), QStringLiteral(" 14,0"));
    vertical("3");
    EXPECT_EQ(totals().first(), QStringLiteral(" 17,0"));
    EXPECT_EQ(lines().size(), MaxColumnLoads);
}

TEST_F(ColumnStaticsForm, EachOpeningStartsAnEmptyList) {
    vertical("10");
    form->close();
    open();
    EXPECT_TRUE(lines().isEmpty());
    EXPECT_EQ(totals().first(), QStringLiteral("0"));
    EXPECT_EQ(loads.Liczba_obc, 0);
}

TEST_F(ColumnStaticsForm, EscDoesNotDiscardTheList) {
    vertical("10");
    hand->key(Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(ColumnStaticsForm, TheTabKeyReachesEveryControl) {
    const char* const way[] = {"Text1_1", "Text1_2",   "Text1_3",
                               "Text1_4", "cmdZapisz", "optTypObciaz_0"};
    for (const char* next : way) {
        hand->key(Qt::Key_Tab);
        EXPECT_EQ(hand->focused(), QString::fromLatin1(next));
    }
    hand->key(Qt::Key_Tab, Qt::ShiftModifier);
    vertical("10");
    hand->the("cmdDodaj")->setFocus();
    hand->key(Qt::Key_Tab);
    EXPECT_EQ(hand->focused(), QStringLiteral("lstObciazen"));
    hand->key(Qt::Key_Tab);
    EXPECT_EQ(hand->focused(), QStringLiteral("cmdUsun"));
}

} // namespace
