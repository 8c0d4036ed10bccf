#pragma once

#include "combinations/table_row.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QGridLayout;
class QLabel;
class QTableWidget;

namespace ferna {

/// Shows how a table is read before it is taken: its first rows as they stand, what each column is
/// taken for, and the combinations that come of it. Columns, units and signs can be chosen.
class ReadingDialog : public QDialog {
    Q_OBJECT

public:
    /// `first`: the first data rows; `source`: where they come from, for the title.
    ReadingDialog(const combinations::Layout& layout, QList<QStringList> first,
                  const QString& source, QWidget* parent = nullptr);

    /// The columns as chosen.
    combinations::Columns columns() const;

private:
    struct Choice {
        QComboBox* column = nullptr;
        QComboBox* unit = nullptr;
        QCheckBox* turned = nullptr;
    };

    void addChoices(QGridLayout* grid);
    void orderTabs();
    void addChoice(QGridLayout* grid, int place);
    QComboBox* columnList(const QString& none, int chosen);
    void showFile();
    void showRead();
    void tell(int refused, bool hasN);

    combinations::Layout layout_;
    QList<QStringList> first_;
    QComboBox* name_ = nullptr;
    std::array<Choice, combinations::loads.size()> choices_;
    QTableWidget* file_ = nullptr;
    QTableWidget* read_ = nullptr;
    QLabel* told_ = nullptr;
    QDialogButtonBox* buttons_ = nullptr;
};

} // namespace ferna
