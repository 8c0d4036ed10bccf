#include "smallest/forms/design_table.h"

#include "runtime/format.h"

#include <array>

namespace ferna {

namespace {

struct Column {
    const char16_t* title;
    const char16_t* tip;
};
constexpr std::array columns{
    Column{u"Masa [kg]", u"Blacha i kotwy razem"},
    Column{u"Płyta [mm]", u"Długość, szerokość, grubość"},
    Column{u"Kotwy", u"Liczba, średnica i długość katalogowa, mm"},
    Column{u"Stal kotew", u"Stal kotew"},
    Column{u"Wytężenie", u"Największe wytężenie i jego przypadek, według dokładnej równowagi"},
    Column{u"Obliczenie", u"Co mówi obliczenie, jak przyciskiem Oblicz po uruchomieniu programu"}};

QString one(double value) {
    return Format(value, u"#####0.0");
}

} // namespace

void DesignTable::show(std::vector<smallest::Winner> winners, double pressureLimit) {
    beginResetModel();
    winners_ = std::move(winners);
    pressureLimit_ = pressureLimit;
    endResetModel();
}

int DesignTable::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(winners_.size());
}

int DesignTable::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns.size());
}

QString DesignTable::text(const smallest::Winner& winner, int column) const {
    const smallest::Design& design = winner.design;
    switch (column) {
    case 0:
        return one(design.mass());
    case 1:
        return QStringLiteral("%1 × %2 × %3")
            .arg(design.length)
            .arg(design.width)
            .arg(design.thickness);
    case 2:
        return QStringLiteral("%1 × M%2, L = %3")
            .arg(design.layout)
            .arg(design.diameter)
            .arg(design.anchorLength);
    case 3:
        return steelNames().at(design.steel - 1).section(u',', 0, 0);
    case 4:
        return QStringLiteral("%1 % (%2)")
            .arg(one(100 * smallest::judged(design.used, pressureLimit_)))
            .arg(design.worstCase);
    default:
        return winner.calculation.confirmed ? QStringLiteral("potwierdza")
                                            : winner.calculation.reason;
    }
}

QVariant DesignTable::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const smallest::Winner& winner = at(index.row());
    if (role == Qt::DisplayRole)
        return text(winner, index.column());
    if (role == Qt::ToolTipRole && index.column() == 4)
        return QStringLiteral(
                   "docisk %1 % z %2 Rb\nrozciąganie %3 %\nścinanie %4 %\ninterakcja %5 %")
            .arg(one(100 * winner.design.used.bearingFactor / pressureLimit_),
                 general(pressureLimit_), one(100 * winner.design.used.tension),
                 one(100 * winner.design.used.shear), one(100 * winner.design.used.interaction));
    if (role == Qt::ToolTipRole && index.column() == 0)
        return QStringLiteral("blacha %1 kg, kotwy %2 kg")
            .arg(one(winner.design.plateMass), one(winner.design.anchorMass));
    if (role == Qt::ToolTipRole && index.column() == 5)
        return text(winner, 5);
    if (role == Qt::TextAlignmentRole && index.column() == 0)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant DesignTable::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical)
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    const Column& column = columns.at(static_cast<std::size_t>(section));
    if (role == Qt::DisplayRole)
        return QString::fromUtf16(column.title);
    if (role == Qt::ToolTipRole)
        return QString::fromUtf16(column.tip);
    return {};
}

} // namespace ferna
