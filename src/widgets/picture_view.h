#pragma once

#include <QImage>
#include <QWidget>

#include <functional>
#include <memory>

class QSvgRenderer;

namespace ferna {

/// Shows a picture sharp at the screen's scale, in the middle of its room and with its proportions
/// kept: either an SVG sketch or a drawing that is made anew for every size.
class PictureView : public QWidget {
public:
    /// Draws at a device pixel ratio.
    using Drawing = std::function<QImage(qreal devicePixelRatio)>;

    explicit PictureView(QWidget* parent = nullptr);
    ~PictureView() override;

    /// Shows a sketch from a resource or a file.
    void setSketch(const QString& svg);
    /// Shows a drawing of a size in picture pixels, as large as the room lets it be with its
    /// proportions kept; called again when room or scale change.
    void setDrawing(QSize size, Drawing drawing);
    /// Draws anew.
    void renew();

    /// What is painted over the drawing, on the screen alone.
    using Overlay = std::function<void(QPainter& painter)>;
    void setOverlay(Overlay overlay);
    /// Where the drawing stands in the widget.
    QRectF drawingPlace() const { return placeOf(drawingSize_); }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// The place of a picture of this size in the room.
    QRectF placeOf(QSizeF picture) const;

    Drawing drawing_;
    Overlay overlay_;
    QSize drawingSize_;
    std::unique_ptr<QSvgRenderer> sketch_;
    QImage image_;
};

} // namespace ferna
