#include "desktop/machine/PrintSystem.h"

#include <QLibrary>

#ifdef Q_OS_UNIX
#include <filesystem>
#include <netinet/in.h>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>
#endif

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

// The toolkit hands jobs to CUPS. That is there wherever the toolkit's printing is, but no part of
// what the program is built with.
template <typename Function>
Function* fromCups(const char* name) {
    constexpr int version = 2;
    QLibrary cups(u"cups"_s, version);
    return reinterpret_cast<Function*>(cups.resolve(name));
}

#ifdef Q_OS_UNIX
// Where the print system answers: a socket in the file system, or a port of some machine.
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
#endif

} // namespace

// The toolkit does not tell of the refusals of CUPS, which keeps them for each thread.
QString printSystemError() {
    constexpr int first_error = 0x0400; // of the status codes of IPP (RFC 8011)
    auto* const status = fromCups<int()>("cupsLastError");
    auto* const text = fromCups<const char*()>("cupsLastErrorString");
    if (status == nullptr || text == nullptr || status() < first_error) {
        return {};
    }
    const char* const told = text();
    return told != nullptr ? QString::fromLocal8Bit(told) : QString::number(status());
}

#ifdef Q_OS_UNIX
void breakOffPrintSystem() {
    auto* const name = fromCups<const char*()>("cupsServer");
    auto* const port = fromCups<int()>("ippPort");
    if (name == nullptr || port == nullptr) {
        return;
    }
    const PrintServer server{name(), port()};
    std::error_code none;
    for (const auto& open : std::filesystem::directory_iterator("/dev/fd", none)) {
        const int file = std::stoi(open.path().filename().string());
        if (leadsTo(server, file)) {
            shutdown(file, SHUT_RDWR);
        }
    }
}
#else
// Where there is no CUPS a job is handed to the system at once.
void breakOffPrintSystem() {}
#endif

} // namespace etiquetas
