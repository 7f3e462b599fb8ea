#pragma once

#include "base/Failure.h"
#include "support/Journal.h"

namespace etiquetas::test {

/// Number of the failure that a step ends with; 0 where it ends well.
template <typename Step>
std::int32_t failureOf(const Step& step) {
    try {
        step();
    } catch (const Failure& failure) {
        return failure.number();
    }
    return 0;
}

/// How a step fails: number, source and description; empty where it ends well.
template <typename Step>
std::string failureTextOf(const Step& step) {
    std::ostringstream text;
    try {
        step();
    } catch (const Failure& failure) {
        text << std::hex << failure.number() << ' ' << utf8(failure.source()) << ": "
             << utf8(failure.description());
    }
    return text.str();
}

} // namespace etiquetas::test
