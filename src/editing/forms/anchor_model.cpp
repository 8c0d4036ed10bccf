#include "editing/forms/anchor_model.h"

#include "input/forms/Ferna3.h"
#include "notes/record.h"
#include "runtime/format.h"

#include <QBrush>

namespace ferna {

namespace {

/// A step of the work in its name: "usunięcie kotwy 2", "usunięcie 3 kotew".
QString stepName(const QString& what, const editing::Anchors& anchors) {
    return anchors.size() == 1 ? QStringLiteral("%1 kotwy %2").arg(what).arg(anchors.front())
                               : QStringLiteral("%1 %2 kotew").arg(what).arg(anchors.size());
}

} // namespace

AnchorModel::AnchorModel(Ferna3& form, const Stan& stan, QObject* parent)
    : QAbstractTableModel(parent), form_(form), stan_(stan) {
    connect(&form, &Ferna3::anchorsShown, this, &AnchorModel::renew);
    connect(&form, &Ferna3::entered, this, &AnchorModel::renew);
    renew();
}

void AnchorModel::renew() {
    const int now = stan_.plyta.Liczba_srub;
    doubtful_ = editing::doubtfulAnchors(notes::entered(stan_, form_.fields()));
    if (now < anchors_) {
        beginRemoveRows({}, now, anchors_ - 1);
        anchors_ = now;
        endRemoveRows();
    } else if (now > anchors_) {
        beginInsertRows({}, anchors_, now - 1);
        anchors_ = now;
        endInsertRows();
    }
    if (anchors_ > 0) {
        Q_EMIT dataChanged(index(0, 0), index(anchors_ - 1, Columns - 1));
        Q_EMIT headerDataChanged(Qt::Vertical, 0, anchors_ - 1);
    }
    Q_EMIT renewed();
}

QString AnchorModel::doubt(int anchor) const {
    const auto found = doubtful_.find(anchor);
    return found == doubtful_.end() ? QString() : found->second;
}

void AnchorModel::move(const editing::Anchors& anchors, int dx, int dy) {
    form_.editAnchors([&](Plyta_i_kotwy& plate) { editing::moveAnchors(plate, anchors, dx, dy); });
    Q_EMIT form_.stepped(stepName(QStringLiteral("przesunięcie"), anchors));
}

void AnchorModel::remove(const editing::Anchors& anchors) {
    form_.editAnchors([&](Plyta_i_kotwy& plate) { editing::removeAnchors(plate, anchors); });
    Q_EMIT form_.stepped(stepName(QStringLiteral("usunięcie"), anchors));
}

void AnchorModel::set(int anchor, editing::AnchorPlace place, Integer fi) {
    form_.editAnchors([&](Plyta_i_kotwy& plate) { editing::setAnchor(plate, anchor, place, fi); });
    Q_EMIT form_.stepped(stepName(QStringLiteral("zmiana"), {anchor}));
}

int AnchorModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : anchors_;
}

int AnchorModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Columns;
}

QVariant AnchorModel::data(const QModelIndex& index, int role) const {
    const int anchor = index.row() + 1;
    if (!index.isValid() || anchor > stan_.plyta.Liczba_srub)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: {
        const editing::AnchorPlace place = editing::anchorPlace(stan_.plyta, anchor);
        if (index.column() == Diameter)
            return general(stan_.plyta.Fi_kotwy(anchor));
        return general(index.column() == X ? place.x : place.y);
    }
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        return doubt(anchor).isEmpty() ? QVariant() : QBrush(QColor(0xC0, 0, 0));
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return doubt(anchor);
    default:
        return {};
    }
}

QVariant AnchorModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal) {
        if (role != Qt::DisplayRole)
            return {};
        return section == X   ? QStringLiteral("x [mm]")
               : section == Y ? QStringLiteral("y [mm]")
                              : QStringLiteral("Średnica [mm]");
    }
    const QString why = doubt(section + 1);
    switch (role) {
    case Qt::DisplayRole: // the mark stands without its colour too
        return why.isEmpty() ? QString::number(section + 1)
                             : QStringLiteral("! %1").arg(section + 1);
    case Qt::ForegroundRole:
        return why.isEmpty() ? QVariant() : QBrush(QColor(0xC0, 0, 0));
    case Qt::ToolTipRole:
        return why;
    default:
        return {};
    }
}

Qt::ItemFlags AnchorModel::flags(const QModelIndex& index) const {
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

bool AnchorModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const int anchor = index.row() + 1;
    if (role != Qt::EditRole || anchor > stan_.plyta.Liczba_srub)
        return false;
    editing::AnchorPlace place = editing::anchorPlace(stan_.plyta, anchor);
    Integer fi = stan_.plyta.Fi_kotwy(anchor);
    if (index.column() == Diameter) {
        fi = CInt(value.toInt());
    } else {
        const editing::TypedCoordinate typed = editing::typedCoordinate(value.toString());
        if (!typed.refusal.isEmpty())
            return false;
        (index.column() == X ? place.x : place.y) = typed.value;
    }
    set(anchor, place, fi);
    return true;
}

} // namespace ferna
