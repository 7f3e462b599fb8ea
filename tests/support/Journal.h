#pragma once

#include "base/Failure.h"
#include "base/Text.h"

#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace etiquetas::test {

inline std::string utf8(TextView text) {
    const std::u8string bytes = std::filesystem::path(text).u8string();
    return {bytes.begin(), bytes.end()};
}

inline Text utf16(const std::string& text) {
    return std::filesystem::path(std::u8string(text.begin(), text.end())).u16string();
}

/// A text as the transcript has it.
inline std::string inQuotes(TextView text) {
    return '"' + utf8(text) + '"';
}

inline Failure refusal() {
    return {failure_number::file_access, u"fake", u"refused"};
}

/// What happened on the fakes, in order: one line each, a word and what it concerns, in UTF-8.
using Log = std::vector<std::string>;

/// Keeps the log of all fakes, and refuses the steps whose words are among the failing ones.
struct Journal {
    Log log;
    std::set<std::string> failing;

    /// What came to the printers and to the operator, in the words of the golden files.
    Log transcript;

    /// All that a reader of a journey wants to know: the transcript, and the log's other steps.
    Log story;

    /// Refuses a step of this word, if it is a failing one.
    void attempt(const std::string& word) const {
        if (failing.contains(word)) {
            throw refusal();
        }
    }
    /// Logs a step that the story leaves out, or refuses it.
    void noteAside(const std::string& word, const auto&... parts) {
        attempt(word);
        log.push_back(lineOfWords(word, parts...));
    }
    /// Logs a step, or refuses it.
    void note(const std::string& word, const auto&... parts) {
        noteAside(word, parts...);
        story.push_back(log.back());
    }
    void tell(const auto&... parts) {
        transcript.push_back(lineOfWords(parts...));
        story.push_back(transcript.back());
    }
    /// Adds a line to the transcript for a step of this word, or refuses the step.
    void tellStep(const std::string& word, const auto&... parts) {
        attempt(word);
        tell(parts...);
    }

    /// The lines of the log that begin with one of these words.
    [[nodiscard]] Log logged(const std::set<std::string>& words) const {
        Log lines = log;
        std::erase_if(lines, [&](const std::string& line) {
            return !words.contains(line.substr(0, line.find(' ')));
        });
        return lines;
    }

    /// The lines of the transcript that hold one of these pieces.
    [[nodiscard]] Log told(const auto&... pieces) const {
        Log lines = transcript;
        std::erase_if(lines, [&](const std::string& line) {
            return ((line.find(pieces) == std::string::npos) && ...);
        });
        return lines;
    }

    void forget() {
        log.clear();
        transcript.clear();
        story.clear();
    }

  private:
    static std::string lineOfWords(const std::string& word, const auto&... parts) {
        std::ostringstream line;
        line << word;
        ((line << ' ' << parts), ...);
        return line.str();
    }
};

/// What each fake has: the journal that it shares with the others.
struct Fake {
    explicit Fake(Journal& shared) : journal(shared) {}

    Journal& journal;
};

} // namespace etiquetas::test
