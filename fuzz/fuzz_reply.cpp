#include "design/configuration.h"
#include "fuzzing.h"

using namespace ferna;
using namespace ferna::fuzzing;

// The reply of the renderer.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString path = Folder::instance().write("W_X.txt", bytesOf(data, size));
    runs([&] {
        Stan stan;
        stan.opcje.Nr_strony = 7;
        const RendererReply reply = readRendererReply(path);
        takeNextPage(stan, reply);
        require(stan.opcje.Nr_strony == (reply.printed > 0 ? reply.nextPage : 7),
                "the page number comes from the reply where pages were made");
    });
    return 0;
}
