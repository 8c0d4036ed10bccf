#pragma once

#include <QImage>
#include <QWidget>

#include <functional>
#include <memory>

class QSvgRenderer;

namespace ferna {

/// Shows a picture sharp at the screen's scale: either an SVG sketch, scaled to the room with its
/// proportions kept, or a drawing that is made anew for every size.
class PictureView : public QWidget {
public:
    using Drawing = std::function<QImage(QSize size, qreal devicePixelRatio)>;

    explicit PictureView(QWidget* parent = nullptr);
    ~PictureView() override;

    /// Shows a sketch from a resource or a file.
    void setSketch(const QString& svg);
    /// Shows a drawing; called again when size or scale change.
    void setDrawing(Drawing drawing);
    /// Draws anew.
    void renew();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Drawing drawing_;
    std::unique_ptr<QSvgRenderer> sketch_;
    QImage image_;
};

} // namespace ferna
