#pragma once

#include "editing/anchor_edits.h"

#include <QTableView>

namespace ferna {

class AnchorModel;

/// The anchors in a table to choose and to edit. Delete removes those chosen, a double click, F2 or
/// typing edits a cell, Alt with the arrows moves those chosen by 1 mm, with Shift by 10.
class AnchorTable : public QTableView {
    Q_OBJECT

public:
    AnchorTable(AnchorModel* anchors, QWidget* parent);

    AnchorModel& anchors() const { return *anchors_; }

    /// Numbers of the anchors chosen.
    editing::Anchors chosen() const;
    bool isChosen(int anchor) const;
    /// Chooses anchors; the keyboard then stands on `current`, or on the last of them.
    void choose(const editing::Anchors& anchors, int current = 0);
    /// The anchor on which the keyboard stands; 0 for none.
    int current() const;

    /// Does what a key means for the anchors chosen, beside what a table does with it; false where
    /// it means nothing.
    bool obey(int key);
    /// Moves those chosen by a key of an arrow: 1 mm, or 10.
    bool moveBy(int key, bool far);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Other anchors are chosen.
    void chosenChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    int heightOf(int rows) const;

    AnchorModel* anchors_;
};

} // namespace ferna
