#pragma once

#include "package/odf_names.h"
#include "package/package.h"
#include "sheet/sheet.h"

namespace ferna::sheet::odt {

using namespace package;

/// Width of a page's text, mm.
inline constexpr double textWidth = 175;

QString mm(double length);

/// The part with the named styles and the A4 page: the sheet's title and subject in its head,
/// program, date and "page x of y" in its foot.
QByteArray styles(const Sheet& sheet);

} // namespace ferna::sheet::odt
