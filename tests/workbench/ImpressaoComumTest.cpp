#include "support/PrintWorkbench.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

namespace {

/// What an item has and lacks, and what the operator is told before it is printed.
struct Check {
    std::string name;
    TextView kind;
    bool has_code = true, has_colour = true, has_item = true, has_logos = true;
    Answer answer = Answer::no;
    Log messages;
};

class ImpressaoComumTest : public testing::TestWithParam<Check>, protected PrintWorkbench {};

TEST_P(ImpressaoComumTest, ChecksComeInTheOrderOfTheKind) {
    const Check& check = GetParam();
    const bool carton = check.kind == tipo::corrugado;
    load(check.kind);
    (carton ? form.txtcodigo1 : form.txtcodigo).text = check.has_code ? u"3104527" : u" ";
    (carton ? form.txtcor1 : form.txtcor).text = check.has_colour ? u"AZUL" : u" ";
    (carton ? form.txtdescricao1 : form.txtdescricao).text = check.has_item ? u"BOTA" : u" ";
    form.LogoBrisakoOk = check.has_logos;
    print(check.answer);
    EXPECT_EQ(machine.told("message "), check.messages);
}

constexpr TextView front = tipo::frente_de_caixa, wide = tipo::frente_de_caixa_100x40;
constexpr TextView hidden = tipo::oculta, accessory = tipo::acessorio, carton = tipo::corrugado;
const std::string no_code = R"(message none ok "Código Inválido")";
const std::string no_colour =
    R"(message question yes/no "O Item está sem COR!, Imprimir mesmo assim")";
const std::string no_item = R"(message none ok "Selecione o Item que deseja Imprimir")";
const std::string no_logo = R"(message stop ok "O Arquivo do Logotipo não foi localizado")";

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    , ImpressaoComumTest,
    testing::Values(
        Check{.name = "FrontColourRefused", .kind = front, .has_colour = false, .has_logos = false,
              .messages = {no_colour}},
        Check{.name = "FrontColourThenLogo", .kind = front, .has_colour = false, .has_item = false,
              .has_logos = false, .answer = Answer::yes, .messages = {no_colour, no_logo}},
        Check{.name = "FrontGoesOnWithoutItem", .kind = front, .has_item = false,
              .messages = {no_item, closing_question}},
        Check{.name = "WideColourRefused", .kind = wide, .has_colour = false, .has_item = false,
              .messages = {no_colour}},
        Check{.name = "WideItemBeforeLogo", .kind = wide, .has_item = false, .has_logos = false,
              .messages = {no_item}},
        Check{.name = "WideLogo", .kind = wide, .has_logos = false, .messages = {no_logo}},
        Check{.name = "HiddenColourRefused", .kind = hidden, .has_colour = false,
              .messages = {no_colour}},
        Check{.name = "HiddenCode", .kind = hidden, .has_code = false, .messages = {no_code}},
        Check{.name = "AccessoryLogoBeforeItem", .kind = accessory, .has_item = false,
              .has_logos = false, .messages = {no_logo}},
        Check{.name = "AccessoryGoesOnWithoutColourAndItem", .kind = accessory, .has_colour = false,
              .has_item = false, .messages = {no_item, closing_question}},
        Check{.name = "AccessoryCode", .kind = accessory, .has_code = false, .messages = {no_code}},
        Check{.name = "CartonColourRefused", .kind = carton, .has_colour = false, .has_item = false,
              .messages = {no_colour}},
        Check{.name = "CartonColourThenItem", .kind = carton, .has_code = false,
              .has_colour = false, .has_item = false, .answer = Answer::yes,
              .messages = {no_colour, no_item}},
        Check{.name = "CartonCode", .kind = carton, .has_code = false, .messages = {no_code}},
        Check{.name = "CartonWithoutLogos", .kind = carton, .has_logos = false,
              .messages = {closing_question}}),
    [](const auto& row) { return row.param.name; });
// clang-format on

} // namespace

} // namespace etiquetas::test
