#pragma once

#include "orders/OrderFormat.h"
#include "platform/LineList.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace etiquetas {

// The lines of an order by the items that they belong to, so that a loader finds those of one item
// without a walk through all of them. Lines are found by their item key, its parts trimmed, and by
// the code that the loader compares where that is another one. Whoever is led to a line still
// checks it as in a walk.

/// One line of an order as bytes, cut into as many fields as any item key needs.
class OrderBytes {
  public:
    OrderBytes() = default;
    explicit OrderBytes(std::string_view line);

    /// A field among the first eight; the line must have it.
    [[nodiscard]] std::string_view operator[](std::size_t field) const { return fields_[field]; }
    [[nodiscard]] bool has(std::size_t field) const { return field < count_; }
    [[nodiscard]] std::size_t width() const;

  private:
    std::array<std::string_view, 8> fields_;
    std::size_t count_ = 0;
    std::string_view rest_; // the fields after them, where there are some
    bool rest_is_field_ = false;
};

/// True when the line is long enough for its item key.
[[nodiscard]] bool hasKey(const OrderBytes& line, const ItemKeyFields& key);

/// The item key of a line that is long enough for it.
[[nodiscard]] Text itemKey(const OrderBytes& line, const ItemKeyFields& key);

/// True when two lines have the same item key.
[[nodiscard]] bool sameKey(const OrderBytes& one, const OrderBytes& other,
                           const ItemKeyFields& key);

/// The hash of the item key of a line that is long enough for it, as the key stands.
[[nodiscard]] LineIndex::Hash keyHash(const OrderBytes& line, const ItemKeyFields& key);

/// The hash of an item by the trimmed parts of its key.
[[nodiscard]] LineIndex::Hash itemHash(TextView code, TextView description, TextView colour);
[[nodiscard]] inline LineIndex::Hash itemHash(const ItemKey& item) {
    return itemHash(item.code, item.description, item.colour);
}

/// The hash of the lines that are too short for their item key.
inline constexpr LineIndex::Hash short_lines = 1;

/// Adds a line by its item key and gives the first line of that key, its parts trimmed. A line that
/// is too short is added to the short ones, and gives `none`.
LineIndex::Line indexByItem(LineIndex& index, LineIndex::Line number, const OrderBytes& line,
                            const ItemKeyFields& key);

/// Adds a line that is long enough by a code too, where that is not the one of its item key.
void indexByCode(LineIndex& index, LineIndex::Line number, const OrderBytes& line,
                 const ItemKeyFields& key, std::string_view code);

/// How the lines of a family are added to an index.
using IndexFields = LineIndex::Line (*)(LineIndex&, LineIndex::Line, const OrderBytes&);

/// The same of a line that is not cut yet, as a list of lines needs it.
template <IndexFields index_fields>
LineIndex::Line cutAndIndex(LineIndex& index, LineIndex::Line number, std::string_view line) {
    return index_fields(index, number, OrderBytes(line));
}

/// The bytes without the blanks at their ends.
[[nodiscard]] inline std::string_view trimmed(std::string_view bytes) {
    while (!bytes.empty() && bytes.front() == ' ') {
        bytes.remove_prefix(1);
    }
    while (!bytes.empty() && bytes.back() == ' ') {
        bytes.remove_suffix(1);
    }
    return bytes;
}

/// Looks at each line that may belong to the item, in their order.
template <typename Look>
void visitItem(const LineList& lines, IndexLine how, const ItemKey& item, const Look& look) {
    const LineIndex::Hash hash = itemHash(item);
    lines.visit(how, hash, hash, [&look](TextView text) {
        look(OrderLine(text));
        return true;
    });
}

} // namespace etiquetas
