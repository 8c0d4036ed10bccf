#include "editing/worked_anchors.h"

using namespace ferna;
using namespace ferna::testing;
using ferna::editing::Anchors;

namespace {

class AnchorTableTest : public WorkedAnchors {
protected:
    void click(int anchor, int column, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers, cell(anchor, column));
        settle();
    }

    void doubleClick(int anchor, int column) {
        click(anchor, column);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, cell(anchor, column));
        settle();
    }

    void typeIn(const char* text) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
    }

    QString shown(int anchor, int column) const {
        return table->model()->index(anchor - 1, column).data().toString();
    }
};

TEST_F(AnchorTableTest, ShowsTheAnchorsAsTheyAreComputed) {
    EXPECT_EQ(table->model()->rowCount(), 4);
    EXPECT_EQ(shown(2, AnchorModel::X), QStringLiteral("-250"));
    EXPECT_EQ(shown(2, AnchorModel::Y), QStringLiteral("150"));
    EXPECT_EQ(shown(2, AnchorModel::Diameter), QStringLiteral("30"));
    EXPECT_EQ(table->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("x [mm]"));
    EXPECT_EQ(table->model()->headerData(2, Qt::Horizontal).toString(),
              QStringLiteral("Średnica [mm]"));
}

TEST_F(AnchorTableTest, FollowsTheCommands) {
    add("cmdDodaj1s", 20, 0, 0);
    EXPECT_EQ(table->model()->rowCount(), 5);
    EXPECT_EQ(shown(5, AnchorModel::Diameter), QStringLiteral("20"));
    answers.input(QStringLiteral("Ferna 2005 Pr - Usuwanie"),
                  QStringLiteral("Podaj numer śruby do usunięcia"), QStringLiteral("5"),
                  QStringLiteral("1"));
    WorkedAnchors::click("cmdUsun1s");
    EXPECT_EQ(table->model()->rowCount(), 4);
    EXPECT_EQ(shown(1, AnchorModel::X), QStringLiteral("-250")) << "as computed, not as listed";
}

TEST_F(AnchorTableTest, AClickChoosesInTheDrawingTooAndCtrlChoosesMore) {
    const QImage before = drawing->grab().toImage();
    click(3, AnchorModel::X);
    EXPECT_EQ(chosen(), Anchors{3});
    EXPECT_NE(drawing->grab().toImage().pixelColor(at(250, -150)),
              before.pixelColor(at(250, -150)));
    click(1, AnchorModel::Y, Qt::ControlModifier);
    EXPECT_EQ(chosen(), (Anchors{1, 3}));
}

TEST_F(AnchorTableTest, ADoubleClickEditsACoordinateInPlace) {
    doubleClick(2, AnchorModel::X);
    typeIn("-200");
    key(Qt::Key_Return);
    EXPECT_EQ(line(2), listed(2, 30, -200, 150));
    EXPECT_EQ(form->drawnPlate()->X_kotwy(2), -20.0F);
    EXPECT_EQ(resultsOpened, 0) << "Enter belongs to the cell";
}

TEST_F(AnchorTableTest, ADiameterIsChosenFromTheSeries) {
    doubleClick(2, AnchorModel::Diameter);
    auto* const list = table->findChild<QComboBox*>(QStringLiteral("srednica"));
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->count(), 13);
    EXPECT_EQ(list->currentText(), QStringLiteral("30"));
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    settle();
    EXPECT_EQ(line(2), listed(2, 36, -250, 150));
}

TEST_F(AnchorTableTest, ATextThatIsNoCoordinateIsToldAndTheCellStaysOpen) {
    doubleClick(2, AnchorModel::Y);
    typeIn("15O");
    key(Qt::Key_Return);
    const auto* const note = form->findChild<QLabel*>(QStringLiteral("fieldNote"));
    ASSERT_NE(note, nullptr);
    EXPECT_EQ(note->text(), QStringLiteral("\"15O\" nie jest liczbą."));
    ASSERT_NE(table->findChild<QLineEdit*>(QStringLiteral("wspolrzedna")), nullptr);
    typeIn("155");
    key(Qt::Key_Return);
    EXPECT_EQ(line(2), listed(2, 30, -250, 155));
}

TEST_F(AnchorTableTest, EscLeavesACellAsItWas) {
    doubleClick(2, AnchorModel::Y);
    typeIn("999");
    key(Qt::Key_Escape);
    EXPECT_EQ(line(2), listed(2, 30, -250, 150));
}

TEST_F(AnchorTableTest, TypingInACellReplacesIt) {
    click(4, AnchorModel::X);
    QTest::keyClicks(table, QStringLiteral("7"));
    typeIn("5");
    key(Qt::Key_Return);
    EXPECT_EQ(line(4), listed(4, 30, 75, -150));
}

TEST_F(AnchorTableTest, DeleteRemovesWhatIsChosenAndAltWithArrowsMovesIt) {
    click(1, AnchorModel::X);
    click(4, AnchorModel::X, Qt::ControlModifier);
    key(Qt::Key_Right, Qt::AltModifier);
    key(Qt::Key_Up, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(line(1), listed(1, 30, 251, 160));
    EXPECT_EQ(line(4), listed(4, 30, -249, -140));
    key(Qt::Key_Delete);
    EXPECT_EQ(anchorList(), QStringList({listed(1, 30, -250, 150), listed(2, 30, 250, -150)}));
}

TEST_F(AnchorTableTest, TabLeavesTheTable) {
    table->setFocus();
    key(Qt::Key_Tab);
    EXPECT_NE(focused(), QStringLiteral("tabelaSrub"));
}

TEST_F(AnchorTableTest, AnAnchorInQuestionIsMarkedInItsRow) {
    click(1, AnchorModel::X);
    QTest::keyClicks(table, QStringLiteral("2"));
    typeIn("95");
    key(Qt::Key_Return);
    const QAbstractItemModel* const model = table->model();
    EXPECT_EQ(model->headerData(0, Qt::Vertical).toString(), QStringLiteral("! 1"));
    EXPECT_EQ(model->headerData(1, Qt::Vertical).toString(), QStringLiteral("2"));
    EXPECT_EQ(model->index(0, 0).data(Qt::ForegroundRole).value<QBrush>().color(),
              QColor(0xC0, 0, 0));
    EXPECT_TRUE(model->index(0, 0)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .startsWith(QStringLiteral("Kotwa 1 (M30) w miejscu")));
    show(Dane_ogolne);
    type("Text3", QStringLiteral("700"));
    EXPECT_EQ(model->headerData(0, Qt::Vertical).toString(), QStringLiteral("1"))
        << "a larger plate puts it right";
}

} // namespace
