#include <draftwick/rtf/ListNumbers.h>

#include <algorithm>
#include <cstddef>

namespace draftwick {

namespace {

std::uint64_t KeyOf(std::int32_t list, std::int32_t look) {
    return std::uint64_t{static_cast<std::uint32_t>(list)} << 32 | static_cast<std::uint32_t>(look);
}

}  // namespace

void ListNumbers::NoteLevel(std::int32_t list, std::int32_t level) {
    Use& use = UseOf(list);
    use.deepest = std::max(use.deepest, level);
}

void ListNumbers::NotePairing(std::int32_t list, std::int32_t look) {
    std::vector<Pairing>& pairings = UseOf(list).pairings;
    const auto [entry, isNew] = numbers_.try_emplace(KeyOf(list, look), nextPairing_);
    if (!isNew) return;
    try {
        pairings.emplace_back(look, entry->second);
    } catch (...) {
        numbers_.erase(entry);
        throw;
    }
    nextPairing_ += step_;
}

std::int32_t ListNumbers::OverrideNumber(std::int32_t list, std::int32_t look) const {
    return numbers_.at(KeyOf(list, look));
}

bool ListNumbers::UsesLevels(std::int32_t list) const noexcept {
    const auto index = static_cast<std::size_t>(list);
    return index < uses_.size() && uses_[index].deepest > 1;
}

const std::vector<ListNumbers::Pairing>& ListNumbers::Pairings(std::int32_t list) const noexcept {
    static const std::vector<Pairing> none;
    const auto index = static_cast<std::size_t>(list);
    return index < uses_.size() ? uses_[index].pairings : none;
}

ListNumbers::Use& ListNumbers::UseOf(std::int32_t list) {
    const auto index = static_cast<std::size_t>(list);
    if (index >= uses_.size()) uses_.resize(index + 1);
    return uses_[index];
}

}  // namespace draftwick
