#include "platform/EntryList.h"

namespace etiquetas {

// The number of changes is the list's own: it never takes one that it has had before.

EntryList& EntryList::operator=(const EntryList& other) {
    if (this != &other) {
        *this = std::vector<Text>(other);
    }
    return *this;
}

EntryList& EntryList::operator=(EntryList&& other) noexcept {
    if (this != &other) {
        change();
        gone_ = std::exchange(other.gone_, 0);
        texts_ = std::exchange(other.texts_, {});
        other.change();
    }
    return *this;
}

EntryList& EntryList::operator=(std::vector<Text> entries) {
    clear();
    texts_ = std::move(entries);
    return *this;
}

EntryList& EntryList::operator=(std::initializer_list<Text> entries) {
    return *this = std::vector<Text>(entries);
}

EntryList::iterator EntryList::erase(const_iterator at) {
    const std::size_t position = static_cast<std::size_t>(at - std::as_const(*this).begin());
    removeAt(position);
    return texts_.begin() + offset(gone_ + position);
}

void EntryList::clear() {
    change();
    texts_.clear();
    gone_ = 0;
}

void EntryList::removeAt(std::size_t at) {
    const auto first = texts_.begin() + offset(gone_);
    const auto taken = first + offset(at);
    if (at < size() / 2) {
        std::move_backward(first, taken, taken + 1);
        *first = Text();
        ++gone_;
        if (gone_ > size()) {
            texts_.erase(texts_.begin(), texts_.begin() + offset(std::exchange(gone_, 0)));
        }
    } else {
        texts_.erase(taken);
    }
    change(at);
}

} // namespace etiquetas
