#pragma once

#include "protocol/complaints.h"
#include "runtime/numbers.h"
#include "runtime/text_file.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <variant>
#include <vector>

namespace ferna::wyd {

// The command file: what the writer of a report writes with `CommandWriter` and the renderer reads
// as records. Millimetres on the page, x to the right and y downward from the corner of the frame.

inline constexpr int textFont = 5;   ///< the proportional font of the texts
inline constexpr int symbolFont = 2; ///< the Symbol font, whose Latin letters mean Greek ones

/// The records of a command file, as they stand: an empty field is an empty optional. mm.

/// Baseline of a text: a place on the page, or a step below the present baseline.
struct Baseline {
    double value = 0;
    bool relative = false;
    bool operator==(const Baseline&) const = default;
};

/// A text, or the page-number text of the frame.
struct TextRecord {
    std::optional<double> x;
    std::optional<Baseline> y;
    std::optional<double> height;
    std::optional<bool> underline;
    std::optional<int> weight;
    std::optional<int> font;
    bool pageNumber = false; ///< the frame's text that changes from page to page
    QString text;
    bool operator==(const TextRecord&) const = default;
};

/// A bitmap, scaled into its place.
struct PictureRecord {
    std::optional<double> x, y, width, height;
    QString path;
    bool operator==(const PictureRecord&) const = default;
};

/// A move or a straight line.
struct PenRecord {
    std::optional<double> x, y;
    std::optional<bool> draws;
    bool operator==(const PenRecord&) const = default;
};

/// Closes the frame.
struct FrameEndRecord {
    bool operator==(const FrameEndRecord&) const = default;
};

/// Begins a page.
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

/// Fields of a text as they are written, numbers with a point; an empty one keeps what is in force.
struct TextFields {
    QString x;
    QString y; ///< "@1" a millimetre below the present baseline, "@-1" back again
    QString height;
    bool underline = false;
    int font = textFont;
};

/// Fields of a picture as they are written, blanks in front of a number included.
struct PictureFields {
    QString x, y, width, height;
};

/// Writes a command file record by record; `readRecords` reads each of them again.
class CommandWriter {
public:
    /// The record, and its text on a line of its own.
    void text(const TextFields& fields, QStringView text);
    /// A text with a place alone: everything else stays in force.
    void textAt(const QString& x, const QString& y, QStringView text);
    /// The text of the frame that changes from page to page.
    void pageNumber(const TextFields& fields, const QString& words, Integer number);
    /// `path` is the line of `pathLine`.
    void picture(const PictureFields& fields, QStringView path);
    void moveTo(const QString& x, const QString& y) { pen(x, y, u'0'); }
    void lineTo(const QString& x, const QString& y) { pen(x, y, u'1'); }
    void frameEnd();
    void newPage();
    /// A line that the reader skips where a record is due.
    void emptyLine() { file_.line(); }

    TextFileWriter& file() { return file_; }

private:
    void pen(const QString& x, const QString& y, QChar draws);

    TextFileWriter file_;
};

/// The words of a page-number text, ending in a blank: what is left of it without its number. The
/// renderer puts the number of each page behind them, counted from the first page of the job.
QString wordsOfPageNumber(const QString& text);

} // namespace ferna::wyd
