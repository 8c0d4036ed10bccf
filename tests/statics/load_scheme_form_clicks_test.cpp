#include "design/start_up.h"
#include "input/forms/Ferna3.h"
#include "statics/statics_desk.h"
#include "support/places.h"

#include <QFile>
#include <QTabWidget>

using namespace ferna;
using namespace ferna::testing;

namespace {

class SavingTheTotals : public ColumnStaticsForm {
protected:
    /// The numbers that the dialog offers, as their schemes 1..6.
    static QList<int> offered(Hand& dialog) {
        QList<int> numbers;
        for (int i = 0; i < MaxCases; ++i)
            if (dialog.shown(QStringLiteral("optNumer_%1").arg(i).toLatin1().constData()))
                numbers += i + 1;
        return numbers;
    }
    static int chosen(Hand& dialog) {
        int number = 0;
        for (int i = 0; i < MaxCases; ++i)
            if (dialog.checked(QStringLiteral("optNumer_%1").arg(i).toLatin1().constData()))
                number = i + 1;
        return number;
    }
    static QString caption(Hand& dialog) { return dialog.the<QPushButton>("cmdZapisz")->text(); }

    /// "Koniec deklarowania listy obciążeń" with this done in the dialog.
    void save(const std::function<void(Hand&)>& inTheDialog) {
        answers.dialog(QStringLiteral("Statyka_sch"), [inTheDialog](QWidget& modal) {
            Hand dialog(modal);
            inTheDialog(dialog);
        });
        hand->click("cmdZapisz");
        EXPECT_TRUE(answers.done());
    }
};

TEST_F(SavingTheTotals, WithoutACaseOnlyTheFirstNewSchemeIsOffered) {
    stan.obciazenia.Liczba_przyp = 0;
    save([](Hand& dialog) {
        EXPECT_TRUE(dialog.checked("optZapis_0"));
        EXPECT_FALSE(dialog.shown("optZapis_1"));
        EXPECT_FALSE(dialog.shown("optZapis_2"));
        EXPECT_EQ(offered(dialog), QList<int>{1});
        EXPECT_EQ(chosen(dialog), 1);
        EXPECT_EQ(caption(dialog), QStringLiteral("Zapisz"));
        dialog.click("cmdZapisz");
    });
    EXPECT_EQ(table.rows.keys(), QList<int>{0});
    EXPECT_EQ(table.rows[0], totals("0", "0", "0", "0", "0")) << "an empty list is not refused";
    EXPECT_FALSE(form->isVisible());
}

TEST_F(SavingTheTotals, TheModesOfferTheirNumbers) {
    stan.obciazenia.Liczba_przyp = 3;
    save([](Hand& dialog) {
        EXPECT_EQ(offered(dialog), (QList<int>{1, 2, 3, 4}));
        EXPECT_EQ(chosen(dialog), 4);
        dialog.click("optZapis_1");
        EXPECT_EQ(caption(dialog), QStringLiteral("Dodaj"));
        EXPECT_EQ(offered(dialog), (QList<int>{1, 2, 3}));
        EXPECT_EQ(chosen(dialog), 1);
        dialog.click("optZapis_2");
        EXPECT_EQ(caption(dialog), QStringLiteral("Zastąp"));
        dialog.click("optNumer_1");
        EXPECT_EQ(chosen(dialog), 2);
        dialog.click("optZapis_0");
        EXPECT_EQ(caption(dialog), QStringLiteral("Zapisz"));
        EXPECT_EQ(offered(dialog), QList<int>{4});
        EXPECT_EQ(chosen(dialog), 4);
        dialog.click("cmdZapisz");
    });
    EXPECT_EQ(table.count, QStringLiteral("4"));
}

TEST_F(SavingTheTotals, AFullTableOffersToReplaceUnderTheWordOfAdding) {
    stan.obciazenia.Liczba_przyp = 6;
    answers.dialog(QStringLiteral("Statyka_sch"), [](QWidget& modal) {
        Hand dialog(modal);
        EXPECT_FALSE(dialog.shown("optZapis_0"));
        EXPECT_TRUE(dialog.checked("optZapis_2"));
        EXPECT_EQ(caption(dialog), QStringLiteral("Dodaj"));
        EXPECT_EQ(offered(dialog).size(), 6);
        EXPECT_EQ(chosen(dialog), 1);
        dialog.click("cmdAnuluj");
    });
    answers.stop(9);
    hand->click("cmdZapisz");
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 7);
    EXPECT_EQ(table.count, QStringLiteral("7"));
    EXPECT_TRUE(table.rows.isEmpty());
    EXPECT_TRUE(form->isVisible());
}

TEST_F(SavingTheTotals, ReplacingTheFirstSchemeStillAddsARow) {
    stan.obciazenia.Liczba_przyp = 2;
    vertical("1250");
    save([](Hand& dialog) {
        dialog.click("optZapis_2");
        dialog.click("optNumer_0");
        dialog.click("cmdZapisz");
    });
    EXPECT_EQ(table.rows.keys(), QList<int>{2});
    EXPECT_EQ(table.shown, QList<int>{2});
    EXPECT_EQ(table.count, QStringLiteral("3"));
    EXPECT_EQ(table.rows[2], totals("1 250,0", " 0,0", " 0,0", " 0,0", " 0,0"));
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 3);
}

TEST_F(SavingTheTotals, CancellingTheDialogDoesNotCancelTheSaving) {
    stan.obciazenia.Liczba_przyp = 1;
    vertical("12");
    save([](Hand& dialog) { dialog.click("cmdAnuluj"); });
    EXPECT_EQ(table.rows.keys(), QList<int>{1});
    EXPECT_EQ(table.rows[1].first(), QStringLiteral(" 12,0"));
    EXPECT_FALSE(form->isVisible());
}

TEST_F(SavingTheTotals, LeavingByTheFrameWritesNothing) {
    vertical("12");
    form->close();
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(table.rows.isEmpty());
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 1);
}

/// The main form with its load table.
class StaticsOfTheMainForm : public WorkedForm {
protected:
    void SetUp() override {
        for (const char* file : {"Ferpl.txt", "Ferna.cfg", "W_X.txt"})
            QFile::copy(places::data("/") + QString::fromLatin1(file),
                        path(QString::fromLatin1(file)));
        startUp(stan, folder.path());
        form = std::make_unique<Ferna3>(stan, folder.path(), dialogs, [] {});
        form->load();
        form->show();
        hand = std::make_unique<Hand>(*form);
        hand->activate();
    }

    void cases(const char* number) {
        tab(Qt::Key_2);
        hand->type("Text1", QString::fromLatin1(number));
        tab(Qt::Key_3);
    }
    void tab(Qt::Key digit) { hand->key(digit, Qt::AltModifier); }

    static void confirm(Hand& dialog) { dialog.click("cmdZapisz"); }

    /// The statics with one vertical force; this is done in the dialog of the scheme. Where the
    /// saving is to stop, what follows is in `after`.
    void announceForce(const char* P, const std::function<void(Hand&)>& inTheDialog,
                       const std::function<void(QWidget&)>& after = {}) {
        answers.dialog(QStringLiteral("StatykaS"), [this, P, inTheDialog, after](QWidget& modal) {
            answers.dialog(QStringLiteral("Obciazenie"), [P](QWidget& dialog) {
                Hand load(dialog);
                load.type("Text1_0", QString::fromLatin1(P));
                load.click("cmdExit");
            });
            Hand statics(modal);
            statics.click("cmdDodaj");
            answers.dialog(QStringLiteral("Statyka_sch"), [inTheDialog](QWidget& scheme) {
                Hand dialog(scheme);
                inTheDialog(dialog);
            });
            if (after)
                answers.stop(9);
            statics.click("cmdZapisz");
            if (after)
                after(modal);
        });
    }

    /// Row r of the load table: N, M1, M2, Vx, Vy.
    QStringList row(int r) {
        QStringList texts;
        for (const char* column : {"Text6_%1", "Text7_%1", "Text8_%1", "Text5_%1", "Text10_%1"})
            texts += hand->text(QString::fromLatin1(column).arg(r).toLatin1().constData());
        return texts;
    }

    std::unique_ptr<Ferna3> form;
    std::unique_ptr<Hand> hand;
};

TEST_F(StaticsOfTheMainForm, TheTotalsBecomeTheNextRowOfTheTable) {
    cases("2");
    announceForce("1250,5", confirm);
    hand->click("cmdStatyka");
    EXPECT_TRUE(answers.done());
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 3);
    EXPECT_EQ(hand->text("Text1"), QStringLiteral("3"));
    EXPECT_EQ(row(2), (QStringList{QStringLiteral("1 250,5"), QStringLiteral(" 0,0"),
                                   QStringLiteral(" 0,0"), QStringLiteral(" 0,0"),
                                   QStringLiteral(" 0,0")}));
    for (const char* field : {"Text6_2", "Text7_2", "Text8_2", "Text5_2", "Text10_2"})
        EXPECT_TRUE(hand->shown(field)) << field;
    EXPECT_FALSE(hand->shown("Text6_3"));
}

TEST_F(StaticsOfTheMainForm, ReplacingTheFirstSchemeLeavesItsRowAsItWas) {
    cases("2");
    hand->type("Text6_0", QStringLiteral("321"));
    hand->type("Text10_0", QStringLiteral("4,5"));
    const QStringList first = row(0);
    const QStringList second = row(1);
    announceForce("100", [](Hand& dialog) {
        dialog.click("optZapis_2");
        dialog.click("optNumer_0");
        confirm(dialog);
    });
    hand->click("cmdStatyka");
    EXPECT_TRUE(answers.done());
    EXPECT_EQ(row(0), first);
    EXPECT_EQ(row(1), second);
    EXPECT_EQ(row(2).first(), QStringLiteral(" 100,0"));
    EXPECT_EQ(hand->text("Text1"), QStringLiteral("3"));
}

TEST_F(StaticsOfTheMainForm, TheStaticsOpensByItsMnemonic) {
    tab(Qt::Key_3);
    answers.closeByFrame(QStringLiteral("StatykaS"));
    hand->key(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(answers.done());
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 1);
}

TEST_F(StaticsOfTheMainForm, TheSeventhCaseStopsAndLeavingTheNumberBringsItBackToSix) {
    cases("6");
    announceForce("10", confirm, [](QWidget& statics) {
        EXPECT_TRUE(statics.isVisible()) << "the list is not lost";
        statics.close();
    });
    hand->click("cmdStatyka");
    EXPECT_TRUE(answers.done());
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 7);
    EXPECT_EQ(hand->text("Text1"), QStringLiteral("7"));
    tab(Qt::Key_2);
    hand->the("Text1")->setFocus();
    hand->key(Qt::Key_Tab);
    EXPECT_EQ(stan.obciazenia.Liczba_przyp, 6);
    EXPECT_EQ(hand->text("Text1"), QStringLiteral("6"));
    tab(Qt::Key_3);
    EXPECT_TRUE(hand->shown("Text6_5"));
}

} // namespace
