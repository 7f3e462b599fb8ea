#pragma once

#include "base/Numbers.h"
#include "base/Text.h"
#include "platform/Fields.h"

#include <optional>

namespace etiquetas {

/// The item code that a margin dialog takes where no item is loaded.
inline constexpr TextView sample_code = u"50100779";

/// One dialog for each stock of labels, in which the operator sets, tests and stores the margins.
/// What a dialog lacks is not visible.
///
/// Each opening starts from the fields as they are designed below. `to_front` is set when an open
/// dialog is asked for again: whoever shows the dialog brings it to the front and clears it.
struct MargensDialog {
    Text Caption;
    Panel Frame1;
    Label Label1{u"Margem Padrão"};
    Label Label2; // default of `txtmargem1`
    Label Label3; // default of `txtmargem2`
    Label Label5{u"Novo Valor"};
    Label Label6;      // caption of `txtmargemsuperior`
    Label top_default; // shown beside `txtmargemsuperior`
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

/// Where a margin is typed in, and the label that its default is read from; the top margin has
/// none.
struct MarginEntry {
    TextField MargensDialog::*field = nullptr;
    Label MargensDialog::*default_label = nullptr;
};

namespace margin_entry {
inline constexpr MarginEntry column1{&MargensDialog::txtmargem1, &MargensDialog::Label2};
inline constexpr MarginEntry column2{&MargensDialog::txtmargem2, &MargensDialog::Label3};
inline constexpr MarginEntry top{&MargensDialog::txtmargemsuperior, nullptr};
} // namespace margin_entry

/// The margins of a stock that was never calibrated, whole millimetres.
struct DefaultMargins {
    int column1;     // left of the first column
    int column2 = 0; // left of the second column, where there is one
    int top;
};

namespace default_margins {
inline constexpr DefaultMargins hidden{.column1 = 3, .column2 = 45, .top = 3};
inline constexpr DefaultMargins box_front{.column1 = 0, .column2 = 40, .top = 3};
inline constexpr DefaultMargins carton{.column1 = 3, .top = 3};
} // namespace default_margins

/// `FrmMargensOcultaZPL2`, the margins of the hidden and accessory labels, as designed.
[[nodiscard]] inline MargensDialog designOfHiddenMargins() {
    return {.Caption = u"Calibrar Margens - Etiqueta Oculta - ZPL - 2 Colunas",
            .Frame1 = {u"Etiqueta 40x20x2 "},
            .Label2 = {numberText(default_margins::hidden.column1)},
            .Label3 = {numberText(default_margins::hidden.column2)},
            .Label6 = {u"Margem Superior"},
            .top_default = {numberText(default_margins::hidden.top)},
            .txtmargemsuperior = {.text = numberText(default_margins::hidden.top)},
            .txtcodigo = TextField{.text = u"Text1", .visible = false}};
}

/// `FrmMargensCxZPL45`, the margins of the box front label, as designed.
[[nodiscard]] inline MargensDialog designOfBoxFrontMargins() {
    return {.Caption = u"Calibrar Margens - Etiqueta Frente de Caixa - ZPL",
            .Frame1 = {u"Etiqueta 45X40X2"},
            .Label2 = {numberText(default_margins::box_front.column1)},
            .Label3 = {numberText(default_margins::box_front.column2)},
            .Label6 = {u"Margem Esquerda"},
            .top_default = {numberText(default_margins::box_front.top)}};
}

/// `FrmMargensPackZPL`, the margins of the carton label, which has one column, as designed.
[[nodiscard]] inline MargensDialog designOfCartonMargins() {
    return {.Caption = u"Calibrar Margens - Etiqueta Corrugada - ZPL",
            .Frame1 = {u"Etiqueta 100x140x1"},
            .Label2 = {numberText(default_margins::carton.column1)},
            .Label3 = {.visible = false},
            .Label6 = {u"Margem Superior"},
            .top_default = {numberText(default_margins::carton.top)},
            .txtmargem1 = {.text = u"Text1", .caption = u"Margem Esquerda (mm)"},
            .txtmargem2 = {.visible = false}};
}

} // namespace etiquetas
