#include "tests/platform/LoadedPictures.h"

#include <sstream>

namespace draftwick::test {

using namespace platform;

TEST(Pictures, RecordedMetafileByteForByte) {
    // Six colours need four bits: a table of 16, rows of (3 * 4 + 31) / 32 * 4 = 4 bytes.
    // 3 by 2 pixels are 79.375 by 52.917 HIMETRIC; the device has 1920 pixels on 508 mm, 96 per inch.
    std::error_code error;
    const auto picture = LoadBytes(PictureFile("whole.gif"), PictureKind::Gif, error);
    // The header, the record of the bitmap, the bitmap, whose bottom row comes first, and the end.
    std::istringstream fields(
        "1 108 0 0 2 1 0 0 80 53 1179469088 65536 320 3 1 0 0 0 1920 1440 508 381 0 0 0 508000 381000 "
        "81 192 0 0 2 1 0 0 0 0 3 2 80 104 184 8 0 13369376 3 2 "
        "40 3 2 262145 0 8 0 0 16 0 16711680 65280 255 16776960 16711935 0 0 0 0 0 0 0 0 0 0 0 20532 8193 "
        "14 20 0 16 20");
    std::string expected;
    for (std::uint32_t field = 0; fields >> field;) expected += Le32(field);
    EXPECT_EQ(Recorded(*picture, 3, 2), expected);
}

TEST(Pictures, RecordedDepthFollowsTheColours) {
    for (const auto& [colours, depth] :
         {std::pair(1, 1), {2, 1}, {3, 4}, {16, 4}, {17, 8}, {256, 8}, {257, 24}}) {
        // A bitmap of 32 bits, so that every pixel can have a colour of its own.
        std::string bytes =
            "BM" + Le32(0) + Le32(0) + Le32(54) + Le32(40) + Le32(257) + Le32(1) + Le16(1) + Le16(32);
        bytes.resize(54);
        Image image{257, 1, {}};
        for (std::uint32_t x = 0; x < 257; ++x) {
            image.pixels.push_back(x % static_cast<std::uint32_t>(colours) * 0x10307 & 0xFFFFFF);
            bytes += Le32(image.pixels.back());
        }
        int bits = 0;
        std::error_code error;
        const auto picture = LoadBytes(bytes, PictureKind::Bmp, error);
        ASSERT_NE(picture, nullptr);
        EXPECT_EQ(ReadRecorded(Recorded(*picture, 257, 1), &bits), image) << colours;
        EXPECT_EQ(bits, depth) << colours;
    }
}

}  // namespace draftwick::test
