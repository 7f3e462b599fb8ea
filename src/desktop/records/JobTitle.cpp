#include "desktop/records/JobTitle.h"

#include "desktop/machine/QtText.h"
#include "model/FrmPadrao.h"

#include <QStringList>

#include <vector>

namespace etiquetas {

bool isTestPrint(const FrmPadrao& form) {
    return form.FrmMargensOcultaZPL2.open || form.FrmMargensCxZPL45.open ||
           form.FrmMargensPackZPL.open;
}

QString jobTitle(const FrmPadrao& form) {
    const bool is_carton = !form.Frame1.visible;
    const Text kind = is_carton ? Text(tipo::corrugado) : form.cmbtipo.text;
    const std::vector<Text> item =
        is_carton ? std::vector{form.txtcodigo1.text, form.txtdescricao1.text, form.txtcor1.text}
                  : std::vector{form.txtcodigo.text, form.txtdescricao.text, form.txtcor.text};
    QStringList words{isTestPrint(form) ? QStringLiteral("Teste") : QString(), toQString(kind),
                      toQString(form.txtarquivo.text)};
    for (const Text& word : item) {
        words << toQString(word);
    }
    return words.join(u' ').simplified();
}

} // namespace etiquetas
