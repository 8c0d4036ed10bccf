// The band of notes above the report.
#include "report/forms/FernaWyn.h"
#include "report/forms/renderer_wait.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"
#include "support/modal_answers.h"
#include "support/printing.h"
#include "support/results_folder.h"
#include "widgets/note_band.h"
#include "widgets/qt_dialogs.h"

#include <QMenuBar>
#include <QTest>

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

class NotesAboveTheReport : public ::testing::Test {
protected:
    ColumnBase base;
    ResultsFolder folder;
    QtDialogs dialogs;
    ModalAnswers answers;
    WithDecimalSign comma{u','};
    QStringList notes;
    QString labelOfNotes;
    std::unique_ptr<FernaWyn> form;

    void SetUp() override {
        base.fourAnchors(250, 150).loads(900, 5, 0);
        ASSERT_EQ(base.calculate(), CalculationEnd::Computed);
    }

    void open(const QString& label) {
        const QString path = folder.path(QStringLiteral("."));
        auto session = std::make_unique<ResultsSession>(
            base.stan, dialogs, path, true,
            [] { return QDateTime(QDate(2024, 3, 9), QTime(14, 5)); },
            [path] { return runRenderer(path); });
        form = std::make_unique<FernaWyn>(
            base.stan, std::move(session),
            FernaWyn::Links{.plateForm =
                                [this](QWidget*) {
                                    notes += QStringLiteral("Przyjęto grubość blachy 12 mm.");
                                    base.stan.raport.Liczba_wierszy_blachy = 2;
                                },
                            .anchorForm = [](QWidget*) {},
                            .help = [] {},
                            .back = [] {},
                            .endProgram = [] {},
                            .notes =
                                [this](const QString& typed) {
                                    labelOfNotes = typed;
                                    return notes;
                                }});
        answers.input(QStringLiteral("Ferna 2005 Pr"),
                      QStringLiteral("Podaj oznaczenie stopy (max 32 znaki)"), QString(), label);
        form->open();
    }

    NoteBand* band() const { return form->findChild<NoteBand*>(QStringLiteral("uwagi")); }
    QWidget* report() const { return form->findChild<QWidget*>(QStringLiteral("Picture1")); }
    int bottomOfMenu() const {
        return form->findChild<QMenuBar*>(QStringLiteral("menubar"))->geometry().bottom();
    }
    int topOf(QWidget* widget) const { return widget->mapTo(form.get(), QPoint(0, 0)).y(); }
};

TEST_F(NotesAboveTheReport, ThereIsNoBandWhereThereIsNothingToSay) {
    open(QStringLiteral("F-1"));
    EXPECT_FALSE(band()->isVisible());
    EXPECT_LE(topOf(report()) - bottomOfMenu(), 2);
}

TEST_F(NotesAboveTheReport, TheBandStandsBetweenTheMenuAndTheReport) {
    notes = {QStringLiteral("Przypadek 1: poszukiwanie podało 0,05 MPa."),
             QStringLiteral("Przypadek 2: nie stoi.")};
    open(QStringLiteral("F-1"));
    ASSERT_TRUE(band()->isVisible());
    EXPECT_EQ(band()->notes(), notes);
    EXPECT_GT(topOf(band()), bottomOfMenu());
    EXPECT_GE(topOf(report()), topOf(band()) + band()->height());
    EXPECT_EQ(form->focusWidget(), report()) << "the keys are the report's";
}

TEST_F(NotesAboveTheReport, ItFollowsThePlateSectionAndTheLabel) {
    const QString longLabel = QString(32, u'F') + QStringLiteral("xyz");
    open(longLabel);
    EXPECT_EQ(labelOfNotes, longLabel) << "as typed";
    EXPECT_FALSE(band()->isVisible());
    form->findChild<QAction*>(QStringLiteral("mnuGrub_blachy"))->trigger();
    EXPECT_EQ(band()->notes(), QStringList{QStringLiteral("Przyjęto grubość blachy 12 mm.")});
    EXPECT_TRUE(band()->isVisible());
}

} // namespace
