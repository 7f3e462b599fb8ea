#include "workbench/Saida.h"

#include "config/Settings.h"
#include "platform/Process.h"
#include "workbench/FrmPadrao.h"

namespace etiquetas {

void cmd_sair_click(FrmPadrao& form) {
    Files& files = form.platform.files;
    const Text file = caminho_ini(files);
    const auto grava = [&](TextView key, TextView value) {
        GravaIni(files, secao::config, key, value, file);
    };
    grava(u"Referencia", form.txtcliente.text);
    grava(u"arquivo", form.txtarquivo.text);
    grava(u"Lote", form.txtlote.text);
    grava(u"Intensidade", form.cmbintensidade.text);
    grava(u"Velocidade", form.cmbvelocidade.text);
    grava(u"Tipo", form.cmbtipo.text);
    form.platform.process.end();
}

} // namespace etiquetas
