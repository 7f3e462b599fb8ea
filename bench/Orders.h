#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace etiquetas {

/// A field of an order line with blanks behind it, up to a width.
inline std::string padded(std::string field, std::size_t width) {
    field.resize(std::max(field.size(), width), ' ');
    return field;
}

/// An order of box lines of 13 padded fields, so many lines to an item.
inline std::string orderOf(std::int64_t lines, std::int64_t lines_per_item) {
    std::string order = "LUMIRA\r\n";
    for (std::int64_t i = 0; i < lines; ++i) {
        order += "12  ;AZUL MARINHO  ;" + padded(std::to_string(33 + i % lines_per_item), 4) +
                 ";  ;TENIS CASUAL    ;231045270100 ;" +
                 std::to_string(1000000 + i / lines_per_item) +
                 "001  ;139,90 ;32/26 ;LU   ;A1 ;PROMO   ;X  \r\n";
    }
    return order;
}

} // namespace etiquetas
