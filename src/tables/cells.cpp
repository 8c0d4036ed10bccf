#include "tables/cells.h"

#include "tables/cell_number.h"

#include <algorithm>

namespace ferna::tables {

namespace {

constexpr int rowsLookedAt = 200;
constexpr QChar quote = u'"';

bool endsLine(QChar c) {
    return c == u'\n' || c == u'\r';
}

/// The first lines of a text that are not blank, as they stand.
QList<QStringView> firstLines(QStringView text) {
    QList<QStringView> lines;
    while (!text.isEmpty() && lines.size() < rowsLookedAt) {
        const auto* const end = std::find_if(text.cbegin(), text.cend(), endsLine);
        const qsizetype length = end - text.cbegin();
        if (const QStringView line = text.first(length); !line.trimmed().isEmpty())
            lines += line;
        text = text.sliced(qMin(length + 1, text.size()));
    }
    return lines;
}

/// True where a character stands in a line outside quotation marks.
bool standsIn(QStringView line, QChar character) {
    bool quoted = false;
    for (const QChar c : line) {
        if (c == quote)
            quoted = !quoted;
        else if (c == character && !quoted)
            return true;
    }
    return false;
}

bool hasWideGap(QStringView line) {
    return line.trimmed().contains(u"  ");
}

bool commaPartsCells(QStringView line) {
    return standsIn(line, u',') && !std::holds_alternative<double>(cellNumber(line));
}

} // namespace

Separator separatorOf(QStringView text) {
    const QList<QStringView> lines = firstLines(text);
    const auto any = [&lines](const auto& holds) {
        return std::any_of(lines.cbegin(), lines.cend(), holds);
    };
    if (any([](QStringView line) { return standsIn(line, u'\t'); }))
        return Separator::Tab;
    if (any([](QStringView line) { return standsIn(line, u';'); }))
        return Separator::Semicolon;
    if (any([](QStringView line) { return hasWideGap(line); })
        && !any([](QStringView line) { return commaPartsCells(line) && !hasWideGap(line); }))
        return Separator::Blanks;
    if (any(commaPartsCells))
        return Separator::Comma;
    return Separator::None;
}

std::optional<Row> RowReader::next() {
    while (at_ < text_.size()) {
        Row row{line_, {}};
        for (;;) {
            row.cells += cell();
            if (!separates())
                break;
        }
        endLine();
        if (std::any_of(row.cells.cbegin(), row.cells.cend(),
                        [](const QString& one) { return !one.isEmpty(); }))
            return row;
    }
    return std::nullopt;
}

bool RowReader::atRowEnd() const {
    return at_ >= text_.size() || endsLine(text_[at_]);
}

/// Goes over a separator; false where there is none.
bool RowReader::separates() {
    if (atRowEnd())
        return false;
    const QChar c = text_[at_];
    switch (separator_) {
    case Separator::Tab:
    case Separator::Semicolon:
    case Separator::Comma: {
        const QChar sign = separator_ == Separator::Tab         ? u'\t'
                           : separator_ == Separator::Semicolon ? u';'
                                                                : u',';
        if (c != sign)
            return false;
        ++at_;
        return true;
    }
    case Separator::Blanks: {
        qsizetype end = at_;
        while (end < text_.size() && text_[end] == u' ')
            ++end;
        if (end - at_ < 2 || end >= text_.size() || endsLine(text_[end]))
            return false;
        at_ = end;
        return true;
    }
    case Separator::None:
        break;
    }
    return false;
}

QString RowReader::cell() {
    while (!atRowEnd() && text_[at_] == u' ')
        ++at_;
    if (isQuoted())
        return quotedCell();
    const qsizetype start = at_;
    qsizetype end = at_;
    while (!atRowEnd()) {
        end = at_;
        if (separates()) {
            at_ = end; // before the separator
            break;
        }
        ++at_;
        end = at_;
    }
    return text_.sliced(start, end - start).trimmed().toString();
}

/// A mark that nothing closes within the lines that a cell can have is a letter like others, else
/// it would take the rest of the table into its cell.
bool RowReader::isQuoted() const {
    constexpr int mostLines = 20;
    if (at_ >= text_.size() || text_[at_] != quote)
        return false;
    int lines = 0;
    for (qsizetype i = at_ + 1; i < text_.size() && lines < mostLines; ++i) {
        if (text_[i] == quote)
            return true;
        lines += text_[i] == u'\n' ? 1 : 0;
    }
    return false;
}

QString RowReader::quotedCell() {
    QString out;
    ++at_;
    while (at_ < text_.size()) {
        const QChar c = text_[at_++];
        if (c == quote) {
            if (at_ >= text_.size() || text_[at_] != quote)
                break;
            ++at_;
        }
        if (c == u'\n')
            ++line_;
        out += c;
    }
    // What stands behind the closing mark belongs to the cell all the same.
    while (!atRowEnd()) {
        const qsizetype before = at_;
        if (separates()) {
            at_ = before;
            break;
        }
        out += text_[at_++];
    }
    return out.trimmed();
}

void RowReader::endLine() {
    // Blanks behind the last cell of columns that were set with blanks.
    while (!atRowEnd())
        ++at_;
    if (at_ >= text_.size())
        return;
    if (text_[at_] == u'\r' && at_ + 1 < text_.size() && text_[at_ + 1] == u'\n')
        ++at_;
    ++at_;
    ++line_;
}

QList<Row> rowsOf(QStringView text) {
    QList<Row> rows;
    RowReader reader(text);
    while (auto row = reader.next())
        rows += *std::move(row);
    return rows;
}

bool isTable(QStringView text) {
    RowReader reader(text);
    const auto first = reader.next();
    return first && (first->cells.size() > 1 || reader.next());
}

} // namespace ferna::tables
