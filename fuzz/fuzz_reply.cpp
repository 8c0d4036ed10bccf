#include "design/configuration.h"
#include "fuzzing.h"
#include "protocol/renderer_files.h"

using namespace ferna;
using namespace ferna::fuzzing;

// The reply of the renderer: what can be read is written and read again as the same.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString path = Folder::instance().write(wyd::replyFile, bytesOf(data, size));
    runs([&] {
        Stan stan;
        stan.opcje.Nr_strony = 7;
        const RendererReply reply = readRendererReply(path);
        takeNextPage(stan, reply);
        require(stan.opcje.Nr_strony == (reply.printed > 0 ? reply.nextPage : 7),
                "the page number comes from the reply where pages were made");
        writeReply(Folder::instance().path(""), reply.printed > 0, reply.nextPage);
        const RendererReply again = readRendererReply(path);
        require((again.printed > 0) == (reply.printed > 0) && again.nextPage == reply.nextPage,
                "a reply is read as it was written");
    });
    return 0;
}
