#include "combinations/columns.h"

#include "tables/load_headings.h"

#include <QRegularExpression>

#include <algorithm>
#include <map>
#include <variant>

namespace ferna::combinations {

namespace {

using tables::Heading;
using tables::Row;

constexpr int loadCount = static_cast<int>(loads.size());

bool isNumber(const QString& cell) {
    return std::holds_alternative<double>(tables::cellNumber(cell));
}

/// Without the blank cells at its end.
int widthOf(const Row& row) {
    int width = static_cast<int>(row.cells.size());
    while (width > 0 && row.cells.at(width - 1).isEmpty())
        --width;
    return width;
}

/// The width that most rows have.
int usualWidth(const QList<Row>& rows) {
    std::map<int, int> count;
    for (const Row& row : rows)
        ++count[widthOf(row)];
    const auto most =
        std::max_element(count.begin(), count.end(),
                         [](const auto& a, const auto& b) { return a.second < b.second; });
    return most == count.end() ? 0 : most->first;
}

/// A row that holds no number behind its first cell, which may be a combination's.
bool isWords(const Row& row) {
    return std::none_of(row.cells.begin() + (row.cells.size() > 1 ? 1 : 0), row.cells.end(),
                        isNumber);
}

QString withoutBrackets(QString cell) {
    static const QRegularExpression brackets(QStringLiteral("[\\[\\](){}]"));
    return cell.remove(brackets).trimmed();
}

/// "[-]", "kN", "[kNm]" in every cell.
bool isUnits(const Row& row) {
    static const QRegularExpression unit(
        QStringLiteral("^([kKM]?N\\s*[*·⋅.x]?\\s*(mm|cm|m)?|-)?$"));
    return widthOf(row) > 1
           && std::all_of(row.cells.begin(), row.cells.end(), [](const QString& cell) {
                  return unit.match(withoutBrackets(cell)).hasMatch();
              });
}

/// The row of column names: the first that names a load, before there are numbers; else a first
/// row of words. -1 where the table begins with data.
int headingRow(const QList<Row>& rows) {
    for (int i = 0; i < rows.size() && isWords(rows.at(i)); ++i)
        if (tables::isHeadingRow(rows.at(i).cells) && rows.at(i).cells.size() > 1)
            return i;
    const bool onlyWords = !rows.isEmpty() && isWords(rows.front()) && widthOf(rows.front()) > 1;
    return onlyWords ? 0 : -1;
}

QString listed(const QStringList& names) {
    return (names.size() == 1 ? QStringLiteral("kolumna ") : QStringLiteral("kolumny "))
           + names.join(QStringLiteral(", "));
}

bool isTurned(const QString& heading) {
    return heading.startsWith(u'-') || heading.startsWith(u'\u2212');
}

/// Makes columns of column names.
class NameReader {
public:
    explicit NameReader(Layout& layout) : layout_(layout) {}

    /// `named`: the names with their units.
    void read(const QStringList& named) {
        const tables::Headings headings = tables::headingsOf(named);
        if (const auto* const trouble = std::get_if<tables::HeadingTrouble>(&headings)) {
            layout_.doubt = QStringLiteral("nagłówek: ") + trouble->why;
            return;
        }
        int column = 0;
        for (const Heading& heading : std::get<QList<Heading>>(headings))
            take(heading, column++);
        if (layout_.columns.name < 0 && !unknown_.isEmpty() && unknown_.front() == 0)
            layout_.columns.name = unknown_.takeFirst(); // as "godzina" before the loads
        tellMissing();
    }

private:
    void take(const Heading& heading, int column) {
        if (heading.is == Heading::Is::Name) {
            // A name of words goes before a mere number of the row.
            static const QRegularExpression number(QStringLiteral("^(nr|lp|no|id)\\b"),
                                                   QRegularExpression::CaseInsensitiveOption);
            const bool mereNumber = number.match(layout_.headings.at(column)).hasMatch();
            if (layout_.columns.name < 0 || (nameIsMereNumber_ && !mereNumber)) {
                layout_.columns.name = column;
                nameIsMereNumber_ = mereNumber;
            }
        } else if (heading.is == Heading::Is::Load) {
            const auto* const at = std::find(loads.begin(), loads.end(), heading.load);
            LoadColumn& load =
                layout_.columns.byLoad.at(static_cast<std::size_t>(at - loads.begin()));
            const QString& name = layout_.headings.at(column);
            load = {column, isTurned(name) ? -heading.factor : heading.factor, withoutUnit(name)};
        } else if (!layout_.headings.at(column).isEmpty()) {
            unknown_ += column;
        }
    }

    static QString withoutUnit(const QString& name) {
        static const QRegularExpression unit(
            QStringLiteral("[\\s,/]*[\\[({].*$|[\\s,/]+[kKM]?N\\S*$"));
        return QString(name).remove(unit).trimmed();
    }

    /// A load without a column is 0, but not where it may stand under a word that is not known.
    void tellMissing() {
        QStringList missing;
        for (std::size_t i = 0; i < loads.size(); ++i)
            if (layout_.columns.byLoad.at(i).column < 0)
                missing += symbolOf(loads.at(i));
        if (missing.isEmpty())
            return;
        if (missing.size() == loadCount) {
            layout_.doubt =
                QStringLiteral("nagłówek nie nazywa żadnego z obciążeń N, M1, M2, Vx, Vy");
            return;
        }
        const QString lacking = listed(missing) + QStringLiteral(": brak");
        if (!unknown_.isEmpty()) {
            QStringList words;
            for (const int column : unknown_)
                words += u'"' + layout_.headings.at(column) + u'"';
            layout_.doubt = lacking + QStringLiteral(", a nie wiadomo, co znaczy ")
                            + words.join(QStringLiteral(", "));
        } else if (missing.front() == symbolOf(Value::N)) {
            layout_.doubt = lacking;
        } else {
            layout_.assumed = lacking + QStringLiteral(", przyjęto 0");
        }
    }

    Layout& layout_;
    QList<int> unknown_;
    bool nameIsMereNumber_ = false;
};

/// N, M1, M2, Vx, Vy from the first column on, or behind a column of names.
void takePlaces(Layout& layout, const QList<Row>& rows) {
    const bool wordsFirst = std::any_of(rows.begin(), rows.end(), [](const Row& row) {
        return widthOf(row) > loadCount && !isNumber(row.cells.front());
    });
    const bool named = layout.width == loadCount + 1 || wordsFirst;
    layout.columns.name = named ? 0 : -1;
    int column = named ? 1 : 0;
    for (LoadColumn& load : layout.columns.byLoad)
        load.column = column++;
    if (layout.width > column)
        layout.doubt =
            QStringLiteral("kolumn jest %1, a bez nagłówka może ich być pięć (N, M1, M2, "
                           "Vx, Vy) albo sześć, z nazwą na początku")
                .arg(layout.width);
}

} // namespace

QString symbolOf(Value load) {
    return tables::headingOf(load).section(u' ', 0, 0);
}

Layout layoutOf(const QList<Row>& rows) {
    Layout layout;
    layout.columns.sign = tables::decimalSignOf(rows);
    layout.width = usualWidth(rows);
    const int heading = headingRow(rows);
    if (heading < 0) {
        takePlaces(layout, rows);
        return layout;
    }
    layout.headings = rows.at(heading).cells;
    layout.width = std::max(layout.width, widthOf(rows.at(heading)));
    layout.skipped = heading + 1;
    QStringList named = layout.headings;
    if (layout.skipped < rows.size() && isUnits(rows.at(layout.skipped))) {
        const QStringList& units = rows.at(layout.skipped++).cells;
        for (int i = 0; i < std::min(named.size(), units.size()); ++i)
            if (const QString unit = withoutBrackets(units.at(i)); !unit.isEmpty() && unit != u"-")
                named[i] += QStringLiteral(" [%1]").arg(unit);
    }
    NameReader(layout).read(named);
    return layout;
}

} // namespace ferna::combinations
