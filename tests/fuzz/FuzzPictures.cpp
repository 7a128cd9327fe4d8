// A libFuzzer target for the picture loaders. The first byte chooses the kind, the rest is the file. What loads
// as a bitmap is recorded too, and the record must be exactly as long as its own header says.

#include <draftwick/platform/Pictures.h>

#include "tests/support/FakePlatform.h"

#include <cstdlib>

using namespace draftwick;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const auto kind = static_cast<platform::PictureKind>(data[0] % 6);
    const auto memory = std::make_shared<test::MemoryFiles>();
    test::MemoryFiles& files = *memory;
    files.Put("picture", {reinterpret_cast<const char*>(data + 1), size - 1});
    const auto pictures = platform::SystemPictures();

    std::error_code error;
    const auto picture = pictures->Load(files, "picture", kind, error);
    if (picture == nullptr) {
        if (error != platform::PictureError::Unreadable) std::abort();
        return 0;
    }
    if (picture->Width() < 0 || picture->Height() < 0) std::abort();
    if (kind != platform::PictureKind::Gif && kind != platform::PictureKind::Bmp) return 0;

    const auto pixels = [&](std::int32_t himetric) {
        return static_cast<std::int32_t>(himetric / 2540.0 * 1440 / pictures->TwipsPerPixel());
    };
    const std::int32_t width = pixels(picture->Width());
    const std::int32_t height = pixels(picture->Height());
    pictures->Record(*picture, width, height, files, "recorded", error);
    if (error) std::abort();
    const std::string recorded = files.Bytes("recorded");
    std::uint32_t claimed = 0;
    for (std::size_t byte = 4; byte-- > 0;)
        claimed = claimed << 8 | static_cast<unsigned char>(recorded[48 + byte]);
    if (claimed != recorded.size()) std::abort();
    // One pixel more is not there.
    pictures->Record(*picture, width + 1, height, files, "recorded", error);
    if (error != std::errc::invalid_argument) std::abort();
    return 0;
}
