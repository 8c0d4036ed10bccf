// Where the keyboard is after a dialog or a box has gone.
#include "plate/forms/Grub_bla.h"
#include "statics/statics_desk.h"
#include "support/main_form.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

class FocusOfTheMainForm : public MainForm {};

TEST_F(FocusOfTheMainForm, StaysOnTheCommandOfTheAnchors) {
    show(Sruby);
    add("cmdDodaj4", 30, 250, 150);
    EXPECT_EQ(focused(), QStringLiteral("cmdDodaj4"));
    add("cmdDodaj1s", 30, 0, 0);
    EXPECT_EQ(focused(), QStringLiteral("cmdDodaj1s"));
    for (const char* command : {"cmdUsun1s", "cmdZmien1fi"}) {
        answers.dialog(QStringLiteral("inputBox"), [](QWidget& box) {
            QTest::keyClicks(box.findChild<QLineEdit*>(), QStringLiteral("9"));
            QTest::keyClick(&box, Qt::Key_Return);
        });
        answers.dialog({}, [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
        click(command); // there is no such anchor
        EXPECT_EQ(focused(), QLatin1String(command));
    }
    answers.closeByFrame(QStringLiteral("Fernafi"));
    click("cmdZmienwfi");
    EXPECT_EQ(focused(), QStringLiteral("cmdZmienwfi"));
    answers.dialog({}, [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    click("cmdUsunws");
    EXPECT_EQ(focused(), QStringLiteral("cmdUsunws"));
    EXPECT_EQ(stan.plyta.Liczba_srub, 5);
}

TEST_F(FocusOfTheMainForm, StaysOnTheStaticsAndOnARefusedCalculation) {
    show(Obciazenia_);
    answers.closeByFrame(QStringLiteral("StatykaS"));
    click("cmdStatyka");
    EXPECT_EQ(focused(), QStringLiteral("cmdStatyka"));
    answers.box(programTitle,
                QStringLiteral("Musisz okreslić położenie i średnicę śrub kotwiących"));
    click("cmdOblicz");
    EXPECT_EQ(focused(), QStringLiteral("cmdOblicz"));
    EXPECT_EQ(shownTab(), Obciazenia_);
}

TEST_F(FocusOfTheMainForm, IsOnTheFirstFieldAfterTheResults) {
    show(Sruby);
    form->hide();
    form->show();
    EXPECT_EQ(shownTab(), Dane_ogolne);
    EXPECT_EQ(focused(), QStringLiteral("Text1"));
}

class FocusOfTheStatics : public ColumnStaticsForm {};

TEST_F(FocusOfTheStatics, IsOnTheCommandAfterTheLoad) {
    vertical("12");
    EXPECT_EQ(hand->focused(), QStringLiteral("cmdDodaj"));
    answers.dialog(QStringLiteral("Obciazenie"),
                   [](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Escape); });
    hand->click("cmdDodaj");
    EXPECT_EQ(hand->focused(), QStringLiteral("cmdDodaj"));
}

TEST_F(WorkedForm, TheFocusOfThePlateFormComesBackFromItsBoxes) {
    stan.plyta.Fi_kotwy(1) = 20;
    stan.wyniki.Nr_kotwy_max = 1;
    for (const char* image :
         {"rysgb1", "rysgb2", "rysgb31", "rysgb32", "rysgb33", "rysgb51", "rysgb52"})
        writeFileWhole(path(QString::fromLatin1(image) + QStringLiteral(".bmp")), image);
    Grub_bla form(stan, folder.path(), dialogs, nullptr);
    form.show();
    Hand hand(form);
    hand.activate();
    answers.box(programTitle, QStringLiteral("Musisz określić gatunek stali"));
    hand.click("cmdOblicz1");
    EXPECT_EQ(hand.focused(), QStringLiteral("cmdOblicz1"));
    EXPECT_TRUE(hand.the<QPushButton>("cmdOblicz1")->isDefault());
    hand.choose("cmbStalb", 5);
    answers.dialog(QStringLiteral("KGM8b"),
                   [](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Escape); });
    answers.box(programTitle, QStringLiteral("Musisz okreslić stal dla blachy"));
    hand.key(Qt::Key_Tab);
    EXPECT_NE(hand.focused(), QString());
}

} // namespace
