#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace etiquetas::test {

/// A line of a golden file, and where it stands in it, counted from 1.
struct GoldenLine {
    std::size_t number;
    std::string text;
};

/// The lines of a golden file. Those that begin with "#" explain the others, and don't count.
inline std::vector<GoldenLine> goldenLines(const std::string& path) {
    std::vector<GoldenLine> lines;
    std::ifstream file(path);
    std::size_t number = 0;
    for (std::string text; std::getline(file, text);) {
        ++number;
        if (!text.starts_with('#')) {
            lines.push_back({number, text});
        }
    }
    return lines;
}

/// A place in the golden file and one among the lines drawn, both counted from 0.
struct Places {
    std::size_t expected;
    std::size_t drawn;
};

/// The nearest places, from these on, where both have the same line; both ends where there are
/// none.
inline Places nextAgreement(const std::vector<GoldenLine>& expected,
                            const std::vector<std::string>& drawn, const Places& from) {
    const std::size_t farthest = expected.size() + drawn.size() - from.expected - from.drawn;
    for (std::size_t distance = 0; distance < farthest; ++distance) {
        for (std::size_t missing = 0; missing <= distance; ++missing) {
            const Places at{from.expected + missing, from.drawn + distance - missing};
            if (at.expected < expected.size() && at.drawn < drawn.size() &&
                expected[at.expected].text == drawn[at.drawn]) {
                return at;
            }
        }
    }
    return {expected.size(), drawn.size()};
}

/// How lines differ from those of a golden file, line by line; empty where they don't.
inline std::string differences(const std::vector<GoldenLine>& expected,
                               const std::vector<std::string>& drawn) {
    std::ostringstream report;
    std::size_t last_number = 0;
    Places at{};
    while (at.expected < expected.size() || at.drawn < drawn.size()) {
        const Places next = nextAgreement(expected, drawn, at);
        for (; at.expected < next.expected; ++at.expected) {
            const GoldenLine& line = expected[at.expected];
            const bool is_changed = at.drawn < next.drawn;
            report << "line " << line.number << (is_changed ? ": expected " : ": missing  ")
                   << line.text << '\n';
            if (is_changed) {
                report << "line " << line.number << ": drawn    " << drawn[at.drawn++] << '\n';
            }
            last_number = line.number;
        }
        for (; at.drawn < next.drawn; ++at.drawn) {
            report << "after line " << last_number << ": extra " << drawn[at.drawn] << '\n';
        }
        last_number = next.expected < expected.size() ? expected[next.expected].number : 0;
        at = {next.expected + 1, next.drawn + 1};
    }
    return report.str();
}

/// Whether lines are those of the golden file of this name.
inline testing::AssertionResult matchesGolden(const std::vector<std::string>& drawn,
                                              const std::string& name) {
    const std::string path = ETIQUETAS_GOLDENS "/" + name + ".txt";
    const std::vector<GoldenLine> expected = goldenLines(path);
    if (expected.empty()) {
        return testing::AssertionFailure() << path << " is missing or empty";
    }
    const std::string report = differences(expected, drawn);
    return report.empty() ? testing::AssertionSuccess()
                          : testing::AssertionFailure() << path << '\n'
                                                        << report;
}

} // namespace etiquetas::test
