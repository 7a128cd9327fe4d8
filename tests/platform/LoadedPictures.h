#pragma once

#include "tests/support/FakePlatform.h"
#include "tests/support/PictureFiles.h"

#include <draftwick/platform/Pictures.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace draftwick::test {

inline std::unique_ptr<const platform::Picture> LoadBytes(const std::string& bytes,
                                                          platform::PictureKind kind,
                                                          std::error_code& error) {
    const auto files = std::make_shared<MemoryFiles>();
    files->Put("picture", bytes);
    auto picture = platform::SystemPictures()->Load(*files, "picture", kind, error);
    EXPECT_EQ(picture == nullptr, static_cast<bool>(error));
    return picture;
}

inline std::string Recorded(const platform::Picture& picture, int width, int height) {
    const auto files = std::make_shared<MemoryFiles>();
    std::error_code error;
    platform::SystemPictures()->Record(picture, width, height, *files, "recorded", error);
    EXPECT_FALSE(error) << error.message();
    EXPECT_EQ(files->OpenFiles(), 0);
    return files->Bytes("recorded");
}

/// Whether a file of tests/pictures shows the image, by way of the recorder.
inline void ExpectShown(const std::string& name, const Image& image) {
    std::error_code error;
    const auto kind = name.ends_with(".gif") ? platform::PictureKind::Gif : platform::PictureKind::Bmp;
    const auto picture = LoadBytes(PictureFile(name), kind, error);
    ASSERT_NE(picture, nullptr) << name;
    EXPECT_EQ(ReadRecorded(Recorded(*picture, image.width, image.height)), image) << name;
}

}  // namespace draftwick::test
