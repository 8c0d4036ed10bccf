#pragma once

#include <QList>

class QLineEdit;
class QWidget;

namespace ferna {

/// Keeps tables out of the number fields of a form: a pasted text with a tab or a line break inside
/// is refused at once with a note beside the field, and the field stays as it was. Blanks and line
/// breaks around a pasted number are left out.
void keepTablesOut(QWidget* form, const QList<const QLineEdit*>& names = {});

/// The same for a field that may hold a name or a number: only a table of numbers is refused.
void keepTablesOfNumbersOut(QLineEdit* field);

} // namespace ferna
