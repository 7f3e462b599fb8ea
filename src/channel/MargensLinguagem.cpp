#include "channel/MargensLinguagem.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "channel/EtiquetasDeTeste.h"
#include "channel/Languages.h"
#include "model/FrmPadrao.h"
#include "model/MargensDialog.h"
#include "support/Module1.h"

namespace etiquetas {

enum class ColumnOrder : std::uint8_t { any, growing_to_the_right };

/// The text of the top margin while its dialog opens.
struct TopAtOpening {
    TextView designed; // without a settings file
    TextView if_blank; // in place of a blank stored value
};

/// What one dialog has of its own.
struct MarginDialogDesign {
    TextView Caption;
    TextView Frame1;
    const LabelStock& stock;
    ColumnOrder column_order = ColumnOrder::any;
    std::optional<TopAtOpening> top_at_opening; // where it is not the default of its key
    bool has_code = true;
    CommandFileEnd command_file_end = CommandFileEnd::plain;
};

namespace {

constexpr TextView hidden_zpl_caption = u"Calibrar Margens - Etiqueta Oculta - ZPL";

constexpr MarginDialogDesign hidden_3_zpl{
    .Caption = hidden_zpl_caption,
    .Frame1 = u"Etiqueta 30x10x3",
    .stock = zpl.hidden_3,
};
constexpr MarginDialogDesign hidden_7_zpl{
    .Caption = hidden_zpl_caption,
    .Frame1 = u"Etiqueta 10x30x7",
    .stock = zpl.hidden_7,
    .column_order = ColumnOrder::growing_to_the_right,
};
constexpr MarginDialogDesign hidden_8_zpl{
    .Caption = hidden_zpl_caption,
    .Frame1 = u"Etiqueta 10x30x8",
    .stock = zpl.hidden_8,
    .column_order = ColumnOrder::growing_to_the_right,
};
constexpr MarginDialogDesign hidden_3_ppla{
    .Caption = u"Calibrar Margens - Etiqueta Oculta - PPLA",
    .Frame1 = u"Etiqueta 30x10x3",
    .stock = ppla.hidden_3,
};
constexpr MarginDialogDesign box_front_zpl{
    .Caption = u"Calibrar Margens - Etiqueta Frente de Caixa - ZPL",
    .Frame1 = u"Etiqueta 40x45x2",
    .stock = zpl.box_front,
    .top_at_opening = TopAtOpening{.designed = u"70", .if_blank = u"3"},
    .has_code = false,
    .command_file_end = CommandFileEnd::extra_line_feed,
};

// Of a dialog that has a top margin.
TopAtOpening topAtOpening(const MarginDialogDesign& design) {
    const TextView default_value = design.stock.top->default_value;
    return design.top_at_opening.value_or(TopAtOpening{default_value, default_value});
}

void fillBlank(TextField& field, TextView default_value) {
    if (isBlank(field.text)) {
        field.text = default_value;
    }
}

void fillBlankColumns(MargensLinguagem& dialog) {
    for (std::size_t i = 0; i < dialog.txtmargem1.size(); ++i) {
        fillBlank(dialog.txtmargem1[i], dialog.Label2[i].caption);
    }
}

void fillBlankTop(MargensLinguagem& dialog) {
    if (dialog.txtmargemsuperior) {
        fillBlank(*dialog.txtmargemsuperior, dialog.design.stock.top->default_value);
    }
}

void loadColumns(const Files& files, MargensLinguagem& dialog) {
    for (std::size_t i = 0; i < dialog.txtmargem1.size(); ++i) {
        dialog.txtmargem1[i].text =
            storedMargin(files, dialog.design.stock.columns[i]).value_or(Text());
    }
    fillBlankColumns(dialog);
}

void loadTop(const Files& files, MargensLinguagem& dialog) {
    if (dialog.txtmargemsuperior) {
        const TopAtOpening opening = topAtOpening(dialog.design);
        dialog.txtmargemsuperior->text =
            storedMargin(files, *dialog.design.stock.top).value_or(Text(opening.designed));
        fillBlank(*dialog.txtmargemsuperior, opening.if_blank);
    }
}

// The code of the item on the Workbench, or a sample where there is none.
void loadCode(const FrmPadrao& form, MargensLinguagem& dialog) {
    if (dialog.txtcodigo) {
        dialog.txtcodigo->text = form.txtcodigo.text;
        fillBlank(*dialog.txtcodigo, sample_code);
    }
}

// A column that stands before the one at its left takes its default. One that is no number can't be
// compared, and stays.
void growToTheRight(MargensLinguagem& dialog) {
    std::vector<TextField>& columns = dialog.txtmargem1;
    for (std::size_t i = 1; i < columns.size(); ++i) {
        skip([&] {
            if (toInteger16(columns[i].text) < toInteger16(columns[i - 1].text)) {
                columns[i].text = dialog.Label2[i].caption;
            }
        });
    }
}

} // namespace

MargensLinguagem::MargensLinguagem(const MarginDialogDesign& own_design)
    : design(own_design), Caption(design.Caption), Frame1{Text(design.Frame1)} {
    for (const MarginKey& column : design.stock.columns) {
        txtmargem1.push_back({u"Text1"});
        Label2.push_back({Text(column.default_value)});
    }
    if (design.stock.top) {
        txtmargemsuperior = TextField{Text(topAtOpening(design).designed)};
    }
    if (design.has_code) {
        txtcodigo = TextField{.text = u"Text1", .visible = false};
    }
}

MargensLinguagem FrmMargensOcultaZPL() {
    return MargensLinguagem(hidden_3_zpl);
}

MargensLinguagem FrmMargensOculta7ZPL() {
    return MargensLinguagem(hidden_7_zpl);
}

MargensLinguagem FrmMargensOculta8ZPL() {
    return MargensLinguagem(hidden_8_zpl);
}

MargensLinguagem FrmMargensOcultaPPLa() {
    return MargensLinguagem(hidden_3_ppla);
}

MargensLinguagem FrmMargensCxZPL() {
    return MargensLinguagem(box_front_zpl);
}

void MargensLinguagem_load(const FrmPadrao& form, MargensLinguagem& dialog) {
    dialog.open = true;
    loadColumns(form.platform.files, dialog);
    loadTop(form.platform.files, dialog);
    loadCode(form, dialog);
}

void MargensLinguagem_cmd_gravar(FrmPadrao& form, MargensLinguagem& dialog) {
    Files& files = form.platform.files;
    const LabelStock& stock = dialog.design.stock;
    for (std::size_t i = 0; i < stock.columns.size(); ++i) {
        const Text& typed = dialog.txtmargem1[i].text;
        storeMargin(files, stock.columns[i], isBlank(typed) ? dialog.Label2[i].caption : typed);
    }
    fillBlankTop(dialog);
    if (dialog.txtmargemsuperior) {
        storeMargin(files, *stock.top, dialog.txtmargemsuperior->text);
    }
    dialog.open = false;
}

void MargensLinguagem_cmd_teste(FrmPadrao& form, MargensLinguagem& dialog) {
    const MarginDialogDesign& design = dialog.design;
    fillBlankTop(dialog);
    fillBlankColumns(dialog);
    if (design.column_order == ColumnOrder::growing_to_the_right) {
        growToTheRight(dialog);
    }
    sendProgram(form, testLabelProgram(form, design.stock.test_label, dialog),
                design.command_file_end);
}

void MargensLinguagem_cmd_exit(MargensLinguagem& dialog) {
    dialog.open = false;
}

void txtmargem1_enter(MargensLinguagem& dialog, std::size_t column) {
    SelecionaTexto(dialog.txtmargem1.at(column));
}

KeyCode txtmargem1_key(MargensLinguagem& /*dialog*/, std::size_t /*column*/, KeyCode key) {
    return SoDecimal(key);
}

void txtmargemsuperior_enter(MargensLinguagem& dialog) {
    if (dialog.txtmargemsuperior) {
        SelecionaTexto(*dialog.txtmargemsuperior);
    }
}

KeyCode txtmargemsuperior_key(MargensLinguagem& /*dialog*/, KeyCode key) {
    return SoDecimal(key);
}

} // namespace etiquetas
