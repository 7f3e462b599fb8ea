#pragma once

#include "support/FakeFiles.h"
#include "support/ProgramGolden.h"

#include <string>

namespace etiquetas::test {

inline const Text settings_file = u"/programa/Varesko.ini";

/// The bytes of a settings file: code page 1252, each line ended by CR LF.
inline std::string settingsBytes(TextView lines) {
    return toCodePage1252(replaceAll(lines, u"\n", u"\r\n"));
}

/// Tells the lines of the settings file.
inline void tellSettings(Journal& journal, FakeFiles& files) {
    for (const std::string& line : programLines(files.bytes[settings_file])) {
        journal.tell(line);
    }
}

} // namespace etiquetas::test
