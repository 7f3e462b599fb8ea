#include "support/PrintWorkbench.h"

namespace etiquetas::test {

class ImpressaoTest : public testing::Test, protected PrintWorkbench {
  protected:
    ImpressaoTest() { load(tipo::oculta); }
};

TEST_F(ImpressaoTest, ClosesTheMarginDialogs) {
    form.FrmMargensOcultaZPL2.open = true;
    form.FrmMargensCxZPL45.open = true;
    form.FrmMargensPackZPL.open = true;
    print();
    EXPECT_FALSE(form.FrmMargensOcultaZPL2.open);
    EXPECT_FALSE(form.FrmMargensCxZPL45.open);
    EXPECT_FALSE(form.FrmMargensPackZPL.open);
}

TEST_F(ImpressaoTest, ItemStaysOnNoAndWhereNoneIsChosen) {
    print(Answer::no);
    EXPECT_EQ(form.txtcodigo.text, u"3104527");
    expectLeft(2, 3);
    form.cmb_referencia.type(u"3104527 | TENIS CASUAL | AZUL");
    print(Answer::yes);
    EXPECT_EQ(form.txtcodigo.text, u"");
    expectLeft(2, 3);
}

// Of the lines the one at the item's position goes.
TEST_F(ImpressaoTest, ItemsFollowOnYesAndTheLastLeavesSlotsAndPromotion) {
    print(Answer::yes);
    expectLeft(1, 2);
    EXPECT_EQ(form.List1.text, lineOf({.quantity = u"1", .size = u"35"}));
    EXPECT_EQ(form.cmb_referencia.text, u"3104527 | TENIS CASUAL | RUBRO");
    EXPECT_EQ(form.txtcor.text, u"RUBRO");
    EXPECT_EQ(form.txtnumero[0].text, u"1");
    EXPECT_EQ(form.txtnumero[1].text, u"");
    print(Answer::yes);
    expectLeft(0, 1);
    for (const TextField* field : {&form.txtcodigo, &form.txtcor, &form.txtsemana,
                                   &form.txtbandeira, &form.txtpreco, &form.txtdescricao}) {
        EXPECT_EQ(field->text, u"") << utf8(field->caption);
    }
    EXPECT_EQ(form.txtnumero[0].text, u"1");
    EXPECT_EQ(form.txtpromocao.text, u"OFERTA");
}

TEST_F(ImpressaoTest, FirstItemFollowsTheSecond) {
    form.cmb_referencia.choose(1);
    print(Answer::yes);
    EXPECT_EQ(form.cmb_referencia.text, u"3104527 | TENIS CASUAL | AZUL");
    EXPECT_EQ(form.List1.entries,
              (std::vector<Text>{lineOf({.quantity = u"1"}),
                                 lineOf({.quantity = u"1", .colour = u"RUBRO"})}));
}

TEST_F(ImpressaoTest, CartonsAreOnTheirPanelAndTheKindDecidesWhichItemIsNext) {
    load(tipo::corrugado);
    form.cmbtipo.type(Text(tipo::oculta));
    print(Answer::yes);
    EXPECT_EQ(machine.told("Volume:").size(), 3U);
    EXPECT_EQ(form.cmb_referencia1.entries.size(), 2U);
    EXPECT_EQ(form.cmb_referencia.entries.size(), 1U);
}

TEST_F(ImpressaoTest, UnknownKindAndCartonsOnTheOtherPanelAreOnlyAskedAbout) {
    form.cmbtipo.type(u"Outro");
    print();
    EXPECT_EQ(machine.transcript, Log{closing_question});
    load(tipo::corrugado);
    load(tipo::oculta);
    form.cmbtipo.type(Text(tipo::corrugado));
    print(Answer::yes);
    EXPECT_EQ(machine.transcript, Log{closing_question});
    EXPECT_EQ(form.cmb_referencia1.entries.size(), 1U);
    EXPECT_EQ(form.cmb_referencia.entries.size(), 2U);
}

TEST_F(ImpressaoTest, NoItemIsLoadedUnderTheCaptionOfCartons) {
    form.Frame1.caption = tipo::corrugado;
    print(Answer::yes);
    EXPECT_EQ(form.cmb_referencia.text, u"3104527 | TENIS CASUAL | RUBRO");
    EXPECT_EQ(form.txtcor.text, u"");
}

TEST_F(ImpressaoTest, NextItemWithoutItsLineIsPassedOver) {
    load(tipo::frente_de_caixa);
    form.List1.clear();
    print(Answer::yes);
    EXPECT_EQ(form.cmb_referencia.entries.size(), 1U);
    load(tipo::corrugado);
    form.List1.clear();
    print(Answer::yes);
    EXPECT_EQ(form.cmb_referencia1.entries.size(), 1U);
}

// A quantity beyond 16 bits, and a volume that is no number.
TEST_F(ImpressaoTest, NextItemThatFailsToLoadIsPassedOver) {
    load(tipo::frente_de_caixa);
    form.List1.entries = {u"", lineOf({.quantity = u"40000", .colour = u"RUBRO"})};
    print(Answer::yes);
    EXPECT_EQ(form.txtcodigo.text, u"3104527");
    load(tipo::corrugado);
    form.List1.entries = {
        u"", cartonLineOf({.master = u"M2", .description = u"BOTA", .volumes = u"8/x"})};
    print(Answer::yes);
    EXPECT_EQ(form.txtcodigo1.text, u"M2");
}

} // namespace etiquetas::test
