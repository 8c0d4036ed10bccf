#include "support/main_form.h"

#include <QClipboard>

using namespace ferna;
using namespace ferna::testing;

namespace {

class EnteredFields : public MainForm {
protected:
    /// Types into whatever has the focus, without choosing anything there first.
    void keys(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
};

TEST_F(EnteredFields, ANumberTypedAfterAChangeOfTabReplacesTheOldOne) {
    show(Obciazenia_);
    ASSERT_EQ(focused(), QStringLiteral("Text6_0"));
    keys(QStringLiteral("320"));
    EXPECT_EQ(text("Text6_0"), QStringLiteral("320"));
    key(Qt::Key_2, Qt::AltModifier);
    keys(QStringLiteral("2"));
    EXPECT_EQ(text("Text1"), QStringLiteral("2"));
    show(Konfiguracja);
    keys(QStringLiteral("Hala B"));
    EXPECT_EQ(text("txtNaz_proj"), QStringLiteral("Hala B"));
}

TEST_F(EnteredFields, TheFirstFieldOfAFormThatIsShownIsSelected) {
    EXPECT_EQ(the<QLineEdit>("Text1")->selectedText(), text("Text1"));
    show(Obciazenia_);
    answers.dialog(QStringLiteral("StatykaS"), [](QWidget& modal) {
        auto* const first = modal.findChild<QLineEdit*>(QStringLiteral("Text1_0"));
        EXPECT_EQ(modal.focusWidget(), first);
        EXPECT_EQ(first->selectedText(), QStringLiteral("0"));
        modal.close();
    });
    click("cmdStatyka");
}

TEST_F(EnteredFields, TheFieldThatTheProgramGivesTheFocusIsSelected) {
    show(Obciazenia_);
    auto* const field = the<QLineEdit>("Text7_0");
    field->setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(field->selectedText(), field->text());
    keys(QStringLiteral("7"));
    EXPECT_EQ(field->text(), QStringLiteral("7"));
}

TEST_F(EnteredFields, TheClickThatBringsTheFocusSelectsAndTheNextOnePutsTheCursor) {
    auto* const field = the<QLineEdit>("Text3");
    QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(8, field->height() / 2));
    EXPECT_EQ(field->selectedText(), field->text());
    QTest::qWait(QApplication::doubleClickInterval() + 20);
    QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(8, field->height() / 2));
    EXPECT_EQ(field->selectedText(), QString());
}

TEST_F(EnteredFields, APartThatTheMouseHasDrawnOverStaysTheSelection) {
    auto* const field = the<QLineEdit>("Text3");
    const int y = field->height() / 2;
    const int right = 6 + field->fontMetrics().horizontalAdvance(text("Text3").left(2));
    QTest::mousePress(field, Qt::LeftButton, {}, QPoint(2, y));
    QMouseEvent drawn(QEvent::MouseMove, QPointF(right, y), field->mapToGlobal(QPointF(right, y)),
                      Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(field, &drawn);
    QTest::mouseRelease(field, Qt::LeftButton, {}, QPoint(right, y));
    EXPECT_EQ(field->selectedText(), text("Text3").left(2));
}

TEST_F(EnteredFields, AHalfTypedFieldIsNotSelectedWhenItsWindowComesBack) {
    show(Obciazenia_);
    keys(QStringLiteral("32"));
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    activate();
    keys(QStringLiteral("0"));
    EXPECT_EQ(text("Text6_0"), QStringLiteral("320"));
}

class PastedTables : public EnteredFields {
protected:
    void paste(const QString& text) {
        QApplication::clipboard()->setText(text);
        qobject_cast<QLineEdit*>(QApplication::focusWidget())->paste();
    }
    /// The note beside a field, empty where there is none.
    QString note() const {
        const auto* const label = form->findChild<QLabel*>(QStringLiteral("fieldNote"));
        return label && label->isVisible() ? label->text() : QString();
    }
};

const QString refusal = QStringLiteral("W polu mieści się jedna liczba. Wklejony tekst ma "
                                       "tabulatory lub kilka wierszy - nie został wpisany.");

TEST_F(PastedTables, AreRefusedBesideTheFieldAndTheOldTextStays) {
    show(Obciazenia_);
    for (const char* table : {"100\t200", "100\n200", "100\t200\r\n300\t400\r\n", "N\tM1\n1\t2"}) {
        typeHere(QStringLiteral("55"));
        paste(QString::fromLatin1(table));
        EXPECT_EQ(text("Text6_0"), QStringLiteral("55")) << table;
        EXPECT_EQ(note(), refusal) << table;
        const auto* const label = form->findChild<QLabel*>(QStringLiteral("fieldNote"));
        ASSERT_NE(label, nullptr);
        const QRect place(the("Text6_0")->mapTo(form.get(), QPoint()), the("Text6_0")->size());
        EXPECT_TRUE(form->rect().contains(label->geometry()));
        EXPECT_FALSE(place.intersects(label->geometry())) << "the field itself can be seen";
        EXPECT_LE(label->y() - place.bottom(), 8);
    }
    keys(QStringLiteral("1"));
    EXPECT_EQ(note(), QString()) << "it goes with the next key";
    EXPECT_EQ(text("Text6_0"), QStringLiteral("551"));
}

TEST_F(PastedTables, OneNumberWithBlanksOrALineBreakBehindItIsTaken) {
    show(Obciazenia_);
    typeHere({});
    paste(QStringLiteral("1 000,5\r\n"));
    EXPECT_EQ(text("Text6_0"), QStringLiteral("1 000,5"));
    EXPECT_EQ(note(), QString());
}

TEST_F(PastedTables, AreRefusedInEveryNumberFieldAndNameFieldsTakeTheirText) {
    for (const Tab tab : {Konfiguracja, Dane_ogolne, Obciazenia_}) {
        show(tab);
        for (QLineEdit* field : form->findChildren<QLineEdit*>())
            if (field->isVisible() && field->objectName() != u"txtNaz_proj") {
                field->setFocus();
                const QString before = field->text();
                paste(QStringLiteral("1\t2"));
                EXPECT_EQ(field->text(), before) << field->objectName().toStdString();
            }
    }
    show(Konfiguracja);
    paste(QStringLiteral("Hala\nA"));
    EXPECT_EQ(text("txtNaz_proj"), QStringLiteral("Hala\nA"));
}

TEST_F(PastedTables, AreRefusedInAQuestionForANumber) {
    show(Sruby);
    answers.dialog(QStringLiteral("inputBox"), [this](QWidget& modal) {
        paste(QStringLiteral("1\t2"));
        EXPECT_EQ(modal.findChild<QLineEdit*>()->text(), QStringLiteral("0"));
        const auto* const label = modal.findChild<QLabel*>(QStringLiteral("fieldNote"));
        EXPECT_TRUE(label != nullptr && label->isVisible());
        QTest::keyClick(&modal, Qt::Key_Escape);
    });
    click("cmdUsun1s");
}

} // namespace
