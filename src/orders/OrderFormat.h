#pragma once

#include "base/Text.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace etiquetas {

// The buyer's order files: one record a line, fields separated by ";" without any quoting, counted
// from 0. The number of fields of a line, its width, tells its layout.

/// One line of an order, cut into fields. The views live as long as the line does.
class OrderLine {
  public:
    explicit OrderLine(TextView line) : fields_(split(line, u';')) {}

    [[nodiscard]] std::size_t width() const { return fields_.size(); }
    /// The field as it stands; fails with a subscript out of range where the line is too short.
    [[nodiscard]] TextView operator[](std::size_t field) const;

  private:
    std::vector<TextView> fields_;
};

/// The layout of the line's width in a table of layouts; nothing where the table has none.
template <typename Line, typename Layout, std::size_t count>
[[nodiscard]] const Layout* layoutOf(const Line& line, const std::array<Layout, count>& layouts) {
    for (const Layout& layout : layouts) {
        if (layout.width == line.width()) {
            return &layout;
        }
    }
    return nullptr;
}

/// Where the three parts of an item key stand in a line of one file kind. The key that an item is
/// chosen by is "code | description | colour", the fields as they stand.
struct ItemKeyFields {
    std::size_t code;
    std::size_t code_length; // characters of the code field that count
    std::size_t description;
    std::size_t colour;
};

/// The three parts of a chosen item key, trimmed. A typed text may lack parts; they are empty then,
/// and fit blank fields.
struct ItemKey {
    explicit ItemKey(TextView key);

    // Copies: while a loader shows a message box, other events may change the list of the keys.
    Text code;
    Text description;
    Text colour;
};

/// Characters of the master code that are the product code.
inline constexpr std::size_t product_code_length = 7;

/// Fields that stand in the same place in every box line.
namespace box_field {
inline constexpr std::size_t quantity = 0;
inline constexpr std::size_t colour = 1;
inline constexpr std::size_t size = 2;
inline constexpr std::size_t description = 4;
inline constexpr std::size_t barcode = 5;
inline constexpr std::size_t master = 6;
} // namespace box_field

/// Fields that stand in the same place in every accessory line.
namespace accessory_field {
inline constexpr std::size_t quantity = 0;
inline constexpr std::size_t colour = 1;
inline constexpr std::size_t size = 2;
inline constexpr std::size_t description = 3;
inline constexpr std::size_t week = 4;
inline constexpr std::size_t banner = 5;
inline constexpr std::size_t barcode = 6;
inline constexpr std::size_t master = 7;
} // namespace accessory_field

/// Fields that stand in the same place in every corrugated line.
namespace corrugated_field {
inline constexpr std::size_t quantity = 0;
inline constexpr std::size_t master = 2;
inline constexpr std::size_t supplier = 3;
inline constexpr std::size_t colour = 4;
inline constexpr std::size_t description = 5;
} // namespace corrugated_field

inline constexpr ItemKeyFields box_key{box_field::master, product_code_length,
                                       box_field::description, box_field::colour};
inline constexpr ItemKeyFields accessory_key{accessory_field::master, product_code_length,
                                             accessory_field::description, accessory_field::colour};
inline constexpr ItemKeyFields corrugated_key{6, TextView::npos, corrugated_field::description,
                                              corrugated_field::colour};

/// Cuts the bytes of a file into lines, ended by CR LF, CR or LF, the last one with or without an
/// end. They may be written over up to the line that was cut last.
class LineCutter {
  public:
    explicit LineCutter(std::string_view file) : file_(file) {}

    /// The next line; nothing at the end of the file.
    [[nodiscard]] std::optional<std::string_view> next();

  private:
    std::string_view file_;
    std::size_t at_ = 0;
    // Where the next CR and the next LF stand, unless that lies behind by now.
    std::size_t carriage_return_ = 0;
    std::size_t line_feed_ = 0;
};

/// Copies a line with its runs of blanks reduced: five to one, four to one, three to one, two to
/// one and two to one again, each over the whole line. A longer run may keep more than one. The
/// target may be the line itself, or lie before it. Gives the length of the copy.
std::size_t copyReduced(std::string_view line, char* target);

} // namespace etiquetas
