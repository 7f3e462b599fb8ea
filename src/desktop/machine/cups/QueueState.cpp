#include "desktop/machine/cups/QueueState.h"

#include <array>
#include <cups/cups.h>
#include <memory>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

using Answer = std::unique_ptr<ipp_t, decltype(&ippDelete)>;

// CUPS goes by the end of the address alone.
Answer stateOf(const QByteArray& queue) {
    std::array<char, HTTP_MAX_URI> address{};
    httpAssembleURIf(HTTP_URI_CODING_ALL, address.data(), static_cast<int>(address.size()), "ipp",
                     nullptr, "localhost", ippPort(), "/printers/%s", queue.constData());
    ipp_t* const request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, address.data());
    return {cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/"), ippDelete}; // which takes the request
}

QString textOf(const Answer& answer, const char* name) {
    ipp_attribute_t* const told = ippFindAttribute(answer.get(), name, IPP_TAG_ZERO);
    return QString::fromUtf8(told != nullptr ? ippGetString(told, 0, nullptr) : nullptr);
}

} // namespace

// CUPS keeps the error for each thread.
QString printSystemError() {
    if (cupsLastError() < IPP_STATUS_ERROR_BAD_REQUEST) {
        return {};
    }
    const QString told = QString::fromLocal8Bit(cupsLastErrorString());
    return told.endsWith(u'.') ? told.chopped(1) : told;
}

QString standstillOf(const QByteArray& queue) {
    const Answer answer = stateOf(queue);
    ipp_attribute_t* const state = ippFindAttribute(answer.get(), "printer-state", IPP_TAG_ENUM);
    if (state == nullptr || ippGetInteger(state, 0) != IPP_PSTATE_STOPPED) {
        return {};
    }
    const QString message = textOf(answer, "printer-state-message");
    return message.isEmpty() ? textOf(answer, "printer-state-reasons") : message;
}

} // namespace etiquetas
