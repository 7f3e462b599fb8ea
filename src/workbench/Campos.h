#pragma once

#include "platform/Keys.h"

#include <cstddef>

namespace etiquetas {

struct FrmPadrao;
struct TextField;

// How the fields of the Workbench react to the keyboard, to focus and to double clicks. Events that
// are not here have no effect.

/// Light yellow, the back colour of the field that has the focus; selects its whole text.
void entra1(TextField& field);

/// White, the back colour of a field that has lost the focus.
void sai1(TextField& field);

/// Selects the whole text.
void seleciona(TextField& field);

/// Moves the focus: Enter and arrow down to the next field, arrow up to the one before; other keys
/// do nothing.
void proximo(FrmPadrao& form, KeyCode key_code);

/// The key of a quantity field: digits, backspace and Ctrl+A pass, any other is swallowed (0), the
/// minus sign among them.
[[nodiscard]] KeyCode Numero(KeyCode key);

/// The key in upper case.
[[nodiscard]] KeyCode Mais(KeyCode key);

/// Key-down event of the window, before the field that has the focus sees the key.
void FrmPadrao_keydown(FrmPadrao& form, KeyCode key_code);

// The handlers of keys take the character of the key and return the one that the field gets, 0 to
// swallow it.

void cmbtipo_enter(FrmPadrao& form);
KeyCode cmbtipo_key(FrmPadrao& form, KeyCode key);
/// Loads the order for the new kind, when there is one, and sets the captions of the totals.
void cmbtipo_leave(FrmPadrao& form);

void cmb_referencia_enter(FrmPadrao& form);
KeyCode cmb_referencia_key(FrmPadrao& form, KeyCode key);
/// Loads the chosen item.
void cmb_referencia_leave(FrmPadrao& form);

void cmb_referencia1_enter(FrmPadrao& form);
KeyCode cmb_referencia1_key(FrmPadrao& form, KeyCode key);
void cmb_referencia1_leave(FrmPadrao& form);

void txtarquivo_enter(FrmPadrao& form);
/// Enter loads the order, also for a blank number, which finds the first file of the family.
KeyCode txtarquivo_key(FrmPadrao& form, KeyCode key);
/// Loads the order, when there is a number.
void txtarquivo_leave(FrmPadrao& form);

void txtcliente_enter(FrmPadrao& form);
KeyCode txtcliente_key(FrmPadrao& form, KeyCode key);
void txtcliente_leave(FrmPadrao& form);

void txtcor_enter(FrmPadrao& form);
KeyCode txtcor_key(FrmPadrao& form, KeyCode key);
void txtcor_leave(FrmPadrao& form);

KeyCode txtlote_key(FrmPadrao& form, KeyCode key);

void txtnumero_enter(FrmPadrao& form, std::size_t slot);
KeyCode txtnumero_key(FrmPadrao& form, std::size_t slot, KeyCode key);
/// Totals the quantities; where one is no number, or their total too large, the totals stay.
void txtnumero_leave(FrmPadrao& form, std::size_t slot);

void TXTOCULTAS_enter(FrmPadrao& form);
KeyCode TXTOCULTAS_key(FrmPadrao& form, KeyCode key);
void TXTOCULTAS_leave(FrmPadrao& form);

/// A double click on any field of the size run changes the locked state of all three of them, each
/// to its opposite.
void txtgrade1_dblclick(FrmPadrao& form);
void txtgrade2_dblclick(FrmPadrao& form);
void txttotgrade_dblclick(FrmPadrao& form);

/// Shows or hides the options panel.
void Frame4_dblclick(FrmPadrao& form);

} // namespace etiquetas
