#include "workbench/Saida.h"

#include "support/FakePlatform.h"
#include "support/Golden.h"
#include "support/ProgramGolden.h"
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
    EXPECT_TRUE(matchesGolden(programLines(machine.files.bytes[settings_file]), "saida"));
    EXPECT_EQ(machine.log.back(), "exit");
}

TEST_F(SaidaTest, ProcessEndsEvenWhereNothingCanBeStored) {
    machine.failing = {"write"};
    cmd_sair_click(form);
    EXPECT_EQ(machine.log, Log{"exit"});
}

} // namespace etiquetas::test
