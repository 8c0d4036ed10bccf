#pragma once

#include "sheet/odt_styles.h"

namespace ferna::sheet::odt {

/// The part with the sheet's content. The pictures that it shows, named "Pictures/1.png" and so on,
/// are appended to `pictures`.
QByteArray content(const Sheet& sheet, std::vector<Part>& pictures);

} // namespace ferna::sheet::odt
