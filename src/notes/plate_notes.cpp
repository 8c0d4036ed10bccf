#include "notes/plate_notes.h"

#include "notes/stress_words.h"
#include "runtime/format.h"

#include <algorithm>

namespace ferna::notes {

namespace {

/// The check as its command calls it.
QString checkName(int check) {
    static constexpr std::array names{"1", "2", "3.1", "4", "3.2", "3.3", "5.1", "5.2"};
    static_assert(names.size() == PlateChecks);
    return QStringLiteral("Sprawdzenie blachy (%1): ")
        .arg(QLatin1String(names.at(static_cast<std::size_t>(check - 1))));
}

void refusedChecks(const PlateFacts& facts, Notes& notes) {
    for (int check = 1; check <= PlateChecks; ++check)
        if (facts.refused.at(static_cast<std::size_t>(check - 1)))
            notes.push_back({Code::SprawdzenieOdrzucone, 0, 0, check,
                             checkName(check)
                                 + QStringLiteral("zostało odrzucone albo nie mogło się odbyć i "
                                                  "nie ma go w wydruku. Popraw jego dane i wykonaj "
                                                  "je ponownie.")});
}

void thicknessWithoutCheck(const PlateFacts& facts, Notes& notes) {
    if (!facts.accepted)
        return;
    const auto most = std::max_element(facts.required.begin(), facts.required.end());
    const QString accepted =
        QStringLiteral("Przyjęto grubość blachy %1 mm, ").arg(general(*facts.accepted));
    if (*most <= 0)
        notes.push_back({Code::GruboscBezSprawdzenia, 0, 0, 0,
                         accepted
                             + QStringLiteral("a żadne sprawdzenie jej nie dotyczy. Wykonaj "
                                              "sprawdzenia fragmentów blachy.")});
    else if (*facts.accepted < *most)
        notes.push_back({Code::GruboscBezSprawdzenia, 0, 0,
                         static_cast<int>(most - facts.required.begin()) + 1,
                         accepted
                             + QStringLiteral("a sprawdzenia wymagają %1 mm. Przyjmij co najmniej "
                                              "%1 mm.")
                                   .arg(*most)});
}

/// A force or pressure that was typed for a check.
struct Typed {
    int check;
    const char16_t* what;
    Double value;
    bool force;
};

std::array<Typed, 9> typedValues(const PlateInputs& in) {
    return {{{1, u"siłę w kotwie", in.check1.S, true},
             {2, u"naprężenie pod końcem wspornika", in.check2.sigma_k, false},
             {2, u"naprężenie pod początkiem wspornika", in.check2.sigma_p, false},
             {3, u"naprężenie pod blachą", in.check3.sigma, false},
             {4, u"naprężenie pod blachą", in.check4.sigma, false},
             {5, u"naprężenie pod blachą", in.check5.sigma, false},
             {6, u"naprężenie pod blachą", in.check6.sigma, false},
             {7, u"siłę w kotwie", in.check7.S, true},
             {8, u"siłę w kotwie", in.check8.S, true}}};
}

void typedTooSmall(const PlateFacts& facts, Notes& notes) {
    constexpr Double bearable = 0.98;
    for (const Typed& typed : typedValues(facts.inputs)) {
        if (facts.required.at(static_cast<std::size_t>(typed.check - 1)) <= 0)
            continue;
        const Double computed = typed.force ? facts.force : facts.pressure;
        if (!(typed.value < bearable * computed))
            continue;
        const QString unit = typed.force ? QStringLiteral(" kN") : QStringLiteral(" MPa");
        notes.push_back(
            {Code::SilaMniejsza, 0, 0, typed.check,
             checkName(typed.check)
                 + QStringLiteral("wpisano %1 %2%4, o %5 mniej niż największa obliczona wartość "
                                  "%3%4. Wpisz obliczoną albo upewnij się, że sprawdzany fragment "
                                  "jest mniej obciążony.")
                       .arg(QString::fromUtf16(typed.what), numberBeside(typed.value, computed),
                            numberBeside(computed, typed.value), unit,
                            percent(1 - typed.value / computed))});
    }
}

} // namespace

Notes plateNotes(const PlateFacts& facts) {
    Notes notes;
    refusedChecks(facts, notes);
    thicknessWithoutCheck(facts, notes);
    typedTooSmall(facts, notes);
    return notes;
}

} // namespace ferna::notes
