#include "editing/load_cells.h"

#include "runtime/format.h"
#include "runtime/text_file.h"
#include "tables/cell_number.h"
#include "tables/load_headings.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ferna::editing {

namespace {

constexpr int columnCount = static_cast<int>(loadColumns.size());

/// A column of the pasted table: where it goes, and its factor to kN or kNm.
struct Target {
    int column = 0; ///< of the load table; negative where it is left out
    double factor = 1;
};

QString nameOf(int column) {
    return tables::headingOf(loadColumns.at(static_cast<std::size_t>(column))).section(u' ', 0, 0);
}

LoadPaste refused(const QString& why) {
    LoadPaste paste;
    paste.refusal = why + QStringLiteral(". Nic nie zostało wpisane.");
    return paste;
}

/// Places of the load table by the headings; a text instead where they cannot be taken.
std::variant<std::vector<Target>, QString> targetsOf(const tables::Row& heading) {
    const tables::Headings found = tables::headingsOf(heading.cells);
    if (const auto* trouble = std::get_if<tables::HeadingTrouble>(&found))
        return trouble->column > 0
                   ? QStringLiteral("Wiersz %1, kolumna %2: %3")
                         .arg(heading.number)
                         .arg(trouble->column)
                         .arg(trouble->why)
                   : QStringLiteral("Wiersz %1: %2").arg(heading.number).arg(trouble->why);
    std::vector<Target> targets;
    for (const tables::Heading& one : std::get<QList<tables::Heading>>(found)) {
        const auto* const place = std::find(loadColumns.begin(), loadColumns.end(), one.load);
        targets.push_back(
            {place == loadColumns.end() ? -1 : static_cast<int>(place - loadColumns.begin()),
             one.factor});
    }
    return targets;
}

/// Columns of the pasted table as far as something stands in them.
int widthOf(const QList<tables::Row>& rows) {
    qsizetype width = 0;
    for (const tables::Row& row : rows) {
        qsizetype used = row.cells.size();
        while (used > 0 && row.cells[used - 1].isEmpty())
            --used;
        width = std::max(width, used);
    }
    return static_cast<int>(width);
}

/// Reads the cells of a table row by row.
class Reading {
public:
    Reading(std::vector<Target> targets, tables::DecimalSign sign)
        : targets_(std::move(targets)), sign_(sign) {}

    /// The text of a cell for its field; where there is none, `trouble` says why.
    QString textOf(const tables::Row& row, int column) {
        const QString cell = row.cells.value(column);
        const Target& target = targets_.at(static_cast<std::size_t>(column));
        const tables::CellNumber number = tables::cellNumber(cell, sign_);
        if (const auto* why = std::get_if<tables::CellTrouble>(&number))
            return tell(row, column, tables::troubleText(*why, cell));
        const double value = std::get<double>(number) * target.factor;
        if (std::fabs(value) > std::numeric_limits<Single>::max())
            return tell(row, column, tables::troubleText(tables::CellTrouble::TooLarge, cell));
        return target.factor == 1 ? tables::fieldText(cell) : general(value);
    }

    const std::vector<Target>& targets() const { return targets_; }
    const QString& trouble() const { return trouble_; }

private:
    QString tell(const tables::Row& row, int column, const QString& why) {
        trouble_ = QStringLiteral("Wiersz %1, kolumna %2 (%3): %4")
                       .arg(row.number)
                       .arg(column + 1)
                       .arg(nameOf(targets_.at(static_cast<std::size_t>(column)).column), why);
        return {};
    }

    std::vector<Target> targets_;
    tables::DecimalSign sign_;
    QString trouble_;
};

QString joined(const QStringList& remarks) {
    return remarks.join(u' ');
}

QString leftOutColumns(const tables::Row& heading, const std::vector<Target>& targets) {
    QStringList names;
    for (std::size_t i = 0; i < targets.size(); ++i)
        if (const QString& name = heading.cells[static_cast<qsizetype>(i)];
            targets[i].column < 0 && !name.isEmpty())
            names += name;
    return names.isEmpty() ? QString()
                           : QStringLiteral("Pominięte kolumny: %1.").arg(names.join(u", "));
}

} // namespace

bool LoadBlock::holds(LoadCell cell) const {
    return cell.row >= first.row && cell.row <= last.row && cell.column >= first.column
           && cell.column <= last.column;
}

bool LoadBlock::isOneCell() const {
    return first == last;
}

LoadPaste pasteLoads(QStringView text, LoadCell at) {
    QList<tables::Row> rows = tables::rowsOf(text);
    LoadPaste paste;
    QStringList remarks;
    std::vector<Target> targets;
    if (!rows.isEmpty() && tables::isHeadingRow(rows.front().cells)) {
        const tables::Row heading = rows.takeFirst();
        auto found = targetsOf(heading);
        if (const auto* why = std::get_if<QString>(&found))
            return refused(*why);
        targets = std::get<std::vector<Target>>(std::move(found));
        remarks += leftOutColumns(heading, targets);
    } else {
        const int width = widthOf(rows);
        if (at.column + width > columnCount)
            return refused(QStringLiteral("Tabela ma kolumn: %1, a od tej komórki (%2) mieści się "
                                          "ich %3")
                               .arg(width)
                               .arg(nameOf(at.column))
                               .arg(columnCount - at.column));
        for (int i = 0; i < width; ++i)
            targets.push_back({at.column + i, 1});
    }
    if (rows.isEmpty())
        return refused(QStringLiteral("W tabeli nie ma wierszy z liczbami"));
    const int room = MaxCases - at.row;
    if (rows.size() > room) {
        remarks += QStringLiteral("Tabela ma wierszy: %1, a od tego miejsca mieści się ich %2 - "
                                  "wpisane zostały pierwsze.")
                       .arg(rows.size())
                       .arg(room);
        rows.resize(room);
    }
    Reading reading(std::move(targets), tables::decimalSignOf(rows));
    for (int r = 0; r < rows.size(); ++r)
        for (int i = 0; i < static_cast<int>(reading.targets().size()); ++i) {
            const int column = reading.targets()[static_cast<std::size_t>(i)].column;
            if (column < 0)
                continue;
            const QString number = reading.textOf(rows[r], i);
            if (!reading.trouble().isEmpty())
                return refused(reading.trouble());
            paste.entries.push_back({{at.row + r, column}, number});
        }
    remarks.removeAll(QString());
    paste.remark = joined(remarks);
    paste.rows = at.row + static_cast<int>(rows.size());
    return paste;
}

QString copiedLoads(const std::array<LoadRow<QString>, MaxCases>& texts, const LoadBlock& block,
                    int rows) {
    const auto cellOf = [&texts](int r, int column) {
        const LoadRow<QString>& row = texts.at(static_cast<std::size_t>(r));
        const std::array<const QString*, 5> cells{&row.N, &row.M1, &row.M2, &row.Vx, &row.Vy};
        const QString& cell = *cells.at(static_cast<std::size_t>(column));
        if (!std::holds_alternative<double>(tables::cellNumber(cell)))
            return oneLine(cell);
        QString number = tables::fieldText(cell);
        number.replace(u'.', u',');
        return number.replace(u',', decimalSign());
    };
    QString out;
    const auto line = [&](const auto& cell) {
        QStringList cells;
        for (int column = block.first.column; column <= block.last.column; ++column)
            cells += cell(column);
        out += cells.join(u'\t') + u'\n';
    };
    if (block == LoadBlock{{0, 0}, {rows - 1, columnCount - 1}})
        line([](int column) {
            return tables::headingOf(loadColumns.at(static_cast<std::size_t>(column)));
        });
    for (int r = block.first.row; r <= block.last.row; ++r)
        line([&](int column) { return cellOf(r, column); });
    return out;
}

} // namespace ferna::editing
