#include "orders/ItemSlots.h"

#include "support/ItemFields.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class ItemSlotsTest : public testing::Test, protected LoadedWorkbench {
  protected:
    void fill() {
        OCULTA_ITENS(form);
        fillSlot(form, u"34", u"12");
        fillSlot(form, u"35", u"0");
    }
};

TEST_F(ItemSlotsTest, HiddenOptionsAddNothing) {
    form.txtlote.text = u"5";
    fill();
    EXIBE_ITENS(form);
    EXPECT_EQ(slotsOf(form), (std::vector<Slot>{{.size = u"34", .quantity = u"12"},
                                                {.size = u"35", .quantity = u"0"}}));
    expectTotals(form, u"12", u"24");
}

TEST_F(ItemSlotsTest, ShownOptionsAddToEachQuantityOnceForEachLoad) {
    form.txtlote.text = u"5";
    form.Frame2.visible = true;
    form.txtnumero[0].locked = true;
    for (int load = 0; load < 2; ++load) {
        fill();
        EXIBE_ITENS(form);
        EXPECT_EQ(slotsOf(form), (std::vector<Slot>{{.size = u"34", .quantity = u"17"},
                                                    {.size = u"35", .quantity = u"5"}}));
        expectTotals(form, u"22", u"44");
        EXPECT_FALSE(form.txtnumero[0].locked);
    }
}

TEST_F(ItemSlotsTest, AdditionBeyondSixteenBitsFails) {
    form.txtlote.text = u"32767";
    form.Frame2.visible = true;
    fill();
    EXPECT_EQ(failureOf([&] { EXIBE_ITENS(form); }), failure_number::overflow);
}

} // namespace etiquetas::test
