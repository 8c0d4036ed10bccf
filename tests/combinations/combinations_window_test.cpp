#include "combinations/forms/answers_filter.h"
#include "combinations/forms/answers_model.h"
#include "combinations/forms/combination_entries.h"
#include "combinations/forms/comparison_view.h"
#include "combinations/forms/governing_view.h"
#include "combinations/forms/histogram.h"
#include "desktop/forms/Help_window.h"
#include "desktop/forms/help_key.h"
#include "editing/forms/load_table_keys.h"
#include "input/anchor_layout.h"
#include "runtime/format.h"
#include "support/keyboard_order.h"
#include "support/main_form.h"
#include "task/forms/task_desk.h"
#include "widgets/note_band.h"

#include <QCheckBox>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QMenu>
#include <QTableView>

using namespace ferna;
using namespace ferna::testing;

namespace {

const QString table = QStringLiteral("Kombinacja;N [kN];My;Mz;Ty;Tz\n"
                                     "KO-1;300;20;0;1;0\n"
                                     "KO-2;100;60;10;5;0\n"
                                     "KO-3;300;x;0;1;0\n"
                                     "KO-4;2500;20;0;1;0\n"
                                     "KO-5;100;-60;10;5;0\n");

class CombinationsWindowTest : public MainForm {
protected:
    /// A plate of 600 x 400 mm with four anchors.
    void SetUp() override {
        MainForm::SetUp();
        stan.plyta.Liczba_srub = 4;
        int i = 1;
        for (const int x : {-250, 250})
            for (const int y : {-150, 150})
                storeAnchorAt(stan.plyta, CInt(i++), CInt(x), CInt(y), 24);
        Lista_srub(stan);
        form->fieldOf({Value::PlateLength})->setText(QStringLiteral("600"));
        form->fieldOf({Value::PlateWidth})->setText(QStringLiteral("400"));
    }
    void prepare() override {
        new LoadTableKeys(form.get());
        around.answered = [this] { ++told; };
        entries = new CombinationEntries(stan, *form, dialogs, around);
    }

    static void accept(QWidget& modal) {
        auto* const buttons = modal.findChild<QDialogButtonBox*>();
        QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
    }
    void read(const QString& text) {
        answers.dialog(QStringLiteral("Wczytanie_kombinacji"), accept);
        entries->openWith(text);
        waitForWork();
    }
    /// Takes a table whose rows keep the window busy for a while.
    void beginLongWork() {
        QString large;
        for (int i = 0; i < 200'000; ++i)
            large += QStringLiteral("KO-%1;300;20;0;1;0\n").arg(i);
        answers.dialog(QStringLiteral("Wczytanie_kombinacji"), accept);
        window().readText(large);
    }
    void waitForWork() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !window().work().isWorking(); }, 60'000));
    }

    CombinationsWindow& window() const { return *entries->window(); }
    QTableView& view() const {
        for (auto* one : window().findChildren<QTableView*>())
            if (one->accessibleName() == u"Kombinacje")
                return *one;
        throw std::runtime_error("no table");
    }
    QString cell(int row, int column) const {
        return view().model()->index(row, column).data().toString();
    }
    QPushButton* button(const QString& caption) const {
        for (auto* one : window().findChildren<QPushButton*>())
            if (one->text() == caption)
                return one;
        throw std::runtime_error("no button");
    }
    QStringList notes() const {
        return window().findChild<NoteBand*>(QStringLiteral("uwagi"))->notes();
    }
    QStringList governing() const {
        const auto* const all = window().findChild<GoverningView*>();
        QStringList lines;
        for (int r = 0; r < all->rowCount(); ++r)
            if (!all->isRowHidden(r))
                lines += all->item(r, 0)->text() + u' ' + all->item(r, 2)->text();
        return lines;
    }
    QString loadRow(int r) const {
        const LoadRow<QString> texts = form->fields().loads.at(static_cast<std::size_t>(r));
        return QStringList({texts.N, texts.M1, texts.M2, texts.Vx, texts.Vy}).join(u' ');
    }

    QTableWidget& comparison() const {
        return *window().findChild<ComparisonView*>()->findChild<QTableWidget*>();
    }
    QString aboutComparison() const {
        return window().findChild<ComparisonView*>()->findChild<QLabel*>()->text();
    }
    QString compared(int row, int column) const { return comparison().item(row, column)->text(); }
    void calculate() {
        activate();
        click("cmdOblicz");
        ASSERT_EQ(resultsOpened, 1);
        entries->calculated();
    }
    void putAndCalculate(const QString& rows) {
        read(rows);
        QTest::mouseClick(button(QStringLiteral("&Wstaw do tabeli")), Qt::LeftButton);
        calculate();
    }

    AroundCombinations around;
    CombinationEntries* entries = nullptr;
    int told = 0; ///< how often answers became others
};

TEST_F(CombinationsWindowTest, StandsInTheMenuAndIsClosedAtFirst) {
    const QList<QAction*> entries_ = form->menus().task->actions();
    const auto found = std::find_if(entries_.begin(), entries_.end(), [](const QAction* action) {
        return action->text() == u"&Kombinacje...";
    });
    ASSERT_NE(found, entries_.end());
    EXPECT_EQ(entries->window(), nullptr);
    (*found)->trigger();
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(button(QStringLiteral("&Wstaw do tabeli"))->isEnabled());
}

TEST_F(CombinationsWindowTest, WhatIsReadIsShownBeforeItIsTaken) {
    answers.dialog(QStringLiteral("Wczytanie_kombinacji"), [](QWidget& modal) {
        QTableWidget* read = nullptr;
        for (auto* one : modal.findChildren<QTableWidget*>())
            if (one->accessibleName() == u"Odczytane kombinacje")
                read = one;
        ASSERT_NE(read, nullptr);
        EXPECT_EQ(read->item(1, 2)->text(), QStringLiteral("60"));
        EXPECT_EQ(read->item(2, 1)->text(),
                  QStringLiteral("odrzucony: kolumna M1 (My): \"x\" nie jest liczbą"));
        QTest::keyClick(&modal, Qt::Key_Escape);
    });
    entries->openWith(table);
    EXPECT_EQ(window().work().table().size(), 0U);
}

TEST_F(CombinationsWindowTest, ColumnsUnitsAndSignsAreChosenByHand) {
    answers.dialog(QStringLiteral("Wczytanie_kombinacji"), [](QWidget& modal) {
        const QList<QComboBox*> lists = modal.findChildren<QComboBox*>();
        auto* const buttons = modal.findChild<QDialogButtonBox*>();
        EXPECT_FALSE(buttons->button(QDialogButtonBox::Ok)->isEnabled());
        // the name, then column and unit of N, M1 ...
        lists[1]->setCurrentIndex(lists[1]->findText(QStringLiteral("H3")));
        lists[2]->setCurrentIndex(lists[2]->findText(QStringLiteral("N")));
        modal.findChildren<QCheckBox*>().front()->setChecked(true);
        lists[3]->setCurrentIndex(lists[3]->findText(QStringLiteral("H2")));
        accept(modal);
    });
    entries->openWith(QStringLiteral("H1;H2;H3\na;20;-300000\n"));
    waitForWork();
    const auto* const one = window().work().table().combination(1);
    ASSERT_NE(one, nullptr);
    EXPECT_EQ(one->load.N, 300);
    EXPECT_EQ(one->load.M1, 20);
    EXPECT_EQ(one->load.M2, 0);
}

TEST_F(CombinationsWindowTest, EveryRowHasItsAnswerOrItsRefusal) {
    read(table);
    ASSERT_EQ(view().model()->rowCount(), 5);
    EXPECT_EQ(cell(2, AnswersModel::Remark),
              QStringLiteral("odrzucony: kolumna M1 (My): \"x\" nie jest liczbą"));
    EXPECT_EQ(cell(2, AnswersModel::Tension), QString());
    const auto made = combinations::Evaluator::of(stan, form->fields());
    const auto& evaluator = std::get<combinations::Evaluator>(made);
    for (const int row : {1, 2, 4, 5}) {
        const auto answer = evaluator.answer(*window().work().table().combination(row));
        ASSERT_TRUE(answer);
        EXPECT_EQ(cell(row - 1, AnswersModel::Concrete), combinations::useText(answer->concrete));
        EXPECT_EQ(cell(row - 1, AnswersModel::Tension), combinations::useText(answer->tension));
    }
    EXPECT_EQ(governing(), (QStringList{QStringLiteral("Beton KO-4 (wiersz 4)"),
                                        QStringLiteral("Rozciąganie KO-2 (wiersz 2)"),
                                        QStringLiteral("Interakcja w żadnej nie występuje")}));
    EXPECT_EQ(window().findChild<GoverningView*>()->item(1, 3)->text(),
              QStringLiteral("KO-5 (wiersz 5)"));
}

TEST_F(CombinationsWindowTest, FilterAndOrderChangeWhatIsSeen) {
    read(table);
    auto* const shown = window().findChild<QComboBox*>();
    shown->setCurrentIndex(static_cast<int>(AnswersFilter::Shown::Refused));
    ASSERT_EQ(view().model()->rowCount(), 1);
    EXPECT_EQ(cell(0, AnswersModel::Name), QStringLiteral("KO-3"));
    shown->setCurrentIndex(0);
    window().findChild<QLineEdit*>()->setText(QStringLiteral("ko-4"));
    EXPECT_EQ(view().model()->rowCount(), 1);
    window().findChild<QLineEdit*>()->clear();
    for (const auto order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        view().sortByColumn(AnswersModel::Tension, order);
        EXPECT_EQ(cell(4, AnswersModel::Name), QStringLiteral("KO-3")) << "refused ones come last";
        const QString first = cell(0, AnswersModel::Tension);
        const QString last = cell(3, AnswersModel::Tension);
        EXPECT_EQ(first < last, order == Qt::AscendingOrder);
    }
}

TEST_F(CombinationsWindowTest, WstawFillsTheLoadTableWithTheGoverningRowsAndObliczConfirmsThem) {
    read(table);
    form->fieldOf({Value::CaseCount})->setText(QStringLiteral("6"));
    QTest::mouseClick(button(QStringLiteral("&Wstaw do tabeli")), Qt::LeftButton);
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 4);
    EXPECT_EQ(text("Text1"), QStringLiteral("4"));
    EXPECT_EQ(loadRow(0), QStringLiteral("2500 20 0 1 0"));
    EXPECT_EQ(loadRow(1), QStringLiteral("100 60 10 5 0"));
    EXPECT_EQ(loadRow(2), QStringLiteral("300 20 0 1 0")) << "the first, where shear is nowhere";
    EXPECT_EQ(loadRow(3), QStringLiteral("100 -60 10 5 0"));

    QTest::qWait(500); // also when the rows have been answered anew
    EXPECT_EQ(notes(), QStringList(QStringLiteral(
                           "Wstawiono do tabeli obciążeń wierszy: 4. Oblicz policzy je i utworzy "
                           "raport; porównanie pokaże się tutaj.")));

    EXPECT_EQ(comparison().rowCount(), 0);
    EXPECT_EQ(aboutComparison(), QStringLiteral("Wstawionych wierszy jeszcze nie obliczono."));
    calculate();
    EXPECT_EQ(aboutComparison(),
              QStringLiteral("Wytężenie według Oblicz / z dokładnej równowagi."));
    ASSERT_EQ(comparison().rowCount(), 4);
    for (int r = 0; r < 4; ++r) {
        EXPECT_EQ(compared(r, 5), QStringLiteral("zgodne"));
        for (int check = 2; check < 5; ++check) {
            const QStringList both = compared(r, check).split(QStringLiteral(" / "));
            ASSERT_EQ(both.size(), 2);
            EXPECT_EQ(both[0], both[1]);
        }
    }
    EXPECT_EQ(notes(), QStringList(QStringLiteral("Oblicz potwierdza wstawione wiersze.")));
    stan.wyniki.Sigma_b(4) *= 0.9F;
    form->record().caseEnded(stan, 4);
    entries->calculated();
    EXPECT_EQ(compared(3, 5), QStringLiteral("różnią się: beton"));
    EXPECT_TRUE(notes().front().contains(u"się różnią: 1"));
}

TEST_F(CombinationsWindowTest, ADifferenceInTheInteractionIsNamed) {
    putAndCalculate(QStringLiteral("KO;N;M1;M2;Vx;Vy\nA;100;60;10;60;0\nB;150;40;0;70;0\n"));
    ASSERT_EQ(comparison().rowCount(), 2);
    EXPECT_EQ(comparison().horizontalHeaderItem(4)->text(), QStringLiteral("Interakcja"));
    EXPECT_EQ(compared(0, 5), QStringLiteral("zgodne"));
    EXPECT_NE(compared(0, 4).section(QStringLiteral(" / "), 0, 0), QStringLiteral("0,00"));
    // An earlier calculation has left a stress for an anchor that is not in tension now.
    stan.wyniki.Sigma_kotwy(1)(1) = -500;
    entries->calculated();
    EXPECT_EQ(compared(0, 5), QStringLiteral("różnią się: interakcja"));
}

TEST_F(CombinationsWindowTest, ADifferenceInTheShearOfTheTensionSideIsNamed) {
    stan.opcje.Hsily_wszystkie = 1;
    show(Konfiguracja);
    click("optHsruby_1");
    putAndCalculate(QStringLiteral("KO;N;M1;M2;Vx;Vy\nA;100;60;10;60;0\nB;150;40;0;70;0\n"));
    EXPECT_EQ(comparison().horizontalHeaderItem(4)->text(), QStringLiteral("Ścinanie"));
    EXPECT_EQ(compared(0, 5), QStringLiteral("zgodne"));
    EXPECT_NE(compared(0, 4).section(QStringLiteral(" / "), 0, 0), QStringLiteral("0,00"));
    stan.materialy.Fv_kotwy /= 2;
    entries->calculated();
    EXPECT_EQ(compared(0, 5), QStringLiteral("różnią się: ścinanie"));
}

TEST_F(CombinationsWindowTest, WhatCannotBeComparedIsSaid) {
    read(table);
    QTest::mouseClick(button(QStringLiteral("&Wstaw do tabeli")), Qt::LeftButton);
    form->fieldOf({Value::N, 1})->setText(QStringLiteral("120"));
    calculate();
    ASSERT_EQ(comparison().rowCount(), 4);
    EXPECT_EQ(compared(1, 5),
              QStringLiteral("nie porównano: w tabeli obciążeń stoją tu inne siły"));
    EXPECT_EQ(compared(1, 3), QString());
    EXPECT_EQ(compared(2, 5), QStringLiteral("zgodne"));
    EXPECT_EQ(notes(),
              QStringList(QStringLiteral("Oblicz potwierdza wstawione wiersze. Wierszy, których "
                                         "nie porównano: 1.")));
    EXPECT_FALSE(entries->calculatedDigest()) << "a case is no row of the table";
    stan.wyniki.outcomes(4) = CaseOutcome::NotComputed;
    entries->calculated();
    EXPECT_EQ(compared(3, 5), QStringLiteral("nie porównano: Oblicz nie doszło do tego przypadku"));
    show(Sruby);
    type("Text3", QStringLiteral("650"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return comparison().rowCount() == 0; }, 5000))
        << "the base is another one now";
    EXPECT_EQ(aboutComparison(), QStringLiteral("Zadanie zmieniło się od obliczenia: porównanie "
                                                "będzie tu po następnym Oblicz."));
}

TEST_F(CombinationsWindowTest, TheDigestOfTheCalculatedRowsIsThatOfTheTable) {
    read(table);
    EXPECT_FALSE(entries->calculatedDigest()) << "nothing is put";
    QTest::mouseClick(button(QStringLiteral("&Wstaw do tabeli")), Qt::LeftButton);
    calculate();
    const auto digest = entries->calculatedDigest();
    ASSERT_TRUE(digest);
    EXPECT_EQ(digest->source, QStringLiteral("schowek"));
    EXPECT_EQ(digest->rows, 5);
    EXPECT_EQ(digest->refused, 1);
    ASSERT_EQ(digest->governing.size(), 2U) << "no shear in any row";
    EXPECT_EQ(digest->governing[0].check, Check::Concrete);
    EXPECT_EQ(digest->governing[0].name, QStringLiteral("KO-4"));
    EXPECT_EQ(digest->governing[1].rows, (std::vector<combinations::RowNumber>{2, 5}))
        << "ties included";
    ASSERT_EQ(digest->taken.size(), 4U);
    EXPECT_EQ(digest->taken[1].row, 2);
    EXPECT_EQ(digest->taken[1].combination.load.M1, 60);
    EXPECT_EQ(combinations::useOf(digest->taken[1].used, Check::Tension),
              digest->governing[1].envelope);
    read(table); // another one, of which nothing was put
    EXPECT_FALSE(entries->calculatedDigest());
}

TEST_F(CombinationsWindowTest, ABaseChangedWhileTheWindowWasClosedIsTheOneThatIsCompared) {
    read(table);
    QTest::mouseClick(button(QStringLiteral("&Wstaw do tabeli")), Qt::LeftButton);
    window().close();
    form->fieldOf({Value::PlateLength})->setText(QStringLiteral("750"));
    QTest::qWait(500); // typing has paused, and nobody looks at the answers
    calculate();
    ASSERT_EQ(comparison().rowCount(), 4);
    for (int r = 0; r < 4; ++r)
        EXPECT_EQ(compared(r, 5), QStringLiteral("zgodne"));
    EXPECT_FALSE(entries->calculatedDigest()) << "the table has the answers of another base";
    entries->open();
    waitForWork();
    EXPECT_TRUE(entries->calculatedDigest());
}

TEST_F(CombinationsWindowTest, ChartAndSheetAreOfferedOnceThereAreAnswersToShow) {
    int charts = 0;
    std::optional<combinations::Digest> written;
    around.showInChart = [&] { ++charts; };
    around.saveSheet = [&](const combinations::Digest& digest) {
        written = digest;
        return std::optional(QStringLiteral("a.pdf"));
    };
    SetUp();
    entries->open();
    auto* const chart = button(QStringLiteral("Na w&ykres nośności"));
    auto* const sheet = button(QStringLiteral("&Do arkusza..."));
    EXPECT_FALSE(chart->isEnabled());
    EXPECT_FALSE(sheet->isEnabled());
    const int before = told;
    read(table);
    EXPECT_GT(told, before);
    QTest::mouseClick(chart, Qt::LeftButton);
    EXPECT_EQ(charts, 1);
    QTest::mouseClick(sheet, Qt::LeftButton);
    ASSERT_TRUE(written);
    EXPECT_EQ(written->taken.front().row, 4);
    EXPECT_EQ(notes(), QStringList(QStringLiteral("Zapisano a.pdf.")));
}

TEST_F(CombinationsWindowTest, F1OpensItsPageOfTheHelpAlsoInTheDialogOfTheReading) {
    answers.dialog(QStringLiteral("Wczytanie_kombinacji"), [](QWidget& modal) {
        EXPECT_EQ(helpContextOf(modal.focusWidget()), help::Combinations);
        accept(modal);
    });
    entries->openWith(table);
    waitForWork();
    for (const QWidget* part : window().findChildren<QWidget*>())
        EXPECT_EQ(helpContextOf(part), help::Combinations) << part->objectName().toStdString();
}

TEST_F(CombinationsWindowTest, TheKeyboardReachesEverythingInTheOrderOfReading) {
    around.showInChart = [] {};
    around.saveSheet = [](const combinations::Digest&) { return std::optional<QString>(); };
    SetUp();
    entries->open();
    EXPECT_EQ(window().focusWidget(), button(QStringLiteral("Wczytaj &plik...")))
        << "without a table";
    read(table);
    expectUniqueMnemonics(window());
    window().close();
    entries->open();
    waitForWork();
    EXPECT_EQ(window().focusWidget(), &view());
    expectTabsInReadingOrder(window());
}

TEST_F(CombinationsWindowTest, TheDialogOfTheReadingIsWorkedByTheKeyboard) {
    answers.dialog(QStringLiteral("Wczytanie_kombinacji"), [](QWidget& modal) {
        auto* const buttons = modal.findChild<QDialogButtonBox*>();
        EXPECT_EQ(modal.focusWidget(), buttons->button(QDialogButtonBox::Ok));
        expectUniqueMnemonics(modal);
        QStringList order;
        for (QWidget* at = modal.nextInFocusChain(); at != &modal; at = at->nextInFocusChain())
            if (qobject_cast<QComboBox*>(at) || qobject_cast<QCheckBox*>(at)
                || qobject_cast<QPushButton*>(at))
                order += QString::fromLatin1(at->metaObject()->className());
        ASSERT_EQ(order.size(), 18);
        EXPECT_EQ(order.front(), QStringLiteral("QComboBox"));
        EXPECT_EQ(order[3], QStringLiteral("QCheckBox")) << "name, column, unit, sign";
        EXPECT_EQ(order.mid(16),
                  (QStringList{QStringLiteral("QPushButton"), QStringLiteral("QPushButton")}));
        QTest::keyClick(modal.focusWidget(), Qt::Key_Return);
    });
    entries->openWith(table);
    waitForWork();
    EXPECT_EQ(window().work().table().size(), 5U);
    answers.dialog(QStringLiteral("Wczytanie_kombinacji"), [](QWidget& modal) {
        EXPECT_EQ(modal.focusWidget(), modal.findChildren<QComboBox*>()[1])
            << "what the engineer has to choose";
        QTest::keyClick(&modal, Qt::Key_Escape);
    });
    window().readText(QStringLiteral("H1;H2;H3\na;20;-300000\n"));
}

TEST_F(CombinationsWindowTest, EnterInTheFilterGoesToTheTableAndEscEndsTheWorkFirst) {
    read(table);
    auto* const filter = window().findChild<QLineEdit*>();
    filter->setFocus();
    QTest::keyClick(filter, Qt::Key_Return);
    EXPECT_EQ(window().focusWidget(), &view());
    EXPECT_TRUE(window().isVisible());
    beginLongWork();
    ASSERT_TRUE(window().work().isWorking());
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_FALSE(window().work().isReading());
    EXPECT_TRUE(window().isVisible());
    waitForWork();
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_FALSE(window().isVisible());
}

TEST_F(CombinationsWindowTest, WhatWstawPutIsTakenBackInOneStep) {
    const QTemporaryDir kept;
    TaskDesk desk(*form, dialogs, kept.path());
    desk.begin();
    const QString before = loadRow(0);
    const QString count = text("Text1");
    read(table);
    QTest::mouseClick(button(QStringLiteral("&Wstaw do tabeli")), Qt::LeftButton);
    settle();
    ASSERT_EQ(loadRow(0), QStringLiteral("2500 20 0 1 0"));
    ASSERT_TRUE(desk.history().canUndo());
    EXPECT_EQ(desk.history().undoName(), QStringLiteral("wstawienie kombinacji"));
    desk.undo();
    EXPECT_EQ(loadRow(0), before);
    EXPECT_EQ(text("Text1"), count);
    EXPECT_FALSE(desk.canUndo());
    desk.redo();
    EXPECT_EQ(loadRow(0), QStringLiteral("2500 20 0 1 0"));
    EXPECT_EQ(text("Text1"), QStringLiteral("4"));
}

TEST_F(CombinationsWindowTest, AnswersAnewWhenTheBaseChanges) {
    read(table);
    const QString before = cell(1, AnswersModel::Tension);
    show(Dane_ogolne);
    type("Text2", QStringLiteral("20"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return cell(1, AnswersModel::Tension) != before; }, 5000));
    show(Sruby);
    type("Text3", QStringLiteral("x"));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return notes().join(u' ').contains(u"Kombinacji nie można policzyć"); }, 5000));
}

TEST_F(CombinationsWindowTest, PrzerwijLeavesTheTableOfBefore) {
    read(table);
    beginLongWork();
    ASSERT_TRUE(window().work().isWorking());
    QTest::qWait(30);
    ASSERT_TRUE(window().work().isReading());
    QTest::mouseClick(button(QStringLiteral("P&rzerwij")), Qt::LeftButton);
    EXPECT_FALSE(window().work().isWorking());
    EXPECT_EQ(window().work().table().size(), 5U);
    EXPECT_EQ(view().model()->rowCount(), 5);
    EXPECT_EQ(governing().front(), QStringLiteral("Beton KO-4 (wiersz 4)"));
    EXPECT_NE(cell(1, AnswersModel::Tension), QString());
    EXPECT_TRUE(notes().join(u' ').contains(u"Wczytywanie przerwano"));
}

TEST_F(CombinationsWindowTest, ATableTooLargeForTheLoadTableIsOfferedToTheWindow) {
    QString large;
    for (int i = 1; i <= 7; ++i)
        large += QStringLiteral("%1\t20\t0\t1\t0\n").arg(100 * i);
    const auto paste = [&] {
        show(Obciazenia_);
        QApplication::clipboard()->setText(large);
        key(Qt::Key_V, Qt::ControlModifier);
    };
    const QString question =
        QStringLiteral("Tabela ma więcej wierszy, niż mieści tabela obciążeń.\n"
                       "Otworzyć ją w oknie Kombinacje, które wybierze wiersze miarodajne?");
    answers.box(QStringLiteral("Ferna 2005 Pr - Kombinacje"), question, QStringLiteral("Nie"));
    paste();
    EXPECT_EQ(entries->window(), nullptr);
    EXPECT_EQ(loadRow(5), QStringLiteral("600 20 0 1 0")) << "the first six, as ever";
    const QString before = loadRow(0);
    answers.box(QStringLiteral("Ferna 2005 Pr - Kombinacje"), question, QStringLiteral("Tak"));
    answers.dialog(QStringLiteral("Wczytanie_kombinacji"), accept);
    large.replace(QStringLiteral("100\t"), QStringLiteral("150\t"));
    paste();
    waitForWork();
    EXPECT_EQ(window().work().table().size(), 7U);
    EXPECT_EQ(loadRow(0), before);
}

TEST_F(CombinationsWindowTest, ExportsEveryRowWithItsAnswer) {
    read(table);
    const QByteArray bytes = answersAsCsv(window().work().table());
    ASSERT_TRUE(bytes.startsWith("\xEF\xBB\xBF")) << "so that a spreadsheet takes it for UTF-8";
    const QStringList lines = QString::fromUtf8(bytes).split(QStringLiteral("\r\n"));
    ASSERT_EQ(lines.size(), 7);
    EXPECT_TRUE(lines[0].startsWith(u"wiersz;nazwa;N [kN];M1 [kNm]"));
    const auto& answer = window().work().table().answer(2);
    EXPECT_EQ(lines[2],
              QStringLiteral("2;KO-2;100;60;10;5;0;%1;%2;0,0000;0,0000;%3;")
                  .arg(Format(answer->concrete, u"0.0000"), Format(answer->tension, u"0.0000"))
                  .arg(answer->anchor));
    EXPECT_EQ(lines[3], QStringLiteral("3;KO-3;;;;;;;;;;;\"odrzucony: kolumna M1 (My): \"\"x\"\" "
                                       "nie jest liczbą\""));
}

TEST(HistogramBins, StandOnTheTenthBelow) {
    EXPECT_EQ(Histogram::binOf(0), 0);
    EXPECT_EQ(Histogram::binOf(0.1), 0);
    EXPECT_EQ(Histogram::binOf(0.11), 1);
    EXPECT_EQ(Histogram::binOf(1), 9);
    EXPECT_EQ(Histogram::binOf(1.0001), 10);
    EXPECT_EQ(Histogram::binOf(std::numeric_limits<Double>::infinity()), Histogram::bins - 1);
}

} // namespace
