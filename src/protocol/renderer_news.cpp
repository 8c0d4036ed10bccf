#include "protocol/renderer_news.h"

#include <QUrl>

namespace ferna {

namespace {

constexpr const char* opens = "okno otwarte";
constexpr const char* closes = "okno zamkniete";
constexpr const char* wrote = "zapisano ";

} // namespace

QByteArray news::windowOpens() {
    return QByteArray(opens) + '\n';
}

QByteArray news::windowCloses() {
    return QByteArray(closes) + '\n';
}

// A name may hold a line break.
QByteArray news::fileWritten(const QString& path) {
    return wrote + QUrl::toPercentEncoding(path, "/ ") + '\n';
}

void RendererNews::read(const QByteArray& output) {
    begun_ += output;
    for (qsizetype end = begun_.indexOf('\n'); end >= 0; end = begun_.indexOf('\n')) {
        readLine(begun_.left(end));
        begun_.remove(0, end + 1);
    }
}

void RendererNews::readLine(const QByteArray& line) {
    if (line == opens)
        ++windows_;
    else if (line == closes)
        windows_ = qMax(0, windows_ - 1);
    else if (line.startsWith(wrote))
        written_ += QUrl::fromPercentEncoding(line.mid(static_cast<qsizetype>(qstrlen(wrote))));
}

} // namespace ferna
