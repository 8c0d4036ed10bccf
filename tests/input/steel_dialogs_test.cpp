#include "plate/forms/KGM8b.h"
#include "support/main_form.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

const QString title = QStringLiteral("Błąd w opisie stali użytkownika");

QString textOf(QWidget& modal, const char* field) {
    return modal.findChild<QLineEdit*>(QString::fromLatin1(field))->text();
}

/// Presses OK in a dialog that refuses, and looks where the focus went.
void expectRefusal(QWidget& modal, const QString& focused, void (*press)(QWidget&, const char*)) {
    press(modal, "cmdOK");
    EXPECT_TRUE(modal.isVisible());
    EXPECT_EQ(modal.focusWidget()->objectName(), focused);
}

class AnchorSteelDialog : public MainForm {
protected:
    void chooseOwnSteel() {
        choose("cmbStal", 6);
        show(Sruby);
        add("cmdDodaj4", 30, 250, 150);
    }
    void SetUp() override {
        MainForm::SetUp();
        chooseOwnSteel();
    }

    void calculateWith(ModalAnswers::Step step, bool cancelled) {
        answers.dialog(QStringLiteral("KGM8"), std::move(step));
        if (cancelled)
            answers.box(QStringLiteral("Ferna 2005 Pr"),
                        QStringLiteral("Musisz określić stal dla śrub kotwiących"));
        key(Qt::Key_O, Qt::AltModifier);
    }

    void boxFor(const QString& text) { answers.box(title, text); }
};

TEST_F(AnchorSteelDialog, OpensAtEachCalculationWithTheRememberedSteel) {
    for (int time = 1; time <= 2; ++time) {
        calculateWith(
            [](QWidget& modal) {
                EXPECT_EQ(modal.windowTitle(), QStringLiteral("Stal użytkownika (kotwy)"));
                EXPECT_EQ(textOf(modal, "Text1"), QStringLiteral("S355"));
                EXPECT_EQ(textOf(modal, "Text2_0"), QStringLiteral("305"));
                EXPECT_EQ(textOf(modal, "Text2_1"), QStringLiteral("64"));
                EXPECT_EQ(textOf(modal, "Text2_2"), QStringLiteral("490"));
                EXPECT_EQ(textOf(modal, "Text2_3"), QStringLiteral("355"));
                QTest::keyClick(modal.focusWidget(), Qt::Key_Return);
            },
            false);
        EXPECT_EQ(resultsOpened, time);
    }
    EXPECT_EQ(stan.materialy.Fd_kotwy, 305.0F);
    EXPECT_EQ(stan.materialy.Fd2_kotwy, 301.75F);
    EXPECT_EQ(stan.materialy.Fv_kotwy, 220.5F);
}

TEST_F(AnchorSteelDialog, RefusesInOrderAndPutsTheFocusWhereTheFaultIs) {
    const auto step = [](QWidget& modal) {
        retype(modal, "Text1", QStringLiteral(" "));
        QTest::keyClick(modal.focusWidget(), Qt::Key_Backspace);
        retype(modal, "Text2_1", QStringLiteral("8"));
        expectRefusal(modal, QStringLiteral("Text1"), &press);
        retype(modal, "Text1", QStringLiteral("Stal"));
        expectRefusal(modal, QStringLiteral("Text2_1"), &press);
        retype(modal, "Text2_1", QStringLiteral("120"));
        expectRefusal(modal, QStringLiteral("Text2_1"), &press);
        retype(modal, "Text2_1", QStringLiteral("29"));
        expectRefusal(modal, QStringLiteral("Text2_1"), &press);
        retype(modal, "Text2_1", QStringLiteral("30"));
        retype(modal, "Text2_0", QStringLiteral("0"));
        expectRefusal(modal, QStringLiteral("Text1"), &press);
        retype(modal, "Text2_0", QStringLiteral("355")); // fd = Re
        expectRefusal(modal, QStringLiteral("Text2_0"), &press);
        retype(modal, "Text2_0", QStringLiteral("354"));
        retype(modal, "Text2_2", QStringLiteral("354,9")); // Rm < Re
        expectRefusal(modal, QStringLiteral("Text2_0"), &press);
        retype(modal, "Text2_2", QStringLiteral("355")); // Rm = Re passes
        press(modal, "cmdOK");
    };
    answers.dialog(QStringLiteral("KGM8"), step);
    boxFor(QStringLiteral("Podaj nazwę materiału"));
    boxFor(QStringLiteral("Nieoczekiwana max. średnica"));
    boxFor(QStringLiteral("Nieoczekiwana max. średnica"));
    boxFor(QStringLiteral("Conajmniej jedna śruba jest grubsza!"));
    boxFor(QStringLiteral("Musisz wypełnic wszystkie pola"));
    boxFor(QStringLiteral("Nieprawidłowe parametry materiału"));
    boxFor(QStringLiteral("Nieprawidłowe parametry materiału"));
    key(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(resultsOpened, 1);
    EXPECT_EQ(stan.materialy.Stal_nazwa, QStringLiteral("Stal"));
    EXPECT_EQ(stan.materialy.Stal_Rm, 355.0F);
}

TEST_F(AnchorSteelDialog, AConfigurationWithoutReRefusesWhateverIsTyped) {
    setLine(18, " 305           0             490           64           S355");
    start();
    chooseOwnSteel();
    answers.dialog(QStringLiteral("KGM8"), [](QWidget& modal) {
        retype(modal, "Text2_3", QStringLiteral("355"));
        expectRefusal(modal, QStringLiteral("Text1"), &press);
        expectRefusal(modal, QStringLiteral("Text1"), &press);
        press(modal, "cmdCancel");
    });
    boxFor(QStringLiteral("Musisz wypełnic wszystkie pola"));
    boxFor(QStringLiteral("Musisz wypełnic wszystkie pola"));
    answers.box(QStringLiteral("Ferna 2005 Pr"),
                QStringLiteral("Musisz określić stal dla śrub kotwiących"));
    key(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(resultsOpened, 0);
}

TEST_F(AnchorSteelDialog, CancelEscapeAndTheFrameRefuseTheCalculation) {
    calculateWith([](QWidget& modal) { press(modal, "cmdCancel"); }, true);
    calculateWith([](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Escape); }, true);
    calculateWith([](QWidget& modal) { modal.close(); }, true);
    calculateWith(
        [](QWidget& modal) {
            auto* const cancel = modal.findChild<QPushButton*>(QStringLiteral("cmdCancel"));
            cancel->setFocus();
            QTest::keyClick(cancel, Qt::Key_Return); // Enter presses the button with the focus
        },
        true);
    EXPECT_EQ(resultsOpened, 0);
}

TEST_F(AnchorSteelDialog, ASignAloneIsNoNumber) {
    answers.dialog(QStringLiteral("KGM8"), [](QWidget& modal) {
        retype(modal, "Text2_0", QStringLiteral("-"));
        press(modal, "cmdOK");
        EXPECT_TRUE(modal.isVisible());
        press(modal, "cmdCancel");
    });
    boxFor(title);
    answers.box(QStringLiteral("Ferna 2005 Pr"),
                QStringLiteral("Musisz określić stal dla śrub kotwiących"));
    key(Qt::Key_O, Qt::AltModifier);
}

TEST_F(AnchorSteelDialog, OnlyDigitsAndSignsCanBeTypedIntoTheNumbers) {
    calculateWith(
        [](QWidget& modal) {
            for (const char* field : {"Text2_0", "Text2_1", "Text2_2", "Text2_3"}) {
                retype(modal, field, QStringLiteral("0"));
                QTest::keyClick(modal.focusWidget(), Qt::Key_Backspace);
                QTest::keyClicks(modal.focusWidget(), QStringLiteral("a1 2E+3-4.5,6x/*"));
                EXPECT_EQ(textOf(modal, field), QStringLiteral("12+3-4.5,6"));
                QTest::keyClick(modal.focusWidget(), Qt::Key_Backspace);
                EXPECT_EQ(textOf(modal, field), QStringLiteral("12+3-4.5,"));
            }
            retype(modal, "Text1", QStringLiteral("S 355x"));
            EXPECT_EQ(textOf(modal, "Text1"), QStringLiteral("S 355x"));
            press(modal, "cmdCancel");
        },
        true);
}

TEST_F(AnchorSteelDialog, ALetterThatTheFilesCannotHoldIsTold) {
    calculateWith(
        [](QWidget& modal) {
            auto* const note = modal.findChild<QLabel*>(QStringLiteral("lblZnaki"));
            EXPECT_FALSE(note->isVisible());
            auto* const name = modal.findChild<QLineEdit*>(QStringLiteral("Text1"));
            QTest::sendKeyEvent(QTest::Click, name, Qt::Key_unknown, QStringLiteral("Ω"), {});
            EXPECT_TRUE(note->isVisible());
            press(modal, "cmdCancel");
        },
        true);
}

class PlateSteelDialog : public MainForm {
protected:
    /// Shows the dialog of the plate's steel over the main form; true where it was accepted.
    bool ask(ModalAnswers::Step step) {
        answers.dialog(QStringLiteral("KGM8b"), std::move(step));
        KGM8b dialog(stan, dialogs, form.get());
        return dialog.exec() == QDialog::Accepted;
    }
};

TEST_F(PlateSteelDialog, RefusesInOrderAndPutsTheFocusWhereTheFaultIs) {
    answers.dialog(QStringLiteral("KGM8b"), [](QWidget& modal) {
        EXPECT_EQ(modal.windowTitle(), QStringLiteral("Stal użytkownika (blacha)"));
        EXPECT_EQ(textOf(modal, "Text2_0"), QStringLiteral("305"));
        EXPECT_EQ(textOf(modal, "Text2_1"), QStringLiteral("40"));
        retype(modal, "Text1", QStringLiteral("x"));
        QTest::keyClick(modal.focusWidget(), Qt::Key_Backspace);
        expectRefusal(modal, QStringLiteral("Text1"), &press);
        retype(modal, "Text1", QStringLiteral("S235"));
        retype(modal, "Text2_1", QStringLiteral("120"));
        retype(modal, "Text2_0", QStringLiteral("0"));
        expectRefusal(modal, QStringLiteral("Text2_1"), &press);
        retype(modal, "Text2_1", QStringLiteral("119"));
        expectRefusal(modal, QStringLiteral("Text2_0"), &press);
        retype(modal, "Text2_0", QStringLiteral("215"));
        press(modal, "cmdOK");
    });
    answers.box(title, QStringLiteral("Podaj nazwę materiału"));
    answers.box(title, QStringLiteral("Nieoczekiwana max. grubość"));
    answers.box(title, QStringLiteral("Musisz określić fd"));
    KGM8b dialog(stan, dialogs, form.get());
    EXPECT_EQ(dialog.exec(), QDialog::Accepted);
    EXPECT_EQ(stan.materialy.Fd_blachy, 215.0F);
    EXPECT_EQ(stan.materialy.Max_grubosc, 119);
    EXPECT_EQ(stan.materialy.Blacha_uzytkownika, True);
    EXPECT_EQ(stan.materialy.Stal_anulowana, False);
}

TEST_F(PlateSteelDialog, CancelAndEscapeLeaveNoSteel) {
    EXPECT_FALSE(ask([](QWidget& modal) { press(modal, "cmdCancel"); }));
    EXPECT_EQ(stan.materialy.Stal_anulowana, True);
    stan.materialy.Stal_anulowana = False;
    EXPECT_FALSE(ask([](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Escape); }));
    EXPECT_EQ(stan.materialy.Stal_anulowana, True);
}

TEST_F(PlateSteelDialog, OnlyDigitsAndSignsCanBeTypedIntoTheNumbers) {
    EXPECT_FALSE(ask([](QWidget& modal) {
        for (const char* field : {"Text2_0", "Text2_1"}) {
            retype(modal, field, QStringLiteral("1z2"));
            EXPECT_EQ(textOf(modal, field), QStringLiteral("12"));
        }
        press(modal, "cmdCancel");
    }));
}

} // namespace
