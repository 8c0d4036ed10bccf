#pragma once

#include "editable/document.h"
#include "package/odf_names.h"

#include <QByteArray>

namespace ferna::editable::odt {

using namespace package::odf;

/// The part with the named styles, the A4 page and its header.
QByteArray styles(const Document& document);

} // namespace ferna::editable::odt
