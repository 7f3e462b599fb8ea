#include "labels/Cabecalho.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

TEST(CabecalhoTest, StripOfEachType) {
    Workbench bench;
    FrmPadrao& form = bench.form;
    form.Margem_oculta1 = 1;
    form.Margem_oculta11 = 50;
    form.Margem_oculta2 = 9;
    form.Mx4045_1 = 2;
    form.Mx4045_2 = 60;
    form.coluna_etiqueta = 2;
    form.txtarquivo.text = u"77";
    bench.machine.surface.ScaleMode(ScaleMode::millimetres);
    const std::string font = "print Franklin Gothic Medium ";
    const Log hidden{font + "10 bold 4 6 in 6: Pedido: 77", font + "10 bold 56 6 in 6: Pedido: 77",
                     "page"};
    const Log front{font + "12 bold 5 6 in 6: Pedido: ", font + "12 bold 8 6 in 6: 77",
                    font + "12 bold 63 6 in 6: Pedido: ", font + "12 bold 66 6 in 6: 77", "page"};
    using Case = std::tuple<TextView, Log>;
    for (const auto& [type, lines] :
         {Case{u"OCULTA", hidden}, {u"oculta", hidden}, {u"fc", front}, {u"OUTRA", {}}}) {
        bench.machine.log.clear();
        Imprime_CabecAlho(form, type);
        EXPECT_EQ(bench.machine.logged({"print", "page"}), lines) << utf8(type);
    }
    EXPECT_EQ(form.coluna_etiqueta, 2);
}

} // namespace etiquetas::test
