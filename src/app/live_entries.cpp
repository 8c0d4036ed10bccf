#include "app/live_entries.h"

#include <QLineEdit>
#include <QMenu>

namespace ferna {

namespace {

void resizePlate(const Ferna3& form, int length, int width) {
    form.fieldOf({Value::PlateLength})->setText(QString::number(length));
    form.fieldOf({Value::PlateWidth})->setText(QString::number(width));
}

void moveAnchor(Ferna3& form, int anchor, int x, int y) {
    form.editAnchors(
        [&](Plyta_i_kotwy& plate) { storeAnchorAt(plate, anchor, x, y, plate.Fi_kotwy(anchor)); });
}

} // namespace

std::unique_ptr<Podglad> addLiveView(Ferna3& form, Stan& stan, Dialogs& dialogs) {
    auto view = std::make_unique<Podglad>(
        &form,
        LiveSource{
            .stan = stan,
            .fields = [&form] { return form.fields(); },
            .record = [&form]() -> const notes::Record& { return form.record(); },
            .moveAnchor = [&form](int anchor, int x, int y) { moveAnchor(form, anchor, x, y); },
            .resizePlate = [&form](int length, int width) { resizePlate(form, length, width); },
            .changeBegins = [&form] { Q_EMIT form.stepped({}); },
            .changeEnds = [&form] { Q_EMIT form.stepped(QStringLiteral("zmiana w podglądzie")); }},
        dialogs);
    QAction* const entry = form.menus().view->addAction(QStringLiteral("&Podgląd"));
    entry->setShortcut(Qt::Key_F9);
    entry->setCheckable(true);
    view->addAction(entry); // the key closes the view in its own window too
    Podglad* const shown = view.get();
    QObject::connect(entry, &QAction::toggled, shown, &Podglad::setOpen);
    QObject::connect(shown, &Podglad::openChanged, entry, &QAction::setChecked);
    QObject::connect(&form, &Ferna3::entered, shown, &Podglad::renew);
    return view;
}

} // namespace ferna
