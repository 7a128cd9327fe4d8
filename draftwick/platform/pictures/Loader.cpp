#include <draftwick/platform/pictures/Loader.h>

#include <stdexcept>
#include <utility>

namespace draftwick::platform {

namespace pictures {

namespace {

/// A picture that is embedded as it is.
class SizedPicture final : public Picture {
public:
    explicit SizedPicture(Size size) : Picture(size.width, size.height) {}
};

std::unique_ptr<const Picture> Sized(std::optional<Size> size) {
    return size ? std::make_unique<SizedPicture>(*size) : nullptr;
}

}  // namespace

std::unique_ptr<const Picture> Loader::Load(FileSystem& files, const std::string& name, PictureKind kind,
                                            std::error_code& error) {
    const std::uint64_t length = files.Length(name, error);
    if (error) return nullptr;
    const auto file = files.OpenForReading(name, error);
    if (error) return nullptr;
    PictureSource source(*file, length);
    Loaded picture = Read(source, kind);
    error = source.Outcome();
    if (error) return nullptr;
    if (!picture) error = PictureError::Unreadable;
    return picture;
}

Loader::Loaded Loader::Read(PictureSource& source, PictureKind kind) const {
    switch (kind) {
    case PictureKind::Jpeg: return Sized(ReadJpegSize(source, twipsPerPixel_));
    case PictureKind::Png: return Sized(ReadPngSize(source, twipsPerPixel_));
    case PictureKind::Emf: return Sized(ReadEmfSize(source));
    case PictureKind::Wmf: return Sized(ReadWmfSize(source));
    case PictureKind::Gif: return ReadGif(source);
    case PictureKind::Bmp:
        std::optional<Bitmap> bitmap = ReadBmp(source);
        return bitmap ? Wrap(std::move(*bitmap)) : nullptr;
    }
    return nullptr;
}

}  // namespace pictures

std::error_code make_error_code(PictureError error) noexcept {
    class Category final : public std::error_category {
        const char* name() const noexcept override { return "picture"; }
        std::string message(int) const override { return "Invalid picture"; }
    };
    static const Category category;
    return {static_cast<int>(error), category};
}

std::shared_ptr<Pictures> SystemPictures(double twipsPerPixel) {
    if (!(twipsPerPixel >= 1 && twipsPerPixel <= 1440))
        throw std::invalid_argument("A pixel is 1 to 1440 twips wide");
    return pictures::MakePictures(twipsPerPixel);
}

}  // namespace draftwick::platform
