#pragma once

#include "platform/Fields.h"
#include "platform/Keys.h"

#include <functional>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace etiquetas {

/// A widget beside its field: how the one takes over the other, and what its events run.
struct FieldRow {
    QWidget* widget = nullptr;
    /// The field, where it is one that the focus can be given to.
    const TextField* text_field = nullptr;
    /// Takes what the operator typed or chose into the field; empty where he can't.
    std::function<void()> pull;
    /// Shows what the field holds.
    std::function<void()> push;

    std::function<void()> enter;
    std::function<KeyCode(KeyCode)> key;
    std::function<void()> leave;
    std::function<void()> dblclick;
    std::function<void()> click;
};

// Rows without events, one kind of field each. The caption stands in a label of its own, which may
// be missing, and is hidden with its field. Field and widgets must outlive the row.

[[nodiscard]] FieldRow mirrored(QLineEdit& edit, QLabel* caption, TextField& field);
[[nodiscard]] FieldRow mirrored(QComboBox& box, QLabel* caption, ListField& field);
[[nodiscard]] FieldRow mirrored(QLabel& label, Label& field);
/// The picture is scaled down into the label where it is larger.
[[nodiscard]] FieldRow mirrored(QLabel& label, PictureField& field);
[[nodiscard]] FieldRow mirrored(QGroupBox& box, Panel& field);
[[nodiscard]] FieldRow mirrored(QPushButton& button, Command& field);

} // namespace etiquetas
