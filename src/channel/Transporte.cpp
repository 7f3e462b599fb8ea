#include "channel/Transporte.h"

#include "base/CodePage.h"
#include "base/Failure.h"
#include "channel/CommandFile.h"
#include "config/ProgramFiles.h"
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

// The share that the port is mapped to. A printer on the parallel port needs none.
std::optional<Text> shareOf(const FrmPadrao& form) {
    if (upperCase(form.lblporta.caption) == u"PARALELA") {
        return {};
    }
    return Text(trimmed(form.lblcompartilhamento.caption));
}

std::vector<Text> commandLines(const FrmPadrao& form, CommandFileEnd end) {
    std::vector<Text> lines;
    for (const PortCommand& command : portCommands(form.LBLPORTAPARELELA.caption, shareOf(form))) {
        lines.push_back(commandLine(command));
    }
    if (end == CommandFileEnd::extra_line_feed) {
        lines.back() += u'\n';
    }
    return lines;
}

// Where the job can't be written, the one before it goes away, lest it be printed again.
void writeJob(Files& files, const Text& path, const PrinterProgram& program) {
    if (!skip([&] { files.replace(path, bytesOf(program)); })) {
        skip([&] { files.deleteFile(path); });
    }
}

} // namespace

void sendProgram(FrmPadrao& form, const PrinterProgram& program, CommandFileEnd end) {
    Files& files = form.platform.files;
    const Text folder = files.programFolder();
    const Text command = joined(files, folder, command_file);
    writeJob(files, joined(files, folder, job_file), program);
    skip([&] {
        if (!files.fileExists(command)) {
            files.replace(command, bytesOf(commandLines(form, end)));
        }
    });
    skip([&] { form.platform.commands.start(command); });
}

} // namespace etiquetas
