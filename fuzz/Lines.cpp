// Any changes of a list of lines: it holds what a vector of the same texts holds.
//
// Input: a list of lines as an order file has them, up to a line that is empty; then lines of which
// the first character tells the change, and the rest is its text.

#include "Check.h"
#include "platform/LineList.h"

#include <vector>

namespace etiquetas::fuzz {

namespace {

void requireSame(const LineList& lines, const std::vector<Text>& texts) {
    require(lines.size() == texts.size() && lines.empty() == texts.empty(), "As many lines");
    for (std::size_t i = 0; i < texts.size(); ++i) {
        require(lines.textAt(i) == texts[i], "The line of that place");
    }
}

// Lines as they come from a file, found by nothing.
void takeFile(LineList& lines, std::vector<Text>& texts, std::string_view& input) {
    std::string bytes;
    std::vector<std::size_t> ends;
    for (auto line = takeLine(input); !line.empty(); line = takeLine(input)) {
        texts.push_back(fromCodePage1252(line));
        bytes.append(line);
        ends.push_back(bytes.size());
    }
    lines.take(std::move(bytes), std::move(ends), nullptr, LineIndex());
}

// A text of a place that is there: the length of the change's own text tells which.
void changeOne(char change, std::size_t place, const Text& text, LineList& lines,
               std::vector<Text>& texts) {
    const auto offset = static_cast<std::ptrdiff_t>(place);
    switch (change) {
    case 'r':
        lines.removeAt(place);
        requireEqual(lines.removedLast(), texts[place], "The line that was removed last");
        texts.erase(texts.begin() + offset);
        break;
    case 'e':
        lines.erase(lines.begin() + offset);
        texts.erase(texts.begin() + offset);
        break;
    case 'w':
        lines[place] = text;
        texts[place] = text;
        break;
    case 'p':
        lines.pop_back();
        texts.pop_back();
        break;
    default: // asks for the texts, which are kept from here on
        require(lines == texts, "The lines as texts");
    }
}

void change(LineList& lines, std::vector<Text>& texts, std::string_view step) {
    Text text = fromCodePage1252(step.substr(1));
    switch (step.front()) {
    case 'c':
        lines.clear();
        texts.clear();
        break;
    case 'o':
        text += u'\u0416'; // which the code page does not hold
        [[fallthrough]];
    case 'a':
        lines.push_back(text);
        texts.push_back(text);
        break;
    default:
        if (!texts.empty()) {
            changeOne(step.front(), step.size() % texts.size(), text, lines, texts);
        }
    }
}

void changeLines(std::string_view input) {
    LineList lines;
    std::vector<Text> texts;
    takeFile(lines, texts, input);
    requireSame(lines, texts);
    while (!input.empty()) {
        const std::string_view step = takeLine(input);
        if (!step.empty()) {
            change(lines, texts, step);
            requireSame(lines, texts);
        }
    }
    require(LineList(texts) == lines, "A list of the same texts");
}

} // namespace

} // namespace etiquetas::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t most_bytes = 4096; // each change compares all lines
    using namespace etiquetas::fuzz;
    changeLines(bytesOf(data, std::min(size, most_bytes)));
    return 0;
}
