#pragma once

#include "editable/document.h"

#include <QByteArray>

namespace ferna::editable::docx {

// Names of Office Open XML (ECMA-376, transitional).
inline const QString main =
    QStringLiteral("http://schemas.openxmlformats.org/wordprocessingml/2006/main");
inline const QString relationships =
    QStringLiteral("http://schemas.openxmlformats.org/officeDocument/2006/relationships");
inline const QString wordDrawing =
    QStringLiteral("http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing");
inline const QString drawing =
    QStringLiteral("http://schemas.openxmlformats.org/drawingml/2006/main");
inline const QString picture =
    QStringLiteral("http://schemas.openxmlformats.org/drawingml/2006/picture");

/// Identifiers of the document's relations.
inline const QString headerId = QStringLiteral("header");
QString pictureId(int number);
/// Name of a picture's part, from the folder of the document's.
QString pictureName(int number);

// The parts beside the flow.
QByteArray contentTypes();
QByteArray packageRelations();
QByteArray documentRelations(int pictures);
QByteArray styles(const Document& document);
QByteArray header(const Document& document);
QByteArray settings(const Document& document);
QByteArray coreProperties(const Document& document);

} // namespace ferna::editable::docx
