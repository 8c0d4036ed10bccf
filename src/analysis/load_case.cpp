#include "analysis/load_case.h"

#include "analysis/case_results.h"
#include "analysis/clauses.h"
#include "analysis/search.h"

namespace ferna {

namespace {

/// A resultant of the tension anchors outside the plane of the moment, for a moment in one plane
/// alone: `side` are the coordinates that tell the tension side, `across` the others.
bool resultantOutOfPlane(const Plyta_i_kotwy& plate, const ByAnchor<Double>& side,
                         const ByAnchor<Double>& across) {
    Double first = 0;
    Double product = 0;
    for (int i = 1; i <= plate.Liczba_srub; ++i) {
        if (side(i) < 0) {
            first += plate.Pole_kotwy(i) * across(i);
            product += plate.Pole_kotwy(i) * across(i) * side(i);
        }
    }
    return first != 0 || product != 0;
}

/// The first line, the first steps and the fresh counters of an attempt.
void startSearch(const Stan& stan, Stan_przypadku& s) {
    s.Liczba_ocen = 0;
    s.Drugie_wejscie = 0;
    s.Reszta_beta = 0;
    s.Krok_c = s.Plyta_L / 10;
    s.C_linii = -s.Prom_R * std::cos(s.Kat_fi - s.Alfa); // the corner (-a, -b)
    const auto degrees = [&stan](Double g) { return g / stan.opcje.Stopnie_na_radian; };
    if (s.Alfa >= Pi / 4) {
        s.Krok_beta = (Pi / 2 - s.Alfa) / 5;
        s.Beta = s.Alfa + 2 * s.Krok_beta;
        return;
    }
    s.Beta = s.Alfa;
    if (s.Beta > degrees(10))
        s.Krok_beta = (Pi / 2 - s.Alfa) / 5;
    else if (s.Beta > degrees(5))
        s.Krok_beta = degrees(5);
    else if (s.Beta > degrees(1))
        s.Krok_beta = degrees(1);
    else
        s.Krok_beta = degrees(0.1);
}

/// One attempt. False where the case ends here without results; an attempt that runs out of
/// evaluations is treated like one whose angle leaves its range.
bool search(Stan& stan, Stan_przypadku& s, Dialogs& dialogs) {
    startSearch(stan, s);
    try {
        Szukaj_c(s, stan);
        if (!s.Jest_rozw)
            return false;
        s.Drugie_wejscie = 1;
        Szukaj_beta(s, stan, dialogs);
    } catch (const EvaluationLimitReached&) {
        Ponow_probe(s, stan, dialogs);
    }
    return !s.Przerwij_obliczenia;
}

void requirePlateSize(const Plyta_i_kotwy& plate) {
    if (plate.Dlugosc_plyty < 0 || plate.Szerokosc_plyty < 0)
        throw RunTimeError(error::InvalidCall, QStringLiteral("wymiar płyty jest ujemny"));
}

} // namespace

void Normalizuj_znaki(Stan& stan, Stan_przypadku& s) {
    const Obciazenia& loads = stan.obciazenia;
    const Integer signs = loads.Klasa_znaku(loads.Nr_przyp);
    const Double signX = signs == 3 || signs == 4 ? -1 : 1;
    const Double signY = signs == 2 || signs == 4 ? -1 : 1;
    s.M1n = signX * loads.Moment_M1(loads.Nr_przyp);
    s.M2n = signY * loads.Moment_M2(loads.Nr_przyp);
    for (int i = 1; i <= stan.plyta.Liczba_srub; ++i) {
        s.Xn(i) = signX * stan.plyta.X_kotwy(i);
        s.Yn(i) = signY * stan.plyta.Y_kotwy(i);
    }
    s.Plyta_L = stan.plyta.Dlugosc_plyty;
    s.Plyta_B = stan.plyta.Szerokosc_plyty;
}

void Ustal_momenty(Stan& stan, Stan_przypadku& s) {
    constexpr Single none = 0.006F;    // kNm
    constexpr Double substitute = 700; // kG cm
    Double& M1k = stan.obciazenia.Moment_M1_kGcm;
    Double& M2k = stan.obciazenia.Moment_M2_kGcm;
    // The line of an axis-parallel moment is singular, so a vanishing moment becomes a small one.
    // The two branches are not alike: 0.009 stands in one threshold only.
    if (std::fabs(CSng(s.M1n)) <= none) {
        M2k = momentInKilograms(s.M2n);
        M1k = substitute;
        if (substitute < 0.009 * std::fabs(M2k))
            M1k = 0.0009 * M2k;
    } else {
        M1k = momentInKilograms(s.M1n);
    }
    if (std::fabs(CSng(s.M2n)) <= none) {
        M2k = substitute;
        if (substitute < 0.0009 * std::fabs(M1k))
            M2k = 0.0009 * M1k;
    } else {
        M2k = momentInKilograms(s.M2n);
    }
}

void Ustal_mimosrody(Stan& stan, Stan_przypadku& s) {
    const Obciazenia& loads = stan.obciazenia;
    const Double Nk = loads.Sila_N_kG(loads.Nr_przyp);
    s.Ex = eccentricity(loads.Moment_M1_kGcm, Nk);
    s.Ey = eccentricity(loads.Moment_M2_kGcm, Nk);
    if (s.Ex != 0) {
        s.Alfa = std::atan(s.Ey / s.Ex);
        s.Mimosrod = eccentricityLength(s.Ex, s.Ey);
    }
    s.Pol_a = s.Plyta_L / 2;
    s.Pol_b = s.Plyta_B / 2;
    s.Kat_fi = std::atan(divided(s.Pol_b, s.Pol_a));
    s.Prom_R = Sqr(s.Pol_b * s.Pol_b + s.Pol_a * s.Pol_a);
}

bool Poza_rdzeniem(const Stan& stan, Stan_przypadku& s) {
    if (stan.obciazenia.Moment_M1_kGcm != 0) {
        if (s.Ex > s.Plyta_L / 6 || s.Ey > s.Plyta_B / 6)
            return true;
    } else if (stan.obciazenia.Moment_M2_kGcm != 0) {
        if (s.Ey > s.Plyta_B / 6)
            return true;
    }
    s.Rdzen = kernRadius(s.Plyta_L, s.Plyta_B, s.Alfa);
    return s.Rdzen < s.Mimosrod;
}

void Oblicz_przypadek(Stan& stan, Stan_przypadku& s, bool optHsruby_0, Dialogs& dialogs) {
    stan.opcje.Hsily_wszystkie = optHsruby_0 ? 0 : 1;
    requirePlateSize(stan.plyta);
    bool fromTheInput = true; // a scaled moment must survive, a moved anchor begins anew
    for (;;) {
        if (fromTheInput) {
            Normalizuj_znaki(stan, s);
            Ustal_momenty(stan, s);
        }
        Ustal_mimosrody(stan, s);
        if (!Poza_rdzeniem(stan, s)) {
            Wyniki_calej_plyty(stan, s);
            Sprawdz_beton_i_sily_poziome(stan, s);
            return;
        }
        const bool noM1 = stan.obciazenia.Moment_M1_kGcm == 0;
        if (noM1 || stan.obciazenia.Moment_M2_kGcm == 0) {
            if (noM1 ? resultantOutOfPlane(stan.plyta, s.Yn, s.Xn)
                     : resultantOutOfPlane(stan.plyta, s.Xn, s.Yn)) {
                dialogs.message(
                    QStringLiteral("Wypadkowa sil kotwiacych musi leżeć w płaszczyznie momentu"),
                    QStringLiteral("KOTWY"), MessageStyle::Plain);
                return;
            }
            Sprawdz_beton_i_sily_poziome(stan, s);
            return;
        }
        if (!search(stan, s, dialogs))
            return;
        if (s.Jest_rozw)
            break;
        fromTheInput = s.Dane_skorygowane;
    }
    Wyniki_linii_obojetnej(stan, s);
    Sprawdz_beton_i_sily_poziome(stan, s);
}

} // namespace ferna
