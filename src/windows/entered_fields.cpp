#include "windows/entered_fields.h"

#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPointer>

namespace ferna {

namespace {

class EnteredFields : public QObject {
public:
    using QObject::QObject;

    // All of it happens before the event reaches the field: the next key may be waiting already.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::FocusIn) {
            if (auto* const field = qobject_cast<QLineEdit*>(watched))
                entered(field, static_cast<QFocusEvent*>(event)->reason());
        } else if (event->type() == QEvent::MouseButtonRelease) {
            if (watched == clicked_)
                clickEnds();
        } else if (event->type() == QEvent::Show && !event->spontaneous()) {
            if (auto* const widget = qobject_cast<QWidget*>(watched); widget && widget->isWindow())
                shown_ = widget;
        }
        return false;
    }

private:
    void entered(QLineEdit* field, Qt::FocusReason reason) {
        const bool first = shown_ == field->window(); // the window itself has just come
        shown_ = nullptr;
        const bool comesBack = reason == Qt::ActiveWindowFocusReason
                               || reason == Qt::PopupFocusReason
                               || reason == Qt::MenuBarFocusReason;
        if (reason == Qt::MouseFocusReason)
            clicked_ = field;
        else if (first || !comesBack)
            field->selectAll();
    }

    // A press that was drawn over a part of the text has chosen that part.
    void clickEnds() {
        QLineEdit* const field = clicked_;
        clicked_ = nullptr;
        if (!field->hasSelectedText())
            field->selectAll();
    }

    QPointer<QWidget> shown_;     ///< shown last, and no field of it has had the focus yet
    QPointer<QLineEdit> clicked_; ///< the press on it has brought the focus
};

} // namespace

void selectEnteredFields(QApplication& application) {
    application.installEventFilter(new EnteredFields(&application));
}

} // namespace ferna
