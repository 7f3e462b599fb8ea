#include "support/Module1.h"

#include "base/Numbers.h"

namespace etiquetas {

void SelecionaTexto(TextField& field) {
    field.selection = {0, trimmed(field.text).size()};
}

KeyCode SoNumero(KeyCode key) {
    const bool passes = key == key::backspace || key == u'-' || isNumeric(key);
    return passes ? key : key::none;
}

KeyCode SoDecimal(KeyCode key) {
    const bool mark = key == u',' || key == u'.';
    return mark ? u',' : SoNumero(key);
}

} // namespace etiquetas
