#include "config/Settings.h"

#include "base/CodePage.h"
#include "base/Failure.h"
#include "config/Profile.h"
#include "config/ProgramFiles.h"

#include <array>

namespace etiquetas {

namespace {

struct FirstValue {
    TextView key;
    TextView value;
};

// The serial rate stands as "9800" on purpose: it is only stored.
constexpr std::array<FirstValue, 7> first_printer_values{{
    {printer_key::language, u"ZPL"},
    {printer_key::port, u"Paralela"},
    {printer_key::serial_port, u"Com1"},
    {printer_key::serial_settings, u"9800,N,8,1"},
    {printer_key::parallel_port, u"LPT1"},
    {printer_key::usb_port, u"LPT1"},
    {printer_key::share, u"Zebra"},
}};

// All bytes of the file; none where it is missing or can't be read.
std::string bytesOf(const Files& files, TextView file) {
    std::string bytes;
    skip([&] { bytes = files.read(file); });
    return bytes;
}

Failure utf16Failure(TextView file) {
    return {failure_number::file_access, u"Settings",
            Text(u"O arquivo \"").append(file).append(u"\" está em UTF-16 e não foi alterado.")};
}

} // namespace

Text settingsPath(const Files& files) {
    const Text folder = files.programFolder();
    const auto found = findFile(files, folder, settings_file);
    return found ? *found : joined(files, folder, settings_file);
}

Text LeIni(const Files& files, TextView file, TextView section, TextView key,
           TextView default_value) {
    const auto value =
        profileValue(bytesOf(files, file), toCodePage1252(section), toCodePage1252(key));
    return value ? fromCodePage1252(*value) : Text(default_value);
}

bool settingsAreUtf16(const Files& files) {
    const Text file = settingsPath(files);
    return files.fileExists(file) && isUtf16(bytesOf(files, file));
}

void GravaIni(Files& files, TextView section, TextView key, TextView value, TextView file) {
    skip([&] {
        files.update(file, [&](std::string_view bytes) {
            if (isUtf16(bytes)) {
                throw utf16Failure(file);
            }
            return withProfileValue(bytes, toCodePage1252(section), toCodePage1252(key),
                                    toCodePage1252(value));
        });
    });
}

void deleteCommandFile(Files& files) {
    const Text path = joined(files, files.programFolder(), command_file);
    skip([&] {
        if (files.fileExists(path)) {
            files.deleteFile(path);
        }
    });
}

void gera_ini_base(Files& files, TextView /*file*/) {
    const Text file = settingsPath(files);
    const auto write = [&](TextView key, TextView value) {
        GravaIni(files, ini_section::impressora, key, value, file);
    };
    for (const FirstValue& row : first_printer_values) {
        write(row.key, row.value);
    }
    write(printer_key::order_folder, files.programFolder());
    write(printer_key::hidden_format, default_hidden_format);
    deleteCommandFile(files);
}

} // namespace etiquetas
