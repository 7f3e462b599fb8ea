#include "platform/LineList.h"

#include "base/CodePage.h"

#include <algorithm>

namespace etiquetas {

namespace {

constexpr std::size_t lines_in_block = 1024;

} // namespace

LineList::LineList(const std::vector<Text>& lines) {
    for (const Text& line : lines) {
        push_back(line);
    }
}

std::size_t LineList::size() const {
    return plain_ ? texts_->size() : lines() - gone_count_;
}

const std::vector<Text>& LineList::texts() const {
    if (!texts_) {
        texts_.emplace();
        texts_->reserve(size());
        for (Line line = 0; line < lines(); ++line) {
            if (!isGone(line)) {
                texts_->push_back(fromCodePage1252(bytesOf(line)));
            }
        }
    }
    return *texts_;
}

std::vector<Text>& LineList::writable() {
    if (!plain_) {
        std::vector<Text> lines = texts();
        clear();
        texts_ = std::move(lines);
        plain_ = true;
    }
    return *texts_;
}

void LineList::push_back(TextView line) {
    std::string bytes = toCodePage1252(line);
    if (plain_ || fromCodePage1252(bytes) != line) {
        writable().emplace_back(line);
        return;
    }
    indexes_.clear();
    if (texts_) {
        texts_->emplace_back(line);
    }
    bytes_.append(bytes);
    ends_.push_back(bytes_.size());
    if (!gone_.empty()) {
        gone_.push_back(false);
        left_.resize((gone_.size() + lines_in_block - 1) / lines_in_block);
        ++left_.back();
    }
}

LineList::const_iterator LineList::erase(const_iterator at) {
    const auto position = at - texts().begin();
    removeAt(static_cast<std::size_t>(position));
    return texts().begin() + position;
}

Text LineList::textAt(std::size_t at) const {
    return plain_ ? (*texts_)[at] : fromCodePage1252(bytesOf(lineAt(at)));
}

void LineList::removeAt(std::size_t at) {
    removed_last_ = textAt(at);
    if (!plain_) {
        markGone(lineAt(at));
    }
    if (texts_) {
        texts_->erase(texts_->begin() + static_cast<difference_type>(at));
    }
}

void LineList::take(std::string bytes, std::vector<std::size_t> ends, IndexLine how,
                    LineIndex index) {
    clear();
    bytes_ = std::move(bytes);
    ends_ = std::move(ends);
    bytes_.resize(ends_.empty() ? 0 : ends_.back());
    indexes_.push_back({how, std::move(index)});
}

LineIndex& LineList::indexBy(IndexLine how) const {
    const auto known = std::find_if(indexes_.begin(), indexes_.end(),
                                    [&](const Index& index) { return index.how == how; });
    if (known != indexes_.end()) {
        return known->lines;
    }
    LineIndex& index = indexes_.emplace_back(Index{how, {}}).lines;
    for (Line line = 0; line < lines(); ++line) {
        if (!isGone(line)) {
            how(index, line, bytesOf(line));
        }
    }
    return index;
}

std::string_view LineList::bytesOf(Line line) const {
    const std::size_t start = line == 0 ? 0 : ends_[line - 1];
    return std::string_view(bytes_).substr(start, ends_[line] - start);
}

// The line at a position among those that are left, found by the counts of the blocks.
LineList::Line LineList::lineAt(std::size_t at) const {
    if (gone_.empty()) {
        return static_cast<Line>(at);
    }
    std::size_t block = 0;
    while (at >= left_[block]) {
        at -= left_[block++];
    }
    std::size_t line = block * lines_in_block;
    for (; gone_[line] || at > 0; ++line) {
        at -= gone_[line] ? 0U : 1U;
    }
    return static_cast<Line>(line);
}

void LineList::markGone(Line line) {
    if (gone_.empty()) {
        gone_.resize(lines());
        left_.assign((gone_.size() + lines_in_block - 1) / lines_in_block, lines_in_block);
        left_.back() = (gone_.size() - 1) % lines_in_block + 1;
    }
    gone_[line] = true;
    --left_[line / lines_in_block];
    ++gone_count_;
}

} // namespace etiquetas
