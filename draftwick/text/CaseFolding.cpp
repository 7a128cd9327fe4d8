#include <draftwick/text/CaseFolding.h>
#include <draftwick/text/Utf8.h>

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace draftwick {

namespace {

struct Range {
    char32_t first;
    char32_t last;
    char32_t step;
    std::int32_t distance;
};

constexpr Range Ranges[] = {
#include <draftwick/text/CaseFoldingTable.inc>
};

char32_t Fold(char32_t character) {
    const Range* range = std::lower_bound(std::begin(Ranges), std::end(Ranges), character,
                                          [](const Range& r, char32_t c) { return r.last < c; });
    if (range == std::end(Ranges) || character < range->first) return character;
    if ((character - range->first) % range->step != 0) return character;
    return static_cast<char32_t>(static_cast<std::int32_t>(character) + range->distance);
}

}  // namespace

std::string FoldCase(std::string_view utf8) {
    std::string folded{utf8};
    std::size_t position = 0;
    for (; position < folded.size() && static_cast<unsigned char>(folded[position]) < 0x80; ++position) {
        char& c = folded[position];
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
    }
    folded.resize(position);
    while (position < utf8.size()) {
        const char c = utf8[position];
        if (static_cast<unsigned char>(c) < 0x80) {
            folded.push_back(c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c);
            ++position;
        } else {
            AppendUtf8(folded, Fold(DecodeUtf8(utf8, position)));
        }
    }
    return folded;
}

}  // namespace draftwick
