#pragma once

#include "sheet/sheet.h"

#include <QByteArray>
#include <QImage>

namespace ferna::sheet {

enum class HtmlPictures { Inside, LeftOut };

/// The sheet as one HTML file that needs nothing beside it. Every number stands in an element with
/// `data-case`, `data-symbol`, `data-value` (17 digits), `data-unit` and, where they apply,
/// `data-formula` and `data-clause`; where a number is shown again it refers to that element by
/// `data-ref`. Pictures need a QGuiApplication.
QByteArray htmlOf(const Sheet& sheet, HtmlPictures pictures = HtmlPictures::Inside);

/// A picture as an image on white, with 300 dots to the inch.
QImage imageOf(const Picture& picture);

} // namespace ferna::sheet
