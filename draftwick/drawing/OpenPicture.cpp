#include <draftwick/base/Error.h>
#include <draftwick/base/Units.h>
#include <draftwick/drawing/internal/OpenPicture.h>
#include <draftwick/rtf/BlockWriter.h>
#include <draftwick/rtf/UniqueFile.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace draftwick {

namespace {

using platform::PictureKind;

std::int32_t Percent(std::int32_t twips, std::int32_t himetric) {
    if (himetric == 0) RaiseRuntimeError(dwRunDivisionByZero, "the picture has no size that could be scaled");
    return RoundDown(static_cast<double>(TwipsToHimetric(twips)) / himetric * 100);
}

std::int32_t HimetricToTwips(std::int32_t himetric) {
    return static_cast<std::int32_t>(std::min(std::lround(himetric * 1440.0 / 2540), 0x7FFFFFFFL));
}

bool StartsWith(std::string_view head, std::string_view signature, std::size_t at = 0) {
    return head.size() >= at && head.substr(at).starts_with(signature);
}

/// What a file holds according to its first bytes; nothing for a metafile without a size, which has no signature.
std::optional<PictureKind> PictureTypeFromContent(platform::FileSystem& files, const std::string& fileName) {
    std::error_code error;
    const auto file = files.OpenForReading(fileName, error);
    char bytes[44];
    std::size_t size = 0;
    while (file != nullptr && !error && size < sizeof bytes) {
        const std::size_t more = file->Read(bytes + size, sizeof bytes - size, error);
        if (more == 0) break;
        size += more;
    }
    const std::string_view head{bytes, error ? 0 : size};
    if (StartsWith(head, "\xFF\xD8\xFF")) return PictureKind::Jpeg;
    if (StartsWith(head, "\x89PNG\r\n\x1A\n")) return PictureKind::Png;
    if (StartsWith(head, "GIF8")) return PictureKind::Gif;
    if (StartsWith(head, "BM")) return PictureKind::Bmp;
    if (StartsWith(head, std::string_view{"\x01\0\0\0", 4}) && StartsWith(head, " EMF", 40))
        return PictureKind::Emf;
    if (IsPlaceable({reinterpret_cast<const unsigned char*>(head.data()), head.size()}))
        return PictureKind::Wmf;
    return {};
}

/// What a file holds according to the end of its name; nothing when no picture has such a name. Classic knows small
/// letters alone, and no PNG.
std::optional<PictureKind> PictureTypeFromName(std::string fileName, bool standard) {
    if (standard) {
        std::transform(fileName.begin(), fileName.end(), fileName.begin(),
                       [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
        if (fileName.ends_with(".png")) return PictureKind::Png;
    }
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

bool detail::IsPlaceable(std::span<const unsigned char> bytes) {
    static constexpr unsigned char Key[] = {0xD7, 0xCD, 0xC6, 0x9A};
    return bytes.size() >= sizeof Key && std::equal(std::begin(Key), std::end(Key), bytes.begin());
}

OpenPicture::OpenPicture(const platform::Platform& platform, const std::string& fileName, bool standard) {
    platform::FileSystem& files = *platform.files;
    if (!files.Exists(fileName)) RaiseError(dwErrPictureFileNotFound, {fileName});
    std::optional<PictureKind> kind;
    if (standard) kind = PictureTypeFromContent(files, fileName);
    if (!kind) kind = PictureTypeFromName(fileName, standard);
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

PictureSize OpenPicture::SizeOr(const PictureSize& other) const noexcept {
    if (width_ == 0 || height_ == 0) return other;
    return {HimetricToTwips(width_), HimetricToTwips(height_)};
}

std::optional<OpenPicture::Scale> OpenPicture::ScaleTo(std::int32_t width, std::int32_t height) const {
    if (width <= 0 || height <= 0) return {};
    return Scale{Percent(width, width_), Percent(height, height_)};
}

}  // namespace draftwick
