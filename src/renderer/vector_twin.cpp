#include "renderer/vector_twin.h"

#include "pages/bitmap_file.h"
#include "runtime/lengths.h"
#include "runtime/picture_twin.h"
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QFileInfo>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>
#include <exception>
#include <system_error>
#include <utility>

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

Twin twinOfFile(const QString& bitmap) {
    const QString twin = twinPath(bitmap);
    if (!QFileInfo(twin).isFile())
        return {};
    try {
        QByteArray headers;
        PictureSum sum;
        const qsizetype size = readFileInParts(bitmap, [&](QByteArrayView part) {
            if (headers.isEmpty())
                headers = part.first(qMin(part.size(), bitmapHeaders)).toByteArray();
            sum.add(part);
        });
        const QByteArray svg = readFileWhole(twin);
        if (!isTwinOf(svg, sum))
            return {};
        QSize pixels = bitmapSize(headers, size);
        if (pixels.isEmpty())
            pixels = readPicture(bitmap).size();
        const auto sketch = std::make_shared<QSvgRenderer>(svg);
        sketch->moveToThread(nullptr); // is read here and drawn and dropped elsewhere
        sketch->setAspectRatioMode(Qt::IgnoreAspectRatio);
        return pixels.isEmpty() || !sketch->isValid() ? Twin() : Twin{sketch, pixels};
    } catch (const RunTimeError&) {
        return {}; // the bitmap may be there
    }
}

std::vector<pages::Outline> outlinesOf(const Twin& twin, const QRectF& rect) {
    constexpr double unitsPerMm = 100; // so that letters are of a size that fonts are made for
    if (twin.sketch == nullptr)
        return {};
    OutlineDevice device((rect.size() * unitsPerMm).toSize());
    QPainter painter(&device);
    twin.sketch->render(&painter, QRectF(QPointF(0, 0), rect.size() * unitsPerMm));
    painter.end();
    std::vector<pages::Outline> outlines = device.take();
    for (pages::Outline& outline : outlines)
        outline.path = QTransform::fromScale(1 / unitsPerMm, 1 / unitsPerMm).map(outline.path);
    return outlines;
}

Twins::Twins(const QStringList& bitmaps) {
    std::vector<std::pair<QString, std::promise<Twin>>> searches;
    for (const QString& bitmap : bitmaps) {
        if (found_.contains(bitmap))
            continue;
        searches.emplace_back(bitmap, std::promise<Twin>());
        found_.emplace(bitmap, searches.back().second.get_future());
    }
    const auto search = [](const std::stop_token& stop, auto pending) {
        for (auto& [bitmap, found] : pending) {
            if (stop.stop_requested())
                return;
            try {
                found.set_value(twinOfFile(bitmap));
            } catch (...) {
                found.set_exception(std::current_exception());
            }
        }
    };
    try {
        searching_ = std::jthread(search, std::move(searches));
    } catch (const std::system_error&) { // no more threads to be had
        found_.clear();
    }
}

Twin Twins::of(const QString& bitmap) const {
    const auto found = found_.find(bitmap);
    return found != found_.end() ? found->second.get() : twinOfFile(bitmap);
}

} // namespace ferna::renderer
