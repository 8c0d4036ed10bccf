// What stops a check, and the ends of the form.
#include "plate/plate_thickness_form.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

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
