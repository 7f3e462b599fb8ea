#include "orders/OrderFormat.h"

#include "base/Failure.h"

#include <algorithm>
#include <array>

namespace etiquetas {

namespace {

TextView partOf(const std::vector<TextView>& parts, std::size_t index) {
    return index < parts.size() ? trimmed(parts[index]) : TextView{};
}

// What the five steps leave of a run of blanks: each makes one blank of so many.
constexpr std::size_t reducedRun(std::size_t blanks) {
    for (const std::size_t run : {5U, 4U, 3U, 2U, 2U}) {
        blanks = blanks / run + blanks % run;
    }
    return blanks;
}

// The same for the runs that orders are full of.
constexpr auto reduced_runs = [] {
    std::array<std::size_t, 64> reduced{};
    for (std::size_t blanks = 0; blanks < reduced.size(); ++blanks) {
        reduced[blanks] = reducedRun(blanks);
    }
    return reduced;
}();

} // namespace

TextView OrderLine::operator[](std::size_t field) const {
    if (field >= fields_.size()) {
        throw subscriptOutOfRange();
    }
    return fields_[field];
}

ItemKey::ItemKey(TextView key) {
    const auto parts = split(key, u'|');
    code = partOf(parts, 0);
    description = partOf(parts, 1);
    colour = partOf(parts, 2);
}

std::optional<std::string_view> LineCutter::next() {
    if (at_ >= file_.size()) {
        return std::nullopt;
    }
    const auto find = [this](std::size_t& known, char character) {
        if (known <= at_) {
            known = std::min(file_.find(character, at_), file_.size());
        }
    };
    find(carriage_return_, '\r');
    find(line_feed_, '\n');
    const std::size_t start = at_;
    const std::size_t end = std::min(carriage_return_, line_feed_);
    at_ = line_feed_ == end + 1 ? end + 2 : end + 1;
    return file_.substr(start, end - start);
}

std::size_t copyReduced(std::string_view line, char* target) {
    const char* from = line.data();
    const char* const end = from + line.size();
    char* to = target;
    while (from != end) {
        const char byte = *from++;
        *to++ = byte;
        if (byte != ' ' || from == end || *from != ' ') {
            continue;
        }
        const char* const run = from - 1;
        from = std::find_if(from, end, [](char next) { return next != ' '; });
        const auto blanks = static_cast<std::size_t>(from - run);
        const std::size_t left =
            blanks < reduced_runs.size() ? reduced_runs[blanks] : reducedRun(blanks);
        to = std::fill_n(to, left - 1, ' ');
    }
    return static_cast<std::size_t>(to - target);
}

} // namespace etiquetas
