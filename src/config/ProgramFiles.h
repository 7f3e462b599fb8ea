#pragma once

#include "base/Text.h"

namespace etiquetas {

// What stands in the program's folder, by name.

/// The settings file.
inline constexpr TextView settings_file = u"Varesko.ini";

/// The job of the direct printer channel: a program in the printer's language.
inline constexpr TextView job_file = u"epltemp.prn";

/// The command file that takes that job to the printer's port.
inline constexpr TextView command_file = u"IMPRIMIR.BAT";

/// The logos of the two banners.
inline constexpr TextView brisako_logo = u"brisako.jpg";
inline constexpr TextView lumira_logo = u"lumira.jpg";

/// The folder of the product photographs.
inline constexpr TextView photograph_folder = u"imagens";

} // namespace etiquetas
