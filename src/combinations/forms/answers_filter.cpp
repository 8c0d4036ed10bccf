#include "combinations/forms/answers_filter.h"

#include "combinations/forms/answers_model.h"

namespace ferna {

AnswersFilter::AnswersFilter(QObject* parent) : QSortFilterProxyModel(parent) {
    setSortRole(AnswersModel::sortRole);
}

void AnswersFilter::setText(const QString& text) {
    text_ = text.trimmed();
    invalidateFilter();
}

void AnswersFilter::setShown(Shown shown) {
    shown_ = shown;
    invalidateFilter();
}

bool AnswersFilter::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const {
    const auto& model = static_cast<const AnswersModel&>(*sourceModel());
    const combinations::RowNumber number = row + 1;
    const auto& table = *model.table();
    const bool refused = table.combination(number) == nullptr;
    if (shown_ == Shown::Refused && !refused)
        return false;
    if (shown_ == Shown::Six && model.caseOf(number) == 0)
        return false;
    if (shown_ == Shown::Failing
        && !(table.isAnswered(number) && combinations::worstOf(table.answer(number)) > 1))
        return false;
    if (text_.isEmpty())
        return true;
    for (const int column : {AnswersModel::Row, AnswersModel::Name, AnswersModel::Remark})
        if (model.index(row, column).data().toString().contains(text_, Qt::CaseInsensitive))
            return true;
    return false;
}

bool AnswersFilter::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    const QVariant a = left.data(AnswersModel::sortRole);
    const QVariant b = right.data(AnswersModel::sortRole);
    if (a.isValid() != b.isValid())
        return a.isValid() == (sortOrder() == Qt::AscendingOrder);
    if (a.userType() == QMetaType::QString)
        return QString::localeAwareCompare(a.toString(), b.toString()) < 0;
    return a.toDouble() < b.toDouble();
}

} // namespace ferna
