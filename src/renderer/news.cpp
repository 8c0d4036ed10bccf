#include "renderer/news.h"

#include "protocol/renderer_news.h"

#include <QtGlobal>

#include <cstdio>

namespace ferna::renderer {

void tell(const QByteArray& news) {
    if (!qEnvironmentVariableIsSet(news::variable))
        return;
    std::fputs(news.constData(), stdout);
    std::fflush(stdout);
}

} // namespace ferna::renderer
