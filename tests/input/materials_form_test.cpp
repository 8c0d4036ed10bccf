#include "input/material_fields.h"
#include "support/main_form.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

class Materials : public MainForm {
protected:
    void chooseRatioTyped() {
        show(Konfiguracja);
        announceRatio("cmdn_0");
        click("Wsp_n_1");
        show(Dane_ogolne);
    }

    /// The next offer of n is answered by a button.
    void announceRatio(const char* button, const QString& computed = {}) {
        answers.dialog(QStringLiteral("FernaPon"), [=](QWidget& modal) {
            EXPECT_EQ(modal.windowTitle(),
                      QStringLiteral("Stosunek współczynników sprężystości n=E/Eb"));
            EXPECT_EQ(modal.focusWidget()->objectName(), QStringLiteral("cmdn_0"));
            if (!computed.isEmpty()) {
                EXPECT_EQ(modal.findChild<QLabel*>(QStringLiteral("Label1"))->text(),
                          QStringLiteral("PN zaleca przyjmowanie współczynnika n = 6\n"
                                         "Dla podanej marki betonu n = ")
                              + computed + QStringLiteral("\nPodaj wartość wspólczynnika"));
                EXPECT_EQ(modal.findChild<QPushButton*>(QStringLiteral("cmdn_1"))->text(),
                          computed);
            }
            press(modal, button);
        });
    }

    static constexpr auto inputTitle = "Stosunek współczynników sztywności";
    static constexpr auto inputPrompt = "Podaj stosunek współczynników sztywności n=E/Eb";
    static constexpr int B20 = 2;
    static constexpr int B25 = 3;
};

TEST_F(Materials, TheSameClassStaysOnTheChangeOfNorm) {
    choose("cmbBeton", B25);
    key(Qt::Key_Tab);
    EXPECT_EQ(stan.opcje.Nr_betonu, 4);
    show(Konfiguracja);
    click("Norma_1");
    EXPECT_EQ(stan.opcje.Nr_betonu, 3);
    EXPECT_EQ(the<QComboBox>("cmbBeton")->currentText(), QStringLiteral("B25"));
    EXPECT_EQ(the<QComboBox>("cmbBeton")->count(), 4);
    click("Norma_1"); // once more changes nothing
    EXPECT_EQ(stan.opcje.Nr_betonu, 3);
    click("Norma_0");
    EXPECT_EQ(stan.opcje.Nr_betonu, 4);
    EXPECT_EQ(the<QComboBox>("cmbBeton")->currentText(), QStringLiteral("B25"));
    EXPECT_EQ(the<QComboBox>("cmbBeton")->count(), 5);
}

TEST_F(Materials, TheFirstClassStaysTheFirstOnTheChangeOfNorm) {
    choose("cmbBeton", 0);
    key(Qt::Key_Tab);
    show(Konfiguracja);
    click("Norma_1");
    EXPECT_EQ(stan.opcje.Nr_betonu, 1);
    click("Norma_0");
    EXPECT_EQ(stan.opcje.Nr_betonu, 1);
}

TEST_F(Materials, TheRatioOfB20IsShownAsSevenFiftyNine) {
    choose("cmbBeton", 0);
    key(Qt::Key_Tab);
    EXPECT_EQ(text("Text2"), QStringLiteral("8,87"));
    choose("cmbBeton", B20);
    key(Qt::Key_Tab);
    EXPECT_EQ(stan.materialy.Eb_betonu, 27000.0F);
    EXPECT_EQ(text("Text2"), QStringLiteral("7,59"));
    EXPECT_EQ(stan.opcje.Wsp_n_val, 7.59F);
}

TEST_F(Materials, AComputedRatioFollowsTheNormToItsOtherModulus) {
    choose("cmbBeton", B20);
    key(Qt::Key_Tab);
    show(Konfiguracja);
    click("Norma_1");
    EXPECT_EQ(stan.materialy.Eb_betonu, 27500.0F);
    EXPECT_EQ(stan.opcje.Wsp_n_val, 7.45F);
    EXPECT_EQ(text("Text2"), QStringLiteral("7,45"));
    click("Norma_0");
    EXPECT_EQ(text("Text2"), QStringLiteral("7,59"));
}

TEST_F(Materials, ATypedRatioStaysOnTheChangeOfNorm) {
    chooseRatioTyped();
    type("Text2", QStringLiteral("6,3"));
    show(Konfiguracja);
    click("Norma_1");
    EXPECT_EQ(text("Text2"), QStringLiteral("6,3"));
    EXPECT_EQ(stan.opcje.Wsp_n_val, 6.0F); // read by the calculation
}

TEST_F(Materials, AComputedRatioIsNotAskedFor) {
    show(Konfiguracja);
    click("Wsp_n_0"); // is in force already: nothing happens
    EXPECT_EQ(stan.opcje.Tryb_wsp_n, 0);
}

TEST_F(Materials, ChoosingATypedRatioAsksOnceAndTheSameOptionAgainDoesNot) {
    show(Konfiguracja);
    announceRatio("cmdn_0", QStringLiteral("7,59"));
    click("Wsp_n_1");
    EXPECT_EQ(stan.opcje.Tryb_wsp_n, 1);
    EXPECT_EQ(stan.opcje.Wsp_n_val, 6.0F);
    EXPECT_EQ(text("Text2"), QStringLiteral("6,"));
    click("Wsp_n_1");
    click("Wsp_n_0");
    EXPECT_EQ(stan.opcje.Tryb_wsp_n, 0);
    EXPECT_EQ(text("Text2"), QStringLiteral("7,59"));
}

TEST_F(Materials, TheMiddleButtonTakesTheComputedRatio) {
    show(Konfiguracja);
    announceRatio("cmdn_1", QStringLiteral("7,59"));
    click("Wsp_n_1");
    EXPECT_EQ(stan.opcje.Wsp_n_val, 7.59F);
    EXPECT_EQ(text("Text2"), QStringLiteral("7,59"));
}

TEST_F(Materials, AnotherRatioIsTypedAndAnEmptyAnswerIsSix) {
    show(Konfiguracja);
    announceRatio("cmdn_2");
    answers.input(QString::fromUtf8(inputTitle), QString::fromUtf8(inputPrompt),
                  QStringLiteral("7,59"), QStringLiteral("6,85"));
    click("Wsp_n_1");
    EXPECT_EQ(stan.opcje.Wsp_n_val, 6.85F);
    EXPECT_EQ(text("Text2"), QStringLiteral("6,85"));
    click("Wsp_n_0");
    announceRatio("cmdn_2");
    answers.cancelInput(QString::fromUtf8(inputTitle));
    click("Wsp_n_1");
    EXPECT_EQ(stan.opcje.Wsp_n_val, 6.0F);
}

TEST_F(Materials, LettersForTheRatioStopAndTheOfferStaysOpen) {
    show(Konfiguracja);
    answers.dialog(QStringLiteral("FernaPon"), [](QWidget& modal) {
        press(modal, "cmdn_2");
        EXPECT_TRUE(modal.isVisible());
        press(modal, "cmdn_1");
    });
    answers.input(QString::fromUtf8(inputTitle), QString::fromUtf8(inputPrompt),
                  QStringLiteral("7,59"), QStringLiteral("six"));
    answers.stop(13);
    click("Wsp_n_1");
    EXPECT_EQ(stan.opcje.Wsp_n_val, 7.59F);
}

TEST_F(Materials, ConcreteChosenWithATypedRatioAsksOnLeavingByTab) {
    chooseRatioTyped();
    for (int index : {B20, B25, B25}) { // also where the class stays
        choose("cmbBeton", index);
        announceRatio("cmdn_1");
        key(Qt::Key_Tab);
        EXPECT_TRUE(answers.done());
    }
    EXPECT_EQ(text("Text2"), QStringLiteral("6,83"));
    EXPECT_EQ(focused(), QStringLiteral("Text2"));
}

TEST_F(Materials, ConcreteChosenWithATypedRatioAsksBeforeTheCalculationByTheMnemonic) {
    show(Sruby);
    add("cmdDodaj4", 30, 250, 150);
    chooseRatioTyped();
    choose("cmbBeton", B25);
    announceRatio("cmdn_1");
    key(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(resultsOpened, 1);
    EXPECT_EQ(stan.opcje.Wsp_n_val, 6.83F);
    EXPECT_EQ(stan.materialy.Nazwa_betonu, QStringLiteral("B25"));
}

TEST_F(Materials, ConcreteChosenWithATypedRatioAsksBeforeTheCalculationByEnter) {
    show(Sruby);
    add("cmdDodaj4", 30, 250, 150);
    chooseRatioTyped();
    choose("cmbBeton", 0);
    announceRatio("cmdn_1");
    key(Qt::Key_Return);
    EXPECT_EQ(resultsOpened, 1);
    EXPECT_EQ(stan.opcje.Wsp_n_val, 8.87F);
}

TEST_F(Materials, ConcreteChosenWithATypedRatioAsksBeforeTheCalculationByTheMouse) {
    show(Sruby);
    add("cmdDodaj4", 30, 250, 150);
    chooseRatioTyped();
    choose("cmbBeton", 0);
    announceRatio("cmdn_1");
    click("cmdOblicz");
    EXPECT_EQ(resultsOpened, 1);
    EXPECT_EQ(stan.opcje.Wsp_n_val, 8.87F);
}

TEST_F(Materials, ConcreteChosenWithATypedRatioAsksOnAChangeOfTab) {
    chooseRatioTyped();
    choose("cmbBeton", B25);
    announceRatio("cmdn_1");
    show(Obciazenia_);
    EXPECT_EQ(shownTab(), Obciazenia_);
    EXPECT_EQ(focused(), QStringLiteral("Text6_0"));
    EXPECT_EQ(text("Text2"), QStringLiteral("6,83"));
}

TEST_F(Materials, OpeningTheListDoesNotLeaveIt) {
    chooseRatioTyped();
    auto* const list = the<QComboBox>("cmbBeton");
    list->setFocus();
    list->showPopup();
    QTest::qWait(50);
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
    list->hidePopup();
    settle();
    EXPECT_EQ(focused(), QStringLiteral("cmbBeton"));
    announceRatio("cmdn_0");
    key(Qt::Key_Tab);
}

TEST_F(Materials, TheOfferLeftByEscapeKeepsTheRatio) {
    chooseRatioTyped();
    choose("cmbBeton", B25);
    answers.dialog(QStringLiteral("FernaPon"),
                   [](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Escape); });
    key(Qt::Key_Tab);
    EXPECT_EQ(stan.opcje.Wsp_n_val, 6.0F);
    EXPECT_EQ(text("Text2"), QStringLiteral("6,"));
}

TEST_F(Materials, TheOfferClosedByItsFrameKeepsTheRatioTypedInTheField) {
    chooseRatioTyped();
    type("Text2", QStringLiteral("6,4"));
    choose("cmbBeton", B25);
    answers.closeByFrame(QStringLiteral("FernaPon"));
    key(Qt::Key_Tab);
    EXPECT_EQ(text("Text2"), QStringLiteral("6,4"));
    EXPECT_EQ(stan.materialy.Eb_betonu, 30000.0F);
}

TEST_F(Materials, TheTypedRatioIsWhatTheCalculationTakes) {
    show(Sruby);
    add("cmdDodaj4", 30, 250, 150);
    show(Dane_ogolne);
    type("Text2", QStringLiteral("6."));
    key(Qt::Key_Return);
    EXPECT_EQ(resultsOpened, 1);
    EXPECT_EQ(stan.opcje.Wsp_n_val, 6.0F);
}

TEST_F(Materials, TheSteelIsTakenOnLeavingItsList) {
    choose("cmbStal", 4);
    EXPECT_EQ(stan.opcje.Nr_stali, 2);
    key(Qt::Key_Tab);
    EXPECT_EQ(stan.opcje.Nr_stali, 5);
    QStringList names;
    for (int i = 0; i < the<QComboBox>("cmbStal")->count(); ++i)
        names += the<QComboBox>("cmbStal")->itemText(i);
    EXPECT_EQ(names.join(u'|'),
              QStringLiteral("St0S|St3SX,St3SY,St3S,St3V,St3W|St4VX,St4VY,St4V,St4W|18G2,18G2A|"
                             "18G2AV|50B|inna stal"));
}

TEST_F(Materials, TheSteelOfTheListIsTakenByTheCalculationWithoutLeavingIt) {
    show(Sruby);
    add("cmdDodaj4", 42, 250, 150);
    show(Dane_ogolne);
    choose("cmbStal", 2);
    answers.box(QStringLiteral("Ferna 2005 Pr"),
                QStringLiteral("Norma nie przewiduje takich śrub"));
    key(Qt::Key_Return);
    EXPECT_EQ(stan.opcje.Nr_stali, 3);
}

TEST_F(Materials, AReinforcedFootingIsTakenFromItsOption) {
    show(Sruby);
    add("cmdDodaj4", 30, 250, 150);
    show(Dane_ogolne);
    click("Option1_1");
    key(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(stan.opcje.Stopa_betonowa, 1);
    EXPECT_EQ(stan.materialy.Rb_betonu, 11.5F);
}

TEST_F(Materials, TheChosenSteelAndConcreteAreReadWhole) {
    for (const char* name : {"cmbStal", "cmbBeton"}) {
        auto* const list = the<QComboBox>(name);
        int longest = 0;
        for (int i = 0; i < list->count(); ++i)
            longest = qMax(longest, list->fontMetrics().horizontalAdvance(list->itemText(i)));
        const int arrow = 24;
        EXPECT_GE(list->width(), longest + arrow) << name << list->sizeHint().width();
    }
}

} // namespace
