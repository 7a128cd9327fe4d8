#include <draftwick/platform/Pictures.h>
#include <draftwick/platform/Platform.h>
#include <draftwick/platform/pictures/Parts.h>

#include "tests/platform/LoadedPictures.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>

namespace draftwick::test {

namespace {

using namespace platform;
using namespace std::string_literals;

// The bottom row and the left edge tell the orders of rows and bits apart.
const Indices sample{5, 3, {0, 1, 2, 3, 4, /**/ 5, 5, 5, 6, 7, /**/ 7, 6, 5, 0, 0}};

const std::string rle8 =
    "\0\3\7\6\5\0\2\0\0\0"    // bottom row: three pixels as they are and padding, two black
    "\3\5\1\6\1\7\0\0"        // middle row, all runs
    "\0\5\0\1\2\3\4\0\0\1"s;  // top row as it is and padding, end of the picture
const std::string rle4 = "\0\3\x76\x50\2\0\0\0"
                         "\3\x55\2\x67\0\0"
                         "\0\5\x01\x23\x40\0\0\1"s;

TEST(Pictures, BitmapsOfEveryFormGiveTheSamePixels) {
    using Masks = std::array<std::uint32_t, 3>;
    const auto form = [](std::uint32_t headerSize, int bits, std::uint32_t compression = 0,
                         Masks masks = {}) {
        return BmpForm{.headerSize = headerSize, .bits = bits, .compression = compression, .masks = masks};
    };
    const BmpForm forms[] = {
        form(12, 1),
        form(12, 4),
        form(12, 8),
        form(12, 24),
        form(40, 1),
        form(40, 4),
        form(40, 8),
        form(40, 24),
        form(40, 16, 0, {0x7C00, 0x3E0, 0x1F}),
        form(40, 32, 0, {0xFF0000, 0xFF00, 0xFF}),
        form(40, 16, 3, {0xF800, 0x7E0, 0x1F}),
        form(40, 16, 3, {0xF00, 0xF0, 0xF}),
        form(40, 32, 3, {0x3FF, 0xFFC00, 0x3FF00000}),
        form(52, 32, 3, {0xFF000000, 0xFF00, 0xFF}),
        form(56, 16, 3, {0xF800, 0x7E0, 0x1F}),
        form(64, 4),
        form(108, 8),
        form(124, 32, 3, {0xFF, 0xFF00, 0xFF0000}),
        {.bits = 4, .topDown = true},
        {.headerSize = 124, .topDown = true},
        {.bits = 8, .entries = 8},
        {.bits = 8, .entries = 8, .claimedOffset = 0},
        {.bits = 8, .claimedOffset = 5000},
        {.bits = 4, .gap = 7},
        {.bits = 8, .compression = 1, .encoded = rle8},
        {.bits = 8, .compression = 1, .encoded = rle8.substr(0, rle8.size() - 2)},
        {.bits = 4, .compression = 2, .encoded = rle4},
    };
    for (const BmpForm& one : forms) {
        Indices indices = sample;
        for (auto& index : indices.pixels) index &= one.bits == 1 ? 1 : 7;
        EXPECT_EQ(PixelsOf(MakeBmp(indices, one), PictureKind::Bmp, 5, 3), Coloured(indices)) << &one - forms;
    }
}

TEST(Pictures, WhatABitmapDoesNotPaintIsWhiteAndWhatItsPaletteLacksIsBlack) {
    // Two to the right and one up, a red pixel there, end. Then: a run that is longer than its row.
    Indices expected{5, 3, {7, 7, 7, 7, 7, /**/ 7, 7, 1, 7, 7, /**/ 7, 7, 7, 7, 7}};
    const BmpForm jump{.bits = 8, .compression = 1, .encoded = "\0\2\2\1\1\1\0\1"s};
    EXPECT_EQ(PixelsOf(MakeBmp(sample, jump), PictureKind::Bmp, 5, 3), Coloured(expected));
    expected.pixels = {7, 7, 7, 7, 7, /**/ 7, 7, 7, 7, 7, /**/ 1, 1, 1, 1, 1};
    const BmpForm longRun{.bits = 8, .compression = 1, .encoded = "\6\1\0\1"s};
    EXPECT_EQ(PixelsOf(MakeBmp(sample, longRun), PictureKind::Bmp, 5, 3), Coloured(expected));
    EXPECT_EQ(PixelsOf(MakeBmp(sample, {.bits = 8, .entries = 5}), PictureKind::Bmp, 5, 3),
              Coloured({5, 3, {0, 1, 2, 3, 4, /**/ 0, 0, 0, 0, 0, /**/ 0, 0, 0, 0, 0}}));
}

TEST(Pictures, GifFrameOnItsScreen) {
    const Indices frame{3, 2, {1, 2, 3, 4, 5, 0}};
    struct Case {
        const char* name;
        GifForm form;
        Indices expected;
    };
    const Case cases[] = {
        {"fills the screen", {3, 2}, frame},
        {"local palette", {3, 2, 0, 0, false, -1, true}, frame},
        {"smaller", {5, 3, 1, 1}, {5, 3, {7, 7, 7, 7, 7, /**/ 7, 1, 2, 3, 7, /**/ 7, 4, 5, 0, 7}}},
        {"transparent", {3, 2, 0, 0, false, 2}, {3, 2, {1, 7, 3, 4, 5, 0}}},
        {"over the edge", {2, 2, 1, 1}, {2, 2, {7, 7, 7, 1}}},
        {"off the screen", {2, 1, 4, 4}, {2, 1, {7, 7}}},
        {"empty screen", {0, 0, 1, 0}, {4, 2, {7, 1, 2, 3, 7, 4, 5, 0}}},
    };
    for (const auto& [name, form, expected] : cases) {
        EXPECT_EQ(PixelsOf(MakeGif(frame, form), PictureKind::Gif, expected.width, expected.height),
                  Coloured(expected))
            << name;
    }
    Indices column{1, 19, {}};  // rows enough for all four passes
    for (std::uint8_t y = 0; y < 19; ++y) column.pixels.push_back(y % 7);
    EXPECT_EQ(PixelsOf(MakeGif(column, {1, 19, 0, 0, true}), PictureKind::Gif, 1, 19), Coloured(column));
}

TEST(Pictures, SizeInHimetric) {
    struct Case {
        std::string bytes;
        PictureKind kind;
        int width;
        int height;
    };
    const Case cases[] = {
        {MakeBmp(sample, {}), PictureKind::Bmp, 133, 80},  // 132.29 and 79.375
        {MakeGif({24, 1, std::vector<std::uint8_t>(24)}, {24, 1}), PictureKind::Gif, 635,
         27},  // a quarter inch
        {MakeJpeg(300, 150, 1, 300, 75), PictureKind::Jpeg, 2540, 5080},
        {MakeJpeg(10, 20, 2, 100, 10), PictureKind::Jpeg, 100, 2000},
        {MakeJpeg(96, 48, 0, 1, 1), PictureKind::Jpeg, 2540, 1270},
        {MakeJpeg(96, 48, 1, 0, 300), PictureKind::Jpeg, 2540, 1270},
        {MakeJpeg(96, 48, -1, 300, 300), PictureKind::Jpeg, 2540, 1270},
        {MakeJpeg(1, 1, 1, 65535, 65535), PictureKind::Jpeg, 1, 1},
        // What should not be between two segments is passed over.
        {MakeJpeg(96, 48, -1, 0, 0).insert(2, "junk\xFF\xFF"), PictureKind::Jpeg, 2540, 1270},
        {MakeEmf(-100, 20, 2440, 1290), PictureKind::Emf, 2540, 1270},
        {MakeEmf(0, 0, -1, -1), PictureKind::Emf, 0, 0},
        {MakeWmf(-10, 0, 1430, 720, 1440), PictureKind::Wmf, 2540, 1270},
        {MakeWmf(100, 0, 0, -100, 1000), PictureKind::Wmf, 254, 254},
        {MakeWmf(0, 0, 100, 100, 0), PictureKind::Wmf, 0, 0},
        {MakeWmf(0, 0, 100, 100, 1000).substr(0, 21), PictureKind::Wmf, 0, 0},
        {MakeWmf(0, 0, 100, 100, 1000).substr(22), PictureKind::Wmf, 0, 0},
        {"", PictureKind::Wmf, 0, 0},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        std::error_code error;
        const auto picture = LoadBytes(cases[i].bytes, cases[i].kind, error);
        ASSERT_TRUE(picture) << "case " << i;
        EXPECT_EQ(picture->Width(), cases[i].width) << "case " << i;
        EXPECT_EQ(picture->Height(), cases[i].height) << "case " << i;
    }
}

TEST(Pictures, HimetricSizesGiveTheirPixelsBack) {
    for (const double twips : {15.0, 12.0, 20.0, 1.0, 7.5, 1440.0 / 168}) {
        for (int pixels = 1; pixels <= 1500; ++pixels) {
            const int himetric = pictures::HimetricFromPixels(pixels, twips);
            ASSERT_EQ(std::floor(himetric / 2540.0 * 1440 / twips), pixels) << twips;
            ASSERT_LT(std::floor((himetric - 1) / 2540.0 * 1440 / twips), pixels) << twips;
        }
    }
    EXPECT_EQ(pictures::HimetricFromPixels(192, 7.5), 2540);  // an inch at 192 pixels per inch
}

/// A sound file of every kind, in the order of PictureKind.
const std::array<std::string, 5>& OneOfEach() {
    static const std::array<std::string, 5> files{
        MakeJpeg(5, 3, 1, 96, 96), MakeEmf(0, 0, 100, 100), MakeWmf(0, 0, 9, 9, 9) + rle8,
        MakeGif(sample, {5, 3, 0, 0, false, 1}), MakeBmp(sample, {})};
    return files;
}
PictureKind KindAt(std::size_t index) { return static_cast<PictureKind>(index); }

/// A file with bytes of its own from `at` on.
std::string Patched(std::string bytes, std::size_t at, const std::string& patch) {
    return bytes.replace(at, patch.size(), patch);
}

TEST(Pictures, UnreadableOnes) {
    std::error_code error;
    for (std::size_t kind = 0; kind < 5; ++kind) {
        for (std::size_t other = 0; other < 5; ++other) {
            const bool loads = LoadBytes(OneOfEach()[other], KindAt(kind), error) != nullptr;
            EXPECT_TRUE(loads ? kind == other : error == PictureError::Unreadable) << kind << " is " << other;
        }
    }
    const auto& [jpeg, emf, wmf, gif, bmp] = OneOfEach();
    const std::string runs = MakeBmp(sample, {.bits = 8, .compression = 1, .encoded = rle8});
    const std::string fields =
        MakeBmp(sample, {.bits = 16, .compression = 3, .masks = {0xF800, 0x7E0, 0x1F}});
    const std::pair<PictureKind, std::string> cases[] = {
        {PictureKind::Bmp, ""},
        {PictureKind::Gif, ""},
        {PictureKind::Jpeg, ""},
        {PictureKind::Emf, ""},
        {PictureKind::Emf, emf.substr(0, 87)},
        {PictureKind::Emf, MakeEmf(INT32_MIN, 0, INT32_MAX, 9)},
        {PictureKind::Emf, MakeEmf(9, 0, 0, 9)},
        {PictureKind::Bmp, Patched(bmp, 14, Le32(0xFFFFFFFF))},  // size of the header
        {PictureKind::Bmp, Patched(bmp, 18, Le32(0))},           // width
        {PictureKind::Bmp, Patched(bmp, 18, Le32(0x80000000))},
        {PictureKind::Bmp, Patched(bmp, 18, Le32(0x7FFFFFFF) + Le32(0x7FFFFFFF))},
        {PictureKind::Bmp, Patched(bmp, 22, Le32(0))},  // height
        {PictureKind::Bmp, Patched(bmp, 22, Le32(0x80000000))},
        {PictureKind::Bmp, Patched(bmp, 26, Le16(2))},                   // planes
        {PictureKind::Bmp, Patched(bmp, 28, Le16(0))},                   // bits
        {PictureKind::Bmp, Patched(bmp, 30, Le32(4))},                   // a JPEG within
        {PictureKind::Bmp, Patched(runs, 22, Le32(0xFFFFFFFD))},         // run lengths from the top
        {PictureKind::Bmp, Patched(runs, 18, Le32(8000) + Le32(8000))},  // runs that cannot fill it
        {PictureKind::Bmp, MakeBmp(sample, {.bits = 8, .compression = 1, .encoded = "\0\2\0\3\1\1\0\1"s})},
        {PictureKind::Bmp, Patched(fields, 54, Le32(0xF801))},    // a mask in two pieces
        {PictureKind::Bmp, Patched(fields, 54, Le32(0x1F0000))},  // one beyond the pixel
        {PictureKind::Gif, Patched(gif, 6, "\xFF\xFF\xFF\xFF")},  // a screen of 65535 by 65535
        {PictureKind::Gif, Patched(gif, 6, Le16(8000) + Le16(8000))},
        {PictureKind::Gif, gif.substr(0, 13 + 24) + ";"},  // no frame
        {PictureKind::Jpeg, "\xFF\xD8\xFF\xD9"},           // no size
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        LoadBytes(cases[i].second, cases[i].first, error);
        EXPECT_EQ(error, PictureError::Unreadable) << "case " << i;
    }
}

TEST(Pictures, CutShortAnywhere) {
    struct Case {
        PictureKind kind;
        std::string bytes;
        std::size_t spare;  // bytes at the end that can be missing
    };
    const Case cases[] = {
        {PictureKind::Bmp, MakeBmp(sample, {.bits = 4}), 0},
        {PictureKind::Bmp, MakeBmp(sample, {.bits = 16, .compression = 3, .masks = {0xF800, 0x7E0, 0x1F}}),
         0},
        {PictureKind::Bmp, MakeBmp(sample, {.bits = 8, .compression = 1, .encoded = rle8}), 2},
        {PictureKind::Gif, MakeGif(sample, {5, 3, 0, 0, false, 1}), 1},
        {PictureKind::Jpeg, MakeJpeg(5, 3, 1, 96, 96), SIZE_MAX},
        {PictureKind::Wmf, MakeWmf(0, 0, 9, 9, 9), SIZE_MAX},
    };
    for (const auto& [kind, bytes, spare] : cases) {
        for (std::size_t size = 0; size < bytes.size(); ++size) {
            std::error_code error;
            LoadBytes(bytes.substr(0, size), kind, error);
            const bool mayLoad = bytes.size() - size <= spare;
            EXPECT_TRUE(error ? error == PictureError::Unreadable : mayLoad) << size;
        }
    }
}

TEST(Pictures, FileErrorsAreNotPictureErrors) {
    std::error_code error;
    const auto files = SystemPlatform().files;
    EXPECT_FALSE(SystemPictures()->Load(*files, testing::TempDir() + "absent.bmp", PictureKind::Bmp, error));
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
    EXPECT_FALSE(SystemPictures()->Load(*files, testing::TempDir(), PictureKind::Bmp, error));
    EXPECT_EQ(error, std::errc::is_a_directory);

    const auto failing = [](int operation) {
        auto files = std::make_shared<MemoryFiles>();
        files->FailAt(operation, std::errc::io_error);
        return files;
    };
    for (int operation = 1; operation <= 3; ++operation) {  // length, open, read
        for (std::size_t kind = 0; kind < 5; ++kind) {
            const auto broken = failing(operation);
            broken->Put("picture", OneOfEach()[kind]);
            EXPECT_FALSE(SystemPictures()->Load(*broken, "picture", KindAt(kind), error)) << kind;
            EXPECT_EQ(error, std::errc::io_error) << kind;
        }
    }
    const auto picture = LoadBytes(OneOfEach()[4], PictureKind::Bmp, error);
    for (int operation = 1; operation <= 3; ++operation) {  // create, write, close
        SystemPictures()->Record(*picture, 5, 3, *failing(operation), "recorded", error);
        EXPECT_EQ(error, std::errc::io_error);
    }
}

TEST(Pictures, OnlyTheHeaderOfAnEmbeddedFileIsRead) {
    for (const PictureKind kind : {PictureKind::Jpeg, PictureKind::Emf, PictureKind::Wmf}) {
        const auto files = std::make_shared<MemoryFiles>();
        files->Put("picture", OneOfEach()[static_cast<std::size_t>(kind)] + std::string(1 << 20, 'x'));
        std::error_code error;
        EXPECT_TRUE(SystemPictures()->Load(*files, "picture", kind, error)) << error.message();
        EXPECT_EQ(files->Operations(), 3);  // length, open, one read
    }
}

TEST(Pictures, RecordsAPartAndRefusesWhatIsNotThere) {
    std::error_code error;
    const auto bitmap = LoadBytes(MakeBmp(sample, {}), PictureKind::Bmp, error);
    EXPECT_EQ(ReadRecorded(RecordWhole(*bitmap, 3, 2)), Coloured({3, 2, {0, 1, 2, 5, 5, 5}}));
    const auto jpeg = LoadBytes(MakeJpeg(5, 3, 1, 96, 96), PictureKind::Jpeg, error);
    const auto files = std::make_shared<MemoryFiles>();
    for (const auto& [width, height] : {std::pair(0, 3), {6, 3}, {5, 4}, {5, -1}}) {
        SystemPictures()->Record(*bitmap, width, height, *files, "recorded", error);
        EXPECT_EQ(error, std::errc::invalid_argument);
    }
    SystemPictures()->Record(*jpeg, 1, 1, *files, "recorded", error);
    EXPECT_EQ(error, std::errc::invalid_argument);
    EXPECT_TRUE(files->Names().empty());
}

}  // namespace

}  // namespace draftwick::test
