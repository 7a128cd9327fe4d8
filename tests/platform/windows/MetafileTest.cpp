#include "tests/support/PictureFiles.h"
#include "tests/support/TempFolder.h"

#include <draftwick/platform/Platform.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <windows.h>

namespace draftwick::test {

namespace {

using namespace platform;

/// What the system draws when it plays a metafile of that many pixels on a grey surface. It is drawn large, and
/// looked at in the middle of each pixel: the frame, which is what gets scaled, is a rounded one.
Image Play(HENHMETAFILE metafile, const ENHMETAHEADER& header, int width, int height) {
    constexpr int Scale = 20;
    const auto pixels = [](LONG hundredths, LONG device, LONG millimetres) {
        return static_cast<LONG>(std::lround(Scale * hundredths / 100.0 * device / millimetres));
    };
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width * Scale, -height * Scale, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* memory = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &memory, nullptr, 0);
    const auto* drawn = static_cast<std::uint32_t*>(memory);
    std::fill_n(static_cast<std::uint32_t*>(memory), width * height * Scale * Scale, 0x808080);
    const HDC context = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ before = ::SelectObject(context, bitmap);
    const RECT frame{
        0, 0,
        pixels(header.rclFrame.right - header.rclFrame.left, header.szlDevice.cx, header.szlMillimeters.cx),
        pixels(header.rclFrame.bottom - header.rclFrame.top, header.szlDevice.cy, header.szlMillimeters.cy)};
    EXPECT_TRUE(::PlayEnhMetaFile(context, metafile, &frame));
    ::GdiFlush();
    Image image{width, height, {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            image.pixels.push_back(drawn[(y * Scale + Scale / 2) * width * Scale + x * Scale + Scale / 2]
                                   & 0xFFFFFF);
        }
    }
    ::SelectObject(context, before);
    ::DeleteDC(context);
    ::DeleteObject(bitmap);
    return image;
}

}  // namespace

TEST(Metafile, OfABitmapAndAGifIsPlayedByTheSystem) {
    const TempFolder folder;
    WriteFile(folder / "a.bmp", PictureFile("sample/24.bmp"));
    WriteFile(folder / "a.gif", PictureFile("sample/a.gif"));
    const Platform system = SystemPlatform();
    for (const auto& [name, kind] : {std::pair("a.bmp", PictureKind::Bmp), {"a.gif", PictureKind::Gif}}) {
        std::error_code error;
        const auto picture = system.pictures->Load(*system.files, folder / name, kind, error);
        ASSERT_NE(picture, nullptr) << name << ": " << error.message();
        const std::string recorded = folder / "a.emf";
        system.pictures->Record(*picture, 5, 3, *system.files, recorded, error);
        ASSERT_FALSE(error) << error.message();

        const HENHMETAFILE metafile = ::GetEnhMetaFileA(recorded.c_str());
        ASSERT_NE(metafile, nullptr) << name;
        ENHMETAHEADER header{};
        ASSERT_NE(::GetEnhMetaFileHeader(metafile, sizeof header, &header), 0U);
        EXPECT_EQ(header.dSignature, static_cast<DWORD>(ENHMETA_SIGNATURE));
        EXPECT_EQ(header.rclBounds.right - header.rclBounds.left, 4);
        EXPECT_EQ(header.rclBounds.bottom - header.rclBounds.top, 2);
        EXPECT_EQ(Play(metafile, header, 5, 3), sample) << name;
        ::DeleteEnhMetaFile(metafile);
    }
}

}  // namespace draftwick::test
