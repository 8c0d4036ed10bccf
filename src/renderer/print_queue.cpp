#include "renderer/print_queue.h"

#ifdef FERNA_CUPS
#include <cups/cups.h>

#include <algorithm>
#endif

namespace ferna::renderer {

#ifdef FERNA_CUPS

QString queueRefusal(const QString& name) {
    cups_dest_t* queue = cupsGetNamedDest(CUPS_HTTP_DEFAULT, name.toUtf8().constData(), nullptr);
    if (queue == nullptr)
        return QStringLiteral("nie ma takiej kolejki wydruku");
    const QByteArray accepts =
        cupsGetOption("printer-is-accepting-jobs", queue->num_options, queue->options);
    cupsFreeDests(1, queue);
    return accepts == "false" ? QStringLiteral("kolejka nie przyjmuje zadań") : QString();
}

int lastJobOf(const QString& name) {
    cups_job_t* jobs = nullptr;
    const int count = cupsGetJobs(&jobs, name.toUtf8().constData(), 0, CUPS_WHICHJOBS_ALL);
    if (count < 0)
        return -1;
    int last = 0;
    for (int i = 0; i < count; ++i)
        last = std::max(last, jobs[i].id);
    cupsFreeJobs(count, jobs);
    return last;
}

#else

QString queueRefusal(const QString&) {
    return {};
}
int lastJobOf(const QString&) {
    return -1;
}

#endif

} // namespace ferna::renderer
