#include "widgets/form_tools.h"

#include "widgets/small_screen.h"
#include "windows/window_dress.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QTabWidget>

namespace ferna {

namespace {

/// The filter of a number field: keys that write a character pass only where it can stand in a
/// number; keys that move or edit pass.
class NumberKeys : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto* const key = static_cast<QKeyEvent*>(event);
        const QString text = key->text();
        const bool writes = !text.isEmpty() && text.front().isPrint()
                            && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
        if (!writes || QStringLiteral("0123456789-+.,").contains(text.front()))
            return false;
        QApplication::beep();
        return true;
    }
};

} // namespace

void centreOnScreen(QWidget* form) {
    makeRoomForTitle(form);
    if (needsMoreThan(form, roomOnScreen(form)))
        letContentsScroll(form);
    form->adjustSize();
    const QRect screen = form->screen()->availableGeometry();
    // On a small screen the toolkit keeps to two thirds of it, and the form grew at its first note.
    form->resize(form->size().expandedTo(form->sizeHint()).boundedTo(roomOnScreen(form)));
    form->move(
        screen.topLeft()
        + QPoint((screen.width() - form->width()) / 2, (screen.height() - form->height()) / 2));
}

void allowOnlyNumbers(QLineEdit* field) {
    field->installEventFilter(new NumberKeys(field));
}

void stopTabAtTheChoice(QWidget* group) {
    const auto options = group->findChildren<QRadioButton*>();
    for (QRadioButton* option : options)
        QObject::connect(option, &QRadioButton::toggled, group, [option, options] {
            if (option->isChecked())
                for (QRadioButton* one : options)
                    one->setFocusPolicy(one == option ? Qt::StrongFocus : Qt::ClickFocus);
        });
}

void keepRoomForEveryTab(QTabWidget* tabs) {
    QSize room;
    for (int tab = 0; tab < tabs->count(); ++tab) {
        QWidget* const page = tabs->widget(tab);
        for (QWidget* control : page->findChildren<QWidget*>())
            control->ensurePolished(); // fonts and margins as they will be
        page->layout()->activate();
        room = room.expandedTo(page->layout()->totalSizeHint());
    }
    for (int tab = 0; tab < tabs->count(); ++tab) {
        const QLayout* const layout = tabs->widget(tab)->layout();
        if (layout->hasHeightForWidth())
            room.setHeight(qMax(room.height(), layout->totalHeightForWidth(room.width())));
    }
    for (int tab = 0; tab < tabs->count(); ++tab)
        tabs->widget(tab)->setMinimumSize(room);
}

// The toolkit keeps the least width that a list had before its items came.
void makeRoomForItems(QComboBox* list) {
    list->ensurePolished();
    list->setMinimumWidth(list->sizeHint().width());
}

void addTabKeys(QWidget* form, QTabWidget* tabs) {
    const auto on = [form](const QKeySequence& keys, auto choose) {
        QObject::connect(new QShortcut(keys, form), &QShortcut::activated, form, choose);
    };
    const auto step = [tabs](int by) {
        return [tabs, by] {
            int tab = tabs->currentIndex();
            do
                tab = (tab + tabs->count() + by) % tabs->count();
            while (!tabs->isTabEnabled(tab));
            tabs->setCurrentIndex(tab);
        };
    };
    for (int tab = 0; tab < tabs->count(); ++tab) {
        on(Qt::ALT | Qt::Key(Qt::Key_1 + tab), [tabs, tab] {
            if (tabs->isTabEnabled(tab))
                tabs->setCurrentIndex(tab);
        });
        tabs->setTabToolTip(tab, QStringLiteral("Alt+%1").arg(tab + 1));
    }
    on(Qt::CTRL | Qt::Key_Tab, step(1));
    on(Qt::CTRL | Qt::Key_PageDown, step(1));
    on(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, step(-1));
    on(Qt::CTRL | Qt::Key_PageUp, step(-1));
}

} // namespace ferna
