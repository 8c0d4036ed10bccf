// The band of notes of the main form, worked by mouse and keyboard.
#include "support/main_form.h"
#include "widgets/note_band.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

class NotesOfTheMainForm : public MainForm {
protected:
    NoteBand* band() const { return the<NoteBand>("uwagi"); }
    QStringList said() const { return band()->isVisible() ? band()->notes() : QStringList(); }

    /// One case with these loads and four anchors M24 on the delivered plate.
    void enter(const QString& N, const QString& M1, const QString& M2) {
        show(Dane_ogolne);
        type("Text1", QStringLiteral("1"));
        type("Text3", QStringLiteral("600"));
        type("Text4", QStringLiteral("400"));
        show(Obciazenia_);
        loads(0, N, M1, M2);
        show(Sruby);
        add("cmdDodaj4", 24, 250, 150);
    }
    void loads(int row, const QString& N, const QString& M1, const QString& M2) {
        const auto field = [row](const char* name) {
            return QString::fromLatin1(name).arg(row).toStdString();
        };
        type(field("Text6_%1").c_str(), N);
        type(field("Text7_%1").c_str(), M1);
        type(field("Text8_%1").c_str(), M2);
    }
    void clickNote(int number) {
        const auto lines = band()->widget()->findChildren<QLabel*>();
        QTest::mouseClick(lines.at(number), Qt::LeftButton);
        settle();
    }
};

TEST_F(NotesOfTheMainForm, NothingDoubtfulTakesNoRoom) {
    enter(QStringLiteral("300"), QStringLiteral("20"), QStringLiteral("5"));
    EXPECT_FALSE(band()->isVisible()) << band()->notes().join(u'\n').toStdString();
    const QWidget* const tabs = the<QTabWidget>("SSTab1");
    const QWidget* const button = the<QPushButton>("cmdOblicz");
    const int between = button->geometry().top() - tabs->geometry().bottom();
    EXPECT_LE(between, 20) << "only the layout's spacing";
}

TEST_F(NotesOfTheMainForm, ADoubtfulPlateIsToldAtTheKeyAndGoesWithIt) {
    enter(QStringLiteral("300"), QStringLiteral("20"), QStringLiteral("5"));
    show(Dane_ogolne);
    type("Text3", QStringLiteral("490"));
    ASSERT_EQ(said().size(), 4) << "all anchors are off the plate now";
    EXPECT_TRUE(said()[0].startsWith(QStringLiteral("Kotwa 1 (M24) w miejscu (250; 150) mm ")));
    type("Text3", QStringLiteral("600"));
    EXPECT_EQ(said(), QStringList());
}

TEST_F(NotesOfTheMainForm, AClickLeadsToTheAnchorInTheList) {
    enter(QStringLiteral("300"), QStringLiteral("20"), QStringLiteral("5"));
    show(Dane_ogolne);
    type("Text3", QStringLiteral("490"));
    ASSERT_EQ(said().size(), 4);
    clickNote(2);
    EXPECT_EQ(shownTab(), Sruby);
    EXPECT_EQ(focused(), QStringLiteral("Text9"));
    EXPECT_EQ(the<QPlainTextEdit>("Text9")->textCursor().selectedText(), anchorList()[2]);
}

TEST_F(NotesOfTheMainForm, TheKeyboardLeadsThereToo) {
    enter(QStringLiteral("300"), QStringLiteral("20"), QStringLiteral("5"));
    show(Dane_ogolne);
    type("Text3", QStringLiteral("490"));
    the<QPushButton>("cmdOblicz")->setFocus();
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_EQ(focused(), QStringLiteral("uwagi"));
    key(Qt::Key_Down);
    EXPECT_EQ(band()->accessibleDescription(), said()[1]);
    key(Qt::Key_Return);
    EXPECT_EQ(resultsOpened, 0) << "Enter is the note's here, not that of Oblicz";
    EXPECT_EQ(focused(), QStringLiteral("Text9"));
    EXPECT_EQ(the<QPlainTextEdit>("Text9")->textCursor().selectedText(), anchorList()[1]);
}

TEST_F(NotesOfTheMainForm, AfterRefusedTensionTheBandGivesTheExactStresses) {
    enter(QStringLiteral("-50"), QStringLiteral("0"), QStringLiteral("0"));
    EXPECT_EQ(said(), QStringList()) << "nothing is wrong with the base";
    answers.box(QStringLiteral("Schemat nr 1"),
                QStringLiteral("Program nie wykonuje obliczeń dla zakotwień rozciąganych"));
    click("cmdOblicz");
    ASSERT_EQ(said().size(), 1);
    EXPECT_TRUE(
        said()[0].startsWith(QStringLiteral("Przypadek 1: program nie liczy zakotwień rozciąganych "
                                            "(N = -50,0 kN). Dokładna równowaga: ")))
        << said()[0].toStdString();
    show(Dane_ogolne);
    clickNote(0);
    EXPECT_EQ(shownTab(), Obciazenia_);
    EXPECT_EQ(focused(), QStringLiteral("Text6_0"));
    EXPECT_EQ(the<QLineEdit>("Text6_0")->selectedText(), QStringLiteral("-50"));
    typeHere(QStringLiteral("50"));
    EXPECT_EQ(said(), QStringList()) << "another task";
    typeHere(QStringLiteral("-50"));
    EXPECT_EQ(said().size(), 1) << "the one that was refused";
}

TEST_F(NotesOfTheMainForm, WithoutASolutionTheBandGivesEveryCaseAndNamesTheOneThatFailed) {
    show(Konfiguracja);
    click("Norma_1");
    show(Dane_ogolne);
    type("Text1", QStringLiteral("2"));
    type("Text3", QStringLiteral("690"));
    type("Text4", QStringLiteral("330"));
    choose("cmbBeton", 0);
    choose("cmbStal", 5);
    click("Option1_1");
    show(Obciazenia_);
    loads(0, QStringLiteral("35"), QStringLiteral("0"), QStringLiteral("0"));
    loads(1, QStringLiteral("404"), QStringLiteral("805,84"), QStringLiteral("0"));
    show(Sruby);
    add("cmdDodaj1s", 20, 285, 105);
    add("cmdDodaj1s", 20, -285, 105);
    add("cmdDodaj1s", 20, 285, -105);
    add("cmdDodaj1s", 30, -285, -105);
    EXPECT_EQ(said(), QStringList());
    answers.box(QStringLiteral("Ferna 2005 Pr"),
                QStringLiteral("Brak ścisłego rozwiazania!\nRozwiązanie przybliżone."));
    answers.box(QStringLiteral("Ferna 2005 Pr"),
                QStringLiteral("Brak ścisłego rozwiazania!\nRozwiązanie przybliżone."));
    answers.box(QStringLiteral("Ferna 2005 Pr"),
                QStringLiteral("BRAK ROZWIĄZANIA\nZmodyfikuj nieco dane"));
    click("cmdOblicz");
    EXPECT_EQ(resultsOpened, 0);
    ASSERT_GE(said().size(), 2);
    const QStringList ofCases = said().filter(QStringLiteral("Przypadek "));
    ASSERT_EQ(ofCases.size(), 2);
    EXPECT_TRUE(
        ofCases[0].startsWith(QStringLiteral("Przypadek 1: dokładna równowaga: docisk 0,15 MPa ")))
        << ofCases[0].toStdString();
    EXPECT_TRUE(ofCases[0].endsWith(QStringLiteral("Naprężenia te są dopuszczalne.")))
        << ofCases[0].toStdString();
    EXPECT_TRUE(
        ofCases[1].startsWith(QStringLiteral("Przypadek 2: poszukiwanie zakończyło się bez "
                                             "rozwiązania, choć stan równowagi istnieje: ")))
        << ofCases[1].toStdString();
    EXPECT_TRUE(ofCases[1].contains(QStringLiteral("przekroczone.")));
    show(Obciazenia_);
    typeHere(QStringLiteral("36"));
    EXPECT_EQ(said().filter(QStringLiteral("Przypadek ")), QStringList()) << "another task";
}

TEST_F(NotesOfTheMainForm, NoCasesLeadToTheirNumber) {
    enter(QStringLiteral("300"), QStringLiteral("20"), QStringLiteral("5"));
    show(Dane_ogolne);
    type("Text1", QStringLiteral("0"));
    show(Sruby);
    ASSERT_EQ(said().size(), 1);
    EXPECT_TRUE(said()[0].startsWith(QStringLiteral("Liczba schematów obciążenia wynosi 0: ")));
    clickNote(0);
    EXPECT_EQ(focused(), QStringLiteral("Text1"));
}

TEST_F(NotesOfTheMainForm, TheBandIsAPartOfTheFormAtMostAndScrolls) {
    enter(QStringLiteral("300"), QStringLiteral("20"), QStringLiteral("5"));
    for (int i = 0; i < 4; ++i)
        add("cmdDodaj4", 24, 250, 150);
    EXPECT_GT(said().size(), 10);
    EXPECT_LE(band()->height(), form->height() / 4 + 1);
    EXPECT_GT(band()->height(), 30);
    band()->setFocus();
    key(Qt::Key_End);
    EXPECT_EQ(band()->accessibleDescription(), said().last());
    const auto lines = band()->widget()->findChildren<QLabel*>();
    const QRect last(lines.last()->mapTo(band(), QPoint(0, 0)), lines.last()->size());
    EXPECT_TRUE(band()->rect().intersects(last));
}

} // namespace
