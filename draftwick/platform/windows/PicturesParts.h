#pragma once

#include <draftwick/platform/pictures/Parts.h>

#include <optional>
#include <string_view>

namespace draftwick::platform::windows {

/// The pixels of a GIF's screen, and the place of the first frame on it.
struct GifLayout {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t frameWidth = 0;
    std::int32_t frameHeight = 0;
};

/// Nothing when the file is no GIF, or too short for its pixels: system loaders show what is there of such a file.
std::optional<GifLayout> ReadGifLayout(std::string_view bytes);

}  // namespace draftwick::platform::windows
