#pragma once

#include "support/FakePlatform.h"
#include "support/Golden.h"

namespace etiquetas::test {

/// Labels drawn in millimetres, with logos; all have the EAN whose bars the transcript knows.
class LabelTest : public testing::Test, protected Workbench {
  protected:
    LabelTest() {
        takeLogos();
        knowEanBars(u"204455667788");
        machine.printers.ScaleMode(ScaleMode::millimetres);
        machine.forget();
    }
};

inline const TextView refused_barcode = u"20445566778"; // 11 digits

} // namespace etiquetas::test
