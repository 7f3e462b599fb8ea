#pragma once

#include "base/CodePage.h"

#include <string>

namespace etiquetas::test {

inline const Text settings_file = u"/programa/Varesko.ini";

/// The bytes of a settings file: code page 1252, each line ended by CR LF.
inline std::string settingsBytes(TextView lines) {
    return toCodePage1252(replaceAll(lines, u"\n", u"\r\n"));
}

} // namespace etiquetas::test
