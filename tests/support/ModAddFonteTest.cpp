#include "support/ModAddFonte.h"

#include "support/FakePlatform.h"
#include "support/Messages.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class ModAddFonteTest : public testing::Test, protected FakePlatform {
  protected:
    Log check() {
        VerificaFontes(printers, *this, *this);
        return log;
    }
};

TEST_F(ModAddFonteTest, FacesAreFoundInAnyCaseAndWithBlanks) {
    EXPECT_EQ(check(), (Log{"pointer busy", "faces", "pointer normal"}));
}

TEST_F(ModAddFonteTest, MissingFacesAreNamed) {
    printers.faces = {u"Estrangelo Edessa", u"Calibri Light", u"Franklin Gothic Medium"};
    EXPECT_EQ(check().back(),
              messageBox("Atenção: Instale as seguintes fontes: Calibri,Malgun Gothic Semilight,"));
}

TEST_F(ModAddFonteTest, SurfaceWithoutFacesLacksThemAll) {
    failing = {"faces"};
    EXPECT_EQ(check(),
              (Log{"pointer busy", "pointer normal",
                   messageBox("Atenção: Instale as seguintes fontes: Estrangelo Edessa,Franklin "
                              "Gothic Medium,Calibri,Malgun Gothic Semilight,")}));
}

} // namespace etiquetas::test
