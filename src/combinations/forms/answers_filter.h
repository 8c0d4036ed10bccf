#pragma once

#include <QSortFilterProxyModel>

namespace ferna {

/// Sorts and filters the combinations of an `AnswersModel`.
class AnswersFilter : public QSortFilterProxyModel {
public:
    /// Which rows are shown.
    enum class Shown { All, Failing, Six, Refused };

    explicit AnswersFilter(QObject* parent = nullptr);

    /// Rows whose number, name or remark holds the text.
    void setText(const QString& text);
    void setShown(Shown shown);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    /// Cells without a number come last in either order.
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    QString text_;
    Shown shown_ = Shown::All;
};

} // namespace ferna
