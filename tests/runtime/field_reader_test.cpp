#include "runtime/field_reader.h"
#include "support/folder.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::errorNumberOf;
using ferna::testing::errorOf;
using ferna::testing::Folder;

namespace {

struct FieldReading : ::testing::Test {
    Folder folder;
    FieldReader reader(const QByteArray& bytes) {
        FieldReader file(folder.write(QStringLiteral("plik.txt"), bytes));
        return file;
    }
};

TEST_F(FieldReading, ANumberEndsAtABlankACommaOrTheLineEnd) {
    FieldReader file = reader(" 1   2,3 , 4\r\n5\r\n");
    file.nextLine();
    EXPECT_EQ(file.integer(), 1);
    EXPECT_EQ(file.integer(), 2);
    EXPECT_EQ(file.integer(), 3);
    EXPECT_FALSE(file.atLineEnd());
    EXPECT_EQ(file.integer(), 4);
    EXPECT_TRUE(file.atLineEnd());
    file.nextLine();
    EXPECT_EQ(file.integer(), 5);
}

TEST_F(FieldReading, WhatIsLeftOfALineIsDiscarded) {
    FieldReader file = reader(" 0            Norma\r\n 7            Strona, druga\r\n");
    file.nextLine();
    EXPECT_EQ(file.integer(), 0);
    file.nextLine();
    EXPECT_EQ(file.lineNumber(), 2);
    EXPECT_EQ(file.integer(), 7);
}

TEST_F(FieldReading, ATextEndsAtACommaAndKeepsItsBlanksInside) {
    FieldReader file = reader(" 305           S355 J2, reszta\r\n");
    file.nextLine();
    EXPECT_EQ(file.single(), 305);
    EXPECT_EQ(file.text(), QStringLiteral("S355 J2"));
    EXPECT_EQ(file.text(), QStringLiteral("reszta"));
    EXPECT_EQ(file.text(), QString());
}

TEST_F(FieldReading, TheRestOfALineMayHoldAnything) {
    FieldReader file = reader("Hala A, os 1-2; \"B\"  \r\n\r\n");
    file.nextLine();
    EXPECT_EQ(file.rest(), QStringLiteral("Hala A, os 1-2; \"B\"  "));
    file.nextLine();
    EXPECT_EQ(file.rest(), QString());
}

TEST_F(FieldReading, APointSeparatesDecimalsAndACommaFields) {
    FieldReader file = reader("2.5,7.25\r\n");
    file.nextLine();
    EXPECT_EQ(file.single(), 2.5F);
    EXPECT_EQ(file.number(), 7.25);
}

TEST_F(FieldReading, AFractionRoundsIntoAWholeNumberWithTiesToEven) {
    FieldReader file = reader("2.5 3.5\r\n");
    file.nextLine();
    EXPECT_EQ(file.integer(), 2);
    EXPECT_EQ(file.integer(), 4);
}

TEST_F(FieldReading, EveryErrorNamesFileAndLine) {
    FieldReader file = reader("1\r\nx\r\n40000\r\n1e39\r\n9\r\n\r\n");
    const auto inLine = [&](int number, const char* line, auto read) {
        file.nextLine();
        const auto failure = errorOf([&] { read(); });
        ASSERT_TRUE(failure) << line;
        EXPECT_EQ(failure->number(), number) << line;
        EXPECT_TRUE(failure->detail().contains(QStringLiteral("plik.txt, wiersz ")
                                               + QString::fromLatin1(line)))
            << failure->detail().toStdString();
    };
    file.nextLine();
    inLine(error::TypeMismatch, "2", [&] { file.integer(); });
    inLine(error::Overflow, "3", [&] { file.integer(); });
    inLine(error::Overflow, "4", [&] { file.single(); });
    inLine(error::Subscript, "5", [&] { file.choice(1, 5); });
    inLine(error::InputPastEnd, "6", [&] { file.single(); });
    EXPECT_EQ(errorNumberOf([&] { file.nextLine(); }), error::InputPastEnd);
}

} // namespace
