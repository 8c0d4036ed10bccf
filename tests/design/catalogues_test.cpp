#include "design/language.h"
#include "runtime/text_file.h"
#include "support/folder.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::errorNumberOf;
using ferna::testing::errorOf;
using ferna::testing::Folder;

namespace {

const QString languages[] = {QStringLiteral("Ferpl.txt"), QStringLiteral("Ferp2.txt"),
                             QStringLiteral("Fergb.txt"), QStringLiteral("Ferfr.txt"),
                             QStringLiteral("Ferge.txt")};

// A value is printed directly behind these lines, so they bring the blank in front of it.
constexpr int withTrailingBlank[] = {3,  5,  10, 11, 12, 13, 15, 16, 18, 19, 20, 21, 22,
                                     23, 24, 25, 26, 27, 28, 29, 31, 32, 35, 36, 38, 39,
                                     40, 41, 43, 44, 48, 51, 54, 55, 60, 61, 63, 65};
// These are printed directly behind a value or a word.
constexpr int withLeadingBlankOrSign[] = {2, 4, 30, 33, 34, 36, 39, 58, 59, 62, 63, 64};

class Catalogues : public ::testing::TestWithParam<int> {
protected:
    Stan stan;
    void SetUp() override {
        Czytaj_teksty(stan, Folder::delivered(catalogueFile(static_cast<Integer>(GetParam()))));
    }
};

TEST_P(Catalogues, HasItsFileName) {
    EXPECT_EQ(catalogueFile(static_cast<Integer>(GetParam())), languages[GetParam()]);
}

TEST_P(Catalogues, HasSixtySixLinesAndNoneIsEmpty) {
    const QByteArray bytes = Folder::bytesOf(Folder::delivered(languages[GetParam()]));
    EXPECT_EQ(bytes.count("\r\n"), CatalogueLines);
    EXPECT_EQ(bytes.count('\n'), CatalogueLines);
    for (int n = 1; n <= CatalogueLines; ++n)
        EXPECT_FALSE(stan.Teksty(n).trimmed().isEmpty()) << n;
}

TEST_P(Catalogues, LabelsBringTheBlankInFrontOfTheirValue) {
    for (const int n : withTrailingBlank)
        EXPECT_TRUE(stan.Teksty(n).endsWith(u' ')) << n;
    EXPECT_TRUE(stan.Teksty(45).endsWith(u"A("));
    EXPECT_TRUE(stan.Teksty(64).startsWith(u" mm"));
}

TEST_P(Catalogues, TailsBringTheirBlankOrSign) {
    for (const int n : withLeadingBlankOrSign)
        EXPECT_TRUE(QStringView(u" ,;:-").contains(stan.Teksty(n).front())) << n;
}

TEST_P(Catalogues, LinesBesideTheSketchesAreShortEnough) {
    for (const int n : {1, 6, 46, 47, 48, 49, 50, 51, 52})
        EXPECT_LE(stan.Teksty(n).size(), 80) << n;
}

INSTANTIATE_TEST_SUITE_P(Language, Catalogues, ::testing::Range(0, 5));

TEST(Catalogue, ThePlainOneIsThePolishOneWithoutDiacritics) {
    QStringList polish = readLines(Folder::delivered(languages[0]));
    const QStringList plain = readLines(Folder::delivered(languages[1]));
    const QString letters = QStringLiteral("ąćęłńóśźżĄĆĘŁŃÓŚŹŻ");
    const QString without = QStringLiteral("acelnoszzACELNOSZZ");
    for (int n = 0; n < CatalogueLines; ++n) {
        for (qsizetype i = 0; i < letters.size(); ++i)
            polish[n].replace(letters[i], without[i]);
        if (n == 65) // says which catalogue it is and is printed nowhere
            continue;
        EXPECT_EQ(plain[n], polish[n]) << n + 1;
        for (const QChar c : plain[n])
            EXPECT_LT(c.unicode(), 128) << n + 1;
    }
}

TEST(Catalogue, NoTwoLanguagesAreTheSame) {
    for (int a = 0; a < 5; ++a)
        for (int b = a + 1; b < 5; ++b)
            EXPECT_NE(readLines(Folder::delivered(languages[a])),
                      readLines(Folder::delivered(languages[b])));
}

TEST(Catalogue, LinesBehindTheLastTextArePassedOver) {
    const Folder folder;
    const QByteArray whole = Folder::bytesOf(Folder::delivered(languages[0]));
    Stan stan;
    Czytaj_teksty(stan, folder.write(QStringLiteral("k.txt"), whole + "\r\nmoje uwagi\r\n"));
    Stan plain;
    Czytaj_teksty(plain, Folder::delivered(languages[0]));
    for (int n = 1; n <= CatalogueLines; ++n)
        EXPECT_EQ(stan.Teksty(n), plain.Teksty(n)) << n;
}

TEST(Catalogue, ADamagedOneIsRefusedAndLeavesTheTextsAlone) {
    const Folder folder;
    const QByteArray whole = Folder::bytesOf(Folder::delivered(languages[0]));
    const auto refusal = [&](const QByteArray& bytes, int number, int line) {
        Stan stan;
        stan.Teksty(1) = QStringLiteral("stary");
        const QString path = folder.write(QStringLiteral("k.txt"), bytes);
        const auto failure = errorOf([&] { Czytaj_teksty(stan, path); });
        ASSERT_TRUE(failure) << line;
        EXPECT_EQ(failure->number(), number);
        EXPECT_TRUE(failure->detail().contains(QStringLiteral("k.txt, wiersz %1:").arg(line)))
            << failure->detail().toStdString();
        EXPECT_EQ(stan.Teksty(1), QStringLiteral("stary"));
    };
    refusal("", error::InputPastEnd, 1);
    refusal(whole.left(whole.lastIndexOf('\n', whole.size() - 2) + 1), error::InputPastEnd, 66);
    refusal(QByteArray("\xff\xfe") + QByteArray("a\0", 2), error::DeviceIO, 1);
    refusal(QString::fromLatin1("a\r\nb\r\n").toUtf8() + QStringLiteral("ż\r\n").toUtf8(),
            error::DeviceIO, 3);
    Stan stan;
    EXPECT_EQ(errorNumberOf([&] { Czytaj_teksty(stan, folder.path(QStringLiteral("x"))); }),
              error::FileNotFound);
    EXPECT_EQ(errorNumberOf([] { catalogueFile(5); }), error::Subscript);
    EXPECT_EQ(errorNumberOf([] { catalogueFile(-1); }), error::Subscript);
}

} // namespace
