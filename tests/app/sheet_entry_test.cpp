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
        addSheetEntry(*form, base.stan, record, dialogs);
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

TEST_F(SheetEntry, ACancelledQuestionWritesNothing) {
    entry()->trigger();
    EXPECT_TRUE(QDir(folder.path(QStringLiteral("."))).entryList(QDir::Files).isEmpty());
    EXPECT_TRUE(dialogs.messages.empty());
}

} // namespace
