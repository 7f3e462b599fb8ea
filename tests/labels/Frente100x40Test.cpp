#include "labels/Frente100x40.h"

#include "support/FakePlatform.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

namespace {

struct WideLabel {
    Text description = u"TENIS CASUAL DE COURO COM CADARCO";
    TextView flag = u"L", size = u"34 ", price = u"129,90", barcode = u"2044556677888";
    std::int16_t quantity = 1;
};

class Frente100x40Test : public testing::Test, protected Workbench {
  protected:
    Frente100x40Test() {
        takeLogos();
        takePhotograph();
        knowEanBars(u"204455667788");
        form.NomeFonte = u"Corpo";
        form.PackLinhaX = 1;
        form.PackLinhaY = 2;
        machine.printers.ScaleMode(ScaleMode::millimetres);
        machine.forget();
    }

    void draw(const WideLabel& label) {
        Eti100_40_1(form, label.flag, label.description, u"527", u"3104527", label.barcode,
                    label.size, label.price, label.quantity);
    }
};

TEST_F(Frente100x40Test, WithAllThatItCanHave) {
    draw({.quantity = 2});
    EXPECT_TRUE(matchesGolden(machine.transcript, "frente-100x40-completa"));
    EXPECT_EQ(machine.logged({"measure"}).front(), "measure Corpo 11");
    EXPECT_EQ(machine.printers.weight, "plain");
    EXPECT_EQ(form.coluna_etiqueta, 1);
}

TEST_F(Frente100x40Test, WithoutPhotographSizeAndPrice) {
    form.tem_imagem = false;
    draw({.description = u"BOTA", .flag = u"B", .size = u" ", .price = u" 0,00"});
    EXPECT_TRUE(matchesGolden(machine.transcript, "frente-100x40-simples"));
}

TEST_F(Frente100x40Test, NoLabelForNoQuantity) {
    draw({.quantity = 0});
    EXPECT_EQ(machine.transcript, Log{"unit millimetres"});
}

TEST_F(Frente100x40Test, RefusedBarcodeEndsTheDrawingBeforeItsBars) {
    EXPECT_EQ(failureTextOf([&] { draw({.barcode = u"20445566778", .quantity = 2}); }),
              "80040201 EAN-13: Should be 12 Digit Numbers");
    EXPECT_EQ(machine.transcript.back(), "unit pixels");
}

struct WideBreak {
    Text description, line_1, line_2;
};

// At 11 points 31 characters are 48,7 mm wide, and 32 are 50,3.
TEST_F(Frente100x40Test, DescriptionIsBrokenAtTheLastBlank) {
    const Text a28(28, u'A'), a29(29, u'A'), a31(31, u'A'), a32(32, u'A');
    const auto line = [](const std::string& place, TextView text) {
        return text.empty() ? Log{} : Log{"text 6,0 " + place + " Corpo 11 bold " + inQuotes(text)};
    };
    for (const auto& [description, line_1, line_2] :
         {WideBreak{u"A " + a29, u"A " + a29, u""}, WideBreak{a32, a32, u""},
          WideBreak{a32 + u" 7", a32, u"7"}, WideBreak{u"A " + a29 + u" 7", u"A " + a29, u"7"},
          WideBreak{u"A B " + a31 + u" C", u"A B", a31 + u" C"},
          WideBreak{u"A-B/" + a31, u"A-B/" + a28, u"AAA"}}) {
        SCOPED_TRACE(utf8(description));
        machine.forget();
        draw({.description = description});
        EXPECT_EQ(machine.told("text 6,0 7,0 "), line("7,0", line_1));
        EXPECT_EQ(machine.told("text 6,0 12,0 "), line("12,0", line_2));
    }
}

} // namespace

} // namespace etiquetas::test
