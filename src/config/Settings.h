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

/// Keys of the section "Config": what the Workbench keeps from run to run.
namespace config_key {
inline constexpr TextView company = u"Referencia";
inline constexpr TextView order = u"arquivo";
inline constexpr TextView addition = u"Lote";
inline constexpr TextView darkness = u"Intensidade";
inline constexpr TextView speed = u"Velocidade";
inline constexpr TextView kind = u"Tipo";
} // namespace config_key

/// Keys of the section "Impressora": the printer parameters.
namespace printer_key {
inline constexpr TextView language = u"Linguagem";
inline constexpr TextView port = u"Porta";
inline constexpr TextView serial_port = u"PortaSerial";
inline constexpr TextView serial_settings = u"ConfiguracaoPortaSerial";
inline constexpr TextView parallel_port = u"PortaParalela";
inline constexpr TextView usb_port = u"PortaParalelaUSB";
inline constexpr TextView share = u"NomeCompartilhamento";
inline constexpr TextView order_folder = u"Path";
inline constexpr TextView hidden_format = u"TipoOculta";
inline constexpr TextView box_front_format = u"TipoFrenteCaixa";
} // namespace printer_key

/// The hidden format of a new installation, and of a settings file without one.
inline constexpr TextView default_hidden_format = u"3";

/// Path of the settings file in the program's folder; a file that is there keeps the case of its
/// name. Formed anew by every reader and writer just before use.
[[nodiscard]] Text settingsPath(const Files& files);

/// The value of one key, whole whatever its length, read as code page 1252; the default where
/// file, section or key is missing.
[[nodiscard]] Text LeIni(const Files& files, TextView file, TextView section, TextView key,
                         TextView default_value);

/// Whether the settings file is there in UTF-16: it can't be used then, and is never written to.
[[nodiscard]] bool settingsAreUtf16(const Files& files);

/// Writes the value of one key as code page 1252 and replaces the file in one step; creates what is
/// missing. A file that can't be read or written, or is in UTF-16, stays as it is, without a word.
void GravaIni(Files& files, TextView section, TextView key, TextView value, TextView file);

/// Deletes the command file of the direct printer channel from the program's folder, where there is
/// one; one that can't be deleted stays.
void deleteCommandFile(Files& files);

/// Writes the settings of a new installation and deletes the command file that an earlier one may
/// have left. The path is formed anew, so that the argument is not looked at.
void gera_ini_base(Files& files, TextView file);

} // namespace etiquetas
