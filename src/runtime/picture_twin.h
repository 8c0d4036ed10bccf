#pragma once

#include <QByteArray>
#include <QString>

namespace ferna {

// A bitmap of the report may have a twin beside it: the same picture as vectors (SVG), which the
// renderer draws in its place. The twin names the bitmap that it belongs to by the bitmap's sum, so
// that a bitmap which somebody has put in the place of ours is not hidden by an older twin.

/// File name of a bitmap's twin: the same with the ending ".svg".
QString twinPath(const QString& bitmap);

/// The vectors with the mark of their bitmap behind them. Both are contents of files.
QByteArray twinOf(const QByteArray& svg, const QByteArray& bitmap);

/// True where the vectors carry the mark of this bitmap.
bool isTwinOf(const QByteArray& svg, const QByteArray& bitmap);

} // namespace ferna
