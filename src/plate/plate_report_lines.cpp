#include "plate/plate_report_lines.h"

#include "design/catalogue.h"
#include "design/plate_blocks.h"
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
        report.Wiersze_blachy(1) = text(phrase::AdoptedThickness) + general(thickness) + mm
                                   + text(phrase::SteelOfPlate) + steel();
        report.Wiersze_blachy(2) = QStringLiteral("\r\n");
        report.Liczba_wierszy_blachy = plateHeadLines - 1;
    }

    /// Writes the block with as many lines as it takes; those it does not need are empty.
    void block(const PlateBlockForm& form) {
        const QStringList lines = linesOf(form.check);
        Integer& last = stan_.raport.Liczba_wierszy_blachy;
        for (int i = 0; i < form.lines; ++i) {
            last = CInt(last + 1);
            stan_.raport.Wiersze_blachy(last) = lines.value(i);
        }
    }

private:
    const QString& text(phrase::Line line) const { return stan_.Teksty(line); }

    QString steel() const {
        const Materialy& materials = stan_.materialy;
        // The flag decides, not the grade that is chosen now.
        if (materials.Blacha_uzytkownika != False)
            return materials.Blacha_nazwa + QStringLiteral(" (fd = ")
                   + Format(materials.Fd_blachy, u"####.0") + MPa + u')';
        return plateSteelNames().value(form_.Nr_stali_blachy - 1);
    }

    QString required(int check) const {
        return text(phrase::RequiredThickness) + general(stan_.raport.Spr_blachy(check)) + mm;
    }

    QStringList stripInTension() const {
        const auto& in = form_.inputs.check1;
        return {text(phrase::CantileverAtAnchor) + text(phrase::InTensionZone),
                text(phrase::ForceInAnchor) + general(in.S) + kN
                    + text(phrase::CantileverBehindForce) + Format(in.ca, u"###0") + mm,
                text(phrase::EffectiveWidth) + Format(in.bs, u"###0") + mm, required(1)};
    }

    QStringList stripInCompression() const {
        const auto& in = form_.inputs.check2;
        return {text(phrase::CantileverAtEdge) + text(phrase::InCompressionZone),
                text(phrase::StressUnderPlate) + general(in.sigma_k) + QStringLiteral(" ...")
                    + general(in.sigma_p) + MPa,
                text(phrase::CantileverLength) + Format(in.ca, u"###0") + mm, required(2)};
    }

    QStringList fragment(int check, const PlateInputs::Fragment& in, const QString& edges) const {
        return {text(phrase::PanelSupportedOn) + edges + text(phrase::SupportedEdges),
                text(phrase::InCompressionZone),
                text(phrase::StressUnderPlate) + general(in.sigma) + MPa,
                text(phrase::PanelDimensions) + general(in.l) + times + general(in.b) + mm,
                required(check)};
    }

    QStringList columnWithoutStiffeners() const {
        const auto& in = form_.inputs.check4;
        return {text(phrase::ColumnWithoutStiffeners) + text(phrase::InCompressionZone),
                text(phrase::ColumnProfile) + profileNames().value(in.Nr_profilu - 1),
                text(phrase::StressUnderPlate) + general(in.sigma) + MPa, required(4)};
    }

    QStringList anchorFragment(int check, const PlateInputs::AnchorFragment& in,
                               phrase::Line fixedOn, const QString& figure) const {
        return {text(phrase::AnnexFormulaAndFigure) + figure,
                // "3" stands for either fragment
                text(fixedOn) + u'3' + text(phrase::FixedEdges) + text(phrase::InTensionZone),
                text(phrase::ForceInAnchor) + general(in.S) + kN + text(phrase::AnchorPosition)
                    + general(in.c) + text(phrase::Millimetres),
                text(phrase::PanelDimensions) + QStringLiteral(" (2a x b) ")
                    + general(CInt(2 * in.a)) + times + general(in.b) + mm,
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
            return anchorFragment(7, inputs.check7, phrase::PanelFixedOn, QStringLiteral("B.2"));
        default:
            return anchorFragment(8, inputs.check8, phrase::PanelFixedOnTwoOnly,
                                  QStringLiteral("B.3"));
        }
    }

    Stan& stan_;
    const PlateForm& form_;
};

} // namespace

std::optional<PlateSection> writePlateSection(Stan& stan, const PlateForm& form, Dialogs& dialogs) {
    const Single thickness =
        taking({Value::AcceptedThickness}, [&] { return CSng(form.fields.Text4); });
    if (!(thickness > 0)) {
        dialogs.message(QStringLiteral("Musisz sprawdzić chociaż jeden warunek\n"
                                       "i podać przyjętą grubość blachy"),
                        programTitle, MessageStyle::Stop);
        return std::nullopt;
    }
    SectionWriter writer(stan, form);
    writer.header(thickness);
    PlateSection section;
    for (const PlateBlockForm& block : plateBlockForms) {
        if (stan.raport.Spr_blachy(block.check) <= 0)
            continue;
        writer.block(block);
        if (block.image > 0)
            section.sketches.push_back({block.image, block.sketch});
    }
    return section;
}

} // namespace ferna
