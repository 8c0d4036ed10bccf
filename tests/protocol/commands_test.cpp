#include "protocol/commands.h"
#include "runtime/run_time_error.h"
#include "support/printing.h"

#include <gtest/gtest.h>

using namespace ferna::wyd;

namespace {

const QString file = QStringLiteral("/raport/FERNAPr.wyd");

struct Read {
    std::vector<Record> records;
    QStringList complaints;
};

Read read(const QStringList& lines) {
    Complaints complaints;
    Read result;
    result.records = readRecords(lines, file, complaints);
    result.complaints = complaints.lines();
    return result;
}

template <typename Content>
const Content& only(const Read& result) {
    EXPECT_EQ(result.records.size(), 1U);
    EXPECT_TRUE(result.complaints.isEmpty()) << result.complaints.join(u'\n').toStdString();
    return std::get<Content>(result.records.at(0).content);
}

TEST(RecordReader, ReadsATextWithAllItsFields) {
    const Read result = read({QStringLiteral("3,7.0,85.0,1,,3.2,1.,0.,0,1,0,400,5"),
                              QStringLiteral("  Długość, x =  600 mm ")});
    const TextRecord text = only<TextRecord>(result);
    EXPECT_EQ(text.x, 7.0);
    ASSERT_TRUE(text.y);
    EXPECT_EQ(text.y->value, 85.0);
    EXPECT_FALSE(text.y->relative);
    EXPECT_EQ(text.height, 3.2);
    EXPECT_EQ(text.underline, true);
    EXPECT_EQ(text.weight, 400);
    EXPECT_EQ(text.font, 5);
    EXPECT_FALSE(text.pageNumber);
    EXPECT_EQ(text.text, QStringLiteral("  Długość, x =  600 mm ")) << "the text as it stands";
}

TEST(RecordReader, WhatIsTooLongIsCutOrPassedOverAndNamed) {
    const Read text = read({QStringLiteral("3, 3., 55."), QString(longestText, u'x'),
                            QStringLiteral("3, 3., 55."), QString(longestText + 1, u'x')});
    ASSERT_EQ(text.records.size(), 2U);
    EXPECT_EQ(std::get<TextRecord>(text.records[1].content).text.size(), longestText);
    EXPECT_EQ(text.complaints, QStringList(file
                                           + QStringLiteral(", wiersz 4: tekst obcięty do "
                                                            "1000 znaków")));
    const Read command = read({QStringLiteral("3, 3., ") + QString(2000, u'1'),
                               QStringLiteral("10"), QStringLiteral("14,1.,2.,1")});
    EXPECT_EQ(command.records.size(), 1U) << "its text line goes with it";
    EXPECT_EQ(command.complaints.size(), 1);
}

TEST(RecordReader, AFloodOfRecordsIsRefused) {
    const auto refused = [](const QString& record, int times, const char* what) {
        try {
            read(QStringList(times, record));
        } catch (const ferna::RunTimeError& failure) {
            return failure.text().contains(QString::fromUtf8(what))
                   && failure.text().contains(QStringLiteral("wiersz"));
        }
        return false;
    };
    const QString line = QStringLiteral("14,1.,2.,1");
    EXPECT_FALSE(refused(line, mostRecordsOfAPage, ""));
    EXPECT_TRUE(refused(line, mostRecordsOfAPage + 1, "ponad 10000 poleceń na stronie"));
    EXPECT_FALSE(refused(QStringLiteral("10"), mostPages, ""));
    EXPECT_TRUE(refused(QStringLiteral("10"), mostPages + 1, "ponad 1000 stron"));
}

TEST(RecordReader, BlanksAroundFieldsDoNotMatter) {
    const Read tight = read({QStringLiteral("5,10.,35.,52.9,34.7"), QStringLiteral("/r/a.bmp")});
    const Read loose =
        read({QStringLiteral(" 5 ,  10. , 35., 52.9 ,34.7  "), QStringLiteral("/r/a.bmp")});
    EXPECT_EQ(only<PictureRecord>(tight), only<PictureRecord>(loose));
}

TEST(RecordReader, EmptyFieldsAndAShortFormLeaveTheSettingsOpen) {
    const TextRecord shortForm =
        only<TextRecord>(read({QStringLiteral("3, 3., 55."), QStringLiteral(" ")}));
    EXPECT_EQ(shortForm.x, 3.0);
    EXPECT_EQ(shortForm.y->value, 55.0);
    EXPECT_FALSE(shortForm.height || shortForm.underline || shortForm.weight || shortForm.font);
    const TextRecord goesOn = only<TextRecord>(
        read({QStringLiteral("3,,,1,,3.2,1.,0.,0,0,0,400,2"), QStringLiteral("w")}));
    EXPECT_FALSE(goesOn.x || goesOn.y);
    EXPECT_EQ(goesOn.font, 2);
}

TEST(RecordReader, ReadsAStepBelowTheBaseline) {
    const TextRecord down = only<TextRecord>(
        read({QStringLiteral("3,,@1,1,,3.2,1.,0.,0,0,0,400,5"), QStringLiteral("d")}));
    EXPECT_TRUE(down.y->relative);
    EXPECT_EQ(down.y->value, 1.0);
    const TextRecord up = only<TextRecord>(
        read({QStringLiteral("3,,@-1,1,,3.2,1.,0.,0,0,0,400,5"), QStringLiteral("x")}));
    EXPECT_EQ(up.y->value, -1.0);
}

TEST(RecordReader, EmptyLinesWhereARecordIsDueAreSkipped) {
    // The line break inside a text leaves an empty text and one more empty line.
    const Read result = read({QStringLiteral("3,7.0,90.0"), QString(), QString(),
                              QStringLiteral("   "), QStringLiteral("14,1.,2.,0")});
    EXPECT_TRUE(result.complaints.isEmpty());
    ASSERT_EQ(result.records.size(), 2U);
    EXPECT_EQ(std::get<TextRecord>(result.records[0].content).text, QString());
    EXPECT_EQ(result.records[1].line, 5);
}

TEST(RecordReader, KnowsThePageNumberTheFramesEndAndANewPage) {
    const Read result = read({QStringLiteral("13,147.,23.5"), QStringLiteral("Strona 4"),
                              QStringLiteral("9,5."), QStringLiteral("10")});
    ASSERT_EQ(result.records.size(), 3U);
    EXPECT_TRUE(std::get<TextRecord>(result.records[0].content).pageNumber);
    EXPECT_TRUE(std::holds_alternative<FrameEndRecord>(result.records[1].content));
    EXPECT_TRUE(std::holds_alternative<NewPageRecord>(result.records[2].content));
}

struct BadRecord {
    const char* record;
    const char* complaint;
};

class MalformedRecord : public ::testing::TestWithParam<BadRecord> {};

TEST_P(MalformedRecord, IsNamedWithItsLineAndTheRestIsRead) {
    const Read result = read({QStringLiteral("14,0.,0.,0"), QString::fromUtf8(GetParam().record),
                              QStringLiteral("14,1.,1.,1")});
    EXPECT_EQ(result.records.size(), 2U);
    ASSERT_EQ(result.complaints.size(), 1);
    EXPECT_EQ(result.complaints[0],
              file + QStringLiteral(", wiersz 2: ") + QString::fromUtf8(GetParam().complaint));
}

INSTANTIATE_TEST_SUITE_P(All, MalformedRecord,
                         ::testing::Values(BadRecord{"14,1O.,0.,1", "\"1O.\" to nie liczba"},
                                           BadRecord{"14,nan,0.,1", "\"nan\" to nie liczba"},
                                           BadRecord{"14,1e300,0.,1", "\"1e300\" to nie liczba"},
                                           BadRecord{"14,1.,0.,2", "2 zamiast 0 albo 1"},
                                           BadRecord{"14,1.,0.,1,7", "za dużo pól (4 zamiast 3)"},
                                           BadRecord{"77,1.", "nieznane polecenie \"77\""},
                                           BadRecord{"Strona", "nieznane polecenie \"Strona\""}));

TEST(RecordReader, TheTextOfAMalformedTextRecordIsPassedOverWithIt) {
    const Read result = read({QStringLiteral("3,7.0,osiem"), QStringLiteral("14,0.,0.,0"),
                              QStringLiteral("5,10.,35.,-52.9,34.7"), QStringLiteral("/r/a.bmp"),
                              QStringLiteral("14,1.,1.,1")});
    ASSERT_EQ(result.complaints.size(), 2);
    EXPECT_TRUE(result.complaints[0].contains(QStringLiteral("wiersz 1: \"osiem\"")));
    EXPECT_TRUE(result.complaints[1].contains(QStringLiteral("wiersz 3: wymiar \"-52.9\"")));
    ASSERT_EQ(result.records.size(), 1U);
    EXPECT_EQ(result.records[0].line, 5);
}

TEST(RecordReader, ATextThatTheFileNoLongerHoldsIsNamed) {
    const Read result = read({QStringLiteral("10"), QStringLiteral("3,7.0,85.0")});
    EXPECT_EQ(result.records.size(), 1U);
    ASSERT_EQ(result.complaints.size(), 1);
    EXPECT_TRUE(result.complaints[0].endsWith(QStringLiteral("wiersz 2: brak wiersza z tekstem")));
}

} // namespace
