#pragma once

#include "live/palette.h"

#include <QString>

class QPainter;
class QRectF;

namespace ferna::live {

/// How a utilisation stands to 1.
enum class Verdict { Kept, Close, Exceeded };

/// From 95 % on a check is close to its limit, above 100 % it is exceeded. What is no number is
/// exceeded.
Verdict verdictOf(Double utilisation);

/// "spełniony", "bliski granicy", "przekroczony".
QString verdictWord(Verdict verdict);

/// Green, amber or red, to be read on the paper of the theme.
QColor verdictColour(Verdict verdict, Theme theme);

/// Draws the sign of a verdict, which says the same without its colour: a tick in a circle, a
/// triangle with a stroke, a cross in a square.
void drawVerdict(QPainter& painter, const QRectF& in, Verdict verdict, const QColor& colour);

/// A utilisation as "93,1 %"; `above` beyond what anyone compares.
QString utilisationText(Double utilisation, const QString& above = QStringLiteral("ponad 999 %"));

} // namespace ferna::live
