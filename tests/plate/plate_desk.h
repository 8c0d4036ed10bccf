#pragma once

#include "plate/plate_checks.h"
#include "plate/plate_report_lines.h"
#include "support/decimal_comma.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace ferna::testing {

/// The dialog of the plate steel with an answer given beforehand.
class AnsweredPlateSteel : public PlateSteelHost {
public:
    void KGM8b(Stan& stan) override {
        ++shown;
        if (cancelled) {
            stan.materialy.Stal_anulowana = True;
            return;
        }
        stan.materialy.Blacha_nazwa = QStringLiteral("S355");
        stan.materialy.Blacha_fd = 315.5F;
        stan.materialy.Fd_blachy = 315.5F;
        stan.materialy.Blacha_t_max = 40;
        stan.materialy.Max_grubosc = 40;
        stan.materialy.Blacha_uzytkownika = True;
        stan.materialy.Stal_anulowana = False;
    }

    int shown = 0;
    bool cancelled = false;
};

/// The plate form, opened on an anchor of 20 mm with 12.34 kN and 3.456 MPa under the plate.
class PlateDesk : public ::testing::Test {
protected:
    PlateDesk() {
        for (int n = 1; n <= CatalogueLines; ++n)
            stan.Teksty(n) = QStringLiteral("<%1>").arg(n);
        stan.plyta.Fi_kotwy(3) = 20;
        stan.wyniki.Nr_kotwy_max = 3;
        stan.wyniki.Sila_kotwy_max = -12.34F;
        stan.wyniki.Sigma_b_max = 3.456F;
        form = openPlateForm(stan);
        form.fields.cmbStalb = 1; // St3: 205 MPa up to 40 mm
    }

    PlateWork work() { return {stan, form, dialogs, steel}; }
    void compute(int check) { computePlateCheck(work(), check); }
    Integer result(int check) const { return stan.raport.Spr_blachy(check); }
    bool enabled(int check) const {
        return form.face.cmdOblicz_enabled.at(static_cast<std::size_t>(check - 1));
    }
    bool lineShown(int check) const {
        return form.face.Label8_visible.at(static_cast<std::size_t>(check - 1));
    }
    QString line(int check) const {
        return form.face.Label8.at(static_cast<std::size_t>(check - 1));
    }
    /// The last message, and that it has the title and the style of a failed validation.
    QString refusal() {
        if (dialogs.messages.empty())
            return QStringLiteral("(no message)");
        const auto box = dialogs.messages.back();
        EXPECT_EQ(box.title, programTitle);
        EXPECT_EQ(box.style, MessageStyle::Stop);
        return box.text;
    }

    void strip(const char16_t* bs, const char16_t* ca, const char16_t* S) {
        form.fields.check1.bs = QString::fromUtf16(bs);
        form.fields.check1.ca = QString::fromUtf16(ca);
        form.fields.check1.S = QString::fromUtf16(S);
    }
    /// A fragment check 3, 5 or 6.
    void fragment(int check, int l, int b, const char16_t* sigma) {
        PlateFields& fields = form.fields;
        auto& typed = check == 3 ? fields.check3 : check == 5 ? fields.check5 : fields.check6;
        typed = {QString::number(l), QString::number(b), QString::fromUtf16(sigma)};
    }
    void anchorFragment(int check, int b, int a, int c, const char16_t* S) {
        (check == 7 ? form.fields.check7 : form.fields.check8) = {
            QString::number(b), QString::number(a), QString::number(c), QString::fromUtf16(S)};
    }
    /// Check 1 with a cantilever chosen for the required thickness t in the grade of the list.
    void stripOfThickness(double t, double Fd) {
        strip(u"100", u"100", u"1");
        form.fields.check1.S = general(t * t / (2.2 * 2.2) * Fd / 1000.0);
    }

    WithDecimalSign comma{u','};
    Stan stan;
    ScriptedDialogs dialogs;
    AnsweredPlateSteel steel;
    PlateForm form;
};

} // namespace ferna::testing
