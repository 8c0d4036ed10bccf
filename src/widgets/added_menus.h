#pragma once

class QLayout;
class QMenu;
class QMenuBar;
class QString;

namespace ferna {

/// The menus of the main form for what stands beside the task's fields. Owned by the form.
struct AddedMenus {
    QMenu* task = nullptr; ///< "&Zadanie"
    QMenu* view = nullptr; ///< "&Widok"
    QMenu* help = nullptr; ///< "Pomo&c"
};

/// A menu behind the others of a bar, seen once it has an entry.
QMenu* growingMenu(const QString& title, QMenuBar* bar);

/// Puts the menus above a form's layout. A menu is seen once it has an entry.
AddedMenus addedMenus(QLayout* form);

} // namespace ferna
