#pragma once

#include "runtime/lengths.h"

#include <QString>
#include <QStringView>

namespace ferna {

// What names lose on their way into the report, and what is said of it beside their fields.

/// Characters of the text that code page 1250 lacks, each once, in the order of the text; the
/// report has "?" in their places.
QString lostLetters(QStringView text);

/// Characters that the label of a footing keeps.
inline constexpr qsizetype longestLabel = 32;

/// What a label loses behind its last kept character; mostly nothing.
QString cutFromLabel(QStringView label);

/// Height of the letters in the title block, mm.
inline constexpr double frameLetters = 3.5;

/// Height of the letters in which the title block prints the project's name, mm: `frameLetters`,
/// or less where the name would not fit its line.
double projectLetters(QStringView name);

/// Millimetres of letter height in points.
inline constexpr double points(double mm) {
    return mm * pointsPerInch / mmPerInch;
}

/// What is to be said beside a field with such a name as it is typed (Polish); empty where it gets
/// into the report as it is.
QString lettersNote(const QString& text);
QString labelNote(const QString& label);
QString projectNote(const QString& name);
/// The same for a steel, whose name is saved as far as its first comma.
QString steelNote(const QString& name);

} // namespace ferna
