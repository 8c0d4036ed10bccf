#include "input/material_fields.h"

#include "design/configuration.h"
#include "design/material_tables.h"
#include "runtime/format.h"

namespace ferna {

namespace {

constexpr Single recommendedRatio = 6; // by the Polish code
constexpr Integer lastOlderClass = 5;

QString asShown(Single n) {
    return Format(n, u"###.##");
}

} // namespace

void chooseNorm(Stan& stan, Integer k) {
    Integer& number = stan.opcje.Nr_betonu;
    if (k != stan.opcje.Nr_normy && number > 1) {
        // The older norm has one class more, B17.5 in the second place.
        number = CInt(k == 1 ? number - 1 : qMin<int>(number + 1, lastOlderClass));
    }
    stan.opcje.Nr_normy = k;
    takeEb(stan);
    if (stan.opcje.Tryb_wsp_n == 0)
        computeRatio(stan);
}

void chooseConcrete(Stan& stan, int index) {
    stan.opcje.Nr_betonu = CInt(index + 1);
    takeEb(stan);
}

void takeEb(Stan& stan) {
    stan.materialy.Eb_betonu = concrete(stan.opcje.Nr_normy, stan.opcje.Nr_betonu).Eb_betonu;
}

void computeRatio(Stan& stan) {
    stan.opcje.Wsp_n_val = ratioN(stan.materialy.Eb_betonu);
}

QString ratioText(const Stan& stan) {
    return asShown(stan.opcje.Wsp_n_val);
}

Single typedRatio(const QString& text) {
    const Single n = CSng(text);
    if (!canBeSaved(n))
        throw RunTimeError(error::Overflow, QStringLiteral("n = %1, a zadanie (Ferna.cfg) mieści n "
                                                           "od -327,68 do 327,67")
                                                .arg(text.trimmed()));
    return n;
}

void leaveRatio(const QString& text) {
    try {
        typedRatio(text);
    } catch (const RunTimeError& failure) {
        if (failure.number() != error::TypeMismatch)
            throw;
    }
}

RatioOffer ratioOffer(const Stan& stan) {
    const QString computed = asShown(ratioN(stan.materialy.Eb_betonu));
    return {QStringLiteral("PN zaleca przyjmowanie współczynnika n = 6\n"
                           "Dla podanej marki betonu n = ")
                + computed + QStringLiteral("\nPodaj wartość wspólczynnika"),
            computed};
}

void chooseRatio(Stan& stan, int index, Dialogs& dialogs) {
    if (index == 0) {
        stan.opcje.Wsp_n_val = recommendedRatio;
        return;
    }
    if (index == 1) {
        computeRatio(stan);
        return;
    }
    const QString answer = dialogs.input(
        QStringLiteral("Podaj stosunek współczynników sztywności n=E/Eb"),
        QStringLiteral("Stosunek współczynników sztywności"), general(stan.opcje.Wsp_n_val));
    stan.opcje.Wsp_n_val = answer.isEmpty() ? recommendedRatio : typedRatio(answer);
}

} // namespace ferna
