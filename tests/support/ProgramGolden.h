#pragma once

#include "base/CodePage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace etiquetas::test {

// Programs in printer languages as golden files: UTF-8, one line for each line of the program,
// control characters by their names.

/// A piece of a program as golden files have it.
inline std::string readable(const std::string& bytes) {
    struct Control {
        TextView character;
        TextView name;
    };
    Text text = fromCodePage1252(bytes);
    for (const Control& control : {Control{u"\001", u"<SOH>"}, Control{u"\002", u"<STX>"},
                                   Control{u"\r", u"<CR>"}, Control{u"\n", u"<LF>"}}) {
        text = replaceAll(text, control.character, control.name);
    }
    return std::filesystem::path(text).string();
}

/// The lines of a job file, which CR LF end. A last line without one is marked.
inline std::vector<std::string> programLines(std::string job) {
    std::vector<std::string> lines;
    for (auto end = job.find("\r\n"); end != std::string::npos; end = job.find("\r\n")) {
        lines.push_back(readable(job.substr(0, end)));
        job.erase(0, end + 2);
    }
    if (!job.empty()) {
        lines.push_back(readable(job) + "<no line end>");
    }
    return lines;
}

/// Whether a job file holds the program of the golden file of this name.
inline testing::AssertionResult holdsProgram(const std::string& job, const std::string& name) {
    std::ifstream golden(ETIQUETAS_GOLDENS "/" + name + ".txt");
    if (!golden) {
        return testing::AssertionFailure() << "no golden file " << name;
    }
    std::vector<std::string> expected;
    for (std::string line; std::getline(golden, line);) {
        expected.push_back(line);
    }
    std::vector<std::string> written = programLines(job);
    expected.resize(std::max(expected.size(), written.size()), "<nothing>");
    written.resize(expected.size(), "<nothing>");
    testing::AssertionResult result = testing::AssertionSuccess();
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (written[i] != expected[i]) {
            result = result ? testing::AssertionFailure() : result;
            result << "\n"
                   << name << " line " << i + 1 << ": expected " << expected[i] << "\n  written "
                   << written[i];
        }
    }
    return result;
}

} // namespace etiquetas::test
