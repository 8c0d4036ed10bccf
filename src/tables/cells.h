#pragma once

#include <QStringList>
#include <QStringView>

#include <optional>

namespace ferna::tables {

/// What parts the cells of a row.
enum class Separator {
    Tab,
    Semicolon,
    Comma,
    Blanks, ///< two or more in a row: columns that were set with blanks
    None,   ///< one cell a row
};

/// The separator that a table shows: a tab anywhere decides, then a semicolon. A comma parts cells
/// where some row with a comma would be no number otherwise ("100,5" in each row is one column).
/// Last come columns set with blanks. Only the first 200 rows are looked at.
Separator separatorOf(QStringView text);

/// A row that is not blank.
struct Row {
    int number = 0;    ///< of its first line in the text, from 1, blank ones counted
    QStringList cells; ///< without the blanks around them and without their quotation marks
};

/// Reads a table row by row. A row ends at a line feed, a carriage return or both; a cell in
/// quotation marks may hold separators, line ends and doubled quotation marks. Blank rows, also
/// those of separators alone, are passed over. The text must outlive the reader.
class RowReader {
public:
    explicit RowReader(QStringView text) : RowReader(text, separatorOf(text)) {}
    RowReader(QStringView text, Separator separator) : text_(text), separator_(separator) {}

    Separator separator() const { return separator_; }
    /// The next row that is not blank; empty behind the last one.
    std::optional<Row> next();

private:
    bool atRowEnd() const;
    bool separates();
    QString cell();
    bool isQuoted() const;
    QString quotedCell();
    void endLine();

    QStringView text_;
    Separator separator_;
    qsizetype at_ = 0;
    int line_ = 1;
};

/// All rows of a table that are not blank.
QList<Row> rowsOf(QStringView text);

/// True where a text is more than one cell.
bool isTable(QStringView text);

} // namespace ferna::tables
