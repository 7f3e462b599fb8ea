#pragma once

#include "base/Text.h"
#include "platform/Fields.h"

#include <optional>

namespace etiquetas {

/// The item code that a margin dialog takes where no item is loaded.
inline constexpr TextView sample_code = u"50100779";

// Each opening of a dialog starts from the fields as they are designed here. `to_front` is set when
// an open dialog is asked for again: whoever shows the dialog brings it to the front and clears it.

/// One dialog for each stock of labels, in which the operator sets, tests and stores the margins.
/// What a dialog lacks is not visible.
struct MargensDialog {
    Text Caption;
    Panel Frame1;
    Label Label1{u"Margem Padrão"};
    Label Label2; // default of `txtmargem1`
    Label Label3; // default of `txtmargem2`
    Label Label5{u"Novo Valor"};
    Label Label6; // caption of `txtmargemsuperior`
    TextField txtmargem1{.text = u"Text1", .caption = u"Coluna 1 (mm)"};
    TextField txtmargem2{.text = u"Text1", .caption = u"Coluna 2 (mm)"};
    TextField txtmargemsuperior;
    std::optional<TextField> txtcodigo; // hidden; nothing reads it
    Command cmd_gravar{u"&Gravar Margens"};
    Command cmd_teste{u"&Impressão de Teste"};
    Command cmd_exit{u"&Sair"};
    bool open = false;
    bool to_front = false;
};

/// Margins of the hidden and accessory labels, as designed.
[[nodiscard]] inline MargensDialog FrmMargensOcultaZPL2_design() {
    return {.Caption = u"Calibrar Margens - Etiqueta Oculta - ZPL - 2 Colunas",
            .Frame1 = {u"Etiqueta 40x20x2 "},
            .Label2 = {u"3"},
            .Label3 = {u"45"},
            .Label6 = {u"Margem Superior"},
            .txtmargemsuperior = {.text = u"3"},
            .txtcodigo = TextField{.text = u"Text1", .visible = false}};
}

/// Margins of the box front label, as designed.
[[nodiscard]] inline MargensDialog FrmMargensCxZPL45_design() {
    return {.Caption = u"Calibrar Margens - Etiqueta Frente de Caixa - ZPL",
            .Frame1 = {u"Etiqueta 45X40X2"},
            .Label2 = {u"0"},
            .Label3 = {u"40"},
            .Label6 = {u"Margem Esquerda"}};
}

/// Margins of the carton label, which has one column, as designed.
[[nodiscard]] inline MargensDialog FrmMargensPackZPL_design() {
    return {.Caption = u"Calibrar Margens - Etiqueta Corrugada - ZPL",
            .Frame1 = {u"Etiqueta 100x140x1"},
            .Label2 = {u"3"},
            .Label3 = {.visible = false},
            .Label6 = {u"Margem Superior"},
            .txtmargem1 = {.text = u"Text1", .caption = u"Margem Esquerda (mm)"},
            .txtmargem2 = {.visible = false}};
}

} // namespace etiquetas
