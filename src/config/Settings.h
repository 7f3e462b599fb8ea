#pragma once

#include "base/Text.h"
#include "platform/Files.h"

namespace etiquetas {

/// Sections of the settings file.
namespace ini_section {
inline constexpr TextView config = u"Config";
inline constexpr TextView impressora = u"Impressora";
inline constexpr TextView margens = u"MargemOcultaZebra";
} // namespace ini_section

/// Path of the settings file in the program's folder; a file that is there keeps the
/// case of its name. Formed anew by every reader and writer just before use.
[[nodiscard]] Text settingsPath(const Files& files);

/// The value of one key, whole whatever its length, read as code page 1252; the default where
/// file, section or key is missing.
[[nodiscard]] Text LeIni(const Files& files, TextView file, TextView section, TextView key,
                         TextView default_value);

/// Writes the value of one key as code page 1252 and replaces the file in one step; creates what is
/// missing. A file that can't be written stays as it is, and nobody is told.
void GravaIni(Files& files, TextView section, TextView key, TextView value, TextView file);

/// Deletes the command file of the direct printer channel from the program's folder,
/// where there is one; one that can't be deleted stays.
void deleteCommandFile(Files& files);

/// Writes the settings of a new installation and deletes the command file that an earlier one may
/// have left. The path is formed anew, so that the argument is not looked at.
void gera_ini_base(Files& files, TextView file);

} // namespace etiquetas
