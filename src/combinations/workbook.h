#pragma once

#include "combinations/row_source.h"

namespace ferna::combinations {

inline constexpr qsizetype workbookMark = 4; ///< bytes by which a workbook is known

/// True for the beginning of a packed workbook, which is no text.
bool isWorkbook(QByteArrayView beginning);

/// The rows of the first sheet of a workbook (.xlsx, .ods) that is not empty, as texts: a number
/// with all its digits, of a formula the value that was saved with it. Or why it cannot be read:
/// no workbook, damaged, without a value, larger than 200 MB.
std::variant<std::unique_ptr<RowSource>, QString> openWorkbook(QIODevice& file);

} // namespace ferna::combinations
