// The list of grades, and when it is left.
#include "plate/plate_thickness_form.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

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

} // namespace
