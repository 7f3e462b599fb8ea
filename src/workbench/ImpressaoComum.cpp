#include "workbench/ImpressaoComum.h"

#include <utility>

namespace etiquetas {

bool confirma(FrmPadrao& form, Text question) {
    Answer answer = Answer::no;
    skip([&] {
        answer = form.platform.messages.show(
            {.text = std::move(question), .symbol = Symbol::question, .buttons = Buttons::yes_no});
    });
    return answer == Answer::yes;
}

Course pergunta_cor(FrmPadrao& form, const TextField& colour) {
    const bool may_print =
        !isBlank(colour.text) || confirma(form, u"O Item está sem COR!, Imprimir mesmo assim");
    return may_print ? Course::goes_on : Course::ends;
}

Course testa_logos(FrmPadrao& form) {
    if (tem_logos(form)) {
        return Course::goes_on;
    }
    avisa(form.platform.messages, aviso::sem_logotipo, Symbol::stop);
    return Course::ends;
}

Course testa_codigo(FrmPadrao& form, const TextField& code) {
    if (!isBlank(code.text)) {
        return Course::goes_on;
    }
    avisa(form.platform.messages, u"Código Inválido");
    return Course::ends;
}

Course testa_descricao(FrmPadrao& form, const TextField& description) {
    if (!isBlank(description.text)) {
        return Course::goes_on;
    }
    avisa(form.platform.messages, aviso::sem_item);
    return Course::ends;
}

void inicia_trabalho_40x20(FrmPadrao& form) {
    seleciona_escolhida(form);
    form.coluna_etiqueta = 1;
    usa_milimetros(form);
    define_pagina(form, pagina_oculta);
    le_margens(form, margens_oculta);
    usa_fonte(form);
    escolhe_marca(form);
}

Course testa_codigos_do_tamanho(FrmPadrao& form) {
    if (!isBlank(form.lblmaster.caption) && !isBlank(form.lblbarra.caption)) {
        return Course::goes_on;
    }
    avisa(form.platform.messages, u"Erro - 1012 - Código Master - Contate Suporte ");
    return Course::ends;
}

} // namespace etiquetas
