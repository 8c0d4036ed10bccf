#pragma once

#include "analysis/load_case.h"
#include "command/calculation.h"
#include "design/material_tables.h"
#include "input/anchor_layout.h"
#include "runtime/format.h"

#include <functional>

namespace ferna::testing {

/// A catalogue in which text n reads "<n>", so that a wrong line number shows.
inline void numberedCatalogue(Stan& stan) {
    for (int n = 1; n <= CatalogueLines; ++n)
        stan.Teksty(n) = QStringLiteral("<%1>").arg(n);
}

/// Surroundings of a calculation that note what they were asked for.
struct RecordingHost : CalculationHost {
    std::function<void(Stan&)> steelDialog = [](Stan& stan) {
        stan.materialy.Stal_anulowana = True;
    };
    int steelDialogs = 0;
    int drawings = 0;
    std::vector<int> cases;
    std::function<void(int)> afterCase = [](int) {};

    void KGM8(Stan& stan) override {
        ++steelDialogs;
        steelDialog(stan);
    }
    void drawPlate(Stan&, const InputFields&) override { ++drawings; }
    void caseEnded(int c) override {
        cases.push_back(c);
        afterCase(c);
    }
};

/// A column base as an engineer enters it: the state, the fields of the main form, and everything
/// that a calculation talks to. Starts with a plate of 600 x 400 mm, St3S, B15, and no anchors.
struct ColumnBase {
    Stan stan;
    Stan_przypadku solver;
    InputFields fields;
    ScriptedDialogs dialogs;
    RecordingHost host;
    int cases = 0;

    ColumnBase() {
        numberedCatalogue(stan);
        plate(600, 400);
        fields.txtNaz_proj = QStringLiteral("Hala A");
        fields.txtNr_strony = QStringLiteral("1");
        fields.cmbStal = 1;
        fields.Text2 = general(ratioN(concrete(0, 1).Eb_betonu));
    }

    ColumnBase& plate(int length, int width) {
        fields.Text3 = general(length);
        fields.Text4 = general(width);
        return *this;
    }

    ColumnBase& anchor(int x, int y, Integer fi = 24) {
        Plyta_i_kotwy& p = stan.plyta;
        p.Liczba_srub = CInt(p.Liczba_srub + 1);
        storeAnchorAt(p, p.Liczba_srub, x, y, fi);
        Lista_srub(stan);
        return *this;
    }

    ColumnBase& fourAnchors(int x, int y, Integer fi = 24) {
        return anchor(x, y, fi).anchor(-x, y, fi).anchor(x, -y, fi).anchor(-x, -y, fi);
    }

    /// One more load case, kN and kNm.
    ColumnBase& loads(Double N, Double M1, Double M2, Double Vx = 0, Double Vy = 0) {
        fields.loads.at(static_cast<std::size_t>(cases++)) = {general(N), general(M1), general(M2),
                                                              general(Vx), general(Vy)};
        stan.obciazenia.Liczba_przyp = CInt(cases);
        return *this;
    }

    ColumnBase& noLoads() {
        cases = 0;
        return *this;
    }

    ColumnBase& allAnchorsTakeShear(bool all) {
        fields.optHsruby_0 = all;
        return *this;
    }

    CalculationEnd calculate() { return Oblicz(stan, solver, fields, dialogs, host); }

    /// The result lines of all cases so far.
    QStringList lines() const {
        QStringList result;
        for (int i = 1; i <= stan.wyniki.Nr_wiersza; ++i)
            result += stan.wyniki.Wiersze_wynikow(i);
        return result;
    }

    QStringList messages() const {
        QStringList result;
        for (const ScriptedDialogs::Box& box : dialogs.messages)
            result += box.text;
        return result;
    }
};

} // namespace ferna::testing
