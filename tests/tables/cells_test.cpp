#include "tables/cells.h"

#include <gtest/gtest.h>

using namespace ferna::tables;

namespace {

QStringList joined(QStringView text) {
    QStringList out;
    for (const Row& row : rowsOf(text))
        out += QString::number(row.number) + u':' + row.cells.join(u'|');
    return out;
}

QStringList list(std::initializer_list<const char*> texts) {
    QStringList out;
    for (const char* text : texts)
        out += QString::fromUtf8(text);
    return out;
}

TEST(Cells, ArePartedByTabSemicolonOrComma) {
    EXPECT_EQ(joined(u"100\t20,5\n-3\t 4 "), list({"1:100|20,5", "2:-3|4"}));
    EXPECT_EQ(joined(u"100;20,5\r\n-3;4\r\n"), list({"1:100|20,5", "2:-3|4"}));
    EXPECT_EQ(joined(u"100,20.5\r-3,4"), list({"1:100|20.5", "2:-3|4"}));
    EXPECT_EQ(joined(u"N,M1\n100,5"), list({"1:N|M1", "2:100|5"}));
    EXPECT_EQ(joined(u"1,2,3"), list({"1:1|2|3"}));
}

TEST(Cells, OfOneColumnWithDecimalCommasAreNumbers) {
    EXPECT_EQ(separatorOf(u"100,5\n200,25\n-3"), Separator::None);
    EXPECT_EQ(joined(u"N\n100,5\n200,25"), list({"1:N", "2:100,5", "3:200,25"}));
    EXPECT_EQ(joined(u"1 000,5\n2 000,5"), list({"1:1 000,5", "2:2 000,5"}));
}

TEST(Cells, ThatAreSetWithBlanksArePartedWhereTwoStand) {
    EXPECT_EQ(joined(u"  100,5   20   -3  \n    1    2    3"), list({"1:100,5|20|-3", "2:1|2|3"}));
    EXPECT_EQ(joined(u"1 000,5   20"), list({"1:1 000,5|20"}));
}

TEST(Cells, InQuotationMarksHoldSeparatorsLineEndsAndMarks) {
    EXPECT_EQ(joined(u"\"a;b\";1\n\"dwa\nwiersze\";2\n\"mówi \"\"N\"\"\";3"),
              list({"1:a;b|1", "2:dwa\nwiersze|2", "4:mówi \"N\"|3"}));
    EXPECT_EQ(joined(u"\"100,5\",\"20,5\""), list({"1:100,5|20,5"}));
}

TEST(Cells, OfBlankRowsArePassedOverAndTheOthersKeepTheirNumbers) {
    EXPECT_EQ(joined(u"\n1\t2\n\n \t \n3\t4\n\n"), list({"2:1|2", "5:3|4"}));
    EXPECT_TRUE(rowsOf(u"").isEmpty());
    EXPECT_TRUE(rowsOf(u" \n\t\n").isEmpty());
}

TEST(Cells, ThatAreEmptyKeepTheirPlace) {
    EXPECT_EQ(joined(u"\t1\t\t2"), list({"1:|1||2"}));
    EXPECT_EQ(joined(u"1;;2;"), list({"1:1||2|"}));
}

TEST(Cells, AreATableWhereThereIsMoreThanOne) {
    EXPECT_FALSE(isTable(u"100,5"));
    EXPECT_FALSE(isTable(u" 1 000,5\r\n\r\n"));
    EXPECT_FALSE(isTable(u""));
    EXPECT_TRUE(isTable(u"1\t2"));
    EXPECT_TRUE(isTable(u"1;2"));
    EXPECT_TRUE(isTable(u"1\n2"));
}

TEST(Cells, WithAMarkThatIsNotClosedHaveItAsALetter) {
    EXPECT_EQ(joined(u"1;\"abc"), list({"1:1|\"abc"})) << "a mark without its fellow is a letter";
    EXPECT_EQ(joined(u"\"1;2\n3;4"), list({"1:\"1|2", "2:3|4"}));
    EXPECT_EQ(joined(u"\"a\"b;2"), list({"1:ab|2"}));
}

} // namespace
