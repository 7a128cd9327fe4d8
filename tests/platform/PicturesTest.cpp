#include <draftwick/platform/Pictures.h>
#include <draftwick/platform/Platform.h>
#include <draftwick/platform/pictures/Parts.h>

#include "tests/platform/LoadedPictures.h"

#include <array>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <tuple>

namespace draftwick::test {

namespace {

using namespace platform;

TEST(Pictures, ShowTheSamePixelsInEveryForm) {
    for (const auto& file : std::filesystem::directory_iterator(DRAFTWICK_PICTURES_FOLDER "/sample")) {
        const std::string name = file.path().filename().string();
        ExpectShown("sample/" + name, name.starts_with("1-bit") ? Coloured("01010 11101 10100") : sample);
    }
}

TEST(Pictures, AreWhiteWhereTheyPaintNothing) {
    const std::pair<const char*, const char*> cases[] = {
        {"jump.bmp", "77777 77177 77777"},
        {"long-run.bmp", "77777 77777 11111"},
        {"five-colours.bmp", "01234 00000 00000"},  // the palette has no others: black
        {"whole.gif", "123 450"},
        {"local-palette.gif", "123 450"},
        {"smaller.gif", "77777 71237 74507"},
        {"transparent.gif", "173 450"},
        {"over-the-edge.gif", "77 71"},
        {"off-the-screen.gif", "77"},
        {"empty-screen.gif", "7123 7450"},
        {"interlaced.gif", "0 1 2 3 4 5 6 0 1 2 3 4 5 6 0 1 2 3 4"},
    };
    for (const auto& [name, pixels] : cases) ExpectShown(name, Coloured(pixels));
}

TEST(Pictures, SizeInHimetric) {
    const std::tuple<std::string, PictureKind, int, int> cases[] = {
        {PictureFile("sample/24.bmp"), PictureKind::Bmp, 133, 80},  // 132.29 and 79.375
        {PictureFile("wide.gif"), PictureKind::Gif, 635, 27},       // a quarter inch
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
    for (const auto& [bytes, kind, width, height] : cases) {
        std::error_code error;
        const auto picture = LoadBytes(bytes, kind, error);
        ASSERT_TRUE(picture) << width << " by " << height;
        EXPECT_EQ(std::pair(picture->Width(), picture->Height()), std::pair(width, height));
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
const std::array<std::string, 5> oneOfEach{MakeJpeg(5, 3, 1, 96, 96), MakeEmf(0, 0, 100, 100),
                                           MakeWmf(0, 0, 9, 9, 9), PictureFile("sample/a.gif"),
                                           PictureFile("sample/24.bmp")};
PictureKind KindAt(std::size_t index) { return static_cast<PictureKind>(index); }

/// A file with bytes of its own from `at` on.
std::string Patched(std::string bytes, std::size_t at, const std::string& patch) {
    return bytes.replace(at, patch.size(), patch);
}

TEST(Pictures, UnreadableOnes) {
    std::error_code error;
    for (std::size_t kind = 0; kind < 5; ++kind) {
        for (std::size_t other = 0; other < 5; ++other) {
            const bool loads = LoadBytes(oneOfEach[other], KindAt(kind), error) != nullptr;
            EXPECT_TRUE(loads ? kind == other : error == PictureError::Unreadable) << kind << " is " << other;
        }
        EXPECT_EQ(LoadBytes("", KindAt(kind), error) != nullptr, KindAt(kind) == PictureKind::Wmf);
    }
    const auto& [jpeg, emf, wmf, gif, bmp] = oneOfEach;
    const std::string runs = PictureFile("sample/rle8.bmp"), fields = PictureFile("sample/16-565.bmp");
    const std::pair<PictureKind, std::string> cases[] = {
        {PictureKind::Emf, emf.substr(0, 87)},
        {PictureKind::Emf, Patched(emf, 40, " WMF")},
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
        {PictureKind::Bmp, PictureFile("above-the-top.bmp")},
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
    const std::tuple<PictureKind, std::string, std::size_t> cases[] = {
        // bytes at the end that can be missing
        {PictureKind::Bmp, PictureFile("sample/4.bmp"), 0},
        {PictureKind::Bmp, PictureFile("sample/16-565.bmp"), 0},
        {PictureKind::Bmp, PictureFile("sample/rle8.bmp"), 2},
        {PictureKind::Gif, PictureFile("transparent.gif"), 1},
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
    EXPECT_EQ(make_error_code(PictureError::Unreadable).message(), "Invalid picture");
    EXPECT_STREQ(make_error_code(PictureError::Unreadable).category().name(), "picture");
    EXPECT_THROW(SystemPictures(0), std::invalid_argument);

    const auto picture = LoadBytes(oneOfEach[4], PictureKind::Bmp, error);
    for (int operation = 1; operation <= 3; ++operation) {
        const auto broken = std::make_shared<MemoryFiles>();
        broken->FailAt(operation, std::errc::io_error);  // create, write, close
        SystemPictures()->Record(*picture, 5, 3, *broken, "recorded", error);
        EXPECT_EQ(error, std::errc::io_error);
        for (std::size_t kind = 0; kind < 5; ++kind) {
            broken->Put("picture", oneOfEach[kind]);
            broken->FailAt(broken->Operations() + operation, std::errc::io_error);  // length, open, read
            EXPECT_FALSE(SystemPictures()->Load(*broken, "picture", KindAt(kind), error)) << kind;
            EXPECT_EQ(error, std::errc::io_error) << kind;
        }
    }
}

TEST(Pictures, OnlyTheHeaderOfAnEmbeddedFileIsRead) {
    for (const PictureKind kind : {PictureKind::Jpeg, PictureKind::Emf, PictureKind::Wmf}) {
        const auto files = std::make_shared<MemoryFiles>();
        files->Put("picture", oneOfEach[static_cast<std::size_t>(kind)] + std::string(1 << 20, 'x'));
        std::error_code error;
        EXPECT_TRUE(SystemPictures()->Load(*files, "picture", kind, error)) << error.message();
        EXPECT_EQ(files->Operations(), 3);  // length, open, one read
    }
}

TEST(Pictures, RecordsAPartAndRefusesWhatIsNotThere) {
    std::error_code error;
    const auto bitmap = LoadBytes(oneOfEach[4], PictureKind::Bmp, error);
    EXPECT_EQ(ReadRecorded(Recorded(*bitmap, 3, 2)), Coloured("012 555"));
    const auto jpeg = LoadBytes(oneOfEach[0], PictureKind::Jpeg, error);
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
