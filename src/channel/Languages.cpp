#include "channel/Languages.h"

#include <algorithm>
#include <array>

namespace etiquetas {

namespace {

constexpr std::array<const PrinterLanguage*, 2> languages{&zpl, &ppla};

} // namespace

const PrinterLanguage& languageNamed(TextView name) {
    const auto* const found =
        std::find_if(languages.begin(), languages.end(),
                     [&](const PrinterLanguage* language) { return language->name == name; });
    return found == languages.end() ? ppla : **found;
}

} // namespace etiquetas
