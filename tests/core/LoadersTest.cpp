#include "orders/GradeAcessorio.h"
#include "orders/GradeCorrugado.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class LoadersTest : public testing::Test, protected LoadedWorkbench {
  protected:
    FrmPadrao& choose(std::vector<Text> lines, TextView key) {
        form.List1.entries = std::move(lines);
        form.cmb_referencia.type(Text(key));
        form.cmb_referencia1.type(Text(key));
        return form;
    }

    // A line of fields that hold their own numbers behind a blank, but for one.
    static Text packLine(std::size_t width, std::size_t other = 99, TextView text = {}) {
        Text line;
        for (std::size_t i = 0; i < width; ++i) {
            const std::string number = std::to_string(i);
            line += (i > 0 ? u";" : u"") +
                    (i == other ? Text(text) : u" " + Text(number.begin(), number.end()));
        }
        return line;
    }
};

TEST_F(LoadersTest, AccessoryFieldsByWidth) {
    const Text start = u" 7; AZUL ;34;BOLSA ; S ; B;204455;";
    using Case = std::tuple<Text, Text, bool>;
    for (const auto& [rest, fields, stays_locked] :
         {Case{u"3104527;9,90; X ;P ", u"3104527 AZUL BOLSA 9,90S/X BP 204455 734 7", true},
          Case{u"3104527001", u"3104527 AZUL BOLSA  S  BP  AZUL  7", false}, // the promotion stays
          Case{u"3104527001;1;X;P", u"3104527 AZUL BOLSA  S  BP  AZUL ", true}, // all stays
          Case{u"3104527001;9,90; ;Q;", u"3104527 AZUL BOLSA 9,90 S  BQ204455 7", false},
          Case{u" 3104527001;9; X;P;;", u" 310452 AZUL BOLSA 9S/X BP204455 7", false}}) {
        form.TXTPARES.locked = true;
        form.TXTOCULTAS.text = u"old";
        carrega_grade_Acessorio(
            choose({u"1;RUBRO;35;BOLSA;;;;3104527", u"1;AZUL;35;bolsa;;;;3104527",
                    u"1;AZUL;35;BOLSA;;;;3104528", start + rest, u"1" + start.substr(2) + rest},
                   u" 3104527 |BOLSA | AZUL "));
        EXPECT_EQ(form.txtcodigo.text + form.txtcor.text + form.txtdescricao.text +
                      form.txtpreco.text + form.txtsemana.text + form.txtbandeira.text +
                      form.txtpromocao.text + form.lblbarra.caption + form.TXTPARES.text +
                      form.TXTOCULTAS.text + form.Label7[0].caption + form.txtnumero[0].text,
                  fields);
        EXPECT_EQ(form.TXTPARES.locked, stays_locked) << utf8(rest);
    }
}

TEST_F(LoadersTest, AccessorySlotsOfWidth11) {
    const Text line = u";AZUL;34;BOLSA;S;B;2044;3104527;;;P", key = u"3104527|BOLSA|AZUL";
    std::vector<Text> lines(16, u"1" + line);
    lines[1] = u"9" + line + u";"; // of width 12: takes no slot
    lines[14] = u"2" + line;
    form.txtarquivo.text = u"77";
    carrega_grade_Acessorio(choose(lines, key));
    EXPECT_EQ(form.Label7[13].caption + form.txtnumero[13].text + form.TXTPARES.text, u"3421");
    EXPECT_EQ(machine.log, Log{"message exclamation ok [] Erro ao Preencher Dados.. Contate a "
                               "Varesko e comunique o Erro no Pedido 77"});
    carrega_grade_Acessorio(choose(lines, u" "));
    EXPECT_EQ(form.Label7[0].caption + form.txtnumero[13].text + form.TXTPARES.text, u"");
}

TEST_F(LoadersTest, CorrugatedFieldsByWidth) {
    using Case = std::tuple<Text, TextView, TextView>;
    for (const auto& [line, key, fields] :
         {Case{packLine(13), u"6 | 5|4", u" 0 2 3 4 5 6 7 8 9 10 11 12"},
          Case{packLine(14), u"7 | 5|4", u" 0 2 3 4 5 7 8 9 9 11 12 13 6"},
          Case{packLine(15), u"7 | 5|4", u" 0 2 3 4 5 6 7 8 9 10/ 13 11 12 6"},
          Case{packLine(15, 11, u" "), u"7|5|4", u" 0 2 3 4 5 6 7 8 9 10  12 6"},
          Case{packLine(15, 13), u"7|5|4", u" 0 2 3 4 5 6 7 8 9 10/ 11 12 6"},
          Case{packLine(16), u"6|5|4", u" 0 2 3 4 5 6 7 8 9 10/ 13 11 12 6"},
          Case{packLine(16, 13, u" "), u"6|5|4", u" 0 2 3 4 5 6 7 8 9 10 11 12 6"},
          Case{packLine(17), u"6|5|4", u" 0 2 3 4 5 6 8 9 10 11/ 14 12 13 6"},
          Case{packLine(17, 14, u" "), u"6|5|4", u" 0 2 3 4 5 6 8 9 10 11 12 13 6"},
          Case{packLine(12), u"6|5|4", u""}, Case{packLine(18), u"6|5|4", u""},
          Case{packLine(14), u"6|5|4", u""}, Case{packLine(16), u"6|4|4", u""},
          Case{packLine(17), u"6|5|5", u""}, Case{packLine(16), u" ", u""}}) {
        form.txtean.visible = form.lblean.visible = fields.empty();
        carrega_corrugado(choose({line, u"second" + line.substr(2)}, key));
        EXPECT_EQ(form.txtqte1.text + form.txtcodigo1.text + form.txtfornecedor1.text +
                      form.txtcor1.text + form.txtdescricao1.text + form.txtprepack.text +
                      form.txtgrade1.text + form.txtgrade2.text + form.txttotgrade.text +
                      form.txtsemana1.text + form.txtdestino1.text + form.txtvolume.text +
                      form.txtean.text,
                  fields)
            << utf8(line);
        EXPECT_TRUE(form.txtean.visible == fields.ends_with(u" 6") &&
                    form.lblean.visible == form.txtean.visible);
    }
}

TEST_F(LoadersTest, PackOfWidth13PassedOverIsTheLast) {
    using Case = std::tuple<std::size_t, std::size_t, TextView>;
    for (const auto& [passed_over, width, quantity] :
         {Case{13, 13, u""}, Case{13, 16, u""}, Case{14, 13, u" 0"}, Case{16, 16, u" 0"},
          Case{12, 13, u" 0"}}) {
        carrega_corrugado(choose({packLine(passed_over, 4, u"other"), packLine(width)}, u"6|5|4"));
        EXPECT_EQ(form.txtqte1.text, quantity) << passed_over << ' ' << width;
    }
}

TEST_F(LoadersTest, CartonNumbers) {
    using Case = std::tuple<TextView, std::int32_t, std::vector<Text>>;
    for (const auto& [volume, failure, numbers] :
         {Case{u"5/7", 0, {u"5", u"6", u"7"}}, Case{u" 09/10 ", 0, {u"9", u"10"}},
          Case{u"1/1", 0, {u"1"}}, Case{u"7/5", 0, {}}, Case{u"7", 0, {}},
          Case{u"1/x", failure_number::type_mismatch, {}},
          Case{u"1/40000", failure_number::overflow, {}}, Case{u"", 0, {}}}) {
        choose({packLine(16, 12, volume)}, u"6|5|4");
        EXPECT_EQ(failureOf([&] { carrega_corrugado(form); }), failure);
        if (failure == 0) {
            EXPECT_TRUE(form.cmb_vol1.entries == numbers && form.cmb_vol2.entries == numbers);
            EXPECT_EQ(form.cmb_vol1.text, numbers.empty() ? u"" : numbers.front());
            EXPECT_EQ(form.cmb_vol2.text, numbers.empty() ? u"" : numbers.back());
            EXPECT_EQ(form.lblmax.caption, form.cmb_vol2.text);
        }
    }
}

} // namespace etiquetas::test
