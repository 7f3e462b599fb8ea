#include "channel/EtiquetasDeTeste.h"

#include "channel/Languages.h"
#include "channel/MargensLinguagem.h"

namespace etiquetas {

namespace {

TextView textOf(const std::optional<TextField>& field) {
    return field ? TextView(field->text) : TextView();
}

} // namespace

PrinterProgram testLabelProgram(const FrmPadrao& form, const TestLabel& label,
                                const MargensLinguagem& dialog) {
    PrinterProgram program = label.heading(form);
    for (std::size_t i = 0; i < dialog.txtmargem1.size(); ++i) {
        label.writeColumn({.index = i,
                           .left = dialog.txtmargem1[i].text,
                           .top = textOf(dialog.txtmargemsuperior),
                           .code = textOf(dialog.txtcodigo)},
                          program);
    }
    program.insert(program.end(), label.ending.begin(), label.ending.end());
    return program;
}

} // namespace etiquetas
