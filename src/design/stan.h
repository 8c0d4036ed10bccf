#pragma once

#include "design/case_outcome.h"
#include "runtime/indexed_array.h"
#include "runtime/numbers.h"

#include <QString>

namespace ferna {

// The design state: one instance in a process, owned by main() and handed over by reference.
// Arrays of cases run 1..6 and arrays of anchors 1..20; index 0 is not used. Input in kN, kNm, mm,
// MPa; the solver works in kG, cm, kG/cm2. Axial force is positive in compression; stresses and
// forces of anchors are held negative in tension.

inline constexpr int MaxAnchors = 20;
inline constexpr int MaxCases = 6;
inline constexpr int MaxResultLines = 132;
inline constexpr int CatalogueLines = 66;

template <typename T>
using ByAnchor = IndexedArray<T, MaxAnchors>;
template <typename T>
using ByCase = IndexedArray<T, MaxCases>;

/// 1 kN in kG and 1 kNm in kG cm are `value * perKilo / Gravity`; MPa is kG/cm2 * Gravity / 100.
inline constexpr Double Gravity = 9.80665;

/// Choices of the task.
struct Opcje_zadania {
    QString Nazwa_projektu;
    Integer Nr_strony = 1;       ///< first page number
    Integer Nr_normy = 0;        ///< 0 PN-84/B-03264, 1 PN-B-03264:1999
    Integer Nr_jezyka = 0;       ///< 0 Polish, 1 without diacritics, 2 English, 3 French, 4 German
    Integer Tryb_RTF = 1;        ///< 0 no RTF, 1 pattern A, 2 pattern B
    Integer Hsily_wszystkie = 0; ///< 0 horizontal forces by all anchors, 1 compression-zone option
    Integer Tryb_wsp_n = 0;      ///< 0 ratio n computed, 1 typed
    Single Wsp_n_val = 0;        ///< ratio n = Es / Eb
    Double Stopnie_na_radian = 180 / Pi;
    Integer Nr_stali = 1;       ///< anchor steel 1..7
    Integer Nr_betonu = 1;      ///< concrete, position in its list from 1
    Integer Stopa_betonowa = 0; ///< 0 plain footing, 1 reinforced
};

/// The plate and the anchors.
struct Plyta_i_kotwy {
    Integer Dlug_plyty_mm = 0;  ///< plate length, mm
    Integer Szer_plyty_mm = 0;  ///< plate width, mm
    Single Dlugosc_plyty = 0;   ///< plate length, cm
    Single Szerokosc_plyty = 0; ///< plate width, cm
    Integer Liczba_srub = 0;    ///< number of anchors, 0..20
    ByAnchor<Integer> Fi_kotwy; ///< nominal diameter, mm
    ByAnchor<Single> X_kotwy;   ///< from the plate centre, cm
    ByAnchor<Single> Y_kotwy;
    ByAnchor<Single> X_kotwy_mm; ///< as typed, mm
    ByAnchor<Single> Y_kotwy_mm;
    ByAnchor<Double> Pole_kotwy; ///< core area, cm2
    ByAnchor<Double> Odl_kotwy;  ///< distance from the neutral line, cm, negative in tension
    Integer Fi_max = 0;          ///< largest diameter of the layout, mm
};

/// The load cases.
struct Obciazenia {
    Integer Liczba_przyp = 1; ///< number of load cases
    Integer Nr_przyp = 0;     ///< current case of the calculation
    ByCase<Single> Sila_N;    ///< kN
    ByCase<Single> Sila_N_kG;
    ByCase<Double> Moment_M1; ///< kNm, the Singles that were typed
    ByCase<Double> Moment_M2;
    ByCase<Single> Sila_Vx; ///< kN
    ByCase<Single> Sila_Vy;
    ByCase<Integer> Klasa_znaku;                 ///< 1 + 2 (M1 < 0) + (M2 < 0)
    ByCase<bool> Pierwsza_proba;                 ///< the moment scaling is still available
    IndexedArray<ByCase<Single>, 5> Tablica_obc; ///< rows 1..5: N, M1, M2, Vx, Vy, in tenths
    Double Moment_M1_kGcm = 0;                   ///< working moments of the current case, kG cm
    Double Moment_M2_kGcm = 0;
};

/// Materials, set at each calculation.
struct Materialy {
    Single Fd_kotwy = 0;         ///< design strength of the anchor steel in tension, MPa
    Single Fd2_kotwy = 0;        ///< strength of the interaction check, MPa
    Single Fv_kotwy = 0;         ///< design strength in shear, MPa
    QString Klasa_stali;         ///< steel class for the report
    QString Nazwa_betonu;        ///< concrete class
    Single Rb_betonu = 0;        ///< design compressive strength, MPa
    Single Rbz_betonu = 0;       ///< tensile strength, MPa; not read anywhere
    Single Eb_betonu = 0;        ///< modulus, MPa
    Single Mnoznik_dlugosci = 0; ///< anchorage coefficients of the anchor selection
    Single Wsp_dlugosci = 0;
    QString Stal_nazwa; ///< user's anchor steel: name, fd MPa, largest diameter mm, Re, Rm MPa
    Single Stal_fd = 0;
    Integer Stal_fi_max = 0;
    Single Stal_Re = 0;
    Single Stal_Rm = 0;
    bool Stal_uzytkownika = false; ///< the user's anchor steel is in use
    QString Blacha_nazwa;          ///< user's plate steel: name, fd MPa, largest thickness mm
    Single Blacha_fd = 0;
    Integer Blacha_t_max = 0;
    Integer Blacha_uzytkownika = False; ///< the user's plate steel is in use
    Integer Stal_anulowana = False;     ///< True where a steel dialog ended without a valid steel
    Single Fd_blachy = 0;               ///< plate steel in use, MPa
    Integer Max_grubosc = 0;            ///< thickness up to which Fd_blachy holds, mm
};

/// Results of a calculation.
struct Wyniki {
    ByCase<Single> Sigma_b;               ///< largest concrete stress, MPa
    Single Sigma_b_max = 0;               ///< of all cases
    ByAnchor<ByCase<Single>> Sigma_kotwy; ///< MPa, by anchor and case; never cleared
    Single Sigma_s_max = 0;               ///< most negative anchor stress, MPa
    Single Sila_kotwy_max = 0;            ///< most negative anchor force, kN
    Integer Nr_kotwy_max = 0;             ///< its anchor
    ByAnchor<Single> Sila_kotwy_kG;       ///< of the last computed case: kG, kG/cm2, kN
    ByAnchor<Single> Sigma_kotwy_kG;
    ByAnchor<Single> Sila_kotwy;
    ByCase<Integer> Przyp_policzony;  ///< True: the whole plate was compressed; cleared at start-up
    ByCase<Integer> Typ_strefy_przyp; ///< shape 1..4 of the compressed zone
    ByCase<Single> Przec_a; ///< the neutral line leaves the plate at (a, b) and (c, d), cm
    ByCase<Single> Przec_b;
    ByCase<Single> Przec_c;
    ByCase<Single> Przec_d;
    ByCase<CaseOutcome> outcomes; ///< how the cases of the last calculation ended
    Integer Kotwy_OK = True;
    bool Beton_OK = true;
    IndexedArray<QString, MaxResultLines> Wiersze_wynikow; ///< finished lines, from 1
    Integer Nr_wiersza = 0;                                ///< last line used
    ByCase<Integer> Ostatni_wiersz;                        ///< last line of each case
    IndexedArray<Integer, MaxResultLines> Znak_wiersza;    ///< 1: joined with Tekst_przekroczenia
    Integer Liczba_przekroczen = 0;
    ByCase<QString> Tekst_przekroczenia; ///< concrete ratios, in order of appearance
};

/// Finished report lines that other subsystems than the analysis fill.
struct Stan_raportu {
    IndexedArray<QString, MaxAnchors> Wiersze_srub; ///< (0) heading, (i) anchor i
    IndexedArray<QString, 8> Wiersze_obciazen;      ///< the load table
    IndexedArray<QString, 10> Wiersze_kotwy;        ///< the anchor section, from 1
    Integer Liczba_wierszy_kotwy = 0;               ///< 0: no section
    IndexedArray<QString, 43> Wiersze_blachy;       ///< the plate section, from 0
    Integer Liczba_wierszy_blachy = 0;              ///< 0: no section, else its last index
    IndexedArray<Integer, 8> Spr_blachy;            ///< thickness by check 1..8, mm; 0: absent
    Integer Typ_szkicu_kotwy = 0;                   ///< sketch 1..3 of the anchor section
};

/// The design state as a whole.
struct Stan {
    Opcje_zadania opcje;
    Plyta_i_kotwy plyta;
    Obciazenia obciazenia;
    Materialy materialy;
    Wyniki wyniki;
    Stan_raportu raport;
    IndexedArray<QString, CatalogueLines> Teksty; ///< the language catalogue, lines 1..66
};

} // namespace ferna
