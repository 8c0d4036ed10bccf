#pragma once

#include "pages/metafile.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QHash>
#include <QPen>
#include <QPointF>
#include <QTransform>
#include <QtEndian>

#include <variant>

namespace ferna {

namespace emf {

/// Little-endian numbers at byte offsets; the caller has checked the range.
class Reader {
public:
    explicit Reader(const QByteArray& bytes) : bytes_(bytes) {}

    quint32 u32(qsizetype offset) const {
        return qFromLittleEndian<quint32>(bytes_.constData() + offset);
    }
    qint32 i32(qsizetype offset) const { return static_cast<qint32>(u32(offset)); }
    quint16 u16(qsizetype offset) const {
        return qFromLittleEndian<quint16>(bytes_.constData() + offset);
    }
    const QByteArray& bytes() const { return bytes_; }

private:
    const QByteArray& bytes_;
};

} // namespace emf

/// Plays the records of a metafile onto a painter. Lives for one painting.
class MetafilePlayer {
public:
    MetafilePlayer(const Metafile& file, QPainter& painter);
    void play(const QRectF& target);

private:
    using Object = std::variant<std::monostate, QPen, QBrush, QFont>;
    using Record = Metafile::Record;

    void step(const Record& record);
    void createObject(const Record& record);
    void createPen(const Record& record);
    void createExtendedPen(const Record& record);
    void createBrush(const Record& record);
    void createFont(const Record& record);
    void selectObject(quint32 handle);
    void selectStock(quint32 handle);
    void mapping(const Record& record);
    void lineTo(const Record& record);
    void rectangle(const Record& record);
    void polygons(const Record& record);
    void text(const Record& record);
    void bitmap(const Record& record);

    bool has(const Record& record, qsizetype bytes) const { return record.size >= bytes; }
    /// True where `length` bytes from `offset`, counted from the record's start, lie in the record.
    bool holds(const Record& record, quint32 offset, quint64 length) const;
    QPointF point(qsizetype offset) const;
    void applyMapping();

    const Metafile& file_;
    QTransform base_; ///< device units of the file to the painter
    emf::Reader reader_;
    QPainter& painter_;
    QHash<quint32, Object> objects_;
    QPointF position_;
    QColor textColor_ = Qt::black;
    quint32 textAlign_ = 0;
    quint32 mapMode_ = 1;
    QPointF windowOrigin_, viewportOrigin_;
    QPointF windowExtent_{1, 1}, viewportExtent_{1, 1};
    QPen pen_{Qt::black};
    QBrush brush_{Qt::white};
    Qt::FillRule fillRule_ = Qt::OddEvenFill;
    QFont font_;
};

} // namespace ferna
