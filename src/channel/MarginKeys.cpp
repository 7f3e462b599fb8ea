#include "channel/MarginKeys.h"

#include "config/Settings.h"

namespace etiquetas {

std::optional<Text> storedMargin(const Files& files, const MarginKey& margin) {
    const Text settings = settingsPath(files);
    if (!files.fileExists(settings)) {
        return {};
    }
    return LeIni(files, settings, ini_section::margens, margin.key, {});
}

void storeMargin(Files& files, const MarginKey& margin, TextView value) {
    GravaIni(files, ini_section::margens, margin.key, value, settingsPath(files));
}

} // namespace etiquetas
