#pragma once

#include "live/picture.h"

#include <QWidget>

namespace ferna {

/// Shows the picture of one combination, or that none is chosen.
class CasePicture : public QWidget {
    Q_OBJECT

public:
    explicit CasePicture(QWidget* parent = nullptr) : QWidget(parent) {}

    void show(live::PictureValues values);
    void showNothing(const QString& why);

    QSize sizeHint() const override { return {440, 380}; }
    QSize minimumSizeHint() const override { return {300, 240}; } ///< where it can be read

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::optional<live::PictureValues> values_;
    QString why_;
};

} // namespace ferna
