#include "platform/Fields.h"

#include "base/Failure.h"

#include <utility>

namespace etiquetas {

namespace {

void checkPosition(const ListField& list, int at) {
    if (at < 0 || static_cast<std::size_t>(at) >= list.entries.size()) {
        throw subscriptOutOfRange();
    }
}

} // namespace

void ListField::clear() {
    entries.clear();
    type({});
}

void ListField::choose(int at) {
    checkPosition(*this, at);
    position = at;
    text = entries[static_cast<std::size_t>(at)];
}

void ListField::remove(int at) {
    checkPosition(*this, at);
    entries.erase(entries.begin() + at);
    if (at == position) {
        type({});
    } else if (at < position) {
        --position;
    }
}

void ListField::type(Text typed) {
    text = std::move(typed);
    position = -1;
}

} // namespace etiquetas
