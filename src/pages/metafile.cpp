#include "pages/metafile.h"

#include "pages/emf_format.h"
#include "pages/metafile_player.h"
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QDir>

namespace ferna {

namespace {

constexpr qsizetype smallestHeader = 88;
constexpr qsizetype headerWithMicrometers = 108;
constexpr double largestSideMm = 100000;
constexpr double smallestUnitMm = 1e-5; // of any device there is
constexpr double largestUnitMm = 10;

[[noreturn]] void damaged(qsizetype offset) {
    throw RunTimeError(error::DeviceIO, QStringLiteral("uszkodzony metaplik, bajt %1").arg(offset));
}

double sideMm(qint32 millimetres, qint32 micrometres) {
    return micrometres > 0 ? micrometres / 1000.0 : millimetres;
}

} // namespace

Metafile Metafile::fromBytes(const QByteArray& bytes) {
    const emf::Reader reader(bytes);
    if (bytes.size() < smallestHeader || reader.u32(0) != emf::Header
        || reader.u32(40) != emf::signature)
        throw RunTimeError(error::DeviceIO, QStringLiteral("to nie jest metaplik EMF"));
    Metafile file;
    file.bytes_ = bytes;
    qsizetype offset = 0;
    quint32 type = 0;
    while (type != emf::Eof) {
        if (offset + 8 > bytes.size())
            damaged(offset);
        type = reader.u32(offset);
        const qsizetype size = reader.u32(offset + 4);
        if (size < 8 || size % 4 != 0 || size > bytes.size() - offset)
            damaged(offset);
        file.records_.push_back({type, offset, size});
        offset += size;
    }
    const qsizetype headerSize = file.records_.front().size;
    if (headerSize < smallestHeader)
        damaged(0);
    file.frameMm_ = QRectF(QPointF(reader.i32(24), reader.i32(28)) / 100.0,
                           QPointF(reader.i32(32), reader.i32(36)) / 100.0);
    const bool fine = headerSize >= headerWithMicrometers;
    const QSizeF device(reader.i32(72), reader.i32(76));
    const QSizeF mm(sideMm(reader.i32(80), fine ? reader.i32(100) : 0),
                    sideMm(reader.i32(84), fine ? reader.i32(104) : 0));
    const auto sensible = [](QSizeF size) {
        return !size.isEmpty() && size.width() <= largestSideMm && size.height() <= largestSideMm;
    };
    file.unitMm_ = QSizeF(mm.width() / device.width(), mm.height() / device.height());
    const auto unit = [](double size) { return size >= smallestUnitMm && size <= largestUnitMm; };
    if (!sensible(file.frameMm_.size()) || device.isEmpty() || mm.isEmpty()
        || !unit(file.unitMm_.width()) || !unit(file.unitMm_.height()))
        damaged(24);
    return file;
}

Metafile Metafile::fromFile(const QString& path) {
    const QByteArray bytes = readFileWhole(path);
    try {
        return fromBytes(bytes);
    } catch (const RunTimeError& failure) {
        throw RunTimeError(failure.number(), QDir::toNativeSeparators(path) + QStringLiteral(": ")
                                                 + failure.detail());
    }
}

void Metafile::paint(QPainter& painter, const QRectF& target) const {
    MetafilePlayer(*this, painter).play(target);
}

} // namespace ferna
