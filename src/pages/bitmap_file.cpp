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
static_assert(bitmapHeaders == fileHeader + 40);

bool isBitmap(QByteArrayView bytes) {
    return bytes.size() >= 6 && bytes.startsWith("BM");
}

/// Whole number of the headers at that byte.
template <typename Whole>
Whole at(QByteArrayView bytes, qsizetype place) {
    return qFromLittleEndian<Whole>(bytes.data() + place);
}

bool isCutShort(QByteArrayView bytes, qsizetype size) {
    return isBitmap(bytes) && size < at<quint32>(bytes, 2);
}

/// What the headers of a bitmap of 24 bits a pixel tell, its rows from below, not compressed.
struct PlainBitmap {
    qint32 width;
    qint32 height;
    qsizetype begin; // of the rows
    qsizetype stride;
};

/// Empty for another kind. `bytes` are the first of `size`.
std::optional<PlainBitmap> plainBitmap(QByteArrayView bytes, qsizetype size) {
    constexpr qint32 largest = 20'000; // pixels of a side
    if (!isBitmap(bytes) || bytes.size() < bitmapHeaders || at<quint16>(bytes, 26) != 1
        || at<quint16>(bytes, 28) != 24 || at<quint32>(bytes, 30) != 0)
        return std::nullopt;
    const qint32 width = at<qint32>(bytes, 18);
    const qint32 height = at<qint32>(bytes, 22);
    const qsizetype begin = at<quint32>(bytes, 10);
    if (width < 1 || height < 1 || width > largest || height > largest || begin < bitmapHeaders)
        return std::nullopt;
    const qsizetype stride = (qsizetype{width} * 3 + 3) / 4 * 4;
    if (size - begin < stride * height)
        return std::nullopt;
    return PlainBitmap{width, height, begin, stride};
}

/// Null where there is no memory for it.
QImage imageOf(const PlainBitmap& bitmap, const QByteArray& bytes) {
    QImage image(bitmap.width, bitmap.height, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    for (int y = 0; y < bitmap.height; ++y) {
        const auto* from = reinterpret_cast<const std::uint8_t*>(bytes.constData()) + bitmap.begin
                           + bitmap.stride * (bitmap.height - 1 - y);
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        const int last = bitmap.width - 1; // of the others a byte of the next pixel may be read too
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

QImage imageOf(const QByteArray& bytes) {
    if (isCutShort(bytes, bytes.size()))
        return {};
    if (const std::optional<PlainBitmap> bitmap = plainBitmap(bytes, bytes.size()))
        if (QImage image = imageOf(*bitmap, bytes); !image.isNull())
            return image;
    const QImage image = QImage::fromData(bytes);
    return image.isNull() ? image : opaque(image);
}

} // namespace

QImage readPicture(const QString& path) {
    try {
        return imageOf(readFileWhole(path));
    } catch (const RunTimeError&) {
        return {};
    }
}

QSize bitmapSize(QByteArrayView headers, qsizetype size) {
    if (!isCutShort(headers, size))
        if (const std::optional<PlainBitmap> bitmap = plainBitmap(headers, size))
            return {bitmap->width, bitmap->height};
    return {};
}

} // namespace ferna
