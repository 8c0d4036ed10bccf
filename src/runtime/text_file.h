#pragma once

#include "runtime/saved_file.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace ferna {

/// Text files of the program: code page 1250, lines ended by carriage return and line feed.

/// Who wrote a text file last.
enum class TextFrom {
    Program, ///< taken as code page 1250, whatever else its bytes may mean
    Editor,  ///< may have been saved in UTF-8, which is told rather than read as garbage
};

/// The lines of a file. A line feed alone ends a line too; a last line end starts no further line.
/// Errors of `readFileWhole` for files up to `largestTextFile`, and 57 for what is no text in code
/// page 1250: the detail names file and line.
QStringList readLines(const QString& path, TextFrom from = TextFrom::Program);

/// A name as it was typed or pasted, fit for one line of a file: a line break or another control
/// character becomes a blank, several in a row one, and those at the ends go.
QString oneLine(QStringView name);

/// Collects lines and writes them as one file. Nothing is on the disk before `commit`, and `commit`
/// writes to a temporary name and renames, so that a crash leaves the old file or the new one.
class TextFileWriter {
public:
    /// One line; an empty one by default.
    void line(QStringView text = {});

    /// What has been written so far, as bytes.
    const QByteArray& bytes() const { return bytes_; }

    /// Errors of `writeFileWhole`.
    void commit(const QString& path, Lasting lasting = Lasting::Kept) const;

private:
    QByteArray bytes_;
};

inline constexpr qsizetype megabyte = 1'000'000;          ///< bytes
inline constexpr qsizetype largestFile = 1000 * megabyte; ///< that is read
inline constexpr qsizetype largestTextFile = 32 * megabyte;

/// The bytes of a plain file. Errors 53, 70, 75 (missing, forbidden, a folder or another thing that
/// is no plain file), 57 (unreadable, or more than `most` bytes).
QByteArray readFileWhole(const QString& path, qsizetype most = largestFile);

/// Gives the bytes of a plain file part by part, in their order, so that they are never all in
/// memory. Their number. Errors as above.
qsizetype readFileInParts(const QString& path, const std::function<void(QByteArrayView)>& take);

} // namespace ferna
