#include "combinations/forms/comparison_view.h"

#include "combinations/answered_table.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ferna {

using combinations::Compared;

namespace {

/// What both say, or why they say nothing together.
QString verdict(const Compared& one) {
    switch (one.state) {
    case Compared::State::OtherLoads:
        return QStringLiteral("nie porównano: w tabeli obciążeń stoją tu inne siły");
    case Compared::State::NotReached:
        return QStringLiteral("nie porównano: Oblicz nie doszło do tego przypadku");
    case Compared::State::Compared:
        break;
    }
    if (!one.told)
        return one.exact ? QStringLiteral("Oblicz nie ma wyniku, a równowaga istnieje")
                         : QStringLiteral("oba: brak wyniku");
    if (!one.exact)
        return QStringLiteral("Oblicz ma wynik, a równowagi nie ma");
    QStringList names;
    for (const Check check : one.differing())
        names += combinations::nameOf(check);
    return names.isEmpty() ? QStringLiteral("zgodne")
                           : QStringLiteral("różnią się: ") + names.join(QStringLiteral(", "));
}

/// "1,02 / 1,12": by the calculation and exactly.
QString pairText(const Compared& one, Check check) {
    if (one.state != Compared::State::Compared)
        return {};
    const auto text = [check](const std::optional<Utilisation>& used) {
        return used ? combinations::useText(used->of(check)) : QStringLiteral("–");
    };
    return text(one.told) + QStringLiteral(" / ") + text(one.exact);
}

std::vector<Check> checksShown(bool byTensionSide) {
    return {Check::Concrete, Check::Tension, byTensionSide ? Check::Shear : Check::Interaction};
}

} // namespace

ComparisonView::ComparisonView(QWidget* parent) : QWidget(parent) {
    auto* const layout = new QVBoxLayout(this);
    about_ = new QLabel;
    about_->setWordWrap(true);
    about_->setTextFormat(Qt::PlainText);
    layout->addWidget(about_);
    table_ = new QTableWidget;
    table_->setAccessibleName(QStringLiteral("Porównanie z Oblicz"));
    table_->verticalHeader()->hide();
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setTabKeyNavigation(false);
    layout->addWidget(table_, 1);
}

void ComparisonView::showNothing(const QString& why) {
    about_->setText(why);
    table_->setRowCount(0);
    table_->hide();
}

void ComparisonView::show(const std::vector<Compared>& all, bool byTensionSide) {
    about_->setText(QStringLiteral("Wytężenie według Oblicz / z dokładnej równowagi."));
    const std::vector<Check> checks = checksShown(byTensionSide);
    QStringList headings{QStringLiteral("Przyp."), QStringLiteral("Wiersz")};
    for (const Check check : checks) {
        QString name = combinations::nameOf(check);
        name.front() = name.front().toUpper();
        headings += name;
    }
    headings += QStringLiteral("Porównanie");
    table_->setColumnCount(static_cast<int>(headings.size()));
    table_->setHorizontalHeaderLabels(headings);
    table_->setRowCount(static_cast<int>(all.size()));
    int r = 0;
    for (const Compared& one : all) {
        QStringList texts{QString::number(one.caseNumber), QString::number(one.row)};
        for (const Check check : checks)
            texts += pairText(one, check);
        texts += verdict(one);
        for (int c = 0; c < texts.size(); ++c) {
            auto* const cell = new QTableWidgetItem(texts.at(c));
            cell->setTextAlignment(c < texts.size() - 1 ? Qt::AlignRight | Qt::AlignVCenter
                                                        : Qt::AlignLeft | Qt::AlignVCenter);
            cell->setToolTip(c == texts.size() - 1 ? texts.at(c) : QString());
            QFont face = font();
            face.setBold(one.differs());
            cell->setFont(face);
            table_->setItem(r, c, cell);
        }
        ++r;
    }
    table_->resizeColumnsToContents();
    table_->resizeRowsToContents();
    table_->show();
}

} // namespace ferna
