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

    Single at(Single x) const { return curveCoefficient(x0, y0, y1, w, x); }
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

const ChartCurve* curveOf(const Chart& chart, Integer krzywa) {
    for (const ChartCurve& one : chart.curves)
        if (one.krzywa == krzywa)
            return &one;
    return nullptr;
}

bool isOutside(const ChartCurve& curve, Single x) {
    const bool belowFirst =
        curve.krzywa != curveWithoutLowerLimit && x < CSng(curve.nodes.front().x);
    return belowFirst || x > CSng(curve.nodes.back().x);
}

/// The segment that x belongs to; none at the end of a curve whose last segment is open.
std::optional<Segment> segmentAt(const Chart& chart, const ChartCurve& curve, Single x) {
    for (std::size_t i = 0; i + 1 < curve.nodes.size(); ++i) {
        const Segment segment = segmentOf(chart, curve, i);
        if (x < segment.to || (x == segment.to && ownsItsEnd(curve, i)))
            return segment;
    }
    return std::nullopt;
}

void readCurve(const Chart& chart, Integer krzywa, Single x, Single& y, bool& ok) {
    ok = true;
    const ChartCurve* const curve = curveOf(chart, krzywa);
    if (curve != nullptr && isOutside(*curve, x)) {
        ok = false;
        return;
    }
    const auto segment = curve != nullptr ? segmentAt(chart, *curve, x) : std::nullopt;
    y = segment ? segment->at(x) : 0;
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

std::optional<ChartPiece> chartPiece(int check, Integer krzywa, Single x) {
    const Chart& chart = check == 7 ? chartB2() : chartB3();
    const ChartCurve* const curve = curveOf(chart, krzywa);
    if (curve == nullptr || isOutside(*curve, x))
        return std::nullopt;
    const auto segment = segmentAt(chart, *curve, x);
    return segment ? std::optional(ChartPiece{segment->x0, segment->y0, segment->y1, segment->w})
                   : std::nullopt;
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
