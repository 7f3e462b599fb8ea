#pragma once

#include <gtest/gtest.h>

#include <fstream>
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

/// Whether lines are those of the golden file at this path; tells the first one that is not.
inline testing::AssertionResult matchesFile(const std::vector<std::string>& lines,
                                            const std::string& path) {
    const std::vector<GoldenLine> golden = goldenLines(path);
    if (golden.empty()) {
        return testing::AssertionFailure() << path << " is missing or empty";
    }
    auto line = lines.begin();
    for (const GoldenLine& expected : golden) {
        const std::string actual = line == lines.end() ? "<nothing>" : *line++;
        if (actual != expected.text) {
            return testing::AssertionFailure() << path << ':' << expected.number << "\nexpected "
                                               << expected.text << "\n     got " << actual;
        }
    }
    return line == lines.end() ? testing::AssertionSuccess()
                               : testing::AssertionFailure() << path << " ends before " << *line;
}

/// Whether lines are those of the golden file of this name.
inline testing::AssertionResult matchesGolden(const std::vector<std::string>& lines,
                                              const std::string& name) {
    return matchesFile(lines, ETIQUETAS_GOLDENS "/" + name + ".txt");
}

} // namespace etiquetas::test
