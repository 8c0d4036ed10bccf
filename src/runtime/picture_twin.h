#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

struct XXH3_state_s;

namespace ferna {

// A bitmap of the report may have a twin beside it: the same picture as vectors (SVG), which the
// renderer draws in its place. The twin names the bitmap that it belongs to by the bitmap's sum, so
// that a bitmap which somebody has put in the place of ours is not hidden by an older twin. The sum
// is a quick one (XXH3, 128 bits): it tells pictures apart and guards nothing.

/// File name of a bitmap's twin: the same with the ending ".svg".
QString twinPath(const QString& bitmap);

/// The sum of a bitmap's bytes, formed as they come.
class PictureSum {
public:
    PictureSum();

    void add(QByteArrayView bytes);
    /// The line that ties vectors to the bitmap.
    QByteArray mark() const;

private:
    struct Free {
        void operator()(XXH3_state_s* state) const;
    };
    std::unique_ptr<XXH3_state_s, Free> state_;
};

/// The vectors with the mark of their bitmap behind them. Both are contents of files.
QByteArray twinOf(const QByteArray& svg, const QByteArray& bitmap);

/// True where the vectors carry the mark of the bitmap with this sum.
bool isTwinOf(const QByteArray& svg, const PictureSum& bitmap);
bool isTwinOf(const QByteArray& svg, const QByteArray& bitmap);

} // namespace ferna
