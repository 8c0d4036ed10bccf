#pragma once

#include "runtime/numbers.h"

#include <QString>

#include <array>
#include <map>
#include <mutex>
#include <utility>

namespace ferna {

/// The file in which an office keeps what the two free lines of its title blocks say.
inline const QString titleLinesFile = QStringLiteral("Naglowek.ini");

/// Lines 2 and 3 of the title block: the standards' title in the report's language, and the
/// office's name. From the file of that folder, text in UTF-8 with a line "key = text" each:
/// "norma_pl", "norma_p2", "norma_gb", "norma_fr", "norma_ge", "biuro"; a line that begins with ";"
/// is a remark. Empty where the file or a key is missing. Errors 9 for a language that there is
/// not, 57 for a file that is no UTF-8 or has a line without a known key: the detail names file and
/// line; those of `readFileWhole`.
std::array<QString, 2> titleLines(const QString& folder, Integer Nr_jezyka);

/// The same for many tasks: the file is read once for a language. May be used by several threads.
class TitleLinesStock {
public:
    explicit TitleLinesStock(QString folder) : folder_(std::move(folder)) {}

    /// Errors of `titleLines`; a file that failed is tried again.
    const std::array<QString, 2>& lines(Integer Nr_jezyka);

private:
    QString folder_;
    std::mutex mutex_;
    std::map<Integer, std::array<QString, 2>> read_;
};

} // namespace ferna
