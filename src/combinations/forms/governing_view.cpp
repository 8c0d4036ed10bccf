#include "combinations/forms/governing_view.h"

#include "combinations/forms/use_bar.h"

#include <QHeaderView>

namespace ferna {

using combinations::RowNumber;

namespace {

/// "KO-12 (wiersz 17)", or the number alone.
QString nameOfRow(const combinations::AnsweredTable& table, RowNumber row) {
    const QString number = QStringLiteral("wiersz %1").arg(row);
    const auto* const one = table.combination(row);
    return one && !one->name.isEmpty() ? QStringLiteral("%1 (%2)").arg(one->name, number) : number;
}

/// "i tak samo: KO-13, KO-14 i 3 dalsze"
QString tiesText(const combinations::AnsweredTable& table, const std::vector<RowNumber>& rows) {
    constexpr std::size_t named = 3;
    if (rows.size() < 2)
        return {};
    QStringList names;
    for (std::size_t i = 1; i < std::min(rows.size(), named + 1); ++i)
        names += nameOfRow(table, rows[i]);
    QString text = names.join(QStringLiteral(", "));
    if (rows.size() > named + 1)
        text += QStringLiteral(" i dalsze: %1").arg(rows.size() - named - 1);
    return text;
}

} // namespace

GoverningView::GoverningView(std::function<void(RowNumber)> follow, QWidget* parent)
    : QTableWidget(static_cast<int>(allChecks.size()), 4, parent), follow_(std::move(follow)) {
    setHorizontalHeaderLabels({QStringLiteral("Sprawdzenie"), QStringLiteral("Największe"),
                               QStringLiteral("Kombinacja miarodajna"),
                               QStringLiteral("Tak samo wytężone")});
    setAccessibleName(QStringLiteral("Kombinacje miarodajne"));
    verticalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setItemDelegateForColumn(1, new UseBar(this));
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    for (int r = 0; r < rowCount(); ++r)
        for (int c = 0; c < columnCount(); ++c)
            setItem(r, c, new QTableWidgetItem);
    const auto followRow = [this](int r) {
        if (r >= 0 && rows_.at(static_cast<std::size_t>(r)) > 0)
            follow_(rows_.at(static_cast<std::size_t>(r)));
    };
    connect(this, &QTableWidget::cellClicked, this, [followRow](int r, int) { followRow(r); });
    connect(this, &QTableWidget::cellActivated, this, [followRow](int r, int) { followRow(r); });
}

QSize GoverningView::sizeHint() const {
    return {500, horizontalHeader()->sizeHint().height() + verticalHeader()->length()
                     + 2 * frameWidth()};
}

void GoverningView::show(const combinations::AnsweredTable& table) {
    rows_.fill(0);
    int r = 0;
    for (const Check check : allChecks) {
        const std::vector<RowNumber> rows = table.governing(check);
        const Double most = table.choice().envelope(check);
        QString name = combinations::nameOf(check);
        name.front() = name.front().toUpper();
        item(r, 0)->setText(name);
        item(r, 1)->setText(rows.empty() ? QString() : combinations::useText(most));
        item(r, 1)->setData(useRole, rows.empty() ? QVariant() : QVariant(most));
        const bool any = table.choice().governing(check) > 0;
        item(r, 2)->setText(!rows.empty() ? nameOfRow(table, rows.front())
                            : any         ? QStringLiteral("w żadnej nie występuje")
                                          : QString());
        item(r, 3)->setText(tiesText(table, rows));
        item(r, 3)->setToolTip(item(r, 3)->text());
        rows_.at(static_cast<std::size_t>(r)) = rows.empty() ? 0 : rows.front();
        ++r;
    }
    resizeColumnToContents(0);
    resizeColumnToContents(2);
}

} // namespace ferna
