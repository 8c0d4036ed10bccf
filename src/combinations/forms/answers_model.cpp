#include "combinations/forms/answers_model.h"

#include "combinations/forms/use_bar.h"
#include "notes/stress_words.h"
#include "runtime/format.h"

#include <QFont>

#include <algorithm>

namespace ferna {

using combinations::Combination;
using combinations::RowNumber;

std::optional<Check> checkOf(int column) {
    if (column < AnswersModel::Concrete || column > AnswersModel::Interaction)
        return std::nullopt;
    return allChecks.at(static_cast<std::size_t>(column - AnswersModel::Concrete));
}

void AnswersModel::show(const combinations::AnsweredTable& table) {
    beginResetModel();
    table_ = &table;
    six_ = table.choice().six();
    endResetModel();
}

int AnswersModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || !table_ ? 0 : static_cast<int>(table_->size());
}

int AnswersModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnTotal;
}

int AnswersModel::caseOf(RowNumber row) const {
    const auto at = std::find(six_.begin(), six_.end(), row);
    return at == six_.end() ? 0 : static_cast<int>(at - six_.begin()) + 1;
}

/// The number of a cell; none where it has none.
QVariant AnswersModel::number(RowNumber row, Column column) const {
    if (column == Row)
        return static_cast<qlonglong>(row);
    if (column == Case)
        return caseOf(row) > 0 ? QVariant(caseOf(row)) : QVariant();
    const Combination* const one = table_->combination(row);
    if (!one)
        return {};
    switch (column) {
    case N:
        return one->load.N;
    case M1:
        return one->load.M1;
    case M2:
        return one->load.M2;
    case Vx:
        return one->shear.Vx;
    case Vy:
        return one->shear.Vy;
    default:
        break;
    }
    if (!table_->isAnswered(row))
        return {};
    const auto& answer = table_->answer(row);
    if (column == Worst)
        return combinations::worstOf(answer);
    if (column == Anchor)
        return answer && answer->anchor > 0 ? QVariant(answer->anchor) : QVariant();
    if (const auto check = checkOf(column))
        return combinations::useOf(answer, *check);
    return {};
}

QString AnswersModel::text(RowNumber row, Column column) const {
    if (column == Name) {
        const Combination* const one = table_->combination(row);
        return one ? one->name : std::get<combinations::Refusal>(table_->row(row)).name;
    }
    if (column == Remark)
        return remarkOn(*table_, row);
    const QVariant value = number(row, column);
    if (!value.isValid())
        return {};
    if (checkOf(column) || column == Worst)
        return combinations::useText(value.toDouble());
    if (column == Row || column == Case || column == Anchor)
        return value.toString();
    return Format(value.toDouble(), u"0.0##");
}

QVariant AnswersModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || !table_)
        return {};
    const RowNumber row = index.row() + 1;
    const auto column = static_cast<Column>(index.column());
    const bool isText = column == Name || column == Remark;
    switch (role) {
    case Qt::DisplayRole:
        return text(row, column);
    case Qt::ToolTipRole:
        return isText ? QVariant(text(row, column)) : QVariant();
    case sortRole:
        return isText ? QVariant(text(row, column)) : number(row, column);
    case useRole:
        return checkOf(column) || column == Worst ? number(row, column) : QVariant();
    case Qt::TextAlignmentRole:
        return int((isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    case Qt::FontRole:
        if (caseOf(row) > 0) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        break;
    default:
        break;
    }
    return {};
}

QVariant AnswersModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section >= ColumnTotal)
        return {};
    static const QStringList names{
        QStringLiteral("Wiersz"),     QStringLiteral("Nazwa"),       QStringLiteral("Największe"),
        QStringLiteral("Beton"),      QStringLiteral("Rozciąganie"), QStringLiteral("Ścinanie"),
        QStringLiteral("Interakcja"), QStringLiteral("Kotwa"),       QStringLiteral("Przyp."),
        QStringLiteral("N, kN"),      QStringLiteral("M1, kNm"),     QStringLiteral("M2, kNm"),
        QStringLiteral("Vx, kN"),     QStringLiteral("Vy, kN"),      QStringLiteral("Uwagi")};
    static const QStringList tips{
        QStringLiteral("Największe ze sprawdzeń"),
        QStringLiteral("Największy docisk do podwojonego Rb"),
        QStringLiteral("Największe naprężenie rozciągające kotwy do fd"),
        QStringLiteral("Naprężenie ścinające kotew strefy rozciąganej do fv"),
        QStringLiteral("Rozciąganie i ścinanie kotew razem"),
        QStringLiteral("Kotwa najbardziej rozciągana"),
        QStringLiteral("Miejsce wśród sześciu wierszy dla tabeli obciążeń")};
    if (role == Qt::DisplayRole)
        return names.at(section);
    if (role == Qt::ToolTipRole && section >= Worst && section <= Case)
        return tips.at(section - Worst);
    return {};
}

} // namespace ferna
