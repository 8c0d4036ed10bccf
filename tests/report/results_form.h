#pragma once

#include "report/forms/FernaWyn.h"
#include "report/forms/report_view.h"
#include "support/column_base.h"
#include "support/decimal_comma.h"
#include "support/modal_answers.h"
#include "support/printing.h"
#include "support/results_folder.h"
#include "widgets/qt_dialogs.h"

#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace ferna::testing {

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

} // namespace ferna::testing
