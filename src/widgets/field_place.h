#pragma once

#include "runtime/typed_value.h"

#include <QString>

class QLineEdit;
class QWidget;

namespace ferna {

/// A form with fields for typed values: the one place that knows which field has which.
class ValueFields {
public:
    /// Null where the form has none for the value.
    virtual QLineEdit* fieldOf(const TypedValue& value) const = 0;

protected:
    ~ValueFields() = default;
};

/// The field of a value, on the form or on the nearest one behind it that has one; null where there
/// is none.
QLineEdit* fieldOf(const QWidget* form, const TypedValue& value);

/// Where a field is, for the eyes: what it is called, and behind it its tab.
QString placeOf(const QWidget* field);

/// Brings the field's tab to the front, the focus into the field and its text under selection.
void goTo(QWidget* field);

} // namespace ferna
