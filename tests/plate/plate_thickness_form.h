#pragma once

#include "plate/forms/Grub_bla.h"
#include "runtime/text_file.h"
#include "support/worked_form.h"

#include <QFile>
#include <QListWidget>
#include <QStackedWidget>

namespace ferna::testing {

/// The form over the results of a calculation: anchor of 20 mm, 12.34 kN, 3.456 MPa.
class PlateThicknessForm : public WorkedForm {
protected:
    const QString title = QStringLiteral("Ferna 2005 Pr");

    enum Grade { St0S, St3, St4, G18G2, G18G2AV, InnaStal };

    PlateThicknessForm() {
        stan.plyta.Fi_kotwy(3) = 20;
        stan.wyniki.Nr_kotwy_max = 3;
        stan.wyniki.Sila_kotwy_max = -12.34F;
        stan.wyniki.Sigma_b_max = 3.456F;
        for (const char* file :
             {"rysgb1", "rysgb2", "rysgb31", "rysgb32", "rysgb33", "rysgb51", "rysgb52"})
            writeFileWhole(path(QString::fromLatin1(file) + QStringLiteral(".bmp")), file);
    }

    void SetUp() override { open(); }

    void open() {
        hand.reset();
        form = std::make_unique<Grub_bla>(stan, folder.path(), dialogs, nullptr);
        form->show();
        hand = std::make_unique<Hand>(*form);
        hand->activate();
    }

    Integer result(int check) const { return stan.raport.Spr_blachy(check); }
    bool lineShown(int check) const {
        const QString name = QStringLiteral("Label8_%1").arg(check - 1);
        return !form->findChild<QLabel*>(name)->isHidden();
    }
    QString line(int check) const {
        return form->findChild<QLabel*>(QStringLiteral("Label8_%1").arg(check - 1))->text();
    }
    void grade(Grade item) { hand->choose("cmbStalb", item); }

    void tab(int index) {
        auto* const list = hand->the<QListWidget>("lstZakladki");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(index)).center());
        hand->settle();
    }
    int shownTab() const { return hand->the<QStackedWidget>("SSTab1")->currentIndex(); }

    /// Check 1 with a force that needs t mm in St3 (205 MPa), bs = ca = 100 mm.
    void strip(int t) {
        tab(0);
        hand->type("Text1_0", QStringLiteral("100"));
        hand->type("Text2_0", QStringLiteral("100"));
        hand->type("Text3_0",
                   QString::number(t * t / (2.2 * 2.2) * 205 / 1000).replace(u'.', u','));
        hand->click("cmdOblicz1");
    }
    /// A fragment check 3, 5 or 6 on its tab.
    void fragment(int check) {
        const int i = check == 3 ? 1 : check == 5 ? 2 : 3;
        tab(check == 3 ? 7 : check == 5 ? 6 : 5);
        hand->type(name("Text1_%1", i), QStringLiteral("300"));
        hand->type(name("Text2_%1", i + 1), QStringLiteral("200"));
        hand->type(name("Text3_%1", i + 2), QStringLiteral("2"));
        hand->click(check == 3 ? "cmdOblicz31" : check == 5 ? "cmdOblicz32" : "cmdOblicz33");
    }
    const char* name(const char* pattern, int index) {
        name_ = QString::fromLatin1(pattern).arg(index).toLatin1();
        return name_.constData();
    }
    void refuse(const char16_t* text) { answers.box(title, QString::fromUtf16(text)); }
    QByteArray saved(const QString& file) const {
        return QFile::exists(path(file)) ? readFileWhole(path(file)) : QByteArray("none");
    }

    std::unique_ptr<Grub_bla> form;
    std::unique_ptr<Hand> hand;

private:
    QByteArray name_;
};

} // namespace ferna::testing
