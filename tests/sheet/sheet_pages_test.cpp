// The sheet on paper: how many pages, how soon, and where they end.
#include "sheet/pages.h"
#include "sheet/sheet_tasks.h"
#include "support/folder.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <ctime>

namespace ferna::sheet {
namespace {

using namespace ferna::testing;

int pagesOf(const nlohmann::json& task) {
    const Sheet sheet = batch::sheetOf(computed(task));
    return Pages(sheet).count();
}

TEST(SheetPages, OneCaseWithFourAnchorsTakesFourAtMost) {
    for (const Integer language : languages) {
        nlohmann::json task = base(language);
        EXPECT_LE(pagesOf(task), 4) << language;
        task["Kotwa"] = {{"rodzaj", "F"}, {"g", 60}};
        task["Blacha"] = {{"Nr_stali_blachy", 2},
                          {"Sprawdzenia",
                           {{"1", {{"bs", 120}, {"ca", 60}, {"S", 70}}},
                            {"8", {{"b", 120}, {"a", 60}, {"c", 50}, {"S", 60}}}}}};
        EXPECT_LE(pagesOf(task), 4) << language << ", with plate and anchor";
    }
}

TEST(SheetPages, SixCasesWithTwentyAnchorsTakeTwelveAtMostAndUnderASecond) {
    for (const Integer language : languages) {
        const batch::ComputedTask done = computed(large(language));
        const std::clock_t start = std::clock();
        const Sheet sheet = batch::sheetOf(done);
        const Pages pages(sheet);
        const QByteArray pdf = pages.pdf();
        const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
        EXPECT_LE(pages.count(), 12) << language;
        EXPECT_LT(seconds, 1) << language;
        EXPECT_TRUE(pdf.startsWith("%PDF"));
        EXPECT_NE(sheet.byName.count({0, QStringLiteral("k_Lc")}), 0U) << "the anchor section";
        for (const int check : {1, 2, 3, 5, 6, 7, 8})
            EXPECT_NE(sheet.byName.count({0, QStringLiteral("p%1_g").arg(check)}), 0U) << check;
    }
}

/// The lines of each page as a reader of the PDF finds them.
QList<QStringList> linesOf(const QByteArray& pdf) {
    const Folder folder;
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"),
                 {QStringLiteral("-layout"), folder.write(QStringLiteral("a.pdf"), pdf),
                  QStringLiteral("-")});
    EXPECT_TRUE(reader.waitForFinished());
    QList<QStringList> pages;
    const QStringList texts =
        QString::fromUtf8(reader.readAllStandardOutput()).split(u'\f', Qt::SkipEmptyParts);
    for (const QString& text : texts) {
        QStringList lines;
        for (const QString& line : text.split(u'\n'))
            if (!line.simplified().isEmpty())
                lines += line.simplified();
        pages += lines;
    }
    return pages;
}

void expectNoHeadingAtTheFoot(const nlohmann::json& task) {
    const Sheet sheet = batch::sheetOf(computed(task));
    QStringList headings;
    for (const Block& block : sheet.blocks)
        if (const auto* heading = std::get_if<Heading>(&block))
            headings += plainText(heading->text);
    ASSERT_GT(headings.size(), 8);
    const QList<QStringList> pages = linesOf(Pages(sheet).pdf());
    ASSERT_GE(pages.size(), 3);
    for (const QStringList& lines : pages) {
        ASSERT_GE(lines.size(), 3);
        EXPECT_TRUE(lines.last().startsWith(QStringLiteral("ferna-wsad"))) << "the foot";
        const QString& above = lines[lines.size() - 2];
        EXPECT_FALSE(headings.contains(above)) << above.toStdString();
    }
}

TEST(SheetPages, NoHeadingIsTheLastOfItsPage) {
    for (const std::size_t anchors : {4U, 7U, 12U, 17U, 20U})
        for (const std::size_t cases : {1U, 2U, 3U, 6U}) {
            SCOPED_TRACE(std::to_string(anchors) + " anchors, " + std::to_string(cases) + " cases");
            nlohmann::json task = large(anchors % 2 == 0 ? 4 : 3);
            task["Kotwy"].erase(task["Kotwy"].begin() + static_cast<std::ptrdiff_t>(anchors),
                                task["Kotwy"].end());
            task["Przypadki"].erase(task["Przypadki"].begin() + static_cast<std::ptrdiff_t>(cases),
                                    task["Przypadki"].end());
            expectNoHeadingAtTheFoot(task);
        }
}

TEST(SheetPages, EachPageCountsThePagesInTheLanguageOfTheSheet) {
    const Sheet sheet = batch::sheetOf(computed(base(3)));
    const QList<QStringList> pages = linesOf(Pages(sheet).pdf());
    for (qsizetype i = 0; i < pages.size(); ++i)
        EXPECT_TRUE(
            pages[i].last().endsWith(QStringLiteral("Page %1 sur %2").arg(i + 1).arg(pages.size())))
            << pages[i].last().toStdString();
}

TEST(SheetPages, TheWordsOverThePressuresAreWhole) {
    for (const auto& [language, words] : {std::pair{Integer{0}, "Docisk, MPa"},
                                          {Integer{2}, "Pressure, MPa"},
                                          {Integer{3}, "Pression, MPa"},
                                          {Integer{4}, "Pressung, MPa"}}) {
        const Sheet sheet = batch::sheetOf(computed(base(language)));
        QString text;
        for (const QStringList& lines : linesOf(Pages(sheet).pdf()))
            text += lines.join(u'\n');
        EXPECT_TRUE(text.contains(QString::fromUtf8(words))) << words;
    }
}

} // namespace
} // namespace ferna::sheet
