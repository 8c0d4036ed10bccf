#include "command/calculation.h"

#include "analysis/clauses.h"
#include "analysis/load_case.h"
#include "design/material_tables.h"
#include "runtime/format.h"
#include "runtime/text_file.h"

namespace ferna {

namespace {

/// A validation that failed, with the text and the title of its message.
struct Refusal {
    QString text;
    QString title = programTitle;
    int loadCase = 0; ///< that was refused for its axial force
};

Single number(const QString& text, Value value) {
    return taking({value}, [&] { return CSng(text); });
}

void requireAnchors(const Stan& stan) {
    if (stan.plyta.Liczba_srub == 0)
        throw Refusal{QStringLiteral("Musisz okreslić położenie i średnicę śrub kotwiących")};
}

void requireLengthAboveWidth(const InputFields& fields) {
    const Single L = number(fields.Text3, Value::PlateLength);
    const Single B = number(fields.Text4, Value::PlateWidth);
    if (B > L)
        throw Refusal{QStringLiteral("Długość płyty musi być większa od szerokości")};
}

/// Maxima and flags of a fresh calculation; the anchor and plate sections of the last report go.
void clearResults(Stan& stan) {
    Wyniki& results = stan.wyniki;
    results.Sigma_b_max = 0;
    results.Sigma_s_max = 0;
    results.Sila_kotwy_max = 0;
    results.Nr_kotwy_max = 0;
    results.Nr_wiersza = 0;
    results.outcomes.fill(CaseOutcome::NotComputed);
    results.Kotwy_OK = True;
    results.Beton_OK = true;
    stan.raport.Liczba_wierszy_kotwy = 0;
    stan.raport.Liczba_wierszy_blachy = 0;
}

/// Class of the concrete for the report: the item of the list, or the name of the row that applies
/// where the list does not offer it.
QString concreteName(const Opcje_zadania& task) {
    const QStringList& names = concreteNames(task.Nr_normy);
    return task.Nr_betonu <= names.size()
               ? names[task.Nr_betonu - 1]
               : QString::fromLatin1(concrete(task.Nr_normy, task.Nr_betonu).name);
}

Integer largestDiameter(const Plyta_i_kotwy& plate) {
    Integer largest = 0;
    for (int i = 1; i <= plate.Liczba_srub; ++i)
        largest = qMax(largest, plate.Fi_kotwy(i));
    return largest;
}

void assignSteel(Stan& stan, CalculationHost& host) {
    Materialy& materials = stan.materialy;
    if (stan.opcje.Nr_stali == userSteel) {
        host.KGM8(stan);
        if (materials.Stal_anulowana != False)
            throw Refusal{QStringLiteral("Musisz określić stal dla śrub kotwiących")};
        return;
    }
    const std::optional<AnchorSteel> steel = anchorSteel(stan.opcje.Nr_stali, stan.plyta.Fi_max);
    if (!steel)
        throw Refusal{QStringLiteral("Norma nie przewiduje takich śrub")};
    materials.Fd_kotwy = steel->Fd_kotwy;
    materials.Fd2_kotwy = steel->Fd2_kotwy;
    materials.Fv_kotwy = steel->Fv_kotwy;
    materials.Klasa_stali = QString::fromLatin1(steel->Klasa_stali);
}

void assignConcrete(Stan& stan, const InputFields& fields) {
    stan.opcje.Stopa_betonowa = fields.Option1_0 ? 0 : 1;
    const Concrete& row = concrete(stan.opcje.Nr_normy, stan.opcje.Nr_betonu);
    Materialy& materials = stan.materialy;
    materials.Rb_betonu = stan.opcje.Stopa_betonowa == 0 ? row.Rb_plain : row.Rb_reinforced;
    materials.Eb_betonu = row.Eb_betonu;
    materials.Rbz_betonu = row.Rbz_betonu.value_or(materials.Rbz_betonu);
    materials.Mnoznik_dlugosci = row.Mnoznik_dlugosci;
    materials.Wsp_dlugosci = row.Wsp_dlugosci;
}

void clearExceedances(Wyniki& results) {
    results.Znak_wiersza.fill(0);
    results.Liczba_przekroczen = 0;
    results.Tekst_przekroczenia.fill(QString());
}

/// A typed load in whole tenths, as the configuration keeps it.
Single tenths(Single value) {
    return CSng(Int(CSng(value * 10.0)));
}

void readCase(Stan& stan, const InputFields& fields, int c) {
    Obciazenia& loads = stan.obciazenia;
    const LoadRow<QString>& typed = fields.loads.at(static_cast<std::size_t>(c - 1));
    // A load and what the configuration keeps of it.
    const auto load = [&](auto& place, int kept, const QString& text, Value value) {
        taking({value, c - 1}, [&] {
            place = CSng(text);
            loads.Tablica_obc(kept)(c) = tenths(CSng(place));
        });
    };
    loads.Pierwsza_proba(c) = true;
    load(loads.Sila_N(c), 1, typed.N, Value::N);
    const auto title = [c] { return QStringLiteral("Schemat nr ") + Format(c, u"###"); };
    if (loads.Sila_N(c) < 0)
        throw Refusal{QStringLiteral("Program nie wykonuje obliczeń dla zakotwień rozciąganych"),
                      title(), c};
    if (loads.Sila_N(c) == 0)
        throw Refusal{QStringLiteral("Siła osiowa N nie może być równa 0: podaj siłę ściskającą "
                                     "większą od 0"),
                      title(), c};
    loads.Sila_N_kG(c) =
        taking({Value::N, c - 1}, [&] { return forceInKilograms(loads.Sila_N(c)); });

    load(loads.Moment_M1(c), 2, typed.M1, Value::M1);
    load(loads.Moment_M2(c), 3, typed.M2, Value::M2);
    load(loads.Sila_Vx(c), 4, typed.Vx, Value::Vx);
    load(loads.Sila_Vy(c), 5, typed.Vy, Value::Vy);
    loads.Klasa_znaku(c) = signClass(loads.Moment_M1(c), loads.Moment_M2(c));
}

/// A diameter off the series leaves the earlier area.
void assignCoreAreas(Plyta_i_kotwy& plate) {
    for (int i = 1; i <= plate.Liczba_srub; ++i)
        plate.Pole_kotwy(i) = coreArea(plate.Fi_kotwy(i)).value_or(plate.Pole_kotwy(i));
}

/// Everything up to the first load case. Throws Refusal.
void prepare(Stan& stan, Stan_przypadku& przypadek, const InputFields& fields,
             CalculationHost& host) {
    przypadek.Przerwij_obliczenia = false;
    requireAnchors(stan);
    requireLengthAboveWidth(fields);
    stan.opcje.Nazwa_projektu = oneLine(fields.txtNaz_proj);
    clearResults(stan);
    stan.opcje.Nr_strony = taking({Value::PageNumber}, [&] { return CInt(fields.txtNr_strony); });
    stan.materialy.Nazwa_betonu = concreteName(stan.opcje);
    stan.opcje.Wsp_n_val = number(fields.Text2, Value::RatioN);
    przypadek.Dane_skorygowane = false;
    stan.plyta.Fi_max = largestDiameter(stan.plyta);
    if (fields.cmbStal >= 0)
        stan.opcje.Nr_stali = CInt(fields.cmbStal + 1);
    assignSteel(stan, host);
    assignConcrete(stan, fields);
    Czytaj_plyte(stan, fields);
    host.drawPlate(stan, fields);
    clearExceedances(stan.wyniki);
    for (int c = 1; c <= stan.obciazenia.Liczba_przyp; ++c)
        readCase(stan, fields, c);
    assignCoreAreas(stan.plyta);
}

} // namespace

CalculationEnd Oblicz(Stan& stan, Stan_przypadku& przypadek, const InputFields& fields,
                      Dialogs& dialogs, CalculationHost& host) {
    try {
        prepare(stan, przypadek, fields, host);
    } catch (const Refusal& refusal) {
        if (refusal.loadCase != 0)
            host.caseRefused(refusal.loadCase);
        dialogs.message(refusal.text, refusal.title, MessageStyle::Stop);
        return CalculationEnd::Refused;
    }
    for (int c = 1; c <= stan.obciazenia.Liczba_przyp; ++c) {
        stan.obciazenia.Nr_przyp = CInt(c);
        Oblicz_przypadek(stan, przypadek, fields.optHsruby_0, dialogs);
        host.caseEnded(c);
    }
    return przypadek.Przerwij_obliczenia ? CalculationEnd::NoResults : CalculationEnd::Computed;
}

} // namespace ferna
