#include "plate/plate_desk.h"

using namespace ferna;
using ferna::testing::PlateDesk;

namespace {

class PlateSectionOfTheReport : public PlateDesk {
protected:
    QStringList written() {
        section = writePlateSection(stan, form, dialogs);
        QStringList lines;
        for (int i = 0; i <= stan.raport.Liczba_wierszy_blachy; ++i)
            lines += stan.raport.Wiersze_blachy(i);
        return lines;
    }
    QStringList sketchFiles() const {
        QStringList files;
        for (const PlateSketch& sketch : section->sketches)
            files += QString::fromLatin1(sketch.file);
        return files;
    }

    std::optional<PlateSection> section;
};

TEST_F(PlateSectionOfTheReport, WithoutAThicknessTheFormStays) {
    strip(u"100", u"50", u"100");
    compute(1);
    form.fields.Text4 = QStringLiteral("0");
    written();
    EXPECT_FALSE(section);
    EXPECT_EQ(refusal(), QStringLiteral("Musisz sprawdzić chociaż jeden warunek\n"
                                        "i podać przyjętą grubość blachy"));
    EXPECT_EQ(stan.raport.Liczba_wierszy_blachy, 0);
    form.fields.Text4 = QStringLiteral("-5");
    EXPECT_FALSE(writePlateSection(stan, form, dialogs));
    form.fields.Text4 = QStringLiteral("x");
    EXPECT_THROW(writePlateSection(stan, form, dialogs), RunTimeError);
}

TEST_F(PlateSectionOfTheReport, ATypedThicknessAloneGivesTheHeader) {
    leaveGradeList(stan, form, dialogs, steel);
    form.fields.Text4 = QStringLiteral("012,50");
    EXPECT_EQ(written(), (QStringList{QStringLiteral("\r\n"),
                                      QStringLiteral("<35>12,5 mm<36>St3SX,St3SY,St3S,St3V,St3W"),
                                      QStringLiteral("\r\n")}));
    EXPECT_EQ(stan.raport.Liczba_wierszy_blachy, 2);
    ASSERT_TRUE(section);
    EXPECT_TRUE(section->sketches.empty());
}

TEST_F(PlateSectionOfTheReport, TheUsersSteelIsPrintedAlsoAfterAReturnToAListedGrade) {
    form.fields.cmbStalb = 5;
    strip(u"100", u"50", u"100");
    compute(1);
    form.fields.cmbStalb = 1;
    form.Nr_stali_blachy = 2;
    EXPECT_EQ(written().at(1), QStringLiteral("<35>28 mm<36>S355 (fd = 315,5 MPa)"));
    compute(1); // with the strength of the listed grade, which then stands behind the name
    EXPECT_EQ(written().at(1), QStringLiteral("<35>34 mm<36>S355 (fd = 205,0 MPa)"));
}

TEST_F(PlateSectionOfTheReport, TheColumnCheckAloneHasFourLinesAndNoSketch) {
    form.fields.cmbProfil = 18;
    form.fields.check4.sigma = QStringLiteral("1,5");
    compute(4);
    EXPECT_EQ(written().mid(3),
              (QStringList{QStringLiteral("<53><58>"), QStringLiteral("<54>HEB <=300"),
                           QStringLiteral("<43>1,5 MPa"), QStringLiteral("<41>16 mm")}));
    ASSERT_TRUE(section);
    EXPECT_TRUE(section->sketches.empty());
}

TEST_F(PlateSectionOfTheReport, TheSectionEndsOnAnEmptyLineBehindTheLastBlock) {
    strip(u"100,6", u"50,4", u"100");
    compute(1);
    anchorFragment(8, 100, 180, 90, u"50");
    compute(8);
    stan.raport.Wiersze_blachy(13) = QStringLiteral("of an earlier section");
    EXPECT_EQ(written().mid(3),
              (QStringList{QStringLiteral("<37><59>"), QStringLiteral("<38>100 kN<39>50 mm"),
                           QStringLiteral("<40>101 mm"), QStringLiteral("<41>34 mm"),
                           QStringLiteral("<60>B.3"), QStringLiteral("<65>3<62><59>"),
                           QStringLiteral("<38>50 kN<63>90<64>"),
                           QStringLiteral("<57> (2a x b) 360 x 100 mm"),
                           QStringLiteral("<41>16 mm"), QString()}));
    EXPECT_EQ(stan.raport.Liczba_wierszy_blachy, 12);
    EXPECT_EQ(sketchFiles(),
              (QStringList{QStringLiteral("Szkic1.bmp"), QStringLiteral("Szkic52.bmp")}));
    EXPECT_EQ(section->sketches[0].image, 1);
    EXPECT_EQ(section->sketches[1].image, 7);
}

TEST_F(PlateSectionOfTheReport, FragmentsAreToldByTheNumberOfTheirEdges) {
    form.fields.check2.ca = QStringLiteral("100,5");
    form.fields.check2.sigma_k = QStringLiteral("4,25");
    form.fields.check2.sigma_p = QStringLiteral("6");
    compute(2);
    const std::pair<int, const char16_t*> checks[] = {{3, u"4 "}, {5, u"3 "}, {6, u"2 "}};
    for (const auto& [n, edges] : checks) {
        fragment(n, 300 + n, 200 + n, u"2,5");
        compute(n);
        stan.raport.Spr_blachy(n) = CInt(40 + n);
    }
    const QStringList lines = written();
    EXPECT_EQ(lines.mid(3, 3),
              (QStringList{QStringLiteral("<42><58>"), QStringLiteral("<43>4,25 ...6 MPa"),
                           QStringLiteral("<44>101 mm")}));
    int start = 7;
    for (const auto& [n, edges] : checks) {
        EXPECT_EQ(lines.mid(start, 5),
                  (QStringList{QStringLiteral("<55>") + QString::fromUtf16(edges)
                                   + QStringLiteral("<56>"),
                               QStringLiteral("<58>"), QStringLiteral("<43>2,5 MPa"),
                               QStringLiteral("<57>%1 x %2 mm").arg(300 + n).arg(200 + n),
                               QStringLiteral("<41>%1 mm").arg(40 + n)}));
        start += 5;
    }
    EXPECT_EQ(sketchFiles(),
              (QStringList{QStringLiteral("Szkic2.bmp"), QStringLiteral("Szkic31.bmp"),
                           QStringLiteral("Szkic32.bmp"), QStringLiteral("Szkic33.bmp")}));
}

TEST_F(PlateSectionOfTheReport, AllEightBlocksReachLineForty) {
    for (int n = 1; n <= PlateChecks; ++n)
        stan.raport.Spr_blachy(n) = 10;
    form.fields.Text4 = QStringLiteral("10");
    EXPECT_EQ(written().size(), 41);
    EXPECT_EQ(section->sketches.size(), 7U);
    EXPECT_EQ(stan.raport.Wiersze_blachy(30), QStringLiteral("<60>B.2"));
    EXPECT_EQ(stan.raport.Wiersze_blachy(31), QStringLiteral("<61>3<62><59>"));
}

TEST_F(PlateSectionOfTheReport, TwiceTheDimensionPassesSixteenBits) {
    stan.raport.Spr_blachy(7) = 10;
    form.inputs.check7.a = 16384;
    form.fields.Text4 = QStringLiteral("10");
    try {
        writePlateSection(stan, form, dialogs);
        ADD_FAILURE() << "no error";
    } catch (const RunTimeError& failure) {
        EXPECT_EQ(failure.number(), error::Overflow);
    }
}

} // namespace
