#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace etiquetas {

/// Numbers of lines by the hash of a key that they have, in rising order. Keys of the same hash
/// share their lines: whoever looks lines up checks of each that it is meant.
class LineIndex {
  public:
    using Hash = std::uint64_t;
    using Line = std::uint32_t;
    static constexpr Line none = 0xFFFF'FFFF;

    /// Adds a line to those of a key, once; it is the highest one so far. Gives the first line of
    /// the key, which is this one where there was none.
    Line add(Hash key, Line line);

    /// A walk through the lines of one key. Lines may be added meanwhile.
    class Walk {
      public:
        Walk(const LineIndex& index, std::uint32_t posting) : index_(&index), posting_(posting) {}
        /// The line that the walk stands at, `none` at its end.
        [[nodiscard]] Line line() const {
            return posting_ == none ? none : index_->postings_[posting_].line;
        }
        void next() { posting_ = index_->postings_[posting_].next; }

      private:
        const LineIndex* index_;
        std::uint32_t posting_;
    };

    /// The lines of a key, some of which may be gone: those at their front that are, by `is_gone`,
    /// are passed over once and for all.
    template <typename IsGone>
    [[nodiscard]] Walk linesOf(Hash key, const IsGone& is_gone) {
        if (slots_.empty() || slots_[slotOf(key)] == none) {
            return {*this, none};
        }
        std::uint32_t& first = groups_[slots_[slotOf(key)]].first;
        while (first != none && is_gone(postings_[first].line)) {
            first = postings_[first].next;
        }
        return {*this, first};
    }

  private:
    struct Posting {
        Line line;
        std::uint32_t next;
    };
    // The lines of one hash, by their first and last posting.
    struct Group {
        Hash key;
        std::uint32_t first;
        std::uint32_t last;
    };

    [[nodiscard]] std::size_t slotOf(Hash key) const;
    [[nodiscard]] Group& groupOf(Hash key);
    void widen();

    std::vector<Posting> postings_;
    std::vector<Group> groups_;
    std::vector<std::uint32_t> slots_; // groups by hash, open addressing, never more than half full
    std::uint32_t recent_ = none;      // the group that was added to last
};

} // namespace etiquetas
