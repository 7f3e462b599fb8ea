#pragma once

#include <concepts>
#include <ostream>
#include <string>

namespace etiquetas::test {

/// A row of a parameterised test: a struct with a `name`.
template <typename Case>
concept NamedCase = requires(const Case& row) {
    { row.name } -> std::convertible_to<std::string>;
};

/// Names the test of a row after it.
struct CaseName {
    template <typename Info>
    std::string operator()(const Info& info) const {
        return info.param.name;
    }
};

/// GoogleTest shows a row by its name.
template <NamedCase Case>
void PrintTo(const Case& row, std::ostream* out) {
    *out << row.name;
}

} // namespace etiquetas::test
