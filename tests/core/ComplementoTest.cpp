#include "orders/Complemento.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class ComplementoTest : public testing::Test, protected LoadedWorkbench {
  protected:
    ComplementoTest() {
        form.txtcodigo.text = u"3104527 ";
        form.txtcor.text = u" AZUL";
        form.txtdescricao.text = u"TENIS CASUAL ";
    }
};

TEST_F(ComplementoTest, CodesOfASize) {
    form.List1.entries = {lineOf({.master = u"3104528"}),
                          lineOf({.colour = u"RUBRO"}),
                          lineOf({.description = u"BOTA"}),
                          lineOf({.barcode = u" 204455667788 ", .master = u"3104527001 "}),
                          lineOf({.barcode = u"second"}),
                          lineOf({.size = u"35 ", .barcode = u"2044556677880"}),
                          lineOf({.size = u"36,5", .barcode = u"20445566778"}),
                          u"1;AZUL;0;TENIS CASUAL;S;B; 200000000008;31045279;P"};
    using Case = std::tuple<TextView, TextView, TextView>;
    for (const auto& [size, barcode, master] : {Case{u"34", u"2044556677888", u"3104527001"},
                                                {u"35 ", u"2044556677880", u"3104527001"},
                                                {u"35", u"", u""},
                                                {u"36,5", u"20445566778", u"3104527001"},
                                                {u"00", u"2000000000084", u"31045279"}}) {
        SCOPED_TRACE(utf8(size));
        ret_codcomplemento(form, size);
        EXPECT_EQ(form.lblbarra.caption, barcode);
        EXPECT_EQ(form.lblmaster.caption, master);
    }
    form.lblbarra.caption = form.lblmaster.caption = u"old";
    EXPECT_EQ(failureOf([&] { ret_codcomplemento(form, u"P"); }), failure_number::type_mismatch);
    EXPECT_EQ(form.lblbarra.caption + form.lblmaster.caption, u"");
}

TEST_F(ComplementoTest, CheckDigit) {
    EXPECT_EQ(DigitoEan(u"789123456789"), u" 5");
    EXPECT_EQ(DigitoEan(u"200000000000"), u" 8");
    EXPECT_EQ(DigitoEan(u"200000000016"), u" 9");
    EXPECT_EQ(DigitoEan(u"100000000003"), u" 0"); // 10 in all
    EXPECT_EQ(DigitoEan(u"2A000000000½"), u" 8");
}

TEST_F(ComplementoTest, PhotographOfTheProduct) {
    pega_imagem(form);
    EXPECT_FALSE(form.tem_imagem);
    machine.files.bytes[u"/programa/imagens/3104527.jpg"] = "JPEG";
    pega_imagem(form);
    EXPECT_TRUE(form.tem_imagem);
    EXPECT_NE(form.pctimage.picture, nullptr);
    form.txtcodigo.text = u"3104528";
    pega_imagem(form);
    EXPECT_FALSE(form.tem_imagem);
    EXPECT_EQ(form.pctimage.picture, nullptr);
}

} // namespace etiquetas::test
