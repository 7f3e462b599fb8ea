#pragma once

#include "base/Text.h"
#include "platform/EntryList.h"
#include "platform/LineList.h"
#include "platform/Picture.h"

#include <cstddef>
#include <cstdint>

namespace etiquetas {

// The fields of a window as plain values. The window mirrors them: what the operator typed is in
// the field before an event handler runs, and what the handler left is shown after it.

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Colour&, const Colour&) = default;
};

inline constexpr Colour white{255, 255, 255};

/// A run of selected characters: the first one, counted from 0, and how many.
struct Selection {
    std::size_t start = 0;
    std::size_t length = 0;

    friend bool operator==(const Selection&, const Selection&) = default;
};

/// Free text with a caret. The caption stands beside it.
struct TextField {
    Text text;
    Text caption;
    bool visible = true;
    bool locked = false;
    Colour back_colour = white;
    Selection selection;
    Text tooltip; // shown while the pointer rests on the field
};

/// A shown text that is not edited.
struct Label {
    Text caption;
    bool visible = true;
};

/// A drop-down list that takes typed text too. `position` is the chosen entry, counted from 0, and
/// -1 when the text was typed or nothing is chosen.
template <typename Entries>
struct BasicListField {
    Text text;
    Text caption;
    Entries entries;
    int position = -1;
    bool visible = true;

    /// Takes all entries and the text away.
    void clear();
    /// Chooses the entry at the position and takes its text; fails where there is none.
    void choose(int at);
    /// Takes the entry at the position away; a chosen entry goes with its text. Fails where there
    /// is none.
    void remove(int at);
    /// What the operator types: no entry is chosen then.
    void type(Text typed);
};

using ListField = BasicListField<EntryList>;
/// A list that nothing shows, of very many lines.
using LineField = BasicListField<LineList>;

struct Panel {
    Text caption;
    bool visible = true;
};

struct Command {
    Text caption;
    bool visible = true;
    Text tooltip; // shown while the pointer rests on the command
};

/// One of a group of choices, of which at most one is selected.
struct Option {
    Text caption;
    bool selected = false;
    bool visible = true;
};

struct CheckBox {
    Text caption;
    bool checked = false;
    bool visible = true;
};

struct PictureField {
    Picture picture;
    bool visible = true;
};

} // namespace etiquetas
