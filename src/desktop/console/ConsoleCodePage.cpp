#include "desktop/console/ConsoleCodePage.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace etiquetas {

namespace {

constexpr unsigned int utf8 = 65001; // as Windows counts code pages

// Sets the code page of the console and tells the one before.
unsigned int setCodePage([[maybe_unused]] unsigned int page) {
#ifdef Q_OS_WIN
    const unsigned int before = GetConsoleOutputCP();
    SetConsoleOutputCP(page);
    return before;
#else
    return utf8;
#endif
}

} // namespace

ConsoleCodePage::ConsoleCodePage() : before_(setCodePage(utf8)) {}

ConsoleCodePage::~ConsoleCodePage() {
    setCodePage(before_);
}

} // namespace etiquetas
