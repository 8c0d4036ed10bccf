#include "design/language.h"
#include "fuzzing.h"

using namespace ferna;
using namespace ferna::fuzzing;

// A catalogue of texts: read whole, or refused with the old texts left in place.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString path = Folder::instance().write("Ferpl.txt", bytesOf(data, size));
    Stan stan;
    stan.Teksty(1) = QStringLiteral("before");
    stan.Teksty(CatalogueLines) = QStringLiteral("before");
    if (!runs([&] { Czytaj_teksty(stan, path); }))
        require(stan.Teksty(1) == u"before" && stan.Teksty(CatalogueLines) == u"before",
                "a refused catalogue changes no text");
    return 0;
}
