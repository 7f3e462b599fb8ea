#include "channel/Transporte.h"

#include "base/CodePage.h"
#include "base/Failure.h"
#include "model/FrmPadrao.h"
#include "platform/CommandStart.h"
#include "platform/Files.h"

namespace etiquetas {

namespace {

// The bytes of a text file, each line ended by CR LF.
std::string bytesOf(const std::vector<Text>& lines) {
    Text text;
    for (const Text& line : lines) {
        text.append(line).append(u"\r\n");
    }
    return toCodePage1252(text);
}

// The command file for the port of the Workbench. A printer that is not on the parallel port is
// reached through its share, which the port is mapped to. The job file is named without a folder:
// the command file runs in its own.
std::vector<Text> commandLines(const FrmPadrao& form, FimDoComando end) {
    const Text& port = form.LBLPORTAPARELELA.caption;
    std::vector<Text> lines;
    if (upperCase(form.lblporta.caption) != u"PARALELA") {
        const TextView share = trimmed(form.lblcompartilhamento.caption);
        lines.push_back(u"net use " + port + u": /delete");
        lines.push_back((u"net use " + port + u": \\\\127.0.0.1\\").append(share).append(u" /yes"));
    }
    lines.push_back(u"type epltemp.prn > " + port);
    if (end == FimDoComando::com_avanco) {
        lines.back() += u'\n';
    }
    return lines;
}

// Where the job can't be written, the one before it goes away, lest it be printed again.
void writeJob(Files& files, const Text& path, const Programa& programa) {
    if (!skip([&] { files.replace(path, bytesOf(programa)); })) {
        skip([&] { files.deleteFile(path); });
    }
}

} // namespace

void sendProgram(FrmPadrao& form, const Programa& programa, FimDoComando end) {
    Files& files = form.platform.files;
    const Text folder = files.programFolder();
    const Text command = joined(files, folder, u"IMPRIMIR.BAT");
    writeJob(files, joined(files, folder, u"epltemp.prn"), programa);
    skip([&] {
        if (!files.fileExists(command)) {
            files.replace(command, bytesOf(commandLines(form, end)));
        }
    });
    skip([&] { form.platform.commands.start(command); });
}

} // namespace etiquetas
