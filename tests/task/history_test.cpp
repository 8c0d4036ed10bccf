#include "input/anchor_layout.h"
#include "support/decimal_comma.h"
#include "support/printing.h"
#include "task/history.h"
#include "task/step_name.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::WithDecimalSign;

namespace {

struct Steps : ::testing::Test {
    Steps() { history.begin(task); }

    void anchors(int count) {
        task.stan.plyta.Liczba_srub = CInt(count);
        for (int i = 1; i <= count; ++i)
            storeAnchorAt(task.stan.plyta, i, 10 * i, 20, 24);
    }

    /// The step that the present task makes of the one before.
    QString step() {
        EXPECT_TRUE(history.record(task));
        return history.undoName();
    }

    WithDecimalSign comma{u','};
    Task task = readTask(parsed(R"({"Dlug_plyty_mm": 600, "Szer_plyty_mm": 400, "Kotwy": [],
        "Przypadki": [{"N": 300, "M1": 0, "M2": 0, "Vx": 0, "Vy": 0},
                      {"N": 200, "M1": 0, "M2": 0, "Vx": 0, "Vy": 0}]})"));
    TaskHistory history;
};

TEST_F(Steps, WithoutAChangeThereIsNone) {
    EXPECT_FALSE(history.record(task));
    EXPECT_FALSE(history.canUndo());
    EXPECT_FALSE(history.canRedo());
}

TEST_F(Steps, GoBackAndForthWithTheWholeTask) {
    const std::string first = history.text();
    task.fields.loads[1].N = QStringLiteral("x");
    history.record(task);
    anchors(4);
    history.record(task);
    const std::string last = history.text();
    history.undo();
    EXPECT_EQ(history.undo().fields.loads[1].N, QStringLiteral("200"));
    EXPECT_EQ(history.text(), first);
    EXPECT_FALSE(history.canUndo());
    history.redo();
    EXPECT_EQ(history.redo().stan.plyta.Liczba_srub, 4);
    EXPECT_EQ(history.text(), last);
    EXPECT_FALSE(history.canRedo());
}

TEST_F(Steps, ANewOneEndsWhatCouldBeDoneAgain) {
    task.fields.Text3 = QStringLiteral("700");
    history.record(task);
    task = history.undo();
    task.fields.Text4 = QStringLiteral("300");
    history.record(task);
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(history.undoName(), QStringLiteral("szerokość płyty"));
    const Task before = history.undo();
    EXPECT_EQ(before.fields.Text3, QStringLiteral("600")) << "not what was given up";
    EXPECT_EQ(before.fields.Text4, QStringLiteral("400"));
    EXPECT_FALSE(history.canUndo());
}

TEST_F(Steps, AHundredCanBeUndone) {
    for (int i = 1; i <= 150; ++i) {
        task.fields.loads[0].N = QString::number(i);
        history.record(task);
    }
    int undone = 0;
    for (; history.canUndo(); ++undone)
        history.undo();
    EXPECT_EQ(undone, 100);
    EXPECT_EQ(history.task().fields.loads[0].N, QStringLiteral("50"));
}

TEST_F(Steps, AnotherTaskIsCountedAndUndoneAsOne) {
    const int first = history.number();
    history.recordAnother(task, QStringLiteral("otwarcie x.ferna"));
    EXPECT_NE(history.number(), first);
    EXPECT_EQ(history.undoName(), QStringLiteral("otwarcie x.ferna"));
    history.undo();
    EXPECT_EQ(history.number(), first);
}

TEST_F(Steps, AListOfAnchorsThatHasChangedIsAStepThoughThePlacesHaveNot) {
    anchors(1);
    history.record(task);
    task.stan.plyta.X_kotwy_mm(1) = 77;
    EXPECT_EQ(step(), QStringLiteral("przesunięcie kotwy 1"));
}

TEST_F(Steps, AreNamedByWhatHasChanged) {
    anchors(4);
    EXPECT_EQ(step(), QStringLiteral("dodanie 4 kotew"));
    anchors(3);
    EXPECT_EQ(step(), QStringLiteral("usunięcie kotwy"));
    task.stan.plyta.Fi_kotwy(2) = 30;
    EXPECT_EQ(step(), QStringLiteral("średnica kotwy 2"));
    changeDiameter(task.stan, allAnchors, 36);
    EXPECT_EQ(step(), QStringLiteral("średnice kotew"));
    storeAnchorAt(task.stan.plyta, 3, 1, 2, 36);
    EXPECT_EQ(step(), QStringLiteral("przesunięcie kotwy 3"));
    anchors(0);
    EXPECT_EQ(step(), QStringLiteral("usunięcie wszystkich kotew"));
    task.fields.loads[1].Vx = QStringLiteral("5");
    EXPECT_EQ(step(), QStringLiteral("Vx w przypadku 2"));
    task.fields.loads[0].N = task.fields.loads[1].N = QStringLiteral("7");
    EXPECT_EQ(step(), QStringLiteral("tabela obciążeń"));
    task.stan.opcje.Nr_betonu = 2;
    task.fields.Text2 = QStringLiteral("8");
    EXPECT_EQ(step(), QStringLiteral("beton"));
    task.stan.opcje.Nr_normy = 1;
    task.stan.opcje.Nr_betonu = 1;
    EXPECT_EQ(step(), QStringLiteral("norma"));
    task.fields.Text2 = QStringLiteral("6");
    EXPECT_EQ(step(), QStringLiteral("współczynnik n"));
    task.stan.obciazenia.Liczba_przyp = 1;
    EXPECT_EQ(step(), QStringLiteral("liczba przypadków"));
    task.fields.txtNaz_proj = QStringLiteral("Hala");
    EXPECT_EQ(step(), QStringLiteral("nazwa projektu"));
    task.fields.Option1_0 = false;
    EXPECT_EQ(step(), QStringLiteral("typ stopy"));
    task.Nazwa_stopy = QStringLiteral("F-1");
    EXPECT_EQ(step(), QStringLiteral("oznaczenie stopy"));
    task.anchor = AnchorTask{1, QStringLiteral("50")};
    EXPECT_EQ(step(), QStringLiteral("dobór kotwy"));
    task.stan.materialy.Stal_fd = 300;
    EXPECT_EQ(step(), QStringLiteral("stal użytkownika"));
}

TEST(CountedThings, HaveTheWordsOfTheirNumber) {
    const auto anchors = [](int count) {
        return counted(count, QStringLiteral("kotwa"), QStringLiteral("kotwy"),
                       QStringLiteral("kotew"));
    };
    EXPECT_EQ(anchors(0), QStringLiteral("0 kotew"));
    EXPECT_EQ(anchors(1), QStringLiteral("1 kotwa"));
    EXPECT_EQ(anchors(4), QStringLiteral("4 kotwy"));
    EXPECT_EQ(anchors(5), QStringLiteral("5 kotew"));
    EXPECT_EQ(anchors(12), QStringLiteral("12 kotew"));
    EXPECT_EQ(anchors(22), QStringLiteral("22 kotwy"));
}

} // namespace
