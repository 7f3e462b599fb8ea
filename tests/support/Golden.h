#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

namespace etiquetas::test {

/// Whether lines are those of the golden file of this name; tells the first one that is not. Lines
/// of the file that begin with "#" explain the others, and don't count.
inline testing::AssertionResult matchesGolden(const std::vector<std::string>& lines,
                                              const std::string& name) {
    const std::string path = ETIQUETAS_GOLDENS "/" + name + ".txt";
    std::ifstream file(path);
    if (!file) {
        return testing::AssertionFailure() << path << " is missing";
    }
    auto line = lines.begin();
    int number = 0;
    for (std::string expected; std::getline(file, expected);) {
        ++number;
        if (expected.starts_with('#')) {
            continue;
        }
        const std::string actual = line == lines.end() ? "<nothing>" : *line++;
        if (actual != expected) {
            return testing::AssertionFailure()
                   << path << ':' << number << "\nexpected " << expected << "\n     got " << actual;
        }
    }
    return line == lines.end() ? testing::AssertionSuccess()
                               : testing::AssertionFailure() << path << " ends before " << *line;
}

} // namespace etiquetas::test
