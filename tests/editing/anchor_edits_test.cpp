#include "editing/anchor_edits.h"
#include "input/anchor_layout.h"
#include "support/decimal_comma.h"

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::editing;
using ferna::testing::WithDecimalSign;

namespace {

class AnchorEdits : public ::testing::Test {
protected:
    AnchorEdits() {
        plate.Liczba_srub = 4;
        storeAnchorAt(plate, 1, 250, 150, 30);
        storeAnchorAt(plate, 2, -250, 150, 24);
        storeAnchorAt(plate, 3, 250, -150, 20);
        storeAnchorAt(plate, 4, -250, -150, 16);
    }

    /// The anchors as the calculation takes them: "250 150 M30".
    QStringList computed() const {
        QStringList out;
        for (int i = 1; i <= plate.Liczba_srub; ++i)
            out += QStringLiteral("%1 %2 M%3")
                       .arg(anchorPlace(plate, i).x)
                       .arg(anchorPlace(plate, i).y)
                       .arg(plate.Fi_kotwy(i));
        return out;
    }

    static QStringList list(std::initializer_list<const char*> texts) {
        QStringList out;
        for (const char* text : texts)
            out += QString::fromLatin1(text);
        return out;
    }

    /// Listed elsewhere than they are computed, as the command of removal leaves them.
    void listFalsely() { plate.X_kotwy_mm(3) = plate.Y_kotwy_mm(2) = 7; }

    WithDecimalSign comma{u','};
    Plyta_i_kotwy plate;
};

TEST_F(AnchorEdits, MoveTheChosenOnesByMillimetres) {
    ASSERT_TRUE(moveAnchors(plate, {1, 4}, 10, -1));
    EXPECT_EQ(computed(), list({"260 149 M30", "-250 150 M24", "250 -150 M20", "-240 -151 M16"}));
    EXPECT_EQ(plate.X_kotwy(1), 26.0F);
    EXPECT_EQ(plate.Y_kotwy(1), CSng(14.9));
    EXPECT_TRUE(listIsTrue(plate));
}

TEST_F(AnchorEdits, BackAndForthIsWhereItWasToTheLastBit) {
    const Plyta_i_kotwy before = plate;
    for (int step = 0; step < 333; ++step)
        moveAnchors(plate, {2}, 1, -1);
    for (int step = 0; step < 333; ++step)
        moveAnchors(plate, {2}, -1, 1);
    EXPECT_EQ(plate.X_kotwy(2), before.X_kotwy(2));
    EXPECT_EQ(plate.Y_kotwy(2), before.Y_kotwy(2));
}

TEST_F(AnchorEdits, MoveNothingWhereOneWouldLeaveTheRange) {
    storeAnchorAt(plate, 2, -32767, 0, 24);
    const QStringList before = computed();
    EXPECT_FALSE(moveAnchors(plate, {1, 2}, -1, 0));
    EXPECT_EQ(computed(), before);
    EXPECT_TRUE(moveAnchors(plate, {1, 2}, 1, 0));
    storeAnchorAt(plate, 3, 0, 32767, 24);
    EXPECT_FALSE(moveAnchors(plate, {1, 3}, 0, 1));
    EXPECT_TRUE(moveAnchors(plate, {1, 3}, 0, -1));
}

TEST_F(AnchorEdits, RemoveTheChosenOnesAndTheOthersMoveUpWithTheirMillimetres) {
    removeAnchors(plate, {1, 3});
    EXPECT_EQ(computed(), list({"-250 150 M24", "-250 -150 M16"}));
    EXPECT_EQ(plate.X_kotwy_mm(1), -250.0F);
    EXPECT_EQ(plate.Y_kotwy_mm(2), -150.0F);
    EXPECT_TRUE(listIsTrue(plate));
    removeAnchors(plate, {1, 2});
    EXPECT_EQ(plate.Liczba_srub, 0);
}

TEST_F(AnchorEdits, PutAnAnchorToAPlaceWithADiameter) {
    setAnchor(plate, 3, {12, -34}, 42);
    EXPECT_EQ(computed().at(2), QStringLiteral("12 -34 M42"));
    EXPECT_EQ(plate.X_kotwy_mm(3), 12.0F);
    EXPECT_TRUE(listIsTrue(plate));
}

TEST_F(AnchorEdits, LeaveTheListTrueWhateverWasListedBefore) {
    const QStringList before = computed();
    listFalsely();
    moveAnchors(plate, {1}, 0, 0);
    EXPECT_TRUE(listIsTrue(plate));
    listFalsely();
    setAnchor(plate, 1, {250, 150}, 30);
    EXPECT_TRUE(listIsTrue(plate));
    listFalsely();
    removeAnchors(plate, {4});
    EXPECT_TRUE(listIsTrue(plate));
    EXPECT_EQ(computed(), before.mid(0, 3)) << "the computed places are the true ones";
}

TEST_F(AnchorEdits, LeaveTheListTrueOfAnAnchorThatACalculationHasMoved) {
    plate.X_kotwy(4) = CSng(plate.X_kotwy(4) * 0.995);
    ASSERT_FALSE(listIsTrue(plate));
    moveAnchors(plate, {4}, 1, 0);
    EXPECT_TRUE(listIsTrue(plate));
    EXPECT_EQ(computed().at(3), QStringLiteral("-247.75 -150 M16"));
}

TEST_F(AnchorEdits, TakeCoordinatesInWholeMillimetresWithinTheRange) {
    EXPECT_EQ(typedCoordinate(QStringLiteral(" -1 250 ")).value, -1250);
    EXPECT_EQ(typedCoordinate(QStringLiteral("32767")).refusal, QString());
    EXPECT_EQ(typedCoordinate(QStringLiteral("12,5")).refusal,
              QStringLiteral("Współrzędna jest w całych milimetrach"));
    EXPECT_EQ(typedCoordinate(QStringLiteral("-32768")).refusal,
              QStringLiteral("Współrzędna wykracza poza zakres od -32767 do 32767 mm"));
    EXPECT_EQ(typedCoordinate(QStringLiteral("abc")).refusal,
              QStringLiteral("\"abc\" nie jest liczbą"));
    EXPECT_EQ(typedCoordinate({}).refusal, QStringLiteral("\"\" nie jest liczbą"));
}

TEST_F(AnchorEdits, KnowTheAnchorsThatTheNotesPutInQuestion) {
    Stan stan;
    stan.plyta = plate;
    storeAnchorAt(stan.plyta, 2, 252, 150, 24); // beside the first
    storeAnchorAt(stan.plyta, 3, 295, 0, 20);   // over the edge
    storeAnchorAt(stan.plyta, 4, 0, 0, 0);      // of no diameter
    InputFields fields;
    fields.Text3 = QStringLiteral("600");
    fields.Text4 = QStringLiteral("400");
    const auto doubtful = doubtfulAnchors(notes::entered(stan, fields));
    ASSERT_EQ(doubtful.size(), 3U);
    EXPECT_TRUE(doubtful.at(2).startsWith(QStringLiteral("Kotwy 1 (M30) i 2 (M24) są odległe")));
    EXPECT_TRUE(doubtful.at(3).startsWith(QStringLiteral("Kotwa 3 (M20) w miejscu")));
    EXPECT_TRUE(doubtful.at(4).startsWith(QStringLiteral("Kotwa 4: średnica 0 mm")));
}

} // namespace
