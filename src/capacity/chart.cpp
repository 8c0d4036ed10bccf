#include "capacity/chart.h"

#include "capacity/chart_frame.h"
#include "pages/drawing.h"
#include "runtime/format.h"

#include <algorithm>
#include <cmath>

namespace ferna {

namespace {

QString amount(double value, const char16_t* unit) {
    return general(std::round(100 * value) / 100 + 0.0) + u'\u00a0' + QString::fromUtf16(unit);
}

constexpr double nothing = 0.01; // kN, no horizontal force

} // namespace

ChartPoint pointOf(const Strength& strength, const NamedLoad& one) {
    const std::optional<Utilisation> used = strength.used(one.load, one.shear);
    return {one.load, one.name, used ? used->worst() : HUGE_VAL,
            loadFactor(strength, one.load, one.shear)};
}

Chart chartOf(const Strength& strength, ChartPlane plane, double N, const Shear& shear,
              std::span<const ChartPoint> points) {
    Chart chart{plane, N, shear, strength.limits().tensionSideAlone, {}, {}};
    chart.line =
        plane == ChartPlane::M1M2
            ? momentLine(strength, N, shear)
            : axialLine(strength, plane == ChartPlane::NM1 ? Moment::M1 : Moment::M2, shear);
    chart.points.assign(points.begin(), points.end());
    return chart;
}

bool liesInPlane(const Chart& chart, const equilibrium::Load& load) {
    constexpr double same = 0.005; // kN or kNm, less than is typed
    switch (chart.plane) {
    case ChartPlane::M1M2:
        return std::fabs(load.N - chart.N) < same;
    case ChartPlane::NM1:
        return std::fabs(load.M2) < same;
    case ChartPlane::NM2:
        break;
    }
    return std::fabs(load.M1) < same;
}

int nearestToLine(const Chart& chart) {
    const auto least = std::min_element(
        chart.points.begin(), chart.points.end(),
        [](const ChartPoint& one, const ChartPoint& other) { return one.factor < other.factor; });
    return least == chart.points.end() ? -1 : static_cast<int>(least - chart.points.begin());
}

QString titleOf(const Chart& chart) {
    switch (chart.plane) {
    case ChartPlane::M1M2:
        return QStringLiteral("Nośność w płaszczyźnie M1-M2 przy N = ") + amount(chart.N, u"kN");
    case ChartPlane::NM1:
        return QStringLiteral("Nośność w płaszczyźnie N-M1 przy M2 = 0");
    case ChartPlane::NM2:
        break;
    }
    return QStringLiteral("Nośność w płaszczyźnie N-M2 przy M1 = 0");
}

QString shearWords(const Chart& chart) {
    const double V = std::hypot(chart.shear.Vx, chart.shear.Vy);
    if (!(V > nothing))
        return QStringLiteral("Bez siły poziomej.");
    const QString force = QStringLiteral("Siła pozioma V = %1").arg(amount(V, u"kN"));
    if (chart.tensionSideAlone)
        return force
               + QStringLiteral(" nie ogranicza linii: ścinanie kotew jednej strony "
                                "sprawdza się w każdym punkcie osobno.");
    return force + QStringLiteral(" przez wszystkie kotwy, gdy tarcie jej nie przenosi.");
}

QString usedWords(double used) {
    return std::isfinite(used) ? general(std::round(1000 * used) / 10) + QStringLiteral("\u00a0%")
                               : QStringLiteral("brak równowagi");
}

QString factorWords(double factor) {
    return std::isfinite(factor) ? general(std::round(100 * factor) / 100)
                                 : QStringLiteral("dowolnie wiele");
}

int pointAt(const QRectF& place, const Chart& chart, qreal letter, QPointF at) {
    const ChartFrame frame(place, chart, letter);
    int found = -1;
    qreal nearest = 0.8 * letter;
    for (std::size_t i = 0; i < chart.points.size(); ++i) {
        const QPointF away = frame.atPoint(chart.points[i]) - at;
        const qreal distance = std::hypot(away.x(), away.y());
        if (distance <= nearest) {
            nearest = distance;
            found = static_cast<int>(i);
        }
    }
    return found;
}

pages::DrawnPicture pictureOf(const Chart& chart) {
    constexpr qreal letter = 2.6 * drawing::unitsPerMm;
    return {titleOf(chart), QSizeF(160, 130), [chart](QPainter& painter, const QRectF& place) {
                drawChart(painter, place, chart, letter);
            }};
}

} // namespace ferna
