#include "sheet/make_sheet.h"

#include "sheet/sections.h"

namespace ferna::sheet {

Sheet makeSheet(const SheetInput& input) {
    Maker maker(input);
    addHead(maker);
    addData(maker);
    addMaterials(maker);
    maker.heading(1, maker.text()(QStringLiteral("cases.heading")));
    for (const CaseSheet& one : maker.cases)
        addCase(maker, one);
    addSummary(maker);
    addPlate(maker);
    addAnchor(maker);
    addNotes(maker);
    addModel(maker);
    if (input.combinations != nullptr)
        addCombinations(maker, *input.combinations);
    return std::move(maker.sheet());
}

} // namespace ferna::sheet
