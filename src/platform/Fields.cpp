#include "platform/Fields.h"

#include "base/Failure.h"

#include <utility>

namespace etiquetas {

namespace {

template <typename Entries>
std::size_t checkedPosition(const Entries& entries, int at) {
    if (at < 0 || static_cast<std::size_t>(at) >= entries.size()) {
        throw subscriptOutOfRange();
    }
    return static_cast<std::size_t>(at);
}

} // namespace

template <typename Entries>
void BasicListField<Entries>::clear() {
    entries.clear();
    type({});
}

template <typename Entries>
void BasicListField<Entries>::choose(int at) {
    text = entries.textAt(checkedPosition(entries, at));
    position = at;
}

template <typename Entries>
void BasicListField<Entries>::remove(int at) {
    entries.removeAt(checkedPosition(entries, at));
    if (at == position) {
        type({});
    } else if (at < position) {
        --position;
    }
}

template <typename Entries>
void BasicListField<Entries>::type(Text typed) {
    text = std::move(typed);
    position = -1;
}

template struct BasicListField<EntryList>;
template struct BasicListField<LineList>;

} // namespace etiquetas
