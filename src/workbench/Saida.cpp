#include "workbench/Saida.h"

#include "config/Settings.h"
#include "model/FrmPadrao.h"
#include "platform/Process.h"

namespace etiquetas {

void cmd_sair_click(FrmPadrao& form) {
    Files& files = form.platform.files;
    const Text file = settingsPath(files);
    const auto grava = [&](TextView key, TextView value) {
        GravaIni(files, ini_section::config, key, value, file);
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
