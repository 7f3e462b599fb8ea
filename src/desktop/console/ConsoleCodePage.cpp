#include "desktop/console/ConsoleCodePage.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace etiquetas {

#ifdef Q_OS_WIN
ConsoleCodePage::ConsoleCodePage() : before_(GetConsoleOutputCP()) {
    SetConsoleOutputCP(CP_UTF8);
}

ConsoleCodePage::~ConsoleCodePage() {
    SetConsoleOutputCP(before_);
}
#else
ConsoleCodePage::ConsoleCodePage() = default;
ConsoleCodePage::~ConsoleCodePage() = default;
#endif

} // namespace etiquetas
