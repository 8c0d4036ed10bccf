#pragma once

#include "pages/page.h"

class QPainter;

namespace ferna::pages {

/// Paints a page; one unit of the painter is 0.01 mm, its origin the sheet's top left corner.
void paintPage(QPainter& painter, const Page& page);

} // namespace ferna::pages
