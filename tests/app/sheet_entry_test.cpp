// The entry of the calculation sheet in the results form.
#include "app/sheet_entry.h"
#include "support/column_base.h"
#include "support/folder.h"
#include "widgets/qt_dialogs.h"

#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

class SheetEntry : public ::testing::Test {
protected:
    ColumnBase base;
    Folder folder;
    ScriptedDialogs dialogs;
    notes::Record record;
    std::optional<combinations::Digest> digest;
    std::unique_ptr<FernaWyn> form;

    void SetUp() override {
        base.fourAnchors(250, 150).loads(100, 40, 10);
        record.begin(notes::entered(base.stan, base.fields));
        ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
        record.caseEnded(base.stan, 1);
        form = std::make_unique<FernaWyn>(base.stan,
                                          std::make_unique<ResultsSession>(
                                              base.stan, dialogs, folder.path(QStringLiteral(".")),
                                              true, [] { return QDateTime::currentDateTime(); },
                                              [] { return RendererReport{}; }),
                                          FernaWyn::Links{.plateForm = [](QWidget*) {},
                                                          .anchorForm = [](QWidget*) {},
                                                          .help = [] {},
                                                          .back = [] {},
                                                          .endProgram = [] {}});
        addSheetEntry(*form, base.stan, record, dialogs, [this] { return digest; });
    }

    /// Of a table of 300 rows of which two were taken.
    combinations::Digest ofTwoRows() const {
        const auto made = combinations::Evaluator::of(base.stan, base.fields);
        const auto& evaluator = std::get<combinations::Evaluator>(made);
        combinations::AnsweredTable table;
        for (int i = 0; i < 298; ++i)
            table.add(combinations::Combination{QStringLiteral("małe"), {50, 1, 1}, {}});
        table.add(combinations::Refusal{QStringLiteral("zła"), QStringLiteral("kolumna N: brak")});
        table.add(combinations::Combination{QStringLiteral("K<1>"), {100, 40, 10}, {60, 5}});
        table.answerNext(evaluator, table.size());
        return digestOf(table, QStringLiteral("hala & co.csv"), {300, 1});
    }

    QAction* entry() const { return form->moreMenu()->actions().last(); }

    QByteArray written(const QString& name) const {
        QFile file(folder.path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(SheetEntry, StandsInTheMenuOfWhatIsBesideTheReport) {
    EXPECT_EQ(entry()->text(), QStringLiteral("&Arkusz obliczeniowy..."));
}

TEST_F(SheetEntry, SavesTheSheetInTheFormatOfTheName) {
    dialogs.answers = {folder.path(QStringLiteral("a.pdf")), folder.path(QStringLiteral("a.html"))};
    entry()->trigger();
    entry()->trigger();
    EXPECT_TRUE(written(QStringLiteral("a.pdf")).startsWith("%PDF"));
    EXPECT_TRUE(written(QStringLiteral("a.html")).contains("data-symbol=\"sigma_b_s\""));
}

TEST_F(SheetEntry, ANameWithAnotherEndingBecomesAPdf) {
    dialogs.answers = {folder.path(QStringLiteral("Hala 1.2"))};
    entry()->trigger();
    EXPECT_TRUE(written(QStringLiteral("Hala 1.2.pdf")).startsWith("%PDF"));
}

TEST_F(SheetEntry, AFileWhoseNameGetsTheEndingIsReplacedOnlyOnceItIsAskedFor) {
    folder.write(QStringLiteral("Hala 1.2.pdf"), "of yesterday");
    dialogs.answers = {folder.path(QStringLiteral("Hala 1.2")), QStringLiteral("nie")};
    entry()->trigger();
    EXPECT_EQ(written(QStringLiteral("Hala 1.2.pdf")), "of yesterday");
    EXPECT_TRUE(dialogs.questions.back().text.contains(QStringLiteral("Hala 1.2.pdf")));
    dialogs.answers = {folder.path(QStringLiteral("Hala 1.2")), QStringLiteral("tak")};
    entry()->trigger();
    EXPECT_TRUE(written(QStringLiteral("Hala 1.2.pdf")).startsWith("%PDF"));
}

TEST_F(SheetEntry, TheSheetHasTheProjectTheProgramAndTheResultsOfTheForm) {
    dialogs.answers = {folder.path(QStringLiteral("a.html"))};
    entry()->trigger();
    const QString html = QString::fromUtf8(written(QStringLiteral("a.html")));
    EXPECT_TRUE(html.contains(QStringLiteral(">Hala A<")));
    EXPECT_TRUE(html.contains(QStringLiteral(">Ferna 2005 Pr ")));
    EXPECT_TRUE(html.contains(QDate::currentDate().toString(Qt::ISODate)));
    EXPECT_TRUE(html.contains(QStringLiteral("Poszukiwanie: znaleziono oś obojętną.")));
}

TEST_F(SheetEntry, TellsOfTheTableWhoseRowsTheCasesAre) {
    dialogs.answers = {folder.path(QStringLiteral("a.html")),
                       folder.path(QStringLiteral("b.html"))};
    entry()->trigger();
    EXPECT_FALSE(written(QStringLiteral("a.html")).contains("data-symbol=\"k_rows\""));
    digest = ofTwoRows();
    entry()->trigger();
    EXPECT_TRUE(written(QStringLiteral("b.html")).contains("data-symbol=\"k_rows\""));
}

TEST_F(SheetEntry, OfATableCalculatesTheRowsTakenAndLeavesWhatIsEntered) {
    dialogs.answers = {folder.path(QStringLiteral("a.html"))};
    const combinations::Digest two = ofTwoRows();
    const Single before = base.stan.wyniki.Sigma_b(1);
    EXPECT_EQ(saveSheetOf(two, base.stan, base.fields, dialogs),
              folder.path(QStringLiteral("a.html")));
    EXPECT_EQ(base.stan.wyniki.Sigma_b(1), before);
    const QString page = QString::fromUtf8(written(QStringLiteral("a.html")));
    // Both rows are cases, by the search and exactly.
    for (const char* number : {"<span data-case=\"1\" data-symbol=\"N\" data-value=\"100\"",
                               "<span data-case=\"2\" data-symbol=\"N\" data-value=\"50\"",
                               "<span data-case=\"1\" data-symbol=\"sigma_b_s\"",
                               "<span data-case=\"1\" data-symbol=\"u_i_e\"",
                               "<span data-case=\"0\" data-symbol=\"k_rows\" data-value=\"300\"",
                               "<span data-case=\"0\" data-symbol=\"k_refused\" data-value=\"1\""})
        EXPECT_TRUE(page.contains(QString::fromLatin1(number))) << number;
    EXPECT_TRUE(page.contains(u"hala &amp; co.csv"));
    EXPECT_TRUE(page.contains(u"K&lt;1&gt;"));
    EXPECT_TRUE(page.contains(u"data-formula=\"max(k1_i,k2_i)\""));
    // The exact utilisation of the table is that of the sheet's own case.
    const auto valueOf = [&page](const char* symbol) {
        const QString head =
            QStringLiteral("data-symbol=\"%1\" data-value=\"").arg(QString::fromLatin1(symbol));
        const qsizetype at = page.indexOf(head) + head.size();
        return page.mid(at, page.indexOf(u'"', at) - at).toDouble();
    };
    EXPECT_GT(valueOf("k1_i"), 0.1);
    EXPECT_NEAR(valueOf("k1_i"), valueOf("u_i_e"), 1e-9);
    EXPECT_EQ(valueOf("k_max_i"), valueOf("k1_i"));
}

TEST_F(SheetEntry, OfATableWithoutAnAnswerToItsQuestionWritesNothing) {
    EXPECT_EQ(saveSheetOf(ofTwoRows(), base.stan, base.fields, dialogs), std::nullopt);
    EXPECT_TRUE(QDir(folder.path(QStringLiteral("."))).entryList(QDir::Files).isEmpty());
}

TEST_F(SheetEntry, ACancelledQuestionWritesNothing) {
    entry()->trigger();
    EXPECT_TRUE(QDir(folder.path(QStringLiteral("."))).entryList(QDir::Files).isEmpty());
    EXPECT_TRUE(dialogs.messages.empty());
}

} // namespace
