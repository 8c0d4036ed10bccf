#include "fuzzing.h"
#include "pages/metafile.h"

#include <QImage>
#include <QPainter>

using namespace ferna;
using namespace ferna::fuzzing;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    startQt();
    return 0;
}

// A metafile, played as the results form plays it.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes = bytesOf(data, size);
    runs([&] {
        const Metafile picture = Metafile::fromBytes(bytes);
        require(!picture.sizeMm().isEmpty(), "a picture has a size");
        QImage screen(120, 160, QImage::Format_RGB32);
        screen.fill(Qt::white);
        QPainter painter(&screen);
        picture.paint(painter, QRectF(screen.rect()));
    });
    return 0;
}
