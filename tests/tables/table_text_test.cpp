#include "tables/table_text.h"

#include <QStringEncoder>

#include <gtest/gtest.h>

using namespace ferna::tables;

namespace {

const QString table = QStringLiteral("Siła osiowa;M1\r\n100,5;-20\r\n");

QByteArray utf16(QStringConverter::Encoding order, bool mark) {
    QStringEncoder encode(order, mark ? QStringConverter::Flag::WriteBom
                                      : QStringConverter::Flag::Default);
    return encode(table);
}

void expectTable(const QByteArray& bytes, Encoding encoding) {
    const auto found = tableText(bytes);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->text, table);
    EXPECT_EQ(found->encoding, encoding);
}

TEST(TableText, IsReadInUtf8WithAndWithoutItsMark) {
    expectTable(table.toUtf8(), Encoding::Utf8);
    expectTable("\xEF\xBB\xBF" + table.toUtf8(), Encoding::Utf8);
}

TEST(TableText, IsReadInUtf16OfBothOrdersWithAndWithoutItsMark) {
    for (const bool mark : {true, false})
        for (const auto order : {QStringConverter::Utf16LE, QStringConverter::Utf16BE})
            expectTable(utf16(order, mark), Encoding::Utf16);
}

TEST(TableText, IsReadInCodePage1250) {
    expectTable("Si\xB3"
                "a osiowa;M1\r\n100,5;-20\r\n",
                Encoding::CodePage1250);
}

TEST(TableText, IsRefusedWhereTheBytesAreNoText) {
    EXPECT_FALSE(tableText(QByteArray("PK\x03\x04\0\0\x08\0", 8)));
    EXPECT_FALSE(tableText(QByteArray("100\0"
                                      "200",
                                      7)));
    EXPECT_FALSE(tableText("\x81\x83"));                    // unassigned in the page
    EXPECT_FALSE(tableText(QByteArray("\xFF\xFE\x31", 3))); // half a character
    EXPECT_EQ(tableText("")->text, QString());
}

} // namespace
