#include "base/Version.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class InicioTest : public testing::Test, protected Workbench {};

TEST_F(InicioTest, FieldsStandAsDesignedBeforeTheLoad) {
    EXPECT_EQ(form.txtarquivo.text, u"1400050831");
    EXPECT_EQ(form.LBLBRISAKO.caption, u"BRISA KO");
    EXPECT_EQ(form.txtbarra.text, u"Text1");
    EXPECT_EQ(form.frentecaixa.caption, u"40_45_2");
    EXPECT_EQ(form.lbllinguagem.caption, u"Label17");
    EXPECT_EQ(form.lblporta.caption, u"Label17");
    EXPECT_EQ(form.LBLPORTAPARELELA.caption, u"LPT1");
    EXPECT_EQ(form.Label7[13].caption, u"27");
    EXPECT_TRUE(form.TXTPARES.locked);
    EXPECT_FALSE(form.Frame3.visible || form.Frame2.visible);
    EXPECT_FALSE(form.FrmParametroImpressora.FrameUSB.visible);
}

TEST_F(InicioTest, CaptionTellsTheVersion) {
    FrmPadrao_load(form);
    std::ostringstream caption;
    caption << "Etiquetas Lumira [Versão: " << version_major << '.' << version_minor << '.'
            << version_patch << ']';
    EXPECT_EQ(utf8(form.Caption), caption.str());
}

TEST_F(InicioTest, SettingsInUtf16AreToldBehindAllOtherSteps) {
    const Text settings = u"/programa/Varesko.ini";
    machine.files.bytes = {{settings, "\xFF\xFE"}};
    FrmPadrao_load(form);
    EXPECT_EQ(machine.log[machine.log.size() - 2], "pointer normal");
    EXPECT_TRUE(machine.log.back().starts_with("message exclamation ok [ATENÇÃO!!!] O arquivo"));
    EXPECT_NE(machine.log.back().find(utf8(settings)), std::string::npos);
}

} // namespace etiquetas::test
