#include "plate/plate_form.h"

#include "plate/plate_tables.h"
#include "runtime/format.h"

#include <algorithm>
#include <cmath>

namespace ferna {

namespace {

constexpr std::array<PlateTab, PlateChecks> tabs{
    {{1, 1}, {8, 7}, {7, 6}, {4, 0}, {2, 2}, {6, 5}, {5, 4}, {3, 3}}};

PlateFields firstFields(const Stan& stan) {
    const Integer d = stan.plyta.Fi_kotwy(stan.wyniki.Nr_kotwy_max);
    const QString force = Format(std::fabs(stan.wyniki.Sila_kotwy_max), u"### ##0.0");
    const QString stress = Format(stan.wyniki.Sigma_b_max, u"##0.0");
    const QString zero = QStringLiteral("0");
    const QString blank = QStringLiteral(" ");
    PlateFields fields;
    fields.check1 = {general(6 * d), general(3 * d), force};
    fields.check2 = {general(6 * d), stress, stress};
    fields.check3 = fields.check5 = fields.check6 = {zero, zero, stress};
    fields.check4 = {stress};
    fields.check7 = fields.check8 = {blank, {}, {}, force};
    fields.Text4 = zero;
    return fields;
}

PlateFace firstFace() {
    PlateFace face;
    face.Label8.fill(noPlateResult);
    face.Label8_visible.fill(true);
    face.Label8_visible[0] = false;
    face.Label8_visible[1] = false;
    face.cmdOblicz_enabled.fill(true);
    return face;
}

void showThickness(PlateFace& face, bool shown) {
    face.Text4_visible = shown;
    face.Label10_visible = shown;
}

/// Check 4 and the fragment checks 3, 5 and 6 exclude each other.
void giveBackExcluded(const Stan& stan, PlateFace& face, int check) {
    const auto stands = [&](int n) { return stan.raport.Spr_blachy(n) != 0; };
    const bool fragment = check == 3 || check == 5 || check == 6;
    if (check == 4) {
        for (const std::size_t n : {3U, 5U, 6U})
            face.cmdOblicz_enabled[n - 1] = true;
    } else if (fragment && !stands(3) && !stands(5) && !stands(6)) {
        face.cmdOblicz_enabled[4 - 1] = true;
    }
}

void withdraw(Stan& stan, PlateForm& form, int n) {
    const auto at = static_cast<std::size_t>(n - 1);
    bool& refused = form.refused.at(at);
    if (stan.raport.Spr_blachy(n) > 0 || refused)
        form.withdrawn.at(at) = true;
    stan.raport.Spr_blachy(n) = 0;
    form.face.Label8_visible.at(at) = false;
    refused = false;
}

} // namespace

const PlateTab& plateTab(int tab) {
    if (tab < 0 || tab >= PlateChecks)
        throw RunTimeError(error::Subscript);
    return tabs[static_cast<std::size_t>(tab)];
}

PlateForm openPlateForm(Stan& stan) {
    stan.raport.Liczba_wierszy_blachy = 0;
    stan.materialy.Blacha_uzytkownika = False;
    // The checks 5 to 8 keep what an earlier opening left.
    for (int n = 1; n <= 4; ++n)
        stan.raport.Spr_blachy(n) = 0;
    PlateForm form;
    form.fields = firstFields(stan);
    form.face = firstFace();
    return form;
}

void askPlateSteel(Stan& stan, Dialogs& dialogs, PlateSteelHost& host) {
    host.KGM8b(stan);
    if (stan.materialy.Stal_anulowana != False)
        dialogs.message(QStringLiteral("Musisz okreslić stal dla blachy"), programTitle,
                        MessageStyle::Stop);
}

void leaveGradeList(Stan& stan, PlateForm& form, Dialogs& dialogs, PlateSteelHost& host) {
    if (form.fields.cmbStalb < 0)
        return;
    if (form.fields.cmbStalb + 1 == userPlateSteel) {
        if (stan.materialy.Blacha_uzytkownika == False)
            askPlateSteel(stan, dialogs, host);
        return;
    }
    form.Nr_stali_blachy = CInt(form.fields.cmbStalb + 1);
    for (int n = 1; n <= PlateChecks; ++n)
        withdraw(stan, form, n);
}

void cmdAnulujto(Stan& stan, PlateForm& form, int i) {
    withdraw(stan, form, i + 1);
    Integer m = 0;
    for (int n = 1; n <= PlateChecks; ++n)
        m = std::max(m, stan.raport.Spr_blachy(n));
    form.fields.Text4 = general(m);
    showThickness(form.face, m > 0);
    giveBackExcluded(stan, form.face, i + 1);
}

} // namespace ferna
