#pragma once

#include "statics/forms/StatykaS.h"
#include "support/worked_form.h"

#include <QListWidget>
#include <QMap>

namespace ferna::testing {

/// A load table that remembers what it was given.
class RememberedTable : public LoadTable {
public:
    void setCount(const QString& text) override { count = text; }
    void setRow(int r, const LoadRow<QString>& texts) override {
        rows[r] = {texts.N, texts.M1, texts.M2, texts.Vx, texts.Vy};
    }
    void showRow(int r) override { shown += r; }

    QString count;
    QMap<int, QStringList> rows;
    QList<int> shown;
};

/// The form of the column loads, worked by clicks and keys.
class ColumnStaticsForm : public WorkedForm {
protected:
    void SetUp() override { open(); }

    void open() {
        hand.reset();
        form = std::make_unique<StatykaS>(stan, loads, table, dialogs, nullptr);
        form->show();
        hand = std::make_unique<Hand>(*form);
        hand->activate();
    }

    void choose(int direction, int kind) {
        hand->click(name("optTypObciaz_%1", direction));
        if (direction != 0)
            hand->click(name("optTypsily_%1", kind));
    }
    /// Types the values over those of the dialog and confirms them.
    void announce(const QStringList& T1, const QStringList& T2 = {}) {
        answers.dialog(QStringLiteral("Obciazenie"), [=, this](QWidget& modal) {
            Hand dialog(modal);
            fill(dialog, T1, T2);
            dialog.key(Qt::Key_Return);
        });
    }
    void fill(Hand& dialog, const QStringList& T1, const QStringList& T2 = {}) {
        for (int i = 0; i < T1.size(); ++i)
            dialog.type(name("Text1_%1", i), T1[i]);
        for (int i = 0; i < T2.size(); ++i)
            dialog.type(name("Text2_%1", i), T2[i]);
    }
    void add(int direction, int kind, const QStringList& T1, const QStringList& T2 = {}) {
        choose(direction, kind);
        announce(T1, T2);
        hand->click("cmdDodaj");
        EXPECT_TRUE(answers.done());
    }
    void vertical(const char* P) { add(0, 0, {QString::fromLatin1(P)}); }

    QStringList totals() {
        QStringList all;
        for (int i = 0; i < 5; ++i)
            all += hand->text(name("Text1_%1", i));
        return all;
    }
    static QStringList totals(const char* N, const char* M1, const char* M2, const char* Vx,
                              const char* Vy) {
        QStringList all;
        for (const char* one : {N, M1, M2, Vx, Vy})
            all += QString::fromLatin1(one);
        return all;
    }
    QListWidget& list() { return *hand->the<QListWidget>("lstObciazen"); }
    QStringList lines() {
        QStringList all;
        for (int i = 0; i < list().count(); ++i)
            all += list().item(i)->text();
        return all;
    }
    void select(int line) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualItemRect(list().item(line)).center());
        hand->settle();
    }
    const char* name(const char* pattern, int index) {
        name_ = QString::fromLatin1(pattern).arg(index).toLatin1();
        return name_.constData();
    }

    Stan_statyki loads;
    RememberedTable table;
    std::unique_ptr<StatykaS> form;
    std::unique_ptr<Hand> hand;

private:
    QByteArray name_;
};

} // namespace ferna::testing
