#include "runtime/codepage.h"
#include "runtime/text_file.h"
#include "support/folder.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>
#include <unistd.h>

using namespace ferna;
using ferna::testing::errorNumberOf;
using ferna::testing::errorOf;
using ferna::testing::Folder;

namespace {

// The bytes to which code page 1250 gives no character.
const QByteArray unassigned("\x81\x83\x88\x90\x98", 5);

QByteArray assignedBytes() {
    QByteArray bytes;
    for (int byte = 1; byte < 256; ++byte)
        if (!unassigned.contains(static_cast<char>(byte)))
            bytes += static_cast<char>(byte);
    return bytes;
}

TEST(CodePage, EveryAssignedByteComesBack) {
    for (const char byte : assignedBytes()) {
        const auto text = codepage::decoded(QByteArray(1, byte));
        ASSERT_TRUE(text) << int{static_cast<unsigned char>(byte)};
        ASSERT_EQ(text->size(), 1);
        EXPECT_TRUE(codepage::holds(text->front()));
        EXPECT_EQ(codepage::encoded(*text), QByteArray(1, byte));
    }
    const auto together = codepage::decoded(assignedBytes());
    ASSERT_TRUE(together);
    EXPECT_EQ(codepage::encoded(*together), assignedBytes());
}

TEST(OneLine, IsMadeOfANameWithLineBreaks) {
    EXPECT_EQ(oneLine(u"Hala A,  oś B "), QStringLiteral("Hala A,  oś B "));
    EXPECT_EQ(oneLine(u"Hala A\r\n\r\noś B\n"), QStringLiteral("Hala A oś B"));
    EXPECT_EQ(oneLine(u"\tA\tB\u2028C\u2029"), QStringLiteral("A B C"));
    EXPECT_EQ(oneLine(QString(2, QChar(0))), QString());
}

TEST(CodePage, PolishLettersStandWhereOtherProgramsLookForThem) {
    EXPECT_EQ(codepage::encoded(u"ąćęłńóśźżĄĆĘŁŃÓŚŹŻ").toHex(),
              QByteArray("b9e6eab3f1f39c9fbfa5c6caa3d1d38c8faf"));
}

TEST(CodePage, ACharacterThatItLacksBecomesAQuestionMark) {
    EXPECT_EQ(codepage::encoded(u"a\u03c9b"), QByteArray("a?b"));
    EXPECT_EQ(codepage::encoded(u"àèùœ"), QByteArray("????"));
    EXPECT_EQ(codepage::encoded(u"\U0001F600!"), QByteArray("?!")); // one for a pair of units
    EXPECT_FALSE(codepage::holds(u'\u03c9'));
}

TEST(CodePage, AnUnassignedByteIsNoText) {
    for (const char byte : unassigned)
        EXPECT_FALSE(codepage::decoded(QByteArray("abc") + byte));
    EXPECT_FALSE(codepage::decoded(QByteArray("a\0b", 3)));
}

TEST(CodePage, PolishTextInAnotherEncodingIsToldFromIt) {
    EXPECT_TRUE(codepage::looksLikeUtf8(QStringLiteral("Zażółć gęślą jaźń").toUtf8()));
    EXPECT_TRUE(codepage::looksLikeUtf8(QStringLiteral("długość").toUtf8()));
    EXPECT_TRUE(codepage::looksLikeUtf8(QStringLiteral("Länge, à côté").toUtf8()));
    EXPECT_TRUE(codepage::looksLikeUtf8(QByteArray("\xef\xbb\xbfProjekt")));
    EXPECT_FALSE(codepage::looksLikeUtf8(QByteArray("Projekt")));
}

TEST(CodePage, CapitalPolishWordsAreNotTakenForAnotherEncoding) {
    // Pairs such as "ÓŁ" are a letter of another alphabet where the bytes are read otherwise.
    for (const char16_t* word : {u"HALA PÓŁNOCNA", u"RÓŻA", u"CIĘŻAR", u"CZĘŚĆ 2", u"STÓŁ"})
        EXPECT_FALSE(codepage::looksLikeUtf8(codepage::encoded(word)));
}

TEST(CodePage, NamesThatAreValidInAnotherEncodingTooComeBackAsTheyWere) {
    for (const char16_t* name : {u"Blachy zwężą", u"Hala â€“ 2"}) {
        const QByteArray bytes = codepage::encoded(name);
        ASSERT_TRUE(bytes.isValidUtf8()); // or they would prove nothing
        EXPECT_EQ(codepage::decoded(bytes), QString::fromUtf16(name));
    }
}

TEST(TextFiles, LinesAreWrittenWithCarriageReturnAndLineFeed) {
    const Folder folder;
    TextFileWriter file;
    file.line(u"pierwszy ł");
    file.line();
    file.line(u"trzeci");
    EXPECT_EQ(folder.names(), QStringList()); // nothing on the disk before the commit
    file.commit(folder.path(QStringLiteral("a.txt")));
    EXPECT_EQ(folder.read(QStringLiteral("a.txt")), QByteArray("pierwszy \xb3\r\n\r\ntrzeci\r\n"));
}

TEST(TextFiles, ALineFeedAloneEndsALine) {
    const Folder folder;
    const QString path = folder.write(QStringLiteral("a.txt"), "a\nb \r\n\r\nc");
    EXPECT_EQ(readLines(path), QStringList({QStringLiteral("a"), QStringLiteral("b "), QString(),
                                            QStringLiteral("c")}));
}

TEST(TextFiles, ALastLineEndStartsNoFurtherLine) {
    const Folder folder;
    EXPECT_EQ(readLines(folder.write(QStringLiteral("a.txt"), "a\r\n")).size(), 1);
    EXPECT_EQ(readLines(folder.write(QStringLiteral("b.txt"), "a\r\n\r\n")).size(), 2);
    EXPECT_EQ(readLines(folder.write(QStringLiteral("c.txt"), "")).size(), 0);
    EXPECT_EQ(readLines(folder.write(QStringLiteral("d.txt"), "a\r\n\x1a")).size(), 1);
}

TEST(TextFiles, TheErrorNamesTheFileAndTheLine) {
    const Folder folder;
    const QString path = folder.write(QStringLiteral("zły.txt"), "dobry\r\nz\xc5\x82y\r\n");
    EXPECT_EQ(readLines(path).size(), 2); // what the program wrote is taken as it stands
    const auto failure = errorOf([&] { readLines(path, TextFrom::Editor); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), error::DeviceIO);
    EXPECT_TRUE(failure->detail().contains(QStringLiteral("zły.txt, wiersz 2:")))
        << failure->detail().toStdString();
}

TEST(TextFiles, AMissingFileAndAFolderAreToldApart) {
    const Folder folder;
    EXPECT_EQ(errorNumberOf([&] { readLines(folder.path(QStringLiteral("nie ma"))); }),
              error::FileNotFound);
    EXPECT_EQ(errorNumberOf([&] { readLines(folder.path(QStringLiteral("."))); }),
              error::PathAccess);
    EXPECT_EQ(errorNumberOf([&] { writeFileWhole(folder.path(QStringLiteral("x/y")), "a"); }),
              error::PathNotFound);
}

TEST(TextFiles, AFileThatBreaksOffWhileItIsReadIsAnErrorOfTheDevice) {
    if (!QFile::exists(QStringLiteral("/proc/self/mem")))
        GTEST_SKIP() << "no file here that opens and cannot be read";
    EXPECT_EQ(errorNumberOf([] { readFileWhole(QStringLiteral("/proc/self/mem")); }),
              error::DeviceIO);
}

TEST(TextFiles, AFileIsReplacedAsAWholeOrNotAtAll) {
    const Folder folder;
    const QString path = folder.write(QStringLiteral("a.txt"), "stary plik, dłuższy od nowego");
    writeFileWhole(path, "nowy");
    EXPECT_EQ(folder.read(QStringLiteral("a.txt")), QByteArray("nowy"));
    EXPECT_EQ(folder.names(), QStringList(QStringLiteral("a.txt"))); // no temporary name left
}

TEST(TextFiles, WhereNothingCanBeWrittenTheOldFileSurvives) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everywhere";
    const Folder folder;
    const QString path = folder.write(QStringLiteral("a.txt"), "stary");
    QFile::setPermissions(folder.path(QStringLiteral(".")), QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(errorNumberOf([&] { writeFileWhole(path, "nowy"); }), error::PermissionDenied);
    QFile::setPermissions(folder.path(QStringLiteral(".")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(folder.read(QStringLiteral("a.txt")), QByteArray("stary"));
}

} // namespace
