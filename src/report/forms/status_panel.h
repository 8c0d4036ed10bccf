#pragma once

#include <QToolButton>

namespace ferna {

/// A panel of the status bar that can be clicked over its whole width. A text that is too long for
/// it is cut with an ellipsis and never widens the form.
class StatusPanel : public QToolButton {
    Q_OBJECT

public:
    static constexpr int textMargin = 6; ///< left and right of the text

    explicit StatusPanel(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ferna
