#pragma once

#include <QString>

class QWidget;

namespace ferna {

/// Says something beside a field at once, over the form and without moving it: under the field, or
/// above it where there is no room. It goes when the field is changed or left. The text is also the
/// field's accessible description while it stands.
void showFieldNote(QWidget* field, const QString& text);

} // namespace ferna
