// Any bytes as the order of each family, reviewed for every kind of label.
//
// Input: the order file.

#include "review/Review.h"

#include "Machine.h"
#include "workbench/Campos.h"
#include "workbench/Inicio.h"
#include "workbench/LabelKinds.h"

#include <algorithm>

namespace etiquetas::fuzz {

namespace {

void checkFindings(const std::vector<Finding>& findings, const ListField& items,
                   std::string_view order) {
    const auto ends = std::count_if(order.begin(), order.end(),
                                    [](char byte) { return byte == '\r' || byte == '\n'; });
    for (const Finding& finding : findings) {
        require(!finding.text.empty(), "A finding says what is wrong");
        require(finding.line <= static_cast<std::size_t>(ends) + 1, "A finding is on a line");
        require(finding.item.empty() ||
                    std::count(items.entries.begin(), items.entries.end(), finding.item) == 1,
                "A finding is of an item of the list");
    }
}

void reviewAs(std::string_view order, const LabelKind& kind) {
    Machine machine;
    furnish(machine, order);
    FrmPadrao form(machine.platform());
    FrmPadrao_load(form);
    form.cmbtipo.type(Text(kind.family.empty() ? tipo::frente_de_caixa : kind.name));
    goesThrough([&] { cmbtipo_leave(form); });
    form.cmbtipo.type(Text(kind.name));
    const auto files = machine.bytes;
    const bool cartons = kind.name == tipo::corrugado;
    const ListField items = cartons ? form.cmb_referencia1 : form.cmb_referencia;
    Machine measure;
    const auto findings = reviewOrder(form, measure);
    checkFindings(findings, items, order);
    require(machine.bytes == files && machine.pages == 0, "A review changes nothing");
    require(reviewOrder(form, measure) == findings, "A review finds the same again");
}

} // namespace

} // namespace etiquetas::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace etiquetas;
    for (const LabelKind& kind : labelKinds()) {
        fuzz::reviewAs(fuzz::bytesOf(data, size), kind);
    }
    return 0;
}
