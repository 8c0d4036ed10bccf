#include "runtime/picture_twin.h"

#include <QCryptographicHash>

namespace ferna {

namespace {

QByteArray markOf(const QByteArray& bitmap) {
    return "<!-- sha1 " + QCryptographicHash::hash(bitmap, QCryptographicHash::Sha1).toHex()
           + " -->\n";
}

} // namespace

QString twinPath(const QString& bitmap) {
    const qsizetype point = bitmap.lastIndexOf(u'.');
    return bitmap.first(point < 0 ? bitmap.size() : point) + QStringLiteral(".svg");
}

QByteArray twinOf(const QByteArray& svg, const QByteArray& bitmap) {
    return svg + markOf(bitmap);
}

bool isTwinOf(const QByteArray& svg, const QByteArray& bitmap) {
    return svg.endsWith(markOf(bitmap));
}

} // namespace ferna
