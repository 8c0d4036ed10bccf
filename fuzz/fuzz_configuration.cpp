#include "design/configuration.h"
#include "design/start_up.h"
#include "fuzzing.h"
#include "runtime/text_file.h"

using namespace ferna;
using namespace ferna::fuzzing;

namespace {

QByteArray saved(Stan& stan) {
    const Folder& folder = Folder::instance();
    Zapisz_cfg(stan, folder.path("saved.cfg"), folder.write("W_X.txt", "0, 1\r\n"));
    return readFileWhole(folder.path("saved.cfg"));
}

} // namespace

// The last task: what could be read can be shown and saved, and what was saved reads back as the
// same task.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Folder& folder = Folder::instance();
    const QString path = folder.write("Ferna.cfg", bytesOf(data, size));
    Stan stan;
    stan.opcje.Nazwa_projektu = QStringLiteral("before");
    if (!runs([&] { Czytaj_cfg(stan, path); })) {
        require(stan.opcje.Nazwa_projektu == u"before", "a refused configuration changes nothing");
        return 0;
    }
    (void)startFields(stan);
    const QByteArray first = saved(stan);
    Stan again;
    Czytaj_cfg(again, folder.path("saved.cfg"));
    require(again.opcje.Nazwa_projektu == stan.opcje.Nazwa_projektu, "the project keeps its name");
    require(again.plyta.Dlug_plyty_mm == stan.plyta.Dlug_plyty_mm
                && again.plyta.Szer_plyty_mm == stan.plyta.Szer_plyty_mm,
            "the plate keeps its size");
    require(again.materialy.Stal_nazwa == stan.materialy.Stal_nazwa,
            "the user's steel keeps its name");
    return 0;
}
