#pragma once

#include "design/stan.h"

namespace ferna {

inline constexpr int Languages = 5;

/// File name of the catalogue of a language number 0..4. Error 9 for another number.
QString catalogueFile(Integer Nr_jezyka);

/// Reads a catalogue into `Teksty`: 66 lines in code page 1250, line n whole as text n; what stands
/// behind them is passed over. The texts stay as they were where the file is missing or damaged.
/// Errors of `readLines`, and 62 for too few lines, with the file's name and the line.
void Czytaj_teksty(Stan& stan, const QString& path);

} // namespace ferna
