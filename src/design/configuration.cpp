#include "design/configuration.h"

#include "runtime/field_reader.h"
#include "runtime/format.h"
#include "runtime/text_file.h"

#include <array>
#include <limits>

namespace ferna {

namespace {

/// One line of values in print zones: each begins at the next multiple of 14 columns, a number with
/// a blank or its minus sign in front and a blank behind. Numbers carry a point.
class ZoneLine {
public:
    ZoneLine& number(Single value) {
        QString digits = general(value).replace(u',', u'.');
        if (!digits.startsWith(u'-'))
            digits.prepend(u' ');
        return text(digits + u' ');
    }

    ZoneLine& number(Integer value) { return number(static_cast<Single>(value)); }

    ZoneLine& text(QStringView value) {
        if (!line_.isEmpty())
            line_ += QString(zone - line_.size() % zone, u' ');
        line_ += value;
        return *this;
    }

    operator QStringView() const { return line_; }

private:
    static constexpr qsizetype zone = 14;
    QString line_;
};

// Rows 1..5 of the load table: N, M1, M2, Vx, Vy, in tenths of kN and kNm.
constexpr std::array loadPatterns{u"######0   ", u"######0   ", u"######0     ", u"######0   ",
                                  u"######0"};

QString loadLine(const Obciazenia& loads, int c) {
    QString line;
    for (int row = 1; row <= static_cast<int>(loadPatterns.size()); ++row)
        line += Format(loads.Tablica_obc(row)(c), loadPatterns[static_cast<std::size_t>(row - 1)]);
    return line;
}

/// The whole hundredths of n, as the file holds them. Nothing at all stands for 0, since the
/// pattern of the writer leaves a zero out.
Single ratioFromHundredths(FieldReader& file) {
    return file.atLineEnd() ? 0.0F : CSng(file.integer() / 100.0);
}

/// n in whole hundredths, as the file holds it.
Double hundredths(Single Wsp_n_val) {
    return Int(CSng(Wsp_n_val * 100.0));
}

} // namespace

bool canBeSaved(Single Wsp_n_val) {
    const Double held = hundredths(Wsp_n_val);
    return held >= std::numeric_limits<Integer>::min()
           && held <= std::numeric_limits<Integer>::max();
}

void takeNextPage(Stan& stan, const RendererReply& reply) {
    if (reply.printed > 0)
        stan.opcje.Nr_strony = reply.nextPage;
}

void Czytaj_cfg(Stan& stan, const QString& path) {
    FieldReader file(path);
    Stan read = stan;
    const auto next = [&file]() -> FieldReader& {
        file.nextLine();
        return file;
    };

    read.opcje.Nr_normy = next().choice(0, 1);
    read.opcje.Nr_strony = next().integer();
    read.opcje.Nazwa_projektu = next().rest();
    read.opcje.Nr_betonu = next().choice(1, 5);
    read.opcje.Nr_stali = next().choice(1, 7);
    read.opcje.Tryb_wsp_n = next().choice(0, 1);
    if (read.opcje.Tryb_wsp_n == 1)
        read.opcje.Wsp_n_val = ratioFromHundredths(file);
    read.opcje.Nr_jezyka = next().choice(0, 4);
    for (int c = 1; c <= MaxCases; ++c) {
        next();
        for (int row = 1; row <= 5; ++row)
            read.obciazenia.Tablica_obc(row)(c) = file.single();
    }
    read.plyta.Dlug_plyty_mm = next().integer();
    read.plyta.Szer_plyty_mm = next().integer();
    read.plyta.X_kotwy(1) = CSng(next().number() / 10);
    read.plyta.Y_kotwy(1) = CSng(file.number() / 10);
    read.opcje.Hsily_wszystkie = next().choice(0, 1);
    read.materialy.Stal_fd = next().single();
    read.materialy.Stal_Re = file.single();
    read.materialy.Stal_Rm = file.single();
    read.materialy.Stal_fi_max = file.integer();
    read.materialy.Stal_nazwa = file.text();
    read.materialy.Blacha_fd = next().single();
    read.materialy.Blacha_t_max = file.integer();
    read.materialy.Blacha_nazwa = file.text();
    read.opcje.Tryb_RTF = next().choice(0, 2);
    stan = std::move(read);
}

void Zapisz_cfg(Stan& stan, const QString& path, const QString& replyPath) {
    takeNextPage(stan, readRendererReply(replyPath));

    const Opcje_zadania& task = stan.opcje;
    const Materialy& steel = stan.materialy;
    const Plyta_i_kotwy& plate = stan.plyta;
    TextFileWriter file;
    file.line(ZoneLine().number(task.Nr_normy).text(u"Norma"));
    file.line(ZoneLine().number(task.Nr_strony).text(u"Strona"));
    file.line(task.Nazwa_projektu);
    file.line(ZoneLine().number(task.Nr_betonu).text(u"Nrbetonu"));
    file.line(ZoneLine().number(task.Nr_stali).text(u"Nrstali"));
    file.line(
        ZoneLine().number(task.Tryb_wsp_n).text(Format(hundredths(task.Wsp_n_val), u"#######")));
    file.line(ZoneLine().number(task.Nr_jezyka).text(u"Jezyk 0-PL 1-P2 2-GB 3-FR 4-DE"));
    for (int c = 1; c <= MaxCases; ++c)
        file.line(loadLine(stan.obciazenia, c));
    file.line(general(plate.Dlug_plyty_mm));
    file.line(general(plate.Szer_plyty_mm));
    file.line(
        ZoneLine().text(general(Int(plate.X_kotwy_mm(1)))).text(general(Int(plate.Y_kotwy_mm(1)))));
    file.line(ZoneLine().number(task.Hsily_wszystkie).text(u"Tryb_sru"));
    file.line(ZoneLine()
                  .number(steel.Stal_fd)
                  .number(steel.Stal_Re)
                  .number(steel.Stal_Rm)
                  .number(steel.Stal_fi_max)
                  .text(steel.Stal_nazwa));
    file.line(
        ZoneLine().number(steel.Blacha_fd).number(steel.Blacha_t_max).text(steel.Blacha_nazwa));
    file.line(ZoneLine().number(task.Tryb_RTF).text(u"Tryb_RTF"));
    file.commit(path);
}

} // namespace ferna
