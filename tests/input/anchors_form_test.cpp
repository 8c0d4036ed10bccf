#include "support/main_form.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

class Anchors : public MainForm {
protected:
    void SetUp() override {
        MainForm::SetUp();
        show(Sruby);
    }

    /// "x,y" of an anchor in cm, as the calculation has it.
    QString at(int i) const {
        return general(stan.plyta.X_kotwy(i)) + u';' + general(stan.plyta.Y_kotwy(i));
    }

    void fill(int count) {
        while (stan.plyta.Liczba_srub + 4 <= count)
            add("cmdDodaj4", 20, 300, 200);
        while (stan.plyta.Liczba_srub < count)
            add("cmdDodaj1s", 20, 0, 0);
    }
};

const QString removal = QStringLiteral("Ferna 2005 Pr - Usuwanie");
const QString removalPrompt = QStringLiteral("Podaj numer śruby do usunięcia");
const QString change = QStringLiteral("Ferna 2005 Pr - Zmiana średnicy");
const QString changePrompt = QStringLiteral("Podaj numer śruby do zmiany średnicy");
const QString noSuch = QStringLiteral("Nie ma takiej śruby");

TEST_F(Anchors, OneAnchorIsListedAsItWasTyped) {
    add("cmdDodaj1s", 20, 400, 300);
    EXPECT_EQ(anchorList().join(u'|'), QStringLiteral("1.   M20  x=400 mm  y=300 mm"));
    EXPECT_EQ(stan.raport.Wiersze_srub(1), QStringLiteral("1.   M20  x=400 mm  y=300 mm"));
    EXPECT_EQ(at(1), QStringLiteral("40;30"));
}

TEST_F(Anchors, EveryCommandHasItsCaption) {
    for (const auto& [command, caption] :
         {std::pair{"cmdDodaj1s", "Podaj współrzędne śruby"},
          std::pair{"cmdDodaj2x", "Podaj współrzędne jednej z 2 śrub"},
          std::pair{"cmdDodaj2y", "Podaj współrzędne jednej z 2 śrub"},
          std::pair{"cmdDodaj4", "Podaj współrzędne jednej z 4 śrub"}}) {
        answers.dialog(QStringLiteral("Nowa_Sruba"), [caption = caption](QWidget& modal) {
            EXPECT_EQ(modal.windowTitle(), QString::fromUtf8(caption));
            EXPECT_EQ(modal.focusWidget()->objectName(), QStringLiteral("Text1"));
            chooseDiameter(modal, 12);
            press(modal, "cmdOK");
        });
        click(command);
    }
    EXPECT_EQ(stan.plyta.Liczba_srub, 9);
}

TEST_F(Anchors, APairAboutXStoresTheUpperOneFirstAndXKeepsItsSign) {
    add("cmdDodaj2x", 24, -50, -100);
    EXPECT_EQ(stan.plyta.Liczba_srub, 2);
    EXPECT_EQ(at(1), QStringLiteral("-5;10"));
    EXPECT_EQ(at(2), QStringLiteral("-5;-10"));
}

TEST_F(Anchors, APairAboutYStoresTheRightOneFirst) {
    add("cmdDodaj2y", 24, 100, -40);
    EXPECT_EQ(at(1), QStringLiteral("10;-4"));
    EXPECT_EQ(at(2), QStringLiteral("-10;-4"));
}

TEST_F(Anchors, APairAboutYWithANegativeXStandsAtOnePoint) {
    add("cmdDodaj2y", 24, -100, 70);
    EXPECT_EQ(at(1), QStringLiteral("10;7"));
    EXPECT_EQ(at(2), QStringLiteral("10;7"));
}

TEST_F(Anchors, FourStandRightTopLeftTopRightBottomLeftBottom) {
    add("cmdDodaj4", 24, 300, 200);
    EXPECT_EQ(at(1), QStringLiteral("30;20"));
    EXPECT_EQ(at(2), QStringLiteral("-30;20"));
    EXPECT_EQ(at(3), QStringLiteral("30;-20"));
    EXPECT_EQ(at(4), QStringLiteral("-30;-20"));
    EXPECT_EQ(anchorList().size(), 4);
}

TEST_F(Anchors, FourFromANegativePointStandAlike) {
    add("cmdDodaj4", 24, -300, -200);
    EXPECT_EQ(at(1), QStringLiteral("30;20"));
    EXPECT_EQ(at(4), QStringLiteral("-30;-20"));
}

TEST_F(Anchors, TheDialogOffersThirteenDiametersAndTheLastRunsFirstAnchor) {
    answers.dialog(QStringLiteral("Nowa_Sruba"), [](QWidget& modal) {
        auto* const list = modal.findChild<QComboBox*>(QStringLiteral("cmbFi"));
        EXPECT_EQ(list->count(), 13);
        EXPECT_EQ(list->currentIndex(), -1);
        EXPECT_EQ(list->itemText(0), QStringLiteral("12"));
        EXPECT_EQ(modal.findChild<QLineEdit*>(QStringLiteral("Text1"))->text(),
                  QStringLiteral("400"));
        chooseDiameter(modal, 80);
        press(modal, "cmdOK");
    });
    click("cmdDodaj1s");
    EXPECT_EQ(anchorList().join(u'|'), QStringLiteral("1.   M80  x=400 mm  y=400 mm"));
}

TEST_F(Anchors, TheDialogKeepsDiameterAndTextsForTheNextUse) {
    add("cmdDodaj1s", 36, 111, -222);
    answers.dialog(QStringLiteral("Nowa_Sruba"), [](QWidget& modal) {
        EXPECT_EQ(modal.findChild<QComboBox*>(QStringLiteral("cmbFi"))->currentText(),
                  QStringLiteral("36"));
        EXPECT_EQ(modal.findChild<QLineEdit*>(QStringLiteral("Text1"))->text(),
                  QStringLiteral("111"));
        EXPECT_EQ(modal.findChild<QLineEdit*>(QStringLiteral("Text2"))->text(),
                  QStringLiteral("-222"));
        press(modal, "cmdOK");
    });
    click("cmdDodaj4");
    EXPECT_EQ(stan.plyta.Liczba_srub, 5);
    EXPECT_EQ(stan.plyta.Fi_kotwy(5), 36);
}

TEST_F(Anchors, WithoutADiameterTheDialogStays) {
    answers.dialog(QStringLiteral("Nowa_Sruba"), [](QWidget& modal) {
        press(modal, "cmdOK");
        EXPECT_TRUE(modal.isVisible());
        EXPECT_EQ(modal.focusWidget()->objectName(), QStringLiteral("cmbFi"));
        chooseDiameter(modal, 16);
        press(modal, "cmdOK");
    });
    answers.box(QStringLiteral("Ferna 2005 Pr - Błąd"),
                QStringLiteral("Musisz okreslic średnicę śruby"));
    click("cmdDodaj1s");
    EXPECT_EQ(stan.plyta.Liczba_srub, 1);
}

TEST_F(Anchors, LettersInACoordinateStopAndKeepTheDialogOpen) {
    answers.dialog(QStringLiteral("Nowa_Sruba"), [](QWidget& modal) {
        fillAnchor(modal, 20, QStringLiteral("25o"), QStringLiteral("100"));
        press(modal, "cmdOK");
        ASSERT_TRUE(modal.isVisible());
        EXPECT_EQ(modal.findChild<QLineEdit*>(QStringLiteral("Text1"))->text(),
                  QStringLiteral("25o"));
        retype(modal, "Text1", QStringLiteral("250"));
        press(modal, "cmdOK");
    });
    answers.stop(13);
    click("cmdDodaj1s");
    EXPECT_EQ(anchorList().join(u'|'), QStringLiteral("1.   M20  x=250 mm  y=100 mm"));
}

TEST_F(Anchors, FractionsOfAMillimetreGoToTheNearestEvenOne) {
    announceAnchor(20, QStringLiteral("100,5"), QStringLiteral("101,5"));
    click("cmdDodaj1s");
    EXPECT_EQ(anchorList().join(u'|'), QStringLiteral("1.   M20  x=100 mm  y=102 mm"));
}

TEST_F(Anchors, ClosedByTheFrameTheDialogStoresTheValuesOfItsLastUse) {
    answers.closeByFrame(QStringLiteral("Nowa_Sruba"));
    click("cmdDodaj1s"); // never used: zeros
    EXPECT_EQ(anchorList().join(u'|'), QStringLiteral("1.   M0  x=0 mm  y=0 mm"));
    add("cmdDodaj1s", 30, 250, 150);
    answers.dialog(QStringLiteral("Nowa_Sruba"), [](QWidget& modal) {
        fillAnchor(modal, 42, QStringLiteral("1"), QStringLiteral("2"));
        modal.close();
    });
    click("cmdDodaj2x");
    EXPECT_EQ(stan.plyta.Liczba_srub, 4);
    EXPECT_EQ(anchorList()[2], QStringLiteral("3.   M30  x=250 mm  y=150 mm"));
    EXPECT_EQ(anchorList()[3], QStringLiteral("4.   M30  x=250 mm  y=-150 mm"));
}

TEST_F(Anchors, EscapeDoesNotLeaveTheDialogOfANewAnchor) {
    answers.dialog(QStringLiteral("Nowa_Sruba"), [](QWidget& modal) {
        QTest::keyClick(modal.focusWidget(), Qt::Key_Escape);
        EXPECT_TRUE(modal.isVisible());
        chooseDiameter(modal, 16);
        press(modal, "cmdOK");
    });
    click("cmdDodaj1s");
    EXPECT_EQ(stan.plyta.Liczba_srub, 1);
}

TEST_F(Anchors, TheTwentyFirstStopsAndTheTwentyStayInPlace) {
    fill(20);
    const Plyta_i_kotwy before = stan.plyta;
    const QStringList list = anchorList();
    ASSERT_EQ(list.size(), 20);
    announceAnchor(80, QStringLiteral("7"), QStringLiteral("7"));
    answers.stop(9);
    click("cmdDodaj1s");
    announceAnchor(80, QStringLiteral("7"), QStringLiteral("7"));
    answers.stop(9);
    click("cmdDodaj4");
    EXPECT_EQ(stan.plyta.Liczba_srub, 20);
    EXPECT_EQ(anchorList(), list);
    for (int i = 1; i <= MaxAnchors; ++i) {
        EXPECT_EQ(stan.plyta.X_kotwy(i), before.X_kotwy(i));
        EXPECT_EQ(stan.plyta.Fi_kotwy(i), before.Fi_kotwy(i));
    }
}

TEST_F(Anchors, FourBehindEighteenStopAndTheEighteenStay) {
    fill(18);
    announceAnchor(80, QStringLiteral("7"), QStringLiteral("7"));
    answers.stop(9);
    click("cmdDodaj4");
    EXPECT_EQ(stan.plyta.Liczba_srub, 18);
    EXPECT_EQ(anchorList().size(), 18);
}

TEST_F(Anchors, AnchorsMayCoincideAndLieOffThePlate) {
    add("cmdDodaj1s", 20, 3000, 0);
    add("cmdDodaj1s", 20, 3000, 0);
    EXPECT_EQ(stan.plyta.Liczba_srub, 2);
    EXPECT_EQ(at(1), at(2));
}

TEST_F(Anchors, ARemovalMovesTheCentimetresAndNotTheListedMillimetres) {
    add("cmdDodaj1s", 12, 10, 20);
    add("cmdDodaj1s", 16, 30, 40);
    add("cmdDodaj1s", 20, 50, 60);
    answers.input(removal, removalPrompt, QStringLiteral("3"), QStringLiteral("1"));
    click("cmdUsun1s");
    EXPECT_EQ(stan.plyta.Liczba_srub, 2);
    EXPECT_EQ(at(1), QStringLiteral("3;4"));
    EXPECT_EQ(at(2), QStringLiteral("5;6"));
    EXPECT_EQ(anchorList().join(u'|'),
              QStringLiteral("1.   M16  x=10 mm  y=20 mm|2.   M20  x=30 mm  y=40 mm"));
}

TEST_F(Anchors, AListWithOldCoordinatesIsSaidToHaveThem) {
    const auto* const note = the<QLabel>("lblLista_nieaktualna");
    const auto remove = [this](const QString& last, const QString& number) {
        answers.input(removal, removalPrompt, last, number);
        click("cmdUsun1s");
    };
    add("cmdDodaj1s", 12, 10, 20);
    add("cmdDodaj1s", 16, 301, 40);
    add("cmdDodaj1s", 20, 50, 60);
    EXPECT_FALSE(note->isVisible());
    const QSize before = form->size();
    remove(QStringLiteral("3"), QStringLiteral("1"));
    EXPECT_TRUE(note->isVisible());
    EXPECT_EQ(note->text(),
              QStringLiteral("Po usunięciu lub przesunięciu śruby lista pokazuje dawne "
                             "współrzędne. Obowiązują te z rysunku."));
    EXPECT_EQ(form->size(), before);
    add("cmdDodaj1s", 20, 70, 80);
    EXPECT_TRUE(note->isVisible());
    for (const char* last : {"3", "2", "1"})
        remove(QString::fromLatin1(last), QString::fromLatin1(last));
    EXPECT_FALSE(note->isVisible()) << "nothing is listed";
    add("cmdDodaj1s", 20, 70, 80);
    add("cmdDodaj1s", 20, 75, 80);
    remove(QStringLiteral("2"), QStringLiteral("2"));
    EXPECT_FALSE(note->isVisible()) << "the last one moves nobody";
}

TEST_F(Anchors, ARemovalOffersTheLastAnchor) {
    fill(2);
    answers.dialog(QStringLiteral("inputBox"), [](QWidget& modal) {
        QTest::keyClick(modal.focusWidget(), Qt::Key_Return); // as offered
    });
    click("cmdUsun1s");
    EXPECT_EQ(stan.plyta.Liczba_srub, 1);
}

TEST_F(Anchors, ARemovalOffTheListIsRefused) {
    fill(2);
    for (const QString& answer : {QStringLiteral("0"), QStringLiteral("3"), QStringLiteral("-1")}) {
        answers.input(removal, removalPrompt, QStringLiteral("2"), answer);
        answers.box(removal, noSuch);
        click("cmdUsun1s");
    }
    EXPECT_EQ(stan.plyta.Liczba_srub, 2);
}

TEST_F(Anchors, WithoutAnchorsARemovalOffersZeroAndRefusesAnyNumber) {
    answers.input(removal, removalPrompt, QStringLiteral("0"), QStringLiteral("0"));
    answers.box(removal, noSuch);
    click("cmdUsun1s");
    answers.input(removal, removalPrompt, QStringLiteral("0"), QStringLiteral("1"));
    answers.box(removal, noSuch);
    click("cmdUsun1s");
}

TEST_F(Anchors, AnEmptyAnswerOrACancelEndsTheRemoval) {
    fill(2);
    answers.input(removal, removalPrompt, QStringLiteral("2"), QString());
    click("cmdUsun1s");
    answers.cancelInput(removal);
    click("cmdUsun1s");
    EXPECT_EQ(stan.plyta.Liczba_srub, 2);
}

TEST_F(Anchors, LettersForANumberStopTheCommand) {
    fill(2);
    answers.input(removal, removalPrompt, QStringLiteral("2"), QStringLiteral("two"));
    answers.stop(13);
    click("cmdUsun1s");
    answers.input(change, changePrompt, QStringLiteral("2"), QStringLiteral("two"));
    answers.stop(13);
    click("cmdZmien1fi");
    EXPECT_EQ(stan.plyta.Liczba_srub, 2);
}

TEST_F(Anchors, AllAreRemovedOnlyOnYes) {
    const QString title = QStringLiteral("Ferna 2005 Pr - Usuwanie wszystkich śrub");
    const QString question = QStringLiteral("Czy napewno chcesz usunąć wszystkie śruby?");
    add("cmdDodaj4", 24, 300, 200);
    answers.box(title, question, QStringLiteral("Nie"));
    click("cmdUsunws");
    EXPECT_EQ(stan.plyta.Liczba_srub, 4);
    EXPECT_EQ(anchorList().size(), 4);
    answers.box(title, question, QStringLiteral("Tak"));
    click("cmdUsunws");
    EXPECT_EQ(stan.plyta.Liczba_srub, 0);
    EXPECT_TRUE(anchorList().isEmpty());
    EXPECT_EQ(at(1), QStringLiteral("0;0"));
    EXPECT_EQ(stan.plyta.Fi_kotwy(4), 0);
}

TEST_F(Anchors, TheDiameterOfOneChanges) {
    add("cmdDodaj4", 24, 300, 200);
    answers.input(change, changePrompt, QStringLiteral("4"), QStringLiteral("2"));
    answers.dialog(QStringLiteral("Fernafi"), [](QWidget& modal) {
        EXPECT_EQ(modal.windowTitle(), QStringLiteral("Zmiana średnicy"));
        EXPECT_EQ(modal.findChild<QLabel*>(QStringLiteral("Label1"))->text(),
                  QStringLiteral("Śruba nr 2   M24"));
        auto* const list = modal.findChild<QComboBox*>(QStringLiteral("cmbFi"));
        EXPECT_TRUE(list->hasFocus());
        EXPECT_EQ(list->count(), 12);
        EXPECT_EQ(list->itemText(0), QStringLiteral("16"));
        chooseDiameter(modal, 30);
        QTest::keyClick(list, Qt::Key_Return);
    });
    click("cmdZmien1fi");
    EXPECT_EQ(anchorList()[1], QStringLiteral("2.   M30  x=-300 mm  y=200 mm"));
    EXPECT_EQ(stan.plyta.Fi_kotwy(1), 24);
}

TEST_F(Anchors, TheDiameterOfAnchorZeroIsAcceptedAndChangesNothingListed) {
    add("cmdDodaj4", 24, 300, 200);
    const QStringList before = anchorList();
    answers.input(change, changePrompt, QStringLiteral("4"), QStringLiteral("0"));
    answers.dialog(QStringLiteral("Fernafi"), [](QWidget& modal) {
        chooseDiameter(modal, 80);
        press(modal, "cmdOK");
    });
    click("cmdZmien1fi");
    EXPECT_EQ(anchorList(), before);
    EXPECT_EQ(stan.plyta.Fi_kotwy(0), 80);
}

TEST_F(Anchors, ADiameterOffTheListIsRefused) {
    fill(2);
    for (const QString& answer : {QStringLiteral("-1"), QStringLiteral("3")}) {
        answers.input(change, changePrompt, QStringLiteral("2"), answer);
        answers.box(change, noSuch);
        click("cmdZmien1fi");
    }
    answers.cancelInput(change);
    click("cmdZmien1fi");
}

TEST_F(Anchors, TheDiameterOfAllChanges) {
    answers.box(QStringLiteral("Ferna 2005 Pr - Zmiana średnic"),
                QStringLiteral("Nie ma śrub do modyfikacji"));
    click("cmdZmienwfi");
    add("cmdDodaj4", 24, 300, 200);
    answers.dialog(QStringLiteral("Fernafi"), [](QWidget& modal) {
        EXPECT_EQ(modal.findChild<QLabel*>(QStringLiteral("Label1"))->text(),
                  QStringLiteral("Podaj nową średnicę śrub:"));
        press(modal, "cmdOK"); // none chosen yet
        EXPECT_TRUE(modal.isVisible());
        chooseDiameter(modal, 56);
        press(modal, "cmdOK");
    });
    answers.box(QStringLiteral("Ferna 2005 Pr - Błąd"),
                QStringLiteral("Musisz okreslic średnicę śruby"));
    click("cmdZmienwfi");
    for (const QString& line : anchorList())
        EXPECT_TRUE(line.contains(QStringLiteral("M56"))) << line.toStdString();
}

TEST_F(Anchors, TheDiameterDialogLeftByEscapeChangesNothing) {
    add("cmdDodaj4", 24, 300, 200);
    answers.dialog(QStringLiteral("Fernafi"), [](QWidget& modal) {
        chooseDiameter(modal, 56);
        QTest::keyClick(&modal, Qt::Key_Escape);
    });
    click("cmdZmienwfi");
    EXPECT_EQ(stan.plyta.Fi_kotwy(1), 24);
}

} // namespace
