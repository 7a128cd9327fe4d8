#include <draftwick/base/Error.h>
#include <draftwick/base/Units.h>
#include <draftwick/base/internal/Required.h>
#include <draftwick/drawing/internal/OpenPicture.h>
#include <draftwick/rtf/BlockWriter.h>
#include <draftwick/rtf/FileInMemory.h>
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

/// What bytes hold according to the first of them; nothing when no picture begins so.
std::optional<PictureKind> PictureTypeFromBytes(std::string_view bytes) {
    using namespace std::string_view_literals;
    static constexpr std::pair<std::string_view, PictureKind> Beginnings[] = {
        {"\xFF\xD8\xFF"sv, PictureKind::Jpeg},
        {"GIF8"sv, PictureKind::Gif},
        {"BM"sv, PictureKind::Bmp},
        {"\xD7\xCD\xC6\x9A"sv, PictureKind::Wmf},
        {"\1\0\x09\0"sv, PictureKind::Wmf},
        {"\2\0\x09\0"sv, PictureKind::Wmf},
    };
    for (const auto& [beginning, kind] : Beginnings) {
        if (bytes.starts_with(beginning)) return kind;
    }
    constexpr std::size_t EmfSignature = 40;
    if (bytes.size() > EmfSignature && bytes.substr(EmfSignature).starts_with(" EMF"))
        return PictureKind::Emf;
    return {};
}

std::int32_t HimetricToTwips(std::int32_t himetric) { return RoundHalfEven(himetric * 1440.0 / 2540); }

}  // namespace

OpenPicture::OpenPicture(const platform::Platform& platform, const std::string& fileName, bool inMemory) {
    platform::FileSystem& files = Required(platform.files, "files");
    if (!files.Exists(fileName)) RaiseError(dwErrPictureFileNotFound, {fileName});
    const std::optional<PictureKind> kind = PictureTypeFromName(fileName);
    if (!kind) RaiseError(dwErrUnsupportedFileType, {fileName});
    kind_ = *kind;
    Load(platform, files, fileName, inMemory);
}

std::shared_ptr<const OpenPicture> OpenPicture::FromBytes(const platform::Platform& platform,
                                                          std::string_view bytes) {
    const std::string name = "(bytes)";
    const std::optional<PictureKind> kind = PictureTypeFromBytes(bytes);
    if (!kind) RaiseError(dwErrUnsupportedFileType, {name});
    const std::shared_ptr<OpenPicture> picture(new OpenPicture);
    picture->kind_ = *kind;
    FileInMemory file{std::string{bytes}};
    picture->Load(platform, file, name, true);
    return picture;
}

std::int32_t OpenPicture::Width() const { return HimetricToTwips(width_); }
std::int32_t OpenPicture::Height() const { return HimetricToTwips(height_); }

void OpenPicture::Load(const platform::Platform& platform, platform::FileSystem& files,
                       const std::string& name, bool inMemory) {
    std::error_code error;
    const auto picture = Required(platform.pictures, "pictures").Load(files, name, kind_, error);
    if (error == platform::PictureError::Unreadable) RaiseRuntimeError(dwRunInvalidPicture, name);
    if (picture == nullptr) RaiseFileError(error, "read", name);
    width_ = picture->Width();
    height_ = picture->Height();
    if (kind_ == PictureKind::Gif || kind_ == PictureKind::Bmp) {
        Convert(platform, *picture, inMemory);
    } else {
        Read(files, name);
    }
}

void OpenPicture::Convert(const platform::Platform& platform, const platform::Picture& picture,
                          bool inMemory) {
    if (inMemory) {
        FileInMemory metafile;
        Record(*platform.pictures, picture, metafile, "(memory)");
        return;
    }
    platform::FileSystem& files = *platform.files;
    // The folder is the environment's, not the document's.
    const std::string name =
        CreateUniqueFile(files, Required(platform.environment, "environment").TempFolder(), "~DWGC", ".tmp",
                         platform::Creation::ExclusivePrivate)
            .name;
    std::error_code ignored;
    try {
        Record(*platform.pictures, picture, files, name);
    } catch (...) {
        files.Delete(name, ignored);
        throw;
    }
    files.Delete(name, ignored);
}

void OpenPicture::Record(platform::Pictures& service, const platform::Picture& picture,
                         platform::FileSystem& files, const std::string& name) {
    const double twipsPerPixel = service.TwipsPerPixel();
    std::error_code error;
    service.Record(picture, HimetricToPixels(width_, twipsPerPixel), HimetricToPixels(height_, twipsPerPixel),
                   files, name, error);
    if (error) RaiseFileError(error, "write", name);
    kind_ = PictureKind::Emf;
    Read(files, name);
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
