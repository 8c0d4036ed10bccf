#pragma once

#include "runtime/numbers.h"

#include <QString>

#include <optional>

namespace ferna {

/// Reads one curve of figure B.2 (`Wsp_rysB3`: B.3) of PN-B-03215:1998, Annex B. `krzywa` is ten
/// times b/c, `x` is a/c. `y` takes the coefficient; it is 0 with `ok` true where the chart has no
/// such curve. `ok` is false and `y` untouched where `x` lies outside the curve.
void Wsp_rysB2(Integer krzywa, Single x, Single& y, bool& ok);
void Wsp_rysB3(Integer krzywa, Single x, Single& y, bool& ok);

/// The neighbouring curves of b/c = p: their b/c as Singles and their numbers.
struct ChartRow {
    Single L;
    Single U;
    Integer k1;
    Integer k2;
};

/// `check` is 7 (figure B.2) or 8 (figure B.3).
ChartRow chartRow(int check, Single p);

/// The piece of a curve that a coefficient was read from: a straight line from (x0, y0), rising by
/// y1 - y0 over the width w. Not everywhere the ends of the piece, where the table departs from
/// them.
struct ChartPiece {
    Single x0;
    Single y0;
    Single y1;
    Single w;
};

/// The piece that serves a/c = `x` on a curve of figure B.2 (check 7) or B.3 (check 8); none where
/// the coefficient is not read from one.
std::optional<ChartPiece> chartPiece(int check, Integer krzywa, Single x);

/// Coefficient y between the curves, with the values on the way to it.
struct ChartReading {
    Single p = 0; ///< b/c
    Single q = 0; ///< a/c
    ChartRow row{};
    Single y1 = 0; ///< coefficients of the neighbouring curves
    Single y2 = 0;
    Single y = 0;
    QString message; ///< why there is no coefficient; empty where there is one
};

/// The two-way interpolation of check 7 or 8 for a fragment of width b with the anchor at a and c,
/// all in mm and not 0. Every variable on the way is a Single.
ChartReading Interpoluj_wykres(int check, Integer b, Integer a, Integer c);

} // namespace ferna
