#pragma once

#include "capacity/capacity_line.h"
#include "pages/picture_file.h"

#include <QString>

#include <span>

class QPainter;

namespace ferna {

/// The plane of a chart.
enum class ChartPlane {
    M1M2, ///< the moments at one N
    NM1,  ///< N upwards, M2 = 0
    NM2   ///< N upwards, M1 = 0
};

/// A load with what it is called, kN and kNm.
struct NamedLoad {
    QString name;
    equilibrium::Load load;
    Shear shear;
};

/// A load of a chart, how far its checks are used, and how far it may grow.
struct ChartPoint {
    equilibrium::Load load;
    QString name;
    double used = 0;   ///< `Utilisation::worst`, infinite where the column tips over
    double factor = 0; ///< `loadFactor`

    bool operator==(const ChartPoint&) const = default;
};

ChartPoint pointOf(const Strength& strength, const NamedLoad& one);

/// What a chart shows.
struct Chart {
    ChartPlane plane = ChartPlane::M1M2;
    double N = 0; ///< kN, of the plane of the moments
    Shear shear;  ///< beside the line
    bool tensionSideAlone = false;
    CapacityLine line;
    std::vector<ChartPoint> points;
};

/// The chart of a base with loads given as plain values.
Chart chartOf(const Strength& strength, ChartPlane plane, double N, const Shear& shear,
              std::span<const ChartPoint> points);

/// True where a load lies in the plane of the chart, and not only in its projection.
bool liesInPlane(const Chart& chart, const equilibrium::Load& load);

/// The point whose load can grow least; of equal ones the first. -1 for none. Where the interaction
/// governs, whose terms are squares, it need not be the most used one.
int nearestToLine(const Chart& chart);

/// The title over a chart: which plane, at which N.
QString titleOf(const Chart& chart);
/// The line below it: the horizontal force beside the line, and how it takes part.
QString shearWords(const Chart& chart);
/// How far a point is used: "62 %", or that the column tips over.
QString usedWords(double used);
/// A load factor with two decimals: "1,17".
QString factorWords(double factor);

/// Draws a chart on light paper. `letter` is the height of its letters in the painter's units; its
/// texts keep their size in every size of the chart.
void drawChart(QPainter& painter, const QRectF& place, const Chart& chart, qreal letter);

/// The point under a place of a chart that is drawn so; -1 for none.
int pointAt(const QRectF& place, const Chart& chart, qreal letter, QPointF at);

/// The chart as a file, 160 x 130 mm.
pages::DrawnPicture pictureOf(const Chart& chart);

} // namespace ferna
