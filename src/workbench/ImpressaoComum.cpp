#include "workbench/ImpressaoComum.h"

#include "labels/LabelJob.h"
#include "labels/PriceBlock.h"
#include "platform/PrintSurface.h"

#include <utility>

namespace etiquetas {

void avisa(FrmPadrao& form, Text text, Symbol symbol) {
    skip([&] { form.platform.messages.show({.text = std::move(text), .symbol = symbol}); });
}

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
    if (form.LogoBrisakoOk && form.LogoLumiraOk) {
        return Course::goes_on;
    }
    avisa(form, u"O Arquivo do Logotipo não foi localizado", Symbol::stop);
    return Course::ends;
}

Course testa_codigo(FrmPadrao& form, const TextField& code) {
    if (!isBlank(code.text)) {
        return Course::goes_on;
    }
    avisa(form, u"Código Inválido");
    return Course::ends;
}

Course testa_descricao(FrmPadrao& form, const TextField& description) {
    if (!isBlank(description.text)) {
        return Course::goes_on;
    }
    avisa(form, u"Selecione o Item que deseja Imprimir");
    return Course::ends;
}

void seleciona_escolhida(FrmPadrao& form) {
    skip([&] { SelecionaImpressora(form, form.CMBPRINTER.text); });
}

void prepara_desenho(FrmPadrao& form) {
    skip([&] { form.platform.surface.FontName(form.NomeFonte); });
    escolhe_marca(form);
}

void inicia_trabalho_40x20(FrmPadrao& form) {
    seleciona_escolhida(form);
    form.coluna_etiqueta = 1;
    prepara_superficie(form, pagina_oculta);
    skip([&] { le_margens(form, margens_oculta); });
    prepara_desenho(form);
}

void encerra_trabalho(FrmPadrao& form) {
    skip([&] { form.platform.surface.EndDoc(); });
    skip([&] { SelecionaImpressora(form, form.lblprinterdefault.caption); });
}

void completa_preco(FrmPadrao& form) {
    if (isBlank(form.txtpreco.text)) {
        form.txtpreco.text = sem_preco;
    }
}

TextView ref3(const FrmPadrao& form) {
    constexpr std::size_t length = 3;
    return right(form.txtcodigo.text, length);
}

Text descricao_cor(const FrmPadrao& form) {
    return Text(trimmed(form.txtdescricao.text)).append(u" ").append(trimmed(form.txtcor.text));
}

Course testa_codigos_do_tamanho(FrmPadrao& form) {
    if (!isBlank(form.lblmaster.caption) && !isBlank(form.lblbarra.caption)) {
        return Course::goes_on;
    }
    avisa(form, u"Erro - 1012 - Código Master - Contate Suporte ");
    return Course::ends;
}

} // namespace etiquetas
