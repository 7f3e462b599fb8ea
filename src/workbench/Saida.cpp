#include "workbench/Saida.h"

#include "config/Settings.h"
#include "model/FrmPadrao.h"
#include "platform/Process.h"

namespace etiquetas {

void cmd_sair_click(FrmPadrao& form) {
    Files& files = form.platform.files;
    const Text file = settingsPath(files);
    const auto write = [&](TextView key, TextView value) {
        GravaIni(files, ini_section::config, key, value, file);
    };
    write(config_key::company, form.txtcliente.text);
    write(config_key::order, form.txtarquivo.text);
    write(config_key::addition, form.txtlote.text);
    write(config_key::darkness, form.cmbintensidade.text);
    write(config_key::speed, form.cmbvelocidade.text);
    write(config_key::kind, form.cmbtipo.text);
    form.platform.process.end();
}

} // namespace etiquetas
