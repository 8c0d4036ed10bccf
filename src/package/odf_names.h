#pragma once

#include <QString>

namespace ferna::package::odf {

// Names of OpenDocument 1.3, part 3 (OASIS).
inline const QString mimeType = QStringLiteral("application/vnd.oasis.opendocument.text");
inline const QString version = QStringLiteral("1.3");
inline const QString office = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:office:1.0");
inline const QString style = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:style:1.0");
inline const QString text = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:text:1.0");
inline const QString table = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:table:1.0");
inline const QString draw = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:drawing:1.0");
inline const QString fo =
    QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0");
inline const QString svg =
    QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0");
inline const QString meta = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:meta:1.0");
inline const QString manifest =
    QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:manifest:1.0");
inline const QString dc = QStringLiteral("http://purl.org/dc/elements/1.1/");
inline const QString xlink = QStringLiteral("http://www.w3.org/1999/xlink");

} // namespace ferna::package::odf
