#include "analysis/load_case.h"

#include "analysis/case_results.h"
#include "analysis/solve.h"

namespace ferna {

namespace {

/// Leaves in the state what goes on to later cases and what the solver has worked with.
void keep(Stan& stan, Stan_przypadku& s, const Carry& carry, const CaseResult& result) {
    Obciazenia& loads = stan.obciazenia;
    loads.Pierwsza_proba(loads.Nr_przyp) = carry.mayRaiseMoment;
    loads.Moment_M1_kGcm = s.M1k;
    loads.Moment_M2_kGcm = s.M2k;
    s.Dane_skorygowane = carry.anchorMoved;
    s.Przerwij_obliczenia = carry.gaveUp;
    Plyta_i_kotwy& plate = stan.plyta;
    plate.X_kotwy(plate.Liczba_srub) = carry.lastX;
    plate.Y_kotwy(plate.Liczba_srub) = carry.lastY;
    if (result.outcome != CaseOutcome::WholePlate)
        plate.Odl_kotwy = s.Odl_kotwy;
    stan.wyniki.outcomes(loads.Nr_przyp) = result.outcome;
}

void say(Dialogs& dialogs, CaseMessage message) {
    switch (message) {
    case CaseMessage::Approximate:
        dialogs.message(QStringLiteral("Brak ścisłego rozwiazania!\nRozwiązanie przybliżone."),
                        programTitle, MessageStyle::Plain);
        break;
    case CaseMessage::NoSolution:
        dialogs.message(QStringLiteral("BRAK ROZWIĄZANIA\nZmodyfikuj nieco dane"), programTitle,
                        MessageStyle::Plain);
        break;
    case CaseMessage::OutOfPlane:
        dialogs.message(
            QStringLiteral("Wypadkowa sil kotwiacych musi leżeć w płaszczyznie momentu"),
            QStringLiteral("KOTWY"), MessageStyle::Plain);
        break;
    }
}

/// True where the checks of concrete and horizontal forces follow.
bool isChecked(const CaseResult& result) {
    return result.Sigma_b || result.outcome == CaseOutcome::OneMoment;
}

} // namespace

CaseInput inputOf(const Stan& stan) {
    const Obciazenia& loads = stan.obciazenia;
    const Plyta_i_kotwy& plate = stan.plyta;
    const int c = loads.Nr_przyp;
    return {.N = loads.Sila_N_kG(c),
            .M1 = loads.Moment_M1(c),
            .M2 = loads.Moment_M2(c),
            .signs = signsOf(loads.Klasa_znaku(c)),
            .L = plate.Dlugosc_plyty,
            .B = plate.Szerokosc_plyty,
            .anchors = plate.Liczba_srub,
            .X = plate.X_kotwy,
            .Y = plate.Y_kotwy,
            .area = plate.Pole_kotwy,
            .n = stan.opcje.Wsp_n_val,
            .degreesPerRadian = stan.opcje.Stopnie_na_radian};
}

Carry carryOf(const Stan& stan, const Stan_przypadku& s) {
    const int c = stan.obciazenia.Nr_przyp;
    const Plyta_i_kotwy& plate = stan.plyta;
    return {.mayRaiseMoment = stan.obciazenia.Pierwsza_proba(c),
            .anchorMoved = s.Dane_skorygowane,
            .gaveUp = s.Przerwij_obliczenia,
            .lastX = plate.X_kotwy(plate.Liczba_srub),
            .lastY = plate.Y_kotwy(plate.Liczba_srub),
            .wholePlate = stan.wyniki.Przyp_policzony(c) != False,
            .stresses = stressesOf(stan, c),
            .steps = s.Kroki_c,
            .direction = s.Alfa,
            .length = s.Mimosrod};
}

void Oblicz_przypadek(Stan& stan, Stan_przypadku& s, bool optHsruby_0, Dialogs& dialogs) {
    stan.opcje.Hsily_wszystkie = optHsruby_0 ? 0 : 1;
    Carry carry = carryOf(stan, s);
    const CaseResult result = solve(inputOf(stan), carry, s);
    keep(stan, s, carry, result);
    for (const CaseMessage message : result.messages)
        say(dialogs, message);
    Zapisz_wyniki(stan, result);
    if (result.failure)
        throw RunTimeError(*result.failure);
    if (isChecked(result))
        Sprawdz_beton_i_sily_poziome(stan, s.Typ_strefy, carry.stresses);
}

} // namespace ferna
