#pragma once

#include "protocol/renderer_start.h"
#include "runtime/dialogs.h"

#include <functional>

namespace ferna {

class FernaWyn;

/// Where the entries of the documents lead to.
struct DocumentEntries {
    QString folder;   ///< the program folder
    Dialogs& dialogs; ///< asks where to save
    /// Runs the renderer on the job that was written, with these options in front of it.
    std::function<RendererReport(const QStringList& options)> render;
};

/// Puts into the menu "&Więcej" of the results form the report as PDF and as an editable document.
/// The form owns what it takes; to be called before it is shown.
void addDocumentEntries(FernaWyn& form, const DocumentEntries& entries);

} // namespace ferna
