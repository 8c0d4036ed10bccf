#include "smallest/forms/range_fields.h"

#include "plate/plate_tables.h"
#include "runtime/format.h"
#include "ui_SmallestWindow.h"

#include <algorithm>
#include <array>

namespace ferna {

namespace {

struct LayoutBox {
    int anchors;
    QCheckBox* box;
};

std::array<LayoutBox, 4> layoutBoxes(const Ui::SmallestWindow& ui) {
    return {{{4, ui.chkUklad_4}, {6, ui.chkUklad_6}, {8, ui.chkUklad_8}, {12, ui.chkUklad_12}}};
}

int indexOf(Integer diameter) {
    return static_cast<int>(
        std::find(std::begin(anchorDiameters), std::end(anchorDiameters), diameter)
        - std::begin(anchorDiameters));
}

smallest::Sizes sizesIn(const QSpinBox* from, const QSpinBox* to, const QSpinBox* step) {
    return {from->value(), to->value(), step->value()};
}

void showSizes(const smallest::Sizes& sizes, QSpinBox* from, QSpinBox* to, QSpinBox* step) {
    from->setValue(sizes.from);
    to->setValue(sizes.to);
    step->setValue(sizes.step);
}

} // namespace

void fillRangeLists(Ui::SmallestWindow& ui) {
    for (const Integer diameter : anchorDiameters)
        for (QComboBox* list : {ui.cmbFiOd, ui.cmbFiDo})
            list->addItem(general(diameter) + QStringLiteral(" mm"));
    for (const QString& name : steelNames()) {
        auto* const item = new QListWidgetItem(name, ui.lstStale);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    ui.lstStale->setFixedHeight(ui.lstStale->count() * ui.lstStale->sizeHintForRow(0)
                                + 2 * ui.lstStale->frameWidth());
    ui.cmbStalBlachy->addItems(plateSteelNames().mid(0, userPlateSteel - 1));
}

void showRange(Ui::SmallestWindow& ui, const smallest::DesignRange& range) {
    ui.spnSlupH->setValue(range.columnLength);
    ui.spnSlupB->setValue(range.columnWidth);
    showSizes(range.length, ui.spnDlOd, ui.spnDlDo, ui.spnDlCo);
    if (range.ratio == 0)
        showSizes(range.width, ui.spnSzOd, ui.spnSzDo, ui.spnSzCo);
    else
        ui.spnProporcja->setValue(range.ratio);
    (range.ratio == 0 ? ui.optSzer : ui.optProporcja)->setChecked(true);
    for (const LayoutBox& one : layoutBoxes(ui))
        one.box->setChecked(std::find(range.layouts.begin(), range.layouts.end(), one.anchors)
                            != range.layouts.end());
    const auto [least, most] = std::minmax_element(range.diameters.begin(), range.diameters.end());
    ui.cmbFiOd->setCurrentIndex(indexOf(*least));
    ui.cmbFiDo->setCurrentIndex(indexOf(*most));
    for (int k = 0; k < ui.lstStale->count(); ++k)
        ui.lstStale->item(k)->setCheckState(
            std::find(range.steels.begin(), range.steels.end(), k + 1) != range.steels.end()
                ? Qt::Checked
                : Qt::Unchecked);
    ui.spnKrawedz->setValue(range.edge);
    ui.spnKrawedzMm->setValue(range.leastEdge);
    ui.spnRozstaw->setValue(range.spacing);
    ui.spnOdSlupa->setValue(range.clear);
    ui.cmbStalBlachy->setCurrentIndex(range.plateSteel - 1);
    ui.spnGrubosc->setValue(range.leastThickness);
    ui.spnPodlewka->setValue(range.grout);
    ui.chkZebra->setChecked(range.stiffened);
    ui.spnDocisk->setValue(range.pressure);
}

smallest::DesignRange rangeIn(const Ui::SmallestWindow& ui) {
    smallest::DesignRange range;
    range.columnLength = ui.spnSlupH->value();
    range.columnWidth = ui.spnSlupB->value();
    range.length = sizesIn(ui.spnDlOd, ui.spnDlDo, ui.spnDlCo);
    range.width = sizesIn(ui.spnSzOd, ui.spnSzDo, ui.spnSzCo);
    range.ratio = ui.optProporcja->isChecked() ? ui.spnProporcja->value() : 0;
    range.layouts.clear();
    for (const LayoutBox& one : layoutBoxes(ui))
        if (one.box->isChecked())
            range.layouts.push_back(one.anchors);
    range.diameters.clear();
    for (int k = ui.cmbFiOd->currentIndex(); k <= ui.cmbFiDo->currentIndex(); ++k)
        range.diameters.push_back(anchorDiameters[k]);
    range.steels.clear();
    for (int k = 0; k < ui.lstStale->count(); ++k)
        if (ui.lstStale->item(k)->checkState() == Qt::Checked)
            range.steels.push_back(CInt(k + 1));
    range.edge = ui.spnKrawedz->value();
    range.leastEdge = ui.spnKrawedzMm->value();
    range.spacing = ui.spnRozstaw->value();
    range.clear = ui.spnOdSlupa->value();
    range.plateSteel = CInt(ui.cmbStalBlachy->currentIndex() + 1);
    range.leastThickness = ui.spnGrubosc->value();
    range.grout = ui.spnPodlewka->value();
    range.stiffened = ui.chkZebra->isChecked();
    range.pressure = ui.spnDocisk->value();
    return range;
}

} // namespace ferna
