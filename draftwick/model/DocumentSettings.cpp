#include <draftwick/model/DocumentSettings.h>

#include <iterator>
#include <utility>

namespace draftwick::detail {

namespace {

/// Width and height in twips, in the order of dwPaperSize.
constexpr std::pair<std::int16_t, std::int16_t> Papers[] = {
    {12240, 15840}, {12240, 20160}, {15840, 24480}, {10440, 15120}, {16838, 23811},
    {11906, 16838}, {8391, 11906},  {5953, 8391},   {14173, 20013}, {9978, 14173},
    {6236, 12472},  {9184, 12983},  {5940, 13680},
};
static_assert(std::size(Papers) == dwPaperEnvelope10);

}  // namespace

dwPaperSize PageSetup::Paper() const noexcept {
    std::pair<std::int32_t, std::int32_t> size{pageWidth.Twips(), pageHeight.Twips()};
    if (size.first > size.second) std::swap(size.first, size.second);
    for (std::int32_t paper = dwPaperLetter; paper <= dwPaperEnvelope10; ++paper) {
        if (size == std::pair<std::int32_t, std::int32_t>(Papers[paper - 1])) return dwPaperSize{paper};
    }
    return dwPaperOther;
}

void PageSetup::SetPaper(dwPaperSize paper, dwOrientation orientation, std::string_view name) {
    CheckRange(paper, dwPaperLetter, dwPaperEnvelope10, name);
    const auto& [narrow, wide] = Papers[paper - 1];
    pageWidth = orientation == dwLandscape ? wide : narrow;
    pageHeight = orientation == dwLandscape ? narrow : wide;
}

}  // namespace draftwick::detail
