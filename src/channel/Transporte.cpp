#include "channel/Transporte.h"

#include "base/CodePage.h"
#include "base/Failure.h"
#include "platform/CommandStart.h"
#include "platform/Files.h"
#include "workbench/FrmPadrao.h"

namespace etiquetas {

namespace {

// The bytes of a text file, each line ended by CR LF.
std::string bytes_de(const std::vector<Text>& linhas) {
    Text texto;
    for (const Text& linha : linhas) {
        texto.append(linha).append(u"\r\n");
    }
    return toCodePage1252(texto);
}

// The command file for the port of the Workbench. A printer that is not on the parallel port is
// reached through its share, which the port is mapped to. The job file is named without a folder:
// the command file runs in its own.
std::vector<Text> linhas_do_comando(const FrmPadrao& form, FimDoComando fim) {
    const Text& porta = form.LBLPORTAPARELELA.caption;
    std::vector<Text> linhas;
    if (upperCase(form.lblporta.caption) != u"PARALELA") {
        const TextView compartilhamento = trimmed(form.lblcompartilhamento.caption);
        linhas.push_back(u"net use " + porta + u": /delete");
        linhas.push_back(
            (u"net use " + porta + u": \\\\127.0.0.1\\").append(compartilhamento).append(u" /yes"));
    }
    linhas.push_back(u"type epltemp.prn > " + porta);
    if (fim == FimDoComando::com_avanco) {
        linhas.back() += u'\n';
    }
    return linhas;
}

} // namespace

void envia_programa(FrmPadrao& form, const Programa& programa, FimDoComando fim) {
    Files& files = form.platform.files;
    const Text pasta = files.programFolder();
    const Text comando = joined(files, pasta, u"IMPRIMIR.BAT");
    skip([&] { files.replace(joined(files, pasta, u"epltemp.prn"), bytes_de(programa)); });
    skip([&] {
        if (!files.fileExists(comando)) {
            files.replace(comando, bytes_de(linhas_do_comando(form, fim)));
        }
    });
    skip([&] { form.platform.commands.start(comando); });
}

Text com_aspas(TextView linha) {
    return replaceAll(linha, u".", u"\"");
}

} // namespace etiquetas
