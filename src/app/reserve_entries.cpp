#include "app/reserve_entries.h"

#include "input/forms/Ferna3.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>

namespace ferna {

namespace {

void bringToFront(QDialog& window) {
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

ReserveEntries::ReserveEntries(Ferna3& form, Stan& stan,
                               std::function<CapacityWindow::OtherLoads()> others)
    : form_(form), stan_(stan),
      capacity_({stan, [&form] { return form.fields(); }, std::move(others)}, nullptr),
      smallest_({stan, [&form] { return form.fields(); },
                 [this](const smallest::Design& design, const smallest::DesignRange& range) {
                     take(design, range);
                 }},
                nullptr) {
    form.menus().view->addAction(QStringLiteral("&Nośność..."), &form,
                                 [this] { bringToFront(capacity_); });
    form.menus().task->addAction(QStringLiteral("&Dobór najmniejszej podstawy..."), &form,
                                 [this] { bringToFront(smallest_); });
    QObject::connect(&form, &Ferna3::entered, &capacity_, &CapacityWindow::renewSoon);
    QObject::connect(&form, &Ferna3::anchorsShown, &capacity_, &CapacityWindow::renewSoon);
    QObject::connect(&form, &Ferna3::entered, &smallest_, &SmallestWindow::loadsChanged);
}

void ReserveEntries::showOtherLoads() {
    bringToFront(capacity_);
    capacity_.showOthers();
}

// One change of the task, told once it is whole: one step to undo.
void ReserveEntries::take(const smallest::Design& design, const smallest::DesignRange& range) {
    {
        const QSignalBlocker quiet(&form_);
        InputFields fields = form_.fields();
        form_.editAnchors([&](Plyta_i_kotwy&) { enter(design, range, stan_, fields); });
        form_.fieldOf({Value::PlateLength})->setText(fields.Text3);
        form_.fieldOf({Value::PlateWidth})->setText(fields.Text4);
        form_.findChild<QComboBox*>(QStringLiteral("cmbStal"))->setCurrentIndex(fields.cmbStal);
        form_.editAnchors([](Plyta_i_kotwy&) {}); // drawn on the new plate
    }
    Q_EMIT form_.anchorsShown();
    Q_EMIT form_.stepped(QStringLiteral("przejęcie dobranej podstawy"));
    Q_EMIT form_.entered();
}

} // namespace ferna
