#include "desktop/machine/PrintSystem.h"

#include <cups/cups.h>

namespace etiquetas {

// The toolkit hands jobs to CUPS and does not tell of its refusals. CUPS keeps them for each
// thread.
QString printSystemError() {
    if (cupsLastError() < IPP_STATUS_ERROR_BAD_REQUEST) {
        return {};
    }
    const char* const told = cupsLastErrorString();
    return told != nullptr ? QString::fromLocal8Bit(told) : QString::number(cupsLastError());
}

} // namespace etiquetas
