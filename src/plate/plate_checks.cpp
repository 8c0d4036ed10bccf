#include "plate/plate_checks.h"

#include "plate/clauses.h"
#include "plate/load_charts.h"
#include "plate/plate_tables.h"
#include "runtime/format.h"

namespace ferna {

namespace {

/// A validation that failed, with the text of its message.
struct Refusal {
    QString text;
};

void show(Dialogs& dialogs, const QString& text) {
    dialogs.message(text, programTitle, MessageStyle::Stop);
}

std::size_t at(int check) {
    return static_cast<std::size_t>(check - 1);
}

void require(bool fulfilled, const QString& otherwise) {
    if (!fulfilled)
        throw Refusal{otherwise};
}

Single number(const QString& text, const TypedValue& value) {
    return taking(value, [&] { return CSng(text); });
}

Integer wholeNumber(const QString& text, const TypedValue& value) {
    return taking(value, [&] { return CInt(text); });
}

/// The start common to all commands.
void takeGrade(const PlateWork& work,
               const QString& missing = QStringLiteral("Musisz określić gatunek stali")) {
    require(work.form.fields.cmbStalb != -1, missing);
    Materialy& materials = work.stan.materialy;
    Stal_blachy(work, materials.Fd_blachy, materials.Max_grubosc);
}

/// The end common to all commands.
void finish(const PlateWork& work, int check, Single t) {
    Integer ok = True;
    Sprawdz_grubosc(work, t, work.stan.materialy.Fd_blachy, CInt(check - 1),
                    work.stan.raport.Spr_blachy(check), ok);
}

void disable(const PlateWork& work, int check) {
    work.form.face.cmdOblicz_enabled[at(check)] = false;
}

/// Cantilever strip in the tension zone.
void cmdOblicz1(const PlateWork& work) {
    const PlateFields& fields = work.form.fields;
    takeGrade(work);
    auto& in = work.form.inputs.check1;
    in.bs = number(fields.check1.bs, {Value::CheckBs, 1});
    require(in.bs != 0, QStringLiteral("Musisz okreslić szerokość pasa blachy (bs)!"));
    in.ca = number(fields.check1.ca, {Value::CheckCa, 1});
    require(in.ca != 0, QStringLiteral("Musisz okreslić długość wspornika (ca)!"));
    in.S = number(fields.check1.S, {Value::CheckS, 1});
    require(in.S != 0, QStringLiteral("Musisz okreslić siłę w kotwie!"));
    finish(work, 1, tensionStripThickness(in.S, in.ca, in.bs, work.stan.materialy.Fd_blachy));
}

/// Cantilever strip in the compression zone, under a stress linear from sigma_p to sigma_k.
void cmdOblicz2(const PlateWork& work) {
    const PlateFields& fields = work.form.fields;
    takeGrade(work, QStringLiteral("Musisz wybrać gatunek stali"));
    auto& in = work.form.inputs.check2;
    in.ca = number(fields.check2.ca, {Value::CheckCa, 2});
    require(in.ca != 0, QStringLiteral("Musisz podać długość wspornika!"));
    in.sigma_k = number(fields.check2.sigma_k, {Value::CheckSigmaK, 2});
    require(in.sigma_k > 0, QStringLiteral("Musisz podać naprężenia na końcu wspornika!"));
    in.sigma_p = number(fields.check2.sigma_p, {Value::CheckSigmaP, 2});
    require(in.sigma_p > 0, QStringLiteral("Musisz podać naprężenia na początku wspornika!"));
    const Single M = compressionStripMoment(in.ca, in.sigma_k, in.sigma_p);
    finish(work, 2, compressionStripThickness(M, work.stan.materialy.Fd_blachy));
}

/// A fragment check: its fields, its limits of r = b/l and the words beyond them.
struct FragmentCheck {
    int check;
    PlateFields::Fragment PlateFields::*fields;
    PlateInputs::Fragment PlateInputs::*inputs;
    Single lowest, highest;
    const char16_t* tooLong;
    const char16_t* tooWide;
};

constexpr FragmentCheck onFourEdges{3,
                                    &PlateFields::check3,
                                    &PlateInputs::check3,
                                    0.5F,
                                    1.0F,
                                    u"Zbyt długi fragment balchy (l/b>2)!",
                                    u"Zbyt szeroki fragment balchy (b/l>2)!"};
constexpr FragmentCheck onThreeEdges{5,
                                     &PlateFields::check5,
                                     &PlateInputs::check5,
                                     0.3F,
                                     2.0F,
                                     u"Zbyt długi fragment balchy (b/l<0.3)!",
                                     u"Zbyt szeroki fragment balchy (b/l>2)!"};
constexpr FragmentCheck onTwoEdges{6,
                                   &PlateFields::check6,
                                   &PlateInputs::check6,
                                   0.5F,
                                   1.0F,
                                   u"Zbyt długi fragment balchy (b/l<0.5)!",
                                   u"Zbyt szeroki fragment balchy (b/l>1)!"};

/// A fragment supported on its edges, under the stress of the concrete.
void computeFragment(const PlateWork& work, const FragmentCheck& check) {
    PlateFields::Fragment& typed = work.form.fields.*check.fields;
    takeGrade(work);
    PlateInputs::Fragment& in = work.form.inputs.*check.inputs;
    in.sigma = number(typed.sigma, {Value::CheckSigma, check.check});
    require(in.sigma != 0, QStringLiteral("Musisz okreslić naprężenia pod blachą!"));
    in.l = wholeNumber(typed.l, {Value::CheckL, check.check});
    if (in.l == 0) // said, but it does not end the command
        show(work.dialogs, QStringLiteral("Musisz okreslić długość podpartego fragmentu blachy!"));
    in.b = wholeNumber(typed.b, {Value::CheckB, check.check});
    require(in.b != 0, QStringLiteral("Musisz okreslić szrokość podpartego fragmentu blachy!"));
    if (in.l < in.b) {
        show(work.dialogs,
             QStringLiteral("Długośc fragmentu blachy musi być większa od szerokości!"));
        typed.l = general(in.b);
        typed.b = general(in.l);
        return;
    }
    const Single r = sideRatio(in.b, in.l);
    require(!(r < check.lowest), QString::fromUtf16(check.tooLong));
    require(!(r > check.highest), QString::fromUtf16(check.tooWide));
    const FragmentInterval table = fragmentInterval(check.check, r);
    const Single share = coefficientTimesLength(table.y0, table.y1, r, table.r0, table.d, in.l);
    const Single t = edgeFragmentThickness(share, in.sigma, work.stan.materialy.Fd_blachy);
    disable(work, 4); // also where the thickness is then refused
    finish(work, check.check, t);
}

void cmdOblicz31(const PlateWork& work) {
    computeFragment(work, onFourEdges);
}
void cmdOblicz32(const PlateWork& work) {
    computeFragment(work, onThreeEdges);
}
void cmdOblicz33(const PlateWork& work) {
    computeFragment(work, onTwoEdges);
}

/// Base of an IPE or HEB column without stiffeners.
void cmdOblicz4(const PlateWork& work) {
    const PlateFields& fields = work.form.fields;
    takeGrade(work);
    auto& in = work.form.inputs.check4;
    in.Nr_profilu = CInt(fields.cmbProfil + 1);
    require(in.Nr_profilu != 0, QStringLiteral("Musisz wybrać profil słupa"));
    in.sigma = number(fields.check4.sigma, {Value::CheckSigma, 4});
    require(in.sigma != 0, QStringLiteral("Musisz okreslić naprężenia pod blachą!"));
    const ColumnProfile& profile = columnProfile(in.Nr_profilu);
    const Single t = columnBaseThickness(in.sigma, profile.h, profile.s, profile.k,
                                         work.stan.materialy.Fd_blachy);
    for (const int fragment : {3, 5, 6})
        disable(work, fragment);
    finish(work, 4, t);
}

/// A fragment fixed on its edges, under the force of an anchor.
void computeAnchorFragment(const PlateWork& work, int check, PlateInputs::AnchorFragment& in,
                           const PlateFields::AnchorFragment& typed) {
    takeGrade(work);
    in.S = number(typed.S, {Value::CheckS, check});
    require(in.S != 0, QStringLiteral("Musisz okreslić siłę w kotwie!"));
    in.b = wholeNumber(typed.b, {Value::CheckB, check});
    require(in.b != 0, QStringLiteral("Musisz okreslić szrokość podpartego fragmentu blachy!"));
    in.a = wholeNumber(typed.a, {Value::CheckA, check});
    require(in.a != 0, QStringLiteral("Musisz okreslić położenie kotwy (wymiar a)!"));
    in.c = wholeNumber(typed.c, {Value::CheckC, check});
    require(in.c != 0, QStringLiteral("Musisz okreslić położenie kotwy (wymiar c)!"));
    const ChartReading reading = Interpoluj_wykres(check, in.b, in.a, in.c);
    require(reading.message.isEmpty(), reading.message);
    // A coefficient of 0 is the division by zero.
    finish(work, check, anchorFragmentThickness(in.S, reading.y, work.stan.materialy.Fd_blachy));
}

void cmdOblicz51(const PlateWork& work) {
    computeAnchorFragment(work, 7, work.form.inputs.check7, work.form.fields.check7);
}

void cmdOblicz52(const PlateWork& work) {
    computeAnchorFragment(work, 8, work.form.inputs.check8, work.form.fields.check8);
}

using Command = void (*)(const PlateWork&);
constexpr std::array<Command, PlateChecks> commands{cmdOblicz1,  cmdOblicz2,  cmdOblicz31,
                                                    cmdOblicz4,  cmdOblicz32, cmdOblicz33,
                                                    cmdOblicz51, cmdOblicz52};

constexpr int lastWithHandler = 4; // the commands of the later checks let run-time errors pass

void showRunTimeError(Dialogs& dialogs, int number) {
    const QString text = number == error::TypeMismatch
                             ? QStringLiteral("Podany ciąg znaków nie tworzy liczby")
                             : QStringLiteral("!!!!") + Format(number, u"#####");
    dialogs.message(text, programTitle, MessageStyle::Plain);
}

/// A thickness that the grade does not allow.
struct TooThick {
    QString message;
};

TooThick tooThick(const char16_t* message) {
    return {QString::fromUtf16(message)};
}

/// Above `Max_grubosc`: refuses, or computes anew with the strength of the thicker plate.
void correctForThickness(const PlateWork& work, Single& t, Single& Fd, Integer& g) {
    Materialy& materials = work.stan.materialy;
    const auto again = [&](Double found, Double holds, const TooThick& beyond, Integer limit) {
        if (g > limit)
            throw beyond;
        t = thicknessAtStrength(t, found, holds);
        g = wholeThickness(t);
        if (g > limit)
            throw beyond;
    };
    switch (work.form.Nr_stali_blachy) {
    case 1:
        throw tooThick(u"Dla stali St0 max. grubość elementu wynosi 40 mm");
    case 2: {
        const TooThick beyond = tooThick(u"Dla stali St3.. max. grubość elementu wynosi 100 mm");
        if (g > 100)
            throw beyond;
        Fd = 205;
        again(205, 205, beyond, 100);
        return;
    }
    case 3:
        throw tooThick(u"Dla stali St4.. max. grubość elementu wynosi 40 mm");
    case 4:
    case 5:
        again(Fd, Double{Fd} - 10, // linear, and the strength of the report stays
              tooThick(u"Dla stali St18G2.. max. grubość elementu wynosi 50 mm"), 50);
        return;
    default:
        materials.Blacha_uzytkownika = False; // the next use asks for the steel again
        throw TooThick{QStringLiteral("Dla stali ") + materials.Blacha_nazwa
                       + QStringLiteral("max. grubość elementu wynosi")
                       + general(materials.Blacha_t_max) + QStringLiteral(" mm")};
    }
}

/// Shows a result and raises the accepted thickness to it.
void showThickness(PlateForm& form, Integer n, Integer g) {
    const std::size_t i = at(n + 1);
    form.face.Label8[i] = QStringLiteral("Wymagana grubość blachy (") + Format(n + 1, u"#")
                          + QStringLiteral(") = ") + general(g) + QStringLiteral(" mm");
    form.face.Label8_visible[i] = true;
    if (g <= 0)
        return;
    form.face.Label10_visible = true;
    if (g > CInt(form.fields.Text4))
        form.fields.Text4 = general(g);
    form.face.Text4_visible = true;
}

} // namespace

void Stal_blachy(const PlateWork& work, Single& Fd, Integer& Grub) {
    const Materialy& materials = work.stan.materialy;
    work.form.Nr_stali_blachy = CInt(work.form.fields.cmbStalb + 1);
    if (work.form.Nr_stali_blachy != userPlateSteel) {
        const PlateSteel& steel = plateSteel(work.form.Nr_stali_blachy);
        Fd = steel.Fd_blachy;
        Grub = steel.Max_grubosc;
    } else if (materials.Blacha_uzytkownika != False) {
        Fd = materials.Blacha_fd;
        Grub = materials.Blacha_t_max;
    } else {
        askPlateSteel(work.stan, work.dialogs, work.host);
    }
}

void Sprawdz_grubosc(const PlateWork& work, Single& t, Single& Fd, Integer n, Integer& Grub_wyn,
                     Integer& ok) {
    ok = True;
    Integer g = wholeThickness(t);
    try {
        if (g > work.stan.materialy.Max_grubosc)
            correctForThickness(work, t, Fd, g);
    } catch (const TooThick& refusal) {
        show(work.dialogs, refusal.message);
        work.form.why.at(at(n + 1)) = refusal.message;
        Grub_wyn = 0;
        work.form.face.Label8_visible[at(n + 1)] = false;
        ok = False;
        return;
    }
    Grub_wyn = g;
    showThickness(work.form, n, g);
}

void computePlateCheck(const PlateWork& work, int check) {
    bool& refused = work.form.refused.at(at(check));
    refused = true; // until it has a result
    QString& why = work.form.why.at(at(check));
    why.clear();
    work.form.withdrawn.at(at(check)) = false;
    if (!work.form.face.cmdOblicz_enabled.at(at(check)))
        return;
    Integer& result = work.stan.raport.Spr_blachy(check);
    result = 0; // a failed attempt leaves the check absent
    if (work.form.face.Label8[at(check)] != noPlateResult)
        work.form.face.Label8_visible[at(check)] = false; // until there is a new result
    try {
        commands[at(check)](work);
    } catch (const Refusal& refusal) {
        show(work.dialogs, refusal.text);
        why = refusal.text;
    } catch (const RunTimeError& failure) {
        result = 0;
        why = failure.text();
        work.form.face.Label8_visible[at(check)] = false;
        if (check > lastWithHandler)
            throw;
        showRunTimeError(work.dialogs, failure.number());
    }
    refused = result <= 0;
}

} // namespace ferna
