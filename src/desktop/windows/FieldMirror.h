#pragma once

#include "platform/Fields.h"
#include "platform/Keys.h"

#include <functional>

class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QWidget;

namespace etiquetas {

class FieldEdit;
class PictureLabel;

/// What the events of a field run; empty where an event runs nothing.
struct FieldEvents {
    std::function<void()> enter;
    /// Takes the character that was typed and gives the one to write, 0 for none.
    std::function<KeyCode(KeyCode)> key;
    std::function<void()> leave;
    std::function<void()> dblclick;
    std::function<void()> click;
    /// A click that comes while another event runs waits for its end, in place of being dropped.
    bool click_waits = false;
};

/// A widget beside its field: how each takes over from the other, and what the events run.
struct FieldRow {
    QWidget* widget = nullptr;
    /// The field, where it is one that the focus can be given to.
    const TextField* text_field = nullptr;
    /// Takes what the operator typed or chose into the field; empty where they can't.
    std::function<void()> pull;
    /// Shows what the field holds.
    std::function<void()> push;

    FieldEvents on;
};

// Rows without events, one kind of field each. The caption stands in a label of its own, null where
// the field has none, and is hidden with the field. The text of a label is what screen readers call
// the field that it is the buddy of.
// Field and widgets must outlive the row.

[[nodiscard]] FieldRow mirrored(FieldEdit& edit, QLabel* caption, TextField& field);
[[nodiscard]] FieldRow mirrored(QComboBox& box, QLabel* caption, ListField& field);
[[nodiscard]] FieldRow mirrored(QLabel& label, Label& field);
[[nodiscard]] FieldRow mirrored(PictureLabel& label, PictureField& field);
[[nodiscard]] FieldRow mirrored(QGroupBox& box, Panel& field);
[[nodiscard]] FieldRow mirrored(QPushButton& button, Command& field);

} // namespace etiquetas
