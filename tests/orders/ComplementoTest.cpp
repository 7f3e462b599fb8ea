#include "orders/Complemento.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class ComplementoTest : public testing::Test, protected LoadedWorkbench {};

TEST_F(ComplementoTest, PhotographOfTheProduct) {
    machine.files.bytes[u"/programa/imagens/3104527.JPG"] = "JPEG";
    machine.files.bytes[u"/programa/imagens/3104528.jpg"] = "no picture";
    for (const TextView outside : {u"a/b.jpg", u"a\\b.jpg", u"a..b.jpg"}) {
        machine.files.bytes[u"/programa/imagens/" + Text(outside)] = "JPEG";
    }
    struct Product {
        TextView code;
        bool has_photograph;
    };
    for (const Product& product :
         {Product{u"3104527 ", true}, Product{u"3104528", false}, Product{u"3104527", true},
          Product{u"3104529", false}, Product{u"a/b", false}, Product{u"a\\b", false},
          Product{u"a..b", false}}) {
        form.txtcodigo.text = product.code;
        EXPECT_EQ(failureOf([&] { pega_imagem(form); }), 0);
        EXPECT_EQ(form.tem_imagem, product.has_photograph) << utf8(product.code);
        EXPECT_EQ(form.pctimage.picture != nullptr, product.has_photograph) << utf8(product.code);
    }
}

struct CodesOfSize {
    TextView size, barcode, master;
};

// clang-format off
constexpr CodesOfSize codes_of_sizes[] = {
    {u"34",  u"2044556677888", u"3104527001"}, // twelve digits get a check digit
    {u"35 ", u"2044556677880", u"3104527001"}, // thirteen stay
    {u"0,5", u"20445566778",   u"3104527001"}, // eleven stay; a half size
    {u"35",  u"",              u""},           // a size is compared as it stands
    {u"40",  u"",              u""},           // a master code is cut as it stands
    {u"00",  u"2000000000084", u"31045279"}};  // size zero reads the lines of accessories
// clang-format on

TEST_F(ComplementoTest, CodesAreThoseOfTheFirstLineOfTheItem) {
    form.txtcodigo.text = u"3104527 ";
    form.txtcor.text = u" AZUL";
    form.txtdescricao.text = u"TENIS CASUAL ";
    form.List1.entries = {
        lineOf({.barcode = u"1", .master = u"3104528"}),
        lineOf({.barcode = u"1", .colour = u"RUBRO"}),
        lineOf({.barcode = u"1", .description = u"BOTA"}),
        lineOf({.barcode = u" 204455667788 ", .master = u"3104527001 ", .colour = u" AZUL"}),
        lineOf({.barcode = u"second"}),
        lineOf({.size = u"35 ", .barcode = u"2044556677880"}),
        lineOf({.size = u"40", .master = u" 3104527001"}),
        lineOf({.size = u"0,5", .barcode = u"20445566778"}),
        u"1;AZUL;0; TENIS CASUAL ;S;B; 200000000008;31045279;P",
        u"1;AZUL;0;TENIS CASUAL;S;B;second;31045279;P"};
    for (const CodesOfSize& codes : codes_of_sizes) {
        ret_codcomplemento(form, codes.size);
        EXPECT_EQ(form.lblbarra.caption, codes.barcode) << utf8(codes.size);
        EXPECT_EQ(form.lblmaster.caption, codes.master) << utf8(codes.size);
    }
}

TEST_F(ComplementoTest, SizeThatIsNoNumberFailsAndLeavesNoCodes) {
    form.lblbarra.caption = form.lblmaster.caption = u"old";
    EXPECT_EQ(failureOf([&] { ret_codcomplemento(form, u"P"); }), failure_number::type_mismatch);
    EXPECT_EQ(form.lblbarra.caption, u"");
    EXPECT_EQ(form.lblmaster.caption, u"");
}

TEST_F(ComplementoTest, CheckDigitOfTwelveDigits) {
    EXPECT_EQ(DigitoEan(u"789123456789"), u" 5");
    EXPECT_EQ(DigitoEan(u"2A000000000½"), u" 8"); // what is no digit counts 0
    EXPECT_EQ(DigitoEan(u"100000000003"), u" 0");
}

} // namespace etiquetas::test
