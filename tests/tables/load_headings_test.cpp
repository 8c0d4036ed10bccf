#include "tables/load_headings.h"

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::tables;

namespace {

QStringList words(const char* text) {
    return QString::fromUtf8(text).split(u'|');
}

QList<Heading> headings(const char* text) {
    const Headings found = headingsOf(words(text));
    if (const auto* list = std::get_if<QList<Heading>>(&found))
        return *list;
    ADD_FAILURE() << std::get<HeadingTrouble>(found).why.toStdString();
    return {};
}

QList<Value> loads(const char* text) {
    QList<Value> out;
    for (const Heading& heading : headings(text))
        out += heading.load;
    return out;
}

void expectTrouble(const char* text, int column, const char* why) {
    const Headings found = headingsOf(words(text));
    const auto* const trouble = std::get_if<HeadingTrouble>(&found);
    ASSERT_NE(trouble, nullptr) << text;
    EXPECT_EQ(trouble->column, column);
    EXPECT_EQ(trouble->why, QString::fromUtf8(why));
}

const QList<Value> allFive{Value::N, Value::M1, Value::M2, Value::Vx, Value::Vy};

TEST(LoadHeadings, AreThoseOfTheProgramAndOfFramePrograms) {
    EXPECT_EQ(loads("N|M1|M2|Vx|Vy"), allFive);
    EXPECT_EQ(loads("N [kN]|M1 [kNm]|M2 [kNm]|Vx [kN]|Vy [kN]"), allFive);
    EXPECT_EQ(loads("n|my|mz|ty|tz"), allFive);
    EXPECT_EQ(loads("NEd|My,Ed|Mz,Ed|Vy,Ed|Vz,Ed"), allFive);
    EXPECT_EQ(loads("Siła osiowa N|Moment M1|Moment M2|Siła pozioma Vx|Siła pozioma Vy"), allFive);
    EXPECT_EQ(loads("Axial force|My|Mz|Vy|Vz"), allFive);
}

TEST(LoadHeadings, MayStandInAnyOrderWithOthersBetween) {
    EXPECT_EQ(loads("Węzeł|Kombinacja|Vy|N|Mx|My|Mz"),
              (QList<Value>{Value::None, Value::None, Value::Vy, Value::N, Value::None, Value::M1,
                            Value::M2}));
    const QList<Heading> found = headings("Węzeł|Kombinacja|N");
    EXPECT_EQ(found[0].is, Heading::Is::Unknown);
    EXPECT_EQ(found[1].is, Heading::Is::Name);
    EXPECT_EQ(found[2].is, Heading::Is::Load);
}

TEST(LoadHeadings, GiveTheFactorOfTheirUnit) {
    const QList<Heading> found = headings("N [N]|M1 (Nmm)|M2, kN*cm|Vx MN|Vy/kN");
    EXPECT_DOUBLE_EQ(found[0].factor, 1e-3);
    EXPECT_DOUBLE_EQ(found[1].factor, 1e-6);
    EXPECT_DOUBLE_EQ(found[2].factor, 1e-2);
    EXPECT_DOUBLE_EQ(found[3].factor, 1e3);
    EXPECT_DOUBLE_EQ(found[4].factor, 1);
}

TEST(LoadHeadings, AreRefusedWithTheColumnThatIsToBlame) {
    expectTrouble("N [kG]|M1", 1, "\"N [kG]\" - nieznana jednostka");
    expectTrouble("N|M1 [kN]", 2, "\"M1 [kN]\" - nieznana jednostka");
    expectTrouble("N|My|M1", 3, "\"M1\" - drugi raz to samo obciążenie");
    expectTrouble("N|Mx|My", 0, "nagłówek ma Mx i My bez Mz - nazwij kolumny momentów M1 i M2");
    expectTrouble("N|Vx|Vz", 0, "nagłówek ma Vx i Vz - nazwij kolumny sił poziomych Vx i Vy");
}

TEST(LoadHeadings, AreARowOfWordsThatNamesALoad) {
    EXPECT_TRUE(isHeadingRow(words("Nazwa|N|M1")));
    EXPECT_FALSE(isHeadingRow(words("100|20|30")));
    EXPECT_FALSE(isHeadingRow(words("N|20|30")));
    EXPECT_FALSE(isHeadingRow(words("Nazwa|Opis")));
    EXPECT_FALSE(isHeadingRow(words("")));
}

TEST(LoadHeadings, OfTheProgramAreUnderstood) {
    for (const Value load : allFive)
        EXPECT_EQ(loads(headingOf(load).toUtf8().constData()), QList<Value>{load});
}

} // namespace
