#include "desktop/machine/PrintSystem.h"

#include <QLibrary>

namespace etiquetas {

using namespace Qt::StringLiterals;

// The toolkit hands jobs to CUPS and does not tell of its refusals. CUPS keeps them for each
// thread; it is there wherever the toolkit's printing is, but no part of what the program is built
// with.
QString printSystemError() {
    constexpr int first_error = 0x0400; // of the status codes of IPP (RFC 8011)
    constexpr int version = 2;
    QLibrary cups(u"cups"_s, version);
    const auto status = reinterpret_cast<int (*)()>(cups.resolve("cupsLastError"));
    const auto text = reinterpret_cast<const char* (*)()>(cups.resolve("cupsLastErrorString"));
    if (status == nullptr || text == nullptr || status() < first_error) {
        return {};
    }
    const char* const told = text();
    return told != nullptr ? QString::fromLocal8Bit(told) : QString::number(status());
}

} // namespace etiquetas
