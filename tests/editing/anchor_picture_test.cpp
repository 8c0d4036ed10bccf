#include "editing/worked_anchors.h"

#include <QToolTip>

using namespace ferna;
using namespace ferna::testing;
using ferna::editing::Anchors;

namespace {

class AnchorDrawing : public WorkedAnchors {
protected:
    /// Draws the mouse over an area of the plate.
    void rubberBand(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mousePress(drawing, Qt::LeftButton, modifiers, from);
        for (const QPoint point : {(from + to) / 2, to}) {
            QMouseEvent moved(QEvent::MouseMove, QPointF(point),
                              drawing->mapToGlobal(QPointF(point)), Qt::NoButton, Qt::LeftButton,
                              modifiers);
            QApplication::sendEvent(drawing, &moved);
        }
        QTest::mouseRelease(drawing, Qt::LeftButton, modifiers, to);
        settle();
    }

    QColor colourAt(qreal x, qreal y) const {
        return drawing->grab().toImage().pixelColor(at(x, y));
    }

    template <typename Widget>
    Widget* inBox(const char* name) const {
        auto* const box = drawing->findChild<QFrame*>(QStringLiteral("ramkaSruby"));
        if (box == nullptr || !box->isVisible())
            throw std::runtime_error("the box is not open");
        return box->findChild<Widget*>(QString::fromLatin1(name));
    }

    bool boxIsOpen() {
        settle();
        const auto* const box = drawing->findChild<QFrame*>(QStringLiteral("ramkaSruby"));
        return box != nullptr && box->isVisible();
    }

    void openBox(qreal x, qreal y) {
        QTest::mouseDClick(drawing, Qt::LeftButton, {}, at(x, y));
        settle();
    }
};

TEST_F(AnchorDrawing, AClickChoosesAnAnchorThereAndInTheTable) {
    clickAt(-250, 150);
    EXPECT_EQ(chosen(), Anchors{2});
    EXPECT_EQ(table->selectionModel()->selectedRows().size(), 1);
    clickAt(250, -150);
    EXPECT_EQ(chosen(), Anchors{3});
    clickAt(0, 50);
    EXPECT_EQ(chosen(), Anchors{}) << "a click beside the anchors chooses none";
}

TEST_F(AnchorDrawing, CtrlChoosesMoreAndLess) {
    clickAt(-250, 150);
    clickAt(250, 150, Qt::ControlModifier);
    EXPECT_EQ(chosen(), (Anchors{1, 2}));
    clickAt(-250, 150, Qt::ControlModifier);
    EXPECT_EQ(chosen(), Anchors{1});
}

TEST_F(AnchorDrawing, ARubberBandChoosesWhatItHolds) {
    rubberBand(at(-290, 190), at(290, 0));
    EXPECT_EQ(chosen(), (Anchors{1, 2}));
    rubberBand(at(290, -190), at(200, 10), Qt::ControlModifier);
    EXPECT_EQ(chosen(), (Anchors{1, 2, 3}));
    rubberBand(at(-100, -100), at(100, 100));
    EXPECT_EQ(chosen(), Anchors{});
}

TEST_F(AnchorDrawing, WhatIsChosenIsRingedAndTheSavedPictureIsNot) {
    const QColor before = colourAt(-250, 150);
    clickAt(-250, 150);
    const QColor ringed = colourAt(-250, 150);
    EXPECT_NE(ringed, before);
    EXPECT_GT(ringed.blue(), ringed.red()) << "the blue of the choice";
    EXPECT_EQ(colourAt(250, 150), before) << "the others stay";
}

TEST_F(AnchorDrawing, TheReportsPictureIsTheSameToTheByteWithAndWithoutAChoice) {
    const QString picture = path(QStringLiteral("p.bmp"));
    const auto saved = [&] {
        Stan copy = stan;
        EXPECT_TRUE(savePlatePicture(copy, form->fields(), dialogs, picture));
        return contents(QStringLiteral("p.bmp"));
    };
    const QByteArray before = saved();
    table->selectAll();
    settle();
    EXPECT_EQ(saved(), before);
}

TEST_F(AnchorDrawing, ArrowsMoveWhatIsChosenByOneMillimetreAndWithShiftByTen) {
    clickAt(-250, 150);
    clickAt(250, 150, Qt::ControlModifier);
    key(Qt::Key_Right);
    key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(line(1), listed(1, 30, 251, 160));
    EXPECT_EQ(line(2), listed(2, 30, -249, 160));
    EXPECT_EQ(line(3), listed(3, 30, 250, -150));
    key(Qt::Key_Left, Qt::ShiftModifier);
    key(Qt::Key_Down);
    EXPECT_EQ(line(1), listed(1, 30, 241, 159));
    EXPECT_EQ(chosen(), (Anchors{1, 2}));
    EXPECT_EQ(form->drawnPlate()->X_kotwy(1), CSng(24.1)) << "the drawing follows";
}

TEST_F(AnchorDrawing, EveryEditIsANamedStep) {
    QStringList steps;
    QObject::connect(form.get(), &Ferna3::stepped,
                     [&steps](const QString& name) { steps += name; });
    clickAt(-250, 150);
    key(Qt::Key_Right);
    openBox(-249, 150);
    key(Qt::Key_Return);
    rubberBand(at(-290, 190), at(290, 0));
    key(Qt::Key_Up, Qt::ShiftModifier);
    key(Qt::Key_Delete);
    EXPECT_EQ(
        steps,
        QStringList({QStringLiteral("przesunięcie kotwy 2"), QStringLiteral("zmiana kotwy 2"),
                     QStringLiteral("przesunięcie 2 kotew"), QStringLiteral("usunięcie 2 kotew")}));
}

TEST_F(AnchorDrawing, DeleteRemovesWhatIsChosenAndTheListIsTrue) {
    clickAt(250, 150);
    key(Qt::Key_Delete);
    EXPECT_EQ(anchorList(), QStringList({listed(1, 30, -250, 150), listed(2, 30, 250, -150),
                                         listed(3, 30, -250, -150)}));
    EXPECT_FALSE(the<QLabel>("lblLista_nieaktualna")->isVisible());
    EXPECT_EQ(table->model()->rowCount(), 3);
    EXPECT_EQ(chosen(), Anchors{});
    key(Qt::Key_Delete);
    EXPECT_EQ(anchorList().size(), 3) << "nothing is chosen now";
}

TEST_F(AnchorDrawing, AnEditMakesTheListTrueThatACommandHasLeftFalse) {
    answers.input(QStringLiteral("Ferna 2005 Pr - Usuwanie"),
                  QStringLiteral("Podaj numer śruby do usunięcia"), QStringLiteral("4"),
                  QStringLiteral("1"));
    click("cmdUsun1s");
    ASSERT_TRUE(the<QLabel>("lblLista_nieaktualna")->isVisible());
    clickAt(-250, 150);
    EXPECT_EQ(chosen(), Anchors{1}) << "anchors are worked where they are drawn";
    key(Qt::Key_Right);
    EXPECT_EQ(anchorList(), QStringList({listed(1, 30, -249, 150), listed(2, 30, 250, -150),
                                         listed(3, 30, -250, -150)}));
    EXPECT_FALSE(the<QLabel>("lblLista_nieaktualna")->isVisible());
}

TEST_F(AnchorDrawing, ADoubleClickEditsPlaceAndDiameterInPlace) {
    openBox(-250, 150);
    EXPECT_EQ(inBox<QLineEdit>("ramkaX")->text(), QStringLiteral("-250"));
    EXPECT_EQ(inBox<QComboBox>("ramkaFi")->currentText(), QStringLiteral("30"));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("-200"));
    key(Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("100"));
    key(Qt::Key_Tab);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(line(2), listed(2, 36, -200, 100));
    EXPECT_FALSE(boxIsOpen());
    EXPECT_EQ(resultsOpened, 0) << "Enter belongs to the box";
    EXPECT_EQ(focused(), QStringLiteral("Picture3"));
}

TEST_F(AnchorDrawing, EscLeavesTheAnchorAsItWasAndSoDoesATextThatIsNone) {
    openBox(250, 150);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("77"));
    key(Qt::Key_Escape);
    EXPECT_FALSE(boxIsOpen());
    EXPECT_EQ(line(1), listed(1, 30, 250, 150));
    openBox(250, 150);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("77,5"));
    key(Qt::Key_Return);
    EXPECT_TRUE(boxIsOpen());
    EXPECT_EQ(form->findChild<QLabel*>(QStringLiteral("fieldNote"))->text(),
              QStringLiteral("Współrzędna jest w całych milimetrach."));
    EXPECT_EQ(line(1), listed(1, 30, 250, 150));
    EXPECT_EQ(inBox<QLineEdit>("ramkaX")->text(), QStringLiteral("77,5"));
}

TEST_F(AnchorDrawing, LeavingTheBoxTakesWhatWasTyped) {
    openBox(250, 150);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("77"));
    the<QPlainTextEdit>("Text9")->setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(boxIsOpen());
    EXPECT_EQ(line(1), listed(1, 30, 77, 150));
}

TEST_F(AnchorDrawing, TheKeyboardAloneDoesTheSame) {
    the<QPlainTextEdit>("Text9")->setFocus();
    key(Qt::Key_Tab);
    ASSERT_EQ(focused(), QStringLiteral("Picture3"));
    key(Qt::Key_PageDown);
    EXPECT_EQ(chosen(), Anchors{1});
    key(Qt::Key_PageDown);
    EXPECT_EQ(chosen(), Anchors{2});
    key(Qt::Key_PageDown, Qt::ShiftModifier);
    EXPECT_EQ(chosen(), (Anchors{2, 3}));
    key(Qt::Key_PageUp);
    EXPECT_EQ(chosen(), Anchors{2});
    key(Qt::Key_F2);
    EXPECT_TRUE(boxIsOpen());
    key(Qt::Key_Escape);
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(chosen().size(), 4U);
    key(Qt::Key_Escape);
    EXPECT_EQ(chosen(), Anchors{});
    key(Qt::Key_PageUp);
    EXPECT_EQ(chosen(), Anchors{4});
    key(Qt::Key_Tab);
    EXPECT_EQ(focused(), QStringLiteral("tabelaSrub"));
}

TEST_F(AnchorDrawing, AnAnchorInQuestionIsRedWithItsNoteAsTip) {
    const QColor before = colourAt(250, 150);
    clickAt(250, 150);
    for (int step = 0; step < 5; ++step)
        key(Qt::Key_Right, Qt::ShiftModifier);
    key(Qt::Key_Left);
    key(Qt::Key_Escape);
    const QColor red = colourAt(299, 150);
    EXPECT_GT(red.red(), red.blue() + 30);
    EXPECT_EQ(before.red(), before.blue());
    QHelpEvent asks(QEvent::ToolTip, at(299, 150), drawing->mapToGlobal(at(299, 150)));
    QApplication::sendEvent(drawing, &asks);
    EXPECT_TRUE(QToolTip::text().startsWith(QStringLiteral("Kotwa 1 (M30) w miejscu")))
        << QToolTip::text().toStdString();
}

TEST_F(AnchorDrawing, APlateThatCannotBeDrawnHasNothingToClick) {
    show(Dane_ogolne);
    type("Text3", QStringLiteral("abc"));
    answers.box(QStringLiteral("Ferna 2005 Pr"),
                QStringLiteral("Podany ciąg znaków nie tworzy liczby"));
    show(Sruby);
    EXPECT_FALSE(form->drawnPlate());
    QTest::mouseClick(drawing, Qt::LeftButton, {}, QPoint(100, 100));
    key(Qt::Key_PageDown);
    key(Qt::Key_F2);
    EXPECT_EQ(chosen(), Anchors{});
}

} // namespace
