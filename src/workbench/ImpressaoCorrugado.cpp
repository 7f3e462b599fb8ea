#include "base/Numbers.h"
#include "labels/Corrugado.h"
#include "workbench/ImpressaoRamos.h"

namespace etiquetas {

namespace {

// A margin that the settings lack is 3 mm here, whatever it was before.
void readMargins(FrmPadrao& form) {
    form.PackX = 3.0F;
    form.PackY = 3.0F;
    le_margens(form, margens_pack);
}

void printVolumes(FrmPadrao& form) {
    const std::int16_t first = toInteger16(form.cmb_vol1.text);
    const std::int16_t last = toInteger16(form.cmb_vol2.text);
    const Text& code = form.txtean.visible ? form.txtean.text : form.txtprepack.text;
    EtiPack(form, form.marca_logo, form.txtdestino1.text, form.txtarquivo.text,
            form.txtcodigo1.text, form.txtfornecedor1.text, form.txtdescricao1.text,
            form.txtcor1.text, code, form.txtgrade1.text, form.txtgrade2.text,
            form.txttotgrade.text, first, first > last ? first : last, form.txtsemana1.text);
}

} // namespace

Course imprime_corrugados(FrmPadrao& form) {
    if (pergunta_cor(form, form.txtcor1) == Course::ends ||
        testa_descricao(form, form.txtdescricao1) == Course::ends ||
        testa_codigo(form, form.txtcodigo1) == Course::ends) {
        return Course::ends;
    }
    seleciona_escolhida(form);
    readMargins(form);
    usa_milimetros(form);
    define_pagina(form, pagina_pack);
    usa_fonte(form);
    escolhe_marca(form);
    skip([&] { printVolumes(form); });
    encerra_trabalho(form);
    return Course::goes_on;
}

} // namespace etiquetas
