#include "statics/load_list.h"

#include "runtime/format.h"
#include "statics/load_shares.h"

#include <utility>

namespace ferna {

namespace {

/// Texts of the dialog for a direction and a kind; an empty one hides its field.
struct Layout {
    const char16_t* Label1;
    const char16_t* load;
    const char16_t* secondLoad;
    const char16_t* arm;
    const char16_t* secondArm;
    int sketch;
};

constexpr const char16_t* hidden = u"";

constexpr Layout verticalLayout{u"Obciążenie siłą pionową",
                                u"Siła P [kN]",
                                hidden,
                                u"Mimośród ex w płaszczyżnie XZ [mm]",
                                u"Mimośród ey w płaszczyżnie YZ [mm]",
                                1};

// By plane and kind: force, distributed load, moment.
constexpr Layout planeLayouts[2][3] = {
    {{u"Obciążenie w płaszczyżnie XZ", u"Siła Hx [kN]", hidden, u"Wysokość przyłożenia h [m]",
      hidden, 4},
     {u"Obciążenie w płaszczyżnie XZ", u"Obciążenie p1x [kN/m]", u"Obciążenie p2x [kN/m]",
      u"Wysokość przyłożenia h1 [m]", u"Wysokość przyłożenia h2 [m]", 6},
     {u"Obciążenie w płaszczyżnie XZ", u"Moment Mxz [kNm]", hidden, hidden, hidden, 2}},
    {{u"Obciążenie w płaszczyżnie YZ", u"Siła Hy [kN]", hidden, u"Wysokość przyłożenia h [m]",
      hidden, 5},
     {u"Obciążenie w płaszczyżnie YZ", u"Obciążenie p1y [kN/m]", u"Obciążenie p2y [kN/m]",
      u"Wysokość przyłożenia h1 [m]", u"Wysokość przyłożenia h2 [m]", 6},
     {u"Obciążenie w płaszczyżnie YZ", u"Moment Myz [kNm]", hidden, hidden, hidden, 3}}};

const Layout& layoutOf(int Kierunek, int Rodzaj) {
    return Kierunek == 0 ? verticalLayout : planeLayouts[Kierunek - 1][Rodzaj];
}

/// Reads the fields that the dialog shows into the rows of a slot, one after the other.
void readValues(Stan_statyki& loads, const LoadDialog& dialog, int slot) {
    const std::pair<const LoadDialog::Field&, Value> fields[] = {
        {dialog.load, Value::ColumnLoad},
        {dialog.secondLoad, Value::ColumnSecondLoad},
        {dialog.arm, Value::ColumnArm},
        {dialog.secondArm, Value::ColumnSecondArm}};
    auto row = loads.Obc_wart.begin();
    for (const auto& [field, value] : fields) {
        if (field.shown())
            (*row)(slot) = taking({value}, [&typed = field.text] { return CSng(typed); });
        ++row;
    }
}

/// The totals live in their texts: read back, changed by the shares, written with one decimal.
void changeTotals(StaticsForm& form, const LoadShares& shares, Double sign) {
    LoadRow<QString>& texts = form.totals;
    const auto changed = [sign](const QString& text, Value value, Single change) {
        return CSng(taking({value}, [&] { return CSng(text); }) + sign * change);
    };
    const LoadRow<Single> totals{
        changed(texts.N, Value::TotalN, shares.N), changed(texts.M1, Value::TotalM1, shares.M1),
        changed(texts.M2, Value::TotalM2, shares.M2), changed(texts.Vx, Value::TotalVx, shares.Vx),
        changed(texts.Vy, Value::TotalVy, shares.Vy)};
    const auto written = [](Single total) { return Format(total, u"### ##0.0"); };
    texts = {written(totals.N), written(totals.M1), written(totals.M2), written(totals.Vx),
             written(totals.Vy)};
}

/// Slot of the load to be removed, the selected line gone from the list; 0 without a selection.
int takeSelectedLine(StaticsForm& form, Dialogs& dialogs) {
    if (form.selected < 0) {
        dialogs.message(QStringLiteral("Musisz zazanczyć na liście usuwane obciążenie"),
                        programTitle, MessageStyle::Plain);
        return 0;
    }
    const int slot = form.selected + 1;
    form.lstObciazen.removeAt(form.selected);
    form.selected = -1;
    if (form.lstObciazen.isEmpty())
        form.cmdUsun_enabled = false;
    return slot;
}

} // namespace

StaticsForm openStatics(Stan_statyki& loads) {
    loads.Liczba_obc = 0;
    for (int slot = 1; slot <= MaxColumnLoads; ++slot) {
        loads.Obc_typ[0](slot) = 0;
        for (auto& row : loads.Obc_wart)
            row(slot) = 0;
    }
    StaticsForm form;
    const QString zero = QStringLiteral("0");
    form.totals = {zero, zero, zero, zero, zero};
    return form;
}

void chooseDirection(StaticsForm& form, int index) {
    form.optTypObciaz = index;
    form.kindsVisible = index != 0;
    if (index == 0)
        form.optTypsily = 0;
}

void chooseKind(StaticsForm& form, int index) {
    form.optTypsily = index;
}

LoadDialog openLoadDialog(const StaticsForm& form) {
    LoadDialog dialog;
    dialog.Kierunek = CInt(qMax(form.optTypObciaz, 0));
    dialog.Rodzaj = CInt(qMax(form.optTypsily, 0));
    const Layout& layout = layoutOf(dialog.Kierunek, dialog.Rodzaj);
    const auto text = [](const char16_t* words) { return QString::fromUtf16(words); };
    dialog.Label1 = text(layout.Label1);
    const QString zero = QStringLiteral("0");
    dialog.load = {text(layout.load), QStringLiteral("1")};
    dialog.secondLoad = {text(layout.secondLoad), zero};
    dialog.arm = {text(layout.arm), zero};
    dialog.secondArm = {text(layout.secondArm), zero};
    dialog.sketch = layout.sketch;
    return dialog;
}

void acceptLoad(Stan_statyki& loads, StaticsForm& form, const LoadDialog& dialog) {
    loads.Liczba_obc = CInt(loads.Liczba_obc + 1);
    const int i = loads.Liczba_obc;
    loads.Obc_typ[1](i) = dialog.Rodzaj;
    readValues(loads, dialog, i);
    const Integer direction = CInt(dialog.Kierunek + 1);
    const LoadShares shares = loadShares(loads, i, direction);
    loads.Obc_typ[0](i) = direction;
    changeTotals(form, shares, 1);
    form.lstObciazen += loadLine(loads, i);
    form.cmdUsun_enabled = true;
}

void removeLoad(Stan_statyki& loads, StaticsForm& form, Dialogs& dialogs) {
    const int i = takeSelectedLine(form, dialogs);
    changeTotals(form, loadShares(loads, i), -1);
    loads.Liczba_obc = CInt(loads.Liczba_obc - 1);
    const auto moveDown = [](auto& rows, int slot) {
        for (auto& row : rows)
            row(slot) = row(slot + 1);
    };
    for (int slot = i; slot <= loads.Liczba_obc; ++slot) {
        moveDown(loads.Obc_typ, slot);
        moveDown(loads.Obc_wart, slot);
    }
}

} // namespace ferna
