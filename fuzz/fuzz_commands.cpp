#include "fuzzing.h"
#include "pages/emf_writer.h"
#include "pages/metafile.h"
#include "protocol/renderer_files.h"
#include "renderer/layout.h"

#include <QImage>
#include <QPainter>

#include <cmath>

using namespace ferna;
using namespace ferna::fuzzing;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    startQt();
    QImage picture(30, 20, QImage::Format_RGB32);
    picture.fill(Qt::gray);
    require(picture.save(Folder::instance().path("Ferrob.bmp")), "a picture lies in the folder");
    return 0;
}

// Print commands, the frame's in front of a line "====" and the body's behind it, through the whole
// road: records, pages, metafile, screen.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray text = bytesOf(data, size);
    const QByteArray border("====\n");
    const qsizetype at = text.indexOf(border);
    // The renderer opens any path that stands there; the fuzzer must not read foreign files.
    if (text.contains("/") || text.contains("\\"))
        return 0;
    const Folder& folder = Folder::instance();
    Job job;
    job.framePath = folder.write(wyd::frameFile, at < 0 ? text : text.left(at));
    job.bodyPath = folder.write(wyd::bodyFile, at < 0 ? text : text.mid(at + border.size()));
    job.folder = folder.path("");
    runs([&] {
        wyd::Complaints complaints;
        const pages::Report report = renderer::compose(job, complaints);
        require(!report.pages.empty(), "a report has a page");
        for (const pages::Page& page : report.pages)
            for (const pages::Text& words : page.texts)
                require(std::isfinite(words.baseline.x()) && std::isfinite(words.baseline.y()),
                        "every text has a place");
        const QByteArray bytes = pages::emfOfAllPages(report);
        const Metafile picture = Metafile::fromBytes(bytes);
        QImage screen(60, 80, QImage::Format_RGB32);
        QPainter painter(&screen);
        picture.paint(painter, QRectF(screen.rect()));
    });
    return 0;
}
