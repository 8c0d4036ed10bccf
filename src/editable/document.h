#pragma once

#include <QDateTime>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <variant>
#include <vector>

namespace ferna::editable {

// A report as a word processor takes it: a flow of paragraphs, tables and figures with the styles'
// meanings, and the properties of the document. What a file format makes of it stands with the
// writer of that format.

enum class Style {
    Title,
    Subtitle,
    Heading1,
    Heading2,
    Text,
    TableTitle, ///< text that heads a table and stays with it
};

/// Part of a paragraph.
struct Run {
    QString text;
    bool subscript = false;
};

struct Paragraph {
    Style style = Style::Text;
    std::vector<Run> runs;
};

/// Where the texts of a column stand.
enum class Align { Left, Right };

struct Column {
    double widthMm = 0;
    Align align = Align::Left;
};

struct Table {
    QString name; ///< in the navigator; unique
    std::vector<Column> columns;
    std::vector<QStringList> rows; ///< a text a column
    bool hasHeader = false;        ///< the first row heads the columns; it is not divided then
    bool keepsWithNext = false;    ///< its end stays with what follows it
};

struct Image {
    QByteArray png;
    QSizeF sizeMm;
    QString description; ///< for who cannot see it
};

/// Pictures in a line, and the caption below them.
struct Figure {
    std::vector<Image> images;
    QString caption; ///< behind the figure's word and number
};

using Block = std::variant<Paragraph, Table, Figure>;

struct Document {
    QString title, subject, author;
    QString languageTag;
    QString project, label; ///< in the header
    QString page;           ///< word before the page's number there
    QString figure;         ///< word before a figure's number
    int firstPage = 1;      ///< number of the first page, at least 1
    QDateTime created;
    std::vector<Block> blocks;

    /// Project and label as they stand in the header.
    QString headerText() const;
    /// The time as ISO 8601 has it, to the second.
    QString createdText() const;
};

} // namespace ferna::editable
