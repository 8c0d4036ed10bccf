#include "report/title_lines.h"
#include "runtime/run_time_error.h"
#include "support/folder.h"
#include "support/printing.h"

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

class TitleLines : public ::testing::Test {
protected:
    std::array<QString, 2> lines(Integer language) const {
        return titleLines(folder.path(QString()), language);
    }

    QString refusal(const QByteArray& text) const {
        folder.write(titleLinesFile, text);
        try {
            lines(0);
        } catch (const RunTimeError& failure) {
            return failure.detail();
        }
        return {};
    }

    Folder folder;
};

TEST_F(TitleLines, AreEmptyWithoutTheFile) {
    EXPECT_EQ(lines(0)[0], QString());
    EXPECT_EQ(lines(4)[1], QString());
}

TEST_F(TitleLines, AreTheStandardsInTheReportsLanguageAndTheOffice) {
    folder.write(titleLinesFile, "; uwaga\r\nnorma_pl = Konstrukcje stalowe\r\n\r\n"
                                 "norma_ge=Stahlbau = gut\nbiuro =  Biuro \xc5\xbb\n");
    EXPECT_EQ(lines(0)[0], QStringLiteral("Konstrukcje stalowe"));
    EXPECT_EQ(lines(4)[0], QStringLiteral("Stahlbau = gut"));
    EXPECT_EQ(lines(2)[0], QString()) << "no English title is given";
    for (const Integer language : {Integer{0}, Integer{2}, Integer{4}})
        EXPECT_EQ(lines(language)[1], QStringLiteral("Biuro Ż"));
}

TEST_F(TitleLines, OfAStockAreReadOnceForALanguage) {
    TitleLinesStock stock(folder.path(QString()));
    folder.write(titleLinesFile, "nic = nic\n");
    EXPECT_THROW(stock.lines(0), RunTimeError) << "and tried again:";
    folder.write(titleLinesFile, "norma_pl = Stal\nnorma_gb = Steel\nbiuro = Biuro\n");
    EXPECT_EQ(stock.lines(0)[0], QStringLiteral("Stal"));
    EXPECT_EQ(stock.lines(2)[0], QStringLiteral("Steel"));
    folder.write(titleLinesFile, "norma_pl = inaczej\n");
    EXPECT_EQ(stock.lines(0)[0], QStringLiteral("Stal"));
    EXPECT_EQ(stock.lines(0)[1], QStringLiteral("Biuro"));
}

TEST_F(TitleLines, OfAWrongFileAreRefusedWithTheLine) {
    EXPECT_TRUE(
        refusal("norma_pl = a\nnazwa = b\n").contains(QStringLiteral("wiersz 2: nieznany")));
    EXPECT_TRUE(refusal("biuro\n").contains(QStringLiteral("wiersz 1: nieznany")));
    EXPECT_TRUE(refusal("biuro = S\xb3up\n").contains(QStringLiteral("UTF-8")));
    EXPECT_EQ(refusal("biuro =\n"), QString());
}

} // namespace
