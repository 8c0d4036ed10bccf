#include "statics/load_list.h"
#include "statics/load_shares.h"
#include "support/decimal_comma.h"
#include "support/printing.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

using namespace ferna;
using ferna::testing::WithDecimalSign;

namespace {

int errorOf(const std::function<void()>& command) {
    try {
        command();
    } catch (const RunTimeError& failure) {
        return failure.number();
    }
    return 0;
}

class ColumnLoads : public ::testing::Test {
protected:
    ColumnLoads() : form(openStatics(loads)) {}

    /// Declares a load with the texts of its loads and of its arms as far as they are given.
    void add(int direction, int kind, const QStringList& T1, const QStringList& T2 = {}) {
        chooseDirection(form, direction);
        chooseKind(form, kind);
        LoadDialog dialog = openLoadDialog(form);
        dialog.load.text = T1.value(0, dialog.load.text);
        dialog.secondLoad.text = T1.value(1, dialog.secondLoad.text);
        dialog.arm.text = T2.value(0, dialog.arm.text);
        dialog.secondArm.text = T2.value(1, dialog.secondArm.text);
        acceptLoad(loads, form, dialog);
    }
    void vertical(const char* P) { add(0, 0, {QString::fromLatin1(P)}); }
    void trapezoid(const char* p1, const char* p2, const char* h1, const char* h2) {
        add(1, 1, {QString::fromLatin1(p1), QString::fromLatin1(p2)},
            {QString::fromLatin1(h1), QString::fromLatin1(h2)});
    }
    void remove(int line) {
        form.selected = line;
        removeLoad(loads, form, dialogs);
    }
    QStringList totals() const {
        const LoadRow<QString>& sum = form.totals;
        return {sum.N, sum.M1, sum.M2, sum.Vx, sum.Vy};
    }
    static QStringList totals(const char* N, const char* M1, const char* M2, const char* Vx,
                              const char* Vy) {
        QStringList list;
        for (const char* one : {N, M1, M2, Vx, Vy})
            list += QString::fromLatin1(one);
        return list;
    }

    WithDecimalSign comma{u','};
    Stan_statyki loads;
    StaticsForm form;
    ScriptedDialogs dialogs;
};

TEST_F(ColumnLoads, TheFormOpensEmptyWithNothingChosen) {
    EXPECT_EQ(totals(), totals("0", "0", "0", "0", "0"));
    EXPECT_TRUE(form.lstObciazen.isEmpty());
    EXPECT_FALSE(form.cmdUsun_enabled);
    EXPECT_EQ(form.optTypObciaz, -1);
    EXPECT_EQ(form.optTypsily, -1);
}

TEST_F(ColumnLoads, AVerticalForceTurnsAboutBothAxes) {
    add(0, 0, {QStringLiteral("100")}, {QStringLiteral("50"), QStringLiteral("-20")});
    EXPECT_EQ(totals(), totals(" 100,0", " 5,0", "- 2,0", " 0,0", " 0,0"));
    EXPECT_EQ(form.lstObciazen, QStringList{QStringLiteral("Siła pionowa  100,0 kN")});
    EXPECT_TRUE(form.cmdUsun_enabled);
    EXPECT_EQ(loads.Obc_typ[0](1), 1);
    EXPECT_EQ(loads.Obc_wart[2](1), 50.0F);
    EXPECT_EQ(loads.Obc_wart[3](1), -20.0F);
}

TEST_F(ColumnLoads, AMillimetreOfEccentricityIsAThousandthOfAMetre) {
    add(0, 0, {QStringLiteral("8000")}, {QStringLiteral("250"), QStringLiteral("-125")});
    EXPECT_EQ(totals(), totals("8 000,0", "2 000,0", "-1 000,0", " 0,0", " 0,0"));
}

TEST_F(ColumnLoads, AHorizontalForceActsAtItsHeight) {
    add(1, 0, {QStringLiteral("10")}, {QStringLiteral("3")});
    EXPECT_EQ(totals(), totals(" 0,0", " 30,0", " 0,0", " 10,0", " 0,0"));
    add(2, 0, {QStringLiteral("-4,5")}, {QStringLiteral("2")});
    EXPECT_EQ(totals(), totals(" 0,0", " 30,0", "- 9,0", " 10,0", "- 4,5"));
    EXPECT_EQ(form.lstObciazen, (QStringList{QStringLiteral("Siła pozioma Hx  10,0 kN"),
                                             QStringLiteral("Siła pozioma Hy - 4,5 kN")}));
}

TEST_F(ColumnLoads, AMomentGoesToItsAxis) {
    add(1, 2, {QStringLiteral("12,34")});
    add(2, 2, {QStringLiteral("1000")});
    EXPECT_EQ(totals(), totals(" 0,0", " 12,3", "1 000,0", " 0,0", " 0,0"));
    EXPECT_EQ(form.lstObciazen, (QStringList{QStringLiteral("Moment Mxz  12,34 kNm"),
                                             QStringLiteral("Moment Myz 1 000,0 kNm")}));
}

TEST_F(ColumnLoads, ALoadThatGrowsUpwardActsASixthAboveMidHeight) {
    trapezoid("2", "4", "0", "3"); // V = 9, hc = 1.5 + 3 / 6
    EXPECT_EQ(totals(), totals(" 0,0", " 18,0", " 0,0", " 9,0", " 0,0"));
    EXPECT_EQ(form.lstObciazen,
              QStringList{QStringLiteral("Obciążenie trapezowe px  2,0 /  4,0 kN/m")});
}

TEST_F(ColumnLoads, ALoadThatFallsUpwardActsAtMidHeight) {
    trapezoid("4", "2", "0", "3"); // not the mirror of the one that grows
    EXPECT_EQ(totals(), totals(" 0,0", " 13,5", " 0,0", " 9,0", " 0,0"));
}

TEST_F(ColumnLoads, NearlyEqualValuesCountAsUniformWhateverTheirSigns) {
    trapezoid("5", "-5,002", "0", "3");
    EXPECT_EQ(form.lstObciazen, QStringList{QStringLiteral("Obciązenie równomierne px 5,0 kN/m")});
    EXPECT_EQ(totals(), totals(" 0,0", " 0,0", " 0,0", " 0,0", " 0,0"));
    trapezoid("5", "-5,006", "0", "3");
    EXPECT_EQ(form.lstObciazen[1], QStringLiteral("Obciążenie trapezowe px  5,0 / - 5,01 kN/m"));
}

TEST_F(ColumnLoads, InTheOtherPlaneTheDistributedLoadIsToldAsPy) {
    add(2, 1, {QStringLiteral("2"), QStringLiteral("2")},
        {QStringLiteral("1"), QStringLiteral("3")});
    add(2, 1, {QStringLiteral("2"), QStringLiteral("3")},
        {QStringLiteral("0"), QStringLiteral("6")});
    EXPECT_EQ(form.lstObciazen,
              (QStringList{QStringLiteral("Obciązenie równomierne py 2,0 kN/m"),
                           QStringLiteral("Obciążenie trapezowe py  2,0 /  3,0 kN/m")}));
    // 4 at 2 m; 15 at 3 + 1 m
    EXPECT_EQ(totals(), totals(" 0,0", " 0,0", " 68,0", " 0,0", " 19,0"));
}

TEST_F(ColumnLoads, TotalsAreRoundedAfterEachLoad) {
    for (int i = 0; i < 3; ++i)
        vertical("0,04");
    EXPECT_EQ(form.totals.N, QStringLiteral(" 0,0"));
}

TEST_F(ColumnLoads, ATotalFromAThousandOnReadsBackWithItsBlank) {
    vertical("900");
    vertical("250,5");
    EXPECT_EQ(form.totals.N, QStringLiteral("1 150,5"));
    vertical("1");
    EXPECT_EQ(form.totals.N, QStringLiteral("1 151,5"));
}

TEST_F(ColumnLoads, ANegativeTotalReadsBackWithItsSign) {
    vertical("-2");
    EXPECT_EQ(form.totals.N, QStringLiteral("- 2,0"));
    vertical("-0,5");
    EXPECT_EQ(form.totals.N, QStringLiteral("- 2,5"));
}

TEST_F(ColumnLoads, WithoutAnyOptionTheDialogIsThatOfAVerticalForce) {
    const LoadDialog dialog = openLoadDialog(form);
    EXPECT_EQ(dialog.Label1, QStringLiteral("Obciążenie siłą pionową"));
    acceptLoad(loads, form, dialog);
    EXPECT_EQ(form.lstObciazen, QStringList{QStringLiteral("Siła pionowa  1,0 kN")});
}

TEST_F(ColumnLoads, AVerticalLoadIsAlwaysAForce) {
    chooseKind(form, 2);
    chooseDirection(form, 0);
    EXPECT_EQ(form.optTypsily, 0);
    EXPECT_FALSE(form.kindsVisible);
    chooseDirection(form, 2);
    EXPECT_TRUE(form.kindsVisible);
    EXPECT_EQ(form.optTypsily, 0);
}

TEST_F(ColumnLoads, TheDialogShowsWhatItsLoadNeeds) {
    struct Expected {
        int direction, kind;
        const char* heading;
        const char* first;
        bool second, third, fourth;
        int sketch;
    };
    const Expected rows[] = {
        {0, 0, "Obciążenie siłą pionową", "Siła P [kN]", false, true, true, 1},
        {1, 0, "Obciążenie w płaszczyżnie XZ", "Siła Hx [kN]", false, true, false, 4},
        {1, 1, "Obciążenie w płaszczyżnie XZ", "Obciążenie p1x [kN/m]", true, true, true, 6},
        {1, 2, "Obciążenie w płaszczyżnie XZ", "Moment Mxz [kNm]", false, false, false, 2},
        {2, 0, "Obciążenie w płaszczyżnie YZ", "Siła Hy [kN]", false, true, false, 5},
        {2, 1, "Obciążenie w płaszczyżnie YZ", "Obciążenie p1y [kN/m]", true, true, true, 6},
        {2, 2, "Obciążenie w płaszczyżnie YZ", "Moment Myz [kNm]", false, false, false, 3}};
    for (const Expected& row : rows) {
        chooseDirection(form, row.direction);
        chooseKind(form, row.kind);
        const LoadDialog dialog = openLoadDialog(form);
        EXPECT_EQ(dialog.Label1, QString::fromUtf8(row.heading));
        EXPECT_EQ(dialog.load.caption, QString::fromUtf8(row.first));
        EXPECT_TRUE(dialog.load.shown());
        EXPECT_EQ(dialog.secondLoad.shown(), row.second);
        EXPECT_EQ(dialog.arm.shown(), row.third);
        EXPECT_EQ(dialog.secondArm.shown(), row.fourth);
        EXPECT_EQ(dialog.sketch, row.sketch);
        EXPECT_EQ(dialog.load.text, QStringLiteral("1"));
        EXPECT_EQ(dialog.secondLoad.text, QStringLiteral("0"));
    }
}

TEST_F(ColumnLoads, AFieldThatIsNoNumberStopsAfterTheCountHasGrown) {
    EXPECT_EQ(errorOf([&] { vertical("sto"); }), error::TypeMismatch);
    EXPECT_EQ(loads.Liczba_obc, 1);
    EXPECT_TRUE(form.lstObciazen.isEmpty());
    EXPECT_EQ(form.totals.N, QStringLiteral("0"));
}

TEST_F(ColumnLoads, HiddenFieldsAreNotRead) {
    add(1, 2, {QStringLiteral("5"), QStringLiteral("x")}, {QStringLiteral("x")});
    EXPECT_EQ(form.totals.M1, QStringLiteral(" 5,0"));
}

TEST_F(ColumnLoads, ASixteenthLoadOverrunsTheSlots) {
    for (int i = 0; i < 15; ++i)
        vertical("1");
    EXPECT_EQ(errorOf([&] { vertical("1"); }), error::Subscript);
    EXPECT_EQ(loads.Liczba_obc, 16);
    EXPECT_EQ(form.lstObciazen.size(), 15);
    EXPECT_EQ(form.totals.N, QStringLiteral(" 15,0"));
}

TEST_F(ColumnLoads, RemovingTakesTheSharesOffAndMovesTheSlots) {
    vertical("100");
    trapezoid("2", "4", "0", "3");
    add(1, 0, {QStringLiteral("10")}, {QStringLiteral("3")});
    remove(1); // the trapezoid, its sixth included
    EXPECT_EQ(totals(), totals(" 100,0", " 30,0", " 0,0", " 10,0", " 0,0"));
    EXPECT_EQ(form.lstObciazen, (QStringList{QStringLiteral("Siła pionowa  100,0 kN"),
                                             QStringLiteral("Siła pozioma Hx  10,0 kN")}));
    EXPECT_EQ(form.selected, -1);
    EXPECT_TRUE(form.cmdUsun_enabled);
    EXPECT_EQ(loads.Liczba_obc, 2);
    remove(1); // now the force stands in slot 2
    EXPECT_EQ(totals(), totals(" 100,0", " 0,0", " 0,0", " 0,0", " 0,0"));
}

TEST_F(ColumnLoads, RemovingTheLastLoadLeavesWhatTheRoundingLeft) {
    vertical("0,06"); // 0.1 in the total
    vertical("0,06");
    remove(1);
    remove(0);
    EXPECT_FALSE(form.cmdUsun_enabled);
    EXPECT_TRUE(form.lstObciazen.isEmpty());
    EXPECT_EQ(form.totals.N, QStringLiteral(" 0,0")); // 0.2 - 0.06 = 0.1, - 0.06 = 0.0
    vertical("0,04");                                 // 0.0 in the total
    remove(0);
    EXPECT_EQ(form.totals.N, QStringLiteral("0,0").prepend(u' '));
    vertical("0,05");
    remove(0); // 0.1 - 0.05
    EXPECT_EQ(form.totals.N, QStringLiteral(" 0,1"));
}

TEST_F(ColumnLoads, WithoutASelectionTheSlotsMoveAndTheListStays) {
    vertical("100");
    vertical("7");
    remove(-1);
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_EQ(dialogs.messages[0].text,
              QStringLiteral("Musisz zazanczyć na liście usuwane obciążenie"));
    EXPECT_EQ(form.lstObciazen.size(), 2);
    EXPECT_TRUE(form.cmdUsun_enabled);
    EXPECT_EQ(form.totals.N, QStringLiteral(" 107,0")); // slot 0 held nothing
    EXPECT_EQ(loads.Liczba_obc, 1);
    EXPECT_EQ(loads.Obc_wart[0](0), 100.0F);
    EXPECT_EQ(loads.Obc_wart[0](1), 7.0F);
    remove(0); // the line of 100 takes off the 7 that has moved under it
    EXPECT_EQ(form.totals.N, QStringLiteral(" 100,0"));
    remove(-1); // and slot 0 now holds the 100
    EXPECT_EQ(form.totals.N, QStringLiteral(" 0,0"));
}

TEST_F(ColumnLoads, WhatSlotZeroHoldsOutlivesTheForm) {
    vertical("100");
    remove(-1);
    form = openStatics(loads);
    EXPECT_EQ(loads.Liczba_obc, 0);
    vertical("1");
    remove(-1);
    EXPECT_EQ(form.totals.N, QStringLiteral("- 99,0"));
}

TEST_F(ColumnLoads, AnOpeningClearsTheSlotsFromOneOn) {
    trapezoid("2", "4", "1", "3");
    loads.Obc_typ[0](MaxColumnLoads) = 2;
    for (auto& row : loads.Obc_wart)
        row(MaxColumnLoads) = 5;
    form = openStatics(loads);
    EXPECT_EQ(loads.Liczba_obc, 0);
    for (const int slot : {1, MaxColumnLoads}) {
        EXPECT_EQ(loads.Obc_typ[0](slot), 0) << slot;
        for (const auto& row : loads.Obc_wart)
            EXPECT_EQ(row(slot), 0.0F) << slot;
    }
}

TEST_F(ColumnLoads, ACountBelowTheListRunsOutOfTheSlots) {
    vertical("1");
    for (int i = 0; i < 3; ++i)
        remove(-1);
    EXPECT_EQ(loads.Liczba_obc, -2);
    EXPECT_EQ(errorOf([&] { vertical("1"); }), error::Subscript);
}

TEST_F(ColumnLoads, AnEmptySlotHasNoShares) {
    const LoadShares none = loadShares(loads, 0);
    EXPECT_EQ(none.N, 0.0F);
    EXPECT_EQ(none.M1, 0.0F);
    EXPECT_EQ(none.Vy, 0.0F);
    EXPECT_EQ(errorOf([&] { loadShares(loads, 16); }), error::Subscript);
}

TEST_F(ColumnLoads, ATypedTotalIsTakenOnFrom) {
    form.totals.N = QStringLiteral("10,26");
    vertical("1");
    EXPECT_EQ(form.totals.N, QStringLiteral(" 11,3"));
    form.totals.Vy = QStringLiteral("x");
    EXPECT_EQ(errorOf([&] { vertical("1"); }), error::TypeMismatch);
    EXPECT_EQ(form.totals.N, QStringLiteral(" 11,3")); // all are read before one is written
}

TEST_F(ColumnLoads, AnErrorTellsWhichTextCouldNotBeTaken) {
    const auto atFault = [this](QString& text) {
        const QString before = std::exchange(text, QStringLiteral("x"));
        const auto failure = ferna::testing::errorOf([this] { vertical("1"); });
        text = before;
        return failure ? failure->value() : TypedValue{};
    };
    EXPECT_EQ(atFault(form.totals.N), TypedValue{Value::TotalN});
    EXPECT_EQ(atFault(form.totals.M1), TypedValue{Value::TotalM1});
    EXPECT_EQ(atFault(form.totals.M2), TypedValue{Value::TotalM2});
    EXPECT_EQ(atFault(form.totals.Vx), TypedValue{Value::TotalVx});
    EXPECT_EQ(atFault(form.totals.Vy), TypedValue{Value::TotalVy});
    const auto texts = [](const char* first, const char* second) {
        return QStringList{QString::fromLatin1(first), QString::fromLatin1(second)};
    };
    const std::pair<QStringList, QStringList> typed[] = {{texts("x", "1"), texts("1", "2")},
                                                         {texts("1", "x"), texts("1", "2")},
                                                         {texts("1", "1"), texts("x", "2")},
                                                         {texts("1", "1"), texts("1", "x")}};
    const Value values[] = {Value::ColumnLoad, Value::ColumnSecondLoad, Value::ColumnArm,
                            Value::ColumnSecondArm};
    for (std::size_t i = 0; i < std::size(values); ++i) {
        const auto failure =
            ferna::testing::errorOf([&] { add(1, 1, typed[i].first, typed[i].second); });
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->value(), TypedValue{values[i]});
    }
}

} // namespace
