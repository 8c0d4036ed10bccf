#pragma once

#include "editing/anchor_edits.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>

class QKeyEvent;
class QMouseEvent;
class QPainter;
class QRubberBand;

namespace ferna {

class AnchorBox;
class AnchorTable;
class PictureView;

/// Mouse and keyboard on the plate drawing: a click chooses an anchor, with Ctrl one more or less,
/// a rubber band several; Delete removes those chosen, the arrows move them by 1 mm, with Shift by
/// 10; a double click or F2 edits one in place; Page Up and Page Down go from anchor to anchor,
/// Ctrl+A chooses all, Esc none. What is chosen, and what the notes put in question, is shown over
/// the drawing, which stays as it is.
class AnchorPicture : public QObject {
public:
    /// What the drawing shows, empty where it is not drawn.
    using Drawn = std::function<const std::optional<Plyta_i_kotwy>&()>;

    /// `table` has the choice; the view owns this.
    AnchorPicture(PictureView* view, AnchorTable* table, Drawn drawn);

    /// Where an anchor is on the view.
    QPointF pointOf(int anchor) const;
    /// The anchor at a place of the view, 0 for none.
    int anchorAt(QPointF point) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Pixels of the view per millimetre; 0 where nothing is drawn.
    qreal scale() const;
    qreal radiusOf(int anchor) const;
    int anchors() const;
    void paint(QPainter& painter) const;
    void paintAnchor(QPainter& painter, int anchor) const;
    void pressed(const QMouseEvent& event);
    void moved(const QMouseEvent& event);
    void released();
    bool keyPressed(const QKeyEvent& key);
    void step(int by, bool more);
    void edit(int anchor);
    QString tipAt(QPointF point) const;

    PictureView* view_;
    AnchorTable* table_;
    Drawn drawn_;
    QRubberBand* band_;
    std::optional<QPoint> bandFrom_; ///< where a press beside the anchors stands
    editing::Anchors before_;        ///< chosen when the band began, kept with Ctrl
    QPointer<AnchorBox> box_;
};

} // namespace ferna
