#pragma once

#include "base/Text.h"
#include "platform/Fields.h"
#include "platform/Keys.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace etiquetas {

struct FrmPadrao;
struct MarginDialogDesign;

/// A dialog in which the operator calibrates the margins of a label in a printer language. The
/// margins are whole numbers in the language's own units (dots in ZPL).
struct MargensLinguagem {
    explicit MargensLinguagem(const MarginDialogDesign& own_design);

    /// What this dialog has of its own: texts, stock and order of columns.
    const MarginDialogDesign& design;

    bool open = false;
    Text Caption;
    Panel Frame1;
    /// Left margins from the left column to the right one, and the labels of their defaults, which
    /// the logic reads. `txtmargem2` of a dialog of three columns is the field 1 here.
    std::vector<TextField> txtmargem1;
    std::vector<Label> Label2;
    /// Top margin; PPLA has none.
    std::optional<TextField> txtmargemsuperior;
    /// Code on the test label; the box front label has a sample of its own.
    std::optional<TextField> txtcodigo;
    Command cmd_gravar{u"&Gravar Margens"};
    Command cmd_teste{u"&Impressão de Teste"};
    Command cmd_exit{u"&Sair"};
};

/// Hidden label in ZPL, three columns.
[[nodiscard]] MargensLinguagem FrmMargensOcultaZPL();
/// Hidden label in ZPL, seven columns turned by a quarter.
[[nodiscard]] MargensLinguagem FrmMargensOculta7ZPL();
/// Hidden label in ZPL, eight columns turned by a quarter.
[[nodiscard]] MargensLinguagem FrmMargensOculta8ZPL();
/// Hidden label in PPLA, three columns.
[[nodiscard]] MargensLinguagem FrmMargensOcultaPPLa();
/// Box front label in ZPL, two columns.
[[nodiscard]] MargensLinguagem FrmMargensCxZPL();

// The events of all five.

/// Opens the dialog: each margin takes its key where there is a settings file, and what is blank
/// then takes its default. Without a file the top margin keeps what it starts with.
void MargensLinguagem_load(const FrmPadrao& form, MargensLinguagem& dialog);

/// Stores the margins, a default in place of a blank one, and closes the dialog. They are stored
/// as typed, whatever they hold.
void MargensLinguagem_cmd_gravar(FrmPadrao& form, MargensLinguagem& dialog);

/// Prints the test label at the margins of the fields; a blank field takes its default and shows
/// it. Of seven or eight columns, one that stands before the column at its left takes its default
/// too. Nothing is stored and nothing is reported; a line whose margin is no number of 16 bits
/// where it needs one is left out.
void MargensLinguagem_cmd_teste(FrmPadrao& form, MargensLinguagem& dialog);

/// Closes the dialog; stores nothing.
void MargensLinguagem_cmd_exit(MargensLinguagem& dialog);

/// A margin field gains the focus: its text is selected.
void txtmargem1_enter(MargensLinguagem& dialog, std::size_t column);
void txtmargemsuperior_enter(MargensLinguagem& dialog);

/// The key of a margin field, by the rules of a decimal field.
[[nodiscard]] KeyCode txtmargem1_key(MargensLinguagem& dialog, std::size_t column, KeyCode key);
[[nodiscard]] KeyCode txtmargemsuperior_key(MargensLinguagem& dialog, KeyCode key);

} // namespace etiquetas
