#include "orders/GradeAcessorio.h"

#include "support/Golden.h"
#include "support/ItemFields.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class GradeAcessorioTest : public testing::Test, protected LoadedWorkbench {
  protected:
    void load(const std::string& what, std::vector<Text> lines, TextView key) {
        form.List1.entries = std::move(lines);
        form.cmb_referencia.type(Text(key));
        form.TXTPARES.locked = true;
        form.TXTOCULTAS.text = u"old";
        form.txtpreco.text = u"old price";
        form.txtpromocao.text = u"old promotion";
        machine.tell("==", what);
        carrega_grade_Acessorio(form);
        tellItem(machine, form);
        tellField(machine, "lblbarra", form.lblbarra.caption);
    }
};

// Width 11 compares the whole master code, field 7, with the seven characters of the key.
TEST_F(GradeAcessorioTest, FieldsAreThoseOfTheFirstLine) {
    for (const NumberedLine& line : std::vector<NumberedLine>{{8, {{7, u"3104527001"}}},
                                                              {11, {{7, u"3104527001"}}},
                                                              {11, {{7, u"3104527"}}},
                                                              {12, {{7, u"3104527001"}, {9, u" "}}},
                                                              {13, {{7, u" 3104527001"}}}}) {
        NumberedLine later = line;
        later.others[0] = u"99";
        load(utf8(lineOf(line)),
             {u"1;other;2; 3;4;5;6;3104527", u"1; 1;2;other;4;5;6;3104527",
              u"1; 1;2; 3;4;5;6;3104528", lineOf(line), lineOf(later)},
             u" 3104527 |3 | 1 ");
    }
    EXPECT_TRUE(matchesGolden(machine.transcript, "item-de-acessorio"));
}

TEST_F(GradeAcessorioTest, LinesBeyondTheSlotsAreTold) {
    const NumberedLine line{11, {{7, u"3104527"}}};
    std::vector<Text> lines(16, lineOf(line));
    lines[1] = u"9;" + lineOf(line).substr(3) + u";"; // of width 12: takes no slot
    form.txtarquivo.text = u"77";
    load("fifteen lines for slots", lines, u"3104527 | 3 | 1");
    load("a blank key", lines, u" ");
    EXPECT_TRUE(matchesGolden(machine.transcript, "tamanhos-de-acessorio"));
}

} // namespace etiquetas::test
