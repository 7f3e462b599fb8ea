#pragma once

#include <cstdint>

namespace etiquetas {

/// Hidden labels that one pair of shoes takes: one for each shoe.
inline constexpr std::int32_t hidden_labels_per_pair = 2;

} // namespace etiquetas
