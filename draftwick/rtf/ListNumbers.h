#pragma once

#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

namespace draftwick {

/// What the paragraphs and styles of a document use of its lists, and the numbers that stand for it in the file. Lists
/// are told apart by their position from 0. It is noted when a paragraph or style is settled, and only read by writers.
class ListNumbers {
public:
    using Pairing = std::pair<std::int32_t, std::int32_t>;  // the position of the look, the override number

    /// A paragraph is numbered at a level of a list.
    void NoteLevel(std::int32_t list, std::int32_t level);
    /// The format knows override numbers from 1 to 2000: those of pairings count down from there. Before the first one.
    void CountDown() noexcept {
        nextPairing_ = 2000;
        step_ = -1;
    }
    /// A paragraph of one list has the look of another one. Its override number counts up from 10001.
    void NotePairing(std::int32_t list, std::int32_t look);

    /// The override number (RTF \ls) of a list in its own look, and in one that was noted.
    static std::int32_t OverrideNumber(std::int32_t list) noexcept { return list + 1; }
    std::int32_t OverrideNumber(std::int32_t list, std::int32_t look) const;
    /// Whether a level below the first one is in use.
    bool UsesLevels(std::int32_t list) const noexcept;
    /// In the order in which they were noted.
    const std::vector<Pairing>& Pairings(std::int32_t list) const noexcept;

private:
    struct Use {
        std::int32_t deepest = 0;
        std::vector<Pairing> pairings;
    };
    Use& UseOf(std::int32_t list);

    std::vector<Use> uses_;
    std::unordered_map<std::uint64_t, std::int32_t> numbers_;  // by both positions
    std::int32_t nextPairing_ = 10001;
    std::int32_t step_ = 1;
};

}  // namespace draftwick
