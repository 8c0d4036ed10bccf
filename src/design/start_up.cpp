#include "design/start_up.h"

#include "design/configuration.h"
#include "design/language.h"
#include "design/material_tables.h"
#include "runtime/format.h"

namespace ferna {

void clearForStart(Stan& stan) {
    stan.opcje.Stopnie_na_radian = 180 / Pi;
    stan.wyniki.Przyp_policzony.fill(False);
    stan.materialy.Stal_uzytkownika = false;
}

void readLastTask(Stan& stan, const QString& folder) {
    Czytaj_cfg(stan, folder + u'/' + taskFile);
    const Concrete& row = concrete(stan.opcje.Nr_normy, stan.opcje.Nr_betonu);
    stan.materialy.Nazwa_betonu = QString::fromLatin1(row.name);
    stan.materialy.Eb_betonu = row.Eb_betonu;
    if (stan.opcje.Tryb_wsp_n != 1)
        stan.opcje.Wsp_n_val = ratioN(row.Eb_betonu);
}

void startUp(Stan& stan, const QString& folder) {
    clearForStart(stan);
    readLastTask(stan, folder);
    Czytaj_teksty(stan, folder + u'/' + catalogueFile(stan.opcje.Nr_jezyka));
}

InputFields startFields(const Stan& stan) {
    const Obciazenia& loads = stan.obciazenia;
    InputFields fields;
    fields.txtNaz_proj = stan.opcje.Nazwa_projektu;
    fields.txtNr_strony = general(stan.opcje.Nr_strony);
    fields.Text2 = Format(stan.opcje.Wsp_n_val, u"###.##");
    fields.Text3 = general(stan.plyta.Dlug_plyty_mm);
    fields.Text4 = general(stan.plyta.Szer_plyty_mm);
    fields.cmbStal = stan.opcje.Nr_stali - 1;
    fields.Option1_0 = stan.opcje.Stopa_betonowa == 0;
    fields.optHsruby_0 = stan.opcje.Hsily_wszystkie == 0;
    for (int c = 1; c <= MaxCases; ++c) {
        const auto text = [&](int row) { return general(CSng(loads.Tablica_obc(row)(c) / 10.0)); };
        fields.loads.at(static_cast<std::size_t>(c - 1)) = {text(1), text(2), text(3), text(4),
                                                            text(5)};
    }
    return fields;
}

} // namespace ferna
