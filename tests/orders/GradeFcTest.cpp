#include "orders/GradeFc.h"

#include "support/Golden.h"
#include "support/ItemFields.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class GradeFcTest : public testing::Test, protected LoadedWorkbench {
  protected:
    void load(const std::string& what, std::vector<Text> lines,
              TextView key = u"3104527 |TENIS CASUAL| AZUL ") {
        form.List1.entries = std::move(lines);
        form.cmb_referencia.type(Text(key));
        machine.tell("==", what);
        carrega_gradeFc(form);
        tellItem(machine, form);
    }
};

TEST_F(GradeFcTest, FieldsAreThoseOfTheFirstLine) {
    const Text later = lineOf({.width = 13, .others = {{2, u"35"}, {8, u"W"}}});
    for (const NumberedLine& line : std::vector<NumberedLine>{
             {10}, {10, {{9, u" "}}}, {11}, {11, {{10, u" "}}}, {12}, {13}, {13, {{10, u""}}}}) {
        form.txtpreco.text = u"1,00";
        load(utf8(lineOf(line)), {lineOf(line), later}, u"6 | 4|1 ");
    }
    EXPECT_TRUE(matchesGolden(machine.transcript, "item-de-caixa"));
}

TEST_F(GradeFcTest, EachLineFillsASlot) {
    form.txtarquivo.text = u"77";
    form.txtcor.text = u"old";
    const NumberedLine narrow{9, {{1, u"AZUL"}, {4, u"TENIS CASUAL"}, {6, u"3104527"}}};
    const NumberedLine wide{14, narrow.others};
    load("other items and widths", {lineOf({.master = u"3104528"}),
                                    lineOf({.description = u"TENIS"}), lineOf({.colour = u"Azul"}),
                                    lineOf({.master = u" 310452"}), lineOf(narrow), lineOf(wide)});
    load("two sizes", {lineOf(BoxLine{}), lineOf({.size = u"35"})});
    load("a blank size",
         {lineOf({.quantity = u"7", .size = u" "}), lineOf({.quantity = u"02", .size = u"35 "})});
    load("a code that begins with blanks", {lineOf({.master = u"  3104527001"})});
    std::vector<Text> fifteen(14, lineOf({.quantity = u"1"}));
    fifteen.push_back(lineOf({.quantity = u"100", .size = u"49"}));
    load("fifteen sizes", fifteen);
    load("a blank key", fifteen, u"  ");
    EXPECT_TRUE(matchesGolden(machine.transcript, "tamanhos-de-caixa"));
}

TEST_F(GradeFcTest, BlankKeyKeepsThePicture) {
    machine.files.bytes[u"/programa/imagens/3104527.jpg"] = "JPEG";
    load("an item", {lineOf(BoxLine{})});
    EXPECT_TRUE(form.tem_imagem);
    load("none", {}, u"  ");
    EXPECT_NE(form.pctimage.picture, nullptr);
    EXPECT_FALSE(form.tem_imagem);
}

} // namespace etiquetas::test
