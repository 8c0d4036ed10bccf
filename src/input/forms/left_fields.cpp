#include "input/forms/left_fields.h"

#include "runtime/run_time_error.h"
#include "widgets/environment_stop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFocusEvent>
#include <QTimer>

namespace ferna {

LeftFields::LeftFields(QWidget* form, std::function<void(QWidget*)> leave)
    : QObject(form), form_(form), leave_(std::move(leave)) {}

void LeftFields::watch(QWidget* field) {
    field->installEventFilter(this);
}

bool LeftFields::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut && !returning_) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        const bool staysInTheForm = reason != Qt::ActiveWindowFocusReason
                                    && reason != Qt::PopupFocusReason
                                    && reason != Qt::MenuBarFocusReason;
        if (staysInTheForm) {
            left_.removeAll(watched);
            left_ += static_cast<QWidget*>(watched);
            QTimer::singleShot(0, this, &LeftFields::settleWhenFree);
        }
    }
    return false;
}

// Leaving a field may open a dialog. Opened in the middle of a click it would swallow the release
// of the mouse button; while a button is down its command would run behind the dialog's back.
void LeftFields::settleWhenFree() {
    constexpr int lookAgain = 20; // ms
    const auto* const button = qobject_cast<QAbstractButton*>(form_->focusWidget());
    if (QGuiApplication::mouseButtons() != Qt::NoButton || (button && button->isDown())
        || QApplication::activePopupWidget() != nullptr)
        QTimer::singleShot(lookAgain, this, &LeftFields::settleWhenFree);
    else
        guarded(form_, [this] { settle(); });
}

// A field that cannot be left keeps the focus: what is typed there has to be put right.
void LeftFields::settle() {
    while (!left_.isEmpty()) {
        QWidget* const field = left_.takeFirst();
        if (field == form_->focusWidget()) // back from its own list
            continue;
        try {
            leave_(field);
        } catch (const RunTimeError&) {
            left_.clear();
            returnTo(field);
            throw;
        }
    }
}

void LeftFields::returnTo(QWidget* field) {
    returning_ = true;
    field->setFocus(Qt::OtherFocusReason);
    returning_ = false;
}

} // namespace ferna
