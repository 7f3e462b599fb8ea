#include "config/Settings.h"

#include "base/CodePage.h"
#include "base/Failure.h"
#include "config/Profile.h"
#include "config/ProgramFiles.h"

#include <array>

namespace etiquetas {

namespace {

struct Ajuste {
    TextView chave;
    TextView valor;
};

// The serial rate stands as "9800" on purpose: it is only stored.
constexpr std::array<Ajuste, 7> ajustes_da_impressora{{{u"Linguagem", u"ZPL"},
                                                       {u"Porta", u"Paralela"},
                                                       {u"PortaSerial", u"Com1"},
                                                       {u"ConfiguracaoPortaSerial", u"9800,N,8,1"},
                                                       {u"PortaParalela", u"LPT1"},
                                                       {u"PortaParalelaUSB", u"LPT1"},
                                                       {u"NomeCompartilhamento", u"Zebra"}}};

// All bytes of the file; none where it is missing or can't be read.
std::string bytesOf(const Files& files, TextView file) {
    std::string bytes;
    skip([&] { bytes = files.read(file); });
    return bytes;
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

void GravaIni(Files& files, TextView section, TextView key, TextView value, TextView file) {
    skip([&] {
        // A file that is there but can't be read must not be replaced by one with a single key.
        const std::string bytes = files.fileExists(file) ? files.read(file) : std::string();
        files.replace(file, withProfileValue(bytes, toCodePage1252(section), toCodePage1252(key),
                                             toCodePage1252(value)));
    });
}

void deleteCommandFile(Files& files) {
    const Text comando = joined(files, files.programFolder(), command_file);
    skip([&] {
        if (files.fileExists(comando)) {
            files.deleteFile(comando);
        }
    });
}

void gera_ini_base(Files& files, TextView /*file*/) {
    const Text file = settingsPath(files);
    const auto grava = [&](TextView chave, TextView valor) {
        GravaIni(files, ini_section::impressora, chave, valor, file);
    };
    for (const Ajuste& ajuste : ajustes_da_impressora) {
        grava(ajuste.chave, ajuste.valor);
    }
    grava(u"Path", files.programFolder());
    grava(u"TipoOculta", u"3");
    deleteCommandFile(files);
}

} // namespace etiquetas
