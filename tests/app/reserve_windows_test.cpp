#include "app/reserve_entries.h"
#include "capacity/forms/chart_view.h"
#include "desktop/forms/Help_window.h"
#include "desktop/forms/help_key.h"
#include "runtime/format.h"
#include "support/keyboard_order.h"
#include "support/main_form.h"
#include "task/forms/task_desk.h"
#include "widgets/small_screen.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QMenu>
#include <QProgressBar>
#include <QScreen>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>

#include <cmath>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// The main form with a base of four anchors and two load cases, and the windows beside it.
class ReserveWindows : public MainForm {
protected:
    void SetUp() override {
        MainForm::SetUp();
        form->editAnchors([](Plyta_i_kotwy& plate) {
            for (const int x : {-250, 250})
                for (const int y : {-150, 150}) {
                    plate.Liczba_srub = CInt(plate.Liczba_srub + 1);
                    storeAnchorAt(plate, plate.Liczba_srub, x, y, 24);
                }
        });
        type("Text3", QStringLiteral("600"));
        type("Text4", QStringLiteral("400"));
        form->takeLoads(2, [this] {
            put(0, {"300", "60", "20", "40", "0"});
            put(1, {"120", "50", "-5", "10", "10"});
        });
        settle();
    }

    void prepare() override {
        entries = std::make_unique<ReserveEntries>(*form, stan, [this] { return others; });
    }
    void TearDown() override { entries.reset(); }

    void put(int r, const std::array<const char*, 5>& texts) {
        const Value columns[] = {Value::N, Value::M1, Value::M2, Value::Vx, Value::Vy};
        for (std::size_t c = 0; c < 5; ++c)
            form->fieldOf({columns[c], r})->setText(QString::fromLatin1(texts.at(c)));
    }

    QAction* entry(QMenu* menu, const char16_t* text) const {
        for (QAction* action : menu->actions())
            if (action->text() == QString::fromUtf16(text))
                return action;
        return nullptr;
    }

    template <typename Widget>
    static Widget* in(const QWidget& window, const char* name) {
        return window.findChild<Widget*>(QString::fromLatin1(name));
    }

    void openCapacity() {
        QAction* const open = entry(form->menus().view, u"&Nośność...");
        ASSERT_NE(open, nullptr);
        open->trigger();
        settle();
    }

    void openSmallest() {
        QAction* const open = entry(form->menus().task, u"&Dobór najmniejszej podstawy...");
        ASSERT_NE(open, nullptr);
        open->trigger();
        settle();
        for (const auto& [name, value] : {std::pair{"spnSlupH", 200},
                                          {"spnSlupB", 200},
                                          {"spnDlOd", 450},
                                          {"spnDlDo", 700},
                                          {"spnDlCo", 50},
                                          {"spnSzOd", 350},
                                          {"spnSzDo", 500},
                                          {"spnSzCo", 50}})
            in<QSpinBox>(entries->smallest(), name)->setValue(value);
    }

    const Chart& chart() const { return in<ChartView>(entries->capacity(), "wykres")->chart(); }

    QString reserve() const { return in<QLabel>(entries->capacity(), "lblZapas")->text(); }
    QString said() const { return in<QLabel>(entries->smallest(), "lblWynik")->text(); }
    QAbstractItemModel& table() const {
        return *in<QTableView>(entries->smallest(), "tabela")->model();
    }
    QString cell(int row, int column) const { return table().index(row, column).data().toString(); }

    CapacityWindow::OtherLoads others; ///< none at first
    std::unique_ptr<ReserveEntries> entries;
};

TEST_F(ReserveWindows, TheCapacityShowsTheLineOfTheFirstCaseWithBothCasesInIt) {
    openCapacity();
    ASSERT_TRUE(entries->capacity().isVisible());
    EXPECT_EQ(entries->capacity().windowTitle(), QStringLiteral("Nośność podstawy"));
    EXPECT_EQ(in<QLineEdit>(entries->capacity(), "txtN")->text(), QStringLiteral("300"));
    EXPECT_EQ(in<QLineEdit>(entries->capacity(), "txtV")->text(), QStringLiteral("40"));
    EXPECT_EQ(chart().N, 300);
    EXPECT_EQ(chart().line.points.size(), 360U);
    ASSERT_EQ(chart().points.size(), 2U);
    EXPECT_EQ(chart().points[1].name, QStringLiteral("Przypadek 2"));
    const auto strength = enteredStrength(stan, form->fields());
    EXPECT_EQ(chart().points[0].used, strength->used({300, 60, 20}, {40, 0})->worst());
    // 300 kN takes the shear by friction, so the first case can grow as far as its stresses.
    const double grows = loadFactor(*strength, {300, 60, 20}, {40, 0});
    EXPECT_NEAR(grows, 1 / chart().points[0].used, 1e-9);
    EXPECT_EQ(reserve(),
              QStringLiteral("Najbliżej granicy: Przypadek 1, wytężenie %1. Wszystkie "
                             "jego siły mogą razem wzrosnąć %2 raza.")
                  .arg(usedWords(chart().points[0].used), general(std::round(100 * grows) / 100)));
}

TEST_F(ReserveWindows, TheCapacityFollowsWhatIsTypedAndTheCaseThatIsChosen) {
    openCapacity();
    in<QComboBox>(entries->capacity(), "cmbPrzypadek")->setCurrentIndex(1);
    EXPECT_EQ(chart().N, 120);
    const double before = chart().line.points[0].load.M1;
    type("Text3", QStringLiteral("700"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return chart().line.points[0].load.M1 > before; }));
    EXPECT_EQ(chart().N, 120) << "the chosen case stays chosen";
    in<QComboBox>(entries->capacity(), "cmbPlaszczyzna")->setCurrentIndex(2);
    EXPECT_EQ(chart().plane, ChartPlane::NM2);
    EXPECT_FALSE(in<QLineEdit>(entries->capacity(), "txtN")->isEnabled());
}

TEST_F(ReserveWindows, TheCapacityTakesATypedForceAndSaysWhatItMisses) {
    openCapacity();
    auto* const N = in<QLineEdit>(entries->capacity(), "txtN");
    N->setFocus();
    N->selectAll();
    QTest::keyClicks(N, QStringLiteral("150,5"));
    EXPECT_EQ(chart().N, 150.5);
    N->selectAll();
    QTest::keyClicks(N, QStringLiteral("-"));
    auto* const save = in<QPushButton>(entries->capacity(), "cmdZapisz");
    EXPECT_FALSE(save->isEnabled());
    EXPECT_EQ(in<ChartView>(entries->capacity(), "wykres")->accessibleDescription(),
              QStringLiteral("Siły N i V linii muszą być liczbami."));
    type("Text4", QStringLiteral("x"));
    ASSERT_TRUE(QTest::qWaitFor([&] {
        return in<ChartView>(entries->capacity(), "wykres")
            ->accessibleDescription()
            .startsWith(QStringLiteral("Do wykresu potrzebne są"));
    }));
}

TEST_F(ReserveWindows, TypedForcesStayWhateverIsEnteredUntilACaseIsChosen) {
    openCapacity();
    auto* const N = in<QLineEdit>(entries->capacity(), "txtN");
    auto* const list = in<QComboBox>(entries->capacity(), "cmbPrzypadek");
    N->selectAll();
    QTest::keyClicks(N, QStringLiteral("150"));
    EXPECT_EQ(list->currentIndex(), -1);
    EXPECT_EQ(list->placeholderText(), QStringLiteral("wpisane"));
    const double before = chart().line.points[0].load.M1;
    type("Text3", QStringLiteral("700"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return chart().line.points[0].load.M1 > before; }));
    EXPECT_EQ(chart().N, 150);
    list->setCurrentIndex(1);
    EXPECT_EQ(chart().N, 120);
}

TEST_F(ReserveWindows, OtherLoadsStandInTheChartInPlaceOfTheCases) {
    openCapacity();
    auto* const points = in<QComboBox>(entries->capacity(), "cmbPunkty");
    EXPECT_FALSE(points->isVisible()) << "there are none";
    for (int i = 0; i < 60; ++i)
        others.loads.push_back({QStringLiteral("KO-%1").arg(i + 1), {400, 10.0 + i, 5}, {10, 0}});
    others.loads[7] = {QStringLiteral("KO-8"), {150, 62, 5}, {60, 5}}; // friction does not take it
    others.loads[9].load.M1 = 900;
    others.source = QStringLiteral("hala.csv");
    entries->showOtherLoads();
    ASSERT_TRUE(points->isVisible());
    EXPECT_EQ(points->currentText(), QStringLiteral("kombinacje: hala.csv (60)"));
    ASSERT_EQ(chart().points.size(), 60U);
    const auto strength = enteredStrength(stan, form->fields());
    EXPECT_EQ(chart().points[7].used, strength->used({150, 62, 5}, {60, 5})->worst());
    EXPECT_EQ(chart().points[7].factor, loadFactor(*strength, {150, 62, 5}, {60, 5}));
    EXPECT_EQ(nearestToLine(chart()), 9);
    EXPECT_EQ(reserve(),
              QStringLiteral("Najbliżej granicy: KO-10, wytężenie %1. Wszystkie jej "
                             "siły będą przeniesione pomnożone przez %2. Kombinacji: "
                             "60, niespełnionych: 1.")
                  .arg(usedWords(chart().points[9].used), factorWords(chart().points[9].factor)));
    // The line is at the N of the nearest one; the list holds those that come next.
    auto* const list = in<QComboBox>(entries->capacity(), "cmbPrzypadek");
    EXPECT_EQ(in<QLabel>(entries->capacity(), "lblPrzypadek")->text(),
              QStringLiteral("Siły z kombinac&ji:"));
    EXPECT_EQ(list->count(), 50);
    EXPECT_EQ(list->itemText(0), QStringLiteral("KO-10"));
    EXPECT_EQ(chart().N, 400);
    list->setCurrentIndex(list->findText(QStringLiteral("KO-8")));
    EXPECT_EQ(chart().N, 150);
    EXPECT_EQ(in<QLineEdit>(entries->capacity(), "txtV")->text(), QStringLiteral("60,208"));
    // The base changes: the points with it.
    const double before = chart().points[7].used;
    type("Text3", QStringLiteral("800"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return chart().points[7].used != before; }));
    EXPECT_EQ(list->currentText(), QStringLiteral("KO-8")) << "the chosen one stays chosen";
    points->setCurrentIndex(0);
    EXPECT_EQ(chart().points.size(), 2U);
    EXPECT_EQ(list->itemText(0), QStringLiteral("Przypadek 1"));
    points->setCurrentIndex(1);
    others.loads.clear();
    entries->capacity().renew();
    EXPECT_FALSE(points->isVisible());
    EXPECT_EQ(chart().points.size(), 2U) << "the table has gone";
}

TEST_F(ReserveWindows, FitOnTheirScreenWithTheirTitle) {
    for (const QWidget* window : {static_cast<QWidget*>(&entries->capacity()),
                                  static_cast<QWidget*>(&entries->smallest())}) {
        const QSize room = roomOnScreen(window);
        EXPECT_LE(window->width(), room.width());
        EXPECT_LE(window->height(), room.height());
        EXPECT_LT(room.height(), window->screen()->availableSize().height());
    }
}

TEST_F(ReserveWindows, F1OpensTheirPagesOfTheHelp) {
    openCapacity();
    openSmallest();
    for (const QWidget* part : entries->capacity().findChildren<QWidget*>())
        EXPECT_EQ(helpContextOf(part), help::Capacity);
    for (const QWidget* part : entries->smallest().findChildren<QWidget*>())
        EXPECT_EQ(helpContextOf(part), help::SmallestBase);
}

TEST_F(ReserveWindows, TheKeyboardReachesEverythingInTheOrderOfReading) {
    others = {QStringLiteral("hala.csv"), {{QStringLiteral("KO-1"), {400, 10, 5}, {}}}};
    openCapacity();
    EXPECT_EQ(entries->capacity().focusWidget(),
              in<QComboBox>(entries->capacity(), "cmbPlaszczyzna"));
    expectUniqueMnemonics(entries->capacity());
    expectTabsInReadingOrder(entries->capacity());
    entries->showOtherLoads();
    expectUniqueMnemonics(entries->capacity());
    QTest::keyClick(in<QLineEdit>(entries->capacity(), "txtV"), Qt::Key_Return);
    EXPECT_TRUE(entries->capacity().isVisible()) << "Enter in a field closes and saves nothing";
    QTest::keyClick(&entries->capacity(), Qt::Key_Escape);
    EXPECT_FALSE(entries->capacity().isVisible());
    openSmallest();
    EXPECT_EQ(entries->smallest().focusWidget(), in<QSpinBox>(entries->smallest(), "spnSlupH"));
    expectUniqueMnemonics(entries->smallest());
    QTest::keyClick(in<QSpinBox>(entries->smallest(), "spnDlDo"), Qt::Key_Return);
    EXPECT_GT(table().rowCount(), 0) << "Enter searches";
    expectUniqueMnemonics(entries->smallest());
    QTest::keyClick(&entries->smallest(), Qt::Key_Escape);
    EXPECT_FALSE(entries->smallest().isVisible());
}

TEST_F(ReserveWindows, TheEndingOfTheSavedChartFollowsTheFormatChosen) {
    openCapacity();
    QString offered;
    answers.dialog(QStringLiteral("saveQuestion"), [&](QWidget& modal) {
        auto& dialog = static_cast<QFileDialog&>(modal);
        dialog.setDirectory(folder.path());
        auto* const field = modal.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        EXPECT_EQ(field->text(), QStringLiteral("nosnosc.png"));
        auto* const formats = modal.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        formats->setFocus();
        QTest::keyClick(formats, Qt::Key_Down); // SVG
        offered = field->text();
        field->setText(QStringLiteral("hala")); // the format gives the ending
        QTest::keyClick(field, Qt::Key_Return);
    });
    QTest::mouseClick(in<QPushButton>(entries->capacity(), "cmdZapisz"), Qt::LeftButton);
    EXPECT_EQ(offered, QStringLiteral("nosnosc.svg"));
    EXPECT_TRUE(contents(QStringLiteral("hala.svg")).contains("<svg"));
    answers.dialog(QStringLiteral("saveQuestion"), [&](QWidget& modal) {
        auto* const field = modal.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        field->setText(path(QStringLiteral("hala.bmp")));
        QTest::keyClick(field, Qt::Key_Return);
    });
    QTest::mouseClick(in<QPushButton>(entries->capacity(), "cmdZapisz"), Qt::LeftButton);
    EXPECT_TRUE(contents(QStringLiteral("hala.bmp.png")).startsWith("\x89PNG"));
}

TEST_F(ReserveWindows, TheMouseOverAPointOfTheCapacityTellsItsLoad) {
    openCapacity();
    const auto* const view = in<ChartView>(entries->capacity(), "wykres");
    QString found;
    for (int x = 0; x < view->width() && found.isEmpty(); x += 4)
        for (int y = 0; y < view->height() && found.isEmpty(); y += 4)
            found = view->wordsAt(QPointF(x, y));
    EXPECT_TRUE(found.startsWith(QStringLiteral("Przypadek "))) << found.toStdString();
    EXPECT_TRUE(found.contains(QStringLiteral(" kNm\nwytężenie: ")));
    EXPECT_TRUE(found.contains(QStringLiteral("mnożnik wszystkich sił: ")));
    EXPECT_EQ(view->wordsAt(QPointF(1, 1)), QString());
}

TEST_F(ReserveWindows, TheSmallestBaseIsFoundConfirmedAndTakenIntoTheFormAtOnce) {
    openSmallest();
    QTest::mouseClick(in<QPushButton>(entries->smallest(), "cmdSzukaj"), Qt::LeftButton);
    ASSERT_GE(table().rowCount(), 10);
    EXPECT_TRUE(said().startsWith(QStringLiteral("Podstaw w zakresie: "))) << said().toStdString();
    EXPECT_LE(CDbl(cell(0, 0)), CDbl(cell(9, 0))) << "lightest first";
    EXPECT_EQ(cell(0, 5), QStringLiteral("potwierdza"));
    const QStringList plate = cell(0, 1).split(QStringLiteral(" × "));
    const QString anchors = cell(0, 2);
    QSignalSpy told(form.get(), &Ferna3::entered);
    QTest::mouseClick(in<QPushButton>(entries->smallest(), "cmdPrzejmij"), Qt::LeftButton);
    EXPECT_EQ(told.count(), 1) << "one step to undo";
    EXPECT_EQ(text("Text3"), plate[0]);
    EXPECT_EQ(text("Text4"), plate[1]);
    EXPECT_EQ(anchorList().size(), stan.plyta.Liczba_srub);
    EXPECT_TRUE(anchors.startsWith(
        QStringLiteral("%1 × M%2, ").arg(stan.plyta.Liczba_srub).arg(stan.plyta.Fi_kotwy(1))))
        << anchors.toStdString();
    EXPECT_EQ(form->fields().loads[0].M1, QStringLiteral("60")) << "the loads stay";
    EXPECT_TRUE(said().endsWith(QStringLiteral(" stoi w zadaniu.")));
    EXPECT_EQ(form->drawnPlate()->Dlug_plyty_mm, plate[0].toInt()) << "drawn on its plate";
}

TEST_F(ReserveWindows, OneStepBackBringsTheBaseOfBeforeTheTaking) {
    TaskDesk desk(*form, dialogs, path(QStringLiteral("kept")));
    desk.begin();
    openSmallest();
    in<QComboBox>(entries->smallest(), "cmbFiOd")->setCurrentIndex(4); // 30 mm and more
    QTest::mouseClick(in<QPushButton>(entries->smallest(), "cmdSzukaj"), Qt::LeftButton);
    ASSERT_GT(table().rowCount(), 0);
    QTest::mouseClick(in<QPushButton>(entries->smallest(), "cmdPrzejmij"), Qt::LeftButton);
    settle();
    EXPECT_GE(stan.plyta.Fi_kotwy(1), 30);
    desk.undo();
    settle();
    EXPECT_EQ(text("Text3"), QStringLiteral("600"));
    EXPECT_EQ(text("Text4"), QStringLiteral("400"));
    EXPECT_EQ(stan.plyta.Liczba_srub, 4);
    EXPECT_EQ(stan.plyta.Fi_kotwy(1), 24);
}

TEST_F(ReserveWindows, ARangeThatCannotBeWorkedWithIsSaid) {
    openSmallest();
    for (const char* box : {"chkUklad_4", "chkUklad_6", "chkUklad_8", "chkUklad_12"})
        in<QCheckBox>(entries->smallest(), box)->setChecked(false);
    QTest::mouseClick(in<QPushButton>(entries->smallest(), "cmdSzukaj"), Qt::LeftButton);
    EXPECT_EQ(said(), QStringLiteral("Wybierz co najmniej jeden układ kotew."));
    EXPECT_EQ(table().rowCount(), 0);
    EXPECT_FALSE(in<QPushButton>(entries->smallest(), "cmdPrzejmij")->isEnabled());
}

TEST_F(ReserveWindows, TheSearchIsStoppedByItsButton) {
    openSmallest();
    in<QSpinBox>(entries->smallest(), "spnDlDo")->setValue(1200);
    in<QSpinBox>(entries->smallest(), "spnSzDo")->setValue(1200);
    for (const char* step : {"spnDlCo", "spnSzCo"})
        in<QSpinBox>(entries->smallest(), step)->setValue(10);
    auto* const stop = in<QPushButton>(entries->smallest(), "cmdPrzerwij");
    EXPECT_FALSE(stop->isVisible());
    QTimer::singleShot(50, stop, [stop] {
        EXPECT_TRUE(stop->isVisible());
        QTest::mouseClick(stop, Qt::LeftButton);
    });
    QTest::mouseClick(in<QPushButton>(entries->smallest(), "cmdSzukaj"), Qt::LeftButton);
    EXPECT_TRUE(said().startsWith(QStringLiteral("Przerwano. "))) << said().toStdString();
    EXPECT_FALSE(stop->isVisible());
    EXPECT_TRUE(in<QPushButton>(entries->smallest(), "cmdSzukaj")->isEnabled());
}

TEST_F(ReserveWindows, LoadsThatChangeAfterTheSearchAreSaid) {
    openSmallest();
    QTest::mouseClick(in<QPushButton>(entries->smallest(), "cmdSzukaj"), Qt::LeftButton);
    ASSERT_GT(table().rowCount(), 0);
    form->fieldOf({Value::M1, 0})->setText(QStringLiteral("90"));
    EXPECT_EQ(said(), QStringLiteral("Zadanie zmieniło się od szukania: przed przejęciem podstawy "
                                     "szukaj ponownie."));
    form->fieldOf({Value::M1, 0})->setText(QStringLiteral("dużo"));
    EXPECT_FALSE(in<QPushButton>(entries->smallest(), "cmdSzukaj")->isEnabled());
}

} // namespace
