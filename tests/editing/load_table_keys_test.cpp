#include "editing/forms/load_table_keys.h"
#include "support/main_form.h"

#include <QClipboard>
#include <QMenu>
#include <QMimeData>

using namespace ferna;
using namespace ferna::testing;

namespace {

class LoadTableKeysTest : public MainForm {
protected:
    void SetUp() override {
        MainForm::SetUp();
        show(Obciazenia_);
        ASSERT_EQ(focused(), QStringLiteral("Text6_0"));
    }

    void prepare() override { new LoadTableKeys(form.get()); }

    static void onClipboard(const QString& text) { QApplication::clipboard()->setText(text); }

    void paste(const QString& text) {
        onClipboard(text);
        key(Qt::Key_V, Qt::ControlModifier);
    }

    QString row(int r) const {
        const LoadRow<QString> texts = form->fields().loads.at(static_cast<std::size_t>(r));
        return QStringList({texts.N, texts.M1, texts.M2, texts.Vx, texts.Vy}).join(u' ');
    }

    int rowsShown() const {
        int rows = 0;
        while (rows < MaxCases
               && form->findChild<QWidget*>(QStringLiteral("Text6_%1").arg(rows))->isVisible())
            ++rows;
        return rows;
    }

    QString note() const {
        const auto* const label = form->findChild<QLabel*>(QStringLiteral("fieldNote"));
        return label && label->isVisible() ? label->text() : QString();
    }

    void caseCount(int cases) {
        show(Dane_ogolne);
        type("Text1", QString::number(cases));
        show(Obciazenia_);
    }
};

TEST_F(LoadTableKeysTest, APastedTableFillsRowsAndTheNumberOfCasesFollows) {
    paste(QStringLiteral("1\t2\t3\t4\t5\n6,5\t7\t8\t9\t-10\n\n11\t12\t13\t14\t15\n"));
    EXPECT_EQ(row(0), QStringLiteral("1 2 3 4 5"));
    EXPECT_EQ(row(1), QStringLiteral("6,5 7 8 9 -10"));
    EXPECT_EQ(row(2), QStringLiteral("11 12 13 14 15"));
    EXPECT_EQ(rowsShown(), 3);
    EXPECT_EQ(text("Text1"), QStringLiteral("3"));
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 3);
    EXPECT_EQ(focused(), QStringLiteral("Text6_0"));
    EXPECT_EQ(note(), QString());
    show(Dane_ogolne);
    show(Obciazenia_);
    EXPECT_EQ(rowsShown(), 3);
}

TEST_F(LoadTableKeysTest, APasteIsOneNamedStepAndARefusedOneIsNone) {
    QStringList steps;
    QObject::connect(form.get(), &Ferna3::stepped,
                     [&steps](const QString& name) { steps += name; });
    paste(QStringLiteral("1\tx\n"));
    EXPECT_EQ(steps, QStringList());
    paste(QStringLiteral("1\t2\n3\t4\n"));
    EXPECT_EQ(steps, QStringList(QStringLiteral("wklejenie tabeli obciążeń")));
}

TEST_F(LoadTableKeysTest, APastedTableStandsFromTheFieldWithTheFocusAndKeepsALargerNumberOfCases) {
    caseCount(4);
    const QString before = row(0);
    type("Text8_1", QStringLiteral("0"));
    paste(QStringLiteral("21;31\n22;32"));
    EXPECT_EQ(row(0), before);
    EXPECT_EQ(row(1).section(u' ', 2, 3), QStringLiteral("21 31"));
    EXPECT_EQ(row(2).section(u' ', 2, 3), QStringLiteral("22 32"));
    EXPECT_EQ(rowsShown(), 4);
}

TEST_F(LoadTableKeysTest, ACellThatIsNoNumberIsNamedAndNothingChanges) {
    const QString before = row(0);
    paste(QStringLiteral("1\t2\nx\t4\n"));
    EXPECT_EQ(row(0), before);
    EXPECT_EQ(rowsShown(), 1);
    EXPECT_EQ(note(), QStringLiteral("Wiersz 2, kolumna 1 (N): \"x\" nie jest liczbą. Nic nie "
                                     "zostało wpisane."));
}

TEST_F(LoadTableKeysTest, ATableOfEightRowsFillsSixAndSaysSo) {
    paste(QStringLiteral("1\n2\n3\n4\n5\n6\n7\n8\n"));
    EXPECT_EQ(rowsShown(), 6);
    EXPECT_EQ(text("Text6_5"), QStringLiteral("6"));
    EXPECT_EQ(note(), QStringLiteral("Tabela ma wierszy: 8, a od tego miejsca mieści się ich 6 - "
                                     "wpisane zostały pierwsze."));
}

TEST_F(LoadTableKeysTest, OneNumberIsPastedIntoItsFieldAsEver) {
    typeHere(QStringLiteral("5"));
    paste(QStringLiteral("25,5\n"));
    EXPECT_EQ(text("Text6_0"), QStringLiteral("525,5"));
}

TEST_F(LoadTableKeysTest, BytesOfACsvTableInCodePage1250ArePasted) {
    auto* const data = new QMimeData;
    data->setData(QStringLiteral("text/csv"), QByteArray("Si\xB3"
                                                         "a osiowa;M1\r\n100,5;-20\r\n"));
    QApplication::clipboard()->setMimeData(data);
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text("Text6_0"), QStringLiteral("100,5"));
    EXPECT_EQ(text("Text7_0"), QStringLiteral("-20"));
}

TEST_F(LoadTableKeysTest, CopyTakesTheTextOfAFieldAndWithCtrlATwiceTheWholeTable) {
    paste(QStringLiteral("1\t2\t3\t4\t5\n6\t7\t8\t9\t10\n"));
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("1"));
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(the<QLineEdit>("Text10_1")->selectedText(), QStringLiteral("10"));
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(),
              QStringLiteral("N [kN]\tM1 [kNm]\tM2 [kNm]\tVx [kN]\tVy [kN]\n1\t2\t3\t4\t5\n"
                             "6\t7\t8\t9\t10\n"));
    key(Qt::Key_Tab);
    EXPECT_FALSE(the<QLineEdit>("Text10_1")->hasSelectedText()) << "leaving ends the choice";
}

TEST_F(LoadTableKeysTest, CopyWithNothingChosenTakesTheWholeTable) {
    the<QLineEdit>("Text6_0")->deselect();
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith(QStringLiteral("N [kN]\t")));
}

TEST_F(LoadTableKeysTest, ShiftWithUpAndDownChoosesRowsOfAColumnToCopy) {
    paste(QStringLiteral("1\t2\t3\t4\t5\n6\t7\t8\t9\t10\n11\t12\t13\t14\t15\n"));
    type("Text7_1", QStringLiteral("70"));
    key(Qt::Key_Down, Qt::ShiftModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("70\n12\n"));
    key(Qt::Key_Up, Qt::ShiftModifier);
    key(Qt::Key_Up, Qt::ShiftModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("2\n70\n"));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("8"));
    EXPECT_EQ(text("Text7_1"), QStringLiteral("8")) << "typing replaces the field's own text";
    EXPECT_EQ(text("Text7_0"), QStringLiteral("2"));
}

TEST_F(LoadTableKeysTest, TheMenuOfAFieldPastesAndCopiesTheTable) {
    onClipboard(QStringLiteral("31\t41"));
    const auto chosenFromMenu = [this](const char* entry) {
        auto* const field = the<QLineEdit>("Text8_0");
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                                field->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(field, &event);
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions())
            if (action->text().remove(u'&') == QString::fromUtf8(entry)) {
                ASSERT_TRUE(action->isEnabled());
                menu->setActiveAction(action);
                QTest::keyClick(menu, Qt::Key_Return);
                settle();
                return;
            }
        ADD_FAILURE() << "no entry " << entry;
        menu->close();
    };
    chosenFromMenu("Wklej tabelę od tej komórki");
    EXPECT_EQ(row(0).section(u' ', 2, 3), QStringLiteral("31 41"));
    chosenFromMenu("Kopiuj całą tabelę");
    EXPECT_TRUE(QApplication::clipboard()->text().endsWith(QStringLiteral("\t31\t41\t0\n")));
}

} // namespace
