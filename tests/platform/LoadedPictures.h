#pragma once

#include "tests/support/FakePlatform.h"
#include "tests/support/PictureFiles.h"

#include <draftwick/platform/Pictures.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace draftwick::test {

inline std::unique_ptr<const platform::Picture> LoadBytes(const std::string& bytes,
                                                          platform::PictureKind kind, std::error_code& error,
                                                          double twipsPerPixel = 15) {
    const auto files = std::make_shared<MemoryFiles>();
    files->Put("picture", bytes);
    auto picture = platform::SystemPictures(twipsPerPixel)->Load(*files, "picture", kind, error);
    EXPECT_EQ(picture == nullptr, static_cast<bool>(error));
    return picture;
}

inline std::string RecordWhole(const platform::Picture& picture, int width, int height) {
    const auto files = std::make_shared<MemoryFiles>();
    std::error_code error;
    platform::SystemPictures()->Record(picture, width, height, *files, "recorded", error);
    EXPECT_FALSE(error) << error.message();
    EXPECT_EQ(files->OpenFiles(), 0);
    return files->Bytes("recorded");
}

/// The pixels of a picture that must load, by way of the recorder.
inline Image PixelsOf(const std::string& bytes, platform::PictureKind kind, int width, int height,
                      int* bits = nullptr) {
    std::error_code error;
    const auto picture = LoadBytes(bytes, kind, error);
    if (!picture) return {};
    return ReadRecorded(RecordWhole(*picture, width, height), bits);
}

}  // namespace draftwick::test
