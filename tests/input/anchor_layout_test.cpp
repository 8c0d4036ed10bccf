#include "input/anchor_layout.h"
#include "support/decimal_comma.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::errorNumberOf;
using ferna::testing::errorOf;

namespace {

struct AnchorLayout : ::testing::Test {
    Stan stan;
    ScriptedDialogs dialogs;

    void add(Adding way, Integer x, Integer y, Integer fi = 24) {
        addAnchors(stan, way, [=] { return NewAnchor{fi, x, y}; });
    }

    /// The places of all anchors in mm, taken from those in cm.
    std::vector<std::pair<int, int>> places() const {
        std::vector<std::pair<int, int>> result;
        for (int i = 1; i <= stan.plyta.Liczba_srub; ++i)
            result.emplace_back(std::lround(stan.plyta.X_kotwy(i) * 10),
                                std::lround(stan.plyta.Y_kotwy(i) * 10));
        return result;
    }
};

using Places = std::vector<std::pair<int, int>>;

TEST_F(AnchorLayout, OneAnchorStandsAsTyped) {
    add(Adding::One, -255, 130, 16);
    EXPECT_EQ(places(), Places({{-255, 130}}));
    EXPECT_EQ(stan.plyta.X_kotwy(1), -25.5F);
    EXPECT_EQ(stan.plyta.X_kotwy_mm(1), -255);
    EXPECT_EQ(stan.plyta.Fi_kotwy(1), 16);
}

TEST_F(AnchorLayout, APairAboutXStoresTheUpperOneFirst) {
    add(Adding::PairAboutX, -200, -100);
    EXPECT_EQ(places(), Places({{-200, 100}, {-200, -100}}));
}

TEST_F(AnchorLayout, APairAboutYWithANegativeXStandsOnOnePoint) {
    add(Adding::PairAboutY, 100, -50);
    add(Adding::PairAboutY, -100, 50);
    EXPECT_EQ(places(), Places({{100, -50}, {-100, -50}, {100, 50}, {100, 50}}));
}

TEST_F(AnchorLayout, AFourGoesFromTheRightTopToTheLeftBottom) {
    add(Adding::Four, 300, 200);
    EXPECT_EQ(places(), Places({{300, 200}, {-300, 200}, {300, -200}, {-300, -200}}));
    add(Adding::Four, -30, -20);
    EXPECT_EQ(places()[4], std::pair(30, 20));
    EXPECT_EQ(stan.plyta.Liczba_srub, 8);
}

TEST_F(AnchorLayout, TheCountIsRaisedBeforeTheDialogOpens) {
    addAnchors(stan, Adding::Four, [&] {
        EXPECT_EQ(stan.plyta.Liczba_srub, 4);
        return NewAnchor{12, 1, 1};
    });
    EXPECT_EQ(newAnchorCaption(Adding::One), QStringLiteral("Podaj współrzędne śruby"));
    EXPECT_EQ(newAnchorCaption(Adding::PairAboutX),
              QStringLiteral("Podaj współrzędne jednej z 2 śrub"));
    EXPECT_EQ(newAnchorCaption(Adding::PairAboutY),
              QStringLiteral("Podaj współrzędne jednej z 2 śrub"));
    EXPECT_EQ(newAnchorCaption(Adding::Four), QStringLiteral("Podaj współrzędne jednej z 4 śrub"));
}

TEST_F(AnchorLayout, ATwentyFirstAnchorIsAnErrorThatLeavesTheOthers) {
    for (int i = 0; i < 19; ++i)
        add(Adding::One, 1, 1);
    const auto failure = errorOf([&] { add(Adding::PairAboutX, 2, 2); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), error::Subscript);
    EXPECT_FALSE(failure->detail().isEmpty());
    EXPECT_EQ(stan.plyta.Liczba_srub, 19);
    EXPECT_EQ(stan.plyta.X_kotwy_mm(20), 0) << "not even the half of the pair that had room";
    add(Adding::One, 1, 1);
    EXPECT_EQ(stan.plyta.Liczba_srub, 20);
}

TEST_F(AnchorLayout, TheListHasALineForEveryAnchor) {
    add(Adding::One, 400, 300, 20);
    add(Adding::One, -400, -5, 24);
    EXPECT_EQ(stan.raport.Wiersze_srub(1), QStringLiteral("1.   M20  x=400 mm  y=300 mm"));
    EXPECT_EQ(Lista_srub(stan),
              QStringLiteral("1.   M20  x=400 mm  y=300 mm\n2.   M24  x=-400 mm  y=-5 mm\n"));
}

TEST_F(AnchorLayout, ARemovalLeavesTheMillimetresOfTheSlots) {
    add(Adding::One, 100, 10, 16);
    add(Adding::One, 200, 20, 20);
    add(Adding::One, 300, 30, 24);
    dialogs.answers.push_back(QStringLiteral("1"));
    EXPECT_TRUE(removeOneAnchor(stan, dialogs));
    EXPECT_EQ(places(), Places({{200, 20}, {300, 30}}));
    EXPECT_EQ(stan.plyta.Fi_kotwy(1), 20);
    EXPECT_EQ(Lista_srub(stan),
              QStringLiteral("1.   M20  x=100 mm  y=10 mm\n2.   M24  x=200 mm  y=20 mm\n"));
    EXPECT_EQ(dialogs.questions[0].text, QStringLiteral("Podaj numer śruby do usunięcia"));
    EXPECT_EQ(dialogs.questions[0].title, QStringLiteral("Ferna 2005 Pr - Usuwanie"));
}

TEST_F(AnchorLayout, TheLastAnchorIsOfferedForRemoval) {
    add(Adding::PairAboutX, 100, 10);
    EXPECT_TRUE(removeOneAnchor(stan, dialogs)); // Enter
    EXPECT_EQ(places(), Places({{100, 10}}));
}

TEST_F(AnchorLayout, AWrongNumberRemovesNothing) {
    add(Adding::PairAboutX, 100, 10);
    for (const char16_t* answer : {u"0", u"3", u"-1", u"2,6"}) {
        dialogs.messages.clear();
        dialogs.answers.push_back(QString::fromUtf16(answer));
        EXPECT_FALSE(removeOneAnchor(stan, dialogs));
        ASSERT_EQ(dialogs.messages.size(), 1U);
        EXPECT_EQ(dialogs.messages[0].text, QStringLiteral("Nie ma takiej śruby"));
        EXPECT_EQ(dialogs.messages[0].title, QStringLiteral("Ferna 2005 Pr - Usuwanie"));
    }
    dialogs.messages.clear();
    dialogs.answers.push_back(QString()); // cancelled
    EXPECT_FALSE(removeOneAnchor(stan, dialogs));
    EXPECT_TRUE(dialogs.messages.empty());
    dialogs.answers.push_back(QStringLiteral("dwa"));
    EXPECT_EQ(errorNumberOf([&] { removeOneAnchor(stan, dialogs); }), error::TypeMismatch);
    EXPECT_EQ(stan.plyta.Liczba_srub, 2);
}

TEST_F(AnchorLayout, WithoutAnchorsEveryAnswerIsWrong) {
    EXPECT_FALSE(removeOneAnchor(stan, dialogs)); // Enter: the number 0 that is offered
    EXPECT_EQ(dialogs.messages.at(0).text, QStringLiteral("Nie ma takiej śruby"));
}

TEST_F(AnchorLayout, AllAnchorsGoAfterAYes) {
    add(Adding::Four, 100, 10);
    EXPECT_FALSE(removeAllAnchors(stan, dialogs));
    EXPECT_EQ(stan.plyta.Liczba_srub, 4);
    dialogs.answers.push_back(QStringLiteral("tak"));
    EXPECT_TRUE(removeAllAnchors(stan, dialogs));
    EXPECT_EQ(stan.plyta.Liczba_srub, 0);
    EXPECT_EQ(stan.plyta.X_kotwy(1), 0);
    EXPECT_EQ(stan.plyta.Fi_kotwy(4), 0);
    EXPECT_EQ(Lista_srub(stan), QString());
    EXPECT_EQ(dialogs.questions[0].text,
              QStringLiteral("Czy napewno chcesz usunąć wszystkie śruby?"));
    EXPECT_EQ(dialogs.questions[0].title,
              QStringLiteral("Ferna 2005 Pr - Usuwanie wszystkich śrub"));
}

TEST_F(AnchorLayout, ADiameterChangesForOneOrForAll) {
    add(Adding::PairAboutX, 100, 10, 12);
    dialogs.answers.push_back(QStringLiteral("1"));
    EXPECT_EQ(askForAnchorToChange(stan, dialogs), 1);
    EXPECT_EQ(diameterHeading(stan, 1), QStringLiteral("Śruba nr 1   M12"));
    changeDiameter(stan, 1, 30);
    EXPECT_EQ(stan.plyta.Fi_kotwy(1), 30);
    EXPECT_EQ(stan.plyta.Fi_kotwy(2), 12);
    EXPECT_EQ(allAnchorsToChange(stan, dialogs), allAnchors);
    EXPECT_EQ(diameterHeading(stan, allAnchors), QStringLiteral("Podaj nową średnicę śrub:"));
    changeDiameter(stan, allAnchors, 36);
    EXPECT_EQ(stan.plyta.Fi_kotwy(1), 36);
    EXPECT_EQ(stan.plyta.Fi_kotwy(2), 36);
    EXPECT_EQ(stan.plyta.Fi_kotwy(3), 0);
}

TEST_F(AnchorLayout, TheDiameterOfAnchorZeroChangesNothingVisible) {
    add(Adding::One, 100, 10, 12);
    const QString list = Lista_srub(stan);
    dialogs.answers.push_back(QStringLiteral("0"));
    EXPECT_EQ(askForAnchorToChange(stan, dialogs), 0);
    changeDiameter(stan, 0, 80);
    EXPECT_EQ(Lista_srub(stan), list);
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(AnchorLayout, AWrongNumberChangesNoDiameter) {
    for (const char16_t* answer : {u"-1", u"1"}) {
        dialogs.messages.clear();
        dialogs.answers.push_back(QString::fromUtf16(answer));
        EXPECT_EQ(askForAnchorToChange(stan, dialogs), std::nullopt);
        EXPECT_EQ(dialogs.messages.at(0).text, QStringLiteral("Nie ma takiej śruby"));
        EXPECT_EQ(dialogs.messages.at(0).title, QStringLiteral("Ferna 2005 Pr - Zmiana średnicy"));
    }
    dialogs.messages.clear();
    dialogs.answers.push_back(QString());
    EXPECT_EQ(askForAnchorToChange(stan, dialogs), std::nullopt);
    EXPECT_TRUE(dialogs.messages.empty());
    dialogs.answers.push_back(QStringLiteral("x"));
    EXPECT_EQ(errorNumberOf([&] { askForAnchorToChange(stan, dialogs); }), error::TypeMismatch);
    EXPECT_EQ(allAnchorsToChange(stan, dialogs), std::nullopt);
    EXPECT_EQ(dialogs.messages.at(0).text, QStringLiteral("Nie ma śrub do modyfikacji"));
    EXPECT_EQ(dialogs.messages.at(0).title, QStringLiteral("Ferna 2005 Pr - Zmiana średnic"));
}

} // namespace
