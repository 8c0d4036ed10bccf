#include "support/main_form.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

class LoadTable : public MainForm {
protected:
    /// Rows of the load table whose five fields all show; -1 where a row shows only in part.
    int rowsShown() {
        show(Obciazenia_);
        int rows = 0;
        bool end = false;
        for (int r = 0; r < MaxCases; ++r) {
            int fields = 0;
            for (const char* column : {"Text6_%1", "Text7_%1", "Text8_%1", "Text5_%1", "Text10_%1"})
                fields +=
                    form->findChild<QLineEdit*>(QString::fromLatin1(column).arg(r))->isVisible();
            if ((fields != 0 && fields != 5) || (end && fields != 0))
                return -1;
            end = fields == 0;
            rows += fields / 5;
        }
        return rows;
    }

    void addFourAnchors() {
        show(Sruby);
        add("cmdDodaj4", 30, 250, 150);
        show(Dane_ogolne);
    }
};

TEST_F(LoadTable, NineCasesBecomeSixOnLeavingTheFieldAndSixRowsShow) {
    type("Text1", QStringLiteral("9"));
    key(Qt::Key_Tab);
    EXPECT_EQ(text("Text1"), QStringLiteral("6"));
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 6);
    EXPECT_EQ(rowsShown(), 6);
}

TEST_F(LoadTable, NoCasesHideEveryRowAndTheZeroStays) {
    type("Text1", QStringLiteral("0"));
    key(Qt::Key_Tab);
    EXPECT_EQ(text("Text1"), QStringLiteral("0"));
    EXPECT_EQ(rowsShown(), 0);
}

TEST_F(LoadTable, AHiddenRowKeepsItsTexts) {
    type("Text1", QStringLiteral("3"));
    show(Obciazenia_);
    type("Text7_2", QStringLiteral("12,5"));
    show(Dane_ogolne);
    type("Text1", QStringLiteral("1"));
    EXPECT_EQ(rowsShown(), 1);
    EXPECT_EQ(text("Text7_2"), QStringLiteral("12,5"));
    show(Dane_ogolne);
    type("Text1", QStringLiteral("3"));
    EXPECT_EQ(rowsShown(), 3);
    EXPECT_EQ(text("Text7_2"), QStringLiteral("12,5"));
}

TEST_F(LoadTable, TheTableDoesNotMoveWhenRowsAreHidden) {
    type("Text1", QStringLiteral("6"));
    show(Obciazenia_);
    const QPoint before = the("Text6_0")->pos();
    show(Dane_ogolne);
    type("Text1", QStringLiteral("1"));
    show(Obciazenia_);
    EXPECT_EQ(the("Text6_0")->pos(), before);
}

TEST_F(LoadTable, AChangeOfTabTakesTheNumberOfCasesToo) {
    type("Text1", QStringLiteral("4"));
    EXPECT_EQ(rowsShown(), 4);
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 4);
}

TEST_F(LoadTable, LettersInTheNumberOfCasesStopOnceOnLeavingTheField) {
    type("Text1", QStringLiteral("abc"));
    answers.stop(13);
    key(Qt::Key_Tab);
    EXPECT_EQ(text("Text1"), QStringLiteral("abc"));
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 1);
    EXPECT_EQ(focused(), QStringLiteral("Text1"));
    answers.stop(13); // also by the mouse
    QTest::mouseClick(the("Text3"), Qt::LeftButton);
    settle();
    EXPECT_EQ(focused(), QStringLiteral("Text1"));
    typeHere(QStringLiteral("2"));
    key(Qt::Key_Tab);
    EXPECT_EQ(focused(), QStringLiteral("Text3"));
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 2);
}

TEST_F(LoadTable, LettersInTheNumberOfCasesStopOnceOnAChangeOfTabWhichIsAbandoned) {
    type("Text3", QStringLiteral("777"));
    type("Text1", QStringLiteral("abc"));
    answers.stop(13);
    show(Obciazenia_);
    EXPECT_EQ(shownTab(), Dane_ogolne);
    EXPECT_EQ(focused(), QStringLiteral("Text1"));
    answers.stop(13); // and by the keyboard
    key(Qt::Key_4, Qt::AltModifier);
    EXPECT_EQ(shownTab(), Dane_ogolne);
    EXPECT_EQ(text("Text1"), QStringLiteral("abc"));
    EXPECT_EQ(text("Text3"), QStringLiteral("777"));
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 1);
}

TEST_F(LoadTable, LettersInTheNumberOfCasesAbandonTheCalculation) {
    addFourAnchors();
    type("Text1", QStringLiteral("abc"));
    for (int press = 0; press < 2; ++press) { // the second press does not slip through
        answers.stop(13);
        key(Qt::Key_O, Qt::AltModifier);
        EXPECT_EQ(resultsOpened, 0);
        EXPECT_EQ(text("Text1"), QStringLiteral("abc"));
    }
    answers.stop(13);
    click("cmdOblicz");
    EXPECT_EQ(resultsOpened, 0);
    EXPECT_EQ(stan.wyniki.Nr_wiersza, 0);
    EXPECT_EQ(stan.plyta.Liczba_srub, 4);
}

TEST_F(LoadTable, ThreeTypedAndCalculatedByTheMnemonicAreThreeCases) {
    addFourAnchors();
    type("Text1", QStringLiteral("3"));
    key(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(resultsOpened, 1);
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 3);
    EXPECT_EQ(stan.obciazenia.Sila_N(3), 100.0F);
    EXPECT_GT(stan.wyniki.Ostatni_wiersz(3), stan.wyniki.Ostatni_wiersz(2));
}

TEST_F(LoadTable, TwoTypedAndCalculatedByEnterAreTwoCases) {
    addFourAnchors();
    type("Text1", QStringLiteral("2"));
    key(Qt::Key_Return);
    EXPECT_EQ(resultsOpened, 1);
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 2);
}

TEST_F(LoadTable, FourTypedAndCalculatedByTheMouseAreFourCases) {
    addFourAnchors();
    type("Text1", QStringLiteral("4"));
    click("cmdOblicz");
    EXPECT_EQ(resultsOpened, 1);
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 4);
}

TEST_F(LoadTable, LettersInALoadStopTheCalculationAndStay) {
    addFourAnchors();
    show(Obciazenia_);
    type("Text7_0", QStringLiteral("1x"));
    answers.stop(13);
    key(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(resultsOpened, 0);
    EXPECT_EQ(text("Text7_0"), QStringLiteral("1x"));
}

TEST_F(LoadTable, ATensionInTheThirdCaseIsRefusedUnderItsNumber) {
    addFourAnchors();
    type("Text1", QStringLiteral("3"));
    show(Obciazenia_);
    type("Text6_2", QStringLiteral("-5"));
    answers.box(QStringLiteral("Schemat nr 3"),
                QStringLiteral("Program nie wykonuje obliczeń dla zakotwień rozciąganych"));
    key(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(resultsOpened, 0);
    EXPECT_EQ(stan.obciazenia.Sila_N(2), 100.0F);
    EXPECT_EQ(stan.wyniki.Nr_wiersza, 0);
}

TEST_F(LoadTable, WithoutAnchorsTheCalculationIsRefused) {
    answers.box(QStringLiteral("Ferna 2005 Pr"),
                QStringLiteral("Musisz okreslić położenie i średnicę śrub kotwiących"));
    key(Qt::Key_Return);
    EXPECT_EQ(resultsOpened, 0);
}

TEST_F(LoadTable, APlateWiderThanLongIsRefused) {
    addFourAnchors();
    type("Text3", QStringLiteral("400"));
    type("Text4", QStringLiteral("401"));
    answers.box(QStringLiteral("Ferna 2005 Pr"),
                QStringLiteral("Długość płyty musi być większa od szerokości"));
    key(Qt::Key_Return);
    EXPECT_EQ(resultsOpened, 0);
}

TEST_F(LoadTable, TheCalculationSavesThePictureOfThePlate) {
    addFourAnchors();
    click("cmdOblicz");
    const QImage picture(path(QStringLiteral("Ferrob.bmp")));
    ASSERT_FALSE(picture.isNull());
    EXPECT_GE(picture.width(), 70.1 / 25.4 * 300);
}

class Tabs : public MainForm {};

TEST_F(Tabs, TheFocusGoesToTheFirstFieldOfTheTabInFront) {
    for (const auto& [tab, first] :
         {std::pair{Konfiguracja, "txtNaz_proj"}, std::pair{Obciazenia_, "Text6_0"},
          std::pair{Sruby, "cmdDodaj4"}, std::pair{Dane_ogolne, "Text1"}}) {
        show(tab);
        EXPECT_EQ(shownTab(), tab);
        EXPECT_EQ(focused(), QString::fromLatin1(first));
    }
}

TEST_F(Tabs, AClickOnTheTabInFrontGoesBackToItsFirstField) {
    QTest::mouseClick(the("Text4"), Qt::LeftButton);
    EXPECT_EQ(focused(), QStringLiteral("Text4"));
    show(Dane_ogolne);
    EXPECT_EQ(focused(), QStringLiteral("Text1"));
}

TEST_F(Tabs, AltAndItsNumberBringsATabToTheFront) {
    key(Qt::Key_1, Qt::AltModifier);
    EXPECT_EQ(focused(), QStringLiteral("txtNaz_proj"));
    key(Qt::Key_3, Qt::AltModifier);
    EXPECT_EQ(focused(), QStringLiteral("Text6_0"));
    key(Qt::Key_4, Qt::AltModifier);
    EXPECT_EQ(focused(), QStringLiteral("cmdDodaj4"));
    key(Qt::Key_2, Qt::AltModifier);
    EXPECT_EQ(focused(), QStringLiteral("Text1"));
}

TEST_F(Tabs, TheAnchorTabReadsThePlateAnew) {
    type("Text3", QStringLiteral("800"));
    type("Text4", QStringLiteral("600"));
    EXPECT_EQ(stan.plyta.Dlug_plyty_mm, 1200);
    show(Obciazenia_);
    EXPECT_EQ(stan.plyta.Dlug_plyty_mm, 1200);
    show(Sruby);
    EXPECT_EQ(stan.plyta.Dlug_plyty_mm, 800);
    EXPECT_EQ(stan.plyta.Szer_plyty_mm, 600);
}

} // namespace
