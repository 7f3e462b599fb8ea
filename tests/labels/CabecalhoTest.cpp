#include "labels/Cabecalho.h"

#include "labels/LabelTest.h"

namespace etiquetas::test {

class CabecalhoTest : public LabelTest {};

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

} // namespace etiquetas::test
