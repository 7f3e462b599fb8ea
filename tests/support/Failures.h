#pragma once

#include "base/Failure.h"

#include <cstdint>

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

} // namespace etiquetas::test
