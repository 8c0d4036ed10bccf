#include "desktop/word_processor.h"

#include "runtime/run_time_error.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>

namespace ferna {

void noWordProcessor(const QString& reason) {
    throw RunTimeError(error::NoObject,
                       reason
                           + QStringLiteral(" (dokument zapisuje LibreOffice Writer; trzeba "
                                            "zainstalować pakiet libreoffice-writer albo "
                                            "libreoffice-writer-nogui)"));
}

QString wordProcessorModule() {
    const QDir beside(QCoreApplication::applicationDirPath());
    const QString name = QStringLiteral("libferna_writer.so");
    const QString installed =
        QDir::cleanPath(beside.filePath(QStringLiteral("../lib/ferna/") + name));
    return !beside.exists(name) && QFileInfo::exists(installed) ? installed : beside.filePath(name);
}

std::unique_ptr<WordProcessor> openWordProcessor(const WordProcessorPlace& place) {
    const QString module = place.module.isEmpty() ? wordProcessorModule() : place.module;
    if (!QFileInfo::exists(module))
        noWordProcessor(QStringLiteral("brak modułu ") + QDir::toNativeSeparators(module));
    QLibrary library(module);
    // The word processor's libraries cannot be unloaded, not even at the end of the program.
    library.setLoadHints(QLibrary::PreventUnloadHint);
    if (!library.load())
        noWordProcessor(library.errorString());
    const auto make = reinterpret_cast<WordProcessorFactory>(library.resolve(wordProcessorFactory));
    if (make == nullptr)
        noWordProcessor(library.errorString());
    return std::unique_ptr<WordProcessor>(make(place));
}

} // namespace ferna
