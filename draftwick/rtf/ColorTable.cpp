#include <draftwick/rtf/ColorTable.h>

namespace draftwick {

std::int32_t ColorTable::GetColorIndex(std::int32_t color) {
    // Most documents use one colour most of the time, and it came first.
    if (!colors_.empty() && colors_.front() == color) return first_;
    const auto [entry, isNew] =
        indices_.try_emplace(color, first_ + static_cast<std::int32_t>(colors_.size()));
    if (isNew) colors_.push_back(color);
    return entry->second;
}

}  // namespace draftwick
