#pragma once

#include "runtime/numbers.h"

#include <QString>
#include <QStringList>

namespace ferna {

/// Reads the fields of a text file strictly in order, line by line. A number ends at a blank, at a
/// comma or at the end of the line; a text ends at a comma or at the end of the line. What a caller
/// leaves unread of a line is discarded. Every error carries the file's name and the line's number:
/// 62 where a line or a field is missing, 13 where a field is no number, 6 where it is too large.
class FieldReader {
public:
    /// Reads the whole file; errors of `readLines`.
    explicit FieldReader(const QString& path);

    /// Goes to the next line. Error 62 behind the last one.
    void nextLine();
    /// Number of the present line, from 1.
    int lineNumber() const { return line_; }

    Integer integer();
    /// A whole number that chooses among `first`..`last`; error 9 outside.
    Integer choice(Integer first, Integer last);
    Single single();
    /// A number that may stand behind the decimals of a Double.
    Double number();
    /// A text field without the blanks in front of it; may be empty.
    QString text();
    /// All that is left of the line.
    QString rest();
    /// True where only blanks are left of the line.
    bool atLineEnd() const;

private:
    QString numberField();
    [[noreturn]] void fail(int number, const QString& what) const;

    QString path_;
    QStringList lines_;
    int line_ = 0;
    qsizetype position_ = 0;
};

} // namespace ferna
