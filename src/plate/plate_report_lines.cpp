#include "plate/plate_report_lines.h"

#include "plate/plate_tables.h"
#include "runtime/format.h"

#include <QStringList>

namespace ferna {

namespace {

const QString mm = QStringLiteral(" mm");
const QString kN = QStringLiteral(" kN");
const QString MPa = QStringLiteral(" MPa");
const QString times = QStringLiteral(" x ");

/// Writes the blocks of the section from the state and the form.
class SectionWriter {
public:
    SectionWriter(Stan& stan, const PlateForm& form) : stan_(stan), form_(form) {}

    void header(Single thickness) {
        Stan_raportu& report = stan_.raport;
        report.Wiersze_blachy(0) = QStringLiteral("\r\n");
        report.Wiersze_blachy(1) = text(35) + general(thickness) + mm + text(36) + steel();
        report.Wiersze_blachy(2) = QStringLiteral("\r\n");
        report.Liczba_wierszy_blachy = 2;
    }

    void block(int check) { write(linesOf(check)); }

private:
    const QString& text(int n) const { return stan_.Teksty(n); }

    QString steel() const {
        const Materialy& materials = stan_.materialy;
        // The flag decides, not the grade that is chosen now.
        if (materials.Blacha_uzytkownika != False)
            return materials.Blacha_nazwa + QStringLiteral(" (fd = ")
                   + Format(materials.Fd_blachy, u"####.0") + MPa + u')';
        return plateSteelNames().value(form_.Nr_stali_blachy - 1);
    }

    QString required(int check) const {
        return text(41) + general(stan_.raport.Spr_blachy(check)) + mm;
    }

    QStringList stripInTension() const {
        const auto& in = form_.inputs.check1;
        return {text(37) + text(59),
                text(38) + general(in.S) + kN + text(39) + Format(in.ca, u"###0") + mm,
                text(40) + Format(in.bs, u"###0") + mm, required(1)};
    }

    QStringList stripInCompression() const {
        const auto& in = form_.inputs.check2;
        return {text(42) + text(58),
                text(43) + general(in.sigma_k) + QStringLiteral(" ...") + general(in.sigma_p) + MPa,
                text(44) + Format(in.ca, u"###0") + mm, required(2)};
    }

    QStringList fragment(int check, const PlateInputs::Fragment& in, const QString& edges) const {
        return {text(55) + edges + text(56), text(58), text(43) + general(in.sigma) + MPa,
                text(57) + general(in.l) + times + general(in.b) + mm, required(check)};
    }

    QStringList columnWithoutStiffeners() const {
        const auto& in = form_.inputs.check4;
        return {text(53) + text(58), text(54) + profileNames().value(in.Nr_profilu - 1),
                text(43) + general(in.sigma) + MPa, required(4)};
    }

    QStringList anchorFragment(int check, const PlateInputs::AnchorFragment& in, int fragmentText,
                               const QString& figure) const {
        return {text(60) + figure,
                // "3" stands for either fragment
                text(fragmentText) + u'3' + text(62) + text(59),
                text(38) + general(in.S) + kN + text(63) + general(in.c) + text(64),
                text(57) + QStringLiteral(" (2a x b) ") + general(CInt(2 * in.a)) + times
                    + general(in.b) + mm,
                required(check)};
    }

    QStringList linesOf(int check) const {
        const PlateInputs& inputs = form_.inputs;
        switch (check) {
        case 1:
            return stripInTension();
        case 2:
            return stripInCompression();
        case 3:
            return fragment(3, inputs.check3, QStringLiteral("4 "));
        case 4:
            return columnWithoutStiffeners();
        case 5:
            return fragment(5, inputs.check5, QStringLiteral("3 "));
        case 6:
            return fragment(6, inputs.check6, QStringLiteral("2 "));
        case 7:
            return anchorFragment(7, inputs.check7, 61, QStringLiteral("B.2"));
        default: // the block of check 8 is closed by an empty line
            return anchorFragment(8, inputs.check8, 65, QStringLiteral("B.3")) << QString();
        }
    }

    void write(const QStringList& lines) {
        Stan_raportu& report = stan_.raport;
        int last = report.Liczba_wierszy_blachy;
        for (const QString& line : lines)
            report.Wiersze_blachy(++last) = line;
        report.Liczba_wierszy_blachy = CInt(last);
    }

    Stan& stan_;
    const PlateForm& form_;
};

/// Sketches by check less one; the column without stiffeners has none.
constexpr std::array<PlateSketch, PlateChecks> sketches{{{1, "Szkic1.bmp"},
                                                         {2, "Szkic2.bmp"},
                                                         {3, "Szkic31.bmp"},
                                                         {0, nullptr},
                                                         {4, "Szkic32.bmp"},
                                                         {5, "Szkic33.bmp"},
                                                         {6, "Szkic51.bmp"},
                                                         {7, "Szkic52.bmp"}}};

} // namespace

std::optional<PlateSection> writePlateSection(Stan& stan, const PlateForm& form, Dialogs& dialogs) {
    const Single thickness =
        inControl(QStringLiteral("Text4"), [&] { return CSng(form.fields.Text4); });
    if (!(thickness > 0)) {
        dialogs.message(QStringLiteral("Musisz sprawdzić chociaż jeden warunek\n"
                                       "i podać przyjętą grubość blachy"),
                        programTitle, MessageStyle::Stop);
        return std::nullopt;
    }
    SectionWriter writer(stan, form);
    writer.header(thickness);
    PlateSection section;
    for (int n = 1; n <= PlateChecks; ++n) {
        if (stan.raport.Spr_blachy(n) <= 0)
            continue;
        writer.block(n);
        const PlateSketch& sketch = sketches[static_cast<std::size_t>(n - 1)];
        if (sketch.file)
            section.sketches.push_back(sketch);
    }
    return section;
}

} // namespace ferna
