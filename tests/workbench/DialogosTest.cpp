#include "workbench/Dialogos.h"

#include "support/FakePlatform.h"
#include "support/Messages.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class DialogosTest : public testing::Test, protected LoadedWorkbench {};

TEST_F(DialogosTest, EachKindHasItsMarginDialog) {
    struct Kind {
        TextView tipo;
        bool opens_hidden, opens_box, opens_pack;
    };
    form.cmb_referencia.text = u"P";
    for (const Kind& kind :
         {Kind{.tipo = tipo::oculta, .opens_hidden = true},
          Kind{.tipo = tipo::acessorio, .opens_hidden = true},
          Kind{.tipo = tipo::frente_de_caixa, .opens_box = true},
          Kind{.tipo = tipo::corrugado, .opens_pack = true}, Kind{.tipo = u"Outro"}}) {
        SCOPED_TRACE(utf8(kind.tipo));
        form.cmbtipo.type(Text(kind.tipo));
        cmd_calibra_click(form);
        EXPECT_EQ(form.FrmMargensOcultaZPL2.open, kind.opens_hidden);
        EXPECT_EQ(form.FrmMargensCxZPL45.open, kind.opens_box);
        EXPECT_EQ(form.FrmMargensPackZPL.open, kind.opens_pack);
        for (MargensDialog* const dialog :
             {&form.FrmMargensOcultaZPL2, &form.FrmMargensCxZPL45, &form.FrmMargensPackZPL}) {
            EXPECT_FALSE(dialog->to_front);
            dialog->open = false;
        }
    }
}

TEST_F(DialogosTest, OpenDialogComesToTheFrontAsItStands) {
    MargensDialog& dialog = form.FrmMargensCxZPL45;
    form.cmb_referencia1.text = u"P";
    cmd_calibra_click(form);
    EXPECT_EQ(dialog.txtmargem2.text, u"40"); // loaded
    dialog.txtmargem1.text = u"typed";
    cmd_calibra_click(form);
    EXPECT_TRUE(dialog.to_front);
    EXPECT_EQ(dialog.txtmargem1.text, u"typed");
}

TEST_F(DialogosTest, WithoutAnOrderThereIsNothingToCalibrate) {
    form.cmb_referencia.text = form.cmb_referencia1.text = u" ";
    cmd_calibra_click(form);
    EXPECT_EQ(machine.log, Log{messageBox("Selecione um Pedido para realizar a Calibragem...")});
    EXPECT_FALSE(form.FrmMargensCxZPL45.open);
}

} // namespace etiquetas::test
