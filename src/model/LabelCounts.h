#pragma once

#include <cstdint>

namespace etiquetas {

/// Hidden labels that one pair takes.
inline constexpr std::int32_t hidden_labels_per_pair = 2;

} // namespace etiquetas
