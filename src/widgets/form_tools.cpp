#include "widgets/form_tools.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>

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
    form->adjustSize();
    const QRect screen = form->screen()->availableGeometry();
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

} // namespace ferna
