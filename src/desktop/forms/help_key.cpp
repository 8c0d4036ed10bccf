#include "desktop/forms/help_key.h"

#include "desktop/forms/Help_window.h"
#include "widgets/environment_stop.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTabWidget>

namespace ferna {

namespace {

int ownContext(const QWidget* widget) {
    return widget->property("helpContext").toInt(); // 0 where it has none
}

/// The context of the tab in front, 0 where the window has no tabs or they no context.
int contextOfTab(const QWidget* window) {
    const auto* const tabs = window->findChild<QTabWidget*>();
    return tabs != nullptr && tabs->currentWidget() != nullptr ? ownContext(tabs->currentWidget())
                                                               : 0;
}

class HelpKey : public QObject {
public:
    HelpKey(QObject* parent, std::function<void(int)> open)
        : QObject(parent), open_(std::move(open)) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
            return false;
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier)
            return false;
        auto* const widget = static_cast<QWidget*>(watched);
        guarded(widget->window(), [&] { open_(helpContextOf(widget)); });
        return true;
    }

private:
    std::function<void(int)> open_;
};

} // namespace

int helpContextOf(const QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (qobject_cast<const QMessageBox*>(widget))
            return help::Messages;
        if (const int context = ownContext(widget))
            return context;
        if (widget->isWindow())
            if (const int context = contextOfTab(widget))
                return context;
    }
    return help::Start;
}

void openHelpByF1(QApplication& application, std::function<void(int)> open) {
    application.installEventFilter(new HelpKey(&application, std::move(open)));
}

} // namespace ferna
