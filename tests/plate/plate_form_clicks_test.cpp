#include "plate/forms/Grub_bla.h"
#include "plate/plate_form.h"
#include "runtime/text_file.h"
#include "support/worked_form.h"

#include <QAbstractItemView>
#include <QFile>
#include <QListWidget>
#include <QMessageBox>
#include <QStackedWidget>

using namespace ferna;
using namespace ferna::testing;

namespace {

const QString title = QStringLiteral("Ferna 2005 Pr");

/// The form over the results of a calculation: anchor of 20 mm, 12.34 kN, 3.456 MPa.
class PlateThicknessForm : public WorkedForm {
protected:
    enum Grade { St0S, St3, St4, G18G2, G18G2AV, InnaStal };

    PlateThicknessForm() {
        stan.plyta.Fi_kotwy(3) = 20;
        stan.wyniki.Nr_kotwy_max = 3;
        stan.wyniki.Sila_kotwy_max = -12.34F;
        stan.wyniki.Sigma_b_max = 3.456F;
        for (const char* file :
             {"rysgb1", "rysgb2", "rysgb31", "rysgb32", "rysgb33", "rysgb51", "rysgb52"})
            writeFileWhole(path(QString::fromLatin1(file) + QStringLiteral(".bmp")), file);
    }

    void SetUp() override { open(); }

    void open() {
        hand.reset();
        form = std::make_unique<Grub_bla>(stan, folder.path(), dialogs, nullptr);
        form->show();
        hand = std::make_unique<Hand>(*form);
        hand->activate();
    }

    Integer result(int check) const { return stan.raport.Spr_blachy(check); }
    bool lineShown(int check) const {
        const QString name = QStringLiteral("Label8_%1").arg(check - 1);
        return !form->findChild<QLabel*>(name)->isHidden();
    }
    QString line(int check) const {
        return form->findChild<QLabel*>(QStringLiteral("Label8_%1").arg(check - 1))->text();
    }
    void grade(Grade item) { hand->choose("cmbStalb", item); }

    void tab(int index) {
        auto* const list = hand->the<QListWidget>("lstZakladki");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(index)).center());
        hand->settle();
    }
    int shownTab() const { return hand->the<QStackedWidget>("SSTab1")->currentIndex(); }

    /// Check 1 with a force that needs t mm in St3 (205 MPa), bs = ca = 100 mm.
    void strip(int t) {
        tab(0);
        hand->type("Text1_0", QStringLiteral("100"));
        hand->type("Text2_0", QStringLiteral("100"));
        hand->type("Text3_0",
                   QString::number(t * t / (2.2 * 2.2) * 205 / 1000).replace(u'.', u','));
        hand->click("cmdOblicz1");
    }
    /// A fragment check 3, 5 or 6 on its tab.
    void fragment(int check) {
        const int i = check == 3 ? 1 : check == 5 ? 2 : 3;
        tab(check == 3 ? 7 : check == 5 ? 6 : 5);
        hand->type(name("Text1_%1", i), QStringLiteral("300"));
        hand->type(name("Text2_%1", i + 1), QStringLiteral("200"));
        hand->type(name("Text3_%1", i + 2), QStringLiteral("2"));
        hand->click(check == 3 ? "cmdOblicz31" : check == 5 ? "cmdOblicz32" : "cmdOblicz33");
    }
    const char* name(const char* pattern, int index) {
        name_ = QString::fromLatin1(pattern).arg(index).toLatin1();
        return name_.constData();
    }
    void refuse(const char16_t* text) { answers.box(title, QString::fromUtf16(text)); }
    QByteArray saved(const QString& file) const {
        return QFile::exists(path(file)) ? readFileWhole(path(file)) : QByteArray("none");
    }

    std::unique_ptr<Grub_bla> form;
    std::unique_ptr<Hand> hand;

private:
    QByteArray name_;
};

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

TEST_F(PlateThicknessForm, TheListIsLeftBeforeTheCommandThatEnterGives) {
    grade(St3);
    fragment(3);
    strip(20);
    grade(G18G2); // 295 MPa
    hand->key(Qt::Key_Return);
    EXPECT_EQ(result(3), 0);
    EXPECT_EQ(result(1), 17); // 20 * sqrt(205 / 295)
    EXPECT_TRUE(lineShown(1));
    hand->key(Qt::Key_Tab); // and not once more behind it
    EXPECT_EQ(result(1), 17);
}

TEST_F(PlateThicknessForm, TheListIsLeftBeforeTheCommandThatAMnemonicGives) {
    grade(St3);
    strip(20);
    grade(St3);
    hand->key(Qt::Key_K, Qt::AltModifier); // O&K
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(stan.raport.Liczba_wierszy_blachy, 2); // the results were withdrawn first
    EXPECT_EQ(saved(QStringLiteral("Szkic1.bmp")), "none");
}

TEST_F(PlateThicknessForm, TheListIsLeftBeforeTheCommandThatIsClicked) {
    grade(St3);
    fragment(3);
    tab(0);
    grade(St3);
    hand->click("cmdOblicz1");
    EXPECT_EQ(result(3), 0);
    EXPECT_GT(result(1), 0);
    EXPECT_TRUE(lineShown(1));
}

TEST_F(PlateThicknessForm, OpeningTheListAndChoosingInItHasNotLeftIt) {
    grade(St3);
    strip(20);
    auto* const list = hand->the<QComboBox>("cmbStalb");
    QTest::mouseClick(list, Qt::LeftButton, {}, {10, list->height() / 2});
    QWidget* const opened = QApplication::activePopupWidget();
    ASSERT_NE(opened, nullptr);
    QTest::qWait(50);
    QTest::keyClick(list->view(), Qt::Key_End); // "inna stal" would ask for the steel
    QTest::keyClick(list->view(), Qt::Key_Return);
    QTest::qWait(50);
    EXPECT_EQ(list->currentIndex(), InnaStal);
    QTest::keyClick(list, Qt::Key_Home);
    QTest::qWait(50);
    EXPECT_EQ(result(1), 20);
    EXPECT_TRUE(lineShown(1));
    hand->key(Qt::Key_Tab);
    EXPECT_EQ(result(1), 0);
}

TEST_F(PlateThicknessForm, TheUsersSteelIsDescribedOnLeavingTheList) {
    grade(St3);
    strip(20);
    grade(InnaStal);
    answers.dialog(QStringLiteral("KGM8b"), [](QWidget& modal) {
        Hand dialog(modal);
        dialog.type("Text1", QStringLiteral("S355"));
        dialog.type("Text2_0", QStringLiteral("315,5"));
        dialog.type("Text2_1", QStringLiteral("40"));
        dialog.click("cmdOK");
    });
    hand->click("Text1_0");
    EXPECT_TRUE(answers.done());
    EXPECT_EQ(result(1), 20) << "the results stay";
    EXPECT_EQ(stan.materialy.Fd_blachy, 315.5F);
    EXPECT_EQ(hand->focused(), QStringLiteral("Text1_0"));
    grade(InnaStal);
    hand->click("cmdOblicz1"); // asks no more
    EXPECT_EQ(result(1), 16);  // 20 * sqrt(205 / 315.5)
}

TEST_F(PlateThicknessForm, ACancelledSteelHasItsMessageAndTheClickIsNotLost) {
    grade(InnaStal);
    answers.dialog(QStringLiteral("KGM8b"), [](QWidget& modal) { Hand(modal).click("cmdCancel"); });
    refuse(u"Musisz okreslić stal dla blachy");
    hand->click("cmdAnuluj");
    EXPECT_TRUE(answers.done());
    EXPECT_FALSE(form->isVisible());
}

TEST_F(PlateThicknessForm, ABlankFieldStopsTheChartChecksAndWhatWasTypedStays) {
    grade(St3);
    tab(2);
    hand->type("Text2_5", QStringLiteral("120"));
    answers.stop(13);
    hand->click("cmdOblicz51");
    EXPECT_TRUE(answers.done());
    EXPECT_EQ(hand->text("Text2_5"), QStringLiteral("120"));
    EXPECT_FALSE(lineShown(7)) << "the face is renewed after the stop";
    EXPECT_EQ(result(7), 0);
    hand->type("Text1_4", QStringLiteral("120"));
    hand->type("Text2_6", QStringLiteral("120"));
    hand->click("cmdOblicz51");
    EXPECT_GT(result(7), 0);
}

TEST_F(PlateThicknessForm, LettersInAFieldHaveAMessageInTheFirstFourChecks) {
    grade(St3);
    hand->type("Text1_0", QStringLiteral("abc"));
    refuse(u"Podany ciąg znaków nie tworzy liczby");
    hand->click("cmdOblicz1");
    EXPECT_EQ(hand->text("Text1_0"), QStringLiteral("abc"));
}

TEST_F(PlateThicknessForm, OkWithoutAThicknessIsRefusedAndTheFormStays) {
    const QString text = QStringLiteral("Musisz sprawdzić chociaż jeden warunek\n"
                                        "i podać przyjętą grubość blachy");
    answers.box(title, text);
    hand->click("cmdOK");
    grade(St3);
    strip(20);
    hand->type("Text4", QStringLiteral("0"));
    answers.box(title, text);
    hand->click("cmdOK");
    hand->click("cmdOblicz1"); // the thickness stands again
    hand->click("cmdAnulujto_0");
    answers.box(title, text);
    hand->click("cmdOK");
    EXPECT_TRUE(answers.done());
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(stan.raport.Liczba_wierszy_blachy, 0);
}

TEST_F(PlateThicknessForm, OkWritesTheChecksAndSavesTheirSketches) {
    grade(St3);
    strip(20);
    tab(1);
    hand->type("Text1_5", QStringLiteral("120"));
    hand->type("Text2_8", QStringLiteral("120"));
    hand->type("Text2_7", QStringLiteral("120"));
    hand->click("cmdOblicz52");
    ASSERT_GT(result(8), 0);
    hand->click("cmdOK");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), QDialog::Accepted);
    EXPECT_EQ(stan.raport.Liczba_wierszy_blachy, 12);
    EXPECT_EQ(saved(QStringLiteral("Szkic1.bmp")), "rysgb1");
    EXPECT_EQ(saved(QStringLiteral("Szkic52.bmp")), "rysgb52");
    EXPECT_EQ(saved(QStringLiteral("Szkic2.bmp")), "none");
}

TEST_F(PlateThicknessForm, TheColumnCheckAloneHasNoSketch) {
    grade(St3);
    tab(3);
    hand->choose("cmbProfil", 18);
    hand->click("cmdOblicz4");
    ASSERT_GT(result(4), 0);
    hand->click("cmdOK");
    EXPECT_EQ(stan.raport.Liczba_wierszy_blachy, 6);
    EXPECT_EQ(stan.raport.Wiersze_blachy(4), QStringLiteral("<54>HEB <=300"));
    const QStringList bitmaps{QStringLiteral("Szkic*.bmp")};
    EXPECT_TRUE(QDir(folder.path()).entryList(bitmaps).isEmpty());
}

TEST_F(PlateThicknessForm, AThicknessTypedByHandIsPrintedAsTypedAndEnterMeansOk) {
    grade(St3);
    strip(20);
    grade(G18G2);
    hand->type("Text4", QStringLiteral("12,5"));
    EXPECT_FALSE(lineShown(1));
    hand->key(Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(stan.raport.Liczba_wierszy_blachy, 2);
    EXPECT_EQ(stan.raport.Wiersze_blachy(1), QStringLiteral("<35>12,5 mm<36>18G2,18G2A"));
}

TEST_F(PlateThicknessForm, AThicknessThatIsNoNumberStopsTheOk) {
    grade(St3);
    strip(20);
    hand->type("Text4", QStringLiteral("gruba"));
    answers.stop(13);
    hand->click("cmdOK");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(hand->text("Text4"), QStringLiteral("gruba"));
}

TEST_F(PlateThicknessForm, ASketchThatCannotBeSavedStopsTheOkAndLeavesNoSectionBehind) {
    grade(St3);
    strip(20);
    QFile::remove(path(QStringLiteral("rysgb1.bmp")));
    answers.stop(53);
    hand->click("cmdOK");
    EXPECT_TRUE(form->isVisible());
    hand->click("cmdAnuluj");
    EXPECT_EQ(stan.raport.Liczba_wierszy_blachy, 0);
}

TEST_F(PlateThicknessForm, CancellingLeavesTheReportWithoutASection) {
    grade(St3);
    strip(20);
    hand->click("cmdAnuluj");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), QDialog::Rejected);
    EXPECT_EQ(stan.raport.Liczba_wierszy_blachy, 0);
    EXPECT_EQ(saved(QStringLiteral("Szkic1.bmp")), "none");
}

TEST_F(PlateThicknessForm, EscDoesNotThrowTheChecksAwayAndTheFrameCloses) {
    grade(St3);
    strip(20);
    hand->key(Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(result(1), 20);
    form->close();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(stan.raport.Liczba_wierszy_blachy, 0);
}

TEST_F(PlateThicknessForm, TheChecksFiveToEightOutliveTheForm) {
    grade(St3);
    fragment(5);
    const Integer fifth = result(5);
    ASSERT_GT(fifth, 0);
    hand->click("cmdAnuluj");
    open();
    EXPECT_EQ(result(5), fifth);
    EXPECT_EQ(result(1), 0);
    EXPECT_TRUE(hand->enabled("cmdOblicz4"));
    EXPECT_FALSE(hand->shown("Text4"));
}

} // namespace
