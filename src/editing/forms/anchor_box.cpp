#include "editing/forms/anchor_box.h"

#include "editing/anchor_edits.h"
#include "editing/forms/anchor_editors.h"
#include "editing/forms/anchor_model.h"
#include "runtime/format.h"
#include "widgets/number_field.h"

#include <QApplication>
#include <QComboBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

namespace ferna {

namespace {

constexpr int gap = 8; // pixels between the anchor and its box

} // namespace

AnchorBox::AnchorBox(QWidget* drawing, AnchorModel& anchors, const Plyta_i_kotwy& plate, int anchor)
    : QFrame(drawing), anchors_(anchors), anchor_(anchor), x_(new QLineEdit(this)),
      y_(new QLineEdit(this)), fi_(diameterList(plate.Fi_kotwy(anchor), this)) {
    setObjectName(QStringLiteral("ramkaSruby"));
    setFrameStyle(QFrame::Box | QFrame::Raised);
    setAutoFillBackground(true);
    x_->setObjectName(QStringLiteral("ramkaX"));
    y_->setObjectName(QStringLiteral("ramkaY"));
    fi_->setObjectName(QStringLiteral("ramkaFi"));
    const editing::AnchorPlace place = editing::anchorPlace(plate, anchor);
    x_->setText(general(place.x));
    y_->setText(general(place.y));
    for (QLineEdit* field : {x_, y_}) {
        field->setAlignment(Qt::AlignRight);
        field->setMaximumWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("-00000000")));
    }
    auto* const rows = new QFormLayout(this);
    rows->setContentsMargins(6, 6, 6, 6);
    rows->setSpacing(4);
    rows->addRow(new QLabel(QStringLiteral("Śruba %1").arg(anchor), this));
    rows->addRow(QStringLiteral("x [mm]"), x_);
    rows->addRow(QStringLiteral("y [mm]"), y_);
    rows->addRow(QStringLiteral("M"), fi_);
    keepTablesOut(this);
    for (QWidget* field :
         {static_cast<QWidget*>(x_), static_cast<QWidget*>(y_), static_cast<QWidget*>(fi_)})
        field->installEventFilter(this);
    setTabOrder(x_, y_);
    setTabOrder(y_, fi_);
}

void AnchorBox::showBeside(QPointF anchor, qreal radius) {
    adjustSize();
    const QRect room = parentWidget()->rect();
    const int away = static_cast<int>(radius) + gap;
    int x = static_cast<int>(anchor.x()) + away;
    if (x + width() > room.width())
        x = static_cast<int>(anchor.x()) - away - width();
    const int y = static_cast<int>(anchor.y()) - height() / 2;
    move(qBound(0, x, qMax(0, room.width() - width())),
         qBound(0, y, qMax(0, room.height() - height())));
    show();
    raise();
    x_->setFocus(Qt::OtherFocusReason);
    x_->selectAll();
}

bool AnchorBox::take() {
    for (QLineEdit* field : {x_, y_})
        if (!coordinateIsTaken(field, field->text())) {
            field->setFocus(Qt::OtherFocusReason);
            field->selectAll();
            return false;
        }
    const editing::AnchorPlace place{editing::typedCoordinate(x_->text()).value,
                                     editing::typedCoordinate(y_->text()).value};
    const int fi = fi_->currentIndex() < 0 ? 0 : fi_->currentText().toInt();
    close();
    anchors_.set(anchor_, place, static_cast<Integer>(fi));
    return true;
}

void AnchorBox::close() {
    closed_ = true;
    const bool focused = isAncestorOf(QApplication::focusWidget());
    hide();
    deleteLater();
    if (focused)
        parentWidget()->setFocus(Qt::OtherFocusReason);
}

void AnchorBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        take();
    else if (event->key() == Qt::Key_Escape)
        close();
    // Nothing goes on to the drawing or the form: their keys mean something else.
    event->accept();
}

bool AnchorBox::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::FocusOut && !closed_)
        QTimer::singleShot(0, this, [this] {
            const QWidget* const focus = QApplication::focusWidget();
            if (!closed_ && focus != nullptr && !isAncestorOf(focus)
                && QApplication::activePopupWidget() == nullptr)
                take();
        });
    return false;
}

} // namespace ferna
