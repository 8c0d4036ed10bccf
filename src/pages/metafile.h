#pragma once

#include <QByteArray>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <vector>

class QPainter;

namespace ferna {

/// An enhanced metafile (EMF) in memory, painted sharp at any scale. It plays the records that the
/// page renderer writes - texts, lines, rectangles, bitmaps - and passes others over.
class Metafile {
public:
    /// Checks header and record chain. Error 57 where the bytes are no metafile or are damaged
    /// (the detail says at which byte).
    static Metafile fromBytes(const QByteArray& bytes);
    /// The same for a file; also the errors of `readFileWhole`. The detail names the file.
    static Metafile fromFile(const QString& path);

    /// Size of the picture in mm.
    QSizeF sizeMm() const { return frameMm_.size(); }

    /// Paints the picture's frame into `target`, in the painter's present coordinates. A record
    /// whose contents do not fit its length is passed over.
    void paint(QPainter& painter, const QRectF& target) const;

private:
    friend class MetafilePlayer;

    struct Record {
        quint32 type;
        qsizetype offset; ///< of the record's first byte
        qsizetype size;   ///< in bytes, a multiple of 4, at least 8
    };

    QByteArray bytes_;
    std::vector<Record> records_;
    QRectF frameMm_;
    QSizeF unitMm_; ///< size of a device unit in mm
};

} // namespace ferna
