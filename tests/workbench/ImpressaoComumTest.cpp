#include "support/Golden.h"
#include "support/PrintWorkbench.h"

#include <array>

namespace etiquetas::test {

/// What an item has, and what the operator answers.
struct Item {
    TextView kind;
    bool code, colour, description, logos;
    Answer answer;
};

static Log messagesFor(const Item& item) {
    PrintWorkbench bench;
    FrmPadrao& form = bench.form;
    const bool carton = item.kind == tipo::corrugado;
    bench.load(item.kind);
    (carton ? form.txtcodigo1 : form.txtcodigo).text = item.code ? u"3104527" : u" ";
    (carton ? form.txtcor1 : form.txtcor).text = item.colour ? u"AZUL" : u" ";
    (carton ? form.txtdescricao1 : form.txtdescricao).text = item.description ? u"BOTA" : u" ";
    form.LogoBrisakoOk = item.logos;
    bench.print(item.answer);
    return bench.machine.told("message ");
}

const TextView front = tipo::frente_de_caixa, wide = tipo::frente_de_caixa_100x40;
// clang-format off
const auto items = std::to_array<Item>({
    // kind           code   colour descr. logos  answer
    {front,           true,  false, true,  false, Answer::no},
    {front,           true,  false, false, false, Answer::yes},
    {front,           true,  true,  false, true,  Answer::no},
    {wide,            true,  false, false, true,  Answer::no},
    {wide,            true,  true,  false, false, Answer::no},
    {wide,            true,  true,  true,  false, Answer::no},
    {tipo::oculta,    true,  false, true,  true,  Answer::no},
    {tipo::oculta,    false, true,  true,  true,  Answer::no},
    {tipo::acessorio, true,  true,  false, false, Answer::no},
    {tipo::acessorio, true,  false, false, true,  Answer::no},
    {tipo::acessorio, false, true,  true,  true,  Answer::no},
    {tipo::corrugado, true,  false, false, true,  Answer::no},
    {tipo::corrugado, false, false, false, true,  Answer::yes},
    {tipo::corrugado, false, true,  true,  true,  Answer::no},
    {tipo::corrugado, true,  true,  true,  false, Answer::no},
});
// clang-format on

TEST(ImpressaoComumTest, ChecksComeInTheOrderOfTheKind) {
    Log messages;
    for (const Item& item : items) {
        messages.push_back(utf8(item.kind));
        std::ranges::copy(messagesFor(item), std::back_inserter(messages));
    }
    EXPECT_TRUE(matchesGolden(messages, "impressao-avisos"));
}

} // namespace etiquetas::test
