#include <draftwick/platform/pictures/Loader.h>
#include <draftwick/platform/posix/PicturesParts.h>

#include <utility>

namespace draftwick::platform {

namespace posix {

namespace {

class LoadedBitmap final : public Picture {
public:
    LoadedBitmap(Size size, Bitmap bitmap) : Picture(size.width, size.height), bitmap_(std::move(bitmap)) {}

    const Bitmap& Pixels() const { return bitmap_; }

private:
    Bitmap bitmap_;
};

class PosixPictures final : public pictures::Loader {
public:
    using Loader::Loader;

    void Record(const Picture& picture, std::int32_t width, std::int32_t height, FileSystem& files,
                const std::string& name, std::error_code& error) override {
        const auto* loaded = dynamic_cast<const LoadedBitmap*>(&picture);
        if (loaded == nullptr || width < 1 || height < 1 || width > loaded->Pixels().width
            || height > loaded->Pixels().height) {
            error = std::make_error_code(std::errc::invalid_argument);
            return;
        }
        const auto file = files.Create(name, Creation::Overwrite, error);
        if (error) return;
        WriteMetafile(loaded->Pixels(), width, height, SizeOf(width, height), TwipsPerPixel(), *file, error);
        if (!error) file->Close(error);
    }

private:
    Loaded ReadGif(PictureSource& source) const override {
        std::optional<Bitmap> bitmap = posix::ReadGif(source);
        return bitmap ? Wrap(std::move(*bitmap)) : nullptr;
    }
    Loaded Wrap(Bitmap bitmap) const override {
        const Size size = SizeOf(bitmap.width, bitmap.height);
        return std::make_unique<LoadedBitmap>(size, std::move(bitmap));
    }
};

}  // namespace

}  // namespace posix

std::shared_ptr<Pictures> pictures::MakePictures(double twipsPerPixel) {
    return std::make_shared<posix::PosixPictures>(twipsPerPixel);
}

}  // namespace draftwick::platform
