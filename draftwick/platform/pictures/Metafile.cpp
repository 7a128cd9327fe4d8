#include <draftwick/platform/pictures/Parts.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string_view>

// The headers of metafiles: [MS-EMF] 2.3.4.2 and [MS-WMF] 2.3.2.3 describe them.

namespace draftwick::platform::pictures {

namespace {

using Head = std::array<std::uint8_t, 88>;

bool IsEmf(const Head& head) {
    return U32(&head[0]) == 1 && U32(&head[4]) >= head.size() && U32(&head[40]) == 0x464D4520;  // " EMF"
}

bool StartsWith(const Head& head, std::string_view signature) {
    return std::equal(signature.begin(), signature.end(), head.begin(),
                      [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; });
}

/// An extent of the frame rectangle. A metafile in which nothing was drawn has the frame (0, 0, -1, -1).
std::optional<std::int32_t> Extent(std::int32_t from, std::int32_t to) {
    const std::int64_t extent = std::int64_t{to} - from;
    if (extent < -1 || extent > std::numeric_limits<std::int32_t>::max()) return {};
    return static_cast<std::int32_t>(std::max<std::int64_t>(extent, 0));
}

}  // namespace

std::optional<Size> ReadEmfSize(PictureSource& source) {
    Head head{};
    if (!source.ReadAll(head.data(), head.size()) || !IsEmf(head)) return {};
    const auto width = Extent(I32(&head[24]), I32(&head[32]));
    const auto height = Extent(I32(&head[28]), I32(&head[36]));
    if (!width || !height) return {};
    return Size{*width, *height};
}

std::optional<Size> ReadWmfSize(PictureSource& source) {
    Head head{};
    const std::size_t size = source.Read(head.data(), head.size());
    // A Windows metafile has no signature of its own, so it is only told from what it certainly is not.
    if (IsEmf(head) || StartsWith(head, "\xFF\xD8\xFF") || StartsWith(head, "GIF8") || StartsWith(head, "BM"))
        return {};
    const std::uint16_t unitsPerInch = U16(&head[14]);
    if (size < 22 || U32(&head[0]) != 0x9AC6CDD7 || unitsPerInch == 0) return Size{};
    const auto himetric = [&](std::size_t from, std::size_t to) {
        const int units = std::abs(I16(&head[to]) - I16(&head[from]));  // a mirrored drawing runs backwards
        return static_cast<std::int32_t>(std::lround(units * 2540.0 / unitsPerInch));
    };
    return Size{himetric(6, 10), himetric(8, 12)};
}

}  // namespace draftwick::platform::pictures
