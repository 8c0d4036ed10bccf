#include "design/material_tables.h"
#include "runtime/text_file.h"
#include "selection/forms/Dobor_fer.h"
#include "support/worked_form.h"

#include <QFile>
#include <QTabBar>
#include <QTabWidget>

using namespace ferna;
using namespace ferna::testing;

namespace {

const QString title = QStringLiteral("Ferna 2005 Pr");
const QString prompt = QStringLiteral("Podaj łączną grubość blachy czołowej i podlewki w mm");

class AnchorSelectionForm : public WorkedForm {
protected:
    enum Tab { Fajkowa, Plytkowa };

    AnchorSelectionForm() {
        stan.materialy.Fd_kotwy = 195;
        stan.materialy.Mnoznik_dlugosci = concrete(0, 1).Mnoznik_dlugosci;
        stan.materialy.Wsp_dlugosci = concrete(0, 1).Wsp_dlugosci;
        stan.raport.Liczba_wierszy_kotwy = 5;
        for (const char* file : {"rys3f", "rys2pm", "rys2pd"})
            writeFileWhole(path(QString::fromLatin1(file) + QStringLiteral(".bmp")), file);
    }

    /// Opens the form for the diameter of the most loaded anchor; the thickness is typed.
    void open(Integer d, Integer Nr_stali, const QString& thickness = QStringLiteral("50")) {
        answers.input(title, prompt, {}, thickness);
        openForm(d, Nr_stali);
    }
    void openForm(Integer d, Integer Nr_stali) {
        stan.opcje.Nr_stali = Nr_stali;
        stan.wyniki.Nr_kotwy_max = d > 0 ? 2 : 0;
        if (d > 0) {
            stan.plyta.Fi_kotwy(2) = d;
            stan.plyta.Pole_kotwy(2) = coreArea(d).value_or(0);
        }
        form = std::make_unique<Dobor_fer>(stan, folder.path(), dialogs, nullptr);
        form->show();
        hand = std::make_unique<Hand>(*form);
        hand->activate();
    }

    QTabWidget& tabs() { return *hand->the<QTabWidget>("SSTab1"); }
    int front() { return tabs().currentIndex(); }
    QString caption(Tab tab) { return tabs().tabText(tab); }
    void click(Tab tab) {
        QTest::mouseClick(tabs().tabBar(), Qt::LeftButton, {},
                          tabs().tabBar()->tabRect(tab).center());
        hand->settle();
    }
    QByteArray saved() const {
        const QString file = path(QStringLiteral("Szkick.bmp"));
        return QFile::exists(file) ? readFileWhole(file) : QByteArray("none");
    }

    std::unique_ptr<Dobor_fer> form;
    std::unique_ptr<Hand> hand;
};

TEST_F(AnchorSelectionForm, ShowsBothKindsForTheDiameterAndWaitsOnOk) {
    open(20, 2);
    EXPECT_EQ(hand->label("lblNazwa_0"), QStringLiteral("F-20-1100"));
    EXPECT_EQ(hand->label("lblLo_0"), QStringLiteral("Lo =1005 mm"));
    EXPECT_EQ(hand->label("lblLcalk_0"), QStringLiteral("Lcałk. =  1100 mm"));
    EXPECT_EQ(hand->label("lblNosnosc_0"), QStringLiteral("Nośność:   47,8 kN"));
    EXPECT_EQ(hand->label("lblLh"), QStringLiteral("Lh = 100 mm"));
    EXPECT_EQ(hand->label("lblD"), QStringLiteral("D = 100 mm"));
    EXPECT_EQ(hand->label("lblLd_0"), QStringLiteral("Ld = 55 mm"));
    EXPECT_EQ(hand->label("lbldia_1"), QStringLiteral("d = 20 mm"));
    EXPECT_EQ(hand->label("lblNazwa_1"), QStringLiteral("P-20-650"));
    EXPECT_EQ(hand->label("lblLo_1"), QStringLiteral("Lo =605 mm"));
    EXPECT_EQ(hand->label("lbla"), QStringLiteral("a =100 mm"));
    EXPECT_EQ(hand->label("lblt"), QStringLiteral("t = 20 mm"));
    EXPECT_EQ(hand->focused(), QStringLiteral("cmdOK"));
    EXPECT_TRUE(hand->shows("Picture2", QStringLiteral("rys3f")));
    EXPECT_EQ(stan.raport.Liczba_wierszy_kotwy, 0);
}

TEST_F(AnchorSelectionForm, BothKindsAreReachedByKeysButAKindThatIsNotOfferedIsNot) {
    open(20, 2);
    hand->key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(front(), Plytkowa);
    hand->key(Qt::Key_1, Qt::AltModifier);
    EXPECT_EQ(front(), Fajkowa);
    hand->key(Qt::Key_2, Qt::AltModifier);
    EXPECT_EQ(front(), Plytkowa);
    hand->key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(front(), Fajkowa);
    open(16, 5); // too thin for an anchor with a plate
    hand->key(Qt::Key_2, Qt::AltModifier);
    EXPECT_EQ(front(), Fajkowa);
    hand->key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(front(), Fajkowa);
}

TEST_F(AnchorSelectionForm, AtFortyTwoTheSmallSketchIsShownSavedAndReported) {
    open(42, 5);
    EXPECT_EQ(front(), Plytkowa);
    EXPECT_TRUE(hand->shows("Picture1", QStringLiteral("rys2pm")));
    EXPECT_FALSE(hand->shown("lblL1"));
    EXPECT_EQ(hand->label("lblLcalk_1"), QStringLiteral("Lcałk. =  1100 mm")); // 1055 + 30
    hand->click("cmdOK");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), QDialog::Accepted);
    EXPECT_EQ(stan.raport.Typ_szkicu_kotwy, 2);
    EXPECT_EQ(stan.raport.Liczba_wierszy_kotwy, 8);
    EXPECT_EQ(saved(), "rys2pm");
}

TEST_F(AnchorSelectionForm, AtFortyEightTheLargeSketchComesWithTheRib) {
    open(48, 5);
    EXPECT_TRUE(hand->shows("Picture1", QStringLiteral("rys2pd")));
    EXPECT_TRUE(hand->shown("lblL1"));
    EXPECT_EQ(hand->label("lblL1"), QStringLiteral("L1 = 160 mm"));
    EXPECT_EQ(hand->label("lblLcalk_1"), QStringLiteral("Lcałk. =  1150 mm")); // 1160, no 30
    hand->key(Qt::Key_Return);
    EXPECT_EQ(stan.raport.Typ_szkicu_kotwy, 3);
    EXPECT_EQ(stan.raport.Liczba_wierszy_kotwy, 9);
    EXPECT_EQ(saved(), "rys2pd");
}

TEST_F(AnchorSelectionForm, AThinAnchorIsOfferedHookedOnlyEvenWhereThatIsAdvisedAgainst) {
    open(16, 5);
    EXPECT_EQ(front(), Fajkowa);
    EXPECT_EQ(caption(Fajkowa), QStringLiteral("Ferna fajkowa (nie zalecane)"));
    EXPECT_EQ(caption(Plytkowa), QStringLiteral("Ferna płytkowa"));
    EXPECT_FALSE(tabs().isTabEnabled(Plytkowa));
    click(Plytkowa);
    EXPECT_EQ(front(), Fajkowa);
    hand->click("cmdOK");
    EXPECT_EQ(stan.raport.Typ_szkicu_kotwy, 1);
    EXPECT_EQ(stan.raport.Wiersze_kotwy(1), QStringLiteral("<21>F-16-950"));
    EXPECT_EQ(saved(), "rys2pm") << "the sketch of the plate anchor, whichever tab was in front";
}

TEST_F(AnchorSelectionForm, AKindThatIsAdvisedAgainstCanStillBeConfirmed) {
    open(20, 3);
    EXPECT_EQ(front(), Fajkowa);
    EXPECT_EQ(caption(Plytkowa), QStringLiteral("Ferna płytkowa (nie zalecane)"));
    click(Plytkowa);
    EXPECT_EQ(front(), Plytkowa);
    hand->click("cmdOK");
    EXPECT_EQ(stan.raport.Wiersze_kotwy(1), QStringLiteral("<21>P-20-650"));
    EXPECT_EQ(stan.raport.Typ_szkicu_kotwy, 2);
}

TEST_F(AnchorSelectionForm, TheKindIsChosenByKeysToo) {
    open(20, 3);
    hand->key(Qt::Key_Tab, Qt::ShiftModifier);
    hand->key(Qt::Key_Right);
    EXPECT_EQ(front(), Plytkowa);
    hand->key(Qt::Key_K, Qt::AltModifier); // O&K
    EXPECT_EQ(stan.raport.Wiersze_kotwy(1), QStringLiteral("<21>P-20-650"));
}

TEST_F(AnchorSelectionForm, FromThirtySixOnTheHookedAnchorIsShort) {
    open(36, 2, QStringLiteral("0")); // Int(40 x 8.17) + 80
    EXPECT_EQ(hand->label("lblLo_0"), QStringLiteral("Lo =406 mm"));
}

TEST_F(AnchorSelectionForm, WithoutAnAnchorInTensionEverythingIsZeroAndTheFormOpens) {
    open(0, 2, QStringLiteral("80"));
    EXPECT_EQ(front(), Fajkowa);
    EXPECT_FALSE(tabs().isTabEnabled(Plytkowa));
    EXPECT_EQ(hand->label("lblNazwa_0"), QStringLiteral("F-0-100"));
    EXPECT_EQ(hand->label("lblNosnosc_0"), QStringLiteral("Nośność:   0,0 kN"));
    EXPECT_EQ(hand->label("lblLh"), QStringLiteral("Lh = 0 mm"));
    EXPECT_EQ(hand->label("lblD"), QStringLiteral("D = 0 mm"));
}

TEST_F(AnchorSelectionForm, ANegativeThicknessIsTakenAsItStands) {
    open(20, 2, QStringLiteral("-100"));
    EXPECT_EQ(hand->label("lblLo_0"), QStringLiteral("Lo =855 mm"));
}

TEST_F(AnchorSelectionForm, CancellingTheQuestionDoesNotCancelTheForm) {
    answers.cancelInput(title);
    answers.box(title,
                QStringLiteral("Podany ciąg znaków nie tworzy liczby\nPrzyjęto wartość ZERO."));
    openForm(20, 2);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(hand->label("lblLo_0"), QStringLiteral("Lo =955 mm"));
}

TEST_F(AnchorSelectionForm, AnOverflowIsToldAndTheFormOpensAsFarAsItWasFilled) {
    answers.input(title, prompt, {}, QStringLiteral("32000"));
    answers.box(title, QStringLiteral("6!!!!"));
    openForm(20, 2);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(hand->label("lblLo_0"), QStringLiteral("Lo ="));
    EXPECT_EQ(caption(Plytkowa), QStringLiteral("Ferna płytkowa"));
    EXPECT_TRUE(tabs().isTabEnabled(Plytkowa));
}

TEST_F(AnchorSelectionForm, CancellingKeepsNothing) {
    open(20, 2);
    hand->click("cmdAnuluj");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), QDialog::Rejected);
    EXPECT_EQ(stan.raport.Liczba_wierszy_kotwy, 0);
    EXPECT_EQ(saved(), "none");
}

TEST_F(AnchorSelectionForm, ASketchThatCannotBeSavedStopsTheOkAndLeavesNoSectionBehind) {
    open(20, 2);
    QFile::remove(path(QStringLiteral("rys2pm.bmp")));
    answers.stop(53);
    hand->click("cmdOK");
    EXPECT_TRUE(form->isVisible());
    hand->key(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(stan.raport.Liczba_wierszy_kotwy, 0);
}

} // namespace
