#include "app/live_entries.h"
#include "live/forms/checks_view.h"
#include "live/forms/picture_canvas.h"
#include "live/live_values.h"
#include "runtime/settings.h"
#include "support/main_form.h"
#include "task/forms/task_desk.h"

#include <QClipboard>
#include <QImage>
#include <QLayout>
#include <QMenu>
#include <QMimeData>
#include <QTabBar>
#include <QToolButton>

#include <gtest/gtest.h>

namespace ferna {
namespace {

using namespace ferna::testing;
using namespace ferna::live;

/// The main form with the live view of the program over a base of four anchors and two cases.
class LiveView : public MainForm {
protected:
    void SetUp() override {
        settings::setValue(QStringLiteral("podglad/przypiety"), false);
        settings::setValue(QStringLiteral("podglad/szerokosc"), 520);
        settings::setValue(QStringLiteral("podglad/miejsce"), QByteArray());
        MainForm::SetUp();
        view = addLiveView(*form, stan, dialogs);
        setText("Text3", QStringLiteral("600"));
        setText("Text4", QStringLiteral("400"));
        setText("Text1", QStringLiteral("2"));
        stan.obciazenia.Liczba_przyp = 2;
        loads(0, {"300", "120", "0", "10", "0"});
        loads(1, {"300", "0", "-60", "150", "0"});
        form->editAnchors([](Plyta_i_kotwy& plate) {
            int slot = 0;
            for (const auto& [x, y] : {std::pair{250, 150}, {-250, 150}, {250, -150}, {-250, -150}})
                storeAnchorAt(plate, ++slot, x, y, 24);
            plate.Liczba_srub = 4;
        });
    }

    void TearDown() override {
        view.reset();
        form.reset();
    }

    void setText(const char* field, const QString& text) { the<QLineEdit>(field)->setText(text); }

    void loads(int row, const std::array<const char*, 5>& texts) {
        const std::array<const char*, 5> columns{"Text6", "Text7", "Text8", "Text5", "Text10"};
        for (std::size_t i = 0; i < columns.size(); ++i)
            setText(QByteArray(columns[i]).append('_').append(char('0' + row)).constData(),
                    QString::fromLatin1(texts[i]));
    }

    template <typename Part>
    Part* part(const char* name) const {
        auto* const found = view->findChild<Part*>(QString::fromLatin1(name));
        if (found == nullptr)
            throw std::runtime_error(std::string("no part ") + name);
        return found;
    }

    PictureCanvas* picture() const { return part<PictureCanvas>("rysunek"); }
    ChecksView* checks() const { return part<ChecksView>("sprawdzenia"); }
    QTabBar* tabs() const { return part<QTabBar>("przypadki"); }
    QString cell(int row, int column) const { return checks()->item(row, column)->text(); }

    QPoint placeOf(equilibrium::Point mm) const {
        return Frame(picture()->picture(), picture()->options()).at(mm).toPoint();
    }

    void drag(QPoint from, QPoint to) {
        QTest::mousePress(picture(), Qt::LeftButton, {}, from);
        for (int i = 1; i <= 5; ++i) {
            QTest::mouseMove(picture(), from + (to - from) * i / 5);
            QCoreApplication::processEvents(); // as between the moves of a hand
        }
        QTest::mouseRelease(picture(), Qt::LeftButton, {}, to);
        settle();
    }

    /// What a pixel of the picture is in mm, and one at either end of a way.
    double twoPixels() const {
        return 2.5 / Frame(picture()->picture(), picture()->options()).scale();
    }

    QString anchorLine(int anchor) const { return anchorList().value(anchor - 1); }

    std::unique_ptr<Podglad> view;
};

TEST_F(LiveView, IsClosedAtFirstAndComesAndGoesWithF9) {
    EXPECT_FALSE(view->isVisible());
    const QList<QAction*> entries = form->menus().view->actions();
    ASSERT_EQ(entries.size(), 1);
    EXPECT_EQ(entries[0]->text(), u"&Podgląd");
    key(Qt::Key_F9);
    EXPECT_TRUE(view->isVisible());
    EXPECT_TRUE(entries[0]->isChecked());
    key(Qt::Key_F9);
    EXPECT_FALSE(view->isVisible());
    EXPECT_FALSE(entries[0]->isChecked());
}

TEST_F(LiveView, TheFocusStaysInTheFieldThatIsTyped) {
    settings::setValue(QStringLiteral("podglad/przypiety"), true);
    show(Obciazenia_);
    QTest::mouseClick(the<QLineEdit>("Text7_0"), Qt::LeftButton);
    key(Qt::Key_F9);
    EXPECT_EQ(focused(), u"Text7_0");
}

TEST_F(LiveView, FollowsEveryKeystroke) {
    show(Obciazenia_);
    key(Qt::Key_F9);
    const auto pressure = [this] { return governingCorner(picture()->picture())->pressure; };
    const double before = pressure();
    type("Text7_0", QStringLiteral("13"));
    EXPECT_NE(pressure(), before);
    const double less = pressure();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_0);
    EXPECT_GT(pressure(), less);
    EXPECT_EQ(picture()->picture().loads, u"N = 300 kN, M1 = 130 kNm, M2 = 0 kNm");
}

TEST_F(LiveView, AnInvalidInputLeavesTheLastPictureGreyedWithTheReason) {
    show(Obciazenia_);
    key(Qt::Key_F9);
    const PictureValues before = picture()->picture();
    type("Text7_0", QStringLiteral("12,,5"));
    EXPECT_EQ(picture()->reason(), u"M1 przypadku 1: „12,,5” nie jest liczbą");
    EXPECT_TRUE(picture()->options().greyed);
    EXPECT_EQ(picture()->picture().loads,
              u"N = 300 kN, M1 = 12 kNm, M2 = 0 kNm"); // the last valid one
    typeHere(QString());
    EXPECT_EQ(picture()->reason(), u"M1 przypadku 1: pole jest puste");
    typeHere(QStringLiteral("120"));
    EXPECT_EQ(picture()->reason(), QString());
    EXPECT_EQ(picture()->picture().cases[0].found.sigmaConcrete,
              before.cases[0].found.sigmaConcrete);
    show(Dane_ogolne);
    type("Text2", QStringLiteral("x"));
    EXPECT_EQ(picture()->reason(), u"współczynnik n: „x” nie jest liczbą");
}

TEST_F(LiveView, NothingCanBeDraggedInAGreyedPicture) {
    key(Qt::Key_F9);
    setText("Text3", QStringLiteral("abc"));
    ASSERT_EQ(picture()->reason(), u"długość blachy: „abc” nie jest liczbą");
    const QString before = anchorLine(1);
    drag(placeOf({250, 150}), placeOf({200, 100}));
    EXPECT_EQ(anchorLine(1), before);
    EXPECT_EQ(text("Text3"), u"abc");
}

TEST_F(LiveView, HasATabForEachCaseAndOneForTheEnvelopeOfSeveral) {
    key(Qt::Key_F9);
    ASSERT_EQ(tabs()->count(), 3);
    EXPECT_EQ(tabs()->tabText(0), u"1");
    EXPECT_EQ(tabs()->tabText(1), u"2");
    EXPECT_EQ(tabs()->tabText(2), u"Obwiednia");
    QTest::mouseClick(tabs(), Qt::LeftButton, {}, tabs()->tabRect(1).center());
    EXPECT_EQ(picture()->picture().title, u"Przypadek 2");
    QTest::mouseClick(tabs(), Qt::LeftButton, {}, tabs()->tabRect(2).center());
    EXPECT_EQ(picture()->picture().title, u"Obwiednia");
    EXPECT_EQ(picture()->picture().cases.size(), 2U);
    show(Dane_ogolne);
    type("Text1", QStringLiteral("1"));
    key(Qt::Key_Tab);
    EXPECT_EQ(tabs()->count(), 1);
    EXPECT_EQ(picture()->picture().title, u"Przypadek 1");
}

TEST_F(LiveView, TheTableTellsEachCheckWithASignAndInWords) {
    key(Qt::Key_F9);
    ASSERT_EQ(checks()->rowCount(), 2);
    EXPECT_EQ(cell(0, 1), u"70,3 %");
    EXPECT_EQ(checks()->item(0, 1)->toolTip(),
              u"Przypadek 1, Rozciąganie: 70,3 %, spełniony; kotwa 2");
    EXPECT_FALSE(checks()->item(0, 1)->icon().isNull());
    EXPECT_EQ(cell(0, 2), u"–"); // friction takes the 10 kN
    EXPECT_EQ(checks()->item(0, 2)->toolTip(), u"Przypadek 1, Ścinanie: nie dotyczy");
    EXPECT_TRUE(checks()->item(0, 2)->icon().isNull());
    EXPECT_TRUE(cell(0, 0).contains(u"\nwsp. docisku ")) << cell(0, 0).toStdString();
    setText("Text7_0", QStringLiteral("200"));
    EXPECT_TRUE(checks()->item(0, 1)->toolTip().contains(u"%, przekroczony;"));
}

TEST_F(LiveView, TheSignOfAChosenCellIsSeenOnItsColour) {
    key(Qt::Key_F9);
    const QImage sign =
        checks()->item(0, 1)->icon().pixmap(QSize(16, 16), QIcon::Selected).toImage();
    const QColor wanted = checks()->palette().color(QPalette::HighlightedText);
    int drawn = 0;
    for (int y = 0; y < sign.height(); ++y)
        for (int x = 0; x < sign.width(); ++x)
            if (const QColor colour = sign.pixelColor(x, y); colour.alpha() == 255) {
                EXPECT_EQ(colour.name(), wanted.name()) << x << ' ' << y;
                ++drawn;
            }
    EXPECT_GT(drawn, 10);
}

TEST_F(LiveView, ToldValuesStandBesideOnceTheyAreCalculatedAndGoWithTheNextEntry) {
    key(Qt::Key_F9);
    EXPECT_FALSE(cell(0, 1).contains(u"Oblicz"));
    click("cmdOblicz");
    view->calculated();
    EXPECT_EQ(cell(0, 1), u"70,3 %\nOblicz: 70,4 %");
    EXPECT_TRUE(cell(1, 3).contains(u"\nOblicz: ")) << cell(1, 3).toStdString();
    setText("Text7_0", QStringLiteral("121"));
    EXPECT_FALSE(cell(0, 1).contains(u"Oblicz"));
    setText("Text7_0", QStringLiteral("120"));
    EXPECT_TRUE(cell(0, 1).contains(u"Oblicz"));
}

TEST_F(LiveView, ACellLeadsToItsAnchorAndAnAnchorToItsCell) {
    key(Qt::Key_F9);
    const auto clickCell = [this](int row, int column) {
        const QRect place = checks()->visualItemRect(checks()->item(row, column));
        QTest::mouseClick(checks()->viewport(), Qt::LeftButton, {}, place.center());
    };
    clickCell(1, 1);
    EXPECT_EQ(tabs()->currentIndex(), 1);
    EXPECT_EQ(picture()->chosen(),
              pictureOf(liveValues(stan, form->fields()), 2).cases[0].used->anchor);
    clickCell(0, 1);
    EXPECT_EQ(tabs()->currentIndex(), 0);
    QTest::mouseClick(picture(), Qt::LeftButton, {}, placeOf({-250, -150}));
    EXPECT_EQ(picture()->chosen(), 4);
    EXPECT_EQ(checks()->currentRow(), 0);
    EXPECT_EQ(checks()->currentColumn(), 1);
}

TEST_F(LiveView, ADraggedAnchorTakesItsNumbersAlong) {
    key(Qt::Key_F9);
    const double before = governingCorner(picture()->picture())->pressure;
    drag(placeOf({-250, 150}), placeOf({-200, 120}));
    const PictureAnchor anchor = picture()->picture().anchors.at(1);
    EXPECT_NEAR(anchor.x, -200, twoPixels());
    EXPECT_NEAR(anchor.y, 120, twoPixels());
    EXPECT_EQ(anchor.x, std::round(anchor.x));
    EXPECT_TRUE(anchorLine(2).contains(QString::number(int(anchor.x))))
        << anchorLine(2).toStdString();
    EXPECT_NE(governingCorner(picture()->picture())->pressure, before);
    EXPECT_EQ(stan.plyta.X_kotwy(2), CSng(anchor.x / 10));
}

TEST_F(LiveView, ADraggedEdgeChangesTheSizeOfThePlate) {
    key(Qt::Key_F9);
    drag(placeOf({300, 60}), placeOf({350, 60}));
    EXPECT_NEAR(text("Text3").toInt(), 700, 2 * twoPixels());
    EXPECT_EQ(text("Text4"), u"400");
    drag(placeOf({60, 200}), placeOf({60, 150}));
    EXPECT_NEAR(text("Text4").toInt(), 300, 2 * twoPixels());
}

TEST_F(LiveView, EscapeGivesADraggedAnchorBack) {
    key(Qt::Key_F9);
    const QString before = anchorLine(1);
    const QPoint from = placeOf({250, 150});
    QTest::mousePress(picture(), Qt::LeftButton, {}, from);
    QTest::mouseMove(picture(), from - QPoint(60, -40));
    EXPECT_NE(anchorLine(1), before);
    QTest::keyClick(picture(), Qt::Key_Escape);
    EXPECT_EQ(anchorLine(1), before);
    QTest::mouseMove(picture(), from - QPoint(90, -40));
    EXPECT_EQ(anchorLine(1), before);
    QTest::mouseRelease(picture(), Qt::LeftButton, {}, from);
}

TEST_F(LiveView, TheKeyboardChoosesAndMovesAnAnchor) {
    key(Qt::Key_F9);
    picture()->setFocus();
    QTest::keyClick(picture(), Qt::Key_PageDown);
    EXPECT_EQ(picture()->chosen(), 1);
    QTest::keyClick(picture(), Qt::Key_PageUp);
    EXPECT_EQ(picture()->chosen(), 4);
    QTest::keyClick(picture(), Qt::Key_Left);
    QTest::keyClick(picture(), Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(picture()->picture().anchors[3].x, -251);
    EXPECT_EQ(picture()->picture().anchors[3].y, -140);
}

TEST_F(LiveView, StandsAtTheRightOfTheFormAndLeavesItAsItWas) {
    settings::setValue(QStringLiteral("podglad/przypiety"), true);
    const QSize before = form->size();
    const int menus = form->layout()->menuBar() != nullptr ? 1 : 0;
    ASSERT_EQ(menus, 1);
    key(Qt::Key_F9);
    EXPECT_EQ(view->window(), form.get());
    EXPECT_GT(form->width(), before.width() + 300);
    EXPECT_GE(view->mapTo(form.get(), QPoint()).x(), the("SSTab1")->width());
    EXPECT_NE(form->layout()->menuBar(), nullptr);
    key(Qt::Key_F9);
    EXPECT_EQ(form->width(), before.width());
}

TEST_F(LiveView, StandsFreeWhereItWasLeftAndRemembersIt) {
    settings::setValue(QStringLiteral("podglad/przypiety"), true);
    key(Qt::Key_F9);
    QTest::mouseClick(part<QToolButton>("przypnij"), Qt::LeftButton);
    EXPECT_TRUE(view->isWindow());
    EXPECT_TRUE(view->isVisible());
    EXPECT_EQ(view->windowTitle(), u"Podgląd");
    view->setGeometry(40, 60, 610, 555);
    QTest::mouseClick(part<QToolButton>("zamknij"), Qt::LeftButton);
    EXPECT_FALSE(form->menus().view->actions()[0]->isChecked());
    view.reset();
    view = addLiveView(*form, stan, dialogs);
    view->setOpen(true);
    EXPECT_TRUE(view->isWindow());
    EXPECT_EQ(view->size(), QSize(610, 555));
    form->hide();
    EXPECT_FALSE(view->isVisible());
    form->show();
    EXPECT_TRUE(view->isVisible());
}

TEST_F(LiveView, UndoTakesADragBackInOneStep) {
    TaskDesk desk(*form, dialogs, path(QStringLiteral("kopie")));
    desk.begin();
    key(Qt::Key_F9);
    const QString before = anchorLine(2);
    drag(placeOf({-250, 150}), placeOf({-150, 60}));
    ASSERT_NE(anchorLine(2), before);
    desk.undo();
    settle();
    EXPECT_EQ(anchorLine(2), before);
    EXPECT_EQ(picture()->picture().anchors[1].x, -250);
    EXPECT_FALSE(desk.canUndo());
    drag(placeOf({300, 60}), placeOf({360, 60}));
    ASSERT_NE(text("Text3"), u"600");
    desk.undo();
    EXPECT_EQ(text("Text3"), u"600");
}

TEST_F(LiveView, SaysThatItIsAView) {
    key(Qt::Key_F9);
    EXPECT_EQ(picture()->options().words.view,
              u"Podgląd według dokładnej równowagi. Raport tworzy Oblicz.");
}

TEST_F(LiveView, ThePictureIsSavedAndCopied) {
    key(Qt::Key_F9);
    auto* const commands = part<QToolButton>("obraz")->menu();
    for (const auto& [ending, start] :
         {std::pair{"png", "\x89PNG"}, {"svg", "<?xml"}, {"pdf", "%PDF"}}) {
        const QString file = path(QStringLiteral("obraz.") + QString::fromLatin1(ending));
        answers.dialog(QStringLiteral("saveQuestion"), [file](QWidget& modal) {
            EXPECT_EQ(modal.windowTitle(), u"Zapis obrazu podglądu");
            auto* const field = modal.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            field->setText(file);
            QTest::keyClick(field, Qt::Key_Return);
        });
        commands->actions()[0]->trigger();
        EXPECT_TRUE(
            contents(QStringLiteral("obraz.") + QString::fromLatin1(ending)).startsWith(start))
            << ending;
    }
    commands->actions()[1]->trigger();
    const QMimeData* const copied = QApplication::clipboard()->mimeData();
    EXPECT_TRUE(copied->hasImage());
    EXPECT_TRUE(copied->data(QStringLiteral("image/svg+xml")).contains("Przypadek 1"));
}

TEST_F(LiveView, WithoutAStrengthThereIsAPictureAndTheReasonWhyThereAreNoChecks) {
    key(Qt::Key_F9);
    stan.materialy.Stal_fd = 0;
    the<QComboBox>("cmbStal")->setCurrentIndex(6); // the user's steel, not described yet
    EXPECT_EQ(picture()->reason(), QString());
    EXPECT_EQ(part<QLabel>("bezSprawdzen")->text(),
              u"Bez sprawdzeń: wybrana stal kotew nie ma wytrzymałości dla tej średnicy albo nie "
              u"została jeszcze opisana.");
    EXPECT_TRUE(part<QLabel>("bezSprawdzen")->isVisible());
    EXPECT_EQ(cell(0, 1), u"–");
}

} // namespace
} // namespace ferna
