#include "plate/load_charts.h"

#include "plate/clauses.h"
#include "plate/load_chart_data.h"

namespace ferna {

namespace {

/// The range that a segment serves, and its line.
struct Segment {
    Single from;
    Single to;
    Single x0;
    Single y0;
    Single y1;
    Single w;

    Single at(Single x) const {
        return storedSingle(Extended{y0}
                            + (Extended{x} - x0) * (Extended{y1} - Extended{y0}) / Extended{w});
    }
};

/// The width as a decimal: the nodes have two places.
Single decimalWidth(const ChartNode& left, const ChartNode& right) {
    return CSng(std::round((right.x - left.x) * 100) / 100);
}

Segment segmentOf(const Chart& chart, const ChartCurve& curve, std::size_t i) {
    const ChartNode& left = curve.nodes[i];
    const ChartNode& right = curve.nodes[i + 1];
    Segment segment{CSng(left.x), CSng(right.x), CSng(left.x),
                    CSng(left.y), CSng(right.y), decimalWidth(left, right)};
    for (const ChartDeparture& departure : chart.departures) {
        if (departure.krzywa != curve.krzywa || left.x < departure.from || right.x > departure.to)
            continue;
        segment.x0 = CSng(departure.x0.value_or(segment.x0));
        segment.y0 = CSng(departure.y0.value_or(segment.y0));
        segment.y1 = CSng(departure.y1.value_or(segment.y1));
        segment.w = CSng(departure.w.value_or(segment.w));
    }
    return segment;
}

/// True where x, the right end of segment i, belongs to it.
bool ownsItsEnd(const ChartCurve& curve, std::size_t i) {
    if (i + 2 == curve.nodes.size())
        return !curve.lastIsOpen;
    return curve.nodeOnItsLeft && curve.nodes[i + 1].x == *curve.nodeOnItsLeft;
}

void readCurve(const Chart& chart, Integer krzywa, Single x, Single& y, bool& ok) {
    ok = true;
    const ChartCurve* curve = nullptr;
    for (const ChartCurve& one : chart.curves)
        if (one.krzywa == krzywa)
            curve = &one;
    if (!curve) {
        y = 0;
        return;
    }
    const bool belowFirst = krzywa != curveWithoutLowerLimit && x < CSng(curve->nodes.front().x);
    if (belowFirst || x > CSng(curve->nodes.back().x)) {
        ok = false;
        return;
    }
    for (std::size_t i = 0; i + 1 < curve->nodes.size(); ++i) {
        const Segment segment = segmentOf(chart, *curve, i);
        if (x < segment.to || (x == segment.to && ownsItsEnd(*curve, i))) {
            y = segment.at(x);
            return;
        }
    }
    y = 0; // x is the end of a curve whose last segment is open
}

constexpr Single fineLimit = 3; // b/c from which the curves of figure B.3 stand 0.5 apart

/// Limits of the formula, with the messages beyond them (PN-B-03215:1998, Annex B).
struct ChartLimits {
    Single greatest_p;
    Single least_q;
    Single greatest_q;
    const char16_t* aboveGreatest_p;
    const char16_t* belowLeast_q;
    const char16_t* aboveGreatest_q;
};

constexpr ChartLimits limitsB2{
    3.2F,
    0.2F,
    7,
    u"Ferna za blisko podparcia - poza zakresem ważności wzoru (b/c>3.2)!",
    u"Ferna za blisko podparcia - poza zakresem ważności wzoru (a/c<0.2)!",
    u"Ferna za blisko podparcia\nlub zbyt długi fragment blachy (a/c>7)!"};

constexpr ChartLimits limitsB3{
    5.5F,
    0.1F,
    12.25F,
    u"Ferna za blisko podparcia - poza zakresem ważności wzoru (b/c>5.5)!",
    u"Ferna za blisko podparcia - poza zakresem ważności wzoru (a/c<0.1)!",
    u"Ferna za blisko podparcia\nlub zbyt długi fragment blachy (a/c>12.25)!"};

QString beyondLimits(int check, Single p, Single q) {
    const ChartLimits& limits = check == 7 ? limitsB2 : limitsB3;
    if (p < 1)
        return QStringLiteral("Ferna poza obliczanym fragmentem blachy (b/c<1)!");
    if (p > limits.greatest_p)
        return QString::fromUtf16(limits.aboveGreatest_p);
    if (q < limits.least_q)
        return QString::fromUtf16(limits.belowLeast_q);
    if (q > limits.greatest_q)
        return QString::fromUtf16(limits.aboveGreatest_q);
    return {};
}

} // namespace

void Wsp_rysB2(Integer krzywa, Single x, Single& y, bool& ok) {
    readCurve(chartB2(), krzywa, x, y, ok);
}

void Wsp_rysB3(Integer krzywa, Single x, Single& y, bool& ok) {
    readCurve(chartB3(), krzywa, x, y, ok);
}

ChartRow chartRow(int check, Single p) {
    const bool coarse = check == 8 && p >= fineLimit;
    const Double step = coarse ? 0.5 : 0.2;
    const Extended base = coarse ? 3 : 1;
    ChartRow row{};
    row.L = storedSingle(std::floor((Extended{p} - base) / Extended{step}) * Extended{step} + base);
    row.U = storedSingle(Extended{row.L} + Extended{step});
    // Not rounded before Int: the Singles of 1.4, 1.8, 2.6 and 2.8 give the number below.
    row.k1 = CInt(Int(Double{row.L} * 10));
    row.k2 = CInt(Int(Double{row.U} * 10));
    return row;
}

ChartReading Interpoluj_wykres(int check, Integer b, Integer a, Integer c) {
    ChartReading reading;
    reading.p = chartRatio(b, c);
    reading.q = chartRatio(a, c);
    reading.message = beyondLimits(check, reading.p, reading.q);
    if (!reading.message.isEmpty())
        return reading;
    reading.row = chartRow(check, reading.p);
    const auto read = check == 7 ? Wsp_rysB2 : Wsp_rysB3;
    bool ok = true;
    read(reading.row.k1, reading.q, reading.y1, ok);
    if (ok)
        read(reading.row.k2, reading.q, reading.y2, ok);
    if (!ok) {
        reading.message = QStringLiteral("Stosunek a/c poza zakresem dopuszczonym przez PN");
        return reading;
    }
    const Double d = check == 8 && reading.row.k2 >= 30 ? 0.5 : 0.2;
    reading.y = chartCoefficient(reading.y1, reading.y2, reading.p, reading.row.L, d);
    return reading;
}

} // namespace ferna
