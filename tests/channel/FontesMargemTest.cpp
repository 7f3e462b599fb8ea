#include "channel/FontesMargem.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

struct Margin {
    Text key;
    Text default_value;
};

class FontesMargemTest : public testing::Test, protected Workbench {
  protected:
    using Source = MargensDeEtiqueta (*)(const FrmPadrao&);

    // Expects a source to read these keys, and to put their defaults for what is blank or missing.
    void expectMargins(Source source, const std::vector<Margin>& columns, const Margin& top = {}) {
        MargensDeEtiqueta keys{.colunas = {}, .superior = top.key};
        MargensDeEtiqueta defaults{.colunas = {}, .superior = top.default_value};
        std::vector<Text> blank_file{u"[MargemOcultaZebra]", top.key + u"=  "};
        std::vector<Text> own_names{u"[MargemOcultaZebra]", top.key + u"=" + top.key};
        for (const Margin& column : columns) {
            keys.colunas.push_back(column.key);
            defaults.colunas.push_back(column.default_value);
            blank_file.push_back(column.key + u"=  ");
            own_names.push_back(column.key + u"=" + column.key);
        }
        machine.files.bytes.clear();
        expectTaken(source, defaults, "without a settings file");
        machine.files.bytes[u"/programa/Varesko.ini"] = fileOf(blank_file);
        expectTaken(source, defaults, "from blank keys");
        machine.files.bytes[u"/programa/Varesko.ini"] = fileOf(own_names);
        expectTaken(source, keys, "from keys that hold their own names");
    }

    void expectTaken(Source source, const MargensDeEtiqueta& expected, const char* from) const {
        const MargensDeEtiqueta taken = source(form);
        EXPECT_EQ(taken.colunas, expected.colunas) << from;
        EXPECT_EQ(taken.superior, expected.superior) << from;
    }

    void language(TextView name) { form.lbllinguagem.caption = name; }
};

TEST_F(FontesMargemTest, HiddenLabelInThreeColumns) {
    language(u"ZPL");
    expectMargins(pega_margemoculta,
                  {{u"Margem_oculta_zpl_1", u"55"},
                   {u"Margem_oculta_zpl_2", u"305"},
                   {u"Margem_oculta_zpl_3", u"570"}},
                  {u"Margem_oculta_zpl_3_superior", u"30"});
    language(u"PPLA");
    expectMargins(pega_margemoculta, {{u"Margem_oculta_ppla_1", u"22"},
                                      {u"Margem_oculta_ppla_2", u"150"},
                                      {u"Margem_oculta_ppla_3", u"275"}});
}

TEST_F(FontesMargemTest, HiddenLabelInSevenAndEightColumnsInZpl) {
    language(u"ZPL");
    std::vector<Margin> columns{
        {u"Margem_oculta_zpl_71", u"40"},  {u"Margem_oculta_zpl_72", u"160"},
        {u"Margem_oculta_zpl_73", u"280"}, {u"Margem_oculta_zpl_74", u"400"},
        {u"Margem_oculta_zpl_75", u"520"}, {u"Margem_oculta_zpl_76", u"640"},
        {u"Margem_oculta_zpl_77", u"760"}};
    expectMargins(pega_margemoculta7, columns, {u"Margem_oculta_zpl_7_superior", u"70"});
    columns.push_back({u"Margem_oculta_zpl_78", u"880"});
    expectMargins(pega_margemoculta8, columns, {u"Margem_oculta_zpl_8_superior", u"70"});
}

TEST_F(FontesMargemTest, AnyOtherLanguageIsPplaWhoseEighthColumnStandsOnTheSeventh) {
    std::vector<Margin> columns{
        {u"Margem_oculta_ppla_71", u"22"},  {u"Margem_oculta_ppla_72", u"150"},
        {u"Margem_oculta_ppla_73", u"275"}, {u"Margem_oculta_ppla_74", u"275"},
        {u"Margem_oculta_ppla_75", u"275"}, {u"Margem_oculta_ppla_76", u"275"},
        {u"Margem_oculta_ppla_77", u"275"}};
    language(u"zpl");
    expectMargins(pega_margemoculta7, columns);
    columns.push_back({u"Margem_oculta_ppla_77", u"275"});
    language(u"");
    expectMargins(pega_margemoculta8, columns);
}

TEST_F(FontesMargemTest, BoxFront) {
    language(u"ZPL");
    expectMargins(pega_margemfc,
                  {{u"Margem_frente_zpl_1", u"25"}, {u"Margem_frente_zpl_2", u"340"}},
                  {u"Margem_frente_zpl_2_superior", u"10"});
    language(u"PPLA");
    expectMargins(pega_margemfc,
                  {{u"Margem_frente_ppla_1", u"4"}, {u"Margem_frente_ppla_2", u"160"}});
}

TEST_F(FontesMargemTest, SecondBoxFrontHasOneTopInBothLanguages) {
    const Margin top{u"Margem_frente_zpl_A2_superior", u"25"};
    language(u"ZPL");
    expectMargins(pega_margemfc2,
                  {{u"Margem_frente_zpl_A1", u"260"}, {u"Margem_frente_zpl_A2", u"610"}}, top);
    language(u"PPLA");
    expectMargins(pega_margemfc2,
                  {{u"Margem_frente_ppla_A1", u"4"}, {u"Margem_frente_ppla_A2", u"160"}}, top);
}

TEST_F(FontesMargemTest, Carton) {
    language(u"ZPL");
    expectMargins(pega_margemcorrugado, {{u"Margem_Corrugada_zpl", u"25"}},
                  {u"Margem_Corrugada_ZPL_Superior", u"70"});
    language(u"PPLA");
    expectMargins(pega_margemcorrugado, {{u"Margem_Corrugada_ppla", u"19"}},
                  {u"Margem_Corrugada_PPLA_Superior", u"58"});
}

} // namespace etiquetas::test
