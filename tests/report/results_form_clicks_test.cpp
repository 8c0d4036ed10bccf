#include "design/configuration.h"
#include "protocol/renderer_files.h"
#include "report/forms/FernaWyn.h"
#include "report/forms/renderer_wait.h"
#include "report/forms/report_view.h"
#include "report/forms/written_files.h"
#include "runtime/settings.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"
#include "support/modal_answers.h"
#include "support/places.h"
#include "support/printing.h"
#include "support/results_folder.h"
#include "widgets/qt_dialogs.h"

#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QUrl>

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// The results form after a calculation of two cases, with the renderer of this build.
class ResultsForm : public ::testing::Test {
protected:
    ColumnBase base;
    ResultsFolder folder;
    QtDialogs dialogs;
    ModalAnswers answers;
    WithDecimalSign comma{u','};
    int backs = 0;
    int ends = 0;
    std::function<RendererReport()> render;
    std::function<void()> endProgram = [this] { ++ends; };
    std::unique_ptr<FernaWyn> form;

    void SetUp() override {
        render = [this] { return runRenderer(path()); };
        base.fourAnchors(250, 150).loads(320, 60, 5).loads(900, 5, 0);
        ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    }

    QString path() const { return folder.path(QStringLiteral(".")); }

    void open(const QString& label = QStringLiteral("F-1")) {
        open(label, [this] { form->open(); });
    }

    void open(const QString& label, const std::function<void()>& opening) {
        auto session = std::make_unique<ResultsSession>(
            base.stan, dialogs, path(), true,
            [] { return QDateTime(QDate(2024, 3, 9), QTime(14, 5)); }, [this] { return render(); });
        form = std::make_unique<FernaWyn>(
            base.stan, std::move(session),
            FernaWyn::Links{
                .plateForm = [this](QWidget*) { base.stan.raport.Liczba_wierszy_blachy = 2; },
                .anchorForm = [](QWidget*) {},
                .help = [] {},
                .back = [this] { ++backs; },
                .endProgram = [this] { endProgram(); }});
        askedForLabel(QString(), label);
        opening();
    }

    void askedForLabel(const QString& preset, const QString& label) {
        answers.input(QStringLiteral("Ferna 2005 Pr"),
                      QStringLiteral("Podaj oznaczenie stopy (max 32 znaki)"), preset, label);
    }

    /// The next save question, with its title, is answered by a name in the program folder. What it
    /// offers is "Wyniki" with the same ending.
    void saveUnder(const QString& title, const QString& name) {
        answers.dialog(QStringLiteral("saveQuestion"), [this, title, name](QWidget& modal) {
            auto& question = static_cast<QFileDialog&>(modal);
            EXPECT_EQ(question.windowTitle(), title);
            EXPECT_EQ(question.selectedFiles().value(0).section(u'/', -1),
                      QStringLiteral("Wyniki") + name.mid(name.lastIndexOf(u'.')));
            auto* const field = question.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            field->setText(folder.path(name));
            QTest::keyClick(field, Qt::Key_Return);
            EXPECT_TRUE(QTest::qWaitFor([&modal] { return !modal.isVisible(); }));
        });
    }

    QAction* action(const char* name) const {
        return form->findChild<QAction*>(QString::fromLatin1(name));
    }
    QString panel(int number) const {
        const QString name = QStringLiteral("StatusBar1_%1").arg(number);
        if (const auto* const button = form->findChild<QToolButton*>(name))
            return button->text();
        return form->findChild<QLabel*>(name)->text();
    }
    void clickPanel(int number) {
        QTest::mouseClick(
            form->findChild<QToolButton*>(QStringLiteral("StatusBar1_%1").arg(number)),
            Qt::LeftButton);
    }
    ReportView* report() const { return form->findChild<ReportView*>(QStringLiteral("Picture2")); }
    QScrollBar* bar() const { return form->findChild<QScrollBar*>(QStringLiteral("VScroll")); }
};

TEST_F(ResultsForm, OpensWithTheReportAsWideAsTheViewportAndTheFourPanels) {
    open();
    EXPECT_EQ(panel(2), QStringLiteral(" Strona 1"));
    EXPECT_EQ(panel(3), QStringLiteral("OK"));
    EXPECT_EQ(panel(4), QStringLiteral("Hala A"));
    EXPECT_EQ(panel(5), QStringLiteral("F-1"));
    const QWidget* const viewport = form->findChild<QWidget*>(QStringLiteral("Picture1"));
    EXPECT_EQ(report()->width(), viewport->width());
    EXPECT_GE(report()->heightFor(100), 140) << "at least one sheet of A4";
    EXPECT_FALSE(folder.names().contains(wyd::screenPicture));
    int dark = 0;
    const QImage shown = report()->grab().toImage();
    for (int x = 0; x < shown.width(); ++x)
        for (int y = 0; y < shown.height() / 3; ++y)
            dark += qGray(shown.pixel(x, y)) < 100;
    EXPECT_GT(dark, 500) << "frame and letters";
}

TEST_F(ResultsForm, TellsExceededStressesApartByWeightAndColour) {
    open();
    const auto* const state = form->findChild<QLabel*>(QStringLiteral("StatusBar1_3"));
    const auto* const project = form->findChild<QToolButton*>(QStringLiteral("StatusBar1_4"));
    const auto ink = [](const QWidget* panel) {
        return panel->palette().color(QPalette::Active, QPalette::WindowText);
    };
    EXPECT_EQ(panel(3), QStringLiteral("OK"));
    EXPECT_FALSE(state->font().bold());
    EXPECT_EQ(ink(state), ink(project));
    base.stan.wyniki.Kotwy_OK = False;
    askedForLabel(QStringLiteral("F-1"), QStringLiteral("F-1"));
    action("mnuTytul")->trigger();
    EXPECT_EQ(panel(3), QStringLiteral(" Przekroczone naprezenia !! "));
    EXPECT_TRUE(state->font().bold());
    EXPECT_GT(ink(state).red(), ink(state).green() + 100);
}

TEST_F(ResultsForm, ScrollsByKeysAndBar) {
    open();
    form->resize(500, 400);
    ASSERT_GT(bar()->maximum(), 0);
    QTest::keyClick(form.get(), Qt::Key_End);
    EXPECT_EQ(bar()->value(), bar()->maximum());
    EXPECT_EQ(report()->y(), -bar()->maximum());
    QTest::keyClick(form.get(), Qt::Key_PageUp);
    EXPECT_EQ(bar()->value(), bar()->maximum() - bar()->pageStep());
    QTest::keyClick(form.get(), Qt::Key_Home);
    EXPECT_EQ(report()->y(), 0);
}

TEST_F(ResultsForm, OffersRtfByItsMode) {
    base.stan.opcje.Tryb_RTF = 0;
    open();
    EXPECT_EQ(action("mnuZapiszrtf")->text(), QStringLiteral("Zapisz jako RTF"));
    EXPECT_TRUE(action("mnuZapiszrtf")->isVisible());
    EXPECT_FALSE(action("mnuZapiszrtf")->isEnabled());
    const QStringList before = folder.names();
    action("mnuZapiszrtf")->trigger(); // asks for no name
    EXPECT_EQ(folder.names(), before);
    base.stan.opcje.Tryb_RTF = 1;
    open();
    EXPECT_EQ(action("mnuZapiszrtf")->text(), QStringLiteral("Zapisz jako RTF (MSWord)"));
    EXPECT_TRUE(action("mnuZapiszrtf")->isEnabled());
    base.stan.opcje.Tryb_RTF = 2;
    open();
    EXPECT_EQ(action("mnuZapiszrtf")->text(), QStringLiteral("Zapisz jako RTF (StarOffice)"));
    EXPECT_TRUE(action("mnuZapiszrtf")->isEnabled());
}

TEST_F(ResultsForm, AsksByAClickOnAPanelAndRefreshes) {
    open();
    answers.input(QStringLiteral("Ferna 2005 Pr"), QStringLiteral("Podaj nr strony"),
                  QStringLiteral("1"), QStringLiteral("12"));
    clickPanel(2);
    EXPECT_EQ(panel(2), QStringLiteral(" Strona 12"));
    EXPECT_TRUE(folder.read(wyd::bodyFile).contains("Strona 12\r\n"));
    answers.input(QStringLiteral("Ferna 2005 Pr"), QStringLiteral("Podaj nazwe projektu"),
                  QStringLiteral("Hala A"), QStringLiteral("Hala B"));
    clickPanel(4);
    EXPECT_EQ(panel(4), QStringLiteral("Hala B"));
    askedForLabel(QStringLiteral("F-1"), QString(40, u'x'));
    clickPanel(5);
    EXPECT_EQ(panel(5), QString(32, u'x'));
}

TEST_F(ResultsForm, TakesAClickAnywhereOnAPanel) {
    open();
    auto* const page = form->findChild<QToolButton*>(QStringLiteral("StatusBar1_2"));
    EXPECT_GT(page->width(), form->width() / 10);
    answers.input(QStringLiteral("Ferna 2005 Pr"), QStringLiteral("Podaj nr strony"),
                  QStringLiteral("1"), QStringLiteral("5"));
    QTest::mouseClick(page, Qt::LeftButton, {}, QPoint(page->width() - 2, page->height() / 2));
    EXPECT_EQ(panel(2), QStringLiteral(" Strona 5"));
}

TEST_F(ResultsForm, KeepsItsWidthUnderALongProjectName) {
    open();
    const int width = form->minimumSizeHint().width();
    answers.input(QStringLiteral("Ferna 2005 Pr"), QStringLiteral("Podaj nazwe projektu"),
                  QStringLiteral("Hala A"), QString(300, u'x'));
    clickPanel(4);
    EXPECT_EQ(panel(4), QString(300, u'x'));
    QCoreApplication::processEvents(); // the layout follows
    EXPECT_EQ(form->minimumSizeHint().width(), width);
}

TEST_F(ResultsForm, AsksForTheLabelOfAPrintWithoutTheHourglass) {
    open();
    render = [] { return RendererReport{}; };
    answers.dialog(QStringLiteral("inputBox"), [](QWidget& modal) {
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        QTest::keyClick(&modal, Qt::Key_Return);
    });
    action("mnuDrukuj")->trigger();
}

TEST_F(ResultsForm, StopsAtACancelledPagePromptAndGoesOn) {
    open();
    answers.cancelInput(QStringLiteral("Ferna 2005 Pr"));
    answers.stop(error::TypeMismatch);
    action("mnuNrstrony")->trigger();
    EXPECT_EQ(panel(2), QStringLiteral(" Strona 1"));
}

TEST_F(ResultsForm, OffersEachSectionOnceAndNoAnchorWhereOneIsExceeded) {
    open();
    QMenu* const details = form->findChild<QMenu*>(QStringLiteral("mnuDalsze_obl"));
    emit details->aboutToShow();
    EXPECT_TRUE(action("mnuGrub_blachy")->isEnabled());
    EXPECT_TRUE(action("mnuDobor_ferny")->isEnabled());
    action("mnuGrub_blachy")->trigger();
    base.stan.wyniki.Kotwy_OK = False;
    emit details->aboutToShow();
    EXPECT_FALSE(action("mnuGrub_blachy")->isEnabled());
    EXPECT_FALSE(action("mnuDobor_ferny")->isEnabled());
    ASSERT_EQ(base.calculate(), CalculationEnd::Computed); // drops the section
    open();
    QMenu* const anew = form->findChild<QMenu*>(QStringLiteral("mnuDalsze_obl"));
    emit anew->aboutToShow();
    EXPECT_TRUE(action("mnuGrub_blachy")->isEnabled());
    EXPECT_TRUE(action("mnuDobor_ferny")->isEnabled());
    base.stan.raport.Liczba_wierszy_kotwy = 9;
    emit anew->aboutToShow();
    EXPECT_TRUE(action("mnuGrub_blachy")->isEnabled());
    EXPECT_FALSE(action("mnuDobor_ferny")->isEnabled());
}

TEST_F(ResultsForm, GoesToTheTopWithSomeRoomBelowAfterASection) {
    open();
    form->resize(500, 400);
    const int range = bar()->maximum();
    ASSERT_GT(range, 0);
    bar()->setValue(range);
    action("mnuDobor_ferny")->trigger(); // adds nothing: the report is as long as before
    EXPECT_EQ(bar()->value(), 0);
    EXPECT_EQ(report()->y(), 0);
    EXPECT_EQ(bar()->maximum(), range + 25);
}

TEST_F(ResultsForm, TakesAPageNumberFromTheMenuWithoutANewPicture) {
    open();
    int rendered = 0;
    render = [&] {
        ++rendered;
        return runRenderer(path());
    };
    answers.input(QStringLiteral("Ferna 2005 Pr"), QStringLiteral("Podaj nr strony"),
                  QStringLiteral("1"), QStringLiteral("12"));
    askedForLabel(QStringLiteral("F-1"), QStringLiteral("F-2"));
    action("mnuNrstrony")->trigger();
    EXPECT_EQ(panel(2), QStringLiteral(" Strona 12"));
    EXPECT_EQ(panel(5), QStringLiteral("F-2"));
    askedForLabel(QStringLiteral("F-2"), QStringLiteral("F-3"));
    action("mnuTytul")->trigger();
    EXPECT_EQ(panel(5), QStringLiteral("F-3"));
    EXPECT_EQ(rendered, 0);
    EXPECT_FALSE(folder.read(wyd::bodyFile).contains("Strona 12\r\n"));
    answers.input(QStringLiteral("Ferna 2005 Pr"), QStringLiteral("Podaj nazwe projektu"),
                  QStringLiteral("Hala A"), QStringLiteral("Hala A"));
    clickPanel(4);
    EXPECT_EQ(rendered, 1);
    EXPECT_TRUE(folder.read(wyd::bodyFile).contains("Strona 12\r\n"));
    EXPECT_TRUE(folder.read(wyd::bodyFile).contains("\r\nF-3\r\n"));
}

TEST_F(ResultsForm, ShowsNoLabelWhereNoneWasGiven) {
    open();
    answers.cancelInput(QStringLiteral("Ferna 2005 Pr"));
    action("mnuTytul")->trigger();
    EXPECT_EQ(panel(5), QString());
    open(QString());
    EXPECT_EQ(panel(5), QString());
    EXPECT_TRUE(folder.read(wyd::frameFile).contains("3,3.,28.0,1,,3.5,1.,0.,0,0,0,400,5\r\n\r\n"));
}

TEST_F(ResultsForm, CarriesTheCaptionsOfItsMenu) {
    open();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("WY N I K I"));
    for (const auto& [name, caption] :
         {std::pair{"mnuNrstrony", "Zmień nr &strony"},
          std::pair{"mnuZapiszdoc", "Zapisz jako dokum. &Word'a"},
          std::pair{"mnuZapiszEMF", "Zapisz jako &EMF"},
          std::pair{"mnuZapisztxt", "Zapisz jako &txt"}, std::pair{"mnuDrukuj", "&Drukuj"},
          std::pair{"mnuDrukuj2", "Dr&ukuj..."}, std::pair{"mnuKoniec2", "&Zakończ"},
          std::pair{"mnuTytul", "&Tytuł"}, std::pair{"mnuPowrot", "&Powrót"},
          std::pair{"mnuGrub_blachy", "Grubość blachy"}, std::pair{"mnuDobor_ferny", "Dobór kotwy"},
          std::pair{"mnuKoniec", "&Koniec"}, std::pair{"mnuPomoc", "Pomo&c"}})
        EXPECT_EQ(action(name)->text(), QString::fromUtf8(caption)) << name;
    QStringList bar;
    for (const QAction* entry : form->menuBar()->actions())
        if (entry->isVisible())
            bar += entry->text();
    EXPECT_EQ(bar.join(u'|'), QStringLiteral("&Plik|&Tytuł|&Powrót|&Szczegóły|&Koniec|Pomo&c"));
}

TEST_F(ResultsForm, ShutsTheScrollBarWhereTheReportFits) {
    open();
    form->resize(480, 2000); // a narrow report on a high form
    action("mnuGrub_blachy")->trigger();
    EXPECT_FALSE(bar()->isEnabled());
    form->resize(480, 400);
    EXPECT_TRUE(bar()->isEnabled());
}

TEST_F(ResultsForm, OpensTheFileMenuWithEveryAltP) {
    open();
    form->resize(500, 400);
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    QMenu* const file = form->findChild<QMenu*>(QStringLiteral("mnuPlik"));
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(form.get(), Qt::Key_P, Qt::AltModifier);
        EXPECT_TRUE(file->isVisible());
        QTest::keyClick(file, Qt::Key_Escape);
        EXPECT_FALSE(file->isVisible());
        QTest::keyClick(form->menuBar(), Qt::Key_Escape);
    }
    EXPECT_EQ(backs, 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    EXPECT_GT(bar()->value(), 0) << "the keys are the report's again";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_LT(bar()->value(), bar()->maximum());
    QTest::keyClick(form.get(), Qt::Key_P, Qt::AltModifier);
    QTest::keyClick(file, Qt::Key_Right);
    QTest::keyClick(form->menuBar(), Qt::Key_Right);
    QTest::keyClick(form->menuBar(), Qt::Key_Return);
    EXPECT_EQ(backs, 1);
}

TEST_F(ResultsForm, ShowsNoWaitingBoxWhileTheRendererHasAWindowOfItsOwn) {
    using std::chrono::seconds;
    open();
    const auto box = [this] {
        const auto* const dialog = form->findChild<QDialog*>(QStringLiteral("rendererWait"));
        return dialog != nullptr && dialog->isVisible();
    };
    RendererWait wait(form.get());
    EXPECT_TRUE(wait.goOn({seconds(60), true}));
    EXPECT_FALSE(box());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    answers.dialog(QStringLiteral("rendererWait"), [&](QWidget&) {
        EXPECT_TRUE(box());
        EXPECT_TRUE(wait.goOn({seconds(0), true})) << "a window that comes late";
        EXPECT_FALSE(box());
    });
    for (int i = 0; i < 1000 && !answers.done(); ++i) {
        ASSERT_TRUE(wait.goOn({seconds(5), false}));
        QTest::qSleep(5);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

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

TEST_F(ResultsForm, HasKeysForItsCommands) {
    open();
    for (const auto& [name, keys] :
         {std::pair{"mnuDrukuj", "Ctrl+P"}, std::pair{"mnuDrukuj2", "Ctrl+Shift+P"},
          std::pair{"mnuZapiszdoc", "Ctrl+S"}, std::pair{"mnuZapiszrtf", "Ctrl+R"},
          std::pair{"mnuZapiszEMF", "Ctrl+E"}, std::pair{"mnuZapisztxt", "Ctrl+T"},
          std::pair{"mnuPowrot", "Ctrl+W"}, std::pair{"mnuKoniec2", "Ctrl+Q"}})
        EXPECT_EQ(action(name)->shortcut(), QKeySequence(QString::fromLatin1(keys))) << name;
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    QTest::keyClick(form.get(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(backs, 1);
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

TEST_F(ResultsForm, TellsAFailedRendererAndStaysUsable) {
    render = []() -> RendererReport {
        throw RunTimeError(error::NoObject, QStringLiteral("Wyd_drk"));
    };
    open(QStringLiteral("F-1"), [this] { EXPECT_THROW(form->open(), RunTimeError); });
    EXPECT_TRUE(form->isVisible());
    folder.write(wyd::replyFile, "0, 1\r\n");
    action("mnuPowrot")->trigger();
    EXPECT_EQ(backs, 1);
}

TEST_F(ResultsForm, OffersToGiveUpARendererThatHangs) {
    open();
    QFile::remove(folder.path(QStringLiteral("Wyd_drk")));
    QFile hanging(folder.write(QStringLiteral("Wyd_drk"), "#!/bin/sh\nexec sleep 600\n"));
    hanging.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    render = [this] {
        RendererWait wait(form.get());
        return runRenderer(path(), {},
                           [&](const RendererState& state) { return wait.goOn(state); });
    };
    answers.input(QStringLiteral("Ferna 2005 Pr"), QStringLiteral("Podaj nr strony"),
                  QStringLiteral("1"), QStringLiteral("12"));
    answers.dialog(QStringLiteral("rendererWait"), [](QWidget& modal) {
        const auto words = modal.findChildren<QLabel*>();
        EXPECT_TRUE(std::any_of(words.begin(), words.end(), [](const QLabel* label) {
            return label->text().startsWith(QStringLiteral("Wyd_drk pracuje od 4 s."));
        }));
        QTest::mouseClick(modal.findChild<QPushButton*>(), Qt::LeftButton);
    });
    answers.stop(error::NoObject);
    clickPanel(2);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "no hourglass is left over";
    EXPECT_TRUE(form->isEnabled());
    render = [this] { return runRenderer(path()); };
    QFile::remove(folder.path(QStringLiteral("Wyd_drk")));
    QFile::link(places::bin("/Wyd_drk"), folder.path(QStringLiteral("Wyd_drk")));
    answers.input(QStringLiteral("Ferna 2005 Pr"), QStringLiteral("Podaj nr strony"),
                  QStringLiteral("12"), QStringLiteral("13"));
    clickPanel(2);
    EXPECT_EQ(panel(2), QStringLiteral(" Strona 13")) << "and the next command works";
}

TEST_F(ResultsForm, TellsADamagedPictureOfTheRenderer) {
    open();
    render = [this] {
        folder.write(wyd::screenPicture, "to nie jest obraz");
        return RendererReport{};
    };
    answers.input(QStringLiteral("Ferna 2005 Pr"), QStringLiteral("Podaj nr strony"),
                  QStringLiteral("1"), QStringLiteral("12"));
    answers.stop(error::DeviceIO);
    clickPanel(2);
    EXPECT_TRUE(form->isVisible());
    EXPECT_FALSE(folder.names().contains(wyd::screenPicture));
}

TEST_F(ResultsForm, TellsAReplyWithLettersAndGoesBackWithThePageNumberAsItStands) {
    open();
    folder.write(wyd::replyFile, "jeden, dwa\r\n");
    answers.stop(error::TypeMismatch);
    action("mnuPowrot")->trigger();
    EXPECT_EQ(backs, 1);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(base.stan.opcje.Nr_strony, 1);
}

TEST_F(ResultsForm, IsLeftEvenWhereTheRendererFailsAndLeavesNoReply) {
    render = []() -> RendererReport {
        throw RunTimeError(error::NoObject, QStringLiteral("Wyd_drk"));
    };
    open(QStringLiteral("F-1"), [this] { EXPECT_THROW(form->open(), RunTimeError); });
    const auto saveAndEnd = [this] {
        Zapisz_cfg(base.stan, folder.path(QStringLiteral("Ferna.cfg")),
                   folder.path(wyd::replyFile));
    };
    endProgram = saveAndEnd;
    answers.stop(error::FileNotFound); // the end is abandoned, and the form can still be left
    action("mnuKoniec")->trigger();
    EXPECT_TRUE(form->isVisible());
    answers.stop(error::FileNotFound);
    action("mnuPowrot")->trigger();
    EXPECT_EQ(backs, 1);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(base.stan.opcje.Nr_strony, 1);
    form->show();
    answers.stop(error::FileNotFound);
    form->close();
    EXPECT_EQ(backs, 2);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(ResultsForm, EndsTheProgramAtTheStopOfAMissingReply) {
    open();
    QFile::remove(folder.path(wyd::replyFile));
    for (const char* command : {"mnuPowrot", "mnuKoniec2"}) {
        endProgram = [this] {
            Zapisz_cfg(base.stan, folder.path(QStringLiteral("Ferna.cfg")),
                       folder.path(wyd::replyFile));
        };
        answers.stop(error::FileNotFound, true);
        QTimer::singleShot(0, form.get(), [this, command] { action(command)->trigger(); });
        QTimer::singleShot(5000, form.get(), [] { QApplication::exit(99); });
        EXPECT_EQ(QApplication::exec(), 1) << command;
    }
    EXPECT_EQ(backs, 0);
    EXPECT_FALSE(folder.names().contains(QStringLiteral("Ferna.cfg")));
}

TEST_F(ResultsForm, GoesBackWithTheNextFreePageAlsoByItsFrame) {
    open();
    action("mnuPowrot")->trigger();
    EXPECT_EQ(backs, 1);
    EXPECT_EQ(base.stan.opcje.Nr_strony, 3); // the report has two pages
    EXPECT_FALSE(form->isVisible());
    form->show();
    form->close();
    EXPECT_EQ(backs, 2);
}

TEST_F(ResultsForm, EndsTheProgramFromBothPlaces) {
    open();
    action("mnuKoniec")->trigger();
    action("mnuKoniec2")->trigger();
    EXPECT_EQ(ends, 2);
}

} // namespace
