#include "desktop/machine/PrintSystem.h"

#include "desktop/machine/cups/QueueJobs.h"

#include <QPrinterInfo>

#include <cups/cups.h>
#include <filesystem>
#include <netinet/in.h>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>
#include <utility>

namespace etiquetas {

namespace {

// A queue may have several sets of options, each named behind a slash. Jobs go to the queue.
QString queueOf(const QPrinterInfo& printer) {
    return printer.printerName().section(u'/', 0, 0);
}

class CupsQueue final : public PrintQueue {
  public:
    explicit CupsQueue(const QPrinterInfo& printer)
        : PrintQueue(printer), name_(queueOf(printer)), head_(PrintHead::ofQueue(name_)) {}

    [[nodiscard]] int resolution() const override { return document_resolution; }
    [[nodiscard]] std::unique_ptr<DotJob> dotJob(const QString& title) const override {
        return head_ ? std::make_unique<RasterJob>(QueueDocument(name_, title), *head_) : nullptr;
    }
    [[nodiscard]] std::unique_ptr<DocumentJob> documentJob(const QString& title) const override {
        return std::make_unique<PdfJob>(QueueDocument(name_, title), document_resolution);
    }

  private:
    static constexpr int document_resolution = 1200; // that of the toolkit's own documents

    QString name_;
    std::optional<PrintHead> head_;
};

// Where CUPS answers: a socket in the file system, or a port of some machine.
struct PrintServer {
    std::string_view name;
    int port = 0;
};

template <typename Address>
const Address& as(const sockaddr_storage& address) {
    return reinterpret_cast<const Address&>(address);
}

bool leadsTo(const PrintServer& server, int file) {
    sockaddr_storage peer{};
    socklen_t size = sizeof peer;
    if (getpeername(file, reinterpret_cast<sockaddr*>(&peer), &size) != 0) {
        return false; // no connection
    }
    switch (peer.ss_family) {
    case AF_UNIX:
        return server.name == &as<sockaddr_un>(peer).sun_path[0];
    case AF_INET:
        return ntohs(as<sockaddr_in>(peer).sin_port) == server.port;
    case AF_INET6:
        return ntohs(as<sockaddr_in6>(peer).sin6_port) == server.port;
    default:
        return false;
    }
}

} // namespace

std::unique_ptr<PrintQueue> findQueue(const QString& name) {
    const auto printer = QPrinterInfo::printerInfo(name);
    return printer.isNull() ? nullptr : std::make_unique<CupsQueue>(printer);
}

void breakOffPrintSystem() {
    const PrintServer server{cupsServer(), ippPort()};
    std::error_code none;
    for (const auto& open : std::filesystem::directory_iterator("/dev/fd", none)) {
        const int file = std::stoi(open.path().filename().string());
        if (leadsTo(server, file)) {
            shutdown(file, SHUT_RDWR);
        }
    }
}

} // namespace etiquetas
