#include "workbench/Dialogos.h"

#include "support/FakePlatform.h"
#include "support/Messages.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class DialogosTest : public testing::Test, protected LoadedWorkbench {};

TEST_F(DialogosTest, EachKindHasItsMarginDialog) {
    struct Kind {
        TextView tipo;
        MargensDialog* opened;
    };
    MargensDialog* const hidden = &form.FrmMargensOcultaZPL2;
    MargensDialog* const box = &form.FrmMargensCxZPL45;
    MargensDialog* const pack = &form.FrmMargensPackZPL;
    form.cmb_referencia.text = u"P";
    for (const Kind& kind :
         {Kind{tipo::oculta, hidden}, Kind{tipo::acessorio, hidden},
          Kind{tipo::frente_de_caixa, box}, Kind{tipo::corrugado, pack}, Kind{u"Outro", nullptr}}) {
        form.cmbtipo.type(Text(kind.tipo));
        cmd_calibra_click(form);
        for (MargensDialog* const dialog : {hidden, box, pack}) {
            EXPECT_EQ(dialog->open, dialog == kind.opened) << utf8(kind.tipo);
            EXPECT_FALSE(dialog->to_front) << utf8(kind.tipo);
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
