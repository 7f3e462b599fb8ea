#pragma once

#include "base/CodePage.h"
#include "base/Text.h"
#include "platform/LineIndex.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace etiquetas {

/// Adds a line to an index, under each hash by which it is to be found. Gives the first line under
/// the chief one of them, `none` where the line has no such key.
using IndexLine = LineIndex::Line (*)(LineIndex& index, LineIndex::Line number,
                                      std::string_view line);

/// Lines of text that may be very many, used like a vector of texts. They are held once, as the
/// bytes of code page 1252 that they came as, and are found by their keys through an index; a line
/// that is taken away leaves a gap behind.
///
/// Whoever reads the lines as texts has them made all at once, and kept beside the bytes. Whoever
/// takes a reference that can be written, or puts a line in that the code page does not hold, turns
/// the list into a plain vector without an index, for it may then change unseen.
class LineList {
  public:
    using value_type = Text;
    using size_type = std::size_t;
    using difference_type = std::ptrdiff_t;
    using reference = Text&;
    using const_reference = const Text&;
    using iterator = std::vector<Text>::const_iterator;
    using const_iterator = std::vector<Text>::const_iterator;

    LineList() = default;
    LineList(std::initializer_list<Text> lines) : LineList(std::vector<Text>(lines)) {}
    LineList(const std::vector<Text>& lines);

    operator const std::vector<Text>&() const { return texts(); }

    [[nodiscard]] std::size_t size() const;
    [[nodiscard]] bool empty() const { return size() == 0; }
    [[nodiscard]] const_iterator begin() const { return texts().begin(); }
    [[nodiscard]] const_iterator end() const { return texts().end(); }
    [[nodiscard]] const Text& operator[](std::size_t at) const { return texts()[at]; }
    [[nodiscard]] const Text& at(std::size_t at) const { return texts().at(at); }
    [[nodiscard]] const Text& front() const { return texts().front(); }
    [[nodiscard]] const Text& back() const { return texts().back(); }

    [[nodiscard]] Text& operator[](std::size_t at) { return writable()[at]; }
    [[nodiscard]] Text& at(std::size_t at) { return writable().at(at); }
    [[nodiscard]] Text& front() { return writable().front(); }
    [[nodiscard]] Text& back() { return writable().back(); }

    void push_back(TextView line);
    void emplace_back(TextView line) { push_back(line); }
    void pop_back() { removeAt(size() - 1); }
    const_iterator erase(const_iterator at);
    void clear() { *this = LineList(); }

    /// The line at a position that is there.
    [[nodiscard]] Text textAt(std::size_t at) const;
    /// Takes the line at a position that is there away.
    void removeAt(std::size_t at);
    /// The line that was taken away last, since the list was emptied last; empty before any was.
    [[nodiscard]] const Text& removedLast() const { return removed_last_; }

    /// Takes lines over that stand one right behind the other in bytes of code page 1252, from the
    /// first byte on, and end where `ends` tells. `index` has been made of them by `how`.
    void take(std::string bytes, std::vector<std::size_t> ends, IndexLine how, LineIndex index);

    /// Looks at lines in their order, until `look` gives false: at all that an index made by `how`
    /// has under one of two hashes, and perhaps at others.
    template <typename Look>
    void visit(IndexLine how, LineIndex::Hash one, LineIndex::Hash other, const Look& look) const;

    friend bool operator==(const LineList& one, const LineList& other) {
        return one.texts() == other.texts();
    }
    friend bool operator==(const LineList& one, const std::vector<Text>& other) {
        return one.texts() == other;
    }

  private:
    using Line = LineIndex::Line;

    [[nodiscard]] const std::vector<Text>& texts() const;
    std::vector<Text>& writable();
    [[nodiscard]] LineIndex& indexBy(IndexLine how) const;
    [[nodiscard]] Line lines() const { return static_cast<Line>(ends_.size()); }
    [[nodiscard]] std::string_view bytesOf(Line line) const;
    [[nodiscard]] bool isGone(Line line) const { return !gone_.empty() && gone_[line]; }
    [[nodiscard]] Line lineAt(std::size_t at) const;
    void markGone(Line line);

    struct Index {
        IndexLine how;
        LineIndex lines;
    };

    std::string bytes_;
    std::vector<std::size_t> ends_; // of the lines in the bytes
    std::vector<bool> gone_;        // empty as long as no line is
    std::vector<std::size_t> left_; // lines that are left in each block
    std::size_t gone_count_ = 0;
    mutable std::vector<Index> indexes_;
    mutable std::optional<std::vector<Text>> texts_; // the lines as texts, once one asks for them
    bool plain_ = false;                             // nothing but those texts counts
    Text removed_last_;
};

template <typename Look>
void LineList::visit(IndexLine how, LineIndex::Hash one, LineIndex::Hash other,
                     const Look& look) const {
    if (plain_) {
        for (std::size_t i = 0; i < texts_->size() && look(TextView((*texts_)[i])); ++i) {
        }
        return;
    }
    LineIndex& index = indexBy(how);
    const auto is_gone = [this](Line line) { return isGone(line); };
    auto first = index.linesOf(one, is_gone);
    auto second = index.linesOf(other, is_gone);
    for (;;) {
        const Line line = std::min(first.line(), second.line());
        if (line == LineIndex::none) {
            return;
        }
        if (!isGone(line) && !look(TextView(fromCodePage1252(bytesOf(line))))) {
            return;
        }
        for (auto* const walk : {&first, &second}) {
            if (walk->line() == line) {
                walk->next();
            }
        }
    }
}

} // namespace etiquetas
