#include "live/forms/checks_view.h"

#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>

namespace ferna {

using namespace live;

namespace {

Theme themeOf(const QWidget* widget) {
    constexpr int dark = 128;
    return widget->palette().color(QPalette::Base).lightness() < dark ? Theme::Dark : Theme::Light;
}

} // namespace

QIcon verdictIcon(Verdict verdict, const QWidget* of, bool greyed) {
    const int side = of->fontMetrics().height();
    const qreal ratio = of->devicePixelRatioF();
    const auto sign = [&](const QColor& colour) {
        QPixmap pixmap((QSizeF(side, side) * ratio).toSize());
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawVerdict(painter, QRectF(0, 0, side, side), verdict, colour);
        return pixmap;
    };
    QIcon icon(sign(greyed ? of->palette().color(QPalette::Disabled, QPalette::Text)
                           : verdictColour(verdict, themeOf(of))));
    icon.addPixmap(sign(of->palette().color(QPalette::HighlightedText)), QIcon::Selected);
    return icon;
}

ChecksView::ChecksView(QWidget* parent) : QTableWidget(parent) {
    setColumnCount(static_cast<int>(allChecks.size()));
    setHorizontalHeaderLabels(checkNames());
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setMinimumSectionSize(72);
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents); // the longest texts
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    connect(this, &QTableWidget::currentCellChanged, this, [this](int row, int column) {
        if (row < 0 || column < 0 || row >= static_cast<int>(rows_.size()))
            return;
        const auto of = static_cast<std::size_t>(row);
        Q_EMIT checkChosen(row + 1, allChecks.at(static_cast<std::size_t>(column)),
                           rows_[of].at(static_cast<std::size_t>(column)).anchor);
    });
}

void ChecksView::fill(int row, int column, const CheckCell& cell, bool greyed) {
    QTableWidgetItem* entry = item(row, column);
    if (entry == nullptr) {
        entry = new QTableWidgetItem;
        setItem(row, column, entry);
    }
    QStringList lines{cell.exact};
    if (!cell.bearing.isEmpty())
        lines += cell.bearing;
    if (!cell.told.isEmpty())
        lines += (cell.differs ? QStringLiteral("\u2260 ") : QString()) + cell.told;
    entry->setText(lines.join(u'\n'));
    entry->setToolTip(cell.words);
    entry->setData(Qt::AccessibleTextRole, cell.words);
    entry->setIcon(cell.verdict ? verdictIcon(*cell.verdict, this, greyed) : QIcon());
    const QColor quiet = palette().color(QPalette::Disabled, QPalette::Text);
    entry->setForeground(greyed || !cell.verdict ? quiet
                                                 : verdictColour(*cell.verdict, themeOf(this)));
}

void ChecksView::setChecks(const std::vector<CheckRow>& rows, bool greyed) {
    if (rows == rows_ && greyed == greyed_)
        return;
    const QSignalBlocker quiet(this);
    rows_ = rows;
    greyed_ = greyed;
    setRowCount(static_cast<int>(rows.size()));
    for (int r = 0; r < rowCount(); ++r) {
        setVerticalHeaderItem(r, new QTableWidgetItem(QString::number(r + 1)));
        int lines = 1;
        for (int c = 0; c < columnCount(); ++c) {
            fill(r, c, rows[static_cast<std::size_t>(r)].at(static_cast<std::size_t>(c)), greyed);
            lines = qMax(lines, static_cast<int>(item(r, c)->text().count(u'\n')) + 1);
        }
        setRowHeight(r, lines * fontMetrics().lineSpacing() + fontMetrics().height() / 2);
    }
    updateGeometry();
}

void ChecksView::select(int caseNumber, Check check) {
    const QSignalBlocker quiet(this);
    setCurrentCell(caseNumber - 1, static_cast<int>(check));
}

QSize ChecksView::sizeHint() const {
    int height = horizontalHeader()->sizeHint().height() + 2 * frameWidth();
    for (int r = 0; r < rowCount(); ++r)
        height += rowHeight(r);
    return {460, height};
}

} // namespace ferna
