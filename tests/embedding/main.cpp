#include "orders/GradeFc.h"
#include "support/FakePlatform.h"
#include "workbench/Campos.h"
#include "workbench/FrmPadrao.h"
#include "workbench/Impressao.h"
#include "workbench/Inicio.h"

// Prints an item of an order without a window; succeeds where its labels have been drawn.
int main() {
    using namespace etiquetas;
    test::FakePlatform machine;
    machine.files.bytes[u"/programa/1400050831 FRENTE.txt"] =
        test::fileOf({u"BRISA KO", test::lineOf({.quantity = u"2"})});
    FrmPadrao form(machine.platform());
    FrmPadrao_load(form);
    form.cmbtipo.choose(3); // "Oculta"
    form.txtarquivo.text = u"1400050831";
    txtarquivo_leave(form);
    form.txtnumero[0].text = u"5";
    txtnumero_leave(form, 0);
    cmd_printacessorio_click(form);
    constexpr std::size_t pages = 5; // two labels a pair, two labels a page
    return machine.logged({"page"}).size() == pages ? 0 : 1;
}
