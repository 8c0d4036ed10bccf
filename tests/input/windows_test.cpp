#include "desktop/forms/help_key.h"
#include "input/forms/FernaPon.h"
#include "input/forms/Fernafi.h"
#include "support/main_form.h"

#include <QMessageBox>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// What is true of every window of the program.
class Windows : public MainForm {
protected:
    static int titleWidth(const QWidget& window) {
        QFont font = window.font();
        font.setBold(true);
        return QFontMetrics(font).horizontalAdvance(window.windowTitle());
    }
    static constexpr int frameButtons = 120; // pixels
};

TEST_F(Windows, AreWideEnoughForTheirTitles) {
    show(Sruby);
    add("cmdDodaj4", 20, 100, 100);
    const auto wideEnough = [](QWidget& modal) {
        EXPECT_GE(modal.width(), titleWidth(modal) + frameButtons)
            << modal.windowTitle().toStdString();
        QTest::keyClick(&modal, Qt::Key_Escape);
    };
    answers.dialog(QStringLiteral("Fernafi"), wideEnough);
    click("cmdZmienwfi");
    answers.dialog(QStringLiteral("inputBox"), wideEnough);
    click("cmdUsun1s");
    answers.dialog(QString(), wideEnough); // a message box
    click("cmdUsunws");
    FernaPon ratio(stan, dialogs, form.get());
    ratio.show();
    EXPECT_GE(ratio.width(), titleWidth(ratio) + frameButtons);
}

TEST_F(Windows, TheMainFormStandsStillBetweenItsTabs) {
    const QRect window = form->geometry();
    const QPoint button = the("cmdOblicz")->mapTo(form.get(), QPoint());
    for (const Tab tab : {Konfiguracja, Obciazenia_, Sruby, Dane_ogolne}) {
        show(tab);
        EXPECT_EQ(form->geometry(), window) << tab;
        EXPECT_EQ(the("cmdOblicz")->mapTo(form.get(), QPoint()), button) << tab;
    }
    show(Konfiguracja);
    type("txtNaz_proj", QStringLiteral("Łódź – юЖЩ"));
    settle();
    EXPECT_EQ(form->geometry(), window) << "with the note of the letters";
}

TEST_F(Windows, TheNoteOfTheLettersIsShownWhole) {
    show(Konfiguracja);
    type("txtNaz_proj", QStringLiteral("юЖЩбгджзийклмнпрстуфхцчшщъыьэяЙЦГШЗХЪФВАПРЛДЭЧСМИТЬБ"));
    settle();
    const auto* const note = the<QLabel>("lblZnaki_projektu");
    ASSERT_TRUE(note->isVisible());
    EXPECT_GE(note->height(), note->heightForWidth(note->width()));
}

TEST_F(Windows, TheAnchorCommandsHaveMnemonicsOfTheirOwn) {
    show(Sruby);
    QStringList letters;
    for (const QPushButton* button : form->findChildren<QPushButton*>())
        if (button->isVisible())
            letters += button->text().section(u'&', 1).left(1).toUpper();
    EXPECT_EQ(letters.size(), 10);
    EXPECT_FALSE(letters.contains(QString()));
    letters.removeDuplicates();
    EXPECT_EQ(letters.size(), 10) << letters.join(u' ').toStdString();
    answers.dialog(QStringLiteral("Nowa_Sruba"), [](QWidget& modal) {
        EXPECT_EQ(modal.windowTitle(), QStringLiteral("Podaj współrzędne śruby"));
        modal.close();
    });
    key(Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(stan.plyta.Liczba_srub, 1);
}

TEST_F(Windows, F1LeadsToThePageOfWhatIsInFront) {
    static QList<int> opened; // the filter outlives the test
    opened.clear();
    static const bool once = [] {
        openHelpByF1(*qApp, [](int context) { opened += context; });
        return true;
    }();
    ASSERT_TRUE(once);
    for (const Tab tab : {Konfiguracja, Dane_ogolne, Obciazenia_, Sruby}) {
        show(tab);
        key(Qt::Key_F1);
    }
    the("cmdKoniec")->setFocus(); // outside the tabs
    key(Qt::Key_F1);
    EXPECT_EQ(opened, (QList<int>{110, 120, 130, 140, 140}));
    opened.clear();
    const auto pressF1 = [](QWidget& modal) {
        QWidget* const focus = modal.focusWidget();
        QTest::keyClick(focus ? focus : &modal, Qt::Key_F1);
        QTest::keyClick(&modal, Qt::Key_Escape);
        modal.close();
    };
    add("cmdDodaj1s", 20, 0, 0);
    answers.dialog(QStringLiteral("Fernafi"), pressF1);
    click("cmdZmienwfi");
    answers.dialog(QString(), pressF1); // a message box
    click("cmdUsunws");
    answers.dialog(QStringLiteral("inputBox"), pressF1);
    click("cmdUsun1s");
    show(Obciazenia_);
    answers.dialog(QStringLiteral("StatykaS"), pressF1);
    click("cmdStatyka");
    EXPECT_EQ(opened, (QList<int>{140, 300, 140, 150}));
}

TEST_F(Windows, TheIconsOfTheBoxesAreSharpAtEveryScale) {
    QMessageBox box(QMessageBox::Critical, QStringLiteral("t"), QStringLiteral("x"));
    box.show();
    const auto* const icon = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"));
    const QPixmap shown = icon->pixmap();
    EXPECT_EQ(shown.devicePixelRatio(), box.devicePixelRatioF());
    const int size = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
    EXPECT_EQ(shown.width(), qRound(size * box.devicePixelRatioF()));
    EXPECT_EQ(box.icon(), QMessageBox::Critical);
    EXPECT_EQ(shown.toImage(), QIcon(QStringLiteral(":/ikony/stop.svg"))
                                   .pixmap(QSize(size, size), box.devicePixelRatioF())
                                   .toImage());
}

TEST_F(Windows, TheToolkitSpeaksPolish) {
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Anuluj"));
    EXPECT_EQ(QCoreApplication::translate("QFileDialog", "Look in:"), QStringLiteral("Szukaj w:"));
    EXPECT_EQ(QCoreApplication::translate("QWidgetTextControl", "Select All"),
              QStringLiteral("Zaznacz wszystko"));
}

} // namespace
