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

/// The same in the HTML that a rich text of the toolkit reads: formulas in one line, columns below
/// one another, and instead of pictures the names "0", "1" ... of those that are appended to
/// `pictures`.
QString flatHtmlOf(const Sheet& sheet, std::vector<const Picture*>& pictures);

/// A picture as an image on white, with 300 dots to the inch.
QImage imageOf(const Picture& picture);

} // namespace ferna::sheet
