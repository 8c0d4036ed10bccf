#pragma once

#include "live/frame.h"

#include <QWidget>

#include <optional>

namespace ferna {

/// Shows a picture of the live view and lets an anchor or an edge of the plate be dragged in it.
/// With the keyboard Page Up and Page Down choose an anchor and the arrows move it by 1 mm, with
/// Shift by 10 mm.
class PictureCanvas : public QWidget {
    Q_OBJECT

public:
    explicit PictureCanvas(QWidget* parent = nullptr);

    /// The picture shown from now on. With a reason it is greyed and nothing can be dragged.
    void setPicture(const live::PictureValues& values, const QString& reason);
    const live::PictureValues& picture() const { return values_; }
    const QString& reason() const { return reason_; }

    /// Shows an anchor as chosen, from 1; 0 for none.
    void choose(int anchor);
    int chosen() const { return chosen_; }

    /// How the picture is drawn here.
    live::PictureOptions options() const;

    QSize sizeHint() const override { return {480, 400}; }
    QSize minimumSizeHint() const override { return {420, 260}; }

Q_SIGNALS:
    void anchorChosen(int anchor);
    /// Something begins to be dragged.
    void changeBegun();
    /// What was dragged is let go, or a step by a key is done: one change.
    void changeEnded();
    /// Where the anchor is wanted, mm.
    void anchorMoved(int anchor, int x, int y);
    /// Which size of the plate is wanted, mm.
    void plateResized(int length, int width);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Drag {
        live::Frame frame; ///< as it was at the press
        live::PictureValues values;
        QPointF press;
        int anchor = 0;
        live::Edge edge = live::Edge::None;
        bool moved = false;
    };

    bool canBeWorked() const { return reason_.isEmpty() && values_.drawable(); }
    live::Frame frame() const { return {values_, options()}; }
    void showCursorAt(QPointF place);
    void dragTo(QPointF place);
    void giveBack();
    void endDrag();
    void step(int x, int y);
    QString tipAt(QPointF place) const;

    live::PictureValues values_;
    QString reason_;
    int chosen_ = 0;
    std::optional<Drag> drag_;
};

} // namespace ferna
