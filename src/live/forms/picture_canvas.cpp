#include "live/forms/picture_canvas.h"

#include "live/figures.h"

#include <QApplication>
#include <QFontInfo>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace ferna {

using namespace live;

namespace {

constexpr int farthest = 16000; // mm from the centre; twice that is the largest plate

int wholeMillimetres(Double mm) {
    return static_cast<int>(std::lround(std::clamp(mm, -1.0 * farthest, 1.0 * farthest)));
}

/// The size of the plate with an edge at a place: its centre stays where it is.
int sizeWithEdgeAt(Double mm) {
    constexpr int least = 10;
    return std::max(least,
                    static_cast<int>(std::lround(2 * std::min(std::fabs(mm), 1.0 * farthest))));
}

bool isUpright(Edge edge) {
    return edge == Edge::Left || edge == Edge::Right;
}

} // namespace

PictureCanvas::PictureCanvas(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureCanvas::setPicture(const PictureValues& values, const QString& reason) {
    values_ = values;
    reason_ = reason;
    if (chosen_ > static_cast<int>(values_.anchors.size()))
        chosen_ = 0;
    update();
}

void PictureCanvas::choose(int anchor) {
    if (chosen_ == anchor)
        return;
    chosen_ = anchor;
    update();
}

PictureOptions PictureCanvas::options() const {
    constexpr int dark = 128;
    PictureOptions options;
    options.size = size();
    options.theme =
        palette().color(QPalette::Window).lightness() < dark ? Theme::Dark : Theme::Light;
    options.greyed = !reason_.isEmpty();
    options.reason = reason_;
    options.chosenAnchor = chosen_;
    options.letter = QFontInfo(font()).pixelSize();
    if (drag_)
        options.shown = extentOf(drag_->values);
    return options;
}

void PictureCanvas::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    drawPicture(painter, values_, options());
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void PictureCanvas::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !canBeWorked())
        return;
    const Frame now = frame();
    const int anchor = anchorAt(now, values_, event->position());
    choose(anchor);
    Q_EMIT anchorChosen(anchor);
    const Edge edge = anchor > 0 ? Edge::None : edgeAt(now, event->position());
    if (anchor > 0 || edge != Edge::None)
        drag_ = Drag{now, values_, event->position(), anchor, edge};
}

void PictureCanvas::mouseMoveEvent(QMouseEvent* event) {
    if (!drag_) {
        showCursorAt(event->position());
        return;
    }
    const QPointF way = event->position() - drag_->press;
    if (!drag_->moved) {
        if (way.manhattanLength() < QApplication::startDragDistance())
            return;
        drag_->moved = true;
        Q_EMIT changeBegun();
    }
    dragTo(event->position());
}

void PictureCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        endDrag();
}

void PictureCanvas::endDrag() {
    if (!drag_)
        return;
    const bool moved = drag_->moved;
    drag_.reset();
    if (moved)
        Q_EMIT changeEnded();
    update();
}

void PictureCanvas::showCursorAt(QPointF place) {
    if (!canBeWorked()) {
        unsetCursor();
        return;
    }
    const Frame now = frame();
    if (anchorAt(now, values_, place) > 0)
        setCursor(Qt::SizeAllCursor);
    else if (const Edge edge = edgeAt(now, place); edge != Edge::None)
        setCursor(isUpright(edge) ? Qt::SizeHorCursor : Qt::SizeVerCursor);
    else
        unsetCursor();
}

// An anchor keeps its distance from the pointer; an edge goes to it.
void PictureCanvas::dragTo(QPointF place) {
    const equilibrium::Point to = drag_->frame.mmAt(place);
    if (drag_->anchor > 0) {
        const equilibrium::Point from = drag_->frame.mmAt(drag_->press);
        const PictureAnchor& anchor =
            drag_->values.anchors.at(static_cast<std::size_t>(drag_->anchor - 1));
        Q_EMIT anchorMoved(drag_->anchor, wholeMillimetres(anchor.x + to.x - from.x),
                           wholeMillimetres(anchor.y + to.y - from.y));
    } else if (isUpright(drag_->edge)) {
        Q_EMIT plateResized(sizeWithEdgeAt(to.x),
                            static_cast<int>(std::lround(drag_->values.width)));
    } else {
        Q_EMIT plateResized(static_cast<int>(std::lround(drag_->values.length)),
                            sizeWithEdgeAt(to.y));
    }
}

// What is dragged goes back to where it was taken.
void PictureCanvas::giveBack() {
    if (drag_->anchor > 0) {
        const PictureAnchor& anchor =
            drag_->values.anchors.at(static_cast<std::size_t>(drag_->anchor - 1));
        Q_EMIT anchorMoved(drag_->anchor, wholeMillimetres(anchor.x), wholeMillimetres(anchor.y));
    } else {
        Q_EMIT plateResized(static_cast<int>(std::lround(drag_->values.length)),
                            static_cast<int>(std::lround(drag_->values.width)));
    }
}

void PictureCanvas::step(int x, int y) {
    if (chosen_ == 0 || !canBeWorked())
        return;
    const PictureAnchor& anchor = values_.anchors.at(static_cast<std::size_t>(chosen_ - 1));
    Q_EMIT anchorMoved(chosen_, wholeMillimetres(anchor.x + x), wholeMillimetres(anchor.y + y));
    Q_EMIT changeEnded();
}

void PictureCanvas::keyPressEvent(QKeyEvent* event) {
    const int length = event->modifiers() & Qt::ShiftModifier ? 10 : 1; // mm
    const int anchors = static_cast<int>(values_.anchors.size());
    switch (event->key()) {
    case Qt::Key_Left:
        return step(-length, 0);
    case Qt::Key_Right:
        return step(length, 0);
    case Qt::Key_Up:
        return step(0, length);
    case Qt::Key_Down:
        return step(0, -length);
    case Qt::Key_PageDown:
    case Qt::Key_PageUp:
        if (anchors > 0) {
            const int on = event->key() == Qt::Key_PageDown ? 1 : -1;
            choose((std::max(chosen_ - 1, on > 0 ? chosen_ - 1 : 0) + on + anchors) % anchors + 1);
            Q_EMIT anchorChosen(chosen_);
        }
        return;
    case Qt::Key_Escape:
        if (drag_ && drag_->moved) {
            giveBack();
            endDrag();
            return;
        }
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

QString PictureCanvas::tipAt(QPointF place) const {
    if (!canBeWorked())
        return reason_;
    const Frame now = frame();
    if (const int i = anchorAt(now, values_, place); i > 0) {
        const PictureAnchor& anchor = values_.anchors.at(static_cast<std::size_t>(i - 1));
        const AnchorPull pull = pullsOf(values_).at(static_cast<std::size_t>(i - 1));
        const QString where = QStringLiteral("Kotwa %1 \u00d8%2, %3 mm: ")
                                  .arg(i)
                                  .arg(anchor.diameter)
                                  .arg(notes::place(anchor.x, anchor.y));
        return where
               + (pull.force > 0 ? withUnit(pull.force, "kN") + QStringLiteral(", ")
                                       + withUnit(pull.stress, "MPa")
                                 : QStringLiteral("nie jest rozciągana"));
    }
    if (!now.plate().contains(place))
        return {};
    Double pressure = 0;
    const equilibrium::Point mm = now.mmAt(place);
    for (const PictureCase& one : values_.cases)
        if (one.found.exists)
            pressure = std::max(pressure, one.found.plane.at(mm));
    return QStringLiteral("Docisk w %1 mm: %2")
        .arg(notes::place(std::round(mm.x), std::round(mm.y)), withUnit(pressure, "MPa"));
}

bool PictureCanvas::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), tipAt(help->pos()).toHtmlEscaped(), this);
    return true;
}

} // namespace ferna
