#include "orders/ItemSlots.h"

#include "support/Golden.h"
#include "support/ItemFields.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class ItemSlotsTest : public testing::Test, protected LoadedWorkbench {
  protected:
    void fillAndShow() {
        OCULTA_ITENS(form);
        fillSlot(form, u"34", u"12");
        fillSlot(form, u"35", u"0");
        EXIBE_ITENS(form);
    }
};

TEST_F(ItemSlotsTest, ShownOptionsAddToEachQuantityOnceForEachLoad) {
    form.txtlote.text = u"5";
    form.txtnumero[0].locked = true;
    for (const bool options_shown : {false, true, true}) {
        form.Frame2.visible = options_shown;
        fillAndShow();
        machine.tell("==", options_shown ? "options shown" : "options hidden");
        tellQuantities(machine, form);
    }
    EXPECT_TRUE(matchesGolden(machine.transcript, "lote"));
    EXPECT_FALSE(form.txtnumero[0].locked);
}

TEST_F(ItemSlotsTest, AdditionBeyondSixteenBitsFails) {
    form.txtlote.text = u"32767";
    form.Frame2.visible = true;
    EXPECT_EQ(failureOf([&] { fillAndShow(); }), failure_number::overflow);
}

} // namespace etiquetas::test
