// Any bytes as the order of each family: loaded, its items chosen and printed as every kind of
// label, drawn and as programs in a printer's language.
//
// Input: the order file.

#include "Machine.h"
#include "base/Numbers.h"
#include "channel/Pacotes.h"
#include "workbench/Campos.h"
#include "workbench/Impressao.h"
#include "workbench/Inicio.h"
#include "workbench/LabelKinds.h"

#include <optional>
#include <set>

namespace etiquetas::fuzz {

namespace {

// What the Workbench holds of a loaded order, by the rules that hold for all of them.
void checkOrder(const FrmPadrao& form, const ListField& items, std::string_view order) {
    const std::set<Text> keys(items.entries.begin(), items.entries.end());
    require(keys.size() == items.entries.size(), "Each item is listed once");
    require(form.List1.entries.size() >= keys.size(), "Each item has a line");
    require(form.List1.entries.size() <= order.size(), "No line comes from nowhere");
    require((items.position == 0) == !keys.empty(), "The first item is chosen");
    for (const Text& line : form.List1.entries) {
        require(isNumeric(TextView(line).substr(0, line.find(u';'))), "A line has a quantity");
    }
}

// Labels of the item on the Workbench, in their columns; nothing for a kind without a rule here.
std::optional<std::int32_t> expectedPages(const FrmPadrao& form, TextView kind) {
    std::int32_t pairs = 0;
    for (const TextField& quantity : form.txtnumero) {
        if (!isBlank(quantity.text)) {
            pairs += std::max<std::int32_t>(0, toInteger16(quantity.text));
        }
    }
    if (kind == tipo::oculta) {
        // Two labels for each pair, two on each strip, and the header strip.
        return pairs + (form.Frame2.visible ? 1 : 0);
    }
    if (kind == tipo::acessorio) {
        return std::max(0, toInteger16(form.TXTPARES.text) / 2);
    }
    if (kind == tipo::corrugado) {
        const std::int32_t first = toInteger16(form.cmb_vol1.text);
        return std::max(1, toInteger16(form.cmb_vol2.text) - first + 1);
    }
    return std::nullopt;
}

void printItem(Machine& machine, FrmPadrao& form, TextView kind) {
    machine.loadPaper();
    machine.passed_over = 0;
    std::optional<std::int32_t> expected;
    goesThrough([&] { expected = expectedPages(form, kind); });
    machine.told = [&](const Message& message) {
        if (message.text == closing_question && machine.passed_over == 0) {
            require(!machine.job_is_open, "A job that went well has ended");
            require(form.coluna_etiqueta == 1 || form.coluna_etiqueta == 2, "Two columns");
            require(!expected || static_cast<std::int32_t>(machine.pages) == *expected,
                    "As many pages as the quantities ask for");
        }
    };
    goesThrough([&] { cmd_printacessorio_click(form); });
}

// The item as programs; not where it is so many that writing them takes its time.
void sendItem(FrmPadrao& form) {
    constexpr std::int16_t most_packs = 100;
    std::int16_t packs = 0;
    goesThrough([&] { packs = toInteger16(form.txtnumero[2].text); });
    if (packs <= most_packs) {
        Imprime_Pacote(form);
    }
    Imprime_OcultaNova(form, form.chkcabecalho);
}

void printOrder(std::string_view order, const LabelKind& kind) {
    constexpr int most_items = 2;
    Machine machine;
    furnish(machine, order);
    FrmPadrao form(machine.platform());
    FrmPadrao_load(form);
    form.Frame2.visible = order.size() % 2 == 0; // a header strip, and an addition
    form.txtlote.text = u"1";
    form.chkcabecalho.checked = form.Frame2.visible;
    form.cmbtipo.type(Text(kind.family.empty() ? tipo::frente_de_caixa : kind.name));
    if (!goesThrough([&] { cmbtipo_leave(form); })) {
        return;
    }
    form.cmbtipo.type(Text(kind.name));
    ListField& items = kind.name == tipo::corrugado ? form.cmb_referencia1 : form.cmb_referencia;
    checkOrder(form, items, order);
    for (int item = 0; item < most_items && !items.entries.empty(); ++item) {
        sendItem(form);
        const std::size_t before = items.entries.size();
        printItem(machine, form, kind.name);
        if (items.entries.size() == before) {
            return;
        }
    }
}

} // namespace

} // namespace etiquetas::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace etiquetas;
    for (const LabelKind& kind : labelKinds()) {
        fuzz::printOrder(fuzz::bytesOf(data, size), kind);
    }
    return 0;
}
