#include "orders/GradeAcessorio.h"

#include "support/Cases.h"
#include "support/ItemFields.h"
#include "support/Messages.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

// The loader of accessories fills slots without showing them.
static Slot hiddenSlot(TextView size, TextView quantity) {
    return {Text(size), Text(quantity), false, false};
}

/// Width 11 compares the whole master code, field 7, with the seven characters of the key.
struct AccessoryReading {
    std::string name;
    NumberedLine line;
    Text master, price, week, promotion, barcode;
    std::vector<Slot> slots;
    bool locked = false;
};

struct AccessoryItems : LoadedWorkbench {
    void load(std::vector<Text> lines, TextView key) {
        form.List1.entries = std::move(lines);
        form.cmb_referencia.type(Text(key));
        carrega_grade_Acessorio(form);
    }
};

class GradeAcessorioTest : public testing::Test, protected AccessoryItems {};
class GradeAcessorioFields : public testing::TestWithParam<AccessoryReading>,
                             protected AccessoryItems {};

TEST_P(GradeAcessorioFields, AreThoseOfTheFirstLine) {
    AccessoryReading reading = GetParam();
    reading.line.others[7] = reading.master;
    NumberedLine later = reading.line;
    later.others[0] = u"99";
    form.TXTPARES.locked = true;
    form.TXTOCULTAS.text = u"old";
    form.txtpreco.text = u"old price";
    form.txtpromocao.text = u"old promotion";
    load({u"1;other;2; 3;4;5;6;3104527", u"1; 1;2;other;4;5;6;3104527", u"1; 1;2; 3;4;5;6;3104528",
          lineOf(reading.line), lineOf(later)},
         u" 3104527 |3 | 1 ");
    expectItem(form, {.txtcodigo = reading.master.substr(0, 7),
                      .txtcor = u" 1",
                      .txtdescricao = u" 3",
                      .txtpreco = reading.price,
                      .txtsemana = reading.week,
                      .txtbandeira = u" 5",
                      .txtpromocao = reading.promotion});
    EXPECT_EQ(form.lblbarra.caption, reading.barcode);
    expectTotals(form, u" 0", u"");
    EXPECT_EQ(slotsOf(form), reading.slots);
    EXPECT_EQ(form.TXTPARES.locked, reading.locked);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Widths, GradeAcessorioFields, testing::Values(
    AccessoryReading{.name = "Width8", .line = {.width = 8}, .master = u"3104527001",
                     .week = u" 4", .promotion = u"old promotion", .barcode = u" 1"},
    AccessoryReading{.name = "Width11", .line = {.width = 11}, .master = u"3104527",
                     .price = u" 8", .week = u"4/9", .promotion = u" 10", .barcode = u" 6",
                     .slots = {hiddenSlot(u" 2", u" 0"), hiddenSlot(u" 2", u"99")},
                     .locked = true},
    AccessoryReading{.name = "Width12WithoutSuffix",
                     .line = {.width = 12, .others = {{9, u" "}}}, .master = u"3104527001",
                     .price = u" 8", .week = u" 4", .promotion = u" 10", .barcode = u" 6"},
    AccessoryReading{.name = "Width13", .line = {.width = 13}, .master = u" 3104527001",
                     .price = u" 8", .week = u"4/9", .promotion = u" 10", .barcode = u" 6"}),
    CaseName());
// clang-format on

TEST_F(GradeAcessorioTest, MasterCodeBeyondTheKeyIsNotFoundInWidth11) {
    form.txtpreco.text = u"old price";
    form.TXTPARES.text = u"old";
    load({lineOf(NumberedLine{.width = 11, .others = {{7, u"3104527001"}}})}, u"3104527 | 3 | 1");
    EXPECT_EQ(form.txtpreco.text, u"old price");
    EXPECT_EQ(slotsOf(form), std::vector<Slot>());
    expectTotals(form, u"", u"");
    EXPECT_TRUE(form.TXTPARES.locked);
}

TEST_F(GradeAcessorioTest, LinesBeyondTheSlotsAreTold) {
    const NumberedLine line{.width = 11, .others = {{7, u"3104527"}}};
    std::vector<Text> lines(16, lineOf(line));
    lines[1] = u"9;" + lineOf(line).substr(3) + u";"; // of width 12: takes no slot
    form.txtarquivo.text = u"77";
    load(lines, u"3104527 | 3 | 1");
    EXPECT_EQ(slotsOf(form), std::vector<Slot>(14, hiddenSlot(u" 2", u" 0")));
    EXPECT_EQ(form.TXTPARES.text, u" 0");
    EXPECT_EQ(machine.log,
              Log{warningBox("Erro ao Preencher Dados.. Contate a Varesko e comunique o "
                             "Erro no Pedido 77")});
    load(lines, u" ");
    EXPECT_EQ(slotsOf(form), std::vector<Slot>());
    expectTotals(form, u"", u"");
}

} // namespace etiquetas::test
