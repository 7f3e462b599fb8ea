#pragma once

#include "support/FakePlatform.h"
#include "workbench/Impressao.h"
#include "workbench/Pedido.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

/// What the operator is asked after each job, as the transcript has it.
inline const std::string closing_question = R"(message question yes/no "A Impressão está OK")";

/// The window with both logos and a printer chosen, for an order of two items of each family. The
/// first box item has two sizes.
struct PrintWorkbench : LoadedWorkbench {
    PrintWorkbench() {
        takeOrder(u"FRENTE",
                  {u"LUMIRA", lineOf({.quantity = u"1"}), lineOf({.quantity = u"1", .size = u"35"}),
                   lineOf({.quantity = u"1", .colour = u"RUBRO"})});
        takeOrder(u"ACESSORIO",
                  {u"BRISA KO", accessoryLineOf({}), accessoryLineOf({.colour = u"RUBRO"})});
        takeOrder(u"CORRUGADO",
                  {u"LUMIRA", cartonLineOf({}),
                   cartonLineOf({.master = u"M2", .description = u"BOTA", .volumes = u"8/9"})});
        takeLogos();
        knowEanBars(u"204455667788");
        form.CMBPRINTER.choose(1);
        form.txtarquivo.text = u"77";
    }

    /// Writes the order file of a family: "FRENTE", "ACESSORIO" or "CORRUGADO".
    void takeOrder(const Text& family, const std::vector<Text>& lines) {
        machine.files.bytes[u"/programa/77 " + family + u".TXT"] = fileOf(lines);
    }

    /// Loads the first item of the order for a kind of label; without a settings file, so that the
    /// margins have their defaults.
    void load(TextView kind) {
        form.cmbtipo.type(Text(kind));
        carrega_pedido(form);
        machine.files.bytes.erase(u"/programa/Varesko.ini");
    }

    /// Stores margins, each as a line of its own.
    void storeMargins(const std::string& lines) {
        machine.files.bytes[u"/programa/Varesko.ini"] = "[MargemOcultaZebra]\r\n" + lines;
    }

    void print(Answer answer = Answer::no) {
        machine.answer = answer;
        machine.forget();
        cmd_printacessorio_click(form);
    }

    /// What is left of an order of a kind but cartons.
    void expectLeft(std::size_t items, std::size_t lines) const {
        EXPECT_EQ(form.cmb_referencia.entries.size(), items);
        EXPECT_EQ(form.List1.entries.size(), lines);
    }
};

} // namespace etiquetas::test
