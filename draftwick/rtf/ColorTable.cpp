#include <draftwick/rtf/ColorTable.h>
#include <draftwick/rtf/Output.h>

#include <string>

namespace draftwick {

std::int32_t ColorTable::GetColorIndex(std::int32_t color) {
    // Most documents use one colour most of the time, and it came first.
    if (!colors_.empty() && colors_.front() == color) return 0;
    const auto [entry, isNew] = indices_.try_emplace(color, static_cast<std::int32_t>(colors_.size()));
    if (isNew) colors_.push_back(color);
    return entry->second;
}

void ColorTable::EmitColorTable(Output& output) const {
    if (colors_.empty()) return;
    output.WriteGroupStart();
    output.WriteControlWord("colortbl");
    for (const std::int32_t color : colors_) {
        const auto bits = static_cast<std::uint32_t>(color);
        output.WriteControlWord("red", static_cast<std::int32_t>(bits & 0xFF));
        output.WriteControlWord("green", static_cast<std::int32_t>(bits >> 8 & 0xFF));
        // The semicolon belongs to the word: a text would get a space before it.
        output.WriteControlWord("blue" + std::to_string(bits >> 16 & 0xFF) + ";");
    }
    output.WriteGroupEnd();
}

}  // namespace draftwick
