#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
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

/// How lines differ from those of a golden file, line by line; empty where they don't. What both
/// begin and end with is left aside, so that a line too many or too few shows alone.
inline std::string differences(const std::vector<GoldenLine>& expected,
                               const std::vector<std::string>& drawn) {
    const auto same = [](const GoldenLine& line, const std::string& text) {
        return line.text == text;
    };
    const auto [first, first_drawn] =
        std::mismatch(expected.begin(), expected.end(), drawn.begin(), drawn.end(), same);
    const auto [end, end_drawn] =
        std::mismatch(expected.rbegin(), std::make_reverse_iterator(first), drawn.rbegin(),
                      std::make_reverse_iterator(first_drawn), same);
    std::ostringstream report;
    auto line = first;
    auto text = first_drawn;
    for (; line != end.base() && text != end_drawn.base(); ++line, ++text) {
        if (!same(*line, *text)) {
            report << "line " << line->number << ": expected " << line->text << '\n'
                   << "line " << line->number << ": drawn    " << *text << '\n';
        }
    }
    for (; line != end.base(); ++line) {
        report << "line " << line->number << ": missing  " << line->text << '\n';
    }
    for (; text != end_drawn.base(); ++text) {
        const std::size_t before = line == expected.begin() ? 0 : std::prev(line)->number;
        report << "after line " << before << ": extra " << *text << '\n';
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
