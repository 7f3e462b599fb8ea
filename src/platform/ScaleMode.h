#pragma once

#include <cstdint>

namespace etiquetas {

/// The unit of a surface's coordinates, by its number.
enum class ScaleMode : std::uint8_t { pixels = 3, millimetres = 6 };

} // namespace etiquetas
