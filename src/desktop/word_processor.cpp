#include "desktop/word_processor.h"

#include "runtime/module_file.h"
#include "runtime/run_time_error.h"

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

namespace {

/// A program that was built without the word processor's development files has no module; the word
/// processor itself may well be there.
[[noreturn]] void noModule(const QString& module) {
    throw RunTimeError(error::NoObject,
                       QStringLiteral("brak modułu zapisu dokumentów ")
                           + QDir::toNativeSeparators(module)
                           + QStringLiteral(" (program zbudowany ze źródeł: trzeba zainstalować "
                                            "pakiet libreoffice-dev i zbudować program od nowa; "
                                            "program z pakietu: zainstalować pakiet ferna "
                                            "ponownie)"));
}

} // namespace

std::unique_ptr<WordProcessor> openWordProcessor(const WordProcessorPlace& place) {
    const QString module =
        place.module.isEmpty() ? moduleFile(QStringLiteral("libferna_writer.so")) : place.module;
    if (!QFileInfo::exists(module))
        noModule(module);
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
