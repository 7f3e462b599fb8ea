#pragma once

#include "base/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <utility>
#include <vector>

namespace etiquetas {

/// The entries of a list, used like a vector of texts. It counts its changes, so that whoever shows
/// it knows without looking at the entries whether they are as before; and an entry near the front
/// is taken away without a move of all that stand behind it.
class EntryList {
  public:
    using value_type = Text;
    using size_type = std::size_t;
    using difference_type = std::ptrdiff_t;
    using reference = Text&;
    using const_reference = const Text&;
    using iterator = std::vector<Text>::iterator;
    using const_iterator = std::vector<Text>::const_iterator;

    EntryList() = default;
    EntryList(std::initializer_list<Text> entries) : texts_(entries) {}
    EntryList(std::vector<Text> entries) : texts_(std::move(entries)) {}
    EntryList(const EntryList& other) = default;
    EntryList(EntryList&& other) = default;
    ~EntryList() = default;
    EntryList& operator=(const EntryList& other);
    EntryList& operator=(EntryList&& other) noexcept;
    EntryList& operator=(std::vector<Text> entries);
    EntryList& operator=(std::initializer_list<Text> entries);

    operator std::vector<Text>() const { return {begin(), end()}; }

    [[nodiscard]] std::size_t size() const { return texts_.size() - gone_; }
    [[nodiscard]] bool empty() const { return size() == 0; }
    [[nodiscard]] const_iterator begin() const { return texts_.begin() + offset(gone_); }
    [[nodiscard]] const_iterator end() const { return texts_.end(); }
    [[nodiscard]] const Text& operator[](std::size_t at) const { return texts_[gone_ + at]; }
    [[nodiscard]] const Text& at(std::size_t at) const { return texts_.at(gone_ + at); }
    [[nodiscard]] const Text& front() const { return texts_[gone_]; }
    [[nodiscard]] const Text& back() const { return texts_.back(); }

    // What hands out an entry that can be written counts as a change.
    [[nodiscard]] iterator begin() { return writable().begin() + offset(gone_); }
    [[nodiscard]] iterator end() { return writable().end(); }
    [[nodiscard]] Text& operator[](std::size_t at) { return writable()[gone_ + at]; }
    [[nodiscard]] Text& at(std::size_t at) { return writable().at(gone_ + at); }
    [[nodiscard]] Text& front() { return writable()[gone_]; }
    [[nodiscard]] Text& back() { return writable().back(); }

    void reserve(std::size_t count) { texts_.reserve(gone_ + count); }
    void push_back(Text entry) { writable().push_back(std::move(entry)); }
    template <typename... Parts>
    Text& emplace_back(Parts&&... parts) {
        return writable().emplace_back(std::forward<Parts>(parts)...);
    }
    void pop_back() { writable().pop_back(); }
    iterator insert(const_iterator before, Text entry) {
        return writable().insert(before, std::move(entry));
    }
    iterator erase(const_iterator at);
    iterator erase(const_iterator first, const_iterator last) {
        return writable().erase(first, last);
    }
    void clear();

    /// The entry at a position that is there.
    [[nodiscard]] const Text& textAt(std::size_t at) const { return (*this)[at]; }
    /// Takes the entry at a position that is there away.
    void removeAt(std::size_t at);

    /// Another number after each change.
    [[nodiscard]] std::uint64_t revision() const { return revision_; }
    /// Where the last change took one entry away, if that is what it did.
    [[nodiscard]] std::optional<std::size_t> removedLast() const { return removed_last_; }

    friend bool operator==(const EntryList& one, const EntryList& other) {
        return std::equal(one.begin(), one.end(), other.begin(), other.end());
    }
    friend bool operator==(const EntryList& one, const std::vector<Text>& other) {
        return std::equal(one.begin(), one.end(), other.begin(), other.end());
    }

  private:
    [[nodiscard]] static difference_type offset(std::size_t count) {
        return static_cast<difference_type>(count);
    }
    void change(std::optional<std::size_t> removed = {}) {
        ++revision_;
        removed_last_ = removed;
    }
    std::vector<Text>& writable() {
        change();
        return texts_;
    }

    std::vector<Text> texts_;
    std::size_t gone_ = 0; // texts at the front that have been taken away, empty by now
    std::uint64_t revision_ = 0;
    std::optional<std::size_t> removed_last_;
};

} // namespace etiquetas
