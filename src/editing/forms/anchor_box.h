#pragma once

#include "design/stan.h"

#include <QFrame>

class QComboBox;
class QLineEdit;

namespace ferna {

class AnchorModel;

/// Place and diameter of one anchor to edit over the drawing, beside the anchor. Enter takes them,
/// and so does leaving the box; Esc leaves the anchor as it was. A text that is no coordinate is
/// told beside its field.
class AnchorBox : public QFrame {
public:
    AnchorBox(QWidget* drawing, AnchorModel& anchors, const Plyta_i_kotwy& plate, int anchor);

    /// Opens it where it does not hide the anchor.
    void showBeside(QPointF anchor, qreal radius);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// False where a text is not taken.
    bool take();
    void close();

    AnchorModel& anchors_;
    int anchor_;
    QLineEdit* x_;
    QLineEdit* y_;
    QComboBox* fi_;
    bool closed_ = false;
};

} // namespace ferna
