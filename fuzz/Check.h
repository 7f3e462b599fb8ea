#pragma once

#include "base/CodePage.h"
#include "base/Failure.h"
#include "base/Text.h"

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <string>
#include <string_view>

namespace etiquetas::fuzz {

/// Ends the program where a property does not hold; libFuzzer then keeps the input as a find.
inline void require(bool holds, std::string_view property) {
    if (!holds) {
        std::cerr << "Broken: " << property << std::endl;
        std::abort();
    }
}

/// Ends the program where two values differ, and shows them.
inline void requireEqual(std::string_view one, std::string_view other, std::string_view property) {
    if (one != other) {
        std::cerr << "\"" << one << "\" is not \"" << other << "\"\n";
        require(false, property);
    }
}
inline void requireEqual(TextView one, TextView other, std::string_view property) {
    requireEqual(toCodePage1252(one), toCodePage1252(other), property);
    require(one == other, property);
}

/// Runs a step that may fail with a `Failure`, which must tell something; true where it went
/// through. Whatever else it throws is a find.
template <typename Step>
bool goesThrough(Step&& step) {
    try {
        step();
        return true;
    } catch (const Failure& failure) {
        require(failure.number() != 0 && !failure.description().empty(), "A failure says why");
        return false;
    }
}

inline std::string_view bytesOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Takes the first line off an input whose first lines are its arguments. A last line without an
/// end is a line too.
inline std::string_view takeLine(std::string_view& input) {
    const std::string_view line = input.substr(0, input.find('\n'));
    input.remove_prefix(std::min(line.size() + 1, input.size()));
    return line;
}

} // namespace etiquetas::fuzz
