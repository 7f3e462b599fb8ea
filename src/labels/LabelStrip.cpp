#include "labels/LabelStrip.h"

#include "model/FrmPadrao.h"
#include "platform/PrintSurface.h"

namespace etiquetas {

void endLabel(FrmPadrao& form) {
    constexpr std::int16_t beyond_last_column = 3;
    if (form.coluna_etiqueta >= beyond_last_column) {
        form.coluna_etiqueta = 1;
        form.platform.surface.NewPage();
    }
}

} // namespace etiquetas
