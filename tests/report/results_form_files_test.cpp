// What the results form saves, where, and what it says of it.
#include "report/forms/written_files.h"
#include "report/results_form.h"
#include "runtime/settings.h"

#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

using namespace ferna;
using namespace ferna::testing;

namespace {

TEST_F(ResultsForm, SavesInTheDocumentsAtFirstAndThenInTheFolderUsedLast) {
    open();
    const Folder documents;
    const Folder used;
    const QString home = qEnvironmentVariable("XDG_CONFIG_HOME");
    ASSERT_FALSE(home.isEmpty());
    ASSERT_TRUE(settings::file().startsWith(home)) << "the user's own settings are not touched";
    QFile::remove(settings::file());
    QFile directories(home + QStringLiteral("/user-dirs.dirs"));
    ASSERT_TRUE(directories.open(QIODevice::WriteOnly));
    directories.write("XDG_DOCUMENTS_DIR=\"" + documents.path(QString()).toUtf8() + "\"\n");
    directories.close();
    const auto saved = [&](const QString& expected, const QString& name) {
        answers.dialog(QStringLiteral("saveQuestion"), [=](QWidget& modal) {
            auto& question = static_cast<QFileDialog&>(modal);
            EXPECT_EQ(question.directory().canonicalPath(), QDir(expected).canonicalPath());
            auto* const field = question.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            field->setText(name);
            QTest::keyClick(field, Qt::Key_Return);
        });
        action("mnuZapisztxt")->trigger();
    };
    saved(documents.path(QString()), used.path(QStringLiteral("a")));
    EXPECT_EQ(used.names(), QStringList{QStringLiteral("a.txt")}) << "with its ending";
    saved(used.path(QString()), QStringLiteral("Hala 1.2"));
    EXPECT_EQ(used.names().join(u'|'), QStringLiteral("Hala 1.2.txt|a.txt"));
    EXPECT_EQ(QDir::current().canonicalPath(), QDir(path()).canonicalPath())
        << "the current folder goes back";
    QFile::remove(settings::file());
}

TEST_F(ResultsForm, AsksBeforeAFileIsReplacedAndAsksForAnotherNameAfterNo) {
    open();
    folder.write(QStringLiteral("stary.txt"), "stary");
    answers.dialog(QStringLiteral("saveQuestion"), [this](QWidget& modal) {
        auto* const field = modal.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        field->setText(folder.path(QStringLiteral("stary")));
        QTest::keyClick(field, Qt::Key_Return);
    });
    answers.dialog(QStringLiteral("replaceQuestion"), [](QWidget& modal) {
        EXPECT_EQ(static_cast<QMessageBox&>(modal).text(),
                  QStringLiteral("Zastąpić istniejące pliki: stary.txt?"));
        QTest::keyClick(&modal, Qt::Key_Return); // No is the default
    });
    answers.dialog(QStringLiteral("saveQuestion"), [this](QWidget& modal) {
        auto* const field = modal.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        field->setText(folder.path(QStringLiteral("nowy.txt")));
        QTest::keyClick(field, Qt::Key_Return);
    });
    action("mnuZapisztxt")->trigger();
    EXPECT_EQ(folder.read(QStringLiteral("stary.txt")), "stary");
    EXPECT_TRUE(folder.names().contains(QStringLiteral("nowy.txt")));
}

TEST_F(ResultsForm, SaysWhatWasWrittenAndWhereAndOpensTheFolder) {
    open();
    const auto* const line = form->findChild<QWidget*>(QStringLiteral("zapisano"));
    const auto* const words = form->findChild<QLabel*>(QStringLiteral("lblZapisano"));
    EXPECT_FALSE(line->isVisible());
    saveUnder(QStringLiteral("Podaj nazwę pliku tekstowego"), QStringLiteral("stopa.txt"));
    action("mnuZapisztxt")->trigger();
    EXPECT_TRUE(line->isVisible());
    const QString where = QFileInfo(folder.path(QStringLiteral("stopa.txt"))).absolutePath();
    EXPECT_EQ(words->toolTip(), QStringLiteral("Zapisano stopa.txt w folderze ") + where);
    EXPECT_FALSE(words->text().isEmpty());
    QStringList opened;
    form->findChild<WrittenFiles*>(QStringLiteral("zapisano"))->setOpener([&](const QUrl& url) {
        opened += url.toLocalFile();
        return true;
    });
    QTest::mouseClick(form->findChild<QPushButton*>(QStringLiteral("cmdOtworz_folder")),
                      Qt::LeftButton);
    EXPECT_EQ(opened, QStringList{where});
    answers.dialog(QStringLiteral("saveQuestion"), // the first cancel was not used up yet
                   [](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Escape); });
    answers.stop(error::Cancelled);
    action("mnuZapisztxt")->trigger();
}

TEST_F(ResultsForm, SaysWhereTheFirstCancelHasWritten) {
    open();
    QDir::setCurrent(path());
    answers.dialog(QStringLiteral("saveQuestion"),
                   [](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Escape); });
    action("mnuZapisztxt")->trigger();
    EXPECT_TRUE(folder.names().contains(QStringLiteral("Wyniki")));
    EXPECT_EQ(form->findChild<QLabel*>(QStringLiteral("lblZapisano"))->toolTip(),
              QStringLiteral("Zapisano Wyniki w folderze ") + QDir(path()).canonicalPath());
}

TEST_F(ResultsForm, SaysWhichFilesTheRendererHasSaved) {
    open();
    render = [] {
        return RendererReport{
            {QStringLiteral("/home/jan/rap-1.emf"), QStringLiteral("/home/jan/rap-2.emf")}};
    };
    askedForLabel(QStringLiteral("F-1"), QStringLiteral("F-1"));
    action("mnuZapiszEMF")->trigger();
    EXPECT_EQ(form->findChild<QLabel*>(QStringLiteral("lblZapisano"))->toolTip(),
              QStringLiteral("Zapisano rap-1.emf, rap-2.emf w folderze /home/jan"));
}

TEST_F(ResultsForm, SavesTheTextUnderTheNameThatIsAskedFor) {
    open();
    saveUnder(QStringLiteral("Podaj nazwę pliku tekstowego"), QStringLiteral("raport.txt"));
    action("mnuZapisztxt")->trigger();
    EXPECT_TRUE(folder.read(QStringLiteral("raport.txt")).contains("F-1\r\n"));
}

TEST_F(ResultsForm, ShowsThePageThatTheSavedRtfEndsOn) {
    for (int c = 3; c <= MaxCases; ++c)
        base.loads(320, 60, 5);
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    base.stan.opcje.Tryb_RTF = 1;
    base.stan.opcje.Nr_strony = 4;
    open();
    EXPECT_EQ(panel(2), QStringLiteral(" Strona 4"));
    saveUnder(QStringLiteral("Podaj nazwę pliku w formacie rtf"), QStringLiteral("raport.rtf"));
    action("mnuZapiszrtf")->trigger();
    const int pages = static_cast<int>(folder.read(QStringLiteral("raport.rtf")).count("\\page\\"));
    EXPECT_GT(pages, 0);
    EXPECT_EQ(base.stan.opcje.Nr_strony, 4 + pages);
    EXPECT_EQ(panel(2), QStringLiteral(" Strona %1 ").arg(4 + pages)) << "a blank behind it";
    answers.input(QStringLiteral("Ferna 2005 Pr"), QStringLiteral("Podaj nr strony"),
                  QString::number(4 + pages), QStringLiteral("2"));
    clickPanel(2);
    EXPECT_EQ(panel(2), QStringLiteral(" Strona 2"));
}

} // namespace
