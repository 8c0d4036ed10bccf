#include "protocol/commands.h"
#include "protocol/job.h"
#include "protocol/renderer_files.h"
#include "protocol/reply.h"
#include "runtime/codepage.h"
#include "support/folder.h"
#include "support/printing.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

// What one process writes the other one reads.

using namespace ferna;
using namespace ferna::testing;

namespace {

class JobOfMode : public ::testing::TestWithParam<RenderMode> {
protected:
    Folder folder;
};

TEST_P(JobOfMode, IsReadAsItWasWritten) {
    for (const Integer page : {Integer{1}, Integer{0}, Integer{-5}, Integer{32767}}) {
        writeJob(folder.path(QStringLiteral(".")), GetParam(), page);
        const Job job = readJob(folder.path(wyd::jobFile));
        EXPECT_EQ(job.mode, GetParam());
        EXPECT_EQ(job.firstPage, page);
        EXPECT_EQ(job.lineWidthPt, 0.5);
        EXPECT_EQ(QDir::cleanPath(job.bodyPath), folder.path(wyd::bodyFile));
        EXPECT_EQ(QDir::cleanPath(job.framePath), folder.path(wyd::frameFile));
        EXPECT_EQ(job.folder, QDir::cleanPath(folder.path(QStringLiteral("."))));
    }
}

INSTANTIATE_TEST_SUITE_P(Modes, JobOfMode,
                         ::testing::Values(RenderMode::Clipboard, RenderMode::ScreenPicture,
                                           RenderMode::Print, RenderMode::PrintChosen,
                                           RenderMode::Emf));

TEST(JobFile, NamesItsFilesAloneWhereTheFolderIsNoTextAndTheyAreFoundBesideIt) {
    const Folder folder;
    const QString strange = folder.path(QStringLiteral("ωφ"));
    ASSERT_TRUE(QDir().mkpath(strange));
    writeJob(strange, RenderMode::Print, 3);
    const Job job = readJob(strange + u'/' + wyd::jobFile);
    EXPECT_EQ(job.bodyPath, strange + u'/' + wyd::bodyFile);
    EXPECT_EQ(job.framePath, strange + u'/' + wyd::frameFile);
}

TEST(JobFile, OfAnUnknownModeIsRefused) {
    const Folder folder;
    folder.write(wyd::jobFile, "0, 1.0, 0.5, 1.0, 1\r\na.wyd\r\nb.wyd\r\n");
    const auto failure = errorOf([&] { (void)readJob(folder.path(wyd::jobFile)); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), error::Subscript);
}

TEST(Reply, IsReadAsItWasWritten) {
    const Folder folder;
    for (const int page : {1, 0, -4, 32767}) {
        for (const bool done : {true, false}) {
            writeReply(folder.path(QStringLiteral(".")), done, page);
            const RendererReply reply = readRendererReply(folder.path(wyd::replyFile));
            EXPECT_EQ(reply.printed > 0, done);
            EXPECT_EQ(reply.nextPage, page);
        }
    }
}

TEST(Reply, KeepsAPageNumberThatTheReaderTakes) {
    const Folder folder;
    writeReply(folder.path(QStringLiteral(".")), true, 40000);
    EXPECT_EQ(readRendererReply(folder.path(wyd::replyFile)).nextPage, 32767);
    writeReply(folder.path(QStringLiteral(".")), true, -40000);
    EXPECT_EQ(readRendererReply(folder.path(wyd::replyFile)).nextPage, -32768);
}

TEST(PathLine, LeadsToTheFileAgain) {
    const QString folder = QStringLiteral("/prog/Zażółć gęślą");
    EXPECT_EQ(wyd::pathLine(folder, wyd::bodyFile), folder + QStringLiteral("/FERNAPr.wyd"));
    const QString strange = QStringLiteral("/prog/ω");
    EXPECT_EQ(wyd::pathLine(strange, wyd::bodyFile), wyd::bodyFile);
    for (const QString& place : {folder, strange})
        EXPECT_EQ(wyd::pathOfLine(place, wyd::pathLine(place, wyd::bodyFile)),
                  place + QStringLiteral("/FERNAPr.wyd"));
    EXPECT_EQ(wyd::pathOfLine(folder, QStringLiteral("  ")), QString());
    EXPECT_EQ(wyd::pathOfLine(folder, QStringLiteral(":a.wyd")),
              folder + QStringLiteral("/:a.wyd"));
}

class Commands : public ::testing::Test {
protected:
    /// The records that the reader makes of what has been written, one by one without a complaint.
    std::vector<wyd::Record> read() {
        const QStringList lines = codepage::decoded(written.file().bytes())
                                      .value_or(QString())
                                      .split(QStringLiteral("\r\n"));
        wyd::Complaints complaints;
        std::vector<wyd::Record> records = wyd::readRecords(lines, wyd::bodyFile, complaints);
        EXPECT_TRUE(complaints.lines().isEmpty()) << complaints.lines().join(u'\n').toStdString();
        return records;
    }

    template <typename Content>
    Content only() {
        const std::vector<wyd::Record> records = read();
        EXPECT_EQ(records.size(), 1U);
        return std::get<Content>(records.at(0).content);
    }

    wyd::CommandWriter written;
};

TEST_F(Commands, TextIsReadWithAllItsFields) {
    written.text({QStringLiteral("7.0"), QStringLiteral("85.0"), QStringLiteral("3.2"), true},
                 u"Długość, x =  600 mm ");
    EXPECT_TRUE(written.file().bytes().startsWith("3,7.0,85.0,1,,3.2,1.,0.,0,1,0,400,5\r\nD\xb3u"));
    wyd::TextRecord expected;
    expected.x = 7;
    expected.y = wyd::Baseline{85, false};
    expected.height = 3.2;
    expected.underline = true;
    expected.weight = 400;
    expected.font = wyd::textFont;
    expected.text = QStringLiteral("Długość, x =  600 mm ");
    EXPECT_EQ(only<wyd::TextRecord>(), expected);
}

TEST_F(Commands, SymbolBehindTheTextAndTheStepBelowItAreRead) {
    written.text({{}, {}, QStringLiteral("3.2"), false, wyd::symbolFont}, u"w");
    written.text({{}, QStringLiteral("@-1"), QStringLiteral("3.2")}, u"u");
    const std::vector<wyd::Record> records = read();
    ASSERT_EQ(records.size(), 2U);
    const auto& symbol = std::get<wyd::TextRecord>(records[0].content);
    EXPECT_FALSE(symbol.x || symbol.y);
    EXPECT_EQ(symbol.font, wyd::symbolFont);
    EXPECT_EQ(std::get<wyd::TextRecord>(records[1].content).y, (wyd::Baseline{-1, true}));
}

TEST_F(Commands, PageNumberLeavesItsWordsForTheNumbersOfThePages) {
    for (const Integer page : {Integer{12}, Integer{0}, Integer{-3}}) {
        written = {};
        written.pageNumber({QStringLiteral("147."), QStringLiteral("23.5"), QStringLiteral("3.5")},
                           QStringLiteral("Strona "), page);
        const auto record = only<wyd::TextRecord>();
        EXPECT_TRUE(record.pageNumber);
        EXPECT_EQ(wyd::wordsOfPageNumber(record.text), QStringLiteral("Strona ")) << page;
    }
    EXPECT_EQ(wyd::wordsOfPageNumber(QStringLiteral("Strona 88")), QStringLiteral("Strona "))
        << "words that carry a number already";
    EXPECT_EQ(wyd::wordsOfPageNumber(QStringLiteral("Strona")), QStringLiteral("Strona "));
    EXPECT_EQ(wyd::wordsOfPageNumber(QStringLiteral("-7")), QString());
    EXPECT_EQ(wyd::wordsOfPageNumber(QString()), QString());
}

TEST_F(Commands, ShortFormLeavesTheSettingsOpen) {
    written.textAt(QStringLiteral("3."), QStringLiteral("55."), u" ");
    EXPECT_EQ(written.file().bytes(), "3, 3., 55.\r\n \r\n");
    const auto record = only<wyd::TextRecord>();
    EXPECT_EQ(record.x, 3.0);
    EXPECT_FALSE(record.height || record.underline || record.weight || record.font);
}

TEST_F(Commands, PictureIsReadWithItsPlaceAndItsPath) {
    written.picture({QStringLiteral("10."), QStringLiteral(" 35."), QStringLiteral("52.9"),
                     QStringLiteral("34.7")},
                    u"/prog/Ferogo2.bmp");
    EXPECT_EQ(written.file().bytes(), "5, 10., 35., 52.9, 34.7\r\n/prog/Ferogo2.bmp\r\n");
    EXPECT_EQ(only<wyd::PictureRecord>(),
              (wyd::PictureRecord{10.0, 35.0, 52.9, 34.7, QStringLiteral("/prog/Ferogo2.bmp")}));
}

TEST_F(Commands, RulesFrameEndAndNewPageAreRead) {
    written.moveTo(QStringLiteral("178."), QStringLiteral("0."));
    written.lineTo(QStringLiteral("178."), QStringLiteral("0.1"));
    written.frameEnd();
    written.emptyLine();
    written.newPage();
    EXPECT_EQ(written.file().bytes(), "14,178.,0.,0\r\n14,178.,0.1,1\r\n9,5.\r\n\r\n10\r\n");
    const std::vector<wyd::Record> records = read();
    ASSERT_EQ(records.size(), 4U);
    EXPECT_EQ(std::get<wyd::PenRecord>(records[0].content), (wyd::PenRecord{178.0, 0.0, false}));
    EXPECT_EQ(std::get<wyd::PenRecord>(records[1].content), (wyd::PenRecord{178.0, 0.1, true}));
    EXPECT_TRUE(std::holds_alternative<wyd::FrameEndRecord>(records[2].content));
    EXPECT_TRUE(std::holds_alternative<wyd::NewPageRecord>(records[3].content));
}

} // namespace
