#include "tables/cell_number.h"

#include <gtest/gtest.h>

using namespace ferna::tables;

namespace {

double number(QStringView cell, DecimalSign sign = DecimalSign::Any) {
    const CellNumber found = cellNumber(cell, sign);
    if (const double* value = std::get_if<double>(&found))
        return *value;
    ADD_FAILURE() << "no number: " << cell.toString().toStdString();
    return 0;
}

CellTrouble trouble(QStringView cell, DecimalSign sign = DecimalSign::Any) {
    const CellNumber found = cellNumber(cell, sign);
    if (const CellTrouble* why = std::get_if<CellTrouble>(&found))
        return *why;
    ADD_FAILURE() << "a number: " << cell.toString().toStdString();
    return CellTrouble::Empty;
}

TEST(CellNumber, HasEitherDecimalSign) {
    EXPECT_EQ(number(u"100"), 100);
    EXPECT_EQ(number(u"100,5"), 100.5);
    EXPECT_EQ(number(u"-100.5"), -100.5);
    EXPECT_EQ(number(u"+0,125"), 0.125);
    EXPECT_EQ(number(u",5"), 0.5);
    EXPECT_EQ(number(u"5,"), 5);
    EXPECT_EQ(number(u"1,25E-2"), 0.0125);
    EXPECT_EQ(number(u"\u2212 12,5"), -12.5);
}

TEST(CellNumber, MayGroupItsThousands) {
    EXPECT_EQ(number(u"1 250,75"), 1250.75);
    EXPECT_EQ(number(u"1\u00A0250"), 1250);
    EXPECT_EQ(number(u"12\u202F500\u202F000"), 12500000);
    EXPECT_EQ(number(u"1.250,75"), 1250.75);
    EXPECT_EQ(number(u"-1,250,000.5"), -1250000.5);
    EXPECT_EQ(number(u"1.250.000"), 1250000);
}

TEST(CellNumber, WithSeveralNumbersOrLettersIsNone) {
    for (const QStringView cell :
         {u"10 20", u"1 2500", u"1  250", u"0 250", u"abc", u"100 kN", u"1,2,3", u"--5", u"-", u",",
          u"e5", u"5e", u"1.25.000", u"1.250 000", u"1,250.75.5", u"1 250.75 5"})
        EXPECT_EQ(trouble(cell), CellTrouble::NoNumber) << cell.toString().toStdString();
    EXPECT_EQ(trouble(u"  "), CellTrouble::Empty);
    EXPECT_EQ(trouble(u"1e999"), CellTrouble::TooLarge);
}

TEST(CellNumber, IsAFractionWhereTheTableSaysNothingElse) {
    EXPECT_EQ(number(u"1,250"), 1.25);
    EXPECT_EQ(number(u"1.250"), 1.25);
}

TEST(CellNumber, WithTheOtherSignAndThreeDigitsIsAmbiguousInATable) {
    EXPECT_EQ(trouble(u"10.125", DecimalSign::Comma), CellTrouble::Ambiguous);
    EXPECT_EQ(trouble(u"10,125", DecimalSign::Point), CellTrouble::Ambiguous);
    EXPECT_EQ(number(u"10,125", DecimalSign::Comma), 10.125);
    EXPECT_EQ(number(u"0.125", DecimalSign::Comma), 0.125); // no group begins with 0
    EXPECT_EQ(number(u"10.25", DecimalSign::Comma), 10.25);
}

TEST(CellNumber, ShowsTheDecimalSignOfItsTable) {
    const auto shown = [](QStringView text) { return decimalSignOf(rowsOf(text)); };
    EXPECT_EQ(shown(u"0,5\t1.250"), DecimalSign::Comma);
    EXPECT_EQ(shown(u"1.250,75\t3"), DecimalSign::Comma);
    EXPECT_EQ(shown(u"1.250.000\t3"), DecimalSign::Comma);
    EXPECT_EQ(shown(u"1,250.75\t3"), DecimalSign::Point);
    EXPECT_EQ(shown(u"12.5\t3"), DecimalSign::Point);
    EXPECT_EQ(shown(u"12.5\t3,5"), DecimalSign::Any);
    EXPECT_EQ(shown(u"1,250\t3"), DecimalSign::Any);
    EXPECT_EQ(shown(u"N\tM1\n100\t0"), DecimalSign::Any);
}

TEST(CellNumber, StandsInAFieldWithoutItsGrouping) {
    EXPECT_EQ(fieldText(u" 1 250,75 "), QStringLiteral("1250,75"));
    EXPECT_EQ(fieldText(u"1,250.75"), QStringLiteral("1250.75"));
    EXPECT_EQ(fieldText(u"\u2212100"), QStringLiteral("-100"));
    EXPECT_EQ(fieldText(u"+1.250.000"), QStringLiteral("1250000"));
    EXPECT_EQ(fieldText(u"2,5e3"), QStringLiteral("2,5e3"));
}

TEST(CellNumber, SaysItsTroubleInWords) {
    EXPECT_EQ(troubleText(CellTrouble::Empty, {}),
              QStringLiteral("komórka jest pusta (wpisz 0, jeśli siły nie ma)"));
    EXPECT_EQ(troubleText(CellTrouble::NoNumber, QStringLiteral("abc")),
              QStringLiteral("\"abc\" nie jest liczbą"));
    EXPECT_EQ(troubleText(CellTrouble::TooLarge, QStringLiteral("1e999")),
              QStringLiteral("liczba \"1e999\" jest za duża"));
    EXPECT_EQ(troubleText(CellTrouble::Ambiguous, QStringLiteral("10.125")),
              QStringLiteral("\"10.125\" ma inny znak dziesiętny niż reszta tabeli i może znaczyć "
                             "tysiące"));
}

} // namespace
