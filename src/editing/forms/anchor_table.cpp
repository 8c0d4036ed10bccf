#include "editing/forms/anchor_table.h"

#include "editing/forms/anchor_editors.h"
#include "editing/forms/anchor_model.h"

#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

namespace ferna {

namespace {

constexpr int usualRows = 4;
constexpr int leastRows = 2;
constexpr int farStep = 10; // mm

} // namespace

AnchorTable::AnchorTable(AnchorModel* anchors, QWidget* parent)
    : QTableView(parent), anchors_(anchors) {
    setObjectName(QStringLiteral("tabelaSrub"));
    setAccessibleName(QStringLiteral("Tabela śrub"));
    setToolTip(QStringLiteral("Śruby do zaznaczania i zmiany: dwuklik lub F2 zmienia, Delete usuwa "
                              "zaznaczone, Alt+strzałki przesuwają je o 1 mm, z Shift o 10 mm"));
    setModel(anchors);
    setItemDelegate(new AnchorEditors(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setTabKeyNavigation(false); // Tab leaves the table
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &AnchorTable::chosenChanged);
}

editing::Anchors AnchorTable::chosen() const {
    editing::Anchors numbers;
    for (const QModelIndex& row : selectionModel()->selectedRows())
        numbers.push_back(row.row() + 1);
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

bool AnchorTable::isChosen(int anchor) const {
    return selectionModel()->isRowSelected(anchor - 1);
}

void AnchorTable::choose(const editing::Anchors& anchors, int current) {
    QItemSelection rows;
    for (const int anchor : anchors)
        rows.select(anchors_->index(anchor - 1, 0),
                    anchors_->index(anchor - 1, AnchorModel::Columns - 1));
    if (!anchors.empty())
        selectionModel()->setCurrentIndex(
            anchors_->index((current > 0 ? current : anchors.back()) - 1, 0),
            QItemSelectionModel::NoUpdate);
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
}

int AnchorTable::current() const {
    return currentIndex().isValid() ? currentIndex().row() + 1 : 0;
}

bool AnchorTable::obey(int key) {
    const editing::Anchors numbers = chosen();
    if (key != Qt::Key_Delete || numbers.empty())
        return false;
    clearSelection();
    anchors_->remove(numbers);
    return true;
}

bool AnchorTable::moveBy(int key, bool far) {
    const int step = far ? farStep : 1;
    const int dx = key == Qt::Key_Right ? step : key == Qt::Key_Left ? -step : 0;
    const int dy = key == Qt::Key_Up ? step : key == Qt::Key_Down ? -step : 0;
    const editing::Anchors numbers = chosen();
    if ((dx == 0 && dy == 0) || numbers.empty())
        return false;
    anchors_->move(numbers, dx, dy);
    return true;
}

void AnchorTable::keyPressEvent(QKeyEvent* event) {
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool plain = modifiers == Qt::NoModifier && obey(event->key());
    const bool moved = (modifiers & Qt::AltModifier) && !(modifiers & Qt::ControlModifier)
                       && moveBy(event->key(), modifiers & Qt::ShiftModifier);
    if (plain || moved)
        event->accept();
    else
        QTableView::keyPressEvent(event);
}

int AnchorTable::heightOf(int rows) const {
    return 2 * frameWidth() + horizontalHeader()->sizeHint().height()
           + rows * verticalHeader()->defaultSectionSize();
}

QSize AnchorTable::sizeHint() const {
    return {QTableView::sizeHint().width(), heightOf(usualRows)};
}

QSize AnchorTable::minimumSizeHint() const {
    return {QTableView::minimumSizeHint().width(), heightOf(leastRows)};
}

} // namespace ferna
