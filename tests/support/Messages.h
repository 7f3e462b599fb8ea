#pragma once

#include <string>

namespace etiquetas::test {

/// The log's line of a message box without a symbol.
inline std::string messageBox(const std::string& text) {
    return "message none ok [] " + text;
}

/// The log's line of a message box with the exclamation symbol.
inline std::string warningBox(const std::string& text, const std::string& title = "") {
    return "message exclamation ok [" + title + "] " + text;
}

} // namespace etiquetas::test
