#include "tests/support/FakePlatform.h"

#include <gtest/gtest.h>

namespace draftwick::test {
namespace {

// One operation of each kind: each fails when its turn comes, once, and leaves no file open.
TEST(FakePlatform, FailsAtEachOperation) {
    for (int failing = 1; failing <= 9; ++failing) {
        const auto files = std::make_shared<MemoryFiles>();
        const platform::Platform platform = MakeFakePlatform(files);
        files->FailAt(failing, std::errc::no_space_on_device, 2);
        std::string failures;
        std::error_code error;
        const auto note = [&](char kind) {
            if (error == std::errc::no_space_on_device) failures += kind;
        };
        auto writer = platform.files->Create("a", platform::Creation::Exclusive, error);
        note('c');
        if (writer) {
            EXPECT_EQ(writer->Write("12345", 5, error), failing == 2 ? 2u : 5u);
            note('w');
            writer->Close(error);
            note('x');
            writer->Close(error);
        }
        files->Put("a", "123");
        const std::uint64_t length = files->Length("a", error);
        EXPECT_EQ(length, error ? 0u : 3u);
        note('l');
        if (const auto reader = platform.files->OpenForReading("a", error)) {
            char bytes[2] = {};
            const std::size_t taken = reader->Read(bytes, 2, error);
            EXPECT_EQ(taken, error ? 0u : 2u);
            note('r');
            EXPECT_EQ(reader->Write("x", 1, error), 0u);
            EXPECT_EQ(error, std::errc::bad_file_descriptor);
            reader->Close(error);
            note('x');
        } else {
            note('o');
        }
        files->Delete("a", error);
        note('d');
        EXPECT_EQ(failures, std::vector<std::string>({"c", "w", "x", "l", "o", "r", "", "x", "d"})
                                .at(static_cast<std::size_t>(failing - 1)));
        EXPECT_EQ(files->OpenFiles(), 0);
        EXPECT_EQ(files->Exists("a"), error != std::error_code());
    }
}

TEST(FakePlatform, KeepsLockedFilesAndExistingOnes) {
    const auto files = std::make_shared<MemoryFiles>();
    std::error_code error;
    files->Put("a", "1");
    files->Lock("a");
    files->Delete("a", error);
    EXPECT_EQ(error, std::errc::device_or_resource_busy);
    EXPECT_FALSE(files->Create("a", platform::Creation::Overwrite, error));
    EXPECT_EQ(error, std::errc::device_or_resource_busy);
    files->Unlock("a");
    EXPECT_FALSE(files->Create("a", platform::Creation::Exclusive, error));
    EXPECT_EQ(error, std::errc::file_exists);
    EXPECT_EQ(files->Bytes("a"), "1");
    EXPECT_TRUE(files->Create("a", platform::Creation::Overwrite, error));
    EXPECT_EQ(files->Bytes("a"), "");
}

}  // namespace
}  // namespace draftwick::test
