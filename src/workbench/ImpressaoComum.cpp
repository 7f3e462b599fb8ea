#include "workbench/ImpressaoComum.h"

#include <utility>

namespace etiquetas {

bool confirm(FrmPadrao& form, Text question) {
    Answer answer = Answer::no;
    skip([&] {
        answer = form.platform.messages.show(
            {.text = std::move(question), .symbol = Symbol::question, .buttons = Buttons::yes_no});
    });
    return answer == Answer::yes;
}

Course askAboutColour(FrmPadrao& form, const TextField& colour) {
    const bool may_print =
        !isBlank(colour.text) || confirm(form, u"O Item está sem COR!, Imprimir mesmo assim");
    return may_print ? Course::goes_on : Course::ends;
}

Course checkLogos(FrmPadrao& form) {
    if (hasLogos(form)) {
        return Course::goes_on;
    }
    tellOperator(form.platform.messages, notice::no_logo, Symbol::stop);
    return Course::ends;
}

Course checkCode(FrmPadrao& form, const TextField& code) {
    if (!isBlank(code.text)) {
        return Course::goes_on;
    }
    tellOperator(form.platform.messages, u"Código Inválido");
    return Course::ends;
}

Course checkDescription(FrmPadrao& form, const TextField& description) {
    if (!isBlank(description.text)) {
        return Course::goes_on;
    }
    tellOperator(form.platform.messages, notice::no_item);
    return Course::ends;
}

void beginStrips(FrmPadrao& form, const Stock& stock) {
    selectChosenPrinter(form);
    form.coluna_etiqueta = 1;
    useMillimetres(form);
    setPage(form, stock);
    readMargins(form, stock);
    useLabelFont(form);
    chooseBanner(form);
}

Course checkSizeCodes(FrmPadrao& form) {
    if (!isBlank(form.lblmaster.caption) && !isBlank(form.lblbarra.caption)) {
        return Course::goes_on;
    }
    tellOperator(form.platform.messages, u"Erro - 1012 - Código Master - Contate Suporte ");
    return Course::ends;
}

} // namespace etiquetas
