#include "support/ModAddFonte.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

TEST(ModAddFonteTest, MissingFacesAreTold) {
    using Case = std::tuple<std::vector<Text>, std::string, std::string>;
    const Text all = u"Estrangelo Edessa,Franklin Gothic Medium,Calibri,Malgun Gothic Semilight,";
    for (const auto& [faces, failing, missing] :
         {Case{{u"calibri", u" ESTRANGELO EDESSA ", u"Malgun Gothic Semilight",
                u"Franklin Gothic Medium"},
               "",
               ""},
          {{u"Estrangelo Edessa", u"Calibri Light", u"Franklin Gothic Medium"},
           "",
           "Calibri,Malgun Gothic Semilight,"},
          {{}, "", utf8(all)},
          {{u"Calibri"}, "faces", utf8(all)}}) {
        FakePlatform machine;
        machine.surface.faces = faces;
        machine.surface.failing = failing;
        VerificaFontes(machine.surface, machine.pointer, machine.messages);
        const Log told{"none, ok, : Atenção: Instale as seguintes fontes: " + missing};
        EXPECT_EQ(machine.messages.shown, missing.empty() ? Log() : told);
        EXPECT_EQ(machine.logged({"pointer"}), (Log{"pointer busy", "pointer normal"}));
        EXPECT_EQ(machine.log.back().starts_with("message"), !missing.empty());
    }
}

} // namespace etiquetas::test
