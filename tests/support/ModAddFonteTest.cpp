#include "support/ModAddFonte.h"

#include "support/FakePlatform.h"
#include "support/Messages.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class ModAddFonteTest : public testing::Test, protected FakePlatform {
  protected:
    void expectChecked(const Log& steps) {
        log.clear();
        VerificaFontes(printers, *this, *this);
        EXPECT_EQ(log, steps);
    }
};

TEST_F(ModAddFonteTest, FacesAreFoundInAnyCaseAndMissingOnesNamed) {
    const std::string install = "Atenção: Instale as seguintes fontes: ";
    expectChecked({"pointer busy", "faces", "pointer normal"});
    printers.faces = {u"Estrangelo Edessa", u"Calibri Light", u"Franklin Gothic Medium"};
    expectChecked({"pointer busy", "faces", "pointer normal",
                   messageBox(install + "Calibri,Malgun Gothic Semilight,")});
    failing = {"faces"};
    expectChecked({"pointer busy", "pointer normal",
                   messageBox(install + "Estrangelo Edessa,Franklin Gothic Medium,Calibri,"
                                        "Malgun Gothic Semilight,")});
}

} // namespace etiquetas::test
