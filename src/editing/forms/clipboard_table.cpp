#include "editing/forms/clipboard_table.h"

#include "tables/table_text.h"

#include <QMimeData>

namespace ferna {

QString clipboardTable(const QMimeData* data) {
    if (data == nullptr)
        return {};
    if (data->hasText())
        return data->text();
    for (const QString& format :
         {QStringLiteral("text/csv"), QStringLiteral("text/tab-separated-values")})
        if (data->hasFormat(format))
            if (const auto table = tables::tableText(data->data(format)))
                return table->text;
    return {};
}

} // namespace ferna
