#pragma once

#include "barcodes/Code39.h"
#include "support/FakePlatform.h"
#include "workbench/Impressao.h"
#include "workbench/Pedido.h"

#include <string>
#include <vector>

namespace etiquetas::test {

/// What the operator is asked after each job, as the transcript has it.
inline const std::string closing_question = R"(message question yes/no "A Impressão está OK")";

/// How many items and lines of an order are left.
struct OrderLeft {
    std::size_t items;
    std::size_t lines;

    friend bool operator==(const OrderLeft&, const OrderLeft&) = default;
    friend std::ostream& operator<<(std::ostream& out, const OrderLeft& left) {
        return out << left.items << " items, " << left.lines << " lines";
    }
};

/// The window with both logos and a printer chosen, for order 77.
struct PrintWorkbench : LoadedWorkbench {
    PrintWorkbench() {
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

    /// Of the kinds that list their items in `cmb_referencia`.
    [[nodiscard]] OrderLeft left() const {
        return {form.cmb_referencia.entries.size(), form.List1.entries.size()};
    }
};

} // namespace etiquetas::test
