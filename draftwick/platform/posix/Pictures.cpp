#include <draftwick/platform/posix/PicturesParts.h>

#include <stdexcept>

namespace draftwick::platform {

namespace posix {

namespace {

class LoadedPicture final : public Picture {
public:
    explicit LoadedPicture(Size size) : Picture(size.width, size.height) {}
    LoadedPicture(Size size, Bitmap bitmap) : Picture(size.width, size.height), bitmap_(std::move(bitmap)) {}

    /// Empty for a picture that is embedded as it is.
    const Bitmap& Pixels() const { return bitmap_; }

private:
    Bitmap bitmap_;
};

class PosixPictures final : public Pictures {
public:
    explicit PosixPictures(int twipsPerPixel) : twipsPerPixel_(twipsPerPixel) {}

    std::unique_ptr<const Picture> Load(FileSystem& files, const std::string& name, PictureKind kind,
                                        std::error_code& error) override {
        const std::uint64_t length = files.Length(name, error);
        if (error) return nullptr;
        const auto file = files.OpenForReading(name, error);
        if (error) return nullptr;
        PictureSource source(*file, length);
        auto picture = Read(source, kind);
        error = source.Outcome();
        if (error) return nullptr;
        if (!picture) error = PictureError::Unreadable;
        return picture;
    }

    void Record(const Picture& picture, std::int32_t width, std::int32_t height, FileSystem& files,
                const std::string& name, std::error_code& error) override {
        const auto* loaded = dynamic_cast<const LoadedPicture*>(&picture);
        if (loaded == nullptr || width < 1 || height < 1 || width > loaded->Pixels().width
            || height > loaded->Pixels().height) {
            error = std::make_error_code(std::errc::invalid_argument);
            return;
        }
        const auto file = files.Create(name, Creation::Overwrite, error);
        if (error) return;
        WriteMetafile(loaded->Pixels(), width, height, SizeOf(width, height), twipsPerPixel_, *file, error);
        if (!error) file->Close(error);
    }

    int TwipsPerPixel() const override { return twipsPerPixel_; }

private:
    std::unique_ptr<const Picture> Read(PictureSource& source, PictureKind kind) const {
        switch (kind) {
        case PictureKind::Jpeg: return Wrap(ReadJpegSize(source, twipsPerPixel_));
        case PictureKind::Emf: return Wrap(pictures::ReadEmfSize(source));
        case PictureKind::Wmf: return Wrap(pictures::ReadWmfSize(source));
        case PictureKind::Gif: return Wrap(ReadGif(source));
        case PictureKind::Bmp: return Wrap(pictures::ReadBmp(source));
        }
        return nullptr;
    }

    std::unique_ptr<const Picture> Wrap(std::optional<Size> size) const {
        return size ? std::make_unique<LoadedPicture>(*size) : nullptr;
    }

    std::unique_ptr<const Picture> Wrap(std::optional<Bitmap> bitmap) const {
        if (!bitmap) return nullptr;
        const Size size = SizeOf(bitmap->width, bitmap->height);
        return std::make_unique<LoadedPicture>(size, std::move(*bitmap));
    }

    Size SizeOf(std::int32_t width, std::int32_t height) const {
        return {HimetricFromPixels(width, twipsPerPixel_), HimetricFromPixels(height, twipsPerPixel_)};
    }

    int twipsPerPixel_;
};

}  // namespace

}  // namespace posix

std::shared_ptr<Pictures> SystemPictures(int twipsPerPixel) {
    if (twipsPerPixel < 1 || twipsPerPixel > 1440)
        throw std::invalid_argument("A pixel is 1 to 1440 twips wide");
    return std::make_shared<posix::PosixPictures>(twipsPerPixel);
}

}  // namespace draftwick::platform
