#include "design/user_steels.h"

#include "runtime/format.h"
#include "runtime/text_file.h"

namespace ferna {

namespace {

const QString steelTitle = QStringLiteral("Błąd w opisie stali użytkownika");

struct Refusal {
    QString text;
    SteelField focus;
};

// Range of the largest diameter or thickness that a steel may be given for, mm.
bool outOfRange(Integer mm) {
    return mm < 9 || mm > 119;
}

void acceptAnchor(Stan& stan, const AnchorSteelFields& fields) {
    Materialy& m = stan.materialy;
    m.Stal_nazwa = oneLine(fields.name);
    m.Stal_fd = CSng(fields.fd);
    m.Fd_kotwy = m.Stal_fd;
    m.Stal_anulowana = True;
    if (m.Stal_nazwa.isEmpty())
        throw Refusal{QStringLiteral("Podaj nazwę materiału"), SteelField::Name};
    m.Stal_fi_max = CInt(fields.fi_max);
    if (outOfRange(m.Stal_fi_max))
        throw Refusal{QStringLiteral("Nieoczekiwana max. średnica"), SteelField::Largest};
    if (m.Stal_fi_max < stan.plyta.Fi_max)
        throw Refusal{QStringLiteral("Conajmniej jedna śruba jest grubsza!"), SteelField::Largest};
    // Re and Rm are still those of the last acceptance here: the fields are read below.
    if (m.Stal_Re == 0 || m.Stal_Rm == 0 || m.Fd_kotwy == 0 || m.Stal_fi_max == 0)
        throw Refusal{QStringLiteral("Musisz wypełnic wszystkie pola"), SteelField::Name};
    m.Stal_Re = CSng(fields.Re);
    m.Stal_Rm = CSng(fields.Rm);
    if (!(m.Fd_kotwy < m.Stal_Re && m.Stal_Re <= m.Stal_Rm))
        throw Refusal{QStringLiteral("Nieprawidłowe parametry materiału"), SteelField::Strength};
    const AnchorSteel strengths = userStrengths(m);
    m.Fd2_kotwy = strengths.Fd2_kotwy;
    m.Fv_kotwy = strengths.Fv_kotwy;
    m.Stal_anulowana = False;
    m.Stal_uzytkownika = true;
}

void acceptPlate(Stan& stan, const PlateSteelFields& fields) {
    Materialy& m = stan.materialy;
    m.Blacha_nazwa = oneLine(fields.name);
    m.Blacha_fd = CSng(fields.fd);
    m.Fd_blachy = m.Blacha_fd;
    m.Stal_anulowana = True;
    if (m.Blacha_nazwa.isEmpty())
        throw Refusal{QStringLiteral("Podaj nazwę materiału"), SteelField::Name};
    m.Blacha_t_max = CInt(fields.t_max);
    if (outOfRange(m.Blacha_t_max))
        throw Refusal{QStringLiteral("Nieoczekiwana max. grubość"), SteelField::Largest};
    m.Max_grubosc = m.Blacha_t_max;
    if (m.Fd_blachy <= 0)
        throw Refusal{QStringLiteral("Musisz określić fd"), SteelField::Strength};
    m.Stal_anulowana = False;
    m.Blacha_uzytkownika = True;
}

/// Runs one acceptance; a refusal and a run-time error become their message.
template <typename Accept>
std::optional<SteelField> accepted(Dialogs& dialogs, const Accept& accept) {
    try {
        accept();
        return std::nullopt;
    } catch (const Refusal& refusal) {
        dialogs.message(refusal.text, steelTitle, MessageStyle::Stop);
        return refusal.focus;
    } catch (const RunTimeError&) {
        dialogs.message(steelTitle, steelTitle, MessageStyle::Stop);
        return SteelField::Strength;
    }
}

} // namespace

AnchorSteelFields rememberedAnchorSteel(const Materialy& materials) {
    return {materials.Stal_nazwa, general(materials.Stal_fd), general(materials.Stal_fi_max),
            general(materials.Stal_Rm), general(materials.Stal_Re)};
}

PlateSteelFields rememberedPlateSteel(const Materialy& materials) {
    return {materials.Blacha_nazwa, general(materials.Blacha_fd), general(materials.Blacha_t_max)};
}

std::optional<SteelField> acceptAnchorSteel(Stan& stan, const AnchorSteelFields& fields,
                                            Dialogs& dialogs) {
    return accepted(dialogs, [&] { acceptAnchor(stan, fields); });
}

std::optional<SteelField> acceptPlateSteel(Stan& stan, const PlateSteelFields& fields,
                                           Dialogs& dialogs) {
    return accepted(dialogs, [&] { acceptPlate(stan, fields); });
}

AnchorSteel userStrengths(const Materialy& remembered) {
    return {remembered.Stal_fd, CSng(0.85 * remembered.Stal_Re), CSng(0.45 * remembered.Stal_Rm),
            ""};
}

void cancelSteel(Stan& stan) {
    stan.materialy.Stal_anulowana = True;
}

} // namespace ferna
