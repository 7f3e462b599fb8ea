// The command file: what is written is read back, and of any text no more is read than it says.
//
// Input: a port and a share, a line each, then the text of a command file.

#include "channel/CommandFile.h"

#include "Machine.h"
#include "channel/Transporte.h"

namespace etiquetas::fuzz {

namespace {

// A command that was read is read again from its own line.
void checkText(TextView text) {
    const auto commands = readCommandFile(text);
    require(commands.size() <= text.size(), "A command takes a line");
    Text written;
    for (const PortCommand& command : commands) {
        const Text line = commandLine(command);
        require(text.size() >= line.size(), "No command comes from nowhere");
        require(readCommandLine(line) == command, "A command is read from its line");
        written.append(line).append(u"\r\n");
    }
    require(readCommandFile(written) == commands, "A command file is read as it was written");
}

// True where a name can't be mistaken for a part of a line.
bool isPlain(TextView name) {
    return name.find_first_of(u"\r\n\\>/") == TextView::npos;
}

// The road of a job: what the system writes for a port and a share is what it reads there.
void checkJob(TextView port, TextView share) {
    Machine machine;
    FrmPadrao form(machine.platform());
    form.LBLPORTAPARELELA.caption = port;
    form.lblcompartilhamento.caption = share;
    for (const TextView road : {u"PARALELA", u"USB"}) {
        form.lblporta.caption = road;
        machine.bytes.clear();
        sendProgram(form, {u"^XA", u"^XZ"}, CommandFileEnd::extra_line_feed);
        requireEqual(machine.bytes[u"/programa/epltemp.prn"], "^XA\r\n^XZ\r\n", "The job");
        const Text written = fromCodePage1252(machine.bytes[u"/programa/IMPRIMIR.BAT"]);
        const bool is_shared = road == u"USB";
        const Text used_share(trimmed(share));
        const Text mapping = u"net use " + Text(port) + u": /delete\r\nnet use " + Text(port) +
                             u": \\\\127.0.0.1\\" + used_share + u" /yes\r\n";
        requireEqual(written,
                     (is_shared ? mapping : Text()) + u"type epltemp.prn > " + Text(port) +
                         u"\n\r\n",
                     "The command file");
        if (!port.empty() && isPlain(port) && isPlain(share)) {
            require(readCommandFile(written) ==
                        portCommands(port, is_shared ? std::optional(used_share) : std::nullopt),
                    "The commands are those of the port");
        }
    }
}

} // namespace

} // namespace etiquetas::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace etiquetas;
    using namespace etiquetas::fuzz;
    std::string_view text = bytesOf(data, size);
    const Text port = fromCodePage1252(takeLine(text));
    const Text share = fromCodePage1252(takeLine(text));
    checkJob(port, share);
    checkText(fromCodePage1252(text));
    return 0;
}
