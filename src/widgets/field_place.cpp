#include "widgets/field_place.h"

#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>

namespace ferna {

namespace {

/// A caption as it is read: without the mark of its mnemonic and the colon behind it.
QString spoken(QString caption) {
    caption.remove(u'&');
    caption = caption.trimmed();
    if (caption.endsWith(u':'))
        caption.chop(1);
    return caption.trimmed();
}

QString nameOf(const QWidget* field) {
    if (!field->accessibleName().isEmpty())
        return field->accessibleName();
    for (const QLabel* label : field->window()->findChildren<QLabel*>())
        if (label->buddy() == field)
            return spoken(label->text());
    return field->objectName();
}

/// The tab widget around a field with the page that the field is on; null where it is on none.
std::pair<QTabWidget*, QWidget*> tabOf(const QWidget* field) {
    for (QWidget* page = field->parentWidget(); page != nullptr && page->parentWidget() != nullptr;
         page = page->parentWidget()) {
        QWidget* const stack = page->parentWidget();
        auto* const tabs = qobject_cast<QTabWidget*>(stack->parentWidget());
        if (tabs != nullptr && tabs->indexOf(page) >= 0)
            return {tabs, page};
    }
    return {nullptr, nullptr};
}

} // namespace

QLineEdit* fieldOf(const QWidget* form, const TypedValue& value) {
    for (const QWidget* at = form; at != nullptr; at = at->window()->parentWidget())
        if (const auto* const fields = dynamic_cast<const ValueFields*>(at->window()))
            if (QLineEdit* const field = fields->fieldOf(value))
                return field;
    return nullptr;
}

QString placeOf(const QWidget* field) {
    const auto [tabs, page] = tabOf(field);
    return tabs == nullptr ? nameOf(field)
                           : nameOf(field) + QStringLiteral(" (zakładka ")
                                 + spoken(tabs->tabText(tabs->indexOf(page))) + u')';
}

void goTo(QWidget* field) {
    const auto [tabs, page] = tabOf(field);
    if (tabs != nullptr)
        tabs->setCurrentWidget(page);
    field->setFocus(Qt::OtherFocusReason);
    if (auto* const line = qobject_cast<QLineEdit*>(field))
        line->selectAll();
}

} // namespace ferna
