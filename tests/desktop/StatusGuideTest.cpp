#include "desktop/StatusGuide.h"

#include "desktop/machine/QtText.h"
#include "support/FakePlatform.h"
#include "workbench/Campos.h"
#include "workbench/Impressao.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

// An order of two items, the first of which has two sizes.
class StatusGuideTest : public testing::Test, protected LoadedWorkbench {
  protected:
    StatusGuideTest() {
        machine.files.bytes[u"/programa/77 FRENTE.TXT"] = fileOf(
            {u"LUMIRA", lineOf({.quantity = u"1"}), lineOf({.quantity = u"1", .size = u"35"}),
             lineOf({.quantity = u"1", .colour = u"RUBRO"})});
        takeLogos();
        form.CMBPRINTER.choose(1);
        form.txtarquivo.text = u"77";
    }

    void load(TextView kind) {
        form.cmbtipo.type(Text(kind));
        txtarquivo_leave(form);
    }

    void loadOrder(TextView kind) {
        load(kind);
        guide.orderRead(u"/pedidos/77 FRENTE.TXT"_s);
        guide.eventEnded(false);
    }

    void printItem() {
        machine.answer = Answer::yes;
        cmd_printacessorio_click(form);
        guide.jobEnded(printed);
        guide.eventEnded(false);
    }

    EndedJob printed{.target = {u"Zebra"_s}, .pages = 2, .labels = 1200, .delivered = true};
    StatusGuide guide{form};
};

TEST_F(StatusGuideTest, leadsThroughAnOrderAndTellsWhatWasPrintedUntilAnotherItemIsLoaded) {
    EXPECT_EQ(guide.text().order, u"Digite o número do pedido e tecle Enter"_s);
    loadOrder(tipo::oculta);
    EXPECT_EQ(guide.text(), (StatusText{.file = u"77 FRENTE.TXT"_s,
                                        .order = u"LUMIRA · item 1 de 2 · faltam 2"_s}));
    printItem();
    EXPECT_EQ(guide.text(),
              (StatusText{.file = u"77 FRENTE.TXT"_s,
                          .order = u"LUMIRA · item 2 de 2 · falta 1"_s,
                          .happened = u"Impresso em Zebra: 1.200 etiquetas, 2 páginas"_s,
                          .mood = StatusMood::done}));
    printItem();
    EXPECT_EQ(guide.text().order, u"LUMIRA · todos os itens impressos"_s);
    loadOrder(tipo::oculta);
    EXPECT_EQ(guide.text().happened, QString());
}

TEST_F(StatusGuideTest, namesTheFolderUntilAnOrderIsReadAndWarnsOfItForGood) {
    guide.tellFolder(u"criada"_s, false);
    EXPECT_EQ(guide.text().happened, u"criada"_s);
    EXPECT_EQ(guide.text().mood, StatusMood::plain);
    loadOrder(tipo::oculta);
    EXPECT_EQ(guide.text().happened, QString());
    guide.tellFolder(u"fechada"_s, true);
    loadOrder(tipo::oculta);
    EXPECT_EQ(guide.text().happened, u"fechada"_s);
    EXPECT_EQ(guide.text().mood, StatusMood::warning);
}

TEST_F(StatusGuideTest, tellsTheLineOfAnotherItemThatIsTakenOffTheOrder) {
    loadOrder(tipo::oculta);
    form.cmb_referencia.choose(1);
    cmb_referencia_leave(form);
    guide.eventEnded(false);
    EXPECT_EQ(guide.text().order, u"LUMIRA · item 2 de 2 · faltam 2"_s);
    printItem(); // the second line goes, which is of the first item
    EXPECT_TRUE(
        guide.text().happened.endsWith(u" · linha retirada: TENIS CASUAL AZUL tam. 35 (qte. 1)"_s))
        << guide.text().happened.toStdString();
    EXPECT_EQ(guide.text().mood, StatusMood::warning);
}

TEST_F(StatusGuideTest, tellsWhyThePrintCommandIsHidden) {
    loadOrder(tipo::oculta);
    load(u"oculta");
    EXPECT_EQ(guide.text().order, u"Tipo desconhecido: \"oculta\". Escolha um tipo da lista."_s);
    form.txtarquivo.text = u"99";
    load(tipo::oculta);
    EXPECT_EQ(guide.text(),
              StatusText{.order = u"Nenhum pedido carregado: digite o número e tecle Enter"_s});
}

TEST_F(StatusGuideTest, tellsOfAPickedItemUntilItsListIsLeft) {
    loadOrder(tipo::oculta);
    guide.itemPicked(toQString(form.cmb_referencia.entries.at(1)));
    EXPECT_TRUE(guide.isNotLoaded());
    form.cmb_referencia.choose(1);
    guide.eventEnded(true);
    EXPECT_TRUE(guide.isNotLoaded()) << "a key in the list";
    EXPECT_EQ(guide.text().mood, StatusMood::warning);
    guide.eventEnded(false);
    EXPECT_FALSE(guide.isNotLoaded());
}

TEST_F(StatusGuideTest, doubtsAJobThatFailedOrWasCutOffOrPrintedNothing) {
    EXPECT_EQ(guide.doubt(), u"Nenhuma etiqueta foi impressa."_s);
    guide.jobEnded(printed);
    EXPECT_EQ(guide.doubt(), QString());
    printed.cut_off = 1;
    guide.jobEnded(printed);
    EXPECT_EQ(guide.doubt(), u"1 etiqueta incompleta: código de barras recusado"_s);
    guide.jobEnded({.target = {u"Zebra"_s}, .reason = u"sem papel"_s});
    EXPECT_EQ(guide.doubt(), u"Não impresso: sem papel"_s);
    EXPECT_EQ(guide.text().mood, StatusMood::failed);
    guide.eventEnded(false);
    EXPECT_EQ(guide.doubt(), u"Nenhuma etiqueta foi impressa."_s);
}

} // namespace etiquetas::test
