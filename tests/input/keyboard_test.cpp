#include "input/forms/FernaPon.h"
#include "input/forms/Fernafi.h"
#include "input/forms/KGM8.h"
#include "input/forms/Nowa_Sruba.h"
#include "plate/forms/KGM8b.h"
#include "support/main_form.h"

#include <QAbstractButton>
#include <QAccessible>

using namespace ferna;
using namespace ferna::testing;

namespace {

class Keyboard : public MainForm {
protected:
    /// The fields that Tab goes through on a tab until it comes back to the first.
    QStringList round(Tab tab) {
        show(tab);
        QStringList names{focused()};
        for (int i = 0; i < 60; ++i) {
            key(Qt::Key_Tab);
            if (focused() == names.front())
                return names;
            names += focused();
        }
        return names;
    }

    static QString accessibleName(QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    }

    static void expectNames(QWidget& window) {
        for (QWidget* widget : window.findChildren<QWidget*>())
            if (widget->focusPolicy() != Qt::NoFocus
                && (qobject_cast<QLineEdit*>(widget) || qobject_cast<QComboBox*>(widget)
                    || qobject_cast<QAbstractButton*>(widget)
                    || qobject_cast<QPlainTextEdit*>(widget))) {
                EXPECT_FALSE(accessibleName(widget).trimmed().isEmpty())
                    << window.objectName().toStdString() << '.'
                    << widget->objectName().toStdString();
            }
    }
};

TEST_F(Keyboard, TabGoesThroughEveryFieldInTheOrderOfReading) {
    EXPECT_EQ(
        round(Konfiguracja).join(u' '),
        QStringLiteral("txtNaz_proj txtNr_strony Norma_0 Wsp_n_0 optHsruby_0 optRTF_1 Jezyk_0 "
                       "Mono_col_0 cmdOblicz cmdKoniec"));
    EXPECT_EQ(round(Dane_ogolne).join(u' '),
              QStringLiteral("Text1 Text3 Text4 cmbBeton Text2 cmbStal Option1_0 cmdOblicz "
                             "cmdKoniec"));
    EXPECT_EQ(round(Obciazenia_).join(u' '),
              QStringLiteral("Text6_0 Text7_0 Text8_0 Text5_0 Text10_0 cmdStatyka cmdOblicz "
                             "cmdKoniec"));
    EXPECT_EQ(round(Sruby).join(u' '),
              QStringLiteral("cmdDodaj4 cmdDodaj2x cmdDodaj2y cmdDodaj1s cmdUsun1s cmdUsunws "
                             "cmdZmien1fi cmdZmienwfi Text9 cmdOblicz cmdKoniec"));
}

TEST_F(Keyboard, TabGoesThroughTheRowsThatShow) {
    type("Text1", QStringLiteral("2"));
    const QStringList names = round(Obciazenia_);
    EXPECT_EQ(names.size(), 13);
    EXPECT_EQ(names[5], QStringLiteral("Text6_1"));
}

TEST_F(Keyboard, EnterPressesTheButtonWithTheFocus) {
    show(Sruby); // the focus is on cmdDodaj4
    announceAnchor(20, QStringLiteral("100"), QStringLiteral("100"));
    key(Qt::Key_Return);
    EXPECT_EQ(stan.plyta.Liczba_srub, 4);
}

TEST_F(Keyboard, ArrowsChangeAnOption) {
    show(Konfiguracja);
    the("Norma_0")->setFocus();
    key(Qt::Key_Down);
    EXPECT_TRUE(checked("Norma_1"));
    EXPECT_EQ(stan.opcje.Nr_normy, 1);
}

TEST_F(Keyboard, AWholeTaskIsTypedAndCalculatedWithoutTheMouse) {
    typeHere(QStringLiteral("2"));
    key(Qt::Key_Tab);
    typeHere(QStringLiteral("600"));
    key(Qt::Key_Tab);
    typeHere(QStringLiteral("400"));
    key(Qt::Key_3, Qt::AltModifier);
    for (const char* value : {"320", "140", "0", "35", "0", "200", "-70", "5", "0", "0"}) {
        typeHere(QString::fromLatin1(value));
        key(Qt::Key_Tab);
    }
    key(Qt::Key_4, Qt::AltModifier);
    answers.dialog(QStringLiteral("Nowa_Sruba"), [](QWidget& modal) {
        QTest::keyClicks(modal.focusWidget(), QStringLiteral("250")); // the text is selected
        QTest::keyClick(modal.focusWidget(), Qt::Key_Tab);
        QTest::keyClicks(modal.focusWidget(), QStringLiteral("150"));
        QTest::keyClick(modal.focusWidget(), Qt::Key_Tab);
        QTest::keyClicks(modal.focusWidget(), QStringLiteral("30"));
        QTest::keyClick(modal.focusWidget(), Qt::Key_Return);
    });
    key(Qt::Key_Space);
    key(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(resultsOpened, 1);
    EXPECT_EQ(anchorList().join(u'|'),
              QStringLiteral("1.   M30  x=250 mm  y=150 mm|2.   M30  x=-250 mm  y=150 mm|"
                             "3.   M30  x=250 mm  y=-150 mm|4.   M30  x=-250 mm  y=-150 mm"));
    EXPECT_EQ(stan.obciazenia.Sila_N(1), 320.0F);
    EXPECT_EQ(stan.obciazenia.Moment_M1(2), -70.0);
    EXPECT_EQ(stan.plyta.Szer_plyty_mm, 400);
}

TEST_F(Keyboard, EveryFieldHasAName) {
    expectNames(*form);
    EXPECT_EQ(accessibleName(the("txtNaz_proj")), QStringLiteral("Nazwa projektu"));
    Nowa_Sruba anchor(stan, dialogs, form.get());
    expectNames(anchor);
    Fernafi diameter(stan, allAnchors, dialogs, form.get());
    expectNames(diameter);
    FernaPon ratio(stan, dialogs, form.get());
    expectNames(ratio);
    KGM8 anchorSteel(stan, dialogs, form.get());
    expectNames(anchorSteel);
    KGM8b plateSteel(stan, dialogs, form.get());
    expectNames(plateSteel);
}

TEST_F(Keyboard, ALabelBringsTheFocusToItsField) {
    for (const auto& [label, field] :
         {std::pair{"Label2", "Text1"}, std::pair{"Label3", "Text2"}, std::pair{"Label4", "Text3"},
          std::pair{"Label5", "Text4"}, std::pair{"Label8", "cmbBeton"},
          std::pair{"Label9", "cmbStal"}, std::pair{"Label11", "txtNaz_proj"},
          std::pair{"Label12", "txtNr_strony"}})
        EXPECT_EQ(the<QLabel>(label)->buddy(), the(field)) << label;
}

} // namespace
