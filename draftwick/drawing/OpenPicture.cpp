#include <draftwick/base/Error.h>
#include <draftwick/base/Units.h>
#include <draftwick/drawing/internal/OpenPicture.h>
#include <draftwick/rtf/BlockWriter.h>
#include <draftwick/rtf/UniqueFile.h>

#include <utility>

namespace draftwick {

namespace {

using platform::PictureKind;

std::int32_t Percent(std::int32_t twips, std::int32_t himetric) {
    if (himetric == 0) RaiseRuntimeError(dwRunDivisionByZero, "the picture has no size that could be scaled");
    return RoundDown(static_cast<double>(TwipsToHimetric(twips)) / himetric * 100);
}

/// What a file holds according to the end of its name, in small letters; nothing when no picture has such a name.
std::optional<PictureKind> PictureTypeFromName(std::string_view fileName) {
    static constexpr std::pair<std::string_view, PictureKind> Endings[] = {
        {".jpg", PictureKind::Jpeg}, {".jpeg", PictureKind::Jpeg}, {".bmp", PictureKind::Bmp},
        {".emf", PictureKind::Emf},  {".wmf", PictureKind::Wmf},   {".gif", PictureKind::Gif},
    };
    for (const auto& [ending, kind] : Endings) {
        if (fileName.ends_with(ending)) return kind;
    }
    return {};
}

}  // namespace

OpenPicture::OpenPicture(const platform::Platform& platform, const std::string& fileName) {
    platform::FileSystem& files = *platform.files;
    if (!files.Exists(fileName)) RaiseError(dwErrPictureFileNotFound, {fileName});
    const std::optional<PictureKind> kind = PictureTypeFromName(fileName);
    if (!kind) RaiseError(dwErrUnsupportedFileType, {fileName});
    kind_ = *kind;
    std::error_code error;
    const auto picture = platform.pictures->Load(files, fileName, kind_, error);
    if (error == platform::PictureError::Unreadable) RaiseRuntimeError(dwRunInvalidPicture, fileName);
    if (picture == nullptr) RaiseFileError(error, "read", fileName);
    width_ = picture->Width();
    height_ = picture->Height();
    if (kind_ == PictureKind::Gif || kind_ == PictureKind::Bmp) {
        Convert(platform, *picture);
    } else {
        Read(files, fileName);
    }
}

void OpenPicture::Convert(const platform::Platform& platform, const platform::Picture& picture) {
    platform::FileSystem& files = *platform.files;
    // The folder is the environment's, not the document's.
    const std::string name = CreateUniqueFile(files, platform.environment->TempFolder(), "~DWGC", ".tmp",
                                              platform::Creation::ExclusivePrivate)
                                 .name;
    std::error_code ignored;
    try {
        const double twipsPerPixel = platform.pictures->TwipsPerPixel();
        std::error_code error;
        platform.pictures->Record(picture, HimetricToPixels(width_, twipsPerPixel),
                                  HimetricToPixels(height_, twipsPerPixel), files, name, error);
        if (error) RaiseFileError(error, "write", name);
        kind_ = PictureKind::Emf;
        Read(files, name);
    } catch (...) {
        files.Delete(name, ignored);
        throw;
    }
    files.Delete(name, ignored);
}

void OpenPicture::Read(platform::FileSystem& files, const std::string& name) {
    constexpr std::size_t BlockSize = std::size_t{32} * 1024;
    std::error_code error;
    const std::uint64_t length = files.Length(name, error);
    if (error) RaiseFileError(error, "read", name);
    bytes_.reserve(static_cast<std::size_t>(length) + BlockSize);
    const auto file = files.OpenForReading(name, error);
    for (std::size_t have = 0; !error;) {
        bytes_.resize(have + BlockSize);
        const std::size_t more = file->Read(reinterpret_cast<char*>(bytes_.data()) + have, BlockSize, error);
        have += more;
        bytes_.resize(have);
        if (more == 0) break;
    }
    if (error) RaiseFileError(error, "read", name);
}

std::optional<OpenPicture::Scale> OpenPicture::ScaleTo(std::int32_t width, std::int32_t height) const {
    if (width <= 0 || height <= 0) return {};
    return Scale{Percent(width, width_), Percent(height, height_)};
}

}  // namespace draftwick
