#include "renderer/paper/print_queue.h"

#ifdef FERNA_CUPS
#include <cups/cups.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#endif

namespace ferna::renderer {

#ifdef FERNA_CUPS

namespace {

/// What the server says of a queue.
class Queue {
public:
    explicit Queue(const QString& name)
        : queue_(cupsGetNamedDest(CUPS_HTTP_DEFAULT, name.toUtf8().constData(), nullptr)) {}
    ~Queue() {
        if (queue_ != nullptr)
            cupsFreeDests(1, queue_);
    }
    Queue(const Queue&) = delete;
    Queue& operator=(const Queue&) = delete;

    bool isThere() const { return queue_ != nullptr; }
    QByteArray option(const char* name) const {
        return queue_ == nullptr ? nullptr
                                 : cupsGetOption(name, queue_->num_options, queue_->options);
    }

private:
    cups_dest_t* queue_;
};

const QString unreachable = QStringLiteral("drukarka jest nieosiągalna");

struct NetworkDevice {
    QByteArray host;
    int port;
};

/// The place in the network of a printer with that address; empty for one of another kind.
std::optional<NetworkDevice> networkDevice(const QByteArray& address) {
    std::array<char, 32> scheme{};
    std::array<char, 256> user{};
    std::array<char, 256> host{};
    std::array<char, 1024> resource{};
    int port = 0;
    const auto lengthOf = [](const auto& text) { return static_cast<int>(text.size()); };
    if (httpSeparateURI(HTTP_URI_CODING_ALL, address.constData(), scheme.data(), lengthOf(scheme),
                        user.data(), lengthOf(user), host.data(), lengthOf(host), &port,
                        resource.data(), lengthOf(resource))
        < HTTP_URI_STATUS_OK)
        return std::nullopt;
    constexpr std::array<std::string_view, 6> kinds{"socket", "lpd",  "ipp",
                                                    "ipps",   "http", "https"};
    constexpr int ofSockets = 9100; // where the address says none
    const bool isKnown = std::find(kinds.begin(), kinds.end(), scheme.data()) != kinds.end();
    if (!isKnown || host.front() == '\0')
        return std::nullopt;
    return NetworkDevice{host.data(), port > 0 ? port : ofSockets};
}

/// True where no server answers; the queue may be there all the same.
bool isServerSilent() {
    http_t* const server = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC,
                                        cupsEncryption(), 1, 3000, nullptr);
    if (server == nullptr)
        return true;
    httpClose(server);
    return false;
}

} // namespace

QString queueRefusal(const QString& name) {
    const Queue queue(name);
    if (!queue.isThere())
        return isServerSilent() ? QStringLiteral("serwer wydruku nie odpowiada")
                                : QStringLiteral("nie ma takiej kolejki wydruku");
    return queue.option("printer-is-accepting-jobs") == "false"
               ? QStringLiteral("kolejka nie przyjmuje zadań")
               : QString();
}

QString queueObstacle(const QString& name) {
    const Queue queue(name);
    const QByteArray reasons = queue.option("printer-state-reasons");
    if (queue.option("printer-state") == "5" || reasons.contains("paused")) // 5: stopped
        return QStringLiteral("kolejka jest wstrzymana");
    if (reasons.contains("offline") || reasons.contains("connecting-to-device")
        || reasons.contains("timed-out"))
        return unreachable;
    return {};
}

QString deviceObstacle(const QString& name) {
    constexpr int patience = 2000; // ms
    const QByteArray server = cupsServer();
    if (!server.startsWith('/') && server != "localhost")
        return {};
    const std::optional<NetworkDevice> device = networkDevice(Queue(name).option("device-uri"));
    if (!device)
        return {};
    http_addrlist_t* const places = httpAddrGetList(device->host.constData(), AF_UNSPEC,
                                                    QByteArray::number(device->port).constData());
    int connection = -1;
    const bool answers =
        places != nullptr && httpAddrConnect2(places, &connection, patience, nullptr) != nullptr;
    if (answers)
        ::close(connection);
    httpAddrFreeList(places);
    return answers ? QString() : unreachable;
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

bool isWaiting(const QString& name, int job) {
    cups_job_t* jobs = nullptr;
    const int count = cupsGetJobs(&jobs, name.toUtf8().constData(), 0, CUPS_WHICHJOBS_ACTIVE);
    const bool waits = std::any_of(jobs, jobs + std::max(count, 0),
                                   [job](const cups_job_t& active) { return active.id == job; });
    cupsFreeJobs(std::max(count, 0), jobs);
    return waits;
}

#else

QString queueRefusal(const QString&) {
    return {};
}
QString queueObstacle(const QString&) {
    return {};
}
QString deviceObstacle(const QString&) {
    return {};
}
int lastJobOf(const QString&) {
    return -1;
}
bool isWaiting(const QString&, int) {
    return false;
}

#endif

} // namespace ferna::renderer
