#include "platform/LineIndex.h"

namespace etiquetas {

LineIndex::Line LineIndex::add(Hash key, Line line) {
    Group& group = groupOf(key);
    const bool is_first = group.first == none;
    if (is_first || postings_[group.last].line != line) {
        const auto posting = static_cast<std::uint32_t>(postings_.size());
        postings_.push_back({line, none});
        (is_first ? group.first : postings_[group.last].next) = posting;
        group.last = posting;
    }
    return postings_[group.first].line;
}

// The slot of the key's group, or the empty one where it would stand.
std::size_t LineIndex::slotOf(Hash key) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = static_cast<std::size_t>(key) & mask;
    while (slots_[slot] != none && groups_[slots_[slot]].key != key) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

// The lines of an item mostly stand one after the other.
LineIndex::Group& LineIndex::groupOf(Hash key) {
    if (recent_ != none && groups_[recent_].key == key) {
        return groups_[recent_];
    }
    if (2 * (groups_.size() + 1) > slots_.size()) {
        widen();
    }
    const std::size_t slot = slotOf(key);
    if (slots_[slot] == none) {
        slots_[slot] = static_cast<std::uint32_t>(groups_.size());
        groups_.push_back({key, none, none});
    }
    recent_ = slots_[slot];
    return groups_[recent_];
}

void LineIndex::widen() {
    constexpr std::size_t fewest = 64;
    constexpr std::size_t factor = 4;
    slots_.assign(slots_.empty() ? fewest : factor * slots_.size(), none);
    for (std::size_t i = 0; i < groups_.size(); ++i) {
        slots_[slotOf(groups_[i].key)] = static_cast<std::uint32_t>(i);
    }
}

} // namespace etiquetas
