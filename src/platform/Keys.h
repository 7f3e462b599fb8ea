#pragma once

namespace etiquetas {

/// A key: the code of its character, or, where the window looks at keys first, its key code.
/// 0 swallows the key.
using KeyCode = char16_t;

namespace key {
inline constexpr KeyCode none = 0;
inline constexpr KeyCode select_all = 1; // Ctrl+A
inline constexpr KeyCode backspace = 8;
inline constexpr KeyCode enter = 13;
inline constexpr KeyCode arrow_up = 38;   // key code
inline constexpr KeyCode arrow_down = 40; // key code
} // namespace key

} // namespace etiquetas
