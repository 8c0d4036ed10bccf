#pragma once

#include "design/stan.h"

#include <map>
#include <mutex>

namespace ferna {

inline constexpr int Languages = 5;

/// File name of the catalogue of a language number 0..4. Error 9 for another number.
QString catalogueFile(Integer Nr_jezyka);

/// The texts of a catalogue, n from 1.
using CatalogueTexts = decltype(Stan::Teksty);

/// Reads a catalogue: 66 lines in code page 1250, line n whole as text n; what stands behind them
/// is passed over. Errors of `readLines`, and 62 for too few lines, with the file's name and the
/// line.
CatalogueTexts catalogueTexts(const QString& path);

/// Reads a catalogue into `Teksty`. The texts stay as they were where the file is missing or
/// damaged. Errors of `catalogueTexts`.
void Czytaj_teksty(Stan& stan, const QString& path);

/// Catalogues for many tasks: each file is read once. May be used by several threads.
class CatalogueStock {
public:
    /// Those of a folder; `replacement`, where it is not empty, is taken for every language.
    CatalogueStock(QString folder, QString replacement);

    /// Errors of `catalogueFile` and `catalogueTexts`; a file that failed is tried again.
    const CatalogueTexts& texts(Integer Nr_jezyka);

private:
    QString folder_;
    QString replacement_;
    std::mutex mutex_;
    std::map<Integer, CatalogueTexts> read_;
};

} // namespace ferna
