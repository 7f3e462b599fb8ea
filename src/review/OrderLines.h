#pragma once

#include "base/Text.h"
#include "orders/OrderFamily.h"
#include "review/Finding.h"

#include <cstddef>
#include <map>
#include <string_view>
#include <vector>

namespace etiquetas {

/// A line of an item, by its number in the file.
struct ItemLine {
    std::size_t number;
    Text text; // as the loaders see it
};

/// The lines of an order, by the item that each belongs to, and what is wrong with those that
/// belong to none.
struct OrderLines {
    std::map<Text, std::vector<ItemLine>> items;
    std::vector<Finding> strays;
};

/// Sorts the lines of an order file, bytes of code page 1252. Headings, which may stand anywhere,
/// are passed over.
[[nodiscard]] OrderLines orderLines(std::string_view file, const OrderFamily& family);

} // namespace etiquetas
