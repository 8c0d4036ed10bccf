#include "pages/bitmap_file.h"

#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QPainter>
#include <QtEndian>

#include <cstdint>
#include <optional>

namespace ferna {

namespace {

constexpr qsizetype fileHeader = 14; // bytes
constexpr qsizetype headers = fileHeader + 40;

bool isBitmap(const QByteArray& bytes) {
    return bytes.size() >= 6 && bytes.startsWith("BM");
}

/// Whole number of the headers at that byte.
template <typename Whole>
Whole at(const QByteArray& bytes, qsizetype place) {
    return qFromLittleEndian<Whole>(bytes.constData() + place);
}

bool isCutShort(const QByteArray& bytes) {
    return isBitmap(bytes) && bytes.size() < at<quint32>(bytes, 2);
}

/// A bitmap of 24 bits a pixel, its rows from below, not compressed; empty for another kind.
std::optional<QImage> plainBitmap(const QByteArray& bytes) {
    constexpr qint32 largest = 20'000; // pixels of a side
    if (!isBitmap(bytes) || bytes.size() < headers || at<quint16>(bytes, 26) != 1
        || at<quint16>(bytes, 28) != 24 || at<quint32>(bytes, 30) != 0)
        return std::nullopt;
    const qint32 width = at<qint32>(bytes, 18);
    const qint32 height = at<qint32>(bytes, 22);
    const qsizetype begin = at<quint32>(bytes, 10);
    if (width < 1 || height < 1 || width > largest || height > largest || begin < headers)
        return std::nullopt;
    const qsizetype stride = (qsizetype{width} * 3 + 3) / 4 * 4;
    if (bytes.size() - begin < stride * height)
        return std::nullopt;
    QImage image(width, height, QImage::Format_RGB32);
    if (image.isNull())
        return std::nullopt;
    for (int y = 0; y < height; ++y) {
        const auto* from = reinterpret_cast<const std::uint8_t*>(bytes.constData()) + begin
                           + stride * (height - 1 - y);
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        const int last = width - 1; // of the others a byte of the next pixel may be read too
        for (int x = 0; x < last; ++x, from += 3)
            to[x] = 0xFF000000U | qFromLittleEndian<quint32>(from);
        to[last] = qRgb(from[2], from[1], from[0]);
    }
    return image;
}

/// A transparent picture stands on the white sheet.
QImage opaque(const QImage& image) {
    if (!image.hasAlphaChannel())
        return image.convertToFormat(QImage::Format_RGB32);
    QImage sheet(image.size(), QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter(&sheet).drawImage(0, 0, image);
    return sheet;
}

} // namespace

QImage readPicture(const QString& path) {
    QByteArray bytes;
    try {
        bytes = readFileWhole(path);
    } catch (const RunTimeError&) {
        return {};
    }
    if (isCutShort(bytes))
        return {};
    if (const std::optional<QImage> image = plainBitmap(bytes))
        return *image;
    const QImage image = QImage::fromData(bytes);
    return image.isNull() ? image : opaque(image);
}

} // namespace ferna
