#pragma once

#include <cstddef>
#include <ctime>
#include <fstream>
#include <string>

namespace etiquetas {

/// CPU time of this process so far, in milliseconds.
inline double cpuMilliseconds() {
    return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// Memory of this process in bytes, as the system tells it by a name: "VmRSS" now, "VmHWM" at its
/// highest. 0 where the system does not tell.
inline std::size_t memory(const std::string& name) {
    constexpr std::size_t kilobyte = 1024;
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        if (word == name + ":") {
            std::size_t kilobytes = 0;
            status >> kilobytes;
            return kilobytes * kilobyte;
        }
    }
    return 0;
}

} // namespace etiquetas
