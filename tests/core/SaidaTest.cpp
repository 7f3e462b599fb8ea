#include "workbench/Saida.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

TEST(SaidaTest, StoresSixKeysAndEndsTheProcess) {
    for (const bool refuses : {false, true}) {
        Workbench bench;
        bench.machine.files.refuses_writes = refuses;
        bench.form.txtcliente.text = u"AÇO";
        bench.form.txtarquivo.text = u"77";
        bench.form.txtlote.text = u"5";
        bench.form.cmbintensidade.text = u"i";
        bench.form.cmbvelocidade.text = u"v";
        bench.form.cmbtipo.type(u"Oculta");
        cmd_sair_click(bench.form);
        EXPECT_TRUE(bench.machine.process.ended);
        EXPECT_EQ(bench.machine.files.bytes[u"/programa/Varesko.ini"],
                  refuses ? ""
                          : "[Config]\r\nReferencia=A\xC7O\r\narquivo=77\r\nLote=5\r\n"
                            "Intensidade=i\r\nVelocidade=v\r\nTipo=Oculta\r\n");
    }
}

} // namespace etiquetas::test
