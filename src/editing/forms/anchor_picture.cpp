#include "editing/forms/anchor_picture.h"

#include "editing/forms/anchor_box.h"
#include "editing/forms/anchor_model.h"
#include "editing/forms/anchor_table.h"
#include "input/plate_drawing.h"
#include "runtime/run_time_error.h"
#include "widgets/picture_view.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QRubberBand>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace ferna {

namespace {

constexpr qreal leastRadius = 7;          // pixels around an anchor that still mean it
constexpr qreal ring = 4;                 // pixels between an anchor and the ring of the choice
constexpr QColor doubtColour(0xC0, 0, 0); // as in the table
constexpr QColor chosenColour(0x00, 0x5F, 0xB8);

} // namespace

AnchorPicture::AnchorPicture(PictureView* view, AnchorTable* table, Drawn drawn)
    : QObject(view), view_(view), table_(table), drawn_(std::move(drawn)),
      band_(new QRubberBand(QRubberBand::Rectangle, view)) {
    view->setFocusPolicy(Qt::StrongFocus);
    view->setAccessibleDescription(
        QStringLiteral("Page Up i Page Down wybierają śrubę, strzałki ją przesuwają, F2 zmienia, "
                       "Delete usuwa"));
    view->installEventFilter(this);
    view->setOverlay([this](QPainter& painter) { paint(painter); });
    connect(table, &AnchorTable::chosenChanged, view, QOverload<>::of(&QWidget::update));
    connect(&table->anchors(), &AnchorModel::renewed, view, QOverload<>::of(&QWidget::update));
}

int AnchorPicture::anchors() const {
    return drawn_() ? std::min<int>(drawn_()->Liczba_srub, table_->anchors().anchors()) : 0;
}

qreal AnchorPicture::scale() const {
    try {
        return drawn_() ? view_->drawingPlace().width() / 2
                              / plateHalfExtent(platePictureSize, *drawn_()).width()
                        : 0;
    } catch (const RunTimeError&) { // a plate without extent
        return 0;
    }
}

QPointF AnchorPicture::pointOf(int anchor) const {
    const editing::AnchorPlace place = editing::anchorPlace(*drawn_(), anchor);
    return view_->drawingPlace().center() + QPointF(place.x, -place.y) * scale();
}

qreal AnchorPicture::radiusOf(int anchor) const {
    return drawn_()->Fi_kotwy(anchor) / 2.0 * scale();
}

int AnchorPicture::anchorAt(QPointF point) const {
    int found = 0;
    qreal nearest = 0;
    for (int i = 1; i <= anchors(); ++i) {
        const QPointF away = pointOf(i) - point;
        const qreal distance = std::hypot(away.x(), away.y());
        if (distance <= std::max(radiusOf(i), leastRadius) && (found == 0 || distance < nearest)) {
            found = i;
            nearest = distance;
        }
    }
    return found;
}

void AnchorPicture::paint(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(view_->drawingPlace());
    for (int i = 1; i <= anchors(); ++i)
        paintAnchor(painter, i);
    if (!view_->hasFocus())
        return;
    painter.setClipping(false);
    painter.setPen(QPen(chosenColour, 1, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(view_->rect().adjusted(2, 2, -3, -3));
}

void AnchorPicture::paintAnchor(QPainter& painter, int anchor) const {
    const QPointF centre = pointOf(anchor);
    const qreal radius = std::max(radiusOf(anchor), ring);
    if (!table_->anchors().doubt(anchor).isEmpty()) {
        painter.setPen(QPen(doubtColour, 2));
        QColor inside = doubtColour;
        inside.setAlphaF(0.25F);
        painter.setBrush(inside);
        painter.drawEllipse(centre, radius, radius);
        QFont bold = view_->font();
        bold.setBold(true);
        painter.setFont(bold);
        const QRectF above(centre - QPointF(20, radius + 24), QSizeF(40, 20));
        painter.drawText(above, Qt::AlignHCenter | Qt::AlignBottom, QStringLiteral("!"));
    }
    if (table_->isChosen(anchor)) {
        QColor inside = chosenColour;
        inside.setAlphaF(0.18F);
        painter.setPen(QPen(chosenColour, 2));
        painter.setBrush(inside);
        painter.drawEllipse(centre, radius + ring, radius + ring);
    }
}

bool AnchorPicture::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        pressed(static_cast<const QMouseEvent&>(*event));
        return true;
    case QEvent::MouseMove:
        moved(static_cast<const QMouseEvent&>(*event));
        return true;
    case QEvent::MouseButtonRelease:
        released();
        return true;
    case QEvent::MouseButtonDblClick:
        edit(anchorAt(static_cast<const QMouseEvent&>(*event).position()));
        return true;
    case QEvent::KeyPress:
        return keyPressed(static_cast<const QKeyEvent&>(*event));
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        view_->update();
        break;
    case QEvent::ToolTip: {
        const auto& help = static_cast<const QHelpEvent&>(*event);
        const QString tip = tipAt(help.pos());
        if (tip.isEmpty())
            break; // that of the drawing
        QToolTip::showText(help.globalPos(), tip, view_);
        return true;
    }
    default:
        break;
    }
    return false;
}

QString AnchorPicture::tipAt(QPointF point) const {
    const int anchor = anchorAt(point);
    return anchor > 0 ? table_->anchors().doubt(anchor) : QString();
}

void AnchorPicture::pressed(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton)
        return;
    view_->setFocus(Qt::MouseFocusReason);
    const bool more = event.modifiers() & Qt::ControlModifier;
    editing::Anchors chosen = more ? table_->chosen() : editing::Anchors();
    if (const int anchor = anchorAt(event.position()); anchor > 0) {
        const auto place = std::lower_bound(chosen.begin(), chosen.end(), anchor);
        if (place != chosen.end() && *place == anchor)
            chosen.erase(place);
        else
            chosen.insert(place, anchor);
        table_->choose(chosen);
        return;
    }
    before_ = chosen;
    table_->choose(chosen);
    bandFrom_ = event.position().toPoint();
    band_->setGeometry({*bandFrom_, QSize()});
}

void AnchorPicture::moved(const QMouseEvent& event) {
    if (!bandFrom_)
        return;
    const QRect area = QRect(*bandFrom_, event.position().toPoint()).normalized() & view_->rect();
    band_->setGeometry(area);
    band_->show();
    editing::Anchors chosen;
    for (int i = 1; i <= anchors(); ++i)
        if (QRectF(area).contains(pointOf(i))
            || std::binary_search(before_.begin(), before_.end(), i))
            chosen.push_back(i);
    table_->choose(chosen);
}

void AnchorPicture::released() {
    bandFrom_.reset();
    band_->hide();
}

bool AnchorPicture::keyPressed(const QKeyEvent& key) {
    const bool control = key.modifiers() & Qt::ControlModifier;
    switch (key.key()) {
    case Qt::Key_PageDown:
    case Qt::Key_PageUp:
        step(key.key() == Qt::Key_PageDown ? 1 : -1, key.modifiers() & Qt::ShiftModifier);
        return true;
    case Qt::Key_A:
        if (!control)
            return false;
        table_->selectAll();
        return true;
    case Qt::Key_Escape:
        table_->clearSelection();
        return true;
    case Qt::Key_F2:
        edit(table_->chosen().empty() ? 0 : table_->current());
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (control || (key.modifiers() & Qt::AltModifier))
            return false;
        table_->moveBy(key.key(), key.modifiers() & Qt::ShiftModifier);
        return true; // they lead nowhere else from here
    default:
        return table_->obey(key.key());
    }
}

/// Chooses the next anchor or the one before; with `more` beside those chosen.
void AnchorPicture::step(int by, bool more) {
    const int count = anchors();
    if (count == 0)
        return;
    editing::Anchors chosen = table_->chosen();
    const int from = chosen.empty() ? 0 : table_->current();
    const int next = from == 0 ? (by > 0 ? 1 : count) : (from - 1 + by + count) % count + 1;
    editing::Anchors now = more ? chosen : editing::Anchors();
    if (!std::binary_search(now.begin(), now.end(), next))
        now.insert(std::lower_bound(now.begin(), now.end(), next), next);
    table_->choose(now, next);
}

void AnchorPicture::edit(int anchor) {
    if (anchor == 0)
        return;
    table_->choose({anchor});
    delete box_;
    box_ = new AnchorBox(view_, table_->anchors(), *drawn_(), anchor);
    box_->showBeside(pointOf(anchor), radiusOf(anchor));
}

} // namespace ferna
