#pragma once

#include <draftwick/platform/pictures/Parts.h>

#include <memory>
#include <optional>
#include <string>
#include <system_error>

namespace draftwick::platform::pictures {

/// What the loaders of all systems have in common: a file is opened and read by the reader of its kind. A system adds
/// the readers that need its libraries, what it keeps of a bitmap, and the recorder.
class Loader : public Pictures {
public:
    explicit Loader(double twipsPerPixel) : twipsPerPixel_(twipsPerPixel) {}

    std::unique_ptr<const Picture> Load(FileSystem& files, const std::string& name, PictureKind kind,
                                        std::error_code& error) override;
    double TwipsPerPixel() const override { return twipsPerPixel_; }

protected:
    using Loaded = std::unique_ptr<const Picture>;

    // Each returns nothing when the file is unreadable.
    virtual Loaded ReadGif(PictureSource& source) const = 0;
    virtual Loaded Wrap(Bitmap bitmap) const = 0;

    /// The size of so many pixels.
    Size SizeOf(std::int32_t width, std::int32_t height) const {
        return {HimetricFromPixels(width, twipsPerPixel_), HimetricFromPixels(height, twipsPerPixel_)};
    }

private:
    Loaded Read(PictureSource& source, PictureKind kind) const;

    double twipsPerPixel_;
};

/// The system's loader.
std::shared_ptr<Pictures> MakePictures(double twipsPerPixel);

}  // namespace draftwick::platform::pictures
