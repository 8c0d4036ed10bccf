#include "renderer/paper.h"

#include "runtime/module_file.h"
#include "runtime/run_time_error.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>

namespace ferna::renderer {

namespace {

Paper& loaded() {
    const QString file = moduleFile(QStringLiteral("libferna_paper.so"));
    if (!QFileInfo::exists(file))
        throw RunTimeError(error::NoObject, QStringLiteral("brak modułu druku i dokumentów PDF ")
                                                + QDir::toNativeSeparators(file));
    QLibrary module(file);
    module.setLoadHints(QLibrary::PreventUnloadHint); // Qt is started in it
    const auto make = reinterpret_cast<PaperFactory>(module.resolve(paperFactory));
    if (make == nullptr)
        throw RunTimeError(error::NoObject, module.errorString());
    return *make();
}

} // namespace

Paper& paper() {
    static Paper& module = loaded();
    return module;
}

} // namespace ferna::renderer
