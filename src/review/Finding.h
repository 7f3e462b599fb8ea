#pragma once

#include "base/Text.h"

#include <cstddef>
#include <cstdint>

namespace etiquetas {

/// What an operator would stumble over in an order.
enum class FindingKind : std::uint8_t {
    short_line,     // lacks fields of its item key, and is not loaded
    unknown_width,  // no loader knows lines of that many fields
    quantity,       // is no number, no pair at all, or more than fits
    item_not_found, // the loader finds no line of the item that the list shows
    code_missing,   // the master code, without which nothing is printed
    colour_missing, // for which the Print command stops and asks
    barcode_missing,
    barcode_length,
    barcode_characters, // other than the symbol holds
    check_digit,
    codes_differ,      // two codes for one size
    size_without_slot, // beyond the fourteenth
    volumes,           // of a carton: no range of numbers
    text_broken,       // onto a second line
    text_shrunk,
    text_lost, // not printed at all
    photograph_missing,
};

/// The item is told by its key; it is empty where the line belongs to none. Lines are counted from
/// 1, the header, and 0 stands for the whole item.
struct Finding {
    Text item;
    std::size_t line = 0;
    FindingKind kind{};
    Text text; // in Portuguese, for the operator

    friend bool operator==(const Finding&, const Finding&) = default;
};

} // namespace etiquetas
