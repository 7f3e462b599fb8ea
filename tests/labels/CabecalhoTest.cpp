#include "labels/Cabecalho.h"

#include "support/FakePlatform.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

namespace {

class CabecalhoTest : public testing::Test, protected Workbench {};

TEST_F(CabecalhoTest, StripOfEachType) {
    form.Margem_oculta1 = 3;
    form.Margem_oculta11 = 45;
    form.Mx4045_1 = 2;
    form.Mx4045_2 = 60;
    form.Margem_oculta2 = form.Mx4045 = 9; // no top margin counts here
    for (const TextView order : {u"77", u""}) {
        form.txtarquivo.text = order;
        Imprime_CabecAlho(form, u"oculta");
        Imprime_CabecAlho(form, u"fc");
        Imprime_CabecAlho(form, u"OUTRA"); // draws nothing
    }
    EXPECT_TRUE(matchesGolden(machine.transcript, "cabecalho"));
}

} // namespace

} // namespace etiquetas::test
