// The results form as it opens, its panels, menu and keys.
#include "protocol/renderer_files.h"
#include "report/forms/renderer_wait.h"
#include "report/results_form.h"

#include <QMenu>
#include <QMenuBar>

using namespace ferna;
using namespace ferna::testing;

namespace {

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

} // namespace
