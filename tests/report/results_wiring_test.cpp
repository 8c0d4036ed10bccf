// What a refresh of the report leaves alone, whom the menu calls, and where the keyboard is then.
#include "protocol/renderer_files.h"
#include "report/forms/FernaWyn.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"
#include "support/modal_answers.h"
#include "support/printing.h"
#include "support/results_folder.h"
#include "widgets/qt_dialogs.h"

#include <QAction>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// The results form with a clock that goes on and links that count their calls.
class ResultsWiring : public ::testing::Test {
protected:
    void SetUp() override {
        base.fourAnchors(250, 150).loads(320, 60, 5);
        ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
        auto session = std::make_unique<ResultsSession>(
            base.stan, dialogs, path(), true, [this] { return now; },
            [this] { return runRenderer(path()); });
        form = std::make_unique<FernaWyn>(
            base.stan, std::move(session),
            FernaWyn::Links{.plateForm = [this](QWidget*) { called += QStringLiteral("blacha "); },
                            .anchorForm = [this](QWidget*) { called += QStringLiteral("kotwa "); },
                            .help = [this] { called += QStringLiteral("pomoc "); },
                            .back = [this] { called += QStringLiteral("powrot "); },
                            .endProgram = [this] { called += QStringLiteral("koniec "); }});
        askedForLabel();
        form->open();
    }

    QString path() const { return folder.path(QStringLiteral(".")); }
    void askedForLabel() {
        answers.dialog(QStringLiteral("inputBox"),
                       [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    }
    void asked(const QString& prompt, const QString& preset, const QString& answer) {
        answers.input(programTitle, prompt, preset, answer);
    }
    void clickPanel(int number) {
        QTest::mouseClick(
            form->findChild<QToolButton*>(QStringLiteral("StatusBar1_%1").arg(number)),
            Qt::LeftButton);
    }
    void trigger(const char* action) {
        form->findChild<QAction*>(QString::fromLatin1(action))->trigger();
    }
    bool says(const char* text) const { return folder.read(wyd::bodyFile).contains(text); }
    QString focused() const {
        return form->focusWidget() ? form->focusWidget()->objectName() : QString();
    }

    ColumnBase base;
    ResultsFolder folder;
    QtDialogs dialogs;
    ModalAnswers answers;
    WithDecimalSign comma{u','};
    QDateTime now{QDate(2024, 3, 9), QTime(14, 5)};
    QString called;
    std::unique_ptr<FernaWyn> form;
};

TEST_F(ResultsWiring, TheTitleBlockKeepsItsTimeAndItsNameAtARefresh) {
    ASSERT_TRUE(says("09/03/24     14:05"));
    now = now.addSecs(3600);
    asked(QStringLiteral("Podaj nr strony"), QStringLiteral("1"), QStringLiteral("12"));
    clickPanel(2); // one question only: not that of the label
    EXPECT_TRUE(answers.done());
    EXPECT_TRUE(says("Strona 12"));
    asked(QStringLiteral("Podaj nazwe projektu"), QStringLiteral("Hala A"),
          QStringLiteral("Hala B"));
    clickPanel(4);
    trigger("mnuGrub_blachy");
    trigger("mnuDobor_ferny");
    EXPECT_TRUE(says("09/03/24     14:05"));
    EXPECT_TRUE(says("\r\nHala A\r\n")) << "the title block is that of the last time it was made";
    askedForLabel();
    trigger("mnuTytul");
    asked(QStringLiteral("Podaj nr strony"), QStringLiteral("12"), QStringLiteral("13"));
    clickPanel(2);
    EXPECT_TRUE(says("09/03/24     15:05"));
    EXPECT_TRUE(says("\r\nHala B\r\n"));
}

TEST_F(ResultsWiring, EachEntryOfTheMenuCallsItsOwn) {
    for (const char* action :
         {"mnuGrub_blachy", "mnuDobor_ferny", "mnuPomoc", "mnuPowrot", "mnuKoniec", "mnuKoniec2"})
        trigger(action);
    EXPECT_EQ(called, QStringLiteral("blacha kotwa pomoc powrot koniec koniec "));
}

TEST_F(ResultsWiring, OpeningPutsTheKeyboardOnTheReport) {
    form->hide();
    form->findChild<QToolButton*>(QStringLiteral("StatusBar1_2"))->setFocus();
    ASSERT_NE(focused(), QStringLiteral("Picture1"));
    askedForLabel();
    form->open();
    EXPECT_EQ(focused(), QStringLiteral("Picture1"));
}

TEST_F(ResultsWiring, TheKeysScrollTheReportAfterEveryReturn) {
    EXPECT_EQ(focused(), QStringLiteral("Picture1"));
    for (const char* action : {"mnuGrub_blachy", "mnuDobor_ferny", "mnuPomoc"}) {
        trigger(action);
        EXPECT_EQ(focused(), QStringLiteral("Picture1")) << action;
    }
    asked(QStringLiteral("Podaj nr strony"), QStringLiteral("1"), QStringLiteral("12"));
    clickPanel(2);
    EXPECT_EQ(focused(), QStringLiteral("Picture1"));
}

} // namespace
