// The entries of "&Więcej" that write the report as documents.
#include "app/document_entries.h"
#include "protocol/renderer_files.h"
#include "report/forms/FernaWyn.h"
#include "support/column_base.h"
#include "support/printing.h"
#include "support/results_folder.h"

#include <QAction>
#include <QMenu>
#include <QProcess>

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

class DocumentEntriesOfTheResults : public ::testing::Test {
protected:
    void SetUp() override {
        base.fourAnchors(250, 150).loads(320, 60, 5);
        ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
        auto session = std::make_unique<ResultsSession>(
            base.stan, base.dialogs, path(), true,
            [] { return QDateTime(QDate(2024, 3, 9), QTime(14, 5)); },
            [this] { return runRenderer(path()); });
        form = std::make_unique<FernaWyn>(base.stan, std::move(session), FernaWyn::Links{});
        addDocumentEntries(*form, {path(), base.dialogs, [this](const QStringList& options) {
                                       return runRenderer(path(), options);
                                   }});
        base.dialogs.answers.push_back(QStringLiteral("F-7"));
        form->open();
    }

    QString path() const { return folder.path(QStringLiteral(".")); }

    QByteArray saved(const char* entry, const char* file) {
        base.dialogs.answers.push_back(folder.path(QString::fromLatin1(file)));
        const std::size_t asked = base.dialogs.questions.size();
        form->findChild<QAction*>(QString::fromLatin1(entry))->trigger();
        EXPECT_EQ(base.dialogs.questions.size(), asked + 1) << "only where to save";
        EXPECT_TRUE(QFile::exists(folder.path(QString::fromLatin1(file)))) << file;
        return folder.read(QString::fromLatin1(file));
    }

    ColumnBase base;
    ResultsFolder folder;
    std::unique_ptr<FernaWyn> form;
};

TEST_F(DocumentEntriesOfTheResults, StandInTheMenuOfWhatIsMore) {
    QStringList captions;
    for (const QAction* entry : form->moreMenu()->actions())
        captions += entry->text();
    const QStringList expected{QStringLiteral("Zapisz jako &PDF..."),
                               QStringLiteral("Raport edytowalny &ODT..."),
                               QStringLiteral("Raport edytowalny &DOCX...")};
    EXPECT_EQ(captions.join(u'|').toStdString(), expected.join(u'|').toStdString());
}

TEST_F(DocumentEntriesOfTheResults, WriteAPdfOfThePagesOnTheScreen) {
    const QByteArray pdf = saved("mnuZapiszPDF", "a.pdf");
    EXPECT_TRUE(pdf.startsWith("%PDF"));
    QProcess text;
    text.start(QStringLiteral("pdftotext"),
               {folder.path(QStringLiteral("a.pdf")), QStringLiteral("-")});
    ASSERT_TRUE(text.waitForFinished());
    const QByteArray words = text.readAllStandardOutput();
    EXPECT_TRUE(words.contains("09/03/24")) << "the title block stands as it was";
    EXPECT_TRUE(words.contains("F-7"));
}

TEST_F(DocumentEntriesOfTheResults, WriteTheEditableReport) {
    EXPECT_TRUE(saved("mnuZapiszODT", "a.odt").contains("opendocument.text"));
    EXPECT_TRUE(saved("mnuZapiszDOCX", "a.docx").contains("word/document.xml"));
}

TEST_F(DocumentEntriesOfTheResults, LeaveNothingWhereTheQuestionIsCancelled) {
    const QStringList before = folder.names();
    for (const char* entry : {"mnuZapiszPDF", "mnuZapiszODT", "mnuZapiszDOCX"})
        form->findChild<QAction*>(QString::fromLatin1(entry))->trigger();
    EXPECT_EQ(folder.names().join(u' ').toStdString(), before.join(u' ').toStdString());
}

} // namespace
