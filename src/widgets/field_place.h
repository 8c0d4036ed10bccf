#pragma once

#include <QString>

class QWidget;

namespace ferna {

/// The control that an error names, on the form or on the one behind it that the name puts in
/// front; null where there is none.
QWidget* controlOf(QWidget* form, const QString& name);

/// Where a field is, for the eyes: what it is called, and behind it its tab.
QString placeOf(const QWidget* field);

/// Brings the field's tab to the front, the focus into the field and its text under selection.
void goTo(QWidget* field);

} // namespace ferna
