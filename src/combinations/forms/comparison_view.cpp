#include "combinations/forms/comparison_view.h"

#include "combinations/answered_table.h"

#include <QHeaderView>

namespace ferna {

namespace {

QString verdict(const combinations::Compared& one) {
    if (!one.isComputed)
        return one.exact ? QStringLiteral("Oblicz nie ma wyniku, a równowaga istnieje")
                         : QStringLiteral("oba: brak wyniku");
    if (!one.exact)
        return QStringLiteral("Oblicz ma wynik, a równowagi nie ma");
    return one.differs() ? QStringLiteral("różnią się") : QStringLiteral("zgodne");
}

} // namespace

ComparisonView::ComparisonView(QWidget* parent) : QTableWidget(0, 7, parent) {
    setHorizontalHeaderLabels(
        {QStringLiteral("Przyp."), QStringLiteral("Wiersz"), QStringLiteral("Beton\nOblicz"),
         QStringLiteral("Beton\ndokładnie"), QStringLiteral("Rozciąg.\nOblicz"),
         QStringLiteral("Rozciąg.\ndokładnie"), QStringLiteral("Porównanie")});
    setAccessibleName(QStringLiteral("Porównanie z Oblicz"));
    verticalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
}

void ComparisonView::show(const std::vector<combinations::Compared>& all) {
    setRowCount(static_cast<int>(all.size()));
    int r = 0;
    for (const combinations::Compared& one : all) {
        const auto told = [&](Double use) {
            return one.isComputed ? combinations::useText(use) : QStringLiteral("-");
        };
        const auto exact = [&](Check check) {
            return combinations::useText(combinations::useOf(one.exact, check));
        };
        const QStringList texts{QString::number(one.caseNumber),
                                QString::number(one.row),
                                told(one.concrete),
                                exact(Check::Concrete),
                                told(one.tension),
                                exact(Check::Tension),
                                verdict(one)};
        for (int c = 0; c < texts.size(); ++c) {
            auto* const cell = new QTableWidgetItem(texts.at(c));
            if (c < texts.size() - 1)
                cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            if (one.differs()) {
                QFont bold = font();
                bold.setBold(true);
                cell->setFont(bold);
            }
            setItem(r, c, cell);
        }
        ++r;
    }
    resizeColumnsToContents();
}

} // namespace ferna
