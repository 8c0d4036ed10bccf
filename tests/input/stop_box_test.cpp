#include "support/main_form.h"

#include <QMessageBox>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// The box of a run-time error, and where it leads back to.
class StopBox : public MainForm {
protected:
    /// Calculates with a text that is no number and goes back from the box.
    void expectPlace(Tab tab, const char* field, const QString& place) {
        show(tab);
        const QString before = text(field);
        type(field, QStringLiteral("1a"));
        answers.dialog(QStringLiteral("environmentStop"), [&](QWidget& modal) {
            EXPECT_EQ(static_cast<QMessageBox&>(modal).text(),
                      QStringLiteral("Błąd wykonania '13':\nPodany ciąg znaków nie tworzy liczby: "
                                     "\"1a\"\nPole: ")
                          + place);
            QTest::keyClick(&modal, Qt::Key_Escape);
        });
        show(tab == Obciazenia_ ? Konfiguracja : Obciazenia_);
        click("cmdOblicz");
        EXPECT_EQ(shownTab(), tab) << field;
        EXPECT_EQ(focused(), QString::fromLatin1(field));
        EXPECT_EQ(the<QLineEdit>(field)->selectedText(), QStringLiteral("1a"));
        typeHere(before);
    }
};

TEST_F(StopBox, NamesFieldAndCaseAndLeadsBackToTheText) {
    type("Text1", QStringLiteral("6"));
    show(Sruby);
    add("cmdDodaj4", 20, 100, 100);
    expectPlace(Obciazenia_, "Text6_0", QStringLiteral("N [kN], schemat 1 (zakładka Obciążenia)"));
    expectPlace(Obciazenia_, "Text7_1",
                QStringLiteral("M1 [kNm], schemat 2 (zakładka Obciążenia)"));
    expectPlace(Obciazenia_, "Text8_2",
                QStringLiteral("M2 [kNm], schemat 3 (zakładka Obciążenia)"));
    expectPlace(Obciazenia_, "Text5_3", QStringLiteral("Vx [kN], schemat 4 (zakładka Obciążenia)"));
    expectPlace(Obciazenia_, "Text10_5",
                QStringLiteral("Vy [kN], schemat 6 (zakładka Obciążenia)"));
    expectPlace(Dane_ogolne, "Text4",
                QStringLiteral("Szerokość płyty (Ly) mm (zakładka Dane ogólne)"));
    expectPlace(Dane_ogolne, "Text2", QStringLiteral("Es/Eb (zakładka Dane ogólne)"));
    expectPlace(Konfiguracja, "txtNr_strony",
                QStringLiteral("Numer pierwszej strony obliczeń (zakładka Konfiguracja)"));
}

TEST_F(StopBox, NamesTheFieldOfADialog) {
    show(Sruby);
    answers.dialog(QStringLiteral("Nowa_Sruba"), [this](QWidget& modal) {
        fillAnchor(modal, 20, QStringLiteral("100"), QStringLiteral("1,0,0"));
        answers.dialog(QStringLiteral("environmentStop"), [](QWidget& box) {
            EXPECT_TRUE(static_cast<QMessageBox&>(box).text().endsWith(
                QStringLiteral("\"1,0,0\"\nPole: y [mm]")))
                << static_cast<QMessageBox&>(box).text().toStdString();
            QTest::keyClick(&box, Qt::Key_Return);
        });
        press(modal, "cmdOK");
        auto* const field = modal.findChild<QLineEdit*>(QStringLiteral("Text2"));
        EXPECT_EQ(modal.focusWidget(), field);
        EXPECT_EQ(field->selectedText(), QStringLiteral("1,0,0"));
        modal.close();
    });
    click("cmdDodaj1s");
}

TEST_F(StopBox, EscAndEnterNeverEndTheProgram) {
    show(Sruby);
    add("cmdDodaj4", 20, 100, 100);
    show(Obciazenia_);
    for (const Qt::Key answer : {Qt::Key_Escape, Qt::Key_Return}) {
        type("Text6_0", QStringLiteral("x"));
        answers.dialog(QStringLiteral("environmentStop"), [&](QWidget& modal) {
            for (QPushButton* button : modal.findChildren<QPushButton*>())
                if (button->text().contains(QStringLiteral("Zako")))
                    button->setFocus();
            QTest::keyClick(modal.focusWidget(), answer);
        });
        click("cmdOblicz");
        EXPECT_TRUE(form->isVisible());
        EXPECT_EQ(focused(), QStringLiteral("Text6_0"));
    }
}

TEST_F(StopBox, TheEndIsAskedAboutOnceMoreAndNoIsTheDefault) {
    show(Sruby);
    add("cmdDodaj4", 20, 100, 100);
    show(Obciazenia_);
    type("Text6_0", QStringLiteral("x"));
    const auto pressEnd = [](QWidget& modal) {
        for (QPushButton* button : modal.findChildren<QPushButton*>())
            if (button->text().contains(QStringLiteral("Zako")))
                QTest::mouseClick(button, Qt::LeftButton);
    };
    answers.dialog(QStringLiteral("environmentStop"), pressEnd);
    answers.dialog(QStringLiteral("endQuestion"), [](QWidget& modal) {
        EXPECT_EQ(static_cast<QMessageBox&>(modal).text(),
                  QStringLiteral("Zakończyć program bez zapisania konfiguracji?"));
        QTest::keyClick(&modal, Qt::Key_Return);
    });
    answers.dialog(QStringLiteral("environmentStop"), // still there
                   [](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Escape); });
    click("cmdOblicz");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(focused(), QStringLiteral("Text6_0"));
}

} // namespace
