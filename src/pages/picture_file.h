#pragma once

#include <QByteArray>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <functional>

class QPainter;

namespace ferna::pages {

/// A picture that is drawn the same on anything: in a rectangle of 0.01 mm units, white paper.
struct DrawnPicture {
    QString title; ///< of the file's own data
    QSizeF size;   ///< mm
    std::function<void(QPainter& painter, const QRectF& place)> draw;
};

/// The bytes of a picture: "png" with 300 dots an inch, "svg" or "pdf". Error 52 for another
/// ending, 57 where it cannot be drawn.
QByteArray bytesOf(const DrawnPicture& picture, const QString& ending);

/// True where the file's ending is one of these.
bool isPictureFile(const QString& path);

/// Writes a picture in the format of the file's ending. Errors as above and of `writeFileWhole`.
void savePicture(const DrawnPicture& picture, const QString& path);

/// The formats as a save question takes them.
inline const QString pictureFilter = QStringLiteral(
    "Rysunek PNG (*.png)|*.png|Rysunek SVG (*.svg)|*.svg|Dokument PDF (*.pdf)|*.pdf");

} // namespace ferna::pages
