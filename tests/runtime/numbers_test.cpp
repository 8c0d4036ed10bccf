#include "runtime/indexed_array.h"
#include "runtime/numbers.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

#include <limits>

using namespace ferna;
using ferna::testing::errorNumberOf;

namespace {

TEST(WholeNumbers, RoundToNearestWithTiesToEven) {
    EXPECT_EQ(CInt(0.5), 0);
    EXPECT_EQ(CInt(1.5), 2);
    EXPECT_EQ(CInt(2.5), 2);
    EXPECT_EQ(CInt(-0.5), 0);
    EXPECT_EQ(CInt(-1.5), -2);
    EXPECT_EQ(CInt(-2.5), -2);
    EXPECT_EQ(CInt(2.4999999), 2);
    EXPECT_EQ(CInt(2.5000001), 3);
    EXPECT_EQ(CInt(u"12,5"), 12);
    EXPECT_EQ(CInt(u"13.5"), 14);
}

TEST(WholeNumbers, OverflowBeyondSixteenBits) {
    EXPECT_EQ(CInt(32767.4), 32767);
    EXPECT_EQ(CInt(-32768.5), -32768); // the tie goes to the even number, which still fits
    EXPECT_EQ(errorNumberOf([] { CInt(32767.5); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { CInt(-32768.6); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { CInt(32768); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { CInt(-32769); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { CInt(u"40000"); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { CInt(std::numeric_limits<Double>::quiet_NaN()); }),
              error::Overflow);
}

TEST(WholeNumbers, IntIsTheFloor) {
    EXPECT_EQ(Int(-1.25), -2);
    EXPECT_EQ(Int(1.99), 1);
    EXPECT_EQ(Int(-12.5), -13);
    EXPECT_EQ(Int(3), 3);
}

TEST(Singles, OverflowBeyondTheirRange) {
    EXPECT_EQ(CSng(0.1), 0.1F);
    EXPECT_EQ(errorNumberOf([] { CSng(1e39); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { CSng(-1e39); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { CSng(u"1e39"); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { CSng(std::numeric_limits<Double>::quiet_NaN()); }),
              error::Overflow);
}

TEST(TypedNumbers, CarryACommaOrAPoint) {
    EXPECT_EQ(CDbl(u"1,25"), 1.25);
    EXPECT_EQ(CDbl(u"1.25"), 1.25);
    EXPECT_EQ(CSng(u"0,006"), 0.006F);
    EXPECT_EQ(CDbl(u",5"), 0.5);
    EXPECT_EQ(CDbl(u"5,"), 5);
}

TEST(TypedNumbers, MayHoldBlanksAroundAndAmongTheDigits) {
    EXPECT_EQ(CDbl(u"  1 234,5 "), 1234.5);
    EXPECT_EQ(CDbl(u"- 2,0"), -2);
    EXPECT_EQ(CDbl(u"1\u00a0234"), 1234); // the no-break blank that groups digits
    EXPECT_EQ(CDbl(u"1\u202f234"), 1234);
}

TEST(TypedNumbers, AreEndedByATabOrALineBreak) {
    EXPECT_EQ(CDbl(u"\t12,5\r\n"), 12.5);
    for (const char16_t* two : {u"100\t200", u"100\n200", u"1\r\n2", u"1 \v 2", u"1\u20282"})
        EXPECT_EQ(errorNumberOf([two] { CDbl(QStringView(two)); }), error::TypeMismatch)
            << QString::fromUtf16(two).toStdString();
}

TEST(TypedNumbers, MayCarryASignAndAnExponent) {
    EXPECT_EQ(CDbl(u"+5"), 5);
    EXPECT_EQ(CDbl(u"-5"), -5);
    EXPECT_EQ(CDbl(u"1,5E+03"), 1500);
    EXPECT_EQ(CDbl(u"1e-3"), 0.001);
    EXPECT_EQ(CDbl(u"1e-400"), 0); // too small is none
}

TEST(TypedNumbers, ATextThatIsNoNumberIsATypeMismatch) {
    for (const char16_t* text : {u"",     u"   ", u"abc", u"12a", u"1,2,3", u"1.2,3", u"--1",
                                 u"+-1",  u"++1", u"-",   u"+",   u",",     u"e5",    u"1e",
                                 u"0x10", u"inf", u"nan", u"12-", u"5%",    u"&H10",  u"1 2 kN"})
        EXPECT_EQ(errorNumberOf([text] { CDbl(QStringView(text)); }), error::TypeMismatch)
            << QString::fromUtf16(text).toStdString();
}

/// A text with 350 zeros in its middle.
QString withZeros(const char* before, const char* behind) {
    return QLatin1String(before) + QString(350, u'0') + QLatin1String(behind);
}

TEST(TypedNumbers, ANumberTooSmallToHoldIsZeroHoweverItIsWritten) {
    EXPECT_EQ(CDbl(withZeros("0,", "1")), 0);
    EXPECT_EQ(CDbl(withZeros("-,", "1")), 0);
    EXPECT_EQ(CDbl(u"123456e-400"), 0);
    EXPECT_EQ(CDbl(u"1e-99999999999999999999"), 0);
    EXPECT_EQ(CDbl(u"1e-9223372036854775807"), 0);
    EXPECT_EQ(CDbl(withZeros("0,", "1e20")), 0);
    EXPECT_EQ(CDbl(withZeros("0,", "1e351")), 1);
    EXPECT_EQ(CInt(withZeros("0,", "1")), 0);
}

TEST(TypedNumbers, AHugeNumberWithASmallNegativeExponentIsAnOverflow) {
    EXPECT_EQ(errorNumberOf([] { CDbl(withZeros("1", "e-10")); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { CDbl(withZeros("1", "")); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { CDbl(u"1e99999999999999999999"); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { CDbl(u"1e+99999999999999999999"); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { CDbl(u"1e9223372036854775807"); }), error::Overflow);
    EXPECT_EQ(CDbl(withZeros("1", "e-350")), 1);
}

TEST(TypedNumbers, ANumberBeyondEveryRangeIsAnOverflow) {
    EXPECT_EQ(errorNumberOf([] { CDbl(u"1e400"); }), error::Overflow);
    EXPECT_EQ(errorNumberOf([] { CDbl(u"-1e400"); }), error::Overflow);
}

TEST(TypedNumbers, TheErrorSaysWhatWasTyped) {
    const auto failure = ferna::testing::errorOf([] { CSng(u"12a"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->text(), QStringLiteral("Podany ciąg znaków nie tworzy liczby: \"12a\""));
}

TEST(Division, ByZeroFailsWhateverTheDividend) {
    EXPECT_EQ(errorNumberOf([] { divided(1, 0); }), error::DivisionByZero);
    EXPECT_EQ(errorNumberOf([] { divided(0, 0); }), error::DivisionByZero);
    EXPECT_EQ(errorNumberOf([] { divided(1, -0.0); }), error::DivisionByZero);
    EXPECT_EQ(divided(1, 4), 0.25);
}

TEST(Roots, OfANegativeNumberFail) {
    EXPECT_EQ(errorNumberOf([] { Sqr(-1e-300); }), error::InvalidCall);
    EXPECT_EQ(Sqr(0), 0);
    EXPECT_EQ(Sqr(9), 3);
}

TEST(Arrays, RefuseASubscriptOutsideThem) {
    IndexedArray<int, 3> values;
    values(0) = 1;
    values(3) = 2;
    EXPECT_EQ(errorNumberOf([&] { values(4) = 0; }), error::Subscript);
    EXPECT_EQ(errorNumberOf([&] { values(-1) = 0; }), error::Subscript);
}

TEST(RunTimeErrors, HaveATextInBothLanguagesForEveryNumber) {
    for (const int number : {5, 6, 9, 11, 13, 51, 52, 53, 57, 61, 62, 70, 75, 76, 429, 32755}) {
        EXPECT_NE(errorText(number), errorText(-1)) << number;
        EXPECT_NE(errorTextEnglish(number), errorTextEnglish(-1)) << number;
    }
    EXPECT_FALSE(errorText(12345).isEmpty());
}

TEST(RunTimeErrors, ShowTheDetailBehindTheText) {
    EXPECT_EQ(RunTimeError(11).text(), QStringLiteral("Dzielenie przez zero"));
    EXPECT_EQ(RunTimeError(11, QStringLiteral("x")).text(),
              QStringLiteral("Dzielenie przez zero: x"));
    EXPECT_STREQ(RunTimeError(11).what(), "run-time error 11: Dzielenie przez zero");
}

} // namespace
