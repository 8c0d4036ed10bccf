#include "renderer/vector_twin.h"

#include "runtime/picture_twin.h"
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QFileInfo>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

namespace ferna::renderer {

namespace {

/// Keeps what is painted as outlines: a stroke as the outline of its pen's way.
class OutlineEngine : public QPaintEngine {
public:
    OutlineEngine() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& now) override {
        const DirtyFlags dirty = now.state();
        if ((dirty & DirtyTransform) != 0)
            transform_ = now.transform();
        if ((dirty & DirtyPen) != 0)
            pen_ = now.pen();
        if ((dirty & DirtyBrush) != 0)
            brush_ = now.brush();
    }

    void drawPath(const QPainterPath& path) override {
        if (brush_.style() != Qt::NoBrush)
            keep(path, brush_.color());
        // The toolkit draws letters with a rim of a tenth of a pixel, which makes them bold here.
        constexpr double thinnest = 5; // units
        const double width = pen_.widthF() * std::sqrt(std::fabs(transform_.determinant()));
        if (pen_.style() == Qt::NoPen || width < thinnest)
            return;
        QPainterPath stroke = QPainterPathStroker(pen_).createStroke(path);
        stroke.setFillRule(Qt::WindingFill);
        keep(stroke, pen_.color());
    }

    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
        QPainterPath path(points[0]);
        for (int i = 1; i < count; ++i)
            path.lineTo(points[i]);
        if (mode != PolylineMode)
            path.closeSubpath();
        drawPath(path);
    }

    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        QPainterPath path;
        path.addText(at, item.font(), item.text());
        keep(path, pen_.color());
    }

    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {} // sketches have none

    std::vector<pages::Outline> take() { return std::move(outlines_); }

private:
    void keep(const QPainterPath& path, const QColor& colour) {
        if (!path.isEmpty())
            outlines_.push_back({transform_.map(path), colour});
    }

    QTransform transform_;
    QPen pen_;
    QBrush brush_;
    std::vector<pages::Outline> outlines_;
};

/// A surface of so many units that paints into outlines.
class OutlineDevice : public QPaintDevice {
public:
    explicit OutlineDevice(QSize units) : units_(units) {}

    QPaintEngine* paintEngine() const override { return &engine_; }
    std::vector<pages::Outline> take() { return engine_.take(); }

protected:
    int metric(PaintDeviceMetric metric) const override {
        constexpr int dpi = 96;
        constexpr double mmPerInch = 25.4;
        switch (metric) {
        case PdmWidth:
            return units_.width();
        case PdmHeight:
            return units_.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return dpi;
        case PdmWidthMM:
            return qRound(units_.width() * mmPerInch / dpi);
        case PdmHeightMM:
            return qRound(units_.height() * mmPerInch / dpi);
        case PdmDepth:
            return 32;
        case PdmNumColors:
            return INT_MAX;
        case PdmDevicePixelRatioScaled:
            return qRound(devicePixelRatioFScale());
        default:
            return 1; // PdmDevicePixelRatio
        }
    }

private:
    QSize units_;
    mutable OutlineEngine engine_;
};

} // namespace

std::vector<pages::Outline> vectorsOf(const QString& bitmap, const QRectF& rect) {
    constexpr double unitsPerMm = 100; // so that letters are of a size that fonts are made for
    const QString twin = twinPath(bitmap);
    if (!QFileInfo(twin).isFile())
        return {};
    QByteArray svg;
    try {
        svg = readFileWhole(twin);
        if (!isTwinOf(svg, readFileWhole(bitmap)))
            return {};
    } catch (const RunTimeError&) {
        return {}; // the bitmap is there
    }
    QSvgRenderer sketch(svg);
    if (!sketch.isValid())
        return {};
    sketch.setAspectRatioMode(Qt::IgnoreAspectRatio);
    OutlineDevice device((rect.size() * unitsPerMm).toSize());
    QPainter painter(&device);
    sketch.render(&painter, QRectF(QPointF(0, 0), rect.size() * unitsPerMm));
    painter.end();
    std::vector<pages::Outline> outlines = device.take();
    for (pages::Outline& outline : outlines)
        outline.path = QTransform::fromScale(1 / unitsPerMm, 1 / unitsPerMm).map(outline.path);
    return outlines;
}

} // namespace ferna::renderer
