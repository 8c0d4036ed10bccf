// The form of the plate thickness: its tabs, fields and results.
#include "plate/plate_thickness_form.h"

#include <QMessageBox>

using namespace ferna;
using namespace ferna::testing;

namespace {

TEST_F(PlateThicknessForm, OpensWithTheResultsOfTheWorstCase) {
    EXPECT_EQ(hand->text("Text1_0"), QStringLiteral("120"));
    EXPECT_EQ(hand->text("Text2_0"), QStringLiteral("60"));
    EXPECT_EQ(hand->text("Text2_1"), QStringLiteral("120"));
    for (const char* force : {"Text3_0", "Text3_6", "Text3_7"})
        EXPECT_EQ(hand->text(force), QStringLiteral(" 12,3")) << force;
    for (const char* stress : {"Text3_1", "Text3_2", "Text3_3", "Text3_4", "Text3_5", "Text3_8"})
        EXPECT_EQ(hand->text(stress), QStringLiteral("3,5")) << stress;
    for (const char* zero : {"Text1_1", "Text1_2", "Text1_3", "Text2_2", "Text2_3", "Text2_4"})
        EXPECT_EQ(hand->text(zero), QStringLiteral("0")) << zero;
    for (const char* blank : {"Text1_4", "Text1_5"})
        EXPECT_EQ(hand->text(blank), QStringLiteral(" ")) << blank;
    for (const char* empty : {"Text2_5", "Text2_6", "Text2_7", "Text2_8"})
        EXPECT_EQ(hand->text(empty), QString()) << empty;
}

TEST_F(PlateThicknessForm, ShowsNoThicknessAtFirstAndWaitsForTheGrade) {
    EXPECT_EQ(hand->focused(), QStringLiteral("cmbStalb"));
    EXPECT_EQ(hand->the<QComboBox>("cmbStalb")->currentIndex(), -1);
    EXPECT_EQ(hand->the<QComboBox>("cmbStalb")->count(), 6);
    EXPECT_EQ(hand->the<QComboBox>("cmbProfil")->count(), 25);
    for (const char* hidden : {"Text4", "Label10_0", "Label10_1"})
        EXPECT_FALSE(hand->shown(hidden)) << hidden;
    for (int check = 1; check <= PlateChecks; ++check)
        EXPECT_EQ(lineShown(check), check > 2) << check;
    tab(3);
    EXPECT_EQ(line(4), QStringLiteral("Wymagana ..."));
    refuse(u"Musisz określić gatunek stali");
    hand->click("cmdOblicz4");
}

TEST_F(PlateThicknessForm, TheTabsStandInTheirOrderEachWithItsCommandAndSketch) {
    const char* const sketches[] = {"szkic1",  "szkic2",  "szkic31", "szkic32",
                                    "szkic33", "szkic51", "szkic52"};
    const char* const commands[] = {"cmdOblicz1", "cmdOblicz52", "cmdOblicz51", "cmdOblicz4",
                                    "cmdOblicz2", "cmdOblicz33", "cmdOblicz32", "cmdOblicz31"};
    const char* const firstFields[] = {"Text1_0", "Text1_5", "Text1_4", "cmbProfil",
                                       "Text2_1", "Text1_3", "Text1_2", "Text1_1"};
    auto* const list = hand->the<QListWidget>("lstZakladki");
    ASSERT_EQ(list->count(), PlateChecks);
    EXPECT_EQ(list->item(1)->text(), QStringLiteral("Fragment zamoc. na 2 krawędziach (rozciąg)"));
    for (int i = 0; i < PlateChecks; ++i) {
        const PlateTab& expected = plateTab(i);
        tab(i);
        EXPECT_EQ(shownTab(), i);
        EXPECT_TRUE(hand->shown(commands[i])) << i;
        EXPECT_TRUE(hand->shown(name("cmdAnulujto_%1", expected.check - 1))) << i;
        EXPECT_EQ(hand->focused(), QString::fromLatin1(firstFields[i]));
        if (expected.sketch != 0) {
            const QString sketch = QString::fromLatin1(sketches[expected.sketch - 1]);
            EXPECT_TRUE(hand->shows(name("Picture1_%1", expected.sketch - 1), sketch)) << i;
        }
    }
    EXPECT_FALSE(hand->shows("Picture1_2", QStringLiteral("szkic32")));
}

TEST_F(PlateThicknessForm, TheTabsAreReachedByKeysAndAClickOnTheShownOneGoesToItsFirstField) {
    hand->key(Qt::Key_7, Qt::AltModifier);
    EXPECT_EQ(shownTab(), 6);
    EXPECT_EQ(hand->focused(), QStringLiteral("Text1_2"));
    EXPECT_EQ(hand->the<QListWidget>("lstZakladki")->currentRow(), 6);
    hand->key(Qt::Key_PageDown, Qt::ControlModifier);
    hand->key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(shownTab(), 0);
    hand->key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(shownTab(), 7);
    hand->the("cmdOK")->setFocus();
    tab(7);
    EXPECT_EQ(hand->focused(), QStringLiteral("Text1_1"));
}

TEST_F(PlateThicknessForm, TheTabKeyWalksTheFieldsOfTheShownTabAndTheCommands) {
    const char* const way[] = {"Text1_0",       "Text2_0", "Text3_0",   "cmdOblicz1",
                               "cmdAnulujto_0", "cmdOK",   "cmdAnuluj", "cmbStalb"};
    for (const char* next : way) {
        hand->key(Qt::Key_Tab);
        EXPECT_EQ(hand->focused(), QString::fromLatin1(next));
    }
}

TEST_F(PlateThicknessForm, EveryFieldHasALabelOrAName) {
    QList<QWidget*> fields;
    for (QLineEdit* field : form->findChildren<QLineEdit*>())
        fields += field;
    for (QComboBox* field : form->findChildren<QComboBox*>())
        fields += field;
    for (const QWidget* field : fields) {
        bool named = !field->accessibleName().isEmpty();
        for (const QLabel* one : form->findChildren<QLabel*>())
            named = named || one->buddy() == field;
        EXPECT_TRUE(named) << field->objectName().toStdString();
    }
}

TEST_F(PlateThicknessForm, WithoutAnAnchorInTensionTheForceIsAskedFor) {
    stan.wyniki.Nr_kotwy_max = 0;
    stan.wyniki.Sila_kotwy_max = 0;
    open();
    for (const char* force : {"Text3_0", "Text3_6", "Text3_7"})
        EXPECT_EQ(hand->text(force), QStringLiteral(" 0,0")) << force;
    grade(St3);
    refuse(u"Musisz okreslić szerokość pasa blachy (bs)!"); // there is no diameter to take it from
    hand->click("cmdOblicz1");
    hand->type("Text1_0", QStringLiteral("120"));
    hand->type("Text2_0", QStringLiteral("60"));
    refuse(u"Musisz okreslić siłę w kotwie!");
    hand->click("cmdOblicz1");
    EXPECT_EQ(result(1), 0);
    hand->type("Text3_0", QStringLiteral("50"));
    hand->click("cmdOblicz1");
    EXPECT_GT(result(1), 0);
    EXPECT_EQ(line(1), QStringLiteral("Wymagana grubość blachy (1) = %1 mm").arg(result(1)));
    EXPECT_EQ(hand->text("Text4"), QString::number(result(1)));
    for (const char* there : {"Text4", "Label10_0", "Label10_1"})
        EXPECT_TRUE(hand->shown(there)) << there;
}

TEST_F(PlateThicknessForm, AFragmentCheckShutsTheColumnCheckUntilAllOfThemAreWithdrawn) {
    grade(St3);
    fragment(3);
    EXPECT_GT(result(3), 0);
    EXPECT_FALSE(hand->enabled("cmdOblicz4"));
    fragment(5);
    tab(7);
    hand->click("cmdAnulujto_2");
    EXPECT_FALSE(hand->enabled("cmdOblicz4"));
    EXPECT_FALSE(lineShown(3));
    tab(6);
    hand->click("cmdAnulujto_4");
    EXPECT_TRUE(hand->enabled("cmdOblicz4"));
    tab(3);
    hand->choose("cmbProfil", 2);
    hand->click("cmdOblicz4");
    EXPECT_GT(result(4), 0);
    for (const char* shut : {"cmdOblicz31", "cmdOblicz32", "cmdOblicz33"})
        EXPECT_FALSE(hand->enabled(shut)) << shut;
    hand->click("cmdAnulujto_3");
    EXPECT_TRUE(hand->enabled("cmdOblicz31"));
}

TEST_F(PlateThicknessForm, ATypedThicknessIsRaisedButNotLoweredUntilACheckIsWithdrawn) {
    grade(St3);
    strip(10);
    ASSERT_EQ(result(1), 10);
    hand->type("Text4", QStringLiteral("30"));
    strip(20);
    EXPECT_EQ(result(1), 20);
    EXPECT_EQ(hand->text("Text4"), QStringLiteral("30"));
    strip(35);
    EXPECT_EQ(hand->text("Text4"), QStringLiteral("35"));
    fragment(3);
    ASSERT_GT(result(3), 0);
    ASSERT_LT(result(3), 35);
    hand->type("Text4", QStringLiteral("60"));
    tab(1);
    hand->click("cmdAnulujto_7"); // of a check that was never made
    EXPECT_EQ(hand->text("Text4"), QStringLiteral("35"));
    tab(0);
    hand->click("cmdAnulujto_0");
    EXPECT_EQ(hand->text("Text4"), QString::number(result(3)));
    tab(7);
    hand->click("cmdAnulujto_2");
    EXPECT_FALSE(hand->shown("Text4"));
    EXPECT_FALSE(hand->shown("Label10_0"));
}

TEST_F(PlateThicknessForm, AnotherGradeWithdrawsTheResultsAndKeepsTheThickness) {
    grade(G18G2);
    strip(20);
    const QString thickness = hand->text("Text4");
    ASSERT_NE(thickness, QStringLiteral("0"));
    grade(St0S);
    EXPECT_GT(result(1), 0) << "the list has not been left";
    hand->key(Qt::Key_Tab);
    for (int check = 1; check <= PlateChecks; ++check) {
        EXPECT_EQ(result(check), 0);
        EXPECT_FALSE(lineShown(check)) << check;
    }
    EXPECT_EQ(hand->text("Text4"), thickness);
    EXPECT_TRUE(hand->shown("Text4"));
}

TEST_F(PlateThicknessForm, TheFieldThatATabBringsUpIsTypedOver) {
    tab(4);
    ASSERT_EQ(hand->focused(), QStringLiteral("Text2_1"));
    QTest::keyClicks(form->focusWidget(), QStringLiteral("55"));
    EXPECT_EQ(hand->text("Text2_1"), QStringLiteral("55"));
}

TEST_F(PlateThicknessForm, AnErrorOfAFieldLeadsBackToIt) {
    grade(St3);
    tab(1);
    hand->type("Text1_5", QStringLiteral("200"));
    hand->type("Text2_8", QStringLiteral("a"));
    answers.dialog(QStringLiteral("environmentStop"), [](QWidget& modal) {
        EXPECT_TRUE(static_cast<QMessageBox&>(modal).text().endsWith(
            QStringLiteral("\"a\"\nPole: Położenie kotwy: wymiar a")));
        QTest::keyClick(&modal, Qt::Key_Escape);
    });
    hand->click("cmdOblicz52");
    EXPECT_EQ(hand->focused(), QStringLiteral("Text2_8"));
    EXPECT_EQ(hand->the<QLineEdit>("Text2_8")->selectedText(), QStringLiteral("a"));
}

TEST_F(PlateThicknessForm, TheLineOfARefusedCheckIsHidden) {
    grade(St3);
    fragment(3);
    ASSERT_TRUE(lineShown(3));
    ASSERT_EQ(line(3).left(26), QStringLiteral("Wymagana grubość blachy (3"));
    hand->type("Text3_3", QStringLiteral("0"));
    refuse(u"Musisz okreslić naprężenia pod blachą!");
    hand->click("cmdOblicz31");
    EXPECT_EQ(result(3), 0);
    EXPECT_FALSE(lineShown(3));
    fragment(3);
    EXPECT_TRUE(lineShown(3));
    hand->type("Text1_1", QStringLiteral("100")); // shorter than wide: the two change places
    refuse(u"Długośc fragmentu blachy musi być większa od szerokości!");
    hand->click("cmdOblicz31");
    EXPECT_FALSE(lineShown(3));
}

TEST_F(PlateThicknessForm, AResultIsOutOfDateWhileItsInputsAreOthers) {
    grade(St3);
    strip(20);
    const auto old = [this] { return hand->shown("Label8_0_nieaktualny"); };
    EXPECT_FALSE(old());
    EXPECT_TRUE(hand->enabled("Label8_0"));
    const QString length = hand->text("Text2_0");
    hand->type("Text2_0", QStringLiteral("80"));
    EXPECT_TRUE(old());
    EXPECT_FALSE(hand->enabled("Label8_0")) << "grey";
    EXPECT_EQ(line(1), QStringLiteral("Wymagana grubość blachy (1) = 20 mm"));
    EXPECT_EQ(result(1), 20) << "it stays in the report until it is computed anew or withdrawn";
    hand->type("Text2_0", length);
    EXPECT_FALSE(old());
    hand->type("Text2_0", QStringLiteral("80"));
    hand->click("cmdOblicz1");
    EXPECT_FALSE(old());
    EXPECT_TRUE(hand->enabled("Label8_0"));
    hand->choose("cmbStalb", G18G2);
    EXPECT_TRUE(old()) << "another grade, before its list is left";
    hand->key(Qt::Key_Tab);
    EXPECT_FALSE(lineShown(1));
    EXPECT_FALSE(old()) << "withdrawn";
}

} // namespace
