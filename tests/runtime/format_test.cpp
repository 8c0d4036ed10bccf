#include "runtime/format.h"
#include "runtime/run_time_error.h"
#include "support/decimal_comma.h"
#include "support/places.h"
#include "support/printing.h"
#include "support/random_tasks.h"

#include <QFile>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>

using namespace ferna;
using ferna::testing::Dice;
using ferna::testing::typed;
using ferna::testing::WithDecimalSign;

namespace {

class FormatWithComma : public ::testing::Test {
    WithDecimalSign comma_{u','};
};

TEST_F(FormatWithComma, AgreesWithEveryReferenceValue) {
    QFile file(places::golden("/format.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const auto reference = nlohmann::json::parse(file.readAll().toStdString());
    int count = 0;
    for (const auto& vector : reference.at("vectors")) {
        const QString pattern = QString::fromStdString(vector.at("wzor"));
        const double value = vector.at("wartosc");
        const std::string type = vector.at("typ");
        const QString text = type == "S"   ? Format(static_cast<Single>(value), pattern)
                             : type == "D" ? Format(value, pattern)
                                           : Format(static_cast<int>(value), pattern);
        EXPECT_EQ(text, QString::fromStdString(vector.at("tekst")))
            << type << " " << value << " by \"" << pattern.toStdString() << '"';
        ++count;
    }
    EXPECT_GT(count, 300);
}

TEST_F(FormatWithComma, ALiteralBlankStandsWithNoDigitLeftOfIt) {
    EXPECT_EQ(Format(12.34F, u"### ##0.0"), QStringLiteral(" 12,3"));
    EXPECT_EQ(Format(1234.5F, u"### ##0.0"), QStringLiteral("1 234,5"));
    EXPECT_EQ(Format(1234567.0F, u"### ##0.0"), QStringLiteral("1234 567,0"));
}

TEST_F(FormatWithComma, TheDecimalSignAlwaysStands) {
    EXPECT_EQ(Format(9.0F, u"##.#"), QStringLiteral("9,"));
    EXPECT_EQ(Format(0.0F, u"##.#"), QStringLiteral(","));
}

TEST_F(FormatWithComma, TheMinusStandsInFrontOfEverything) {
    EXPECT_EQ(Format(-2.0F, u"### ##0.0"), QStringLiteral("- 2,0"));
    EXPECT_EQ(Format(-12.34F, u"## ##0.0# kN"), QStringLiteral("- 12,34 kN"));
}

TEST_F(FormatWithComma, ANegativeNumberThatRoundsToZeroHasNoSign) {
    EXPECT_EQ(Format(-0.04F, u"#0.0"), QStringLiteral("0,0"));
    EXPECT_EQ(Format(-0.4F, u"######0"), QStringLiteral("0"));
}

TEST_F(FormatWithComma, HalfGoesAwayFromZeroOnTheDecimalDigits) {
    EXPECT_EQ(Format(0.995F, u"#0.0#"), QStringLiteral("1,0")); // 0.99500000477 as seven digits
    EXPECT_EQ(Format(2.675, u"#0.00"), QStringLiteral("2,68")); // 2.67499999999999982 as fifteen
    EXPECT_EQ(Format(-0.25F, u"#0.0"), QStringLiteral("-0,3"));
    EXPECT_EQ(Format(99.95F, u"#0.0"), QStringLiteral("100,0"));
}

TEST_F(FormatWithComma, OnlyTheDigitsOfTheWidthAreSignificant) {
    EXPECT_EQ(Format(12345678.0F, u"####"), QStringLiteral("12345680"));
    EXPECT_EQ(Format(12345678.0, u"####"), QStringLiteral("12345678"));
}

TEST(FormatWithPoint, TakesTheSignOfTheLocale) {
    const WithDecimalSign point(u'.');
    EXPECT_EQ(Format(12.34F, u"#0.0"), QStringLiteral("12.3"));
    EXPECT_EQ(general(0.5F), QStringLiteral("0.5"));
}

TEST_F(FormatWithComma, RecordsForOtherProgramsCarryAPoint) {
    EXPECT_EQ(Format_kropka(85.0F, u"#0.0"), QStringLiteral("85.0"));
    EXPECT_EQ(Format_kropka(9.0, u"##.#"), QStringLiteral("9."));
}

TEST_F(FormatWithComma, TheGeneralFormIsTheShortestThatReadsBack) {
    EXPECT_EQ(general(7.59F), QStringLiteral("7,59"));
    EXPECT_EQ(general(400.0F), QStringLiteral("400"));
    EXPECT_EQ(general(-0.05F), QStringLiteral("-0,05"));
    EXPECT_EQ(general(0.0F), QStringLiteral("0"));
    EXPECT_EQ(general(-0.0), QStringLiteral("0"));
    EXPECT_EQ(general(1e7F), QStringLiteral("1E+07"));
    EXPECT_EQ(general(1e7), QStringLiteral("10000000"));
    EXPECT_EQ(general(1.25e-7F), QStringLiteral("1,25E-07"));
    EXPECT_EQ(general(0.1 + 0.2), QStringLiteral("0,3"));
}

/// What "0.####..." writes of a number from 1e-9 on: all digits of the exact binary value, by the C
/// library, rounded to `count` half away from zero.
QString roundedByHand(Double value, int count) {
    char text[128];
    std::snprintf(text, sizeof text, "%.70e", std::fabs(value));
    std::string digits = text[0] + std::string(text + 2, 70);
    int point = std::atoi(text + 73) + 1;
    const bool up = digits[static_cast<std::size_t>(count)] >= '5';
    digits.resize(static_cast<std::size_t>(count));
    for (auto digit = digits.rbegin(); up && digit != digits.rend(); ++digit) {
        if (*digit != '9') {
            ++*digit;
            break;
        }
        *digit = '0';
        if (digit + 1 == digits.rend()) {
            digits.insert(digits.begin(), '1');
            ++point;
            break;
        }
    }
    if (point <= 0)
        digits.insert(0, static_cast<std::size_t>(1 - point), '0');
    const auto whole = static_cast<std::size_t>(std::max(point, 1));
    digits.resize(std::max(digits.size(), whole), '0');
    std::string fraction = digits.substr(whole);
    fraction.erase(fraction.find_last_not_of('0') + 1);
    return QString::fromStdString((value < 0 ? "-" : "") + digits.substr(0, whole) + ','
                                  + fraction);
}

const QString allDigits = QStringLiteral("0.") + QString(30, u'#');

TEST_F(FormatWithComma, ASingleHasItsSevenDigitsHalfAwayFromZero) {
    Dice dice(1);
    const Single halves[] = {1000000.5F, 4194303.5F, 999999.95F, 8388607.5F,
                             0.5F,       1e-6F,      9.9999995F};
    constexpr int largest = 37; // powers of ten
    for (int i = 0; i < 200'000; ++i) {
        const auto value = static_cast<Single>(
            i < 7           ? halves[i]
            : dice.oneIn(3) ? typed(dice.between(-3000, 3000), dice.whole(1, 4))
                            : dice.between(-1, 1)
                                  * std::pow(10.0, dice.whole(-7, dice.oneIn(3) ? largest : 8)));
        if (std::fabs(value) < 1e-9F)
            continue;
        ASSERT_EQ(Format(value, allDigits), roundedByHand(Double{value}, 7)) << value;
    }
}

TEST_F(FormatWithComma, ADoubleHasItsFifteenDigitsHalfAwayFromZero) {
    Dice dice(2);
    constexpr int largest = 300; // powers of ten
    for (int i = 0; i < 200'000; ++i) {
        const Double value =
            dice.oneIn(2)
                ? typed(dice.between(-1, 1) * std::pow(10.0, dice.whole(-3, 10)), dice.whole(1, 7))
                : dice.between(-1, 1)
                      * std::pow(10.0, dice.whole(-7, dice.oneIn(3) ? largest : 12));
        if (std::fabs(value) < 1e-9)
            continue;
        ASSERT_EQ(Format(value, allDigits), roundedByHand(value, 15)) << value;
    }
}

TEST(Format, RefusesAValueThatIsNotFinite) {
    EXPECT_THROW(Format(std::numeric_limits<Single>::infinity(), u"#0.0"), RunTimeError);
    EXPECT_THROW(general(std::numeric_limits<Double>::quiet_NaN()), RunTimeError);
}

} // namespace
