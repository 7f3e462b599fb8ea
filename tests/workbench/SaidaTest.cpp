#include "workbench/Saida.h"

#include "support/FakePlatform.h"
#include "support/SettingsText.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class SaidaTest : public testing::Test, protected Workbench {};

TEST_F(SaidaTest, SixFieldsAreStoredBeforeTheEnd) {
    form.txtcliente.text = u"AÇO";
    form.txtlote.text = u"5";
    form.cmbintensidade.text = u"i";
    form.cmbvelocidade.text = u"v";
    cmd_sair_click(form);
    EXPECT_EQ(machine.files.bytes[settings_file], settingsBytes(uR"([Config]
Referencia=AÇO
arquivo=1400050831
Lote=5
Intensidade=i
Velocidade=v
Tipo=Frente de Caixa
)"));
    EXPECT_EQ(machine.log.back(), "exit");
}

TEST_F(SaidaTest, ProcessEndsEvenWhereNothingCanBeStored) {
    machine.failing = {"write"};
    cmd_sair_click(form);
    EXPECT_EQ(machine.log, Log{"exit"});
}

} // namespace etiquetas::test
