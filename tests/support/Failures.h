#pragma once

#include "base/Failure.h"
#include "support/Journal.h"

#include <cstdint>
#include <sstream>
#include <string>
#include <utility>

namespace etiquetas::test {

/// Number of the failure that a step ends with; 0 where it ends well.
template <typename Step>
std::int32_t failureOf(Step&& step) {
    try {
        std::forward<Step>(step)();
    } catch (const Failure& failure) {
        return failure.number();
    }
    return 0;
}

/// How a step fails: number, source and description; empty where it ends well.
template <typename Step>
std::string failureTextOf(Step&& step) {
    try {
        std::forward<Step>(step)();
    } catch (const Failure& failure) {
        std::ostringstream text;
        text << std::hex << failure.number() << ' ' << utf8(failure.source()) << ": "
             << utf8(failure.description());
        return text.str();
    }
    return {};
}

} // namespace etiquetas::test
