#include "widgets/added_menus.h"

#include <QActionEvent>
#include <QLayout>
#include <QMenuBar>

namespace ferna {

namespace {

/// A menu that shows itself in its bar with its first entry.
class GrowingMenu : public QMenu {
public:
    GrowingMenu(const QString& title, QMenuBar* bar) : QMenu(title, bar) {
        bar->addMenu(this);
        menuAction()->setVisible(false);
    }

protected:
    void actionEvent(QActionEvent* event) override {
        QMenu::actionEvent(event);
        menuAction()->setVisible(!actions().isEmpty());
    }
};

} // namespace

QMenu* growingMenu(const QString& title, QMenuBar* bar) {
    return new GrowingMenu(title, bar);
}

AddedMenus addedMenus(QLayout* form) {
    auto* const bar = new QMenuBar;
    form->setMenuBar(bar);
    return {growingMenu(QStringLiteral("&Zadanie"), bar),
            growingMenu(QStringLiteral("&Widok"), bar), growingMenu(QStringLiteral("Pomo&c"), bar)};
}

} // namespace ferna
