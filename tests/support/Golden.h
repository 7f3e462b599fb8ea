#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
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

inline std::string goldenPath(const std::string& name) {
    return ETIQUETAS_GOLDENS "/" + name + ".txt";
}

/// The lines of a golden file. Those that begin with "#" explain the others, and don't count.
inline std::vector<GoldenLine> goldenLines(const std::string& name) {
    std::vector<GoldenLine> lines;
    std::ifstream file(goldenPath(name));
    std::size_t number = 0;
    for (std::string text; std::getline(file, text);) {
        ++number;
        if (!text.empty() && text.front() != '#') {
            lines.push_back({number, text});
        }
    }
    return lines;
}

/// For each pair of places the length of the longest run of lines, with gaps, that both texts have
/// in common from there to their ends.
inline std::vector<std::vector<std::size_t>> commonRuns(const std::vector<GoldenLine>& expected,
                                                        const std::vector<std::string>& drawn) {
    std::vector<std::vector<std::size_t>> runs(expected.size() + 1,
                                               std::vector<std::size_t>(drawn.size() + 1));
    for (std::size_t i = expected.size(); i-- > 0;) {
        for (std::size_t j = drawn.size(); j-- > 0;) {
            runs[i][j] = expected[i].text == drawn[j] ? runs[i + 1][j + 1] + 1
                                                      : std::max(runs[i + 1][j], runs[i][j + 1]);
        }
    }
    return runs;
}

/// The differing lines between two places where both texts agree.
inline std::string differenceOf(const std::vector<GoldenLine>& missing,
                                const std::vector<std::string>& extra, std::size_t line_before) {
    std::ostringstream report;
    const std::size_t changed = std::min(missing.size(), extra.size());
    for (std::size_t i = 0; i < changed; ++i) {
        report << "line " << missing[i].number << ": expected " << missing[i].text << '\n'
               << std::string(10, ' ') << "drawn    " << extra[i] << '\n';
    }
    for (std::size_t i = changed; i < missing.size(); ++i) {
        report << "line " << missing[i].number << ": missing  " << missing[i].text << '\n';
    }
    for (std::size_t i = changed; i < extra.size(); ++i) {
        report << "after line " << (missing.empty() ? line_before : missing.back().number)
               << ": extra    " << extra[i] << '\n';
    }
    return report.str();
}

/// How lines differ from those of a golden file, line by line; empty where they don't.
inline std::string differences(const std::vector<GoldenLine>& expected,
                               const std::vector<std::string>& drawn) {
    const auto runs = commonRuns(expected, drawn);
    std::string report;
    std::vector<GoldenLine> missing;
    std::vector<std::string> extra;
    std::size_t line_before = 0;
    const auto close = [&] {
        report += differenceOf(missing, extra, line_before);
        missing.clear();
        extra.clear();
    };
    std::size_t i = 0, j = 0;
    while (i < expected.size() || j < drawn.size()) {
        const bool both_left = i < expected.size() && j < drawn.size();
        if (both_left && expected[i].text == drawn[j]) {
            close();
            line_before = expected[i].number;
            ++i, ++j;
        } else if (j == drawn.size() || (both_left && runs[i + 1][j] >= runs[i][j + 1])) {
            missing.push_back(expected[i++]);
        } else {
            extra.push_back(drawn[j++]);
        }
    }
    close();
    return report;
}

/// Whether lines are those of the golden file of this name.
inline testing::AssertionResult matchesGolden(const std::vector<std::string>& drawn,
                                              const std::string& name) {
    const std::vector<GoldenLine> expected = goldenLines(name);
    if (expected.empty()) {
        return testing::AssertionFailure() << goldenPath(name) << " is missing or empty";
    }
    const std::string report = differences(expected, drawn);
    return report.empty() ? testing::AssertionSuccess()
                          : testing::AssertionFailure() << goldenPath(name) << '\n'
                                                        << report;
}

} // namespace etiquetas::test
