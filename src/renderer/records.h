#pragma once

#include "renderer/complaints.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <variant>
#include <vector>

namespace ferna::renderer {

/// The records of a command file, as they stand: an empty field is an empty optional. mm.

/// Baseline of a text: a place on the page, or a step below the present baseline.
struct Baseline {
    double value = 0;
    bool relative = false;
    bool operator==(const Baseline&) const = default;
};

/// Records 3 and 13.
struct TextRecord {
    std::optional<double> x;
    std::optional<Baseline> y;
    std::optional<double> height;
    std::optional<bool> underline;
    std::optional<int> weight;
    std::optional<int> font;
    bool pageNumber = false; ///< record 13
    QString text;
    bool operator==(const TextRecord&) const = default;
};

/// Record 5.
struct PictureRecord {
    std::optional<double> x, y, width, height;
    QString path;
    bool operator==(const PictureRecord&) const = default;
};

/// Record 14: a move or a straight line.
struct PenRecord {
    std::optional<double> x, y;
    std::optional<bool> draws;
    bool operator==(const PenRecord&) const = default;
};

/// Record 9.
struct FrameEndRecord {
    bool operator==(const FrameEndRecord&) const = default;
};

/// Record 10.
struct NewPageRecord {
    bool operator==(const NewPageRecord&) const = default;
};

struct Record {
    int line = 0; ///< in the file, from 1
    std::variant<TextRecord, PictureRecord, PenRecord, FrameEndRecord, NewPageRecord> content;
};

// What a report may take: many times what the program writes, and drawn at once.
inline constexpr int mostRecordsOfAPage = 10'000; ///< up to a new page, that of the frame included
inline constexpr int mostPages = 1'000;           ///< begun by records
inline constexpr int mostPictures = 100;
inline constexpr qsizetype mostPictureBytes = 256'000'000; ///< of all of them as they are drawn
inline constexpr qsizetype longestText = 1'000;            ///< letters of one text

/// The records of `lines`. One that is malformed is passed over, together with the text line that
/// belongs to it, and named in `complaints`; empty lines where a record is due are skipped, a text
/// that is too long is cut and named. Error 57 for more records, pages or pictures than a report
/// may have.
std::vector<Record> readRecords(const QStringList& lines, const QString& path,
                                Complaints& complaints);

/// The records of a file. Errors of `readLines` and `readRecords`.
std::vector<Record> readRecordFile(const QString& path, Complaints& complaints);

} // namespace ferna::renderer
