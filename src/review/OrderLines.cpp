#include "review/OrderLines.h"

#include "base/CodePage.h"
#include "base/Numbers.h"
#include "orders/OrderFormat.h"
#include "orders/OrderIndex.h"

#include <optional>
#include <string>

namespace etiquetas {

namespace {

class Sorter {
  public:
    explicit Sorter(const OrderFamily& family) : family_(family) {}

    void take(std::size_t number, std::string_view line) {
        std::string reduced(line);
        reduced.resize(copyReduced(line, reduced.data()));
        const OrderBytes bytes(reduced);
        Text text = fromCodePage1252(reduced);
        const OrderLine fields(text);
        if (!isNumeric(fields[0])) {
            tellWhereItemIsMeant(number, fields);
        } else if (!hasKey(bytes, family_.key)) {
            tell(number, FindingKind::short_line,
                 Text(u"A linha tem ").append(countOf(fields)).append(u" e não é carregada"));
        } else {
            sorted.items[itemKey(bytes, family_.key)].push_back({number, std::move(text)});
        }
    }

    OrderLines sorted;

  private:
    // A line without a number in front is a heading, which has no number for a code either.
    void tellWhereItemIsMeant(std::size_t number, const OrderLine& fields) {
        if (fields.width() > family_.key.code && isNumeric(trimmed(fields[family_.key.code]))) {
            tell(number, FindingKind::quantity,
                 Text(u"A linha não é carregada: a quantidade \"")
                     .append(fields[0])
                     .append(u"\" não é um número"));
        }
    }

    void tell(std::size_t number, FindingKind kind, Text text) {
        sorted.strays.push_back({.line = number, .kind = kind, .text = std::move(text)});
    }

    static Text countOf(const OrderLine& fields) {
        const auto width = static_cast<std::int32_t>(fields.width());
        return numberText(width).append(width == 1 ? u" campo" : u" campos");
    }

    const OrderFamily& family_;
};

} // namespace

OrderLines orderLines(std::string_view file, const OrderFamily& family) {
    Sorter sorter(family);
    LineCutter cutter(file);
    std::size_t number = 0;
    while (const auto line = cutter.next()) {
        ++number;
        if (number > 1 && !trimmed(*line).empty()) { // the first one is the header, whatever it is
            sorter.take(number, *line);
        }
    }
    return std::move(sorter.sorted);
}

} // namespace etiquetas
