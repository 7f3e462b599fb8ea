#include "desktop/machine/PrintSystem.h"

#include <cups/cups.h>

#ifdef Q_OS_UNIX
#include <filesystem>
#include <netinet/in.h>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>
#endif

namespace etiquetas {

namespace {

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

// The toolkit hands jobs to CUPS and does not tell of its refusals. CUPS keeps them for each
// thread.
QString printSystemError() {
    if (cupsLastError() < IPP_STATUS_ERROR_BAD_REQUEST) {
        return {};
    }
    const char* const told = cupsLastErrorString();
    return told != nullptr ? QString::fromLocal8Bit(told) : QString::number(cupsLastError());
}

#ifdef Q_OS_UNIX
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
#else
// Where there is no CUPS a job is handed to the system at once.
void breakOffPrintSystem() {}
#endif

} // namespace etiquetas
